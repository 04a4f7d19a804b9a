// Steps of the time lapse: each unit in the calendar's own way, whole seconds in the result,
// and the pace of the lapse in saved state.
#include <gtest/gtest.h>

#include <tuple>

#include "state/CmdLineStateContainer.h"
#include "time/AnimationSettings.h"
#include "time/TimeStep.h"

namespace {

// A moment with whole seconds (see AstroTimeTest).
AstroTime At(unsigned day, unsigned month, long year, unsigned hour = 0, unsigned minute = 0,
             unsigned second = 0)
{
    AstroTime time(day, month, year, 0.0);
    time.SetFromFloatHour(hour + (minute + second / 60.0) / 60.0, true);
    return time;
}

std::string Moment(const AstroTime& time)
{
    return time.GetDescription2() + " " + time.GetTimeString();
}

} // namespace

TEST(TimeStep, EachUnitMovesTheCalendarItsOwnWayYearsAndMonthsFirst)
{
    using T = TimeStep;
    const std::tuple<AstroTime, T::TIME_UNITS, int, const char*> cases[] = {
        // 31 January plus one month is 31 February, which the MJD carries to 3 March.
        {At(31, 1, 1999), T::MONTHS, 1, "March 3, 1999 0:00:00"},
        {At(15, 1, 1999), T::MONTHS, -1, "December 15, 1998 0:00:00"},
        {At(15, 1, 1999), T::MONTHS, -13, "December 15, 1997 0:00:00"},
        {At(15, 11, 1999), T::MONTHS, 26, "January 15, 2002 0:00:00"},
        {At(29, 2, 1996), T::YEARS, 1, "March 1, 1997 0:00:00"},
        {At(29, 2, 1996), T::YEARS, -1, "March 1, 1995 0:00:00"},
        {At(1, 1, 1, 6), T::DAYS, -1, "December 31, 1BC 6:00:00"},
        {At(1, 3, 2001, 0, 10), T::HOURS, -1, "February 28, 2001 23:10:00"},
        {At(31, 12, 1999, 23, 30), T::MINUTES, 90, "January 1, 2000 1:00:00"},
        {At(28, 2, 2001, 23, 59, 30), T::SECONDS, 45, "March 1, 2001 0:00:15"},
    };
    for (const auto& [start, unit, count, expected] : cases) {
        EXPECT_EQ(Moment(start + T(unit, count)), expected) << Moment(start) << " + " << count;
    }
    // A mixed step applies years, then months, then the rest, both ways.
    TimeStep step;
    for (int unit = TimeStep::YEARS; unit <= TimeStep::SECONDS; ++unit) {
        step.SetStep(static_cast<TimeStep::TIME_UNITS>(unit), 1);
    }
    // 31 January 2003 + 1 year + 1 month is 31 February 2004, that is 2 March of the leap year.
    EXPECT_EQ(Moment(At(31, 1, 2003, 10) + step), "March 3, 2004 11:01:01");
    // Going back: 31 March 2004 - 1 year - 1 month is 31 February 2003, 3 March, less the rest.
    EXPECT_EQ(Moment(At(31, 3, 2004, 10) - step), "March 2, 2003 8:58:59");
    // The result has whole seconds, rounded, and the 24-hour clock.
    AstroTime time(1, 1, 2000, 10.0 + 10.6 / 3600.0);
    time.SetMode(AstroTime::Clock12);
    EXPECT_EQ((time + TimeStep(TimeStep::SECONDS, 90)).GetDescription3(), "10:01:41");
}

TEST(AnimationSettings, NestsTheStepInItsSavedState)
{
    AnimationSettings settings(TimeStep(TimeStep::HOURS, -6), 1.5);
    CmdLineStateContainer writer;
    writer << AstroKey("Animation") << settings;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Animation=<Time_Step=<step0=0 step1=0 step2=0 step3=-6 step4=0 step5=0> "
              "Seconds_Per_Step=1.5>");
    CmdLineStateContainer reader(writer.GetCmdLine());
    AnimationSettings back;
    reader >> AstroKey("Animation") >> back;
    EXPECT_TRUE(back == settings);
}
