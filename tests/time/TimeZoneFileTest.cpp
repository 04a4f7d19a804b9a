// The compiled zone file reader and the tree of zone files, on files made in code.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TimeZoneTestFiles.h"
#include "time/TimeZoneDirectory.h"
#include "time/TimeZoneFile.h"

using tztest::MakeTzif;
using tztest::ScratchTree;
using tztest::SimpleTzif;

namespace {

// A zone with a past of two types and a rule: LMT until 1893, then CET.
std::string BerlinLike()
{
    return MakeTzif('2', {{3208, false, "LMT"}, {3600, false, "CET"}, {7200, true, "CEST"}},
                    {{-2422054408LL, 1}, {-1693706400LL, 2}, {-1680483600LL, 1}},
                    "CET-1CEST,M3.5.0,M10.5.0/3");
}

} // namespace

TEST(TimeZoneFile, ReadsTheRuleAndTheLastLocalTimeType)
{
    TimeZoneFile file;
    ASSERT_TRUE(file.Parse(BerlinLike()));
    EXPECT_EQ(file.GetVersion(), 2);
    EXPECT_EQ(file.GetRule(), "CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(file.GetLastUtcOffset(), 3600);
    EXPECT_FALSE(file.GetLastIsDaylight());
    EXPECT_EQ(file.GetLastAbbreviation(), "CET");

    // Without transitions the first type holds; an empty rule line is allowed.
    ASSERT_TRUE(file.Parse(MakeTzif('3', {{-34200, false, "-0930"}}, {}, "")));
    EXPECT_EQ(file.GetVersion(), 3);
    EXPECT_EQ(file.GetRule(), "");
    EXPECT_EQ(file.GetLastUtcOffset(), -34200);
    EXPECT_EQ(file.GetLastAbbreviation(), "-0930");

    // The first format has no rule; its 32-bit block gives the last type.
    ASSERT_TRUE(
        file.Parse(MakeTzif('\0', {{0, false, "LMT"}, {19800, false, "IST"}}, {{-100000, 1}}, "")));
    EXPECT_EQ(file.GetVersion(), 1);
    EXPECT_EQ(file.GetRule(), "");
    EXPECT_EQ(file.GetLastUtcOffset(), 19800);
}

TEST(TimeZoneFile, RefusesDamagedFilesAndKeepsWhatItHad)
{
    std::string good = BerlinLike();
    std::vector<std::string> damaged;
    damaged.push_back("");
    damaged.push_back("TZif");
    damaged.push_back("TZjf" + good.substr(4));
    damaged.push_back(good.substr(0, good.size() - 1)); // the rule's line end is missing
    damaged.push_back(good.substr(0, 200));             // cut in the second block
    damaged.push_back(good.substr(0, 43));              // cut in the header
    std::string badVersion = good;
    badVersion[4] = '1';
    damaged.push_back(badVersion);
    std::string noTypes = SimpleTzif(0, "UTC", "UTC0");
    noTypes[39] = 0; // type count 0 in the first header
    damaged.push_back(noTypes);
    std::string hugeCount = SimpleTzif(0, "UTC", "UTC0");
    hugeCount[32] = '\x7F'; // two billion transitions
    damaged.push_back(hugeCount);
    // A transition that names a type that does not exist.
    damaged.push_back(MakeTzif('2', {{0, false, "UTC"}}, {{0, 3}}, "UTC0"));
    // Offsets beyond -25 h and +26 h.
    damaged.push_back(MakeTzif('2', {{93600, false, "BIG"}}, {}, ""));
    damaged.push_back(MakeTzif('2', {{-90000, false, "BIG"}}, {}, ""));
    // A rule not set off by a line feed.
    std::string noLineFeed = good;
    noLineFeed[noLineFeed.size() - std::string("CET-1CEST,M3.5.0,M10.5.0/3\n").size() - 1] = 'x';
    damaged.push_back(noLineFeed);

    for (const std::string& bytes : damaged) {
        TimeZoneFile file;
        ASSERT_TRUE(file.Parse(SimpleTzif(-3600, "CET", "CET-1")));
        EXPECT_FALSE(file.Parse(bytes)) << "file of " << bytes.size() << " bytes";
        EXPECT_EQ(file.GetRule(), "CET-1");
        EXPECT_EQ(file.GetLastUtcOffset(), -3600);
    }
}

TEST(TimeZoneFile, ReadsFromDiskAndTellsZoneFilesByTheirMagic)
{
    ScratchTree tree;
    tree.Write("zone", BerlinLike());
    tree.Write("text", "TZ text that is not a zone file\n");
    TimeZoneFile file;
    EXPECT_TRUE(file.Read(tree.Path("zone")));
    EXPECT_EQ(file.GetRule(), "CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_FALSE(file.Read(tree.Path("text")));
    EXPECT_FALSE(file.Read(tree.Path("missing")));
    EXPECT_TRUE(TimeZoneFile::HasMagic(tree.Path("zone")));
    EXPECT_FALSE(TimeZoneFile::HasMagic(tree.Path("text")));
    EXPECT_FALSE(TimeZoneFile::HasMagic(tree.Path("missing")));

    tree.Write("big", std::string(TimeZoneFile::kMaxFileSize + 1, 'x'));
    std::string bytes = "unchanged";
    EXPECT_FALSE(TimeZoneFile::ReadBytes(tree.Path("big"), bytes));
    EXPECT_EQ(bytes, "unchanged");
}

TEST(TimeZoneDirectory, ListsZoneFilesInNameOrderAndSkipsTheRest)
{
    ScratchTree tree;
    std::string zone = SimpleTzif(0, "UTC", "UTC0");
    tree.Write("Europe/Zurich", zone);
    tree.Write("Europe/berlin", zone);
    tree.Write("Europe/Berlin", zone);
    tree.Write("America/Argentina/Salta", zone);
    tree.Write("America/Aruba", zone);
    tree.Write("UTC", zone);
    tree.Link("Old/Alias", "../Europe/Zurich");
    tree.Link("Old/Dangling", "../Europe/Nowhere");
    tree.Write("posix/Europe/Zurich", zone);
    tree.Write("right/Europe/Zurich", zone);
    tree.Write("posixrules", zone);
    tree.Write("Factory", zone);
    tree.Link("localtime", "UTC");
    tree.Write("zone.tab", "CH\t+4723+00832\tEurope/Zurich\n");
    tree.Write("tzdata.zi", "# version 2025b\n");
    tree.Write("Europe/empty", "");

    TimeZoneDirectory directory(tree.GetRoot() + "/");
    EXPECT_TRUE(directory.Exists());
    std::vector<std::string> expected = {"America/Argentina/Salta",
                                         "America/Aruba",
                                         "Europe/Berlin",
                                         "Europe/berlin",
                                         "Europe/Zurich",
                                         "Old/Alias",
                                         "UTC"};
    EXPECT_EQ(directory.GetZoneNames(), expected);
    EXPECT_EQ(directory.GetPath("Europe/Zurich"), tree.Path("Europe/Zurich"));

    EXPECT_FALSE(TimeZoneDirectory(tree.Path("nothing")).Exists());
    EXPECT_TRUE(TimeZoneDirectory(tree.Path("nothing")).GetZoneNames().empty());
}

TEST(TimeZoneDirectory, NamesTheZoneALinkPointsAt)
{
    ScratchTree tree;
    tree.Write("zoneinfo/Europe/Berlin", SimpleTzif(3600, "CET", "CET-1"));
    TimeZoneDirectory directory(tree.Path("zoneinfo"));
    tree.Link("etc/absolute", tree.Path("zoneinfo/Europe/Berlin"));
    tree.Link("etc/relative", "../zoneinfo/./Europe/Berlin");
    tree.Link("etc/other-tree", "/usr/share/zoneinfo/America/New_York");
    tree.Link("etc/posix-copy", "/usr/share/zoneinfo/posix/Asia/Tokyo");
    tree.Link("etc/elsewhere", "/srv/zones/Europe/Berlin");
    tree.Write("etc/plain", "not a link");

    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/absolute")), "Europe/Berlin");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/relative")), "Europe/Berlin");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/other-tree")), "America/New_York");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/posix-copy")), "Asia/Tokyo");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/elsewhere")), "");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/plain")), "");
    EXPECT_EQ(directory.NameOfLink(tree.Path("etc/missing")), "");
}
