// The list of zones, the zone index file and the machine's zone, on a tree of zone files made
// in code, so that nothing here depends on the system's database.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "TimeZoneTestFiles.h"
#include "catalogues/TextFile.h"
#include "platform/DebugStream.h"
#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"

using tztest::ScratchTree;
using tztest::SimpleTzif;

namespace {

class TimeZoneList : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Tree.Write("zoneinfo/Europe/Berlin", SimpleTzif(3600, "CET", "CET-1CEST,M3.5.0,M10.5.0/3"));
        Tree.Write("zoneinfo/Europe/Amsterdam",
                   SimpleTzif(3600, "CET", "CET-1CEST,M3.5.0,M10.5.0/3") + "\n");
        Tree.Write("zoneinfo/America/New_York",
                   SimpleTzif(-18000, "EST", "EST5EDT,M3.2.0,M11.1.0"));
        Tree.Link("zoneinfo/US/Eastern", "../America/New_York");
        Tree.Link("zoneinfo/America/Fort_Wayne", "New_York");
        Tree.Write("zoneinfo/Asia/Kolkata", SimpleTzif(19800, "IST", "IST-5:30"));
        Tree.Write("zoneinfo/Etc/UTC", SimpleTzif(0, "UTC", "UTC0"));
        Tree.Link("zoneinfo/UTC", "Etc/UTC");
        // Rule-less files keep the offset they end with.
        Tree.Write("zoneinfo/Africa/Casablanca", SimpleTzif(3600, "+01", ""));
        // Damaged files are left out with a message.
        Tree.Write("zoneinfo/Broken/Zone", SimpleTzif(0, "UTC", "UTC0").substr(0, 60));
        Tree.Write("zoneinfo/posix/Europe/Berlin",
                   SimpleTzif(3600, "CET", "CET-1CEST,M3.5.0,M10.5.0/3"));
        Tree.Write("zoneinfo/zone.tab", "DE\t+5230+01322\tEurope/Berlin\n");

        Messages.clear();
        PreviousSink = SetDebugSink([this](const char* text) { Messages += text; });
        TimeZone::LoadTimeZonesFrom(Tree.Path("zoneinfo"));
    }

    void TearDown() override
    {
        SetDebugSink(PreviousSink);
        TimeZone::LoadTimeZones();
        TimeZone::LoadTimeZoneIndex(TimeZone::TimeZoneIndexPath());
    }

    void WriteIndex(const std::string& text)
    {
        Tree.Write("timezone.txt", text);
        TimeZone::LoadTimeZoneIndex(Tree.Path("timezone.txt"));
    }

    static std::string NameOf(const TimeZone* zone)
    {
        return zone != nullptr ? zone->GetDisplayName() : std::string("(none)");
    }

    ScratchTree Tree;
    std::string Messages;
    DebugSink PreviousSink;
};

} // namespace

TEST_F(TimeZoneList, LoadsEveryZoneFileInNameOrder)
{
    std::vector<std::string> names;
    for (const TimeZone& zone : TimeZone::GetAllTimeZones()) {
        names.push_back(zone.GetDisplayName());
    }
    std::vector<std::string> expected = {"(UTC+01:00) Africa/Casablanca",
                                         "(UTC-05:00) America/Fort_Wayne",
                                         "(UTC-05:00) America/New_York",
                                         "(UTC+05:30) Asia/Kolkata",
                                         "(UTC+00:00) Etc/UTC",
                                         "(UTC+01:00) Europe/Amsterdam",
                                         "(UTC+01:00) Europe/Berlin",
                                         "(UTC-05:00) US/Eastern",
                                         "(UTC+00:00) UTC"};
    EXPECT_EQ(names, expected);
    EXPECT_NE(Messages.find("Broken/Zone"), std::string::npos) << Messages;

    const TimeZone* berlin = TimeZone::GetTimeZone("(UTC+01:00) Europe/Berlin");
    ASSERT_NE(berlin, nullptr);
    EXPECT_EQ(berlin->GetStandardName(), "Europe/Berlin");
    EXPECT_EQ(berlin->GetZoneInformation().Bias, -60);
    EXPECT_EQ(berlin->GetZoneInformation().DaylightDate.wMonth, 3);
    EXPECT_TRUE(berlin->GetAutomaticDST());

    const TimeZone* casablanca = TimeZone::GetTimeZone("Africa/Casablanca");
    ASSERT_NE(casablanca, nullptr);
    EXPECT_EQ(casablanca->GetZoneInformation().Bias, -60);
    EXPECT_EQ(casablanca->GetZoneInformation().DaylightDate.wMonth, 0);

    // A tree without zone files gives an empty list, and says so.
    Messages.clear();
    TimeZone::LoadTimeZonesFrom(Tree.Path("nothing"));
    EXPECT_NE(Messages.find("No time zones found"), std::string::npos) << Messages;
}

