#pragma once
// The host's profile: named sections of key=value settings, read from INI files.
//
// Two files make one profile. The shipped defaults (data/orbiscope.ini, "ed:\orbiscope.ini")
// hold every key the component reads; the user's own file of the same name in
// UserConfigDirectory() overrides any of them. Writes go to the user's file only, so the
// shipped defaults never change.
//
// The INI text, as read here:
//   [Section]          a section header; the name runs to the first ']' (or the line's end)
//   Key = Value        blanks around key and value are dropped; a value in double quotes
//                      loses the one pair of quotes, which is how it keeps outer blanks
//   ; text   # text    comments, as are lines without '=' and lines before any section
// Lines end with LF, CR LF or CR; a UTF-8 byte order mark is skipped. Section and key names
// ignore case. When a key appears twice the first one counts, also across repeated sections.
// No text makes the reader fail: what it cannot read it ignores.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "catalogues/LorvString.h"

// A colour as the platform passes it: 0x00BBGGRR.
using HostColor = std::uint32_t;
constexpr HostColor HostRGB(unsigned red, unsigned green, unsigned blue)
{
    return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}

class HostProf
{
public:
    // The profile of the named INI file, "ed:\orbiscope.ini" when `file` is null, with the
    // user's file of the same name laid over it.
    explicit HostProf(const char* file = nullptr);

    // A profile of the given text alone, with no files behind it (Write refuses).
    static HostProf FromText(const std::string& text);

    // The text of the key; `defaultValue` (null reads as "") when the key is missing.
    std::string Get(const std::string& section, const std::string& key,
                    const char* defaultValue = nullptr) const;
    std::string Get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const;
    // "1", "true", "yes", "on" and any other number but 0 are true; "0", "false", "no", "off"
    // are false; anything else gives the default.
    bool GetBool(const std::string& section, const std::string& key, bool defaultValue) const;
    // A decimal or "0x" hexadecimal integer at the start of the value, clamped to the range
    // of long; the default when the value does not start with one.
    long GetInt(const std::string& section, const std::string& key, long defaultValue) const;
    // "r, g, b" (commas or blanks between three integers from 0 to 255) or "#RRGGBB"; the
    // default for any other text.
    HostColor GetColor(const std::string& section, const std::string& key,
                       HostColor defaultValue) const;
    // The text of the key as a real path: logical prefixes such as "ed:\" resolved.
    std::string GetPath(const std::string& section, const std::string& key,
                        const char* defaultValue = nullptr) const;
    bool Has(const std::string& section, const std::string& key) const;
    // The names of the sections, and of the keys of one section, in order of name.
    std::vector<std::string> GetSections() const;
    std::vector<std::string> GetKeys(const std::string& section) const;

    // Writes the value into the user's file (created when missing) and into this profile.
    // False when the file cannot be written, or when the names or the value cannot be held by
    // an INI line (a line break anywhere, '=' or a leading comment mark in a key, ']' in a
    // section name, blanks at either end of a name, empty names).
    bool Write(const std::string& section, const std::string& key, const std::string& value);

    // Reads both files again.
    void Reload();

    const std::string& GetDefaultsPath() const { return DefaultsPath; }
    const std::string& GetUserPath() const { return UserPath; }

    // Adds the settings of an INI text; keys already present keep their values.
    void AddText(const std::string& text);
    // `text` with the key set to `value`: its first line in the first such section replaced,
    // or a line added to that section, or a new section appended. Comments and other lines
    // stay as they were. `text` itself when the names or the value are refused (see Write).
    static std::string SetInText(const std::string& text, const std::string& section,
                                 const std::string& key, const std::string& value);
    // True when Write and SetInText accept these names and this value.
    static bool CanHold(const std::string& section, const std::string& key,
                        const std::string& value);

private:
    struct NoFiles
    {};
    explicit HostProf(NoFiles) {}
    const std::string* Find(const std::string& section, const std::string& key) const;

    using Section = std::map<std::string, std::string, NoCaseLess>;
    std::map<std::string, Section, NoCaseLess> Sections;
    std::string FileName;
    std::string DefaultsPath;
    std::string UserPath;
};

// The shared profile of the host. There is one INI file, so every number gives the same
// profile; it is read again when the user's configuration directory changes.
HostProf& HostProfile(int iniFile = 0);
