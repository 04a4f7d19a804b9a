#include <gtest/gtest.h>

#include <limits>

#include "ProjectionTesting.h"
#include "projection/Projector.h"

TEST(Projector, PixelsFollowTheAspectTheBackFoldsOnAndBadRadiiOrRectanglesStayFinite)
{
    TestDevice square, wide(192, 96);
    const TRect screen(0, 0, 640, 480);
    // Twice the resolution across: a direction lies twice as many units out along x as along y.
    const Projector stretched(wide.DC(), screen, 30.0);
    TPoint right, up;
    stretched.Project(PolarCoord(90.0, 80.0), right);
    stretched.Project(PolarCoord(0.0, 80.0), up);
    EXPECT_NEAR(right.x - 320, 2 * (240 - up.y), 1);

    const Projector hemisphere(square.DC(), screen, 90.0);
    TPoint back(-1, -1), front(-2, -2);
    EXPECT_FALSE(hemisphere.Project(PolarCoord(45.0, -30.0), back));
    EXPECT_TRUE(hemisphere.Project(PolarCoord(45.0, 30.0), front));
    EXPECT_EQ(back, front);
    EXPECT_TRUE(hemisphere.Project(PolarCoord(10.0, 0.0), back)) << "the rim is visible";

    // Radii out of range are drawn at the nearest one the map accepts; a tiny one and a
    // rectangle without an inside still give finite points.
    const Projector smallest(square.DC(), screen, Projector::kMinimumFieldRadius);
    for (double radius : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(Projector(square.DC(), screen, radius), smallest) << radius;
    }
    EXPECT_EQ(Projector(square.DC(), screen, std::numeric_limits<double>::infinity()),
              Projector(square.DC(), screen, 90.0));
    TPoint far;
    EXPECT_FALSE(Projector(square.DC(), screen, 1e-9).Project(PolarCoord(90.0, 0.0), far));
    EXPECT_GT(far.x, 1 << 29);
    // An empty or inside-out rectangle puts everything on its centre, and nothing comes back.
    for (const TRect& rect : {TRect(10, 10, 10, 10), TRect(100, 100, 0, 0)}) {
        const Projector projector(square.DC(), rect, 30.0);
        TPoint point;
        projector.Project(PolarCoord(30.0, 70.0), point);
        EXPECT_EQ(point, projector.GetCenterPoint());
        PolarCoord coord;
        EXPECT_FALSE(projector.ReverseProject(TPoint(0, 0), coord));
    }
}
