#include <gtest/gtest.h>

#include "solar/LunarSeries.h"
#include "solar/SeriesMath.h"

#include <cmath>

namespace {

// Counts how often the theory runs.
class CountingLunarSeries : public LunarSeries
{
public:
    int Computations = 0;

protected:
    LunarPosition Compute(double T) override
    {
        ++Computations;
        return LunarSeries::Compute(T);
    }
};

double AngleApart(double a, double b)
{
    return std::fabs(std::remainder(a - b, 360.0));
}

} // namespace

TEST(LunarSeries, GivesThePublishedPlaceAtTheEpoch)
{
    LunarSeries moon;
    const LunarPosition& place = moon.Evaluate(0.0);
    EXPECT_LE(AngleApart(place.Longitude * kDegreesPerRadian, 223.3189), 0.00005);
    EXPECT_NEAR(place.Latitude * kDegreesPerRadian, 5.1709, 0.00005);
    EXPECT_NEAR(place.Distance, 0.00269013, 0.000000005);
    EXPECT_NEAR(place.Distance * LunarSeries::kAstronomicalUnitKm, 402438.0, 0.5);
}

TEST(LunarSeries, GivesThePublishedPlaceFiveCenturiesOn)
{
    // The longitude, 352.0796503, lies just inside the rounding edge of the printed 352.0797.
    LunarSeries moon;
    const LunarPosition& place = moon.Evaluate(0.2);
    EXPECT_LE(AngleApart(place.Longitude * kDegreesPerRadian, 352.0797), 0.00005);
    EXPECT_NEAR(place.Latitude * kDegreesPerRadian, -5.0741, 0.00005);
    EXPECT_NEAR(place.Distance, 0.00270301, 0.000000005);
}

TEST(LunarSeries, ParallaxSumGivesTheDistance)
{
    // The constant term of the parallax alone.
    EXPECT_NEAR(LunarSeries::EarthRadiiFromParallaxSum(3422.7), 60.2666, 0.00005);
    EXPECT_NEAR(LunarSeries::EarthRadiiFromParallaxSum(3422.7) * LunarSeries::kEarthRadiusKm,
                384388.7, 0.05);
    EXPECT_NEAR(LunarSeries::DistanceFromParallaxSum(3422.7), 0.00256948, 0.000000005);

    LunarSeries moon;
    const LunarPosition& place = moon.Evaluate(0.0);
    EXPECT_DOUBLE_EQ(place.Distance, LunarSeries::DistanceFromParallaxSum(place.ParallaxSum));
}

TEST(LunarSeries, EvaluatesOncePerTime)
{
    CountingLunarSeries moon;
    const double first = moon.Evaluate(0.05).Longitude;
    EXPECT_EQ(moon.Evaluate(0.05).Longitude, first);
    EXPECT_EQ(moon.Computations, 1);
    moon.Evaluate(0.06);
    moon.Evaluate(0.05);
    EXPECT_EQ(moon.Computations, 3);
}

TEST(LunarSeries, SumsDoNotCarryFromOneTimeToTheNext)
{
    LunarSeries reused;
    for (double T : {0.2, -0.4, 0.0, 0.013}) {
        const LunarPosition again = reused.Evaluate(T);
        LunarSeries fresh;
        const LunarPosition& first = fresh.Evaluate(T);
        EXPECT_EQ(again.Longitude, first.Longitude) << T;
        EXPECT_EQ(again.Latitude, first.Latitude) << T;
        EXPECT_EQ(again.Distance, first.Distance) << T;
    }
}

TEST(LunarSeries, StaysOnTheMoonsOrbitOverManyMonths)
{
    // Over six years in steps of 0.4 days, before and after 2000 and four centuries away: the
    // longitude lies in one turn and grows by 11 to 16 degrees a day, the latitude stays within
    // the inclination of 5.3 degrees, and the distance between perigee and apogee.
    constexpr double kDay = 1.0 / 36525.0;
    for (double start : {-4.0, -0.03, 0.0, 0.1, 4.0}) {
        LunarSeries moon;
        double previous = moon.Evaluate(start).Longitude;
        for (int step = 1; step < 5500; ++step) {
            const double T = start + step * 0.4 * kDay;
            const LunarPosition& place = moon.Evaluate(T);
            ASSERT_GE(place.Longitude, 0.0) << T;
            ASSERT_LT(place.Longitude, TwoPi) << T;
            const double perDay =
                std::remainder(place.Longitude - previous, TwoPi) * kDegreesPerRadian / 0.4;
            ASSERT_GT(perDay, 11.0) << T;
            ASSERT_LT(perDay, 16.0) << T;
            ASSERT_LE(std::fabs(place.Latitude * kDegreesPerRadian), 5.33) << T;
            const double km = place.Distance * LunarSeries::kAstronomicalUnitKm;
            ASSERT_GT(km, 356000.0) << T;
            ASSERT_LT(km, 407000.0) << T;
            previous = place.Longitude;
        }
    }
}

TEST(LunarSeries, SiderealMonthBringsTheLongitudeRoundOnAverage)
{
    // Over 100 sidereal months of 27.321662 days the longitude returns to within the reach of
    // its periodic terms (about 7 degrees), plus 100 months' precession (0.1 degree).
    LunarSeries moon;
    const double start = moon.Evaluate(0.0).Longitude;
    const double later = moon.Evaluate(100.0 * 27.321662 / 36525.0).Longitude;
    EXPECT_LT(AngleApart(later * kDegreesPerRadian, start * kDegreesPerRadian), 7.5);
}
