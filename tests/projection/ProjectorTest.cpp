#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "projection/Projector.h"

namespace {

const TRect kScreen(0, 0, 640, 480);

double SinDegrees(double degrees)
{
    return std::sin(DegreesToRadians(degrees));
}

} // namespace

TEST(Projector, MeasuresTheShorterSideAfterTheAspect)
{
    TestDevice square, wide(192, 96), tall(96, 192), blind(0, 0);
    Projector projector(square.DC(), kScreen, 30.0);
    EXPECT_EQ(projector.GetSmallerSide(), 480);
    EXPECT_DOUBLE_EQ(projector.GetScale(), 240.0 / SinDegrees(30.0));
    EXPECT_EQ(projector.GetCenterPoint(), TPoint(320, 240));
    // The corner lies 400 units from the centre.
    EXPECT_NEAR(projector.GetVisibleRadius(),
                RadiansToDegrees(std::asin(400.0 / projector.GetScale())), 1e-9);
    EXPECT_EQ(Projector(square.DC(), TRect(100, 50, 741, 530), 30.0).GetCenterPoint(),
              TPoint(420, 290));

    Projector stretched(wide.DC(), kScreen, 30.0);
    EXPECT_EQ(stretched.GetXAspect(), 2.0);
    EXPECT_EQ(stretched.GetYAspect(), 1.0);
    EXPECT_EQ(stretched.GetSmallerSide(), 480);
    EXPECT_DOUBLE_EQ(stretched.GetScale(), projector.GetScale());
    EXPECT_EQ(Projector(tall.DC(), kScreen, 30.0).GetSmallerSide(), 640);
    // A device that reports no resolution counts as square.
    EXPECT_EQ(Projector(blind.DC(), kScreen, 30.0), projector);

    // On the wide device a direction lies twice as many units out along x as along y.
    TPoint right, up;
    stretched.Project(PolarCoord(90.0, 80.0), right);
    stretched.Project(PolarCoord(0.0, 80.0), up);
    EXPECT_EQ(right.x - 320, stretched.GetXExtent(DegreeAngle(10.0)));
    EXPECT_EQ(240 - up.y, stretched.GetYExtent(DegreeAngle(10.0)));
    EXPECT_NEAR(right.x - 320, 2 * (240 - up.y), 1);
}

TEST(Projector, RadiusNinetyShowsTheHemisphereWithItsBackFoldedOn)
{
    TestDevice device;
    Projector projector(device.DC(), kScreen, 90.0);
    EXPECT_DOUBLE_EQ(projector.GetScale(), 240.0);
    EXPECT_EQ(projector.GetVisibleRadius(), 90.0);
    PolarCoord untouched(12.0, 34.0);
    EXPECT_FALSE(projector.ReverseProject(TPoint(640, 480), untouched));
    EXPECT_EQ(untouched, PolarCoord(12.0, 34.0));

    TPoint back(-1, -1), front(-2, -2);
    EXPECT_FALSE(projector.Project(PolarCoord(45.0, -30.0), back));
    EXPECT_TRUE(projector.Project(PolarCoord(45.0, 30.0), front));
    EXPECT_EQ(back, front);
    // Visible means within the visible radius, the rim included.
    EXPECT_TRUE(projector.Project(PolarCoord(10.0, 0.0), back));
    EXPECT_FALSE(projector.Project(PolarCoord(10.0, -1e-9), back));
}

TEST(Projector, RAIsClockwiseFromUpAndTruncatesTowardsTheCentre)
{
    TestDevice device;
    Projector projector(device.DC(), kScreen, 30.0);
    TPoint up, right;
    projector.Project(PolarCoord(0.0, 70.0), up);
    projector.Project(PolarCoord(90.0, 70.0), right);
    EXPECT_EQ(up.x, 320);
    EXPECT_LT(up.y, 240);
    EXPECT_GT(right.x, 320);
    EXPECT_EQ(right.y, 240);

    // Mirror images across both axes stay mirror images: truncation goes towards the centre
    // on either side, not down.
    for (double ra = 1.0; ra < 90.0; ra += 7.3) {
        for (double dec = 61.0; dec < 90.0; dec += 4.1) {
            TPoint a, b, c;
            projector.Project(PolarCoord(ra, dec), a);
            projector.Project(PolarCoord(360.0 - ra, dec), b);
            projector.Project(PolarCoord(180.0 + ra, dec), c);
            ASSERT_EQ(a.x - 320, 320 - b.x);
            ASSERT_EQ(a.y, b.y);
            ASSERT_EQ(a - TPoint(320, 240), TPoint(320, 240) - c);
        }
    }
}

