#include <gtest/gtest.h>

#include "state/CmdLineStateContainer.h"
#include "time/AnimationSettings.h"

TEST(AnimationSettings, DefaultIsFourMinutesEveryTwoSeconds)
{
    AnimationSettings settings;
    EXPECT_TRUE(settings.GetTimeStep() == TimeStep(TimeStep::MINUTES, 4));
    EXPECT_DOUBLE_EQ(settings.GetSecondsPerStep(), 2.0);
}

TEST(AnimationSettings, StepsAMomentAsItsTimeStep)
{
    AnimationSettings settings(TimeStep(TimeStep::DAYS, 1), 0.5);
    AstroTime time(31, 12, 1999, 12.0);
    AstroTime next = time + settings;
    EXPECT_EQ(next.GetDescription2(), "January 1, 2000");
    EXPECT_EQ(next.GetHour(), 12u);
}

TEST(AnimationSettings, CopyTakesStepAndPace)
{
    AnimationSettings source(TimeStep(TimeStep::HOURS, -3), 0.25);
    AnimationSettings target;
    target.Copy(source);
    EXPECT_TRUE(target == source);
    EXPECT_EQ(target.GetStep(TimeStep::MINUTES), 0);
    EXPECT_EQ(target.GetStep(TimeStep::HOURS), -3);
}

TEST(AnimationSettings, StateNestsTheStepInsideItsLevel)
{
    AnimationSettings settings(TimeStep(TimeStep::HOURS, 6), 1.5);
    CmdLineStateContainer writer;
    writer << AstroKey("Animation") << settings;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Animation=<Time_Step=<step0=0 step1=0 step2=0 step3=6 step4=0 step5=0> "
              "Seconds_Per_Step=1.5>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    AnimationSettings back;
    reader >> AstroKey("Animation") >> back;
    EXPECT_TRUE(back == settings);
}

TEST(AnimationSettings, MissingLevelReadsAsZero)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Animation") << AnimationSettings();
    CmdLineStateContainer reader(writer.GetCmdLine());
    AnimationSettings back;
    reader >> AstroKey("Lapse") >> back;
    EXPECT_TRUE(back.GetTimeStep() == TimeStep());
    EXPECT_DOUBLE_EQ(back.GetSecondsPerStep(), 0.0);
}
