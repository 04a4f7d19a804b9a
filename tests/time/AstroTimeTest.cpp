#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <ctime>

#include "catalogues/StringParser.h"
#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeStep.h"

namespace {

// A moment with whole seconds; the hours pass through rounding so that no test depends on
// how 5 + 7/60 + 9/3600 happens to come out in binary.
AstroTime At(unsigned day, unsigned month, long year, unsigned hour = 0, unsigned minute = 0,
             unsigned second = 0, int mode = AstroTime::Clock24)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    time.SetMode(mode);
    return time;
}

void ExpectDate(const AstroTime& time, long year, unsigned month, unsigned day)
{
    EXPECT_EQ(time.GetYear(), year);
    EXPECT_EQ(time.GetMonth(), month);
    EXPECT_EQ(time.GetDay(), day);
}

void ExpectClock(const AstroTime& time, unsigned hour, unsigned minute, double second)
{
    EXPECT_EQ(time.GetHour(), hour);
    EXPECT_EQ(time.GetMinute(), minute);
    EXPECT_DOUBLE_EQ(time.GetSecond(), second);
}

// Calendar dates and their Julian Days, from Meeus, Astronomical Algorithms (2nd ed.),
// chapter 7, examples 7.a and 7.b and the table of test dates. MJD = JD - 2400000.5.
struct KnownDate
{
    long year;
    unsigned month;
    unsigned day;
    double hours;
    double jd;
};

const KnownDate kMeeusDates[] = {
    {2000, 1, 1, 12.0, 2451545.0},    {1999, 1, 1, 0.0, 2451179.5},
    {1987, 1, 27, 0.0, 2446822.5},    {1987, 6, 19, 12.0, 2446966.0},
    {1988, 1, 27, 0.0, 2447187.5},    {1988, 6, 19, 12.0, 2447332.0},
    {1900, 1, 1, 0.0, 2415020.5},     {1600, 1, 1, 0.0, 2305447.5},
    {1600, 12, 31, 0.0, 2305812.5},   {837, 4, 10, 7.2, 2026871.8},
    {-123, 12, 31, 0.0, 1676496.5},   {-122, 1, 1, 0.0, 1676497.5},
    {-1000, 7, 12, 12.0, 1356001.0},  {-1000, 2, 29, 0.0, 1355866.5},
    {-1001, 8, 17, 21.6, 1355671.4},  {-4712, 1, 1, 12.0, 0.0},
    {1957, 10, 4, 19.44, 2436116.31}, {333, 1, 27, 12.0, 1842713.0},
};

constexpr double kMjdOfJd0 = -2400000.5;

// A change-over rule: the given occurrence of a weekday (0 Sunday) in a month, at an hour.
_SYSTEMTIME Rule(unsigned month, unsigned weekday, unsigned occurrence, unsigned hour)
{
    _SYSTEMTIME rule{};
    rule.wMonth = static_cast<std::uint16_t>(month);
    rule.wDayOfWeek = static_cast<std::uint16_t>(weekday);
    rule.wDay = static_cast<std::uint16_t>(occurrence);
    rule.wHour = static_cast<std::uint16_t>(hour);
    return rule;
}

} // namespace

TEST(AstroTimeMjd, KnownDatesBothWays)
{
    for (const KnownDate& known : kMeeusDates) {
        SCOPED_TRACE(known.year * 10000 + known.month * 100 + known.day);
        EXPECT_NEAR(AstroTime(known.day, known.month, known.year, known.hours).GetMJD(),
                    known.jd + kMjdOfJd0, 1e-6);
        AstroTime time(known.jd + kMjdOfJd0, false);
        ExpectDate(time, known.year, known.month, known.day);
        double hours = time.GetHour() + (time.GetMinute() + time.GetSecond() / 60.0) / 60.0;
        EXPECT_NEAR(hours, known.hours, 1e-5);
    }
}

