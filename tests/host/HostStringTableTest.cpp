#include <gtest/gtest.h>

#include "host/HostStringTable.h"

TEST(HostStringTable, ReadsGroupsQuotesAndEscapesAndReportsBadLines)
{
    HostStringTable table;
    table.AddText("# comment\norphan = before any table\n[5]\n0x10 = \"  padded  \"\r\n"
                  "17 = one\\ntwo \\\"q\\\" back\\\\slash \\x\nstid_lower = Lower\n0x10 = again\n"
                  "STID_LOWER = again\n65536 = too big\nword = not a key\nno equals sign\n"
                  "[x]\n1 = lost\n[1]\n0x10 = host\n");
    EXPECT_EQ(*table.Find(5, 0x10), "  padded  ");
    EXPECT_EQ(*table.Find(5, 17), "one\ntwo \"q\" back\\slash \\x");
    EXPECT_EQ(*table.Find(5, "STID_Lower"), "Lower") << "names ignore case; the first one holds";
    EXPECT_EQ(*table.Find(1, 0x10), "host");
    EXPECT_EQ(table.GetCount(), 4u);
    // orphan, 0x10 twice, STID_LOWER twice, 65536, word, no equals, [x], 1 = lost
    EXPECT_EQ(table.GetProblems().size(), 8u);
}

TEST(HostStringTable, TheShippedTableGivesTheWordsAndTemplatesKeepWhatItLacks)
{
    HostStringTable shipped;
    ASSERT_TRUE(shipped.Load("ed:\\strings.txt"));
    EXPECT_TRUE(shipped.GetProblems().empty()) << shipped.GetProblems().front();
    // A bookmark's title is this text followed by the object's name.
    EXPECT_EQ(getHostString(5, 1000), "Planetarium ");
    EXPECT_EQ(replaceHostString(5, "stid_astro_btn_now"), "Now");
    EXPECT_EQ(replaceHostString(5, "@STID_BTN_OK"), "OK") << "an @ reads the host's table";
    for (const char* kept : {"STID_BTN_OK", "STID_NO_SUCH_NAME", "Plain words", "STID_", "@", ""}) {
        EXPECT_EQ(replaceHostString(5, kept), kept);
    }
    EXPECT_EQ(formatHostString("%s rises at %s.", {"Mars", "9:15 pm"}), "Mars rises at 9:15 pm.");
    EXPECT_EQ(formatHostString("100%% %n %x %", {"unused"}), "100% %n %x %");
}
