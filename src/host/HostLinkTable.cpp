#include "host/HostLinkTable.h"

#include <fstream>
#include <sstream>

#include "host/HostFile.h"
#include "host/HostStringParser.h"
#include "platform/DebugStream.h"

namespace {

const char* const kLinksFile = "ed:\\links.txt";

// A whole decimal or 0x-hexadecimal uid, nothing else.
bool ParseUid(const std::string& text, long& uid)
{
    if (text.empty() || text.size() > 12) {
        return false;
    }
    bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const char* digits = hex ? "0123456789abcdefABCDEF" : "0123456789";
    if (text.find_first_not_of(digits, hex ? 2 : 0) != std::string::npos) {
        return false;
    }
    uid = hostStringToLong(text);
    return true;
}

} // namespace

bool HostLinkTable::Load(const std::string& path)
{
    std::string real = path;
    HostFile::ResolvePath(real, true, false);
    std::ifstream in(real, std::ios::binary);
    if (!in) {
        dbstream << "HostLinkTable: cannot open " << real << dbendl;
        return false;
    }
    std::ostringstream text;
    text << in.rdbuf();
    AddText(text.str(), real);
    return true;
}

void HostLinkTable::AddText(const std::string& text, const std::string& origin)
{
    std::istringstream lines(text);
    std::string line;
    std::size_t number = 0;
    while (std::getline(lines, line)) {
        ++number;
        HostStringParser fields(line);
        std::string uidText = fields.GetNext("|");
        if (uidText.empty() || uidText[0] == '#') {
            continue;
        }
        fields.GetNext("|"); // the object's name, for the reader of the file
        std::string title = fields.GetNext("|");
        std::string address = fields.GetNext("|");
        long uid = 0;
        if (!ParseUid(uidText, uid) || address.empty()) {
            std::ostringstream message;
            message << origin << "(" << number << "): not uid | object | title | address";
            Problems.push_back(message.str());
            dbstream << "HostLinkTable: " << Problems.back() << dbendl;
            continue;
        }
        std::vector<HostLink>& links = Links[uid];
        links.emplace_back(uid, static_cast<int>(links.size()), title, address);
    }
}

std::vector<HostLink> HostLinkTable::Find(long uid) const
{
    auto found = Links.find(uid);
    return found == Links.end() ? std::vector<HostLink>() : found->second;
}

std::size_t HostLinkTable::GetLinkCount() const
{
    std::size_t count = 0;
    for (const auto& entry : Links) {
        count += entry.second.size();
    }
    return count;
}

const HostLinkTable& HostLinkTable::Shared()
{
    static HostLinkTable shared;
    static std::string loadedFrom;
    std::string directory = HostFile::DataDirectory();
    if (directory != loadedFrom) {
        shared = HostLinkTable();
        shared.Load(kLinksFile);
        loadedFrom = directory;
    }
    return shared;
}
