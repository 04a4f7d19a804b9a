#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/PerspectiveModifier.h"

namespace {

struct Vector
{
    double x, y, z;
};

Vector UnitVector(const PolarCoord& p)
{
    double ra = DegreesToRadians(p.GetRA().GetDegrees());
    double dec = DegreesToRadians(p.GetDec().GetDegrees());
    return {std::cos(ra) * std::cos(dec), std::sin(ra) * std::cos(dec), std::sin(dec)};
}

double Dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector Cross(const Vector& a, const Vector& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Vector Normalised(const Vector& v)
{
    double length = std::sqrt(Dot(v, v));
    return {v.x / length, v.y / length, v.z / length};
}

// The view frame built from vectors, independently of the rotations: the centre is the pole,
// "up" points towards the zenith, and "right" is what an observer inside the sphere, looking
// at the centre with the zenith up, has on the right hand.
PolarCoord ViewDirection(const PolarCoord& centre, const PolarCoord& zenith,
                         const PolarCoord& direction)
{
    Vector c = UnitVector(centre);
    Vector z = UnitVector(zenith);
    double along = Dot(z, c);
    Vector up = Normalised({z.x - along * c.x, z.y - along * c.y, z.z - along * c.z});
    Vector right = Cross(c, up);
    Vector d = UnitVector(direction);
    double ra = RadiansToDegrees(std::atan2(Dot(d, right), Dot(d, up)));
    return PolarCoord(ra < 0.0 ? ra + 360.0 : ra, RadiansToDegrees(std::asin(Dot(d, c))));
}

// The angle between two directions, in degrees.
double Separation(const PolarCoord& a, const PolarCoord& b)
{
    double cosine = std::clamp(Dot(UnitVector(a), UnitVector(b)), -1.0, 1.0);
    return RadiansToDegrees(std::acos(cosine));
}

// Difference of two RAs the short way round.
double RADifference(double a, double b)
{
    double d = std::fmod(std::fabs(a - b), 360.0);
    return d > 180.0 ? 360.0 - d : d;
}

class PerspectiveModifierTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

} // namespace

TEST_F(PerspectiveModifierTest, CentreBecomesThePoleAndZenithLiesStraightUp)
{
    struct Case
    {
        PolarCoord centre, zenith;
    } cases[] = {
        {{10, 20}, {10, 90}},       // on the stars, north up
        {{0, 0}, {0, 90}},          // the equinox
        {{250, -35}, {190, 40}},    // a zenith that is not the pole
        {{83.6, 22}, {40, 51.5}},   // as a view from the ground would have it
        {{300, 80}, {120, 10}},     // near the pole, zenith across it
        {{359.5, -70}, {0.5, -20}}, // across the seam of RA
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.centre.GetDescription() + " / " + c.zenith.GetDescription());
        PerspectiveModifier modifier(c.centre, c.zenith);
        PolarCoord view;
        EXPECT_TRUE(modifier.ChangePerspective(c.centre, view));
        EXPECT_NEAR(view.GetDec().GetDegrees(), 90.0, 1e-6);

        modifier.ChangePerspective(c.zenith, view);
        EXPECT_NEAR(RADifference(view.GetRA().GetDegrees(), 0.0), 0.0, 1e-6);
        EXPECT_NEAR(90.0 - view.GetDec().GetDegrees(), Separation(c.centre, c.zenith), 1e-9);
    }
}

TEST_F(PerspectiveModifierTest, ViewFrameAgreesWithTheFrameBuiltFromVectors)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    auto direction = [&] {
        return PolarCoord(360.0 * unit(random),
                          RadiansToDegrees(std::asin(2.0 * unit(random) - 1.0)));
    };
    for (int view = 0; view < 50; ++view) {
        PolarCoord centre = direction();
        PolarCoord zenith = direction();
        if (Separation(centre, zenith) < 5.0 || Separation(centre, zenith) > 175.0) {
            continue;
        }
        PerspectiveModifier modifier(centre, zenith);
        for (int i = 0; i < 200; ++i) {
            PolarCoord sky = direction();
            PolarCoord expected = ViewDirection(centre, zenith, sky);
            PolarCoord actual;
            modifier.ChangePerspective(sky, actual);
            ASSERT_NEAR(actual.GetDec().GetDegrees(), expected.GetDec().GetDegrees(), 1e-7);
            // The position angle means little right at the centre or opposite to it.
            if (std::fabs(expected.GetDec().GetDegrees()) < 89.0) {
                ASSERT_NEAR(
                    RADifference(actual.GetRA().GetDegrees(), expected.GetRA().GetDegrees()), 0.0,
                    1e-5)
                    << sky.GetDescription();
            }
        }
    }
}

