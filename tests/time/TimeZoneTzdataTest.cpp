// Real zones of the system's IANA database. The reference moments come from the database's
// own tool, zdump -v -c 2026,2027 <zone> (tzdata 2025b), and from the transition tables of the
// zone files themselves, which the database compiles independently of the yearly rule.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "TimeZoneTestFiles.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"
#include "time/TimeZoneDirectory.h"
#include "time/TimeZoneFile.h"

namespace {

constexpr double MjdOfUnixEpoch = 40587.0; // 1970 January 1, 0h UT
constexpr double SecondsPerDay = 86400.0;

AstroTime At(unsigned day, unsigned month, long year, unsigned hour, unsigned minute = 0,
             unsigned second = 0)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    return time;
}

AstroTime FromUnix(std::int64_t seconds)
{
    return AstroTime(MjdOfUnixEpoch + static_cast<double>(seconds) / SecondsPerDay, true);
}

// Local minus universal time in minutes, as the zone converts the moment.
long OffsetMinutes(const AstroTime& universal, const TimeZone& zone)
{
    return std::lround(((universal - zone).GetMJD() - universal.GetMJD()) * 1440.0);
}

// The local time types and transitions of a zone file's 64-bit block: the database's own
// answer for every moment up to the last transition it lists.
class TransitionTable
{
public:
    bool Read(const std::string& path)
    {
        std::string bytes;
        if (!tztest::ReadFile(path, bytes) || bytes.size() < 44 || bytes[4] < '2') {
            return false;
        }
        auto counts = [&](std::size_t at, int i) { return Get(bytes, at + 20 + 4 * i, 4); };
        std::uint64_t v1 = counts(0, 3) * 5 + counts(0, 4) * 6 + counts(0, 5) + counts(0, 2) * 8 +
                           counts(0, 1) + counts(0, 0);
        std::size_t header = 44 + static_cast<std::size_t>(v1);
        if (bytes.size() < header + 44) {
            return false;
        }
        std::size_t transitions = static_cast<std::size_t>(counts(header, 3));
        std::size_t types = static_cast<std::size_t>(counts(header, 4));
        std::size_t at = header + 44;
        if (bytes.size() < at + transitions * 9 + types * 6) {
            return false;
        }
        for (std::size_t i = 0; i < transitions; ++i) {
            Times.push_back(static_cast<std::int64_t>(Get(bytes, at + 8 * i, 8)));
            Indices.push_back(static_cast<unsigned char>(bytes[at + 8 * transitions + i]));
        }
        at += transitions * 9;
        for (std::size_t i = 0; i < types; ++i) {
            Offsets.push_back(static_cast<std::int32_t>(Get(bytes, at + 6 * i, 4)));
        }
        return true;
    }

    // Seconds east of UT at the moment, while the table covers it.
    std::optional<long> OffsetAt(std::int64_t when) const
    {
        if (Times.empty() || when >= Times.back()) {
            return std::nullopt;
        }
        std::size_t type = 0;
        for (std::size_t i = 0; i < Times.size() && Times[i] <= when; ++i) {
            type = Indices[i];
        }
        return Offsets.at(type);
    }

    std::vector<std::int64_t> TransitionsBetween(std::int64_t from, std::int64_t to) const
    {
        std::vector<std::int64_t> found;
        for (std::int64_t when : Times) {
            if (when >= from && when < to) {
                found.push_back(when);
            }
        }
        return found;
    }

private:
    static std::uint64_t Get(const std::string& bytes, std::size_t at, int count)
    {
        std::uint64_t value = 0;
        for (int i = 0; i < count; ++i) {
            value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
        }
        return value;
    }

    std::vector<std::int64_t> Times;
    std::vector<unsigned> Indices;
    std::vector<std::int32_t> Offsets;
};

class TimeZoneTzdata : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!TimeZoneDirectory().Exists()) {
            GTEST_SKIP() << "no IANA zone files at " << TimeZoneDirectory::DefaultRoot()
                         << " (install tzdata)";
        }
        TimeZone::LoadTimeZones();
    }

    static const TimeZone& Zone(const char* name)
    {
        const TimeZone* zone = TimeZone::GetTimeZone(name);
        if (zone == nullptr) {
            ADD_FAILURE() << name << " is not in the zone list";
            static const TimeZone none;
            return none;
        }
        return *zone;
    }

    // Universal time `universal` is local time `local` in the zone.
    static void ExpectLocal(const TimeZone& zone, const AstroTime& universal,
                            const AstroTime& local)
    {
        EXPECT_EQ((universal - zone).GetDescription1(), local.GetDescription1())
            << zone.GetDisplayName() << " at UT " << universal.GetDescription1();
    }
};

} // namespace

