// The calendar and the Modified Julian Date both ways, the clock and the text forms, the cached
// centuries, and saved state.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "catalogues/StringParser.h"
#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeStep.h"

namespace {

// A moment with whole seconds; the hours pass through rounding so that no test depends on how
// 5 + 7/60 + 9/3600 happens to come out in binary.
AstroTime At(unsigned day, unsigned month, long year, unsigned hour = 0, unsigned minute = 0,
             unsigned second = 0, int mode = AstroTime::Clock24)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    time.SetMode(mode);
    return time;
}

// "1999-3-3": the date fields as they stand.
std::string Date(const AstroTime& time)
{
    return std::to_string(time.GetYear()) + "-" + std::to_string(time.GetMonth()) + "-" +
           std::to_string(time.GetDay());
}

constexpr double kMjdOfJd0 = -2400000.5;

} // namespace

TEST(AstroTimeMjd, KnownDatesBothWaysAndTheGregorianReform)
{
    // Calendar dates and their Julian Days: Meeus, Astronomical Algorithms (2nd ed.), chapter 7,
    // examples 7.a and 7.b and the table of test dates; MJD 0 and the Unix epoch.
    const std::tuple<long, unsigned, unsigned, double, double> dates[] = {
        {2000, 1, 1, 12.0, 2451545.0},    {1987, 6, 19, 12.0, 2446966.0},
        {1988, 6, 19, 12.0, 2447332.0},   {1600, 1, 1, 0.0, 2305447.5},
        {1600, 12, 31, 0.0, 2305812.5},   {837, 4, 10, 7.2, 2026871.8},
        {-123, 12, 31, 0.0, 1676496.5},   {-122, 1, 1, 0.0, 1676497.5},
        {-1000, 7, 12, 12.0, 1356001.0},  {-1000, 2, 29, 0.0, 1355866.5},
        {-1001, 8, 17, 21.6, 1355671.4},  {-4712, 1, 1, 12.0, 0.0},
        {1957, 10, 4, 19.44, 2436116.31}, {333, 1, 27, 12.0, 1842713.0},
        {1858, 11, 17, 0.0, 2400000.5},   {1970, 1, 1, 0.0, 2440587.5},
    };
    for (const auto& [year, month, day, hours, jd] : dates) {
        SCOPED_TRACE(testing::Message() << year << "-" << month << "-" << day);
        EXPECT_NEAR(AstroTime(day, month, year, hours).GetMJD(), jd + kMjdOfJd0, 1e-6);
        const AstroTime back(jd + kMjdOfJd0, false);
        EXPECT_EQ(Date(back), Date(AstroTime(day, month, year, 0.0)));
        EXPECT_NEAR(back.GetHour() + (back.GetMinute() + back.GetSecond() / 60.0) / 60.0, hours,
                    1e-5);
    }
    // The Gregorian calendar follows 4 October 1582.
    EXPECT_DOUBLE_EQ(AstroTime(4, 10, 1582, 0.0).GetMJD(), -100841.0);
    EXPECT_DOUBLE_EQ(AstroTime(15, 10, 1582, 0.0).GetMJD(), -100840.0);
    // 10 October 1582 never was: read by the Gregorian rule it comes back as 30 September.
    EXPECT_DOUBLE_EQ(AstroTime(10, 10, 1582, 0.0).GetMJD(), -100845.0);
    EXPECT_EQ(Date(AstroTime(-100845.0, true)), "1582-9-30");
    // 31 November is 1 December, month 0 is December of the year before.
    EXPECT_DOUBLE_EQ(AstroTime(31, 11, 2001, 0.0).GetMJD(), AstroTime(1, 12, 2001, 0.0).GetMJD());
    EXPECT_DOUBLE_EQ(AstroTime(5, 0, 2001, 0.0).GetMJD(), AstroTime(5, 12, 2000, 0.0).GetMJD());
}

