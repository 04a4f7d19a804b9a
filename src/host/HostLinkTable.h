#pragma once
// The table behind GetAllHostLinks: every link of data/links.txt, by uid.
#include <map>
#include <string>
#include <vector>

#include "host/HostLink.h"

class HostLinkTable
{
public:
    // Reads a links file; false when it cannot be opened.
    bool Load(const std::string& path);
    // Reads the lines of a text in the file's form; `origin` names it in messages.
    void AddText(const std::string& text, const std::string& origin = "links");

    // The links of `uid` in rank order; empty when it has none.
    std::vector<HostLink> Find(long uid) const;
    std::size_t GetObjectCount() const { return Links.size(); }
    std::size_t GetLinkCount() const;
    // Lines that could not be read, one message each; each also went to dbstream.
    const std::vector<std::string>& GetProblems() const { return Problems; }

    static const HostLinkTable& Shared();

private:
    std::map<long, std::vector<HostLink>> Links;
    std::vector<std::string> Problems;
};
