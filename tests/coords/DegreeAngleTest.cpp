// The three angle types: DegreeAngle, RadianAngle and PositiveDegreeAngle.
#include <gtest/gtest.h>

#include <cmath>

#include "coords/AngleMath.h"
#include "coords/PositiveDegreeAngle.h"
#include "coords/RadianAngle.h"

TEST(DegreeAngle, NormalisesOnlyBeyondOneTurnAndKeepsTheSign)
{
    // Given and stored degrees; the positive twin of the given value; given and stored radians.
    const double rows[][5] = {
        {360.0, 360.0, 360.0, twoPi, twoPi},     {-360.0, -360.0, 360.0, -twoPi, -twoPi},
        {360.5, 0.5, 0.5, twoPi + 0.5, 0.5},     {-400.0, -40.0, 320.0, -twoPi - 0.5, -0.5},
        {725.5, 5.5, 5.5, 5 * twoPi + 1.0, 1.0}, {-725.5, -5.5, 354.5, -1.0, -1.0},
        {720.0, 0.0, 0.0, 2 * twoPi, 0.0},       {-30.0, -30.0, 330.0, 3.0, 3.0},
        {3600000.25, 0.25, 0.25, 0.0, 0.0},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(DegreeAngle(row[0]).GetDegrees(), row[1], 1e-9) << row[0];
        EXPECT_NEAR(PositiveDegreeAngle(row[0]).GetDegrees(), row[2], 1e-9) << row[0];
        EXPECT_NEAR(RadianAngle(row[3]).GetRadians(), row[4], 1e-9) << row[3];
    }
    // Far beyond where the quotient keeps the remainder, the value still lands on the circle.
    EXPECT_LE(std::fabs(DegreeAngle(1e300).GetDegrees()), 360.0);
}

TEST(DegreeAngle, ArithmeticAndConversionNormaliseButAssignmentAndTextDoNot)
{
    DegreeAngle angle(350.0);
    angle += 20.0;
    EXPECT_DOUBLE_EQ(angle.GetDegrees(), 10.0);
    angle -= 400.0;
    EXPECT_DOUBLE_EQ(angle.GetDegrees(), -30.0);
    angle = 725.0;
    EXPECT_EQ(angle.GetDegrees(), 725.0);
    EXPECT_EQ(DegreeAngle(std::string("north")).GetDegrees(), 0.0);
    RadianAngle large;
    large = 3 * pi;
    EXPECT_NEAR(DegreeAngle(large).GetDegrees(), 180.0, 1e-12);
    EXPECT_DOUBLE_EQ(RadianAngle(DegreeAngle(-45.0)).GetRadians(), -pi / 4);
}
