#include "host/HostProf.h"

#include <cctype>
#include <climits>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <vector>

#include "host/HostFile.h"
#include "host/UserConfigDirectory.h"
#include "platform/DebugStream.h"

namespace {

const char* const kDefaultFile = "ed:\\orbiscope.ini";

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string Trim(const std::string& text)
{
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && IsBlank(text[begin])) {
        ++begin;
    }
    while (end > begin && IsBlank(text[end - 1])) {
        --end;
    }
    return text.substr(begin, end - begin);
}

// One line of an INI text with the line break that ended it, so that a text can be put back
// together unchanged around an edited line.
struct Line
{
    std::string Content;
    std::string Break;
};

std::vector<Line> SplitLines(const std::string& text)
{
    std::vector<Line> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back({text.substr(start), ""});
            break;
        }
        std::size_t next = end + 1;
        if (text[end] == '\r' && next < text.size() && text[next] == '\n') {
            ++next;
        }
        lines.push_back({text.substr(start, end - start), text.substr(end, next - end)});
        start = next;
    }
    return lines;
}

enum class LineKind
{
    Other,
    Section,
    Entry
};

struct ParsedLine
{
    LineKind Kind = LineKind::Other;
    std::string Name; // the section's or the key's
    std::string Value;
};

ParsedLine ParseLine(std::string_view content, bool first)
{
    static const std::string_view bom = "\xEF\xBB\xBF";
    if (first && content.substr(0, bom.size()) == bom) {
        content.remove_prefix(bom.size());
    }
    std::string line = Trim(std::string(content));
    ParsedLine parsed;
    if (line.empty() || line[0] == ';' || line[0] == '#') {
        return parsed;
    }
    if (line[0] == '[') {
        std::size_t close = line.find(']');
        parsed.Kind = LineKind::Section;
        parsed.Name =
            Trim(line.substr(1, close == std::string::npos ? std::string::npos : close - 1));
        return parsed;
    }
    std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
        return parsed;
    }
    parsed.Name = Trim(line.substr(0, equals));
    if (parsed.Name.empty()) {
        return parsed;
    }
    parsed.Kind = LineKind::Entry;
    parsed.Value = Trim(line.substr(equals + 1));
    if (parsed.Value.size() >= 2 && parsed.Value.front() == '"' && parsed.Value.back() == '"') {
        parsed.Value = parsed.Value.substr(1, parsed.Value.size() - 2);
    }
    return parsed;
}

// The value as it must stand after "key=" to be read back unchanged.
std::string QuotedValue(const std::string& value)
{
    bool quote =
        !value.empty() && (IsBlank(value.front()) || IsBlank(value.back()) ||
                           (value.size() >= 2 && value.front() == '"' && value.back() == '"'));
    return quote ? "\"" + value + "\"" : value;
}

bool ReadWholeFile(const std::string& path, std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    std::ostringstream buffer;
    buffer << in.rdbuf();
    text = buffer.str();
    return true;
}