TEST_F(TimeZoneList, FindsZonesByDisplayNameOrByZoneName)
{
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("(UTC+05:30) Asia/Kolkata")),
              "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("(utc+05:30) ASIA/KOLKATA")),
              "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("Asia/Kolkata")), "(UTC+05:30) Asia/Kolkata");
    // A zone moved to another offset is still found by its name.
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("(UTC+06:00) Asia/Kolkata")),
              "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(TimeZone::GetTimeZone("(UTC+05:30) Asia/Calcutta"), nullptr);
    EXPECT_EQ(TimeZone::GetTimeZone(""), nullptr);
    EXPECT_EQ(TimeZone::GetTimeZone("(UTC+05:30) "), nullptr);

    // The pointer points into the list.
    const TimeZone* found = TimeZone::GetTimeZone("Etc/UTC");
    const std::vector<TimeZone>& all = TimeZone::GetAllTimeZones();
    EXPECT_TRUE(found >= all.data() && found < all.data() + all.size());
}

TEST_F(TimeZoneList, IndexLinesGiveZoneNumbers)
{
    WriteIndex("(UTC+00:00) Etc/UTC\n"
               "(UTC+01:00) Europe/Berlin\n"
               "(UTC+05:30) Asia/Calcutta | (UTC+05:30) Asia/Kolkata\n"
               "(UTC-05:00) America/New_York|(UTC+05:30) Asia/Kolkata\n"
               "(UTC+01:00) Nowhere/Else\n"
               "|(UTC+01:00) Europe/Berlin\n"
               "(UTC+05:30) Asia/Calcutta\n");
    EXPECT_EQ(TimeZone::GetTimeZone(0u), nullptr);
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(1u)), "(UTC+01:00) Europe/Berlin");
    // The first known name counts.
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(2u)), "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(3u)), "(UTC-05:00) America/New_York");
    EXPECT_EQ(TimeZone::GetTimeZone(4u), nullptr);
    // An empty first name ends the line.
    EXPECT_EQ(TimeZone::GetTimeZone(5u), nullptr);
    // A line of an unknown name only.
    EXPECT_EQ(TimeZone::GetTimeZone(6u), nullptr);
    // Past the last line.
    EXPECT_EQ(TimeZone::GetTimeZone(7u), nullptr);
    EXPECT_EQ(TimeZone::GetTimeZone(4000000000u), nullptr);
}

TEST_F(TimeZoneList, IndexStopsAtTheFirstEmptyLineAndAMissingFileGivesNoZones)
{
    WriteIndex("zero\r\n(UTC+01:00) Europe/Berlin\r\n\r\n(UTC+05:30) Asia/Kolkata\r\n");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(1u)), "(UTC+01:00) Europe/Berlin");
    EXPECT_EQ(TimeZone::GetTimeZone(3u), nullptr);

    Messages.clear();
    EXPECT_FALSE(TimeZone::LoadTimeZoneIndex(Tree.Path("missing.txt")));
    EXPECT_NE(Messages.find("missing.txt"), std::string::npos);
    for (unsigned number = 0; number < 4; ++number) {
        EXPECT_EQ(TimeZone::GetTimeZone(number), nullptr);
    }
    // An empty file, or one that begins with an empty line, is as good as none.
    Tree.Write("empty.txt", "");
    EXPECT_FALSE(TimeZone::LoadTimeZoneIndex(Tree.Path("empty.txt")));
    Tree.Write("blank-first.txt", "\n(UTC+01:00) Europe/Berlin\n");
    EXPECT_FALSE(TimeZone::LoadTimeZoneIndex(Tree.Path("blank-first.txt")));
    EXPECT_EQ(TimeZone::GetTimeZone(1u), nullptr);
}

TEST_F(TimeZoneList, PrintsAllDisplayNamesBetweenLineEnds)
{
    TextFile out;
    ASSERT_TRUE(out.OpenForWriting(Tree.Path("dump.txt").c_str()));
    TimeZone::PrintAllTimeZoneNames(out);
    out.Close();
    std::string text;
    ASSERT_TRUE(tztest::ReadFile(Tree.Path("dump.txt"), text));
    EXPECT_EQ(text, "(UTC+01:00) Africa/Casablanca\n(UTC-05:00) America/Fort_Wayne\n"
                    "(UTC-05:00) America/New_York\n"
                    "(UTC+05:30) Asia/Kolkata\n(UTC+00:00) Etc/UTC\n"
                    "(UTC+01:00) Europe/Amsterdam\n(UTC+01:00) Europe/Berlin\n"
                    "(UTC-05:00) US/Eastern\n(UTC+00:00) UTC");
}

