// POSIX zone rules read into zone records: the forms of change-over and of offset that no zone
// of the present database uses (TimeZoneListTest compares every real zone with the C library),
// and the texts that are no rule.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "time/AstroTime.h"
#include "time/TimeZoneRule.h"

TEST(TimeZoneRule, RecordsOfEveryFormOfChangeOver)
{
    // Bias and daylight bias in minutes (local time plus bias is UT), and when daylight saving
    // starts and ends in a year, in the local time before each change, hours past the day
    // carried into the next. Jn never counts February 29, n does: J60 is always 1 March, 59
    // is 29 February in a leap year. A change may lie up to a week after its day.
    const std::tuple<const char*, int, int, int, const char*, const char*> rules[] = {
        {"XXX3YYY,J60/1:30,59", 2024, 180, -60, "March 1, 2024 at 1 hours 30 minutes 00 seconds.",
         "February 29, 2024 at 2 hours 00 minutes 00 seconds."},
        {"<+0130>-1:30<+0330>-3:30,M3.5.0/0,M10.5.0/167:59:59", 2026, -90, -120,
         "March 29, 2026 at 0 hours 00 minutes 00 seconds.",
         "October 31, 2026 at 23 hours 59 minutes 59 seconds."},
        // Dublin keeps Irish Standard Time in summer and GMT as "daylight" time in winter: the
        // record tells the same moments with GMT as standard time, as London's does.
        {"IST-1GMT0,M10.5.0,M3.5.0/1", 2026, 0, -60,
         "March 29, 2026 at 1 hours 00 minutes 00 seconds.",
         "October 25, 2026 at 2 hours 00 minutes 00 seconds."},
        // Seconds of an offset round to the minute; no daylight saving without its name.
        {"LMT0:25:30", 2026, 26, 0, "", ""},
    };
    for (const auto& [text, year, bias, daylightBias, start, end] : rules) {
        SCOPED_TRACE(text);
        TimeZoneRule rule;
        ASSERT_TRUE(rule.Parse(text));
        const _TIME_ZONE_INFORMATION record = rule.ToZoneInformation();
        EXPECT_EQ(record.Bias, bias);
        EXPECT_EQ(record.DaylightBias, daylightBias);
        for (const auto& [change, when] :
             {std::pair{record.DaylightDate, start}, std::pair{record.StandardDate, end}}) {
            const AstroTime moment(AstroTime(change, year).GetMJD(), true);
            EXPECT_EQ(change.wMonth == 0 ? "" : moment.GetDescription1(), when);
        }
    }
}

TEST(TimeZoneRule, RefusesWhatIsNotOneWholeRuleAndKeepsWhatItHad)
{
    const char* const refused[] = {
        "",
        "EST",                        // no offset
        "ES5",                        // name shorter than three letters
        "EST25",                      // offset beyond 24 hours
        "EST5EDT,M3.2.0",             // one date only
        "EST5EDT,M13.2.0,M11.1.0",    // month 13
        "EST5EDT,M3.6.0,M11.1.0",     // sixth occurrence
        "EST5EDT,J0,J365",            // Julian days start at 1
        "EST5EDT,366,0",              // day of year beyond 365
        "EST5EDT,M3.2.0/168,M11.1.0", // a week or more
        "EST5EDT,M3.2.0,M11.1.0 ",    // something left over
    };
    for (const char* text : refused) {
        TimeZoneRule rule;
        ASSERT_TRUE(rule.Parse("AAA3"));
        EXPECT_FALSE(rule.Parse(text)) << '"' << text << '"';
        EXPECT_EQ(rule.GetStandardAbbreviation(), "AAA") << text;
        EXPECT_EQ(rule.GetStandardOffsetSeconds(), 3 * 3600) << text;
    }
}
