// The time zone on rules of the test's own: the daylight saving of local time in both
// hemispheres, the manual toggle, the conversions of AstroTime, names and saved state.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "state/CmdLineStateContainer.h"
#include "time/AstroTime.h"
#include "time/TimeZone.h"

namespace {

// The nameless zone of a rule.
TimeZone FromRule(const char* rule)
{
    TimeZone zone;
    TimeZone::FromRule(rule, zone);
    return zone;
}

// Five hours west, daylight saving from the first Sunday of April to the last of October, 2h.
const char* const kNorthern = "XST5XDT,M4.1.0,M10.5.0";
// Ten hours east, daylight saving from the first Sunday of October to the third of March, 3h.
const char* const kSouthern = "YST-10YDT,M10.1.0,M3.3.0/3";

AstroTime At(unsigned day, unsigned month, long year, unsigned hour, unsigned minute = 0,
             unsigned second = 0)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    return time;
}

} // namespace

TEST(TimeZone, BiasOfLocalTimeFollowsTheRuleInBothHemispheresOrTheToggle)
{
    // Minutes from local time to UT. In 1999 the northern rule runs from 4 April to 31
    // October, in 2000 from 2 April; in 2026 the southern one ends on 15 March and starts on 4
    // October. The change-over moments themselves lie outside. With automatic daylight saving
    // off the toggle decides, also for a zone without a rule.
    const TimeZone northern = FromRule(kNorthern), southern = FromRule(kSouthern);
    TimeZone toggled = northern, noRule = FromRule("IST-5:30"), plain;
    toggled.SetAutomaticDST(false);
    toggled.SetManualDSTToggle(true);
    plain.SetAutomaticDST(false);
    plain.SetManualDSTToggle(true);
    EXPECT_TRUE(plain.IsInDaylightSavingsRange(At(1, 1, 2026, 12), false));
    const std::tuple<const TimeZone*, AstroTime, long> cases[] = {
        {&northern, At(1, 7, 1999, 12), 240},          {&northern, At(1, 1, 1999, 12), 300},
        {&northern, At(4, 4, 1999, 2), 300},           {&northern, At(4, 4, 1999, 2, 0, 1), 240},
        {&northern, At(31, 10, 1999, 1, 59, 59), 240}, {&northern, At(31, 10, 1999, 2), 300},
        {&northern, At(2, 4, 2000, 3), 240},           {&southern, At(1, 1, 2026, 12), -660},
        {&southern, At(1, 7, 2026, 12), -600},         {&southern, At(15, 3, 2026, 2, 59), -660},
        {&southern, At(15, 3, 2026, 3, 1), -600},      {&southern, At(4, 10, 2026, 2, 1), -660},
        {&noRule, At(1, 7, 2026, 12), -330},           {&toggled, At(1, 1, 2026, 12), 240},
    };
    for (const auto& [zone, time, bias] : cases) {
        EXPECT_EQ(zone->GetBiasForLocalTime(time), bias) << time.GetDescription1();
    }
}

TEST(TimeZone, LocalTimeGoesBackToUniversalTimeOnTheChangeOverDays)
{
    const TimeZone northern = FromRule(kNorthern);
    // Every half hour of both change-over days of 1999 goes to local time and back, but for the
    // local hour that happens twice, whose first pass, in daylight time, local time gives back.
    // The change at 02:00 standard time is 07:00 UT, the change back at 02:00 daylight time
    // 06:00. (TimeZoneListTest compares universal to local time with the C library.)
    for (unsigned day : {4u, 31u}) {
        const unsigned month = day == 4 ? 4 : 10;
        for (unsigned step = 0; step < 48; ++step) {
            const AstroTime universal = At(day, month, 1999, step / 2, step % 2 * 30);
            const bool secondPass = day == 31 && (step == 12 || step == 13);
            EXPECT_EQ(((universal - northern) + northern).GetDescription1(),
                      (secondPass ? At(day, month, 1999, 5, step % 2 * 30) : universal)
                          .GetDescription1());
        }
    }
}

TEST(TimeZone, DisplayNameShowsTheStandardOffset)
{
    EXPECT_EQ(TimeZone::MakeDisplayName(-345, "Asia/Kathmandu"), "(UTC+05:45) Asia/Kathmandu");
    EXPECT_EQ(TimeZone::MakeDisplayName(570, "Pacific/Marquesas"), "(UTC-09:30) Pacific/Marquesas");
}

TEST(TimeZone, SavedStateKeepsTheRecordOfAnUnknownNameAndStillSetsTheFlags)
{
    TimeZone saved("Nowhere/Unknown Zone", FromRule(kSouthern).GetZoneInformation());
    saved.SetManualDSTToggle(true);
    CmdLineStateContainer writer;
    writer << AstroKey("TimeZone") << saved;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "TimeZone=<Display=\"Nowhere/Unknown Zone\" AutomaticDST=1 ManualDSTToggle=1>");

    TimeZone target("Mine", FromRule(kNorthern).GetZoneInformation());
    target.SetAutomaticDST(false);
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("TimeZone") >> target;
    EXPECT_TRUE(target == FromRule(kNorthern));
    EXPECT_EQ(target.GetDisplayName(), "Mine");
    EXPECT_TRUE(target.GetAutomaticDST());
    EXPECT_TRUE(target.GetManualDSTToggle());
}
