#include <gtest/gtest.h>

#include <cstdint>

#include "time/AstroTime.h"
#include "time/TimeZoneRule.h"

namespace {

_TIME_ZONE_INFORMATION RecordOf(const char* text)
{
    TimeZoneRule rule;
    EXPECT_TRUE(rule.Parse(text)) << text;
    return rule.ToZoneInformation();
}

void ExpectWeekdayRule(const _SYSTEMTIME& date, int month, int occurrence, int weekday, int hour,
                       int minute = 0, int second = 0)
{
    EXPECT_EQ(date.wYear, 0);
    EXPECT_EQ(date.wMonth, month);
    EXPECT_EQ(date.wDay, occurrence);
    EXPECT_EQ(date.wDayOfWeek, weekday);
    EXPECT_EQ(static_cast<std::int16_t>(date.wHour), hour);
    EXPECT_EQ(date.wMinute, minute);
    EXPECT_EQ(date.wSecond, second);
}

} // namespace

TEST(TimeZoneRule, ReadsNamesOffsetsAndDates)
{
    TimeZoneRule rule;
    ASSERT_TRUE(rule.Parse("CET-1CEST,M3.5.0,M10.5.0/3"));
    EXPECT_EQ(rule.GetStandardAbbreviation(), "CET");
    EXPECT_EQ(rule.GetDaylightAbbreviation(), "CEST");
    EXPECT_EQ(rule.GetStandardOffsetSeconds(), -3600);
    EXPECT_EQ(rule.GetDaylightOffsetSeconds(), -7200); // one hour less when not given
    EXPECT_TRUE(rule.HasDaylightSaving());
    EXPECT_EQ(rule.GetStart().Month, 3);
    EXPECT_EQ(rule.GetStart().Occurrence, 5);
    EXPECT_EQ(rule.GetStart().Seconds, 7200); // 02:00 when no time is given
    EXPECT_EQ(rule.GetEnd().Month, 10);
    EXPECT_EQ(rule.GetEnd().Seconds, 3 * 3600);

    ASSERT_TRUE(rule.Parse("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0"));
    EXPECT_EQ(rule.GetStandardAbbreviation(), "+1030");
    EXPECT_EQ(rule.GetStandardOffsetSeconds(), -(10 * 3600 + 1800));
    EXPECT_EQ(rule.GetDaylightOffsetSeconds(), -11 * 3600);

    ASSERT_TRUE(rule.Parse("<-0930>9:30"));
    EXPECT_EQ(rule.GetStandardOffsetSeconds(), 9 * 3600 + 1800);
    EXPECT_FALSE(rule.HasDaylightSaving());

    // A daylight name alone takes the rule of the reference code, M3.2.0,M11.1.0.
    ASSERT_TRUE(rule.Parse("EST+5EDT"));
    EXPECT_EQ(rule.GetStart().Month, 3);
    EXPECT_EQ(rule.GetStart().Occurrence, 2);
    EXPECT_EQ(rule.GetEnd().Month, 11);
    EXPECT_EQ(rule.GetEnd().Occurrence, 1);
}

TEST(TimeZoneRule, RefusesWhatIsNotOneWholeRule)
{
    const char* refused[] = {
        "",
        "EST",                        // no offset
        "ES5",                        // name shorter than three letters
        "<AB>5",                      // quoted name shorter than three
        "<EST5",                      // unclosed quote
        "EST25",                      // offset beyond 24 hours
        "EST5:60",                    // minutes beyond 59
        "EST5EDT,M3.2.0",             // one date only
        "EST5EDT,M13.2.0,M11.1.0",    // month 13
        "EST5EDT,M0.2.0,M11.1.0",     // month 0
        "EST5EDT,M3.6.0,M11.1.0",     // sixth occurrence
        "EST5EDT,M3.0.0,M11.1.0",     // occurrence 0
        "EST5EDT,M3.2.7,M11.1.0",     // weekday 7
        "EST5EDT,J0,J365",            // Julian days start at 1
        "EST5EDT,366,0",              // day of year beyond 365
        "EST5EDT,M3.2.0/168,M11.1.0", // a week or more
        "EST5EDT,M3.2.0,M11.1.0 ",    // something left over
        "EST5EDT,M3.2.0,M11.1.0/",    // a slash without a time
        "5EST",                       // offset first
        "EST5EDT,,M11.1.0",
    };
    for (const char* text : refused) {
        TimeZoneRule rule;
        ASSERT_TRUE(rule.Parse("AAA3"));
        EXPECT_FALSE(rule.Parse(text)) << '"' << text << '"';
        EXPECT_EQ(rule.GetStandardAbbreviation(), "AAA") << "a refused text changed the rule";
        EXPECT_EQ(rule.GetStandardOffsetSeconds(), 3 * 3600);
    }
}