TEST_F(PerspectiveModifierTest, ReversePerspectiveUndoesChangePerspective)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    PerspectiveModifier modifier(PolarCoord(123.4, -56.7), PolarCoord(20.0, 30.0));
    for (int i = 0; i < 2000; ++i) {
        PolarCoord sky(360.0 * unit(random), RadiansToDegrees(std::asin(2.0 * unit(random) - 1)));
        PolarCoord view, back;
        modifier.ChangePerspective(sky, view);
        EXPECT_TRUE(modifier.ReversePerspective(view, back));
        ASSERT_LT(Separation(sky, back), 1e-5) << sky.GetDescription();
    }
}

TEST_F(PerspectiveModifierTest, TurnsAboutAPoleStayWithinOneCircle)
{
    PolarCoord p(350.0, 12.5);
    PerspectiveModifier::RotateAboutYAxis(p, -20.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 10.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), 12.5);

    PerspectiveModifier::RotateAboutCenterOfView(p, 20.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 350.0);
    PerspectiveModifier::RotateAboutCenterOfView(p, 350.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 0.0);

    // A negative RA turned a long way comes out in the circle too.
    PolarCoord negative(-170.0, 0.0);
    PerspectiveModifier::RotateAboutYAxis(negative, 200.0);
    EXPECT_DOUBLE_EQ(negative.GetRA().GetDegrees(), 350.0);
}

TEST_F(PerspectiveModifierTest, NegativeRAGivesTheSameViewAsItsPositiveTwin)
{
    // RA -170 and 190 are one direction. Turned by the centre's 200, the first lies below
    // -360 before any correction, and the tilt must still see it as an RA above 180.
    PerspectiveModifier modifier(PolarCoord(200.0, 10.0), PolarCoord(0.0, 90.0));
    for (double dec : {-40.0, 0.0, 35.0}) {
        PolarCoord a, b;
        modifier.ChangePerspective(PolarCoord(-170.0, dec), a);
        modifier.ChangePerspective(PolarCoord(190.0, dec), b);
        EXPECT_NEAR(RADifference(a.GetRA().GetDegrees(), b.GetRA().GetDegrees()), 0.0, 1e-9);
        EXPECT_NEAR(a.GetDec().GetDegrees(), b.GetDec().GetDegrees(), 1e-9);
    }
}

TEST_F(PerspectiveModifierTest, TiltClampsRoundingPastOneAndSaysSo)
{
    // On the equator at RA 0 the sine of the new Dec is the sine passed in.
    PolarCoord p(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, 0.0, 2.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), 90.0);
    ASSERT_FALSE(Messages.empty());
    EXPECT_EQ(Messages[0], "Dec asin param exceeds 1: 2\r\n");

    Messages.clear();
    p = PolarCoord(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, 0.0, -2.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), -90.0);
    ASSERT_FALSE(Messages.empty());
    EXPECT_EQ(Messages[0], "Dec asin param exceeds 1: -2\r\n");

    // RA: a cosine of 2 on the equator leaves Dec 0 and clamps the arc cosine to 0 degrees.
    Messages.clear();
    p = PolarCoord(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, 2.0, 0.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), 0.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 0.0);
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], "RA acos param exceeds 1: 2\r\n");

    Messages.clear();
    p = PolarCoord(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, -3.0, 0.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 180.0);
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], "RA acos param exceeds 1: -3\r\n");
}

TEST_F(PerspectiveModifierTest, TiltKeepsTheHalfOfTheCircleOfTheOldRA)
{
    // A quarter turn of the pole: the equatorial direction at RA 90 stays put, the one at
    // 270 too, and each keeps its side.
    double quarter = DegreesToRadians(90.0);
    PolarCoord east(90.0, 0.0), west(270.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(east, std::cos(quarter), std::sin(quarter));
    PerspectiveModifier::RotateAboutXAxis(west, std::cos(quarter), std::sin(quarter));
    EXPECT_NEAR(east.GetRA().GetDegrees(), 90.0, 1e-9);
    EXPECT_NEAR(west.GetRA().GetDegrees(), 270.0, 1e-9);
    EXPECT_NEAR(east.GetDec().GetDegrees(), 0.0, 1e-9);
}

TEST_F(PerspectiveModifierTest, EqualityLooksAtCentreAndZenithOnly)
{
    PerspectiveModifier a(PolarCoord(10, 20), PolarCoord(10, 90));
    PerspectiveModifier b(PolarCoord(10, 20), PolarCoord(10, 90));
    PerspectiveModifier otherZenith(PolarCoord(10, 20), PolarCoord(40, 60));
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a == otherZenith);
    EXPECT_TRUE(a != PerspectiveModifier(PolarCoord(10, 21), PolarCoord(10, 90)));

    PerspectiveModifier empty;
    EXPECT_EQ(empty.GetCenterOfView(), PolarCoord(0, 0));
    EXPECT_EQ(empty.GetZenith(), PolarCoord(0, 0));
    EXPECT_EQ(empty.GetZenithAngle(), 0.0);
    EXPECT_EQ(empty.GetCosTilt(), 0.0);
    EXPECT_EQ(empty, PerspectiveModifier(PolarCoord(0, 0), PolarCoord(0, 0)));
}
