// The list of zones from the system's IANA database: what it holds, how zones are found, the
// zone index file, the machine's zone, and every zone against the C library's reading of the
// same files, an implementation apart from ours.
#include <gtest/gtest.h>

#include <stdlib.h>
#include <strings.h>

#include <cmath>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "platform/DebugStream.h"
#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"
#include "time/TimeZoneDirectory.h"
#include "time/TimeZoneFile.h"

namespace fs = std::filesystem;

namespace {

// The system's zones loaded, and a scratch directory for files of the test's own.
class TimeZoneList : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!TimeZoneDirectory().Exists()) {
            GTEST_SKIP() << "no IANA zone files at " << TimeZoneDirectory::DefaultRoot()
                         << " (install tzdata)";
        }
        char name[] = "/tmp/orbiscope-tz-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        Root = name;
        PreviousSink = SetDebugSink([this](const char* text) { Messages += text; });
        TimeZone::LoadTimeZones();
    }
    void TearDown() override
    {
        if (!Root.empty()) {
            SetDebugSink(PreviousSink);
            TimeZone::LoadTimeZones();
            TimeZone::LoadTimeZoneIndex(TimeZone::TimeZoneIndexPath());
            fs::remove_all(Root);
        }
    }
    // Writes a file below the scratch directory and gives its path.
    std::string Write(const std::string& relative, const std::string& bytes)
    {
        fs::create_directories(fs::path(Root + "/" + relative).parent_path());
        std::ofstream(Root + "/" + relative, std::ios::binary) << bytes;
        return Root + "/" + relative;
    }
    static std::string SystemFile(const char* zone)
    {
        std::string bytes;
        TimeZoneFile::ReadBytes(TimeZoneDirectory().GetPath(zone), bytes);
        return bytes;
    }
    static std::string NameOf(const TimeZone* zone)
    {
        return zone != nullptr ? zone->GetDisplayName() : std::string("(none)");
    }

    std::string Root;
    std::string Messages;
    DebugSink PreviousSink;
};

// Local minus universal time in minutes at a moment of the Unix clock, as the zone converts
// it, and as the C library sees it under the TZ variable.
long OffsetMinutes(std::int64_t when, const TimeZone& zone)
{
    const AstroTime universal(40587.0 + static_cast<double>(when) / 86400.0, true);
    return std::lround(((universal - zone).GetMJD() - universal.GetMJD()) * 1440.0);
}

long LibraryOffsetMinutes(std::int64_t when)
{
    const std::time_t t = static_cast<std::time_t>(when);
    std::tm parts{};
    localtime_r(&t, &parts);
    return parts.tm_gmtoff / 60;
}

} // namespace

TEST_F(TimeZoneList, HoldsEveryZoneOnceInNameOrderAndLeavesOutTheRest)
{
    // The tree also holds copies under posix/ and right/ and files that are no zone of a place.
    const std::vector<TimeZone>& zones = TimeZone::GetAllTimeZones();
    ASSERT_GT(zones.size(), 300u);
    const std::set<std::string> noZones = {"posixrules", "Factory", "localtime", "zone.tab"};
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const std::string name = zones[i].GetZoneName();
        EXPECT_TRUE(noZones.count(name) == 0 && name.find("posix/") != 0 &&
                    name.find("right/") != 0)
            << name;
        EXPECT_LT(strcasecmp(i == 0 ? "" : zones[i - 1].GetZoneName().c_str(), name.c_str()), 0)
            << name;
    }
    // A damaged file is left out, with a message, and a tree without zones says so.
    Write("tree/Europe/Berlin", SystemFile("Europe/Berlin"));
    Write("tree/Broken/Zone", SystemFile("Europe/Berlin").substr(0, 60));
    TimeZone::LoadTimeZonesFrom(Root + "/tree");
    ASSERT_EQ(TimeZone::GetAllTimeZones().size(), 1u);
    EXPECT_EQ(TimeZone::GetAllTimeZones()[0].GetDisplayName(), "(UTC+01:00) Europe/Berlin");
    EXPECT_NE(Messages.find("Broken/Zone"), std::string::npos) << Messages;
    TimeZone::LoadTimeZonesFrom(Root + "/nothing");
    EXPECT_NE(Messages.find("No time zones found"), std::string::npos) << Messages;
}