// Replaces the file in one step, so a reader never sees half of it.
bool WriteWholeFile(const std::string& path, const std::string& text)
{
    std::string temporary = path + ".tmp";
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    written = std::fflush(file) == 0 && written;
    written = ::fsync(::fileno(file)) == 0 && written;
    written = std::fclose(file) == 0 && written;
    if (!written || std::rename(temporary.c_str(), path.c_str()) != 0) {
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

std::string BaseName(const std::string& path)
{
    std::size_t slash = path.find_last_of("/\\:");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// Reads a decimal or 0x-hexadecimal integer at the start of `text`, clamped to long.
bool ParseInteger(std::string_view text, long& value, std::size_t& used)
{
    std::size_t i = 0;
    while (i < text.size() && IsBlank(text[i])) {
        ++i;
    }
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    unsigned base = 10;
    if (i + 2 < text.size() && text[i] == '0' && (text[i + 1] == 'x' || text[i + 1] == 'X') &&
        std::isxdigit(static_cast<unsigned char>(text[i + 2]))) {
        base = 16;
        i += 2;
    }
    const unsigned long limit = negative ? static_cast<unsigned long>(LONG_MAX) + 1UL : LONG_MAX;
    unsigned long magnitude = 0;
    bool any = false;
    for (; i < text.size(); ++i) {
        unsigned digit;
        char c = text[i];
        if (c >= '0' && c <= '9') {
            digit = static_cast<unsigned>(c - '0');
        } else if (base == 16 && c >= 'a' && c <= 'f') {
            digit = static_cast<unsigned>(c - 'a' + 10);
        } else if (base == 16 && c >= 'A' && c <= 'F') {
            digit = static_cast<unsigned>(c - 'A' + 10);
        } else {
            break;
        }
        any = true;
        if (magnitude > (limit - digit) / base) {
            magnitude = limit;
        } else {
            magnitude = magnitude * base + digit;
        }
    }
    if (!any) {
        return false;
    }
    used = i;
    if (negative) {
        value = magnitude == static_cast<unsigned long>(LONG_MAX) + 1UL
                    ? LONG_MIN
                    : -static_cast<long>(magnitude);
    } else {
        value = static_cast<long>(magnitude);
    }
    return true;
}

bool ParseColor(const std::string& text, HostColor& color)
{
    std::string value = Trim(text);
    if (value.size() == 7 && value[0] == '#') {
        unsigned rgb = 0;
        for (std::size_t i = 1; i < 7; ++i) {
            char c = value[i];
            unsigned digit;
            if (c >= '0' && c <= '9') {
                digit = static_cast<unsigned>(c - '0');
            } else if (c >= 'a' && c <= 'f') {
                digit = static_cast<unsigned>(c - 'a' + 10);
            } else if (c >= 'A' && c <= 'F') {
                digit = static_cast<unsigned>(c - 'A' + 10);
            } else {
                return false;
            }
            rgb = rgb << 4 | digit;
        }
        color = HostRGB(rgb >> 16, rgb >> 8 & 0xFF, rgb & 0xFF);
        return true;
    }
    long parts[3];
    std::size_t position = 0;
    for (int i = 0; i < 3; ++i) {
        while (position < value.size() &&
               (IsBlank(value[position]) || (i > 0 && value[position] == ','))) {
            ++position;
        }
        std::size_t used = 0;
        // Only plain decimal digits: a sign or "0x" in a colour is a typing error.
        if (position >= value.size() ||
            !std::isdigit(static_cast<unsigned char>(value[position])) ||
            !ParseInteger(std::string_view(value).substr(position), parts[i], used) ||
            parts[i] > 255) {
            return false;
        }
        position += used;
        if (i < 2 && position < value.size() && value[position] != ',' &&
            !IsBlank(value[position])) {
            return false;
        }
    }
    if (position != value.size()) {
        return false;
    }
    color = HostRGB(static_cast<unsigned>(parts[0]), static_cast<unsigned>(parts[1]),
                    static_cast<unsigned>(parts[2]));
    return true;
}

} // namespace

HostProf::HostProf(const char* file) : FileName(file && *file ? file : kDefaultFile)
{
    Reload();
}

HostProf HostProf::FromText(const std::string& text)
{
    HostProf profile{NoFiles{}};
    profile.AddText(text);
    return profile;
}

void HostProf::Reload()
{
    Sections.clear();
    DefaultsPath = FileName;
    HostFile::ResolvePath(DefaultsPath, true, false);
    UserPath = UserConfigDirectory() + "/" + BaseName(DefaultsPath);

    std::string text;
    if (ReadWholeFile(UserPath, text)) {
        AddText(text);
    }
    if (ReadWholeFile(DefaultsPath, text)) {
        AddText(text);
    } else {
        dbstream << "HostProf: cannot read the profile " << DefaultsPath << dbendl;
    }
}

void HostProf::AddText(const std::string& text)
{
    std::vector<Line> lines = SplitLines(text);
    Section* current = nullptr;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        ParsedLine parsed = ParseLine(lines[i].Content, i == 0);
        if (parsed.Kind == LineKind::Section) {
            current = &Sections[parsed.Name];
        } else if (parsed.Kind == LineKind::Entry && current != nullptr) {
            current->emplace(parsed.Name, parsed.Value);
        }
    }
}

const std::string* HostProf::Find(const std::string& section, const std::string& key) const
{
    auto s = Sections.find(section);
    if (s == Sections.end()) {
        return nullptr;
    }
    auto k = s->second.find(key);
    return k == s->second.end() ? nullptr : &k->second;
}

bool HostProf::Has(const std::string& section, const std::string& key) const
{
    return Find(section, key) != nullptr;
}

std::vector<std::string> HostProf::GetSections() const
{
    std::vector<std::string> names;
    for (const auto& section : Sections) {
        names.push_back(section.first);
    }
    return names;
}

std::vector<std::string> HostProf::GetKeys(const std::string& section) const
{
    std::vector<std::string> names;
    auto s = Sections.find(section);
    if (s != Sections.end()) {
        for (const auto& entry : s->second) {
            names.push_back(entry.first);
        }
    }
    return names;
}

std::string HostProf::Get(const std::string& section, const std::string& key,
                          const char* defaultValue) const
{
    const std::string* value = Find(section, key);
    if (value != nullptr) {
        return *value;
    }
    return defaultValue ? defaultValue : "";
}

std::string HostProf::Get(const std::string& section, const std::string& key,
                          const std::string& defaultValue) const
{
    const std::string* value = Find(section, key);
    return value ? *value : defaultValue;
}

bool HostProf::GetBool(const std::string& section, const std::string& key, bool defaultValue) const
{
    const std::string* value = Find(section, key);
    if (value == nullptr) {
        return defaultValue;
    }
    std::string word = Trim(*value);
    for (const char* yes : {"true", "yes", "on"}) {
        if (EqualNoCase(word, yes)) {
            return true;
        }
    }
    for (const char* no : {"false", "no", "off"}) {
        if (EqualNoCase(word, no)) {
            return false;
        }
    }
    long number = 0;
    std::size_t used = 0;
    return ParseInteger(word, number, used) ? number != 0 : defaultValue;
}

long HostProf::GetInt(const std::string& section, const std::string& key, long defaultValue) const
{
    const std::string* value = Find(section, key);
    long number = 0;
    std::size_t used = 0;
    return value && ParseInteger(*value, number, used) ? number : defaultValue;
}

HostColor HostProf::GetColor(const std::string& section, const std::string& key,
                             HostColor defaultValue) const
{
    const std::string* value = Find(section, key);
    HostColor color = defaultValue;
    if (value && !ParseColor(*value, color)) {
        color = defaultValue;
    }
    return color;
}

std::string HostProf::GetPath(const std::string& section, const std::string& key,
                              const char* defaultValue) const
{
    std::string path = Get(section, key, defaultValue);
    if (!path.empty()) {
        HostFile::ResolvePath(path, true, false);
    }
    return path;
}

bool HostProf::CanHold(const std::string& section, const std::string& key, const std::string& value)
{
    auto hasBreak = [](const std::string& text) {
        return text.find_first_of("\r\n") != std::string::npos;
    };
    if (section.empty() || key.empty() || hasBreak(section) || hasBreak(key) || hasBreak(value)) {
        return false;
    }
    if (Trim(section) != section || Trim(key) != key) {
        return false;
    }
    if (section.find(']') != std::string::npos || key.find('=') != std::string::npos) {
        return false;
    }
    return key[0] != '[' && key[0] != ';' && key[0] != '#';
}

std::string HostProf::SetInText(const std::string& text, const std::string& section,
                                const std::string& key, const std::string& value)
{
    if (!CanHold(section, key, value)) {
        return text;
    }
    std::vector<Line> lines = SplitLines(text);
    std::string lineBreak = "\n";
    for (const Line& line : lines) {
        if (!line.Break.empty()) {
            lineBreak = line.Break;
            break;
        }
    }
    const std::string entry = key + "=" + QuotedValue(value);

    // The first section of that name, and within it the first line of that key.
    const std::size_t none = lines.size();
    std::size_t sectionLine = none;
    std::size_t insertAfter = none;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        ParsedLine parsed = ParseLine(lines[i].Content, i == 0);
        if (parsed.Kind == LineKind::Section) {
            if (sectionLine != none) {
                break; // the end of the first matching section
            }
            if (EqualNoCase(parsed.Name, section)) {
                sectionLine = i;
                insertAfter = i;
            }
        } else if (sectionLine != none && parsed.Kind == LineKind::Entry) {
            if (EqualNoCase(parsed.Name, key)) {
                lines[i].Content = entry;
                insertAfter = none;
                break;
            }
            insertAfter = i;
        }
    }

    if (sectionLine == none) {
        if (!lines.empty() && lines.back().Break.empty()) {
            lines.back().Break = lineBreak;
        }
        lines.push_back({"[" + section + "]", lineBreak});
        lines.push_back({entry, lineBreak});
    } else if (insertAfter != none) {
        // The section is there without the key: add it after the section's last entry.
        if (lines[insertAfter].Break.empty()) {
            lines[insertAfter].Break = lineBreak;
        }
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(insertAfter + 1),
                     Line{entry, lineBreak});
    }

    std::string result;
    for (const Line& line : lines) {
        result += line.Content;
        result += line.Break;
    }
    return result;
}

bool HostProf::Write(const std::string& section, const std::string& key, const std::string& value)
{
    if (UserPath.empty() || !CanHold(section, key, value)) {
        return false;
    }
    std::size_t slash = UserPath.rfind('/');
    if (slash != std::string::npos && slash > 0) {
        MakeDirectories(UserPath.substr(0, slash));
    }
    std::string text;
    ReadWholeFile(UserPath, text);
    if (!WriteWholeFile(UserPath, SetInText(text, section, key, value))) {
        dbstream << "HostProf: cannot write " << UserPath << dbendl;
        return false;
    }
    Reload();
    return true;
}

HostProf& HostProfile(int /*iniFile*/)
{
    static HostProf profile;
    static std::string userDirectory = UserConfigDirectory();
    static std::string dataDirectory = HostFile::DataDirectory();
    std::string nowUser = UserConfigDirectory();
    std::string nowData = HostFile::DataDirectory();
    if (nowUser != userDirectory || nowData != dataDirectory) {
        userDirectory = nowUser;
        dataDirectory = nowData;
        profile.Reload();
    }
    return profile;
}
