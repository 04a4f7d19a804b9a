#include "host/HostStringTable.h"

#include <fstream>
#include <sstream>

#include "host/HostFile.h"
#include "platform/DebugStream.h"

namespace {

const char* const kStringsFile = "ed:\\strings.txt";
const std::string_view kNamePrefix = "STID_";

std::string Trim(const std::string& text)
{
    std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) {
        return std::string();
    }
    std::size_t last = text.find_last_not_of(" \t\r");
    return text.substr(first, last - first + 1);
}

// Names are kept in capitals, which makes look-ups ignore case.
std::string Capitals(std::string_view name)
{
    std::string upper(name);
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return upper;
}

bool IsName(std::string_view text)
{
    return text.size() > kNamePrefix.size() &&
           EqualNoCase(text.substr(0, kNamePrefix.size()), kNamePrefix);
}

// A whole decimal or 0x-hexadecimal number from 0 to `largest`, nothing else on either side.
bool ParseNumber(const std::string& text, long largest, long& value)
{
    std::size_t i = 0;
    int base = 10;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        base = 16;
        i = 2;
    }
    if (i >= text.size()) {
        return false;
    }
    value = 0;
    for (; i < text.size(); ++i) {
        int digit;
        char c = text[i];
        if (c >= '0' && c <= '9') {
            digit = c - '0';
        } else if (base == 16 && c >= 'a' && c <= 'f') {
            digit = c - 'a' + 10;
        } else if (base == 16 && c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        } else {
            return false;
        }
        value = value * base + digit;
        if (value > largest) {
            return false;
        }
    }
    return true;
}

std::string Unescape(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            result += text[i];
            continue;
        }
        switch (text[++i]) {
        case 'n':
            result += '\n';
            break;
        case 't':
            result += '\t';
            break;
        case '"':
            result += '"';
            break;
        case '\\':
            result += '\\';
            break;
        default:
            // Not an escape: keep both characters.
            result += '\\';
            result += text[i];
        }
    }
    return result;
}

} // namespace

bool HostStringTable::Load(const std::string& path)
{
    std::string real = path;
    HostFile::ResolvePath(real, true, false);
    std::ifstream in(real, std::ios::binary);
    if (!in) {
        dbstream << "HostStringTable: cannot open " << real << dbendl;
        return false;
    }
    std::ostringstream text;
    text << in.rdbuf();
    AddText(text.str(), real);
    return true;
}

void HostStringTable::AddText(const std::string& text, const std::string& origin)
{
    auto problem = [&](std::size_t line, const std::string& what) {
        std::ostringstream message;
        message << origin << "(" << line << "): " << what;
        Problems.push_back(message.str());
        dbstream << "HostStringTable: " << Problems.back() << dbendl;
    };

    std::istringstream lines(text);
    std::string raw;
    std::size_t number = 0;
    long table = -1;
    while (std::getline(lines, raw)) {
        ++number;
        std::string line = Trim(raw);
        if (line.empty() || line[0] == '#' || line[0] == ';') {
            continue;
        }
        if (line[0] == '[') {
            std::size_t close = line.find(']');
            std::string name = close == std::string::npos ? "" : Trim(line.substr(1, close - 1));
            if (close != line.size() - 1 || !ParseNumber(name, 0x7FFF, table)) {
                problem(number, "not a table number: " + line);
                table = -1;
            }
            continue;
        }
        std::size_t equals = line.find('=');
        if (equals == std::string::npos) {
            problem(number, "no '=' in: " + line);
            continue;
        }
        if (table < 0) {
            problem(number, "entry outside a table");
            continue;
        }
        std::string key = Trim(line.substr(0, equals));
        std::string value = Trim(line.substr(equals + 1));
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"') {
            value = value.substr(1, value.size() - 2);
        }
        value = Unescape(value);

        long id = 0;
        bool added;
        if (IsName(key)) {
            added =
                Named.emplace(std::make_pair(static_cast<int>(table), Capitals(key)), value).second;
        } else if (ParseNumber(key, 0xFFFF, id)) {
            added = Numbered
                        .emplace(
                            std::make_pair(static_cast<int>(table), static_cast<std::uint16_t>(id)),
                            value)
                        .second;
        } else {
            problem(number, "not a number or STID_ name: " + key);
            continue;
        }
        if (!added) {
            problem(number, "given twice in table " + std::to_string(table) + ": " + key);
        }
    }
}

const std::string* HostStringTable::Find(int table, std::uint16_t id) const
{
    auto found = Numbered.find(std::make_pair(table, id));
    return found == Numbered.end() ? nullptr : &found->second;
}

const std::string* HostStringTable::Find(int table, const std::string& name) const
{
    auto found = Named.find(std::make_pair(table, Capitals(name)));
    return found == Named.end() ? nullptr : &found->second;
}

const HostStringTable& HostStringTable::Shared()
{
    static HostStringTable shared;
    static std::string loadedFrom;
    std::string directory = HostFile::DataDirectory();
    if (directory != loadedFrom) {
        shared = HostStringTable();
        shared.Load(kStringsFile);
        loadedFrom = directory;
    }
    return shared;
}

std::string getHostString(short table, short id)
{
    const std::string* text = HostStringTable::Shared().Find(table, static_cast<std::uint16_t>(id));
    if (text == nullptr) {
        dbstream << "getHostString: no text " << id << " in table " << table << dbendl;
        return std::string();
    }
    return *text;
}

std::string replaceHostString(short table, const std::string& text)
{
    std::string_view name = text;
    int from = table;
    if (!name.empty() && name[0] == '@') {
        name.remove_prefix(1);
        from = 1;
    }
    if (!IsName(name)) {
        return text;
    }
    const std::string* words = HostStringTable::Shared().Find(from, std::string(name));
    if (words == nullptr) {
        dbstream << "replaceHostString: no text " << name << " in table " << from << dbendl;
        return text;
    }
    return *words;
}

std::string formatHostString(const std::string& pattern, const std::vector<std::string>& arguments)
{
    std::string result;
    std::size_t next = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '%' || i + 1 == pattern.size()) {
            result += pattern[i];
            continue;
        }
        char kind = pattern[i + 1];
        if (kind == '%') {
            result += '%';
            ++i;
        } else if (kind == 's' || kind == 'd') {
            if (next < arguments.size()) {
                result += arguments[next];
            }
            ++next;
            ++i;
        } else {
            result += '%';
        }
    }
    return result;
}
