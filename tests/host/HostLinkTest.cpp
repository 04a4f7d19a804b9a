#include <gtest/gtest.h>

#include "host/HostLink.h"
#include "host/HostLinkTable.h"

TEST(HostLinkTable, ReadsItsLinesInRankOrderAndReportsBadOnes)
{
    HostLinkTable table;
    table.AddText("# comment\n0x70000065 | M 1 | First | http://a.example/1\n"
                  "1879048293|M 1|Second|http://a.example/2\r\n\n0x70000066 | M 2 | No address |\n"
                  "M3 | M 3 | Bad uid | http://a.example/3\n0x7000006G | M 3 | Bad hex | x\n"
                  "0x70000067 | M 3\n");
    const std::vector<HostLink> links = table.Find(0x70000065);
    ASSERT_EQ(links.size(), 2u);
    EXPECT_EQ(links[0], HostLink(0x70000065, 0, "First", "http://a.example/1"));
    EXPECT_EQ(links[1], HostLink(0x70000065, 1, "Second", "http://a.example/2"));
    EXPECT_TRUE(table.Find(0x70000066).empty());
    EXPECT_EQ(table.GetProblems().size(), 4u);
}

TEST(HostLinkTable, TheShippedTableOpensTheArticleOfAMessierObjectAStarAndAPlanet)
{
    HostLinkTable shipped;
    ASSERT_TRUE(shipped.Load("ed:\\links.txt"));
    EXPECT_TRUE(shipped.GetProblems().empty()) << shipped.GetProblems().front();
    const long base = 0x70000000;
    // Messier objects from 100, the bodies from 300, stars from 1000 by their SAO number.
    const std::pair<long, const char*> firsts[] = {
        {base + 101, "http://en.wikipedia.org/wiki/Crab_Nebula"},
        {base + 1000 + 151881, "https://en.wikipedia.org/wiki/Sirius"},
        {base + 303, "http://en.wikipedia.org/wiki/Mars_(planet)"}};
    for (const auto& [uid, address] : firsts) {
        HostLinkCollection links;
        ASSERT_GE(GetAllHostLinks(uid, links), 1) << address;
        EXPECT_EQ(links.begin()->GetCommandString(), address);
    }
}
