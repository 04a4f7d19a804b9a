#include <gtest/gtest.h>

#include "coords/PolarCoord.h"
#include "coords/SkyRange.h"

namespace {

DegreeRange Range(double center, double halfWidth)
{
    DegreeRange range;
    range.Set(DegreeAngle(center), DegreeAngle(halfWidth));
    return range;
}

} // namespace

TEST(SkyRange, ContainsAPointOnlyWhenBothRangesDo)
{
    // The star segment of zone 1 nearest 0 hours.
    SkyRange segment(Range(22.5, 22.5), Range(70, 20));
    EXPECT_TRUE(segment.Contains(PolarCoord(10.0, 60.0)));
    EXPECT_TRUE(segment.Contains(PolarCoord(45.0, 90.0)));
    EXPECT_FALSE(segment.Contains(PolarCoord(50.0, 60.0)));
    EXPECT_FALSE(segment.Contains(PolarCoord(10.0, 40.0)));
}

TEST(SkyRange, OneFlagSetsBothRanges)
{
    SkyRange all(true), none(false), byDefault;
    EXPECT_TRUE(all.GetRA().IsFull());
    EXPECT_TRUE(all.GetDec().IsFull());
    EXPECT_TRUE(none.GetRA().IsEmpty());
    EXPECT_TRUE(byDefault.GetDec().IsEmpty());
    EXPECT_TRUE(all.Contains(PolarCoord(123.0, -45.0)));
    EXPECT_FALSE(none.Contains(PolarCoord(123.0, -45.0)));
}

TEST(SkyRange, IntersectsWhenBothPairsMeet)
{
    SkyRange segment(Range(22.5, 22.5), Range(70, 20));
    // A view over the pole: every RA, Dec above 80.
    SkyRange polar(DegreeRange(true), Range(85, 5));
    EXPECT_TRUE(segment.Intersects(polar));
    SkyRange south(DegreeRange(true), Range(-70, 20));
    EXPECT_FALSE(segment.Intersects(south));
    SkyRange acrossTheSeam(Range(355, 10), Range(60, 5));
    EXPECT_TRUE(segment.Intersects(acrossTheSeam));
}

TEST(SkyRange, EncloseGrowsBothRangesWithoutChangingThePoint)
{
    SkyRange range;
    PolarCoord first(350.0, 10.0), second(10.0, 20.0);
    range.Enclose(first);
    range.Enclose(second);
    EXPECT_TRUE(range.Contains(PolarCoord(0.0, 15.0)));
    EXPECT_FALSE(range.Contains(PolarCoord(180.0, 15.0)));
    EXPECT_EQ(second.GetRA().GetDegrees(), 10.0);
    EXPECT_NEAR(range.GetRA().GetHalfWidth().GetDegrees(), 10.0, 1e-12);
    EXPECT_NEAR(range.GetDec().GetCenter().GetDegrees(), 15.0, 1e-12);
}
