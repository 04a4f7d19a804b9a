// The deadline of a scrolling frame, on the headless desktop's virtual clock.
#include <gtest/gtest.h>

#include "skyview/DrawTimeLimit.h"
#include "windows/HeadlessFixture.h"

using DrawTimeLimitTest = HeadlessTest;

TEST_F(DrawTimeLimitTest, ExpiresWhenTheLimitHasPassedAndNeverWithoutOne)
{
    DrawTimeLimit idle;
    Desk().AdvanceTime(100000);
    EXPECT_FALSE(idle.IsRunning());
    EXPECT_FALSE(idle.IsExpired()) << "a limit that was never started";

    DrawTimeLimit limit;
    limit.Start(40);
    EXPECT_TRUE(limit.IsRunning());
    EXPECT_FALSE(limit.IsExpired());
    Desk().AdvanceTime(39);
    EXPECT_FALSE(limit.IsExpired());
    Desk().AdvanceTime(1);
    EXPECT_TRUE(limit.IsExpired()) << "at the limit itself";

    DrawTimeLimit endless;
    endless.Start(0);
    Desk().AdvanceTime(1000000);
    EXPECT_FALSE(endless.IsExpired());
}

TEST_F(DrawTimeLimitTest, AScrollFrameGetsTheIntervalLessTenButAtLeastTen)
{
    EXPECT_EQ(DrawTimeLimit::ForScrollInterval(350), 340u);
    EXPECT_EQ(DrawTimeLimit::ForScrollInterval(21), 11u);
    EXPECT_EQ(DrawTimeLimit::ForScrollInterval(20), 10u);
    EXPECT_EQ(DrawTimeLimit::ForScrollInterval(5), 10u);
    EXPECT_EQ(DrawTimeLimit::ForScrollInterval(-100), 10u);
}
