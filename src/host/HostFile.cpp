#include "host/HostFile.h"

#include <cstdlib>
#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <vector>

#include "catalogues/LorvString.h"
#include "host/LittleEndian.h"
#include "platform/DebugStream.h"

namespace {

bool Exists(const std::string& path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0;
}

// The entry of `directory` whose name equals `name` ignoring case, or `name` itself.
std::string MatchEntry(const std::string& directory, const std::string& name)
{
    std::string exact = directory == "/" ? "/" + name : directory + "/" + name;
    if (Exists(exact)) {
        return name;
    }
    DIR* dir = ::opendir(directory.c_str());
    if (dir == nullptr) {
        return name;
    }
    std::string found = name;
    while (dirent* entry = ::readdir(dir)) {
        if (EqualNoCase(entry->d_name, name)) {
            found = entry->d_name;
            break;
        }
    }
    ::closedir(dir);
    return found;
}

const char* ModeText(HostFile::OpenMode mode)
{
    switch (mode) {
    case HostFile::ReadOnly:
        return "rb";
    case HostFile::WriteNew:
        return "wb";
    case HostFile::ReadWrite:
        return "r+b";
    case HostFile::Append:
        return "ab";
    }
    return "rb";
}

} // namespace

std::string HostFile::DataDirectory()
{
    const char* fromEnvironment = std::getenv("ORBISCOPE_DATA");
    std::string dir =
        (fromEnvironment && *fromEnvironment) ? fromEnvironment : InstalledDataDirectory();
    if (dir.empty()) {
        dir = ORBISCOPE_DATA_DIR;
    }
    while (dir.size() > 1 && dir.back() == '/') {
        dir.pop_back();
    }
    return dir;
}

std::string HostFile::InstalledDataDirectory()
{
    // Looked for once: the library does not move while it is loaded.
    static const std::string installed = [] {
        Dl_info info{};
        if (::dladdr(reinterpret_cast<void*>(&HostFile::InstalledDataDirectory), &info) == 0 ||
            !info.dli_fname) {
            return std::string();
        }
        const std::string object = info.dli_fname;
        const std::size_t slash = object.rfind('/');
        const std::string relative =
            (slash == std::string::npos ? std::string(".") : object.substr(0, slash)) + "/" +
            ORBISCOPE_DATA_FROM_LIBRARY;
        char* resolved = ::realpath(relative.c_str(), nullptr);
        if (!resolved) {
            return std::string();
        }
        const std::string candidate = resolved;
        std::free(resolved);
        if (!Exists(candidate + "/strings.txt")) {
            return std::string();
        }
        dbstream << "HostFile: the data directory is " << candidate << dbendl;
        return candidate;
    }();
    return installed;
}

void HostFile::ResolvePath(std::string& path, bool logical, bool /*mustExist*/)
{
    std::string rest = path;
    std::string base;
    if (logical) {
        static const char* const prefixes[] = {"cd:\\win32\\", "cd:/win32/", "ed:\\", "ed:/"};
        for (const char* prefix : prefixes) {
            std::string_view p(prefix);
            if (rest.size() >= p.size() &&
                EqualNoCase(std::string_view(rest).substr(0, p.size()), p)) {
                base = DataDirectory();
                rest = rest.substr(p.size());
                break;
            }
        }
    }
    for (char& c : rest) {
        if (c == '\\') {
            c = '/';
        }
    }
    if (base.empty() && !rest.empty() && rest[0] == '/') {
        base.assign(1, '/');
    }

    // Walk the parts, each matched against its directory without regard to case.
    std::string resolved = base;
    std::size_t start = 0;
    while (start <= rest.size()) {
        std::size_t slash = rest.find('/', start);
        std::size_t length = slash == std::string::npos ? std::string::npos : slash - start;
        std::string part = rest.substr(start, length);
        if (!part.empty()) {
            std::string name = (part == "." || part == "..")
                                   ? part
                                   : MatchEntry(resolved.empty() ? "." : resolved, part);
            if (resolved.empty()) {
                resolved = name;
            } else if (resolved.back() == '/') {
                resolved += name;
            } else {
                resolved += "/" + name;
            }
        }
        if (slash == std::string::npos) {
            break;
        }
        start = slash + 1;
    }
    path = resolved;
}

bool HostFile::Open(const std::string& path, OpenMode mode)
{
    Close();
    Path = path;
    ResolvePath(Path, true, false);
    pFile = std::fopen(Path.c_str(), ModeText(mode));
    return pFile != nullptr;
}

void HostFile::Close()
{
    if (pFile != nullptr) {
        std::fclose(pFile);
        pFile = nullptr;
    }
}

std::size_t HostFile::Read(void* buffer, std::size_t count)
{
    return pFile ? std::fread(buffer, 1, count, pFile) : 0;
}

std::size_t HostFile::Write(const void* buffer, std::size_t count)
{
    return pFile ? std::fwrite(buffer, 1, count, pFile) : 0;
}

bool HostFile::ReadInt32(std::int32_t& value)
{
    unsigned char bytes[4];
    if (Read(bytes, sizeof bytes) != sizeof bytes) {
        return false;
    }
    value = static_cast<std::int32_t>(LittleEndian::GetUInt32(bytes));
    return true;
}

bool HostFile::WriteInt32(std::int32_t value)
{
    unsigned char bytes[4];
    LittleEndian::PutUInt32(bytes, static_cast<std::uint32_t>(value));
    return Write(bytes, sizeof bytes) == sizeof bytes;
}

bool HostFile::ReadDouble(double& value)
{
    unsigned char bytes[8];
    if (Read(bytes, sizeof bytes) != sizeof bytes) {
        return false;
    }
    value = LittleEndian::GetDouble(bytes);
    return true;
}

bool HostFile::WriteDouble(double value)
{
    unsigned char bytes[8];
    LittleEndian::PutDouble(bytes, value);
    return Write(bytes, sizeof bytes) == sizeof bytes;
}

bool HostFile::Seek(long offset, SeekOrigin origin)
{
    return pFile && std::fseek(pFile, offset, origin) == 0;
}

long HostFile::Tell() const
{
    return pFile ? std::ftell(pFile) : -1;
}

long HostFile::Length() const
{
    if (pFile == nullptr) {
        return -1;
    }
    long here = std::ftell(pFile);
    if (std::fseek(pFile, 0, SEEK_END) != 0) {
        return -1;
    }
    long size = std::ftell(pFile);
    std::fseek(pFile, here, SEEK_SET);
    return size;
}

long hostStringToLong(const std::string& text)
{
    const char* p = text.c_str();
    while (*p == ' ' || *p == '\t') {
        ++p;
    }
    bool negative = false;
    if (*p == '+' || *p == '-') {
        negative = *p == '-';
        ++p;
    }
    int base = 10;
    if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X')) {
        base = 16;
        p += 2;
    }
    unsigned long value = 0;
    for (;; ++p) {
        int digit;
        if (*p >= '0' && *p <= '9') {
            digit = *p - '0';
        } else if (base == 16 && *p >= 'a' && *p <= 'f') {
            digit = *p - 'a' + 10;
        } else if (base == 16 && *p >= 'A' && *p <= 'F') {
            digit = *p - 'A' + 10;
        } else {
            break;
        }
        value = value * static_cast<unsigned long>(base) + static_cast<unsigned long>(digit);
    }
    // Wraps like the host's conversion instead of overflowing.
    return static_cast<long>(negative ? 0UL - value : value);
}
