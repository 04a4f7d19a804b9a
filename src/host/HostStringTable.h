#pragma once
// The host's string tables: the texts that the user sees, by table and number or by
// "STID_" name. Table 5 is the planetarium's own, table 1 the host's.
//
// The texts come from data/strings.txt ("ed:\strings.txt"); the top of that file describes
// its form. The shared table is read at the first look-up and again whenever the data
// directory changes.
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "catalogues/LorvString.h"

class HostStringTable
{
public:
    HostStringTable() = default;

    // Reads the entries of a strings file; false when it cannot be opened.
    bool Load(const std::string& path);
    // Reads the entries of a text in the file's form. `origin` names it in messages.
    void AddText(const std::string& text, const std::string& origin = "strings");

    // The text of a number or a name in a table; null when there is none.
    const std::string* Find(int table, std::uint16_t id) const;
    const std::string* Find(int table, const std::string& name) const;

    std::size_t GetCount() const { return Numbered.size() + Named.size(); }
    // Lines that could not be read and entries given twice, one message each; each is also
    // written to dbstream.
    const std::vector<std::string>& GetProblems() const { return Problems; }

    // The table behind getHostString, read from the data directory.
    static const HostStringTable& Shared();

private:
    std::map<std::pair<int, std::uint16_t>, std::string> Numbered;
    std::map<std::pair<int, std::string>, std::string, std::less<>> Named;
    std::vector<std::string> Problems;
};

// The text of `id` in `table`, or "" when the table has none (and a message on dbstream).
std::string getHostString(short table, short id);

// The words for one template text: "STID_NAME" is looked up in `table`, "@STID_NAME" in the
// host's table 1; names ignore case. Any other text, and a name the table lacks, comes back
// unchanged, so a missing entry shows its name rather than nothing.
//
// This is the text side of replaceHostChildWindowStrings and replaceHostMenuStrings, which
// apply it to every child window of a dialog and every item of a menu.
std::string replaceHostString(short table, const std::string& text);

// Puts `arguments` in place of the %s and %d marks of a message text, in order; %% gives a
// percent sign. Marks beyond the arguments become empty and other % sequences stay as they
// are, so a text from the data file can never read more than it is given.
std::string formatHostString(const std::string& pattern, const std::vector<std::string>& arguments);
