// The lunar theory against its published geocentric places, and the distance its parallax
// sum gives.
#include <gtest/gtest.h>

#include "solar/LunarSeries.h"
#include "solar/SeriesMath.h"

#include <cmath>
#include <tuple>

TEST(LunarSeries, GivesThePublishedPlaces)
{
    // Longitude and latitude in degrees to four decimals, distance in AU to eight; one object
    // takes T = 0.2 and then T = 0, so that sums left over from one time would spoil the next.
    // The longitude at T = 0.2, 352.0796503, lies just inside the rounding of 352.0797.
    LunarSeries moon;
    for (const auto& [T, longitude, latitude, distance] :
         {std::tuple{0.2, 352.0797, -5.0741, 0.00270301}, {0.0, 223.3189, 5.1709, 0.00269013}}) {
        const LunarPosition& place = moon.Evaluate(T);
        EXPECT_NEAR(std::remainder(place.Longitude * kDegreesPerRadian - longitude, 360.0), 0.0,
                    0.00005)
            << T;
        EXPECT_NEAR(place.Latitude * kDegreesPerRadian, latitude, 0.00005) << T;
        EXPECT_NEAR(place.Distance, distance, 0.000000005) << T;
    }
}

TEST(LunarSeries, ParallaxSumGivesTheDistance)
{
    // The constant term of the parallax alone: 60.2666 Earth radii, 384388.7 km.
    EXPECT_NEAR(LunarSeries::EarthRadiiFromParallaxSum(3422.7), 60.2666, 0.00005);
    EXPECT_NEAR(LunarSeries::DistanceFromParallaxSum(3422.7), 0.00256948, 0.000000005);
}
