#include <gtest/gtest.h>

#include <climits>

#include "state/CmdLineStateContainer.h"
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

const TimeStep::TIME_UNITS kUnits[] = {TimeStep::YEARS, TimeStep::MONTHS,  TimeStep::DAYS,
                                       TimeStep::HOURS, TimeStep::MINUTES, TimeStep::SECONDS};

} // namespace

TEST(TimeStepCounts, EachUnitHoldsItsOwnCount)
{
    for (TimeStep::TIME_UNITS unit : kUnits) {
        EXPECT_EQ(TimeStep().GetStepAsString(unit), "0");
        TimeStep step(unit, -4);
        for (TimeStep::TIME_UNITS other : kUnits) {
            EXPECT_EQ(step.GetStep(other), other == unit ? -4 : 0);
        }
        EXPECT_EQ(step.GetStepAsString(unit), "-4");
    }
}

TEST(TimeStepCounts, CopyZeroAndUnitsOutsideTheSix)
{
    TimeStep step(TimeStep::DAYS, -3);
    step.SetStep(TimeStep::SECONDS, 90);
    step.SetStep(static_cast<TimeStep::TIME_UNITS>(6), 7);
    EXPECT_EQ(step.GetStep(static_cast<TimeStep::TIME_UNITS>(6)), 0);
    TimeStep copy;
    copy.Copy(step);
    EXPECT_EQ(copy.GetStep(TimeStep::DAYS), -3);
    EXPECT_EQ(copy.GetStep(TimeStep::SECONDS), 90);
    step.ZeroAllSteps();
    EXPECT_TRUE(step == TimeStep());
    EXPECT_FALSE(copy == step);
}

TEST(TimeStepMoves, MonthsFollowTheCalendar)
{
    // 31 January plus one month is 31 February, which the MJD carries to 3 March.
    AstroTime march = At(31, 1, 1999) + TimeStep(TimeStep::MONTHS, 1);
    EXPECT_EQ(Moment(march), "March 3, 1999 0:00:00");
    EXPECT_EQ(Moment(At(15, 1, 1999) - TimeStep(TimeStep::MONTHS, 1)), "December 15, 1998 0:00:00");
    EXPECT_EQ(Moment(At(15, 1, 1999) + TimeStep(TimeStep::MONTHS, -1)),
              "December 15, 1998 0:00:00");
    EXPECT_EQ(Moment(At(15, 1, 1999) - TimeStep(TimeStep::MONTHS, 13)),
              "December 15, 1997 0:00:00");
    EXPECT_EQ(Moment(At(15, 11, 1999) + TimeStep(TimeStep::MONTHS, 26)),
              "January 15, 2002 0:00:00");
}

TEST(TimeStepMoves, YearsFromALeapDay)
{
    EXPECT_EQ(Moment(At(29, 2, 1996) + TimeStep(TimeStep::YEARS, 1)), "March 1, 1997 0:00:00");
    EXPECT_EQ(Moment(At(29, 2, 1996) + TimeStep(TimeStep::YEARS, 4)), "February 29, 2000 0:00:00");
    EXPECT_EQ(Moment(At(29, 2, 1996) - TimeStep(TimeStep::YEARS, 1)), "March 1, 1995 0:00:00");
}

TEST(TimeStepMoves, SmallUnitsCarryIntoTheNextDay)
{
    EXPECT_EQ(Moment(At(31, 12, 1999, 23, 30) + TimeStep(TimeStep::MINUTES, 90)),
              "January 1, 2000 1:00:00");
    EXPECT_EQ(Moment(At(28, 2, 2001, 23, 59, 30) + TimeStep(TimeStep::SECONDS, 45)),
              "March 1, 2001 0:00:15");
    EXPECT_EQ(Moment(At(30, 4, 2001, 20) + TimeStep(TimeStep::HOURS, 5)), "May 1, 2001 1:00:00");
}

TEST(TimeStepMoves, BackwardsAcrossMonthAndYearEnds)
{
    EXPECT_EQ(Moment(At(1, 1, 2000, 0, 0, 30) - TimeStep(TimeStep::MINUTES, 1)),
              "December 31, 1999 23:59:30");
    EXPECT_EQ(Moment(At(1, 3, 2001, 0, 10) - TimeStep(TimeStep::HOURS, 1)),
              "February 28, 2001 23:10:00");
    EXPECT_EQ(Moment(At(1, 5, 2001, 12) + TimeStep(TimeStep::DAYS, -1)), "April 30, 2001 12:00:00");
    EXPECT_EQ(Moment(At(1, 1, 1, 6) - TimeStep(TimeStep::DAYS, 1)), "December 31, 1BC 6:00:00");
    EXPECT_EQ(Moment(At(1, 1, 2000, 0, 0, 5) - TimeStep(TimeStep::SECONDS, 10)),
              "December 31, 1999 23:59:55");
}

