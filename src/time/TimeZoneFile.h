#pragma once
// One compiled zone file of the IANA database (TZif, RFC 8536), as far as the zone list needs
// it: the POSIX rule that governs every moment after the file's last transition, and the
// offset in force after that transition for files that carry no rule.
//
// Layout: a 44-byte header ("TZif", a version byte, 15 reserved bytes, six big-endian 32-bit
// counts: UT indicators, standard indicators, leap seconds, transitions, local time types,
// abbreviation bytes), a data block with 32-bit times; from version 2 on a second header and
// block with 64-bit times follow, then the rule between two line feeds.
#include <cstddef>
#include <string>
#include <string_view>

class TimeZoneFile
{
public:
    // Files larger than this are not zone files (the largest in the database has a few KB).
    static constexpr std::size_t kMaxFileSize = 1 << 20;

    // Reads and parses the file; false when it cannot be read or is not a valid zone file.
    bool Read(const std::string& path);
    // Parses the bytes of a zone file; false, with nothing kept, when they are not one, or
    // when the last local time type lies outside -25 h to +26 h from UT.
    bool Parse(std::string_view bytes);

    // True when the file at `path` begins with the zone file's magic "TZif".
    static bool HasMagic(const std::string& path);
    // The whole content of a file, up to kMaxFileSize bytes; false when it cannot be read or
    // is larger.
    static bool ReadBytes(const std::string& path, std::string& bytes);

    // 1 for the first format, 2 and up for those with a rule.
    int GetVersion() const { return nVersion; }
    // The POSIX rule of the file's end, such as "CET-1CEST,M3.5.0,M10.5.0/3"; empty when the
    // file has none (version 1, or a zone whose future follows no rule).
    const std::string& GetRule() const { return Rule; }
    // Seconds east of UT, and the daylight flag, of the local time type that the last
    // transition brings in (the first type when there are no transitions).
    long GetLastUtcOffset() const { return nLastUtcOffset; }
    bool GetLastIsDaylight() const { return bLastIsDaylight; }
    // The abbreviation of that type, such as "CET".
    const std::string& GetLastAbbreviation() const { return LastAbbreviation; }

private:
    int nVersion = 0;
    std::string Rule;
    long nLastUtcOffset = 0;
    bool bLastIsDaylight = false;
    std::string LastAbbreviation;
};
