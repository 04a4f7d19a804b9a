#include <gtest/gtest.h>

#include "solar/SeriesMath.h"

#include <cmath>
#include <limits>

TEST(SeriesMath, TwoPiIsTwiceTheArcCosineOfMinusOne)
{
    EXPECT_EQ(Pi, std::acos(-1.0));
    EXPECT_EQ(TwoPi, 2.0 * std::acos(-1.0));
    EXPECT_DOUBLE_EQ(180.0 * kRadiansPerDegree, Pi);
    EXPECT_DOUBLE_EQ(Pi * kDegreesPerRadian, 180.0);
}

TEST(SeriesMath, FracOfPositiveArgumentsDropsTheWholePart)
{
    EXPECT_DOUBLE_EQ(Frac(0.0), 0.0);
    EXPECT_DOUBLE_EQ(Frac(1.25), 0.25);
    EXPECT_DOUBLE_EQ(Frac(1336.75), 0.75);
    EXPECT_DOUBLE_EQ(Frac(7.0), 0.0);
}

TEST(SeriesMath, FracOfNegativeArgumentsStaysInTheUnitInterval)
{
    EXPECT_DOUBLE_EQ(Frac(-0.25), 0.75);
    EXPECT_NEAR(Frac(-2.6862235), 0.3137765, 1e-12);
    EXPECT_DOUBLE_EQ(Frac(-3.0), 0.0);
    // A fraction so small that adding one rounds to one is a whole turn, that is none.
    const double tiny = Frac(-1e-20);
    EXPECT_GE(tiny, 0.0);
    EXPECT_LT(tiny, 1.0);
}

TEST(SeriesMath, FracBeyondThirtyTwoBitIntegersStillGivesTheFraction)
{
    EXPECT_DOUBLE_EQ(Frac(3.0e9 + 0.5), 0.5);
    EXPECT_DOUBLE_EQ(Frac(-3.0e9 - 0.25), 0.75);
    EXPECT_TRUE(std::isnan(Frac(std::numeric_limits<double>::quiet_NaN())));
}

TEST(SeriesMath, NormalizeRadiansRemovesWholeTurnsAndKeepsTheSign)
{
    EXPECT_DOUBLE_EQ(NormalizeRadians(1.0), 1.0);
    EXPECT_DOUBLE_EQ(NormalizeRadians(-1.0), -1.0);
    EXPECT_DOUBLE_EQ(NormalizeRadians(TwoPi), TwoPi); // only beyond a turn
    EXPECT_NEAR(NormalizeRadians(TwoPi + 0.5), 0.5, 1e-15);
    EXPECT_NEAR(NormalizeRadians(3.0 * TwoPi + 0.5), 0.5, 1e-14);
    EXPECT_NEAR(NormalizeRadians(-TwoPi - 0.5), -0.5, 1e-15);
    EXPECT_NEAR(NormalizeRadians(-5.0 * TwoPi - 2.0), -2.0, 1e-14);
}

TEST(SeriesMath, AddAnglesGivesCosineAndSineOfTheSum)
{
    for (double a : {0.0, 0.3, 2.0, -1.1, 5.5}) {
        for (double b : {0.0, 0.7, -2.5, 3.1}) {
            double c = 0.0, s = 0.0;
            AddAngles(std::cos(a), std::sin(a), std::cos(b), std::sin(b), c, s);
            EXPECT_NEAR(c, std::cos(a + b), 1e-15) << a << " " << b;
            EXPECT_NEAR(s, std::sin(a + b), 1e-15) << a << " " << b;
        }
    }
}

TEST(SeriesMath, AddAnglesMayWriteIntoItsOwnInputs)
{
    double c = std::cos(0.4), s = std::sin(0.4);
    AddAngles(c, s, std::cos(1.1), std::sin(1.1), c, s);
    EXPECT_NEAR(c, std::cos(1.5), 1e-15);
    EXPECT_NEAR(s, std::sin(1.5), 1e-15);
}

TEST(SeriesMath, MeanArgumentIsTheFractionOfTheRevolutionsTimesTwoPi)
{
    EXPECT_DOUBLE_EQ(MeanArgument(0.25, 1.0, 0.0), TwoPi * 0.25);
    EXPECT_DOUBLE_EQ(MeanArgument(0.25, 100.0, 0.5), TwoPi * 0.25);
    EXPECT_NEAR(MeanArgument(0.1, 1.0, -0.35), TwoPi * 0.75, 1e-14);
}
