#include <gtest/gtest.h>

#include "solar/SeriesMath.h"

TEST(SeriesMath, FracGivesTheFractionOfARevolutionInTheUnitInterval)
{
    // Every date before 2000 makes the arguments negative: their fraction counts up from the
    // whole number below. Whole parts beyond 32-bit integers must not spoil it.
    const std::pair<double, double> cases[] = {
        {1.25, 0.25}, {7.0, 0.0},         {-0.25, 0.75},         {-2.6862235, 0.3137765},
        {-3.0, 0.0},  {3.0e9 + 0.5, 0.5}, {-3.0e9 - 0.25, 0.75},
    };
    for (const auto& [x, fraction] : cases) {
        EXPECT_NEAR(Frac(x), fraction, 1e-9) << x;
    }
    // A fraction so small that adding one rounds to one is a whole turn, that is none.
    EXPECT_LT(Frac(-1e-20), 1.0);
}