TEST_F(TimeZoneTzdata, DaylightSavingBySeason)
{
    const TimeZone& newYork = Zone("America/New_York");
    const TimeZone& sydney = Zone("Australia/Sydney");
    const TimeZone& kolkata = Zone("Asia/Kolkata");
    EXPECT_EQ(newYork.GetDisplayName(), "(UTC-05:00) America/New_York");
    EXPECT_EQ(sydney.GetDisplayName(), "(UTC+10:00) Australia/Sydney");
    EXPECT_EQ(kolkata.GetDisplayName(), "(UTC+05:30) Asia/Kolkata");

    AstroTime july = At(1, 7, 2026, 12);
    AstroTime january = At(1, 1, 2026, 12);
    EXPECT_TRUE(newYork.IsInDaylightSavingsRange(july, false));
    EXPECT_FALSE(newYork.IsInDaylightSavingsRange(january, false));
    EXPECT_FALSE(sydney.IsInDaylightSavingsRange(july, false));
    EXPECT_TRUE(sydney.IsInDaylightSavingsRange(january, false));
    for (unsigned month = 1; month <= 12; ++month) {
        EXPECT_FALSE(kolkata.IsInDaylightSavingsRange(At(15, month, 2026, 12), false));
    }
    ExpectLocal(newYork, july, At(1, 7, 2026, 8));
    ExpectLocal(newYork, january, At(1, 1, 2026, 7));
    ExpectLocal(sydney, july, At(1, 7, 2026, 22));
    ExpectLocal(sydney, january, At(1, 1, 2026, 23));
    ExpectLocal(kolkata, july, At(1, 7, 2026, 17, 30));
}

TEST_F(TimeZoneTzdata, ChangeOverDaysOfNewYorkAndBerlin)
{
    const TimeZone& newYork = Zone("America/New_York");
    // zdump: 8 Mar 2026 06:59:59 UT = 01:59:59 EST, 07:00:00 UT = 03:00:00 EDT;
    //        1 Nov 2026 05:59:59 UT = 01:59:59 EDT, 06:00:00 UT = 01:00:00 EST.
    ExpectLocal(newYork, At(8, 3, 2026, 6, 59, 59), At(8, 3, 2026, 1, 59, 59));
    ExpectLocal(newYork, At(8, 3, 2026, 7, 0, 1), At(8, 3, 2026, 3, 0, 1));
    ExpectLocal(newYork, At(1, 11, 2026, 5, 59, 59), At(1, 11, 2026, 1, 59, 59));
    ExpectLocal(newYork, At(1, 11, 2026, 6, 0, 0), At(1, 11, 2026, 1, 0, 0));
    EXPECT_FALSE(newYork.IsInDaylightSavingsRange(At(7, 3, 2026, 12), false));
    EXPECT_TRUE(newYork.IsInDaylightSavingsRange(At(8, 3, 2026, 12), false));
    EXPECT_TRUE(newYork.IsInDaylightSavingsRange(At(31, 10, 2026, 12), false));
    EXPECT_FALSE(newYork.IsInDaylightSavingsRange(At(1, 11, 2026, 12), false));
    // Local to universal time beside the changes; 01:30 on 1 November happens twice, and
    // its first pass, in daylight time, is taken.
    EXPECT_EQ((At(8, 3, 2026, 1, 30) + newYork).GetDescription1(),
              At(8, 3, 2026, 6, 30).GetDescription1());
    EXPECT_EQ((At(8, 3, 2026, 3, 30) + newYork).GetDescription1(),
              At(8, 3, 2026, 7, 30).GetDescription1());
    EXPECT_EQ((At(1, 11, 2026, 1, 30) + newYork).GetDescription1(),
              At(1, 11, 2026, 5, 30).GetDescription1());
    EXPECT_EQ((At(1, 11, 2026, 2, 30) + newYork).GetDescription1(),
              At(1, 11, 2026, 7, 30).GetDescription1());

    const TimeZone& berlin = Zone("Europe/Berlin");
    EXPECT_EQ(berlin.GetDisplayName(), "(UTC+01:00) Europe/Berlin");
    // zdump: 29 Mar 2026 00:59:59 UT = 01:59:59 CET, 01:00:00 UT = 03:00:00 CEST;
    //        25 Oct 2026 00:59:59 UT = 02:59:59 CEST, 01:00:00 UT = 02:00:00 CET.
    ExpectLocal(berlin, At(29, 3, 2026, 0, 59, 59), At(29, 3, 2026, 1, 59, 59));
    ExpectLocal(berlin, At(29, 3, 2026, 1, 0, 1), At(29, 3, 2026, 3, 0, 1));
    ExpectLocal(berlin, At(25, 10, 2026, 0, 59, 59), At(25, 10, 2026, 2, 59, 59));
    ExpectLocal(berlin, At(25, 10, 2026, 1, 0, 0), At(25, 10, 2026, 2, 0, 0));
    EXPECT_FALSE(berlin.IsInDaylightSavingsRange(At(28, 3, 2026, 12), false));
    EXPECT_TRUE(berlin.IsInDaylightSavingsRange(At(29, 3, 2026, 12), false));
    EXPECT_TRUE(berlin.IsInDaylightSavingsRange(At(24, 10, 2026, 12), false));
    EXPECT_FALSE(berlin.IsInDaylightSavingsRange(At(25, 10, 2026, 12), false));
    EXPECT_EQ((At(29, 3, 2026, 12) + berlin).GetDescription1(),
              At(29, 3, 2026, 10).GetDescription1());
    EXPECT_EQ((At(25, 10, 2026, 12) + berlin).GetDescription1(),
              At(25, 10, 2026, 11).GetDescription1());
}