TEST(AstroTimeMjd, EpochsOfTheScale)
{
    EXPECT_DOUBLE_EQ(AstroTime(1, 1, 2000, 12.0).GetCenturiesSince2000(), 0.0);
    EXPECT_DOUBLE_EQ(AstroTime(1, 1, 2100, 12.0).GetCenturiesSince2000(), 1.0);
    EXPECT_DOUBLE_EQ(AstroTime(17, 11, 1858, 0.0).GetMJD(), 0.0);
    // The Unix epoch, 1970 January 1, is MJD 40587.
    EXPECT_DOUBLE_EQ(AstroTime(1, 1, 1970, 0.0).GetMJD(), 40587.0);
    ExpectDate(AstroTime(0.0, false), 1858, 11, 17);
}

TEST(AstroTimeMjd, CachedCenturiesFollowEveryChange)
{
    const double perDay = 1.0 / 36525.0;
    AstroTime time(1, 1, 2000, 12.0);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 0.0);
    time.SetFromFloatHour(0.0, false);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), -0.5 * perDay);
    time.IncrementMonth(12);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 365.5 * perDay);
    time += TimeStep(TimeStep::DAYS, 1);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 366.5 * perDay);
    time.Copy(AstroTime(1, 1, 2100, 12.0));
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 1.0);
    StringParser parser("2000 January 1.5", " ", true);
    time.Initialize(parser, 1);
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 0.0);

    CmdLineStateContainer writer;
    writer << AstroKey("Time") << AstroTime(1, 1, 2100, 12.0);
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Time") >> time;
    EXPECT_DOUBLE_EQ(time.GetCenturiesSince2000(), 1.0);
}

