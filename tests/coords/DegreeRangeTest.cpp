#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

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
    EXPECT_NEAR(grown.GetCenter().GetDegrees(), 41.0, 1e-12);
    EXPECT_NEAR(grown.GetHalfWidth().GetDegrees(), 1.0, 1e-12);
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

TEST(DegreeRange, EncloseKeepsEveryPointWhereTheTurnLeavesTheAngleOnItsSide)
{
    // Centre and angle between one and one and a half turns apart: the turn that brings them
    // together leaves the angle on the side it was, and the end on the other side must stay.
    struct Case
    {
        const char* name;
        std::vector<double> angles;
        double center, halfWidth;
    };
    const Case cases[] = {
        {"boundary file: 23 h, 0 h, -4 h", {345, 0, -60}, 330, 30},
        {"mirror: up across a turn", {-60, -50, 345}, 322.5, 22.5},
        {"figure file: both ends of two lines", {345, 0, -60, -60}, 330, 30},
        {"two turns apart in number", {-350, 350}, 0, 10},
        {"half a turn apart", {0, 180}, 90, 90},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DegreeRange range;
        for (double value : c.angles) {
            DegreeAngle angle(value);
            range.Enclose(angle);
        }
        for (double value : c.angles) {
            EXPECT_TRUE(Holds(range, value)) << value;
        }
        EXPECT_NEAR(
            DegreeRange::GetDifference(range.GetCenter(), DegreeAngle(c.center)).GetDegrees(), 0.0,
            1e-12);
        EXPECT_NEAR(range.GetHalfWidth().GetDegrees(), c.halfWidth, 1e-12);
    }
}

TEST(DegreeRange, EncloseHoldsEveryAngleItTookAndGrowsNoMoreThanNeeded)
{
    // Clusters of a random spread round a random direction, each angle written anywhere in
    // -720..720 (assignment keeps it as it is). Each step holds everything taken so far and
    // reaches the new angle from the nearer end of the old range, whose ends are worked out
    // here as ends, not through the centre.
    std::mt19937 random(18);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    auto upward = [](double from, double to) {
        return std::fmod(std::fmod(to - from, 360.0) + 720.0, 360.0);
    };
    for (int trial = 0; trial < 10000; ++trial) {
        const double base = 360.0 * unit(random), spread = 200.0 * unit(random) * unit(random);
        DegreeRange range;
        std::vector<DegreeAngle> taken;
        for (int step = 0; step < 8; ++step) {
            const double turns = std::floor(unit(random) * 4.0 - 2.0);
            DegreeAngle angle;
            angle = std::clamp(base + spread * (unit(random) - 0.5) + 360.0 * turns, -720.0, 720.0);
            taken.push_back(angle);
            const DegreeRange before = range;
            range.Enclose(angle);
            SCOPED_TRACE(testing::Message() << "trial " << trial << " step " << step);
            for (const DegreeAngle& held : taken) {
                ASSERT_TRUE(range.Contains(held)) << held.GetDegrees();
            }
            if (!before.IsEmpty() && !before.Contains(taken.back())) {
                const double center = before.GetCenter().GetDegrees();
                const double half = before.GetHalfWidth().GetDegrees();
                const double value = taken.back().GetDegrees();
                const double reach =
                    std::min(upward(center + half, value), upward(value, center - half));
                ASSERT_LE(range.GetHalfWidth().GetDegrees(), half + reach / 2.0 + 1e-9);
            }
        }
    }
}
