#pragma once
// Byte-exact file access, and the host's logical paths.
//
// ResolvePath turns the logical prefixes "ed:\" and "cd:\win32\" into the data directory,
// backslashes into slashes, and finds each part of the path whatever the case of its name,
// so that "ed:\STRINGS.TXT" opens data/strings.txt. The data directory is $ORBISCOPE_DATA
// when set; otherwise that of the installation the component was loaded from (share/orbiscope
// beside the library's lib folder), so that an installed program needs no environment; and
// otherwise the one the build was configured with.
#include <cstdint>
#include <cstdio>
#include <string>

class HostFile
{
public:
    enum OpenMode
    {
        ReadOnly,  // an existing file, for reading
        WriteNew,  // created or emptied, for writing
        ReadWrite, // an existing file, for reading and writing
        Append     // created if absent, writes go to the end
    };
    enum SeekOrigin
    {
        FromStart = SEEK_SET,
        FromCurrent = SEEK_CUR,
        FromEnd = SEEK_END
    };

    HostFile() = default;
    HostFile(const std::string& path, OpenMode mode) { Open(path, mode); }
    ~HostFile() { Close(); }
    HostFile(const HostFile&) = delete;
    HostFile& operator=(const HostFile&) = delete;

    // Opens the file; the path goes through ResolvePath first. False when it cannot be opened.
    bool Open(const std::string& path, OpenMode mode);
    void Close();
    bool IsOpen() const { return pFile != nullptr; }

    // Reads up to `count` bytes; returns how many were read.
    std::size_t Read(void* buffer, std::size_t count);
    // Writes `count` bytes; returns how many were written.
    std::size_t Write(const void* buffer, std::size_t count);
    // Whole numbers and doubles in the byte order of the binary files (see LittleEndian);
    // false when the file ends or the write fails.
    bool ReadInt32(std::int32_t& value);
    bool WriteInt32(std::int32_t value);
    bool ReadDouble(double& value);
    bool WriteDouble(double value);
    bool Seek(long offset, SeekOrigin origin = FromStart);
    long Tell() const;
    // The size of the open file in bytes, or -1.
    long Length() const;
    const std::string& GetPath() const { return Path; }

    // Replaces a logical prefix and matches names without regard to case. The two flags are
    // always (true, false) in the component; they are kept for the callers' sake.
    static void ResolvePath(std::string& path, bool logical = true, bool mustExist = false);
    // The directory the logical prefixes stand for, without a trailing slash.
    static std::string DataDirectory();
    // The data folder of the installation that holds the component's code, or "" when the code
    // was not loaded from an installation (a program of the build tree).
    static std::string InstalledDataDirectory();

private:
    std::FILE* pFile = nullptr;
    std::string Path;
};

// Reads a number as the host does: decimal, or hexadecimal after "0x"; leading blanks and a
// sign are allowed, and reading stops at the first character that is not part of it.
long hostStringToLong(const std::string& text);
