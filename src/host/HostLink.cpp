#include "host/HostLink.h"

#include <tuple>

#include "host/HostLinkTable.h"

HostLink::HostLink(long uid, int rank, const std::string& title, const std::string& address)
    : nUid(uid), nRank(rank), Title(title), Address(address)
{}

bool HostLink::operator<(const HostLink& other) const
{
    return std::tie(nUid, nRank, Address) < std::tie(other.nUid, other.nRank, other.Address);
}

bool HostLink::operator==(const HostLink& other) const
{
    return nUid == other.nUid && nRank == other.nRank && Address == other.Address &&
           Title == other.Title;
}

int GetAllHostLinks(long uid, HostLinkCollection& links)
{
    std::vector<HostLink> found = HostLinkTable::Shared().Find(uid);
    links.insert(found.begin(), found.end());
    return static_cast<int>(found.size());
}
