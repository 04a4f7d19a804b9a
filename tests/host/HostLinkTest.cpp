#include <gtest/gtest.h>

#include <cstdlib>

#include "host/HostBookmark.h"
#include "host/HostLink.h"
#include "host/HostLinkTable.h"
#include "host/ScopedHome.h"

namespace {

const long kUidBase = 0x70000000;

struct Body
{
    const char* Name;
    long Offset;
};

// The bodies whose articles the planetarium links, by their uid offsets. The Earth, the
// body one stands on, has no article in the source.
const Body kLinkedBodies[] = {{"Mercury", 300}, {"Venus", 301},  {"Mars", 303},    {"Jupiter", 304},
                              {"Saturn", 305},  {"Uranus", 306}, {"Neptune", 307}, {"Pluto", 308},
                              {"Moon", 310},    {"Sun", 311}};

bool IsWebAddress(const std::string& address)
{
    return (address.rfind("http://", 0) == 0 || address.rfind("https://", 0) == 0) &&
           address.find(' ') == std::string::npos;
}

} // namespace

TEST(HostLinks, ShippedTableReadsWithoutProblems)
{
    HostLinkTable table;
    ASSERT_TRUE(table.Load("ed:\\links.txt"));
    EXPECT_TRUE(table.GetProblems().empty())
        << (table.GetProblems().empty() ? "" : table.GetProblems().front());
    // Messier objects, bodies, the 88 constellations and the stars with IAU names.
    EXPECT_GT(table.GetObjectCount(), 110u + std::size(kLinkedBodies) + 88u + 350u);
    EXPECT_GE(table.GetLinkCount(), table.GetObjectCount());
}

TEST(HostLinks, ConstellationsAndNamedStarsOpenTheirArticles)
{
    HostLinkCollection orion;
    ASSERT_EQ(GetAllHostLinks(kUidBase + 60, orion), 1); // line 60 of the constellation list
    EXPECT_EQ(orion.begin()->GetCommandString(),
              "https://en.wikipedia.org/wiki/Orion_(constellation)");

    HostLinkCollection sirius;
    ASSERT_EQ(GetAllHostLinks(kUidBase + 1000 + 151881, sirius), 1);
    EXPECT_EQ(sirius.begin()->GetCommandString(), "https://en.wikipedia.org/wiki/Sirius");

    HostLinkCollection unnamed;
    EXPECT_EQ(GetAllHostLinks(kUidBase + 1000 + 106, unnamed), 0);
}

TEST(HostLinks, EveryMessierObjectOpensItsEncyclopediaArticle)
{
    for (long number = 1; number <= 110; ++number) {
        HostLinkCollection links;
        ASSERT_GE(GetAllHostLinks(kUidBase + 100 + number, links), 1) << "M" << number;
        const HostLink& first = *links.begin();
        EXPECT_EQ(first.GetRank(), 0);
        EXPECT_TRUE(IsWebAddress(first.GetCommandString())) << first.GetCommandString();
        EXPECT_NE(first.GetCommandString().find("wikipedia.org"), std::string::npos)
            << "M" << number;
        for (const HostLink& link : links) {
            EXPECT_EQ(link.GetUid(), kUidBase + 100 + number);
            EXPECT_TRUE(IsWebAddress(link.GetAddress())) << link.GetAddress();
        }
    }
    HostLinkCollection crab;
    GetAllHostLinks(kUidBase + 101, crab);
    EXPECT_EQ(crab.begin()->GetAddress(), "http://en.wikipedia.org/wiki/Crab_Nebula");
}

TEST(HostLinks, TheSunMoonAndPlanetsOpenTheirOwnArticles)
{
    for (const Body& body : kLinkedBodies) {
        HostLinkCollection links;
        ASSERT_GE(GetAllHostLinks(kUidBase + body.Offset, links), 1) << body.Name;
        const std::string first = links.begin()->GetCommandString();
        EXPECT_NE(first.find(std::string("wiki/") + body.Name), std::string::npos)
            << body.Name << ": " << first;
    }
}

