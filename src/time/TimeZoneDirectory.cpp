#include "time/TimeZoneDirectory.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "catalogues/LorvString.h"
#include "time/TimeZoneFile.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* SystemRoot = "/usr/share/zoneinfo";

// Top-level entries that are not zones of a place (see the header).
bool IsSkipped(const std::string& name)
{
    static const char* const skipped[] = {"posix", "right", "localtime", "posixrules", "Factory"};
    std::string first = name.substr(0, name.find('/'));
    for (const char* entry : skipped) {
        if (first == entry) {
            return true;
        }
    }
    return false;
}

std::string Normalised(const std::string& root)
{
    std::string text = fs::path(root).lexically_normal().string();
    while (text.size() > 1 && text.back() == '/') {
        text.pop_back();
    }
    return text;
}

// The part of `path` after `prefix` and a slash, or empty.
std::string Below(const std::string& path, const std::string& prefix)
{
    if (prefix.empty() || path.size() <= prefix.size() + 1 ||
        path.compare(0, prefix.size(), prefix) != 0 || path[prefix.size()] != '/') {
        return std::string();
    }
    return path.substr(prefix.size() + 1);
}

} // namespace

TimeZoneDirectory::TimeZoneDirectory() : TimeZoneDirectory(DefaultRoot())
{}

TimeZoneDirectory::TimeZoneDirectory(std::string root) : Root(Normalised(root))
{}

std::string TimeZoneDirectory::DefaultRoot()
{
    const char* tzdir = std::getenv("TZDIR");
    return tzdir != nullptr && *tzdir != '\0' ? std::string(tzdir) : std::string(SystemRoot);
}

bool TimeZoneDirectory::Exists() const
{
    std::error_code error;
    return fs::is_directory(Root, error);
}

std::vector<std::string> TimeZoneDirectory::GetZoneNames() const
{
    std::vector<std::string> names;
    std::error_code error;
    fs::recursive_directory_iterator it(Root, fs::directory_options::skip_permission_denied, error);
    for (; !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        std::string name = it->path().lexically_relative(Root).generic_string();
        if (IsSkipped(name)) {
            if (it->is_directory(error)) {
                it.disable_recursion_pending();
            }
            continue;
        }
        // Links to files count (the old names of zones are links); links to directories are
        // not followed, which also keeps a link back to the root from looping.
        std::error_code kind;
        if (it->is_regular_file(kind) && TimeZoneFile::HasMagic(it->path().string())) {
            names.push_back(std::move(name));
        }
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        int order = CompareNoCase(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

std::string TimeZoneDirectory::GetPath(const std::string& name) const
{
    return Root + "/" + name;
}

std::string TimeZoneDirectory::NameOfLink(const std::string& path) const
{
    std::error_code error;
    fs::path target = fs::read_symlink(path, error);
    if (error) {
        return std::string();
    }
    if (target.is_relative()) {
        target = fs::path(path).parent_path() / target;
    }
    std::string text = target.lexically_normal().generic_string();
    std::string name = Below(text, Root);
    if (name.empty()) {
        std::size_t at = text.rfind("/zoneinfo/");
        if (at != std::string::npos) {
            name = text.substr(at + 10);
        }
    }
    // The copies of the tree name the same zones.
    for (const char* copy : {"posix/", "right/"}) {
        if (name.rfind(copy, 0) == 0) {
            name.erase(0, 6);
        }
    }
    return name;
}