TEST(TimeStepMoves, MixedStepAppliesYearsThenMonthsThenTheRest)
{
    TimeStep step;
    step.SetStep(TimeStep::YEARS, 1);
    step.SetStep(TimeStep::MONTHS, 1);
    step.SetStep(TimeStep::DAYS, 1);
    step.SetStep(TimeStep::HOURS, 1);
    step.SetStep(TimeStep::MINUTES, 1);
    step.SetStep(TimeStep::SECONDS, 1);
    // 31 January 2003 + 1 year + 1 month is 31 February 2004, that is 2 March of the leap year.
    EXPECT_EQ(Moment(At(31, 1, 2003, 10) + step), "March 3, 2004 11:01:01");
    // Going back subtracts every term: 31 March 2004 - 1 year - 1 month is 31 February 2003,
    // 3 March, and one day, hour, minute and second less.
    EXPECT_EQ(Moment(At(31, 3, 2004, 10) - step), "March 2, 2003 8:58:59");
}

TEST(TimeStepMoves, ResultHasWholeSecondsAndTheTwentyFourHourMode)
{
    AstroTime time(1, 1, 2000, 10.0 + 10.4 / 3600.0);
    time.SetMode(AstroTime::Clock12);
    AstroTime moved = time + TimeStep(TimeStep::SECONDS, 90);
    EXPECT_EQ(moved.GetMinute(), 1u);
    EXPECT_DOUBLE_EQ(moved.GetSecond(), 40.0);
    EXPECT_EQ(moved.GetMode(), AstroTime::Clock24);
    EXPECT_EQ(time.GetMinute(), 0u);

    time += TimeStep(TimeStep::DAYS, 2);
    EXPECT_EQ(time.GetDay(), 3u);
    time -= TimeStep(TimeStep::DAYS, 2);
    EXPECT_EQ(time.GetDay(), 1u);
}

TEST(TimeStepMoves, ForwardThenBackReturnsForDaysAndSmallerUnits)
{
    TimeStep step;
    step.SetStep(TimeStep::DAYS, 40);
    step.SetStep(TimeStep::HOURS, -7);
    step.SetStep(TimeStep::SECONDS, 3601);
    for (double mjd = -200000.0; mjd < 100000.0; mjd += 997.125) {
        AstroTime start(mjd, true);
        AstroTime back = start + step - step;
        EXPECT_DOUBLE_EQ(back.GetMJD(), start.GetMJD()) << Moment(start);
    }
}

TEST(TimeStepMoves, ExtremeCountsGiveADateWithoutFault)
{
    TimeStep step;
    step.SetStep(TimeStep::YEARS, INT_MIN);
    step.SetStep(TimeStep::MONTHS, INT_MIN);
    step.SetStep(TimeStep::DAYS, INT_MAX);
    AstroTime moved = At(1, 1, 2000) - step;
    EXPECT_GE(moved.GetMonth(), 1u);
    EXPECT_LE(moved.GetMonth(), 12u);
    EXPECT_GT(moved.GetYear(), 2000);
}

TEST(TimeStepState, WritesStepKeysInOneLevelAndReadsThemBack)
{
    TimeStep step;
    step.SetStep(TimeStep::MONTHS, -2);
    step.SetStep(TimeStep::MINUTES, 4);
    CmdLineStateContainer writer;
    writer << AstroKey("Step") << step;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Step=<step0=0 step1=-2 step2=0 step3=0 step4=4 step5=0>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    TimeStep back(TimeStep::YEARS, 9);
    reader >> AstroKey("Step") >> back;
    EXPECT_TRUE(back == step);
}

TEST(TimeStepState, MissingLevelReadsAsZero)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Step") << TimeStep(TimeStep::DAYS, 3);
    CmdLineStateContainer reader(writer.GetCmdLine());
    TimeStep back(TimeStep::YEARS, 9);
    reader >> AstroKey("Other") >> back;
    EXPECT_TRUE(back == TimeStep());
}