// Every day from before the Julian Day origin to the 23rd century: the date of an MJD goes back
// to the same MJD, and each date follows the one before by the rules of its calendar.
TEST(AstroTimeMjd, EveryDayRoundTripsAndFollowsTheCalendar)
{
    const long first = static_cast<long>(kMjdOfJd0) + 1;
    const long last = 120000;
    AstroTime previous(first - 1 + 0.25, true);
    for (long mjd = first; mjd <= last; ++mjd) {
        AstroTime time(mjd + 0.25, true);
        ASSERT_DOUBLE_EQ(time.GetMJD(), mjd + 0.25) << "MJD " << mjd;
        ASSERT_EQ(time.GetHour(), 6u);
        ASSERT_GE(time.GetMonth(), 1u);
        ASSERT_LE(time.GetMonth(), 12u);

        bool nextDay = time.GetYear() == previous.GetYear() &&
                       time.GetMonth() == previous.GetMonth() &&
                       time.GetDay() == previous.GetDay() + 1;
        bool nextMonth =
            time.GetDay() == 1 && previous.GetDay() >= 28 &&
            ((time.GetYear() == previous.GetYear() && time.GetMonth() == previous.GetMonth() + 1) ||
             (time.GetYear() == previous.GetYear() + 1 && time.GetMonth() == 1 &&
              previous.GetMonth() == 12 && previous.GetDay() == 31));
        bool gregorianSwitch = mjd == -100840;
        ASSERT_TRUE(nextDay || nextMonth || gregorianSwitch)
            << "MJD " << mjd << " gives " << time.GetDescription2() << " after "
            << previous.GetDescription2();
        if (time.GetDay() == 1 && !gregorianSwitch) {
            // Julian leap years every fourth year; Gregorian ones skip the centuries that 400
            // does not divide.
            long year = previous.GetYear();
            bool leap = year % 4 == 0 && (year < 1582 || year % 100 != 0 || year % 400 == 0);
            static const unsigned lengths[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
            unsigned length =
                previous.GetMonth() == 2 && leap ? 29u : lengths[previous.GetMonth() - 1];
            ASSERT_EQ(previous.GetDay(), length)
                << "month " << previous.GetMonth() << " of " << year;
        }
        previous = time;
    }
}

TEST(AstroTimeCalendar, GregorianCalendarFollowsFourOctober1582)
{
    AstroTime lastJulian(4, 10, 1582, 0.0);
    AstroTime firstGregorian(15, 10, 1582, 0.0);
    EXPECT_DOUBLE_EQ(lastJulian.GetMJD(), -100841.0);
    EXPECT_DOUBLE_EQ(firstGregorian.GetMJD(), -100840.0);

    AstroTime next = lastJulian + TimeStep(TimeStep::DAYS, 1);
    ExpectDate(next, 1582, 10, 15);
    AstroTime before = firstGregorian - TimeStep(TimeStep::DAYS, 1);
    ExpectDate(before, 1582, 10, 4);
    EXPECT_TRUE(lastJulian < firstGregorian);
}

TEST(AstroTimeCalendar, DroppedDaysLeapDaysAndOverflowingFields)
{
    // 10 October 1582 never was: read by the Gregorian rule it comes back as 30 September.
    EXPECT_DOUBLE_EQ(AstroTime(10, 10, 1582, 0.0).GetMJD(), -100845.0);
    ExpectDate(AstroTime(-100845.0, true), 1582, 9, 30);
    // 1500 is a Julian leap year, 1900 is no Gregorian one, 2000 is.
    ExpectDate(At(1, 3, 1500) - TimeStep(TimeStep::DAYS, 1), 1500, 2, 29);
    ExpectDate(At(1, 3, 1900) - TimeStep(TimeStep::DAYS, 1), 1900, 2, 28);
    ExpectDate(At(1, 3, 2000) - TimeStep(TimeStep::DAYS, 1), 2000, 2, 29);
    // 31 November is 1 December, month 0 is December of the year before.
    EXPECT_DOUBLE_EQ(AstroTime(31, 11, 2001, 0.0).GetMJD(), AstroTime(1, 12, 2001, 0.0).GetMJD());
    EXPECT_DOUBLE_EQ(AstroTime(5, 0, 2001, 0.0).GetMJD(), AstroTime(5, 12, 2000, 0.0).GetMJD());
}

TEST(AstroTimeCalendar, YearZeroAndNegativeYears)
{
    // Year 0 is 1 BC, a Julian leap year: its 1 January lies 366 days before 1 January of 1 AD.
    double yearZero = AstroTime(1, 1, 0, 0.0).GetMJD();
    EXPECT_DOUBLE_EQ(AstroTime(1, 1, 1, 0.0).GetMJD() - yearZero, 366.0);
    EXPECT_DOUBLE_EQ(yearZero, 1721057.5 + kMjdOfJd0);
    ExpectDate(AstroTime(yearZero, true), 0, 1, 1);
    ExpectDate(AstroTime(yearZero - 1.0, true), -1, 12, 31);
    ExpectDate(AstroTime(AstroTime(29, 2, -4, 0.0).GetMJD(), true), -4, 2, 29);
}

TEST(AstroTimeClock, MjdJustBeforeMidnightRoundsToHour24)
{
    AstroTime time(51544.999999999, true);
    ExpectDate(time, 2000, 1, 1);
    ExpectClock(time, 24, 0, 0.0);
}

TEST(AstroTimeClock, SecondsCarryIntoMinutesAndHoursButNotDays)
{
    AstroTime exact(51544.0 + (3600.0 + 120.0 + 10.4) / 86400.0, false);
    EXPECT_NEAR(exact.GetSecond(), 10.4, 1e-4);
    ExpectClock(AstroTime(51544.0 + (3600.0 + 120.0 + 10.6) / 86400.0, true), 1, 2, 11.0);

    AstroTime time(1, 1, 2000, 12.75);
    ExpectClock(time, 12, 45, 0.0);
    time.SetFromFloatHour(10.0 + 59.9999 / 3600.0, true);
    ExpectClock(time, 10, 1, 0.0);
    time.SetFromFloatHour(23.0 + 59.0 / 60.0 + 59.7 / 3600.0, true);
    ExpectClock(time, 24, 0, 0.0);
    ExpectDate(time, 2000, 1, 1);
}

TEST(AstroTimeClock, BrokenDownSystemTime)
{
    std::tm parts{
        .tm_sec = 9, .tm_min = 7, .tm_hour = 17, .tm_mday = 3, .tm_mon = 2, .tm_year = 99};
    AstroTime time(parts);
    ExpectDate(time, 1999, 3, 3);
    ExpectClock(time, 17, 7, 9.0);
}

TEST(AstroTimeClock, NowIsTheSystemClockInUniversalTime)
{
    // The Unix clock counts seconds from MJD 40587 at 0h UT.
    double before = 40587.0 + static_cast<double>(std::time(nullptr)) / 86400.0;
    AstroTime now = AstroTime::GetTickCount();
    double after = 40587.0 + static_cast<double>(std::time(nullptr)) / 86400.0;
    EXPECT_GE(now.GetMJD(), before - 1e-9);
    EXPECT_LE(now.GetMJD(), after + 1e-9);
}

TEST(AstroTimeCompare, EqualityIgnoresModeAndOrderFollowsTheMjd)
{
    AstroTime morning = At(3, 3, 1999, 5, 7, 9);
    AstroTime sameIn12 = At(3, 3, 1999, 5, 7, 9, AstroTime::Clock12);
    AstroTime evening = At(3, 3, 1999, 17, 7, 9);
    EXPECT_TRUE(morning == sameIn12);
    EXPECT_FALSE(morning == evening);
    EXPECT_TRUE(morning < evening);
    EXPECT_TRUE(evening > morning);
    EXPECT_FALSE(morning < sameIn12);
    EXPECT_FALSE(morning > sameIn12);
    // Same moment, different fields: the order sees no difference, equality does.
    AstroTime carried(1, 12, 2001, 0.0);
    AstroTime overflowed(31, 11, 2001, 0.0);
    EXPECT_FALSE(carried == overflowed);
    EXPECT_FALSE(carried < overflowed || carried > overflowed);

    AstroTime copy;
    ExpectDate(copy, 0, 0, 0);
    copy.Copy(sameIn12);
    EXPECT_TRUE(copy == morning);
    EXPECT_EQ(copy.GetMode(), AstroTime::Clock12);
}

TEST(AstroTimeMonths, IncrementMonthWrapsYearsBothWays)
{
    struct Case
    {
        unsigned month;
        int by;
        unsigned wantMonth;
        long wantYear;
    };
    const Case cases[] = {
        {1, 1, 2, 2000},    {12, 1, 1, 2001},   {11, 14, 1, 2002}, {1, 24, 1, 2002},
        {1, -1, 12, 1999},  {1, -13, 12, 1998}, {3, -2, 1, 2000},  {3, -3, 12, 1999},
        {6, -18, 12, 1998}, {1, -12, 1, 1999},  {5, 0, 5, 2000},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.month << " by " << c.by);
        AstroTime time(31, c.month, 2000, 6.0);
        time.IncrementMonth(c.by);
        ExpectDate(time, c.wantYear, c.wantMonth, 31);
        EXPECT_EQ(time.GetHour(), 6u);
    }
}