TEST_F(TimeZoneTzdata, HalfAndQuarterHourZones)
{
    const TimeZone& lordHowe = Zone("Australia/Lord_Howe");
    EXPECT_EQ(lordHowe.GetZoneInformation().Bias, -630);
    EXPECT_EQ(lordHowe.GetZoneInformation().DaylightBias, -30);
    // zdump: 4 Apr 2026 14:59:59 UT = 5 Apr 01:59:59 +11, 15:00:00 UT = 01:30:00 +1030;
    //        3 Oct 2026 15:29:59 UT = 4 Oct 01:59:59 +1030, 15:30:00 UT = 02:30:00 +11.
    ExpectLocal(lordHowe, At(4, 4, 2026, 14, 59, 59), At(5, 4, 2026, 1, 59, 59));
    ExpectLocal(lordHowe, At(4, 4, 2026, 15, 0, 0), At(5, 4, 2026, 1, 30, 0));
    ExpectLocal(lordHowe, At(3, 10, 2026, 15, 29, 59), At(4, 10, 2026, 1, 59, 59));
    ExpectLocal(lordHowe, At(3, 10, 2026, 15, 30, 1), At(4, 10, 2026, 2, 30, 1));

    const TimeZone& chatham = Zone("Pacific/Chatham");
    EXPECT_EQ(chatham.GetDisplayName(), "(UTC+12:45) Pacific/Chatham");
    // zdump: 4 Apr 2026 13:59:59 UT = 5 Apr 03:44:59 +1345, 14:00:00 UT = 02:45:00 +1245;
    //        26 Sep 2026 13:59:59 UT = 27 Sep 02:44:59 +1245, 14:00:00 UT = 03:45:00 +1345.
    ExpectLocal(chatham, At(4, 4, 2026, 13, 59, 59), At(5, 4, 2026, 3, 44, 59));
    ExpectLocal(chatham, At(4, 4, 2026, 14, 0, 0), At(5, 4, 2026, 2, 45, 0));
    ExpectLocal(chatham, At(26, 9, 2026, 13, 59, 59), At(27, 9, 2026, 2, 44, 59));
    ExpectLocal(chatham, At(26, 9, 2026, 14, 0, 1), At(27, 9, 2026, 3, 45, 1));
}