// Every day from the Julian Day origin to the 23rd century: the date of an MJD goes back to the
// same MJD, and each date follows the one before by the rules of its calendar (Julian leap
// years every fourth year, year 0 among them; Gregorian ones skipping the centuries that 400
// does not divide; 15 October after 4 October 1582).
TEST(AstroTimeMjd, EveryDayRoundTripsAndFollowsTheCalendar)
{
    const unsigned lengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const long first = static_cast<long>(kMjdOfJd0) + 1;
    AstroTime previous(first - 1 + 0.25, true);
    for (long mjd = first; mjd <= 120000; ++mjd) {
        const AstroTime time(mjd + 0.25, true);
        ASSERT_DOUBLE_EQ(time.GetMJD(), mjd + 0.25) << "MJD " << mjd;
        const long year = previous.GetYear();
        const unsigned month = previous.GetMonth();
        const bool leap = year % 4 == 0 && (year < 1582 || year % 100 != 0 || year % 400 == 0);
        const unsigned length = month == 2 && leap ? 29u : lengths[month - 1];
        long y = year;
        unsigned m = month, d = previous.GetDay() + 1;
        if (mjd == -100840) {
            d = 15;
        } else if (d > length) {
            d = 1;
            m = month % 12 + 1;
            y = month == 12 ? year + 1 : year;
        }
        ASSERT_TRUE(time.GetYear() == y && time.GetMonth() == m && time.GetDay() == d)
            << "MJD " << mjd << " gives " << Date(time) << " after " << Date(previous);
        previous = time;
    }
}

TEST(AstroTimeText, ClockEraAndMonthNames)
{
    // Seconds carry into minutes and hours but not into the day; they are truncated in text.
    EXPECT_EQ(AstroTime(51544.999999999, true).GetDescription1(),
              "January 1, 2000 at 24 hours 00 minutes 00 seconds.");
    EXPECT_EQ(
        AstroTime(51544.0 + (10.0 * 3600.0 + 42.0 * 60.0 + 59.9) / 86400.0, false).GetTimeString(),
        "10:42:59");
    // On the 12-hour clock midnight and noon are 12.
    const std::tuple<unsigned, const char*> clock12[] = {
        {0, "12:05:09am"}, {11, "11:05:09am"}, {12, "12:05:09pm"}, {13, "1:05:09pm"}};
    for (const auto& [hour, text] : clock12) {
        EXPECT_EQ(At(15, 8, 2011, hour, 5, 9, AstroTime::Clock12).GetDescription3(), text);
    }
    // Year 0 is 1 BC, year -1 2 BC.
    EXPECT_EQ(At(15, 3, -43).GetDescription2(), "March 15, 44BC");
    EXPECT_EQ(At(1, 1, 0).GetYearString() + At(1, 1, -1).GetYearString(), "1BC2BC");
    // Month names, and numbers for them without regard to case; none for 0 or 13.
    EXPECT_EQ(AstroTime::GetMonthName(0) + AstroTime::GetMonthName(13), "");
    EXPECT_EQ(AstroTime::GetMonthNumber("MARCH"), 3u);
    EXPECT_EQ(AstroTime::GetMonthNumber("Mar"), 0u);
}

TEST(AstroTimeCache, CenturiesFollowEveryChange)
{
    // The planets are placed by the cached centuries: no change may leave them stale.
    const double day = 1.0 / 36525.0;
    AstroTime time(1, 1, 2000, 12.0);
    EXPECT_EQ(time.GetCenturiesSince2000(), 0.0);
    time.SetFromFloatHour(0.0, false);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), -0.5 * day);
    time.IncrementMonth(12);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 365.5 * day);
    time += TimeStep(TimeStep::DAYS, 1);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 366.5 * day);
    StringParser parser("2000 January 1.5", " ", true);
    time.Initialize(parser, 1);
    EXPECT_EQ(time.GetCenturiesSince2000(), 0.0);
    time.Copy(AstroTime(1, 1, 2100, 12.0));
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 1.0);
}

TEST(AstroTimeState, WritesOneLevelAndReadsItBack)
{
    AstroTime time = At(15, 3, -43, 0, 0, 0, AstroTime::Clock12);
    time.SetFromFloatHour(17.0 + 7.0 / 60.0 + 9.25 / 3600.0, false);
    CmdLineStateContainer writer;
    writer << AstroKey("Time") << time;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Time=<Year=-43 Month=3 Day=15 Hour=17 Minute=7 Second=9.25 Mode=1>");
    CmdLineStateContainer reader(writer.GetCmdLine());
    AstroTime back(1, 1, 2100, 12.0);
    back.GetCenturiesSince2000();
    reader >> AstroKey("Time") >> back;
    EXPECT_EQ(back.GetDescription1(), "March 15, 44BC at 5 hours 07 minutes 09 seconds.");
    EXPECT_DOUBLE_EQ(back.GetSecond(), 9.25);
    EXPECT_DOUBLE_EQ(back.GetCenturiesSince2000(), time.GetCenturiesSince2000());
}
