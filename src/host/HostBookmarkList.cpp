#include "host/HostBookmarkList.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "host/HostCmdLine.h"
#include "platform/Registry.h"

namespace {

// A level of a bookmark and the keys it holds; "" is the whole string.
struct BookmarkLevel
{
    std::string Level;
    std::vector<const char*> Keys;
};

// What the planetarium writes into every bookmark (blanks of keys as underscores).
const std::vector<BookmarkLevel>& CompleteBookmark()
{
    static const std::vector<BookmarkLevel> levels = {
        {"", {"FullState", "AstroNoxWindow"}},
        {"AstroNoxWindow", {"MapWindow", "DisplayStatusWindow", "DisplayFinderWindow"}},
        {"MapWindow",
         {"Grid", "Orientation_Type", "Orientation", "Constellations", "Planets", "Animation",
          "Time", "TimeZone", "Show_Nearest_Dark_Time_At_Startup", "Display", "Messier", "Comets",
          "Location_Name"}},
    };
    return levels;
}

// Reads one text value of an open key; "" when it is missing or no text.
std::string ReadText(HKEY key, const char* name)
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (RegQueryValueExA(key, name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ || size == 0) {
        return std::string();
    }
    std::string text(size, '\0');
    if (RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                         &size) != ERROR_SUCCESS) {
        return std::string();
    }
    text.resize(std::min<std::size_t>(size, text.find('\0')));
    return text;
}

bool WriteText(HKEY key, const char* name, const std::string& text)
{
    return RegSetValueExA(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                          DWORD(text.size() + 1)) == ERROR_SUCCESS;
}

} // namespace

std::vector<std::string> HostBookmarkList::KeyNames() const
{
    std::vector<std::string> names;
    HKEY store = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, kStoreKey, 0, KEY_READ, &store) != ERROR_SUCCESS) {
        return names;
    }
    char name[256];
    for (DWORD index = 0;; ++index) {
        DWORD size = sizeof name;
        if (RegEnumKeyExA(store, index, name, &size, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS) {
            break;
        }
        names.emplace_back(name);
    }
    RegCloseKey(store);
    // The names are numbers: oldest first by their value, whatever their width.
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::strtoul(a.c_str(), nullptr, 10) < std::strtoul(b.c_str(), nullptr, 10);
    });
    return names;
}

std::vector<std::pair<std::string, HostBookmark>> HostBookmarkList::ReadNamed() const
{
    std::vector<std::pair<std::string, HostBookmark>> bookmarks;
    for (const std::string& name : KeyNames()) {
        HKEY key = nullptr;
        if (RegOpenKeyExA(HKEY_CURRENT_USER, (std::string(kStoreKey) + "\\" + name).c_str(), 0,
                          KEY_READ, &key) != ERROR_SUCCESS) {
            continue;
        }
        HostBookmark bookmark(ReadText(key, "Type").c_str(), ReadText(key, "Title"),
                              ReadText(key, "Command"));
        RegCloseKey(key);
        if (!bookmark.Command.empty()) {
            bookmarks.emplace_back(name, bookmark);
        }
    }
    return bookmarks;
}

std::vector<HostBookmark> HostBookmarkList::Read() const
{
    std::vector<HostBookmark> bookmarks;
    for (auto& [name, bookmark] : ReadNamed()) {
        bookmarks.push_back(std::move(bookmark));
    }
    return bookmarks;
}

bool HostBookmarkList::Add(const HostBookmark& bookmark)
{
    const std::vector<std::string> names = KeyNames();
    const unsigned long next =
        names.empty() ? 1 : std::strtoul(names.back().c_str(), nullptr, 10) + 1;
    char name[16];
    std::snprintf(name, sizeof name, "%04lu", next);
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, (std::string(kStoreKey) + "\\" + name).c_str(), 0,
                        nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS) {
        return false;
    }
    // The command goes last: an entry is listed only once it has one.
    const bool written = WriteText(key, "Type", bookmark.Type) &&
                         WriteText(key, "Title", bookmark.Title) &&
                         WriteText(key, "Command", bookmark.Command);
    RegCloseKey(key);
    return written;
}

bool HostBookmarkList::Remove(std::size_t index)
{
    const auto listed = ReadNamed();
    if (index >= listed.size()) {
        return false;
    }
    const std::string path = std::string(kStoreKey) + "\\" + listed[index].first;
    return RegDeleteKeyA(HKEY_CURRENT_USER, path.c_str()) == ERROR_SUCCESS;
}

std::vector<std::string> HostBookmarkList::MissingKeys(const std::string& command)
{
    std::vector<std::string> missing;
    // The text of each level found so far, by its name.
    std::vector<std::pair<std::string, HostCmdLine>> found = {{"", HostCmdLine(command)}};
    for (const BookmarkLevel& level : CompleteBookmark()) {
        auto at = std::find_if(found.begin(), found.end(),
                               [&](const auto& entry) { return entry.first == level.Level; });
        if (at == found.end()) {
            // Its level is missing, and named already.
            continue;
        }
        const HostCmdLine line = at->second;
        for (const char* key : level.Keys) {
            std::string value;
            if (!line.GetValue(key, value)) {
                missing.push_back(level.Level.empty() ? key : level.Level + "." + key);
            } else {
                found.emplace_back(key, HostCmdLine(value));
            }
        }
    }
    return missing;
}

std::string HostBookmarkList::DescribeMissing(const std::string& command)
{
    const std::vector<std::string> missing = MissingKeys(command);
    if (missing.empty()) {
        return std::string();
    }
    std::string keys;
    for (std::size_t i = 0; i < missing.size(); ++i) {
        keys += (i == 0 ? "" : (i + 1 == missing.size() ? " and " : ", ")) + missing[i];
    }
    return "it is not a whole view of the planetarium: it lacks " + keys +
           ", which every bookmark holds";
}
