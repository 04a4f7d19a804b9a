#pragma once
// Links from the planetarium's objects into the host's articles.
//
// An object is linked by nothing but its uid. The table of links is data/links.txt
// ("ed:\links.txt"), made by tools/links/make_links; its lines are
//   uid | object name | title | address
// with the uid decimal or "0x" hexadecimal. A uid may have several links; their order in the
// file is their rank, and the first is the one the planetarium opens.
#include <set>
#include <string>

class HostLink
{
public:
    HostLink(long uid, int rank, const std::string& title, const std::string& address);

    long GetUid() const { return nUid; }
    // The place of the link among those of its uid, from 0.
    int GetRank() const { return nRank; }
    const std::string& GetTitle() const { return Title; }
    const std::string& GetAddress() const { return Address; }
    // What the host launches to show the article: its address, which the desktop's opener
    // takes.
    std::string GetCommandString() const { return Address; }

    // By uid, then rank, then address: a collection of one uid's links starts with its first.
    bool operator<(const HostLink& other) const;
    bool operator==(const HostLink& other) const;

private:
    long nUid;
    int nRank;
    std::string Title;
    std::string Address;
};

using HostLinkCollection = std::set<HostLink>;

// Adds every link of `uid` to `links`; returns how many the table holds for it. The table is
// read from the data directory at the first call and again when that directory changes.
int GetAllHostLinks(long uid, HostLinkCollection& links);
