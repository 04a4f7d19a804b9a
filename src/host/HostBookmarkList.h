#pragma once
// The bookmarks the reference host keeps for the user, in its settings store below
// HKEY_CURRENT_USER\Software\Orbiscope\Bookmarks: one key each, named by a number that grows
// with every bookmark added, holding the values "Type", "Title" and "Command" as texts. They
// are listed oldest first. Each change is written at once, so nothing is lost when the
// program ends in any way.
//
// Before a bookmark's command goes back to the planetarium, the host checks it against the
// keys that every bookmark of the planetarium holds (MissingKeys): a string cut short or
// edited by hand would otherwise restore a view of nothing at all ("November 30, 2 BC", a
// field of 0 and no stars).
#include <string>
#include <utility>
#include <vector>

#include "host/HostBookmark.h"

class HostBookmarkList
{
public:
    // The store's key below HKEY_CURRENT_USER.
    static constexpr const char* kStoreKey = "Software\\Orbiscope\\Bookmarks";

    // Every bookmark kept, oldest first; an entry without a command is passed over.
    std::vector<HostBookmark> Read() const;
    // Keeps a bookmark after the others; false when the store cannot be written.
    bool Add(const HostBookmark& bookmark);
    // Deletes the bookmark at a place of Read's list; false when there is none.
    bool Remove(std::size_t index);

    // The keys of a complete planetarium bookmark that `command` lacks, each named with the
    // levels it stands in ("AstroNoxWindow MapWindow Time"); empty for a complete one.
    static std::vector<std::string> MissingKeys(const std::string& command);
    // The same as a sentence for the user: "" for a complete bookmark.
    static std::string DescribeMissing(const std::string& command);

private:
    std::vector<std::string> KeyNames() const;
    // The listed bookmarks, oldest first, each with the name of its key in the store.
    std::vector<std::pair<std::string, HostBookmark>> ReadNamed() const;
};
