#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "coords/AngleMath.h"

TEST(AngleMath, PiIsTheArcCosineOfMinusOne)
{
    // 3.14159265358979323846 to the last digit a double holds.
    EXPECT_DOUBLE_EQ(pi, 3.14159265358979323846);
    EXPECT_EQ(twoPi, 2.0 * pi);
    EXPECT_NEAR(std::cos(pi), -1.0, 1e-15);
}

TEST(AngleMath, WholeTurnsGoOnlyAboveOneTurnAndTheSignStays)
{
    EXPECT_EQ(RemoveWholeTurns(360.0, 360.0), 360.0);
    EXPECT_EQ(RemoveWholeTurns(-360.0, 360.0), -360.0);
    EXPECT_DOUBLE_EQ(RemoveWholeTurns(725.5, 360.0), 5.5);
    EXPECT_DOUBLE_EQ(RemoveWholeTurns(-725.5, 360.0), -5.5);
    EXPECT_EQ(RemoveWholeTurns(720.0, 360.0), 0.0);
    // Far beyond where the quotient keeps the remainder, the value still lands in the circle.
    double huge = RemoveWholeTurns(1e300, 360.0);
    EXPECT_LE(std::fabs(huge), 360.0);
}

TEST(AngleMath, TruncationToIntHoldsAtTheEndsOfTheRange)
{
    EXPECT_EQ(TruncateToInt(7.9), 7);
    EXPECT_EQ(TruncateToInt(-7.9), -7);
    EXPECT_EQ(TruncateToInt(1e300), INT_MAX);
    EXPECT_EQ(TruncateToInt(-1e300), INT_MIN);
    EXPECT_EQ(TruncateToInt(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(TruncateToInt(-std::numeric_limits<double>::infinity()), INT_MIN);
}