TEST_F(TimeZoneList, StateReadsTheRecordOfTheNamedZone)
{
    TimeZone kolkata = *TimeZone::GetTimeZone("Asia/Kolkata");
    kolkata.SetAutomaticDST(false);
    CmdLineStateContainer writer;
    writer << AstroKey("TimeZone") << kolkata;

    TimeZone target = *TimeZone::GetTimeZone("America/New_York");
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("TimeZone") >> target;
    EXPECT_EQ(target.GetDisplayName(), "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(target.GetZoneInformation().Bias, -330);
    EXPECT_FALSE(target.GetAutomaticDST());
    EXPECT_FALSE(target.GetManualDSTToggle());
}

TEST_F(TimeZoneList, SystemZoneFromTheTzVariable)
{
    auto find = [](const char* tz) {
        return TimeZone::FindSystemTimeZone(tz, "/nonexistent/localtime").GetDisplayName();
    };
    EXPECT_EQ(find(":America/New_York"), "(UTC-05:00) America/New_York");
    EXPECT_EQ(find("US/Eastern"), "(UTC-05:00) US/Eastern");
    EXPECT_EQ(find("europe/berlin"), "(UTC+01:00) Europe/Berlin");
    // Empty means Universal Time, as the C library has it.
    EXPECT_EQ(find(""), "(UTC+00:00) UTC");
    EXPECT_EQ(find(":"), "(UTC+00:00) UTC");
    // A file of the tree that the list leaves out, and a file by its path.
    EXPECT_EQ(find("posix/Europe/Berlin"), "(UTC+01:00) Europe/Berlin");
    EXPECT_EQ(find(Tree.Path("zoneinfo/Asia/Kolkata").c_str()), "(UTC+05:30) Asia/Kolkata");
    // A rule: the first zone with that record (Amsterdam's file differs from Berlin's only
    // in a byte after the rule).
    EXPECT_EQ(find("CET-1CEST,M3.5.0,M10.5.0/3"), "(UTC+01:00) Europe/Amsterdam");
    // A rule that no zone has gives a nameless zone with that record.
    TimeZone own = TimeZone::FindSystemTimeZone("XYZ-3", "/nonexistent");
    EXPECT_EQ(own.GetDisplayName(), "");
    EXPECT_EQ(own.GetZoneInformation().Bias, -180);
    // Neither a zone nor a rule: the nameless zone of Universal Time.
    TimeZone none = TimeZone::FindSystemTimeZone("Mars/Olympus_Mons", "/nonexistent");
    EXPECT_EQ(none.GetDisplayName(), "");
    EXPECT_TRUE(none == TimeZone());
    EXPECT_EQ(find("../zoneinfo/Asia/Kolkata"), "");
}

TEST_F(TimeZoneList, SystemZoneFromTheLocaltimeFile)
{
    auto find = [&](const std::string& relative) {
        return TimeZone::FindSystemTimeZone(nullptr, Tree.Path(relative)).GetDisplayName();
    };
    // A link names its zone, also a link that is itself an old name.
    Tree.Link("etc/localtime-link", Tree.Path("zoneinfo/US/Eastern"));
    EXPECT_EQ(find("etc/localtime-link"), "(UTC-05:00) US/Eastern");
    Tree.Link("etc/localtime-relative", "../zoneinfo/Asia/Kolkata");
    EXPECT_EQ(find("etc/localtime-relative"), "(UTC+05:30) Asia/Kolkata");
    // A copy is known by its bytes; a zone's own file wins over an old name linked to it
    // (America/Fort_Wayne comes first in the list).
    Tree.Write("etc/localtime-copy", SimpleTzif(-18000, "EST", "EST5EDT,M3.2.0,M11.1.0"));
    EXPECT_EQ(find("etc/localtime-copy"), "(UTC-05:00) America/New_York");
    Tree.Write("etc/localtime-utc", SimpleTzif(0, "UTC", "UTC0"));
    EXPECT_EQ(find("etc/localtime-utc"), "(UTC+00:00) Etc/UTC");
    // A file of other bytes is known by its rule.
    Tree.Write("etc/localtime-other", SimpleTzif(3600, "MEZ", "CET-1CEST,M3.5.0,M10.5.0/3"));
    EXPECT_EQ(find("etc/localtime-other"), "(UTC+01:00) Europe/Amsterdam");
    Tree.Write("etc/localtime-unknown", SimpleTzif(3600, "XYZ", "XYZ-7"));
    TimeZone unknown = TimeZone::FindSystemTimeZone(nullptr, Tree.Path("etc/localtime-unknown"));
    EXPECT_EQ(unknown.GetDisplayName(), "");
    EXPECT_EQ(unknown.GetZoneInformation().Bias, -420);
    // No file, or no zone file: the nameless zone.
    EXPECT_EQ(find("etc/missing"), "");
    Tree.Write("etc/localtime-text", "Europe/Berlin\n");
    EXPECT_EQ(find("etc/localtime-text"), "");
}