TEST(TimeZoneRule, RecordHoldsBiasesInMinutesWithDaylightBiasNegative)
{
    _TIME_ZONE_INFORMATION ny = RecordOf("EST5EDT,M3.2.0,M11.1.0");
    EXPECT_EQ(ny.Bias, 300);
    EXPECT_EQ(ny.DaylightBias, -60);
    EXPECT_EQ(ny.StandardBias, 0);
    ExpectWeekdayRule(ny.DaylightDate, 3, 2, 0, 2);
    ExpectWeekdayRule(ny.StandardDate, 11, 1, 0, 2);

    _TIME_ZONE_INFORMATION kolkata = RecordOf("IST-5:30");
    EXPECT_EQ(kolkata.Bias, -330);
    EXPECT_EQ(kolkata.DaylightBias, 0);
    EXPECT_EQ(kolkata.DaylightDate.wMonth, 0); // no daylight saving
    EXPECT_EQ(kolkata.StandardDate.wMonth, 0);

    _TIME_ZONE_INFORMATION chatham = RecordOf("<+1245>-12:45<+1345>,M9.5.0/2:45,M4.1.0/3:45");
    EXPECT_EQ(chatham.Bias, -765);
    EXPECT_EQ(chatham.DaylightBias, -60);
    ExpectWeekdayRule(chatham.DaylightDate, 9, 5, 0, 2, 45);
    ExpectWeekdayRule(chatham.StandardDate, 4, 1, 0, 3, 45);

    // Lord Howe keeps half an hour of daylight saving.
    EXPECT_EQ(RecordOf("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0").DaylightBias, -30);
    // Troll station keeps two hours.
    EXPECT_EQ(RecordOf("<+00>0<+02>-2,M3.5.0/1,M10.5.0/3").DaylightBias, -120);
    // Seconds in an offset round to the nearest minute.
    EXPECT_EQ(RecordOf("LMT-0:25:21").Bias, -25);
    EXPECT_EQ(RecordOf("LMT-0:25:30").Bias, -26);
    EXPECT_EQ(RecordOf("LMT0:25:30").Bias, 26);
}

TEST(TimeZoneRule, HoursOutsideTheDayAreKeptSigned)
{
    // Jerusalem: the fourth Thursday of March at 26:00, that is Friday 02:00.
    _TIME_ZONE_INFORMATION jerusalem = RecordOf("IST-2IDT,M3.4.4/26,M10.5.0");
    ExpectWeekdayRule(jerusalem.DaylightDate, 3, 4, 4, 26);
    AstroTime start(jerusalem.DaylightDate, 2026);
    EXPECT_EQ(start.GetDescription2(), "March 26, 2026");                   // the Thursday...
    EXPECT_DOUBLE_EQ(start.GetMJD(), AstroTime(27, 3, 2026, 2.0).GetMJD()); // ...plus 26 h

    // Santiago changes at 24:00 of the first Saturday; Gaza at 50:00.
    ExpectWeekdayRule(RecordOf("<-04>4<-03>,M9.1.6/24,M4.1.6/24").DaylightDate, 9, 1, 6, 24);
    ExpectWeekdayRule(RecordOf("EET-2EEST,M3.4.4/50,M10.4.4/50").StandardDate, 10, 4, 4, 50);

    // Nuuk: the last Sunday of March at -1:00, an hour before the Sunday begins.
    ExpectWeekdayRule(RecordOf("<-02>2<-01>,M3.5.0/-1,M10.5.0/0").DaylightDate, 3, 5, 0, -1);
    // Minutes count forwards from a floored hour: -1:30 is hour -2 and 30 minutes.
    ExpectWeekdayRule(RecordOf("XXX3YYY,M3.5.0/-1:30,M10.5.0").DaylightDate, 3, 5, 0, -2, 30);
    ExpectWeekdayRule(RecordOf("XXX3YYY,M3.5.0/-167,M10.5.0").DaylightDate, 3, 5, 0, -167);
    ExpectWeekdayRule(RecordOf("XXX3YYY,M3.5.0/-167:59:59,M10.5.0").DaylightDate, 3, 5, 0, -168, 0,
                      1);
    ExpectWeekdayRule(RecordOf("XXX3YYY,M3.5.0/167:59:59,M10.5.0").DaylightDate, 3, 5, 0, 167, 59,
                      59);
}