TEST(Projector, ReverseNearTheCentreIsThePoleOfTheView)
{
    TestDevice device, tall(96, 480);
    Projector projector(device.DC(), kScreen, 30.0);
    PolarCoord coord(5.0, 5.0);
    EXPECT_TRUE(projector.ReverseProject(TPoint(320, 240), coord));
    EXPECT_EQ(coord, PolarCoord(0.0, 90.0));

    // Five times the resolution along y: one pixel up is a fifth of a unit, within a
    // quarter unit of the centre, and takes the same path; two pixels up do not.
    Projector fine(tall.DC(), kScreen, 30.0);
    int centreY = fine.GetCenterPoint().y;
    coord = PolarCoord(5.0, 5.0);
    EXPECT_TRUE(fine.ReverseProject(TPoint(320, centreY - 1), coord));
    EXPECT_EQ(coord, PolarCoord(0.0, 90.0));
    EXPECT_TRUE(fine.ReverseProject(TPoint(320, centreY - 2), coord));
    EXPECT_EQ(coord.GetRA().GetDegrees(), 0.0);
    EXPECT_LT(coord.GetDec().GetDegrees(), 90.0);
}

TEST(Projector, VectorsProjectByTheirXAndYWithTheFarSideRefused)
{
    TestDevice device(192, 96);
    Projector projector(device.DC(), kScreen, 30.0);
    double scale = projector.GetScale();

    TPoint point(7, 7);
    EXPECT_FALSE(projector.Project(RectCoord(0.1, 0.1, -0.01), point));
    EXPECT_EQ(point, TPoint(7, 7));
    // x is stretched by the aspect of 2; y points up. Inside means strictly within half the
    // width and half the height.
    EXPECT_TRUE(projector.Project(RectCoord(319.5 / (scale * 2.0), 0.0, 0.5), point));
    EXPECT_EQ(point, TPoint(639, 240));
    EXPECT_FALSE(projector.Project(RectCoord(320.5 / (scale * 2.0), 0.0, 0.5), point));
    EXPECT_EQ(point, TPoint(640, 240));
    EXPECT_TRUE(projector.Project(RectCoord(0.0, -239.5 / scale, 0.5), point));
    EXPECT_EQ(point, TPoint(320, 479));
    EXPECT_FALSE(projector.Project(RectCoord(0.0, -240.5 / scale, 0.5), point));
}

TEST(Projector, RadiusOutOfRangeIsDrawnAtTheNearestOneTheMapAccepts)
{
    TestDevice device;
    Projector smallest(device.DC(), kScreen, Projector::kMinimumFieldRadius);
    for (double radius : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        Projector projector(device.DC(), kScreen, radius);
        EXPECT_EQ(projector.GetFieldRadius(), Projector::kMinimumFieldRadius);
        EXPECT_EQ(projector, smallest);
        // A direction a tenth of a degree up lies at the edge, not beyond any number.
        TPoint point;
        EXPECT_TRUE(projector.Project(PolarCoord(0.0, 89.9), point));
        EXPECT_NEAR(point.y, 0, 1);
    }
    Projector widest(device.DC(), kScreen, 90.0);
    for (double radius : {120.0, 270.0, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(Projector(device.DC(), kScreen, radius), widest);
    }

    // Small positive radii are drawn as given, and far directions stay finite points.
    Projector tiny(device.DC(), kScreen, 1e-9);
    EXPECT_EQ(tiny.GetFieldRadius(), 1e-9);
    TPoint far;
    EXPECT_FALSE(tiny.Project(PolarCoord(90.0, 0.0), far));
    EXPECT_GT(far.x, 1 << 29);
}

TEST(Projector, EmptyOrInsideOutRectangleProjectsEverythingOntoItsCentre)
{
    TestDevice device;
    for (const TRect& rect : {TRect(10, 10, 10, 10), TRect(100, 100, 0, 0)}) {
        Projector projector(device.DC(), rect, 30.0);
        EXPECT_EQ(projector.GetSmallerSide(), 0);
        TPoint point;
        projector.Project(PolarCoord(30.0, 70.0), point);
        EXPECT_EQ(point, projector.GetCenterPoint());
        PolarCoord coord(1.0, 2.0);
        EXPECT_FALSE(projector.ReverseProject(TPoint(0, 0), coord));
        EXPECT_EQ(coord, PolarCoord(1.0, 2.0));
    }
}

TEST(Projector, EqualityComparesWhatTheProjectorWasBuiltFrom)
{
    TestDevice device, wide(192, 96);
    Projector a(device.DC(), kScreen, 30.0);
    EXPECT_EQ(a, Projector(device.DC(), kScreen, 30.0));
    EXPECT_NE(a, Projector(device.DC(), kScreen, 31.0));
    EXPECT_NE(a, Projector(device.DC(), TRect(0, 0, 640, 481), 30.0));
    EXPECT_NE(a, Projector(wide.DC(), kScreen, 30.0));
    EXPECT_NE(a, Projector());
}
