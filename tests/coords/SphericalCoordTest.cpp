#include <gtest/gtest.h>

#include <cmath>

#include "coords/AngleMath.h"
#include "coords/RectCoord.h"
#include "coords/SphericalCoord.h"

TEST(SphericalCoord, FromAVectorInEachQuadrant)
{
    SphericalCoord first(RectCoord(1.0, 1.0, std::sqrt(2.0)));
    EXPECT_NEAR(first.GetLongitude(), pi / 4, 1e-15);
    EXPECT_NEAR(first.GetLatitude(), pi / 4, 1e-15);
    EXPECT_NEAR(first.GetRadius(), 2.0, 1e-15);

    // Longitudes west of the x axis come out between pi and two pi, not negative.
    SphericalCoord fourth(RectCoord(1.0, -1.0, 0.0));
    EXPECT_NEAR(fourth.GetLongitude(), 7 * pi / 4, 1e-15);
    EXPECT_EQ(fourth.GetLatitude(), 0.0);

    SphericalCoord third(RectCoord(-3.0, -4.0, -5.0));
    EXPECT_NEAR(third.GetLongitude(), pi + std::atan2(4.0, 3.0), 1e-15);
    EXPECT_NEAR(third.GetLatitude(), -pi / 4, 1e-15);
    EXPECT_NEAR(third.GetRadius(), std::sqrt(50.0), 1e-14);
}

TEST(SphericalCoord, VectorsAlongTheAxisGiveThePoles)
{
    SphericalCoord north(RectCoord(0.0, 0.0, 2.5));
    EXPECT_EQ(north.GetLongitude(), 0.0);
    EXPECT_DOUBLE_EQ(north.GetLatitude(), pi / 2);
    EXPECT_EQ(north.GetRadius(), 2.5);

    SphericalCoord south(RectCoord(0.0, 0.0, -1.0));
    EXPECT_DOUBLE_EQ(south.GetLatitude(), -pi / 2);

    SphericalCoord zero{RectCoord()};
    EXPECT_EQ(zero.GetLongitude(), 0.0);
    EXPECT_EQ(zero.GetLatitude(), 0.0);
    EXPECT_EQ(zero.GetRadius(), 0.0);
}

TEST(SphericalCoord, DescribeGivesRadiansInTheDefaultNumberForm)
{
    EXPECT_EQ(SphericalCoord(RectCoord(0.0, 2.0, 0.0)).Describe(),
              "Longitude: 1.5708 Latitude: 0 Radius: 2");
    EXPECT_EQ(SphericalCoord(4.5, -0.25, 1.0e-7).Describe(),
              "Longitude: 4.5 Latitude: -0.25 Radius: 1e-07");
}