TEST_F(TimeZoneTzdata, DublinKeepsGreenwichTimeInWinter)
{
    const TimeZone& dublin = Zone("Europe/Dublin");
    EXPECT_EQ(dublin.GetDisplayName(), "(UTC+00:00) Europe/Dublin");
    EXPECT_TRUE(dublin == Zone("Europe/London"));
    // zdump: 29 Mar 2026 00:59:59 UT = 00:59:59 GMT, 01:00:00 UT = 02:00:00 IST;
    //        25 Oct 2026 00:59:59 UT = 01:59:59 IST, 01:00:00 UT = 01:00:00 GMT.
    ExpectLocal(dublin, At(29, 3, 2026, 0, 59, 59), At(29, 3, 2026, 0, 59, 59));
    ExpectLocal(dublin, At(29, 3, 2026, 1, 0, 1), At(29, 3, 2026, 2, 0, 1));
    ExpectLocal(dublin, At(25, 10, 2026, 0, 59, 59), At(25, 10, 2026, 1, 59, 59));
    ExpectLocal(dublin, At(25, 10, 2026, 1, 0, 0), At(25, 10, 2026, 1, 0, 0));
    ExpectLocal(dublin, At(1, 7, 2026, 12), At(1, 7, 2026, 13));
    ExpectLocal(dublin, At(1, 1, 2026, 12), At(1, 1, 2026, 12));
}

TEST_F(TimeZoneTzdata, EveryZoneAgreesWithItsTransitionTableIn2026)
{
    // Morocco's zones change around Ramadan, which no yearly rule tells; their files list the
    // changes one by one and end with a rule of no daylight saving.
    const std::set<std::string> noYearlyRule = {"Africa/Casablanca", "Africa/El_Aaiun"};
    const std::int64_t from = 1767225600; // 2026 January 1, 0h UT
    const std::int64_t to = 1798761600;   // 2027 January 1, 0h UT
    TimeZoneDirectory directory;
    int compared = 0;
    for (const TimeZone& zone : TimeZone::GetAllTimeZones()) {
        std::string name = zone.GetZoneName();
        TransitionTable table;
        if (noYearlyRule.count(name) != 0 || !table.Read(directory.GetPath(name))) {
            continue;
        }
        std::vector<std::int64_t> moments;
        // A second either side of each change (the change's own moment counts as outside
        // daylight saving, so its start has two names there), and an hour after.
        for (std::int64_t when : table.TransitionsBetween(from, to)) {
            moments.push_back(when - 1);
            moments.push_back(when + 1);
            moments.push_back(when + 3600);
        }
        for (int day = 0; day < 365; day += 14) {
            moments.push_back(from + day * 86400LL + 43200);
        }
        for (std::int64_t when : moments) {
            std::optional<long> expected = table.OffsetAt(when);
            if (!expected) {
                continue; // beyond the table, the rule is the database's own answer
            }
            AstroTime universal = FromUnix(when);
            EXPECT_EQ(OffsetMinutes(universal, zone), *expected / 60)
                << name << " at " << universal.GetDescription1();
            ++compared;
        }
    }
    // Every zone with daylight saving lists its changes to 2037, so most moments compare;
    // Nuuk's, Jerusalem's and Santiago's changes outside 0-23 h among them.
    EXPECT_GT(compared, 10000);
}

TEST_F(TimeZoneTzdata, IndexFileNamesZonesOfThisDatabase)
{
    std::string text;
    ASSERT_TRUE(tztest::ReadFile(TimeZone::TimeZoneIndexPath(), text));
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end;
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    ASSERT_GT(lines.size(), 300u);
    ASSERT_TRUE(TimeZone::LoadTimeZoneIndex(TimeZone::TimeZoneIndexPath()));
    for (unsigned number = 1; number < lines.size(); ++number) {
        const TimeZone* zone = TimeZone::GetTimeZone(number);
        ASSERT_NE(zone, nullptr) << "line " << number << ": " << lines[number];
        // The first name is the zone's present one, which this database has.
        std::string first = lines[number].substr(0, lines[number].find('|'));
        EXPECT_EQ(zone->GetZoneName(), TimeZone(first, {}).GetZoneName());
    }
    EXPECT_EQ(TimeZone::GetTimeZone(static_cast<unsigned>(lines.size())), nullptr);
}
