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

void ExpectRange(const DegreeRange& range, double center, double halfWidth)
{
    EXPECT_FALSE(range.IsFull());
    EXPECT_FALSE(range.IsEmpty());
    EXPECT_NEAR(range.GetCenter().GetDegrees(), center, 1e-12);
    EXPECT_NEAR(range.GetHalfWidth().GetDegrees(), halfWidth, 1e-12);
}

} // namespace

TEST(DegreeRange, FullAndEmptyRanges)
{
    DegreeRange full(true), empty(false), byDefault;
    EXPECT_TRUE(full.IsFull());
    EXPECT_FALSE(full.IsEmpty());
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_TRUE(byDefault.IsEmpty());
    for (double angle : {0.0, 90.0, 359.9, -720.0}) {
        EXPECT_TRUE(Holds(full, angle));
        EXPECT_FALSE(Holds(empty, angle));
    }
    // Full is tested before empty, so a full range meets even an empty one.
    EXPECT_TRUE(full.Intersects(empty));
    EXPECT_TRUE(empty.Intersects(full));
    EXPECT_FALSE(empty.Intersects(Range(10, 5)));
    EXPECT_FALSE(Range(10, 5).Intersects(empty));
    EXPECT_TRUE(full.Intersects(Range(10, 5)));
    EXPECT_EQ(full.GetMinimum(), 0.0);
    EXPECT_EQ(full.GetMaximum(), 360.0);
}

TEST(DegreeRange, FromTwoEndsTakesThePlainMiddle)
{
    ExpectRange(DegreeRange(10.0, 50.0, 0), 30.0, 20.0);
    ExpectRange(DegreeRange(50.0, 10.0, 0), 30.0, 20.0);
    // No search for the seam: the long way round.
    ExpectRange(DegreeRange(350.0, 10.0, 0), 180.0, 170.0);
    ExpectRange(DegreeRange(DegreeAngle(-10.0), DegreeAngle(10.0), 7), 0.0, 10.0);
}

TEST(DegreeRange, DifferenceIsTheShorterWayRound)
{
    auto difference = [](double a, double b) {
        return DegreeRange::GetDifference(DegreeAngle(a), DegreeAngle(b)).GetDegrees();
    };
    EXPECT_EQ(difference(10, 350), 20.0);
    EXPECT_EQ(difference(350, 10), 20.0);
    EXPECT_EQ(difference(0, 180), 180.0);
    EXPECT_EQ(difference(0, 181), 179.0);
    EXPECT_EQ(difference(-10, 10), 20.0);
    EXPECT_EQ(difference(-350, 10), 0.0);
    EXPECT_EQ(difference(360, 0), 0.0);
    // Angles at opposite ends of the normal range are still a short way apart.
    EXPECT_EQ(difference(-350, 350), 20.0);
    EXPECT_EQ(difference(-300, 300), 120.0);
}

TEST(DegreeRange, ContainsAcrossTheSeamWithTheEndsIncluded)
{
    DegreeRange range = Range(350, 20);
    EXPECT_TRUE(Holds(range, 5));
    EXPECT_TRUE(Holds(range, 335));
    EXPECT_TRUE(Holds(range, 10));
    EXPECT_TRUE(Holds(range, 330));
    EXPECT_TRUE(Holds(range, -20));
    EXPECT_FALSE(Holds(range, 20));
    EXPECT_FALSE(Holds(range, 10.001));
    EXPECT_FALSE(Holds(range, 329.999));
    EXPECT_FALSE(Holds(range, 170));
}

TEST(DegreeRange, IntersectsByTheDistanceOfTheCentres)
{
    // 25 degrees apart across the seam: touching ends meet.
    EXPECT_TRUE(Range(350, 10).Intersects(Range(15, 15)));
    EXPECT_TRUE(Range(350, 10).Intersects(Range(10, 10)));
    EXPECT_FALSE(Range(350, 10).Intersects(Range(15, 14)));
    EXPECT_FALSE(Range(0, 10).Intersects(Range(180, 10)));
    EXPECT_TRUE(Range(0, 90).Intersects(Range(180, 90)));
}

TEST(DegreeRange, EncloseKeepsTheFarEndAndMovesTheNear)
{
    DegreeRange range = Range(10, 5);
    DegreeAngle angle(20.0);
    range.Enclose(angle);
    ExpectRange(range, 12.5, 7.5);
    EXPECT_EQ(angle.GetDegrees(), 20.0);

    range = Range(10, 5);
    angle = 0.0;
    range.Enclose(angle);
    ExpectRange(range, 7.5, 7.5);
}

TEST(DegreeRange, EncloseAcrossTheSeamFromBelow)
{
    DegreeRange range = Range(10, 5);
    DegreeAngle angle(350.0);
    range.Enclose(angle);
    ExpectRange(range, 2.5, 12.5);
    EXPECT_EQ(angle.GetDegrees(), 350.0);
    EXPECT_TRUE(Holds(range, 355));
    EXPECT_TRUE(Holds(range, 15));
}

