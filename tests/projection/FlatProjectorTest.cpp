#include <gtest/gtest.h>

#include <cmath>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "projection/FlatProjector.h"

namespace {

const TRect kSquare(0, 0, 400, 400);

// The distance of a point from the centre point, in pixels.
double FromCentre(const FlatProjector& projector, const TPoint& point)
{
    const TPoint& centre = projector.GetCenterPoint();
    return std::hypot(point.x - centre.x, point.y - centre.y);
}

} // namespace

TEST(FlatProjectorTest, DistancesFromTheCentreGrowInProportionToTheAngle)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), kSquare, 90.0);
    EXPECT_DOUBLE_EQ(flat.GetScale(), 200.0 / (pi / 2.0));
    // The corners lie beyond a quarter turn, so the whole hemisphere is visible.
    EXPECT_DOUBLE_EQ(flat.GetVisibleRadius(), 90.0);

    // 45 degrees from the centre, in each of the four directions: 100 pixels.
    TPoint point;
    EXPECT_TRUE(flat.Project(PolarCoord(0, 45), point));
    EXPECT_EQ(point, TPoint(200, 100));
    EXPECT_TRUE(flat.Project(PolarCoord(90, 45), point));
    EXPECT_EQ(point, TPoint(300, 200));
    EXPECT_TRUE(flat.Project(PolarCoord(180, 45), point));
    EXPECT_EQ(point.x, 200);
    EXPECT_NEAR(point.y, 300, 1);
    EXPECT_TRUE(flat.Project(PolarCoord(270, 45), point));
    EXPECT_NEAR(point.x, 100, 1);
    EXPECT_EQ(point.y, 200);

    // 120 degrees from the centre: 266 pixels, drawn although beyond the visible radius.
    EXPECT_FALSE(flat.Project(PolarCoord(90, -30), point));
    EXPECT_EQ(point, TPoint(466, 200));
    EXPECT_FALSE(flat.Project(PolarCoord(30, -30), point));
    EXPECT_NEAR(FromCentre(flat, point), 266.0, 1.0);
}

TEST(FlatProjectorTest, NarrowFieldSeesAsFarAsItsCorners)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), kSquare, 30.0);
    // The corner, 200 * sqrt 2 pixels out, at 200 pixels per 30 degrees.
    EXPECT_NEAR(flat.GetVisibleRadius(), 30.0 * std::sqrt(2.0), 0.01);

    TPoint point;
    EXPECT_TRUE(flat.Project(PolarCoord(45, 90 - 42.0), point));
    EXPECT_FALSE(flat.Project(PolarCoord(45, 90 - 43.0), point));
}

TEST(FlatProjectorTest, WayBackCoversTheHemisphereOnly)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), kSquare, 90.0);
    PolarCoord coord(12, 34);

    // The rim of the quarter turn is out, and the coordinate stays as it was.
    EXPECT_FALSE(flat.ReverseProject(TPoint(400, 200), coord));
    EXPECT_FALSE(flat.ReverseProject(TPoint(0, 0), coord));
    EXPECT_EQ(coord, PolarCoord(12, 34));

    // One pixel inside the rim is just above the horizon of the hemisphere.
    ASSERT_TRUE(flat.ReverseProject(TPoint(399, 200), coord));
    EXPECT_NEAR(coord.GetRA().GetDegrees(), 90.0, 1e-9);
    EXPECT_NEAR(coord.GetDec().GetDegrees(), 90.0 / 200.0, 1e-9);

    // The centre point and its nearest neighbours are the centre of view.
    ASSERT_TRUE(flat.ReverseProject(TPoint(200, 200), coord));
    EXPECT_EQ(coord, PolarCoord(0, 90));
}

TEST(FlatProjectorTest, PointsGoBackToTheirDirectionsWithinAPixel)
{
    TestDevice screen;
    FlatProjector flat(screen.DC(), kSquare, 90.0);
    const double degreesPerPixel = 90.0 / 200.0;
    for (double ra = 5.0; ra < 360.0; ra += 35.0) {
        for (double dec = 5.0; dec < 90.0; dec += 17.0) {
            TPoint point;
            ASSERT_TRUE(flat.Project(PolarCoord(ra, dec), point));
            PolarCoord back;
            ASSERT_TRUE(flat.ReverseProject(point, back));
            EXPECT_NEAR(back.GetDec().GetDegrees(), dec, 1.5 * degreesPerPixel) << ra;
            // Along the circle the pixel spans more degrees the nearer the centre.
            double r = (90.0 - dec) / degreesPerPixel;
            double raStep = RadiansToDegrees(1.5 / r);
            double dRA = std::remainder(back.GetRA().GetDegrees() - ra, 360.0);
            EXPECT_NEAR(dRA, 0.0, raStep) << ra << " " << dec;
        }
    }
}

TEST(FlatProjectorTest, FinerVerticalResolutionStretchesTheVerticalAxis)
{
    TestDevice printer(96, 192);
    FlatProjector flat(printer.DC(), TRect(0, 0, 400, 800), 90.0);
    // Both sides cover 400 units of the coarser axis; the scale stays 200 per quarter turn.
    EXPECT_DOUBLE_EQ(flat.GetScale(), 200.0 / (pi / 2.0));
    TPoint point;
    flat.Project(PolarCoord(0, 45), point);
    EXPECT_EQ(point, TPoint(200, 400 - 200));
    flat.Project(PolarCoord(90, 45), point);
    EXPECT_EQ(point, TPoint(300, 400));

    PolarCoord back;
    ASSERT_TRUE(flat.ReverseProject(TPoint(200, 200), back));
    EXPECT_NEAR(back.GetDec().GetDegrees(), 45.0, 1e-9);
}