TEST(HostLinks, UidsWithoutArticlesGiveNothing)
{
    for (long uid : {0L, 500L, kUidBase, kUidBase + 302, kUidBase + 1000 + 48915, -1L}) {
        HostLinkCollection links;
        EXPECT_EQ(GetAllHostLinks(uid, links), 0) << uid;
        EXPECT_TRUE(links.empty());
    }
}

TEST(HostLinks, CollectionsOrderByUidThenRankAndAddUp)
{
    HostLinkCollection links;
    int moon = GetAllHostLinks(kUidBase + 310, links);
    int sun = GetAllHostLinks(kUidBase + 311, links);
    EXPECT_EQ(links.size(), static_cast<std::size_t>(moon + sun));
    EXPECT_EQ(links.begin()->GetUid(), kUidBase + 310);
    int previous = -1;
    for (const HostLink& link : links) {
        if (link.GetUid() != kUidBase + 310) {
            break;
        }
        EXPECT_EQ(link.GetRank(), previous + 1);
        previous = link.GetRank();
    }
    // Asking twice adds nothing new.
    GetAllHostLinks(kUidBase + 311, links);
    EXPECT_EQ(links.size(), static_cast<std::size_t>(moon + sun));
}

TEST(HostLinkTable, ReadsItsLinesAndReportsBadOnes)
{
    HostLinkTable table;
    table.AddText("# comment\n"
                  "0x70000065 | M 1 | First | http://a.example/1\n"
                  "1879048293|M 1|Second|http://a.example/2\r\n"
                  "\n"
                  "0x70000066 | M 2 | No address |\n"
                  "M3 | M 3 | Bad uid | http://a.example/3\n"
                  "0x7000006G | M 3 | Bad hex | http://a.example/3\n"
                  "0x70000067 | M 3\n");
    std::vector<HostLink> links = table.Find(0x70000065);
    ASSERT_EQ(links.size(), 2u);
    EXPECT_EQ(links[0], HostLink(0x70000065, 0, "First", "http://a.example/1"));
    EXPECT_EQ(links[1].GetTitle(), "Second");
    EXPECT_EQ(links[1].GetAddress(), "http://a.example/2");
    EXPECT_EQ(links[1].GetRank(), 1);
    EXPECT_TRUE(table.Find(0x70000066).empty());
    EXPECT_EQ(table.GetProblems().size(), 4u);
}

TEST(HostLinkTable, SharedTableFollowsTheDataDirectory)
{
    ScopedHome data;
    data.WriteFile("LINKS.txt", "0x70000137 | Sun | Local | file:///tmp/sun.html\n");
    const char* before = std::getenv("ORBISCOPE_DATA");
    std::string saved = before ? before : "";
    ::setenv("ORBISCOPE_DATA", data.Path().c_str(), 1);
    HostLinkCollection links;
    EXPECT_EQ(GetAllHostLinks(0x70000137, links), 1);
    EXPECT_EQ(links.begin()->GetCommandString(), "file:///tmp/sun.html");
    if (before) {
        ::setenv("ORBISCOPE_DATA", saved.c_str(), 1);
    } else {
        ::unsetenv("ORBISCOPE_DATA");
    }
    links.clear();
    EXPECT_GT(GetAllHostLinks(0x70000137, links), 1);
}

TEST(HostBookmark, HoldsTypeTitleAndCommand)
{
    HostBookmark view("PLNT", "Planetarium Mars", "orbiscope FullState=1 AstroNoxWindow=<>");
    EXPECT_EQ(view.Type, "PLNT");
    EXPECT_EQ(view.Title, "Planetarium Mars");
    EXPECT_EQ(view.Command, "orbiscope FullState=1 AstroNoxWindow=<>");

    HostBookmark game("skyhunt");
    EXPECT_EQ(game.Command, "skyhunt");
    EXPECT_EQ(game.Type, "");
    EXPECT_EQ(game.Title, "");

    HostBookmark untyped(nullptr, "t", "c");
    EXPECT_EQ(untyped.Type, "");
}