TEST(DegreeRange, EncloseAcrossTheSeamFromAboveChangesTheCallersAngle)
{
    DegreeRange range = Range(350, 5);
    DegreeAngle angle(10.0);
    range.Enclose(angle);
    ExpectRange(range, 357.5, 12.5);
    EXPECT_EQ(angle.GetDegrees(), 370.0);
}

TEST(DegreeRange, EncloseOfAContainedAngleChangesNothing)
{
    DegreeRange range = Range(350, 20);
    DegreeAngle angle(5.0);
    range.Enclose(angle);
    ExpectRange(range, 350, 20);
    EXPECT_EQ(angle.GetDegrees(), 5.0);

    DegreeRange full(true);
    full.Enclose(angle);
    EXPECT_TRUE(full.IsFull());
}

TEST(DegreeRange, EncloseGrowsAnEmptyRangeFromOnePoint)
{
    DegreeRange range;
    DegreeAngle first(42.0), second(40.0);
    range.Enclose(first);
    ExpectRange(range, 42.0, 0.0);
    range.Enclose(second);
    ExpectRange(range, 41.0, 1.0);
}

TEST(DegreeRange, EncloseOfNegativeAnglesStaysTheShortWay)
{
    DegreeRange range = Range(10, 5);
    DegreeAngle angle(-10.0);
    range.Enclose(angle);
    ExpectRange(range, 2.5, 12.5);

    // Centre and angle at opposite ends of the normal range, two turns apart in number.
    range = Range(-300, 5);
    angle = 300.0;
    range.Enclose(angle);
    EXPECT_NEAR(range.GetHalfWidth().GetDegrees(), 62.5, 1e-12);
    EXPECT_TRUE(Holds(range, -60));
    EXPECT_TRUE(Holds(range, 65));
    EXPECT_FALSE(Holds(range, 180));
}

TEST(DegreeRange, EncloseOfManyPointsHoldsThemAll)
{
    DegreeRange range;
    std::vector<double> points = {355, 2, 350, 8, 345.5, 12};
    for (double point : points) {
        DegreeAngle angle(point);
        range.Enclose(angle);
    }
    for (double point : points) {
        EXPECT_TRUE(Holds(range, point)) << point;
    }
    ExpectRange(range, 358.75, 13.25);
}

TEST(DegreeRange, EncloseHoldsTheFarEndWhereTheHalvingRounds)
{
    // The stars of a constellation's figure: halving 221.9655 + 250.7694 rounds the centre
    // a little towards the far end.
    DegreeRange ra;
    for (double point : {221.9655, 248.3628, 250.7694}) {
        DegreeAngle angle(point);
        ra.Enclose(angle);
    }
    EXPECT_TRUE(Holds(ra, 221.9655));
    EXPECT_TRUE(Holds(ra, 250.7694));
    // A declination range that grows down from the pole keeps the pole.
    DegreeRange dec;
    for (double point : {88.66, 90.0, 65.4058151}) {
        DegreeAngle angle(point);
        dec.Enclose(angle);
    }
    EXPECT_TRUE(Holds(dec, 90.0));
    EXPECT_TRUE(Holds(dec, 65.4058151));
}

TEST(DegreeRange, DumpAndLoadKeepFullEmptyAndOrdinaryRanges)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        EXPECT_TRUE(DegreeRange(true).Dump(file));
        EXPECT_TRUE(DegreeRange(false).Dump(file));
        EXPECT_TRUE(Range(22.5, 22.5).Dump(file));
        EXPECT_TRUE(Range(42.0, 0.0).Dump(file));
    }
    std::vector<unsigned char> bytes = scratch.Bytes();
    ASSERT_EQ(bytes.size(), 64u);
    // A full range is (0, 360): 360.0 is 0x4076800000000000.
    EXPECT_EQ(
        std::vector<unsigned char>(bytes.begin(), bytes.begin() + 16),
        (std::vector<unsigned char>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x80, 0x76, 0x40}));
    // An empty range is (0, 0).
    EXPECT_EQ(std::vector<unsigned char>(bytes.begin() + 16, bytes.begin() + 32),
              std::vector<unsigned char>(16, 0));

    HostFile file(scratch.GetPath(), HostFile::ReadOnly);
    DegreeRange full, empty(true), ordinary, point(true);
    ASSERT_TRUE(full.Load(file));
    ASSERT_TRUE(empty.Load(file));
    ASSERT_TRUE(ordinary.Load(file));
    ASSERT_TRUE(point.Load(file));
    EXPECT_TRUE(full.IsFull());
    EXPECT_FALSE(full.IsEmpty());
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_FALSE(empty.IsFull());
    ExpectRange(ordinary, 22.5, 22.5);
    // A range of one point comes back empty.
    EXPECT_TRUE(point.IsEmpty());

    DegreeRange past(true);
    EXPECT_FALSE(past.Load(file));
    EXPECT_TRUE(past.IsFull());
}

TEST(DegreeRange, DumpReportsAShortWrite)
{
    HostFile closed;
    EXPECT_FALSE(Range(10, 5).Dump(closed));
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
