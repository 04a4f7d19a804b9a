#pragma once
// Helpers for the time zone tests: compiled zone files (TZif) made in code, and a scratch
// directory tree to hold them.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

namespace tztest {

struct LocalTimeType
{
    std::int32_t UtcOffset; // seconds east of UT
    bool Daylight;
    std::string Abbreviation;
};

struct Transition
{
    std::int64_t When; // seconds since 1970 January 1, UT
    std::uint8_t Type;
};

inline void PutBigEndian(std::string& out, std::uint64_t value, int bytes)
{
    for (int i = bytes - 1; i >= 0; --i) {
        out += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

// One header and data block with times of `timeSize` bytes.
inline std::string TzifBlock(char version, const std::vector<LocalTimeType>& types,
                             const std::vector<Transition>& transitions, int timeSize)
{
    std::string abbreviations;
    std::vector<std::size_t> abbreviationIndex;
    for (const LocalTimeType& type : types) {
        abbreviationIndex.push_back(abbreviations.size());
        abbreviations += type.Abbreviation;
        abbreviations += '\0';
    }
    std::string out = "TZif";
    out += version;
    out.append(15, '\0');
    PutBigEndian(out, 0, 4); // UT indicators
    PutBigEndian(out, 0, 4); // standard indicators
    PutBigEndian(out, 0, 4); // leap seconds
    PutBigEndian(out, transitions.size(), 4);
    PutBigEndian(out, types.size(), 4);
    PutBigEndian(out, abbreviations.size(), 4);
    for (const Transition& transition : transitions) {
        PutBigEndian(out, static_cast<std::uint64_t>(transition.When), timeSize);
    }
    for (const Transition& transition : transitions) {
        out += static_cast<char>(transition.Type);
    }
    for (std::size_t i = 0; i < types.size(); ++i) {
        PutBigEndian(out, static_cast<std::uint32_t>(types[i].UtcOffset), 4);
        out += static_cast<char>(types[i].Daylight ? 1 : 0);
        out += static_cast<char>(abbreviationIndex[i]);
    }
    return out + abbreviations;
}

// A zone file: version '\0' gives the first format (no rule); '2' and up add the second block
// and the rule line.
inline std::string MakeTzif(char version, const std::vector<LocalTimeType>& types,
                            const std::vector<Transition>& transitions, const std::string& rule)
{
    std::string out = TzifBlock(version, types, transitions, 4);
    if (version == '\0') {
        return out;
    }
    return out + TzifBlock(version, types, transitions, 8) + "\n" + rule + "\n";
}

// A zone file of one local time type and a rule.
inline std::string SimpleTzif(std::int32_t utcOffset, const std::string& abbreviation,
                              const std::string& rule)
{
    return MakeTzif('2', {{utcOffset, false, abbreviation}}, {}, rule);
}

// The whole content of a file.
inline bool ReadFile(const std::string& path, std::string& bytes)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return true;
}

// A directory under the system's temporary directory, removed with everything in it.
class ScratchTree
{
public:
    ScratchTree()
    {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "orbiscope-tz-XXXXXX").string();
        std::vector<char> name(pattern.begin(), pattern.end());
        name.push_back('\0');
        if (mkdtemp(name.data()) != nullptr) {
            Root = name.data();
        }
    }
    ~ScratchTree()
    {
        std::error_code error;
        if (!Root.empty()) {
            std::filesystem::remove_all(Root, error);
        }
    }
    ScratchTree(const ScratchTree&) = delete;
    ScratchTree& operator=(const ScratchTree&) = delete;

    const std::string& GetRoot() const { return Root; }
    std::string Path(const std::string& relative) const { return Root + "/" + relative; }

    // Writes a file, making its directories.
    void Write(const std::string& relative, const std::string& bytes) const
    {
        std::filesystem::path path(Path(relative));
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    void Link(const std::string& relative, const std::string& target) const
    {
        std::filesystem::path path(Path(relative));
        std::filesystem::create_directories(path.parent_path());
        std::filesystem::create_symlink(target, path);
    }

private:
    std::string Root;
};

} // namespace tztest