TEST_F(TimeZoneList, FindsZonesByNameByIndexLineAndFromSavedState)
{
    // By display name or zone name without regard to case, and by its name a zone that the
    // database has moved to another offset.
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("(utc+05:30) ASIA/KOLKATA")),
              "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone("(UTC+06:00) Asia/Kolkata")),
              "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(TimeZone::GetTimeZone("(UTC+05:30) Asia/Nowhere"), nullptr);

    // Line 0 is never used, the first known name of a line counts, an empty name ends the
    // line, and reading stops at the first empty line.
    ASSERT_TRUE(TimeZone::LoadTimeZoneIndex(Write("timezone.txt", "(UTC+00:00) Etc/UTC\n"
                                                                  "Asia/Nowhere | Asia/Kolkata\n"
                                                                  "(UTC+01:00) Nowhere/Else\n"
                                                                  "|Europe/Berlin\r\n"
                                                                  "America/New_York\n"
                                                                  "\n"
                                                                  "Europe/Berlin\n")));
    const std::vector<std::string> byNumber = {"(none)", "(UTC+05:30) Asia/Kolkata",     "(none)",
                                               "(none)", "(UTC-05:00) America/New_York", "(none)",
                                               "(none)"};
    for (unsigned number = 0; number < byNumber.size(); ++number) {
        EXPECT_EQ(NameOf(TimeZone::GetTimeZone(number)), byNumber[number]) << number;
    }
    // A missing file gives no zones, and says which.
    EXPECT_FALSE(TimeZone::LoadTimeZoneIndex(Root + "/missing.txt"));
    EXPECT_EQ(TimeZone::GetTimeZone(1u), nullptr);
    EXPECT_NE(Messages.find("missing.txt"), std::string::npos);
    // Berlin and Albany carry the zone numbers 273 and 136 in the city list.
    ASSERT_TRUE(TimeZone::LoadTimeZoneIndex(TimeZone::TimeZoneIndexPath()));
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(273u)), "(UTC+01:00) Europe/Berlin");
    EXPECT_EQ(NameOf(TimeZone::GetTimeZone(136u)), "(UTC-05:00) America/New_York");

    // Saved state takes the record of the zone of that name.
    CmdLineStateContainer writer;
    writer << AstroKey("TimeZone") << *TimeZone::GetTimeZone("Asia/Kolkata");
    TimeZone target = *TimeZone::GetTimeZone("America/New_York");
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("TimeZone") >> target;
    EXPECT_EQ(target.GetDisplayName(), "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(target.GetZoneInformation().Bias, -330);
}

TEST_F(TimeZoneList, MachineZoneFromTheTzVariableOrTheLocaltimeFile)
{
    auto find = [&](const char* tz, const std::string& localtime) {
        return TimeZone::FindSystemTimeZone(tz, localtime).GetDisplayName();
    };
    EXPECT_EQ(find(":America/New_York", ""), "(UTC-05:00) America/New_York");
    // Empty means Universal Time, as the C library has it.
    EXPECT_EQ(find("", ""), "(UTC+00:00) UTC");
    // A rule: the first zone with that record, or a nameless zone of its own; neither a zone
    // nor a rule: the nameless zone of Universal Time.
    EXPECT_EQ(find("IST-5:30", "").substr(0, 12), "(UTC+05:30) ");
    EXPECT_EQ(TimeZone::FindSystemTimeZone("XYZ-3", "").GetZoneInformation().Bias, -180);
    EXPECT_TRUE(TimeZone::FindSystemTimeZone("Mars/Olympus_Mons", "") == TimeZone());

    // Without TZ: the zone a link names, or a copy known by its bytes, or none for a text.
    fs::create_symlink(TimeZoneDirectory().GetPath("Asia/Kolkata"), Root + "/link");
    EXPECT_EQ(find(nullptr, Root + "/link"), "(UTC+05:30) Asia/Kolkata");
    EXPECT_EQ(find(nullptr, Write("copy", SystemFile("Australia/Lord_Howe"))),
              "(UTC+10:30) Australia/Lord_Howe");
    EXPECT_EQ(find(nullptr, Write("text", "Europe/Berlin\n")), "");
}

TEST_F(TimeZoneList, EveryZoneAgreesWithTheCLibraryThroughout2026)
{
    // Morocco's zones change around Ramadan, which no yearly rule tells. Elsewhere, a second
    // either side of each change (its own moment counts as outside daylight saving), an hour
    // after it, and noon every other week: New York's and Berlin's changes, Sydney's southern
    // summer, Lord Howe's half hour, Dublin's winter "daylight" time, and the changes of Nuuk,
    // Jerusalem and Santiago outside 0-23 h among them.
    const std::set<std::string> noYearlyRule = {"Africa/Casablanca", "Africa/El_Aaiun"};
    const std::int64_t from = 1767225600, to = 1798761600; // 2026 and 2027 January 1, 0h UT
    const char* const tz = std::getenv("TZ");
    const bool hadTz = tz != nullptr;
    const std::string savedTz = hadTz ? tz : "";
    int compared = 0;
    for (const TimeZone& zone : TimeZone::GetAllTimeZones()) {
        const std::string name = zone.GetZoneName();
        if (noYearlyRule.count(name) != 0) {
            continue;
        }
        setenv("TZ", (":" + TimeZoneDirectory().GetPath(name)).c_str(), 1);
        tzset();
        std::vector<std::int64_t> moments;
        long previous = LibraryOffsetMinutes(from);
        for (std::int64_t when = from; when < to; when += 6 * 3600) {
            if ((when - from) % (14 * 86400) == 43200) {
                moments.push_back(when);
            }
            const long next = LibraryOffsetMinutes(when + 6 * 3600);
            // A change within these six hours: find its second.
            for (std::int64_t before = when, after = when + 6 * 3600; next != previous;) {
                const std::int64_t middle = (before + after) / 2;
                if (LibraryOffsetMinutes(middle) == previous) {
                    before = middle;
                } else {
                    after = middle;
                }
                if (after - before == 1) {
                    moments.insert(moments.end(), {before, after + 1, after + 3600});
                    break;
                }
            }
            previous = next;
        }
        for (std::int64_t when : moments) {
            EXPECT_EQ(OffsetMinutes(when, zone), LibraryOffsetMinutes(when))
                << name << " at " << AstroTime(40587.0 + when / 86400.0, true).GetDescription1();
            ++compared;
        }
    }
    if (hadTz) {
        setenv("TZ", savedTz.c_str(), 1);
    } else {
        unsetenv("TZ");
    }
    tzset();
    EXPECT_GT(compared, 10000);
}
