#include "time/TimeZoneFile.h"

#include <cstdint>
#include <cstdio>
#include <memory>

namespace {

constexpr std::size_t HeaderSize = 44;
constexpr std::size_t LocalTimeTypeSize = 6;
// The range of offsets from UT that RFC 8536 allows a local time type: -25 h to +26 h.
constexpr std::int32_t MinUtcOffset = -89999;
constexpr std::int32_t MaxUtcOffset = 93599;

struct Header
{
    char Version = 0;
    std::uint64_t UtIndicators = 0;
    std::uint64_t StandardIndicators = 0;
    std::uint64_t LeapSeconds = 0;
    std::uint64_t Transitions = 0;
    std::uint64_t Types = 0;
    std::uint64_t AbbreviationBytes = 0;
};

std::uint32_t BigEndian32(std::string_view bytes, std::size_t at)
{
    return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at])) << 24 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + 1])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + 2])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + 3]));
}

// Reads and checks a header at `at`; the counts must agree with each other as RFC 8536 asks.
bool ReadHeader(std::string_view bytes, std::size_t at, Header& header)
{
    if (bytes.size() < at || bytes.size() - at < HeaderSize || bytes.substr(at, 4) != "TZif") {
        return false;
    }
    header.Version = bytes[at + 4];
    header.UtIndicators = BigEndian32(bytes, at + 20);
    header.StandardIndicators = BigEndian32(bytes, at + 24);
    header.LeapSeconds = BigEndian32(bytes, at + 28);
    header.Transitions = BigEndian32(bytes, at + 32);
    header.Types = BigEndian32(bytes, at + 36);
    header.AbbreviationBytes = BigEndian32(bytes, at + 40);
    bool versionKnown = header.Version == '\0' || (header.Version >= '2' && header.Version <= '9');
    return versionKnown && header.Types >= 1 && header.AbbreviationBytes >= 1 &&
           (header.UtIndicators == 0 || header.UtIndicators == header.Types) &&
           (header.StandardIndicators == 0 || header.StandardIndicators == header.Types);
}

// Bytes of the data block that follows a header, with transition times of `timeSize` bytes.
std::uint64_t BlockSize(const Header& header, std::uint64_t timeSize)
{
    return header.Transitions * (timeSize + 1) + header.Types * LocalTimeTypeSize +
           header.AbbreviationBytes + header.LeapSeconds * (timeSize + 4) +
           header.StandardIndicators + header.UtIndicators;
}

} // namespace

bool TimeZoneFile::ReadBytes(const std::string& path, std::string& bytes)
{
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                         &std::fclose);
    if (!file) {
        return false;
    }
    std::string read;
    char buffer[8192];
    std::size_t count;
    while ((count = std::fread(buffer, 1, sizeof buffer, file.get())) > 0) {
        read.append(buffer, count);
        if (read.size() > kMaxFileSize) {
            return false;
        }
    }
    if (std::ferror(file.get())) {
        return false;
    }
    bytes = std::move(read);
    return true;
}

bool TimeZoneFile::HasMagic(const std::string& path)
{
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                         &std::fclose);
    char magic[4];
    return file && std::fread(magic, 1, 4, file.get()) == 4 && std::string_view(magic, 4) == "TZif";
}

bool TimeZoneFile::Read(const std::string& path)
{
    std::string bytes;
    return ReadBytes(path, bytes) && Parse(bytes);
}

bool TimeZoneFile::Parse(std::string_view bytes)
{
    Header header;
    if (!ReadHeader(bytes, 0, header)) {
        return false;
    }
    std::size_t block = HeaderSize;
    std::uint64_t timeSize = 4;
    std::uint64_t size = BlockSize(header, timeSize);
    int version = 1;
    if (header.Version != '\0') {
        // The first block serves old readers only; the second has the full range of times.
        if (size > bytes.size() - block) {
            return false;
        }
        std::size_t second = block + static_cast<std::size_t>(size);
        if (!ReadHeader(bytes, second, header)) {
            return false;
        }
        version = header.Version - '0';
        block = second + HeaderSize;
        timeSize = 8;
        size = BlockSize(header, timeSize);
    }
    if (size > bytes.size() - block) {
        return false;
    }

    std::size_t types = block + static_cast<std::size_t>(header.Transitions * (timeSize + 1));
    std::size_t lastType = 0;
    if (header.Transitions > 0) {
        std::size_t indices = block + static_cast<std::size_t>(header.Transitions * timeSize);
        lastType = static_cast<unsigned char>(
            bytes[indices + static_cast<std::size_t>(header.Transitions) - 1]);
    }
    if (lastType >= header.Types) {
        return false;
    }
    std::size_t entry = types + lastType * LocalTimeTypeSize;
    auto offset = static_cast<std::int32_t>(BigEndian32(bytes, entry));
    if (offset < MinUtcOffset || offset > MaxUtcOffset) {
        return false;
    }
    std::size_t abbreviationIndex = static_cast<unsigned char>(bytes[entry + 5]);
    if (abbreviationIndex >= header.AbbreviationBytes) {
        return false;
    }
    std::size_t abbreviations = types + static_cast<std::size_t>(header.Types) * LocalTimeTypeSize;
    std::string_view names = bytes.substr(abbreviations + abbreviationIndex,
                                          header.AbbreviationBytes - abbreviationIndex);
    std::string abbreviation(names.substr(0, names.find('\0')));

    std::string rule;
    if (version >= 2) {
        // The rule stands on a line of its own right after the second block: "\n" rule "\n".
        std::size_t footer = block + static_cast<std::size_t>(size);
        if (footer >= bytes.size() || bytes[footer] != '\n') {
            return false;
        }
        std::size_t end = bytes.find('\n', footer + 1);
        if (end == std::string_view::npos) {
            return false;
        }
        rule = std::string(bytes.substr(footer + 1, end - footer - 1));
    }

    nVersion = version;
    Rule = std::move(rule);
    nLastUtcOffset = offset;
    bLastIsDaylight = bytes[entry + 4] != '\0';
    LastAbbreviation = std::move(abbreviation);
    return true;
}
