#include <gtest/gtest.h>

#include "ScratchFile.h"
#include "coords/DegreeRange.h"
#include "host/HostFile.h"

namespace {

DegreeRange Range(double center, double halfWidth)
{
    DegreeRange range;
    range.Set(DegreeAngle(center), DegreeAngle(halfWidth));
    return range;
}

bool Holds(const DegreeRange& range, double angle)
{
    return range.Contains(DegreeAngle(angle));
}

} // namespace

TEST(DegreeRange, ContainsAndIntersectsTheShortWayRoundWithTheEndsIncluded)
{
    // Centre, half width, angle, and whether the range holds the angle.
    const double rows[][4] = {
        {350, 20, 5, true},       {350, 20, 335, true},      {350, 20, 10, true},
        {350, 20, 330, true},     {350, 20, -20, true},      {350, 20, 20, false},
        {350, 20, 10.001, false}, {350, 20, 329.999, false}, {350, 20, 170, false},
        {0, 10, -350, true},      {-350, 20, 350, true},     {-300, 20, 300, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Holds(Range(row[0], row[1]), row[2]), row[3] != 0)
            << row[0] << " +- " << row[1] << " holding " << row[2];
    }
    EXPECT_TRUE(Range(350, 10).Intersects(Range(15, 15)));
    EXPECT_FALSE(Range(350, 10).Intersects(Range(15, 14)));
    // Full is asked before empty, so a full range meets even an empty one.
    const DegreeRange full(true), empty(false);
    EXPECT_TRUE(Holds(full, -720.0));
    EXPECT_FALSE(Holds(empty, 0.0));
    EXPECT_TRUE(full.Intersects(empty) && empty.Intersects(full));
    EXPECT_FALSE(empty.Intersects(Range(10, 5)) || Range(10, 5).Intersects(empty));
    // From two ends the constructor takes the plain middle and does not look for the seam.
    EXPECT_TRUE(Holds(DegreeRange(350.0, 10.0, 0), 180.0));
    EXPECT_FALSE(Holds(DegreeRange(350.0, 10.0, 0), 0.0));
}

TEST(DegreeRange, EncloseKeepsTheFarEndAndMovesTheNearOneToTheAngle)
{
    // Centre, half width, angle; then the new centre, half width and the caller's angle, which
    // is carried into the frame of the centre when it crosses the seam from above.
    const double rows[][6] = {
        {10, 5, 20, 12.5, 7.5, 20},     {10, 5, 0, 7.5, 7.5, 0},
        {10, 5, 350, 2.5, 12.5, 350},   {10, 5, -10, 2.5, 12.5, -10},
        {350, 5, 10, 357.5, 12.5, 370}, {350, 20, 5, 350, 20, 5},
        {-300, 5, 300, 2.5, 62.5, 300},
    };
    for (const auto& row : rows) {
        DegreeRange range = Range(row[0], row[1]);
        DegreeAngle angle;
        angle = row[2];
        range.Enclose(angle);
        EXPECT_NEAR(range.GetCenter().GetDegrees(), row[3], 1e-12) << row[0] << " with " << row[2];
        EXPECT_NEAR(range.GetHalfWidth().GetDegrees(), row[4], 1e-12) << row[0] << " " << row[2];
        EXPECT_EQ(angle.GetDegrees(), row[5]) << row[0] << " with " << row[2];
    }
    // An empty range grows from its first point; a full one stays full.
    DegreeRange grown, full(true);
    DegreeAngle first(42.0), second(40.0);
    grown.Enclose(first);
    EXPECT_TRUE(Holds(grown, 42.0) && !Holds(grown, 42.1));
    grown.Enclose(second);
    EXPECT_EQ(grown.GetCenter().GetDegrees(), 41.0);
    EXPECT_EQ(grown.GetHalfWidth().GetDegrees(), 1.0);
    full.Enclose(first);
    EXPECT_TRUE(full.IsFull());
}

TEST(DegreeRange, DumpAndLoadKeepFullEmptyAndOrdinaryRanges)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        for (const DegreeRange& range :
             {DegreeRange(true), DegreeRange(false), Range(22.5, 22.5), Range(42.0, 0.0)}) {
            EXPECT_TRUE(range.Dump(file));
        }
    }
    HostFile file(scratch.GetPath(), HostFile::ReadOnly);
    DegreeRange full, empty(true), ordinary, point(true);
    ASSERT_TRUE(full.Load(file) && empty.Load(file) && ordinary.Load(file) && point.Load(file));
    EXPECT_TRUE(full.IsFull());
    EXPECT_TRUE(empty.IsEmpty() && !empty.IsFull());
    EXPECT_TRUE(Holds(ordinary, 45.0) && !Holds(ordinary, 45.1));
    EXPECT_TRUE(point.IsEmpty()) << "a range of one point comes back empty";
    EXPECT_FALSE(full.Load(file)) << "past the end";
    EXPECT_TRUE(full.IsFull());
}