TEST(AstroTimeMonths, NamesAndNumbers)
{
    EXPECT_EQ(AstroTime::GetMonthName(1), "January");
    EXPECT_EQ(AstroTime::GetMonthName(12), "December");
    EXPECT_EQ(AstroTime::GetMonthName(0), "");
    EXPECT_EQ(AstroTime::GetMonthName(13), "");
    for (unsigned month = 1; month <= 12; ++month) {
        EXPECT_EQ(AstroTime::GetMonthNumber(AstroTime::GetMonthName(month)), month);
    }
    EXPECT_EQ(AstroTime::GetMonthNumber("MARCH"), 3u);
    EXPECT_EQ(AstroTime::GetMonthNumber("Mar"), 0u);
    EXPECT_EQ(AstroTime::GetMonthNumber(""), 0u);
}

TEST(AstroTimeEra, YearsWithAndWithoutEra)
{
    long year = 0;
    AstroTime::AD_OR_BC era = AstroTime::AD;
    At(1, 1, 0).GetYearWithADOrBC(year, era);
    EXPECT_TRUE(year == 1 && era == AstroTime::BC);
    At(1, 1, -43).GetYearWithADOrBC(year, era);
    EXPECT_TRUE(year == 44 && era == AstroTime::BC);
    At(1, 1, 1).GetYearWithADOrBC(year, era);
    EXPECT_TRUE(year == 1 && era == AstroTime::AD);
    EXPECT_EQ(AstroTime::GetYearWithoutADOrBC(44, AstroTime::BC), -43);
    EXPECT_EQ(AstroTime::GetYearWithoutADOrBC(1999, AstroTime::AD), 1999);
    EXPECT_EQ(At(1, 1, 1).GetYearString(), "1");
    EXPECT_EQ(At(1, 1, 0).GetYearString(), "1BC");
    EXPECT_EQ(At(1, 1, -1).GetYearString(), "2BC");
}

