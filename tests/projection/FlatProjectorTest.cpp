#include <gtest/gtest.h>

#include <cmath>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "projection/FlatProjector.h"

TEST(FlatProjectorTest, DistancesFromTheCentreGrowInProportionToTheAngle)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), TRect(0, 0, 400, 400), 90.0);
    EXPECT_DOUBLE_EQ(flat.GetScale(), 200.0 / (pi / 2.0));
    // The corners lie beyond a quarter turn, so the whole hemisphere is visible.
    EXPECT_DOUBLE_EQ(flat.GetVisibleRadius(), 90.0);

    // 45 degrees from the centre is 100 pixels, up and to the right.
    TPoint point;
    EXPECT_TRUE(flat.Project(PolarCoord(0, 45), point));
    EXPECT_EQ(point, TPoint(200, 100));
    EXPECT_TRUE(flat.Project(PolarCoord(90, 45), point));
    EXPECT_EQ(point, TPoint(300, 200));
    // 120 degrees from the centre: 266 pixels, drawn although beyond the visible radius.
    EXPECT_FALSE(flat.Project(PolarCoord(90, -30), point));
    EXPECT_EQ(point, TPoint(466, 200));

    // A narrower field sees as far as its corners: 200 * sqrt 2 pixels at 200 per 30 degrees.
    FlatProjector narrow(screen.DC(), TRect(0, 0, 400, 400), 30.0);
    EXPECT_NEAR(narrow.GetVisibleRadius(), 30.0 * std::sqrt(2.0), 0.01);
    EXPECT_TRUE(narrow.Project(PolarCoord(45, 90 - 42.0), point));
    EXPECT_FALSE(narrow.Project(PolarCoord(45, 90 - 43.0), point));
}

TEST(FlatProjectorTest, WayBackCoversTheHemisphereOnly)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), TRect(0, 0, 400, 400), 90.0);
    PolarCoord coord(12, 34);
    // The rim of the quarter turn is out, and the coordinate stays as it was.
    EXPECT_FALSE(flat.ReverseProject(TPoint(400, 200), coord));
    EXPECT_FALSE(flat.ReverseProject(TPoint(0, 0), coord));
    EXPECT_EQ(coord, PolarCoord(12, 34));
    // One pixel inside the rim is just above the hemisphere's edge.
    ASSERT_TRUE(flat.ReverseProject(TPoint(399, 200), coord));
    EXPECT_NEAR(coord.GetRA().GetDegrees(), 90.0, 1e-9);
    EXPECT_NEAR(coord.GetDec().GetDegrees(), 90.0 / 200.0, 1e-9);

    // Every point goes back to its direction within a pixel's angle.
    const double degreesPerPixel = 90.0 / 200.0;
    for (double ra = 5.0; ra < 360.0; ra += 35.0) {
        for (double dec = 5.0; dec < 90.0; dec += 17.0) {
            TPoint point;
            ASSERT_TRUE(flat.Project(PolarCoord(ra, dec), point));
            PolarCoord back;
            ASSERT_TRUE(flat.ReverseProject(point, back));
            EXPECT_NEAR(back.GetDec().GetDegrees(), dec, 1.5 * degreesPerPixel);
            // Along the circle a pixel spans more degrees the nearer the centre.
            double raStep = RadiansToDegrees(1.5 / ((90.0 - dec) / degreesPerPixel));
            EXPECT_NEAR(std::remainder(back.GetRA().GetDegrees() - ra, 360.0), 0.0, raStep);
        }
    }
}

TEST(FlatProjectorTest, FinerVerticalResolutionStretchesTheVerticalAxis)
{
    TestDevice printer(96, 192);
    FlatProjector flat(printer.DC(), TRect(0, 0, 400, 800), 90.0);
    EXPECT_DOUBLE_EQ(flat.GetScale(), 200.0 / (pi / 2.0));
    TPoint point;
    flat.Project(PolarCoord(0, 45), point);
    EXPECT_EQ(point, TPoint(200, 200));
    flat.Project(PolarCoord(90, 45), point);
    EXPECT_EQ(point, TPoint(300, 400));
    PolarCoord back;
    ASSERT_TRUE(flat.ReverseProject(TPoint(200, 200), back));
    EXPECT_NEAR(back.GetDec().GetDegrees(), 45.0, 1e-9);
}
