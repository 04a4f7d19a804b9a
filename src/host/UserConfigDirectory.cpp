#include "host/UserConfigDirectory.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string HomeDirectory()
{
    std::string home = Environment("HOME");
    if (!home.empty()) {
        return home;
    }
    // No HOME (a daemon, a bare container): ask the password database.
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* result = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &result) == 0 && result &&
        result->pw_dir) {
        return result->pw_dir;
    }
    return "/tmp";
}

void TrimTrailingSlashes(std::string& path)
{
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
}

} // namespace

bool MakeDirectories(const std::string& directory)
{
    if (directory.empty()) {
        return false;
    }
    struct stat info;
    for (std::size_t slash = directory.find('/', 1);; slash = directory.find('/', slash + 1)) {
        std::string part = directory.substr(0, slash);
        if (::stat(part.c_str(), &info) != 0 && ::mkdir(part.c_str(), 0700) != 0 &&
            errno != EEXIST) {
            return false;
        }
        if (slash == std::string::npos) {
            break;
        }
    }
    return ::stat(directory.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string UserConfigDirectory(bool create)
{
    std::string directory = Environment("ORBISCOPE_HOME");
    if (directory.empty()) {
        std::string base = Environment("XDG_CONFIG_HOME");
        // The XDG rules ignore a relative XDG_CONFIG_HOME.
        if (base.empty() || base[0] != '/') {
            base = HomeDirectory() + "/.config";
        }
        TrimTrailingSlashes(base);
        directory = base + "/orbiscope";
    }
    TrimTrailingSlashes(directory);
    if (create) {
        MakeDirectories(directory);
    }
    return directory;
}