TEST(TimeZoneRule, JulianDaysBecomeDatesThatKeepTheirMeaningInLeapYears)
{
    // Jn never counts February 29: J60 is March 1 in every year.
    _TIME_ZONE_INFORMATION julian = RecordOf("XXX3YYY,J60/1:30,J365/25");
    EXPECT_NE(julian.DaylightDate.wYear, 0);
    EXPECT_EQ(julian.DaylightDate.wMonth, 3);
    EXPECT_EQ(julian.DaylightDate.wDay, 1);
    EXPECT_EQ(julian.DaylightDate.wHour, 1);
    EXPECT_EQ(julian.DaylightDate.wMinute, 30);
    EXPECT_EQ(julian.StandardDate.wMonth, 12);
    EXPECT_EQ(julian.StandardDate.wDay, 31);
    EXPECT_EQ(julian.StandardDate.wHour, 25);
    EXPECT_EQ(AstroTime(julian.DaylightDate, 2024).GetDescription2(), "March 1, 2024");
    EXPECT_EQ(AstroTime(julian.DaylightDate, 2025).GetDescription2(), "March 1, 2025");

    // n counts February 29: day 59 is February 29 in a leap year and March 1 otherwise, and
    // day 365 exists only in a leap year (December 31).
    _TIME_ZONE_INFORMATION counted = RecordOf("XXX3YYY,59,365");
    EXPECT_NE(counted.DaylightDate.wYear, 0);
    EXPECT_DOUBLE_EQ(AstroTime(counted.DaylightDate, 2024).GetMJD(),
                     AstroTime(29, 2, 2024, 2.0).GetMJD());
    EXPECT_DOUBLE_EQ(AstroTime(counted.DaylightDate, 2025).GetMJD(),
                     AstroTime(1, 3, 2025, 2.0).GetMJD());
    EXPECT_DOUBLE_EQ(AstroTime(counted.StandardDate, 2024).GetMJD(),
                     AstroTime(31, 12, 2024, 2.0).GetMJD());
    _TIME_ZONE_INFORMATION first = RecordOf("XXX3YYY,0/0,J365/25");
    EXPECT_DOUBLE_EQ(AstroTime(first.DaylightDate, 2025).GetMJD(),
                     AstroTime(1, 1, 2025, 0.0).GetMJD());
}

TEST(TimeZoneRule, NegativeDaylightSavingIsTurnedRound)
{
    // Dublin's rule has Irish Standard Time in summer and GMT as its "daylight" time in
    // winter. The record tells the same moments with GMT as standard time, like London's.
    _TIME_ZONE_INFORMATION dublin = RecordOf("IST-1GMT0,M10.5.0,M3.5.0/1");
    _TIME_ZONE_INFORMATION london = RecordOf("GMT0BST,M3.5.0/1,M10.5.0");
    EXPECT_EQ(dublin.Bias, 0);
    EXPECT_EQ(dublin.DaylightBias, -60);
    ExpectWeekdayRule(dublin.DaylightDate, 3, 5, 0, 1);  // into summer time at 01:00 GMT
    ExpectWeekdayRule(dublin.StandardDate, 10, 5, 0, 2); // back at 02:00 summer time
    EXPECT_EQ(dublin.Bias, london.Bias);
    EXPECT_EQ(dublin.DaylightBias, london.DaylightBias);
    ExpectWeekdayRule(london.DaylightDate, 3, 5, 0, 1);
    ExpectWeekdayRule(london.StandardDate, 10, 5, 0, 2);
}