TEST(AstroTimeText, TwentyFourHourClock)
{
    AstroTime evening = At(3, 3, 1999, 17, 7, 9);
    EXPECT_EQ(evening.GetTimeString(), "17:07:09");
    EXPECT_EQ(evening.GetDescription3(), "17:07:09");
    EXPECT_EQ(evening.GetDescription2(), "March 3, 1999");
    EXPECT_EQ(evening.GetDescription1(), "March 3, 1999 at 17 hours 07 minutes 09 seconds.");

    AstroTime midnight = At(1, 1, 2000, 0, 5, 9);
    EXPECT_EQ(midnight.GetTimeString(), "0:05:09");
    EXPECT_EQ(midnight.GetDescription1(), "January 1, 2000 at 0 hours 05 minutes 09 seconds.");
}

TEST(AstroTimeText, TwelveHourClock)
{
    struct Case
    {
        unsigned hour;
        const char* time;
        const char* description3;
    };
    const Case cases[] = {
        {0, "12:05:09", "12:05:09am"},  {1, "1:05:09", "1:05:09am"},
        {11, "11:05:09", "11:05:09am"}, {12, "12:05:09", "12:05:09pm"},
        {13, "1:05:09", "1:05:09pm"},   {23, "11:05:09", "11:05:09pm"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.hour);
        AstroTime time = At(15, 8, 2011, c.hour, 5, 9, AstroTime::Clock12);
        EXPECT_EQ(time.GetTimeString(), c.time);
        EXPECT_EQ(time.GetDescription3(), c.description3);
    }
    AstroTime afternoon = At(15, 8, 2011, 13, 0, 0, AstroTime::Clock12);
    EXPECT_EQ(afternoon.GetDescription1(), "August 15, 2011 at 1 hours 00 minutes 00 seconds.");
}

TEST(AstroTimeText, TwoDigitFieldsTruncatedSecondsAndEras)
{
    AstroTime time(51544.0 + (10.0 * 3600.0 + 42.0 * 60.0 + 59.9) / 86400.0, false);
    EXPECT_EQ(time.GetTimeString(), "10:42:59");
    EXPECT_EQ(At(15, 3, -43).GetDescription2(), "March 15, 44BC");
    EXPECT_EQ(AstroTime().GetDescription2(), " 0, 1BC");
    EXPECT_EQ(AstroTime::GetString(-42L), "-42");
    EXPECT_EQ(AstroTime::GetString(123.456789), "123.457");
}

TEST(AstroTimeCatalogue, ReadsYearMonthNameAndDayWithFraction)
{
    // Halley's comet passed perihelion on 1986 February 9.459, MJD 46470.459.
    StringParser parser("1986 February 9.459", " ", true);
    AstroTime time;
    EXPECT_TRUE(time.Initialize(parser, 1));
    ExpectDate(time, 1986, 2, 9);
    EXPECT_EQ(time.GetHour(), 11u);
    EXPECT_EQ(time.GetMinute(), 0u);
    EXPECT_NEAR(time.GetMJD(), 46470.459, 1e-9);

    StringParser line("1997 March 31.724 0.914", " ", true);
    EXPECT_TRUE(time.Initialize(line, 1));
    ExpectDate(time, 1997, 3, 31);
    LorvString* next = line.GetNextToken(nullptr);
    ASSERT_NE(next, nullptr);
    EXPECT_EQ(*next, "0.914");
}

TEST(AstroTimeCatalogue, OtherFormatsReadNothingAndBadTokensStillGiveADate)
{
    StringParser parser("1986 February 9.459", " ", true);
    AstroTime time = At(3, 3, 1999, 17, 7, 9);
    EXPECT_FALSE(time.Initialize(parser, 2));
    EXPECT_TRUE(time == At(3, 3, 1999, 17, 7, 9));
    EXPECT_EQ(*parser.GetNextToken(""), "1986");

    StringParser unknownMonth("2001 Brumaire 12.25", " ", true);
    EXPECT_TRUE(time.Initialize(unknownMonth, 1));
    ExpectDate(time, 2001, 0, 12);
    ExpectClock(time, 6, 0, 0.0);
    StringParser empty("", " ", true);
    EXPECT_TRUE(time.Initialize(empty, 1));
    ExpectDate(time, 0, 0, 0);
    StringParser nonsense("x y -3.5e400", " ", true);
    EXPECT_TRUE(time.Initialize(nonsense, 1));
    ExpectDate(time, 0, 0, 0);
    ExpectClock(time, 0, 0, 0.0);
}

TEST(AstroTimeZoneRule, WeekdayOccurrencesInTheMonth)
{
    // In 2024 the United States began daylight saving on the second Sunday of March (10 March)
    // and ended it on the first Sunday of November (3 November); the European Union changed on
    // the last Sundays of March (31 March) and October (27 October; 29 October in 2023).
    AstroTime usStart(Rule(3, 0, 2, 2), 2024);
    ExpectDate(usStart, 2024, 3, 10);
    ExpectClock(usStart, 2, 0, 0.0);
    ExpectDate(AstroTime(Rule(11, 0, 1, 2), 2024), 2024, 11, 3);
    ExpectDate(AstroTime(Rule(3, 0, 5, 1), 2024), 2024, 3, 31);
    ExpectDate(AstroTime(Rule(10, 0, 5, 1), 2024), 2024, 10, 27);
    ExpectDate(AstroTime(Rule(10, 0, 5, 1), 2023), 2023, 10, 29);
    // February 2023 has four Sundays: occurrence 5 is the last, the 26th.
    ExpectDate(AstroTime(Rule(2, 0, 5, 1), 2023), 2023, 2, 26);
}

TEST(AstroTimeZoneRule, FirstOccurrencesFillTheFirstWeekAndLastOnesTheFinalWeek)
{
    for (int year : {1999, 2000, 2024, 2100}) {
        for (unsigned month = 1; month <= 12; ++month) {
            bool seen[8] = {};
            for (unsigned weekday = 0; weekday < 7; ++weekday) {
                unsigned first = AstroTime(Rule(month, weekday, 1, 0), year).GetDay();
                ASSERT_TRUE(first >= 1 && first <= 7);
                seen[first] = true;
                AstroTime last(Rule(month, weekday, 5, 0), year);
                EXPECT_EQ(last.GetMonth(), month);
                EXPECT_NE((last + TimeStep(TimeStep::DAYS, 7)).GetMonth(), month);
            }
            for (unsigned day = 1; day <= 7; ++day) {
                EXPECT_TRUE(seen[day]) << year << "-" << month << " day " << day;
            }
        }
    }
}

TEST(AstroTimeZoneRule, FixedDateAndFractionalSeconds)
{
    _SYSTEMTIME rule = Rule(4, 3, 6, 3);
    rule.wYear = 1990;
    rule.wMinute = 15;
    rule.wSecond = 30;
    rule.wMilliseconds = 500;
    AstroTime time(rule, 2005);
    ExpectDate(time, 2005, 4, 6);
    ExpectClock(time, 3, 15, 30.5);
}

TEST(AstroTimeState, WritesOneLevelAndReadsItBack)
{
    AstroTime time = At(3, 3, 1999, 17, 7, 9, AstroTime::Clock12);
    time.SetFromFloatHour(17.0 + 7.0 / 60.0 + 9.25 / 3600.0, false);
    CmdLineStateContainer writer;
    writer << AstroKey("Time") << time;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Time=<Year=1999 Month=3 Day=3 Hour=17 Minute=7 Second=9.25 Mode=1>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    AstroTime back;
    reader >> AstroKey("Time") >> back;
    ExpectDate(back, 1999, 3, 3);
    ExpectClock(back, 17, 7, 9.25);
    EXPECT_EQ(back.GetMode(), AstroTime::Clock12);
}

TEST(AstroTimeState, NegativeYearSurvivesAndMissingLevelReadsAsZero)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Time") << At(15, 3, -43, 12, 0, 0, AstroTime::Clock12);
    CmdLineStateContainer reader(writer.GetCmdLine());
    AstroTime back;
    reader >> AstroKey("Time") >> back;
    ExpectDate(back, -43, 3, 15);
    reader >> AstroKey("Elsewhere") >> back;
    ExpectDate(back, 0, 0, 0);
    ExpectClock(back, 0, 0, 0.0);
    EXPECT_EQ(back.GetMode(), AstroTime::Clock24);
}
