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
    double Dot(const Vector& o) const { return x * o.x + y * o.y + z * o.z; }
};

Vector UnitVector(const PolarCoord& p)
{
    double ra = p.GetRA().GetRadians(), dec = p.GetDec().GetRadians();
    return {std::cos(ra) * std::cos(dec), std::sin(ra) * std::cos(dec), std::sin(dec)};
}

// The view frame built from vectors, independently of the rotations: the centre is the pole,
// "up" points towards the zenith, and "right" is the right hand of an observer inside the
// sphere who looks at the centre with the zenith above.
PolarCoord ViewDirection(const PolarCoord& centre, const PolarCoord& zenith,
                         const PolarCoord& direction)
{
    Vector c = UnitVector(centre), z = UnitVector(zenith), d = UnitVector(direction);
    double along = z.Dot(c);
    Vector up = {z.x - along * c.x, z.y - along * c.y, z.z - along * c.z};
    double length = std::sqrt(up.Dot(up));
    up = {up.x / length, up.y / length, up.z / length};
    Vector right = {c.y * up.z - c.z * up.y, c.z * up.x - c.x * up.z, c.x * up.y - c.y * up.x};
    double ra = RadiansToDegrees(std::atan2(d.Dot(right), d.Dot(up)));
    return PolarCoord(ra < 0.0 ? ra + 360.0 : ra, RadiansToDegrees(std::asin(d.Dot(c))));
}

double Separation(const PolarCoord& a, const PolarCoord& b)
{
    return RadiansToDegrees(std::acos(std::clamp(UnitVector(a).Dot(UnitVector(b)), -1.0, 1.0)));
}

// Difference of two RAs the short way round.
double RADifference(double a, double b)
{
    double d = std::fmod(std::fabs(a - b), 360.0);
    return d > 180.0 ? 360.0 - d : d;
}

PolarCoord RandomDirection(std::mt19937& random)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    return PolarCoord(360.0 * unit(random), RadiansToDegrees(std::asin(2.0 * unit(random) - 1)));
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

TEST_F(PerspectiveModifierTest, ViewFrameIsTheFrameBuiltFromVectors)
{
    // Fixed cases (on the stars, the equinox, near a pole, across the seam of RA, a zenith
    // that is no pole), then random views.
    std::vector<std::pair<PolarCoord, PolarCoord>> views = {
        {{10, 20}, {10, 90}},       {{0, 0}, {0, 90}},        {{300, 80}, {120, 10}},
        {{359.5, -70}, {0.5, -20}}, {{83.6, 22}, {40, 51.5}},
    };
    std::mt19937 random(3);
    while (views.size() < 60) {
        PolarCoord centre = RandomDirection(random), zenith = RandomDirection(random);
        if (Separation(centre, zenith) > 5.0 && Separation(centre, zenith) < 175.0) {
            views.emplace_back(centre, zenith);
        }
    }
    for (const auto& [centre, zenith] : views) {
        SCOPED_TRACE(centre.GetDescription() + " / " + zenith.GetDescription());
        PerspectiveModifier modifier(centre, zenith);
        PolarCoord view;
        EXPECT_TRUE(modifier.ChangePerspective(centre, view));
        EXPECT_NEAR(view.GetDec().GetDegrees(), 90.0, 1e-6);
        modifier.ChangePerspective(zenith, view);
        EXPECT_NEAR(RADifference(view.GetRA().GetDegrees(), 0.0), 0.0, 1e-6);

        for (int i = 0; i < 200; ++i) {
            PolarCoord sky = RandomDirection(random);
            PolarCoord expected = ViewDirection(centre, zenith, sky);
            modifier.ChangePerspective(sky, view);
            ASSERT_NEAR(view.GetDec().GetDegrees(), expected.GetDec().GetDegrees(), 1e-7);
            // The position angle means little right at the centre or opposite to it.
            if (std::fabs(expected.GetDec().GetDegrees()) < 89.0) {
                ASSERT_NEAR(RADifference(view.GetRA().GetDegrees(), expected.GetRA().GetDegrees()),
                            0.0, 1e-5)
                    << sky.GetDescription();
            }
            PolarCoord back;
            EXPECT_TRUE(modifier.ReversePerspective(view, back));
            ASSERT_LT(Separation(sky, back), 1e-5) << sky.GetDescription();
        }
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

    // RA -170 and 190 are one direction. Turned by a centre's 200, the first lies below -360
    // before any correction, and the tilt must still see it as an RA above 180.
    PolarCoord negative(-170.0, 0.0);
    PerspectiveModifier::RotateAboutYAxis(negative, 200.0);
    EXPECT_DOUBLE_EQ(negative.GetRA().GetDegrees(), 350.0);
    PerspectiveModifier modifier(PolarCoord(200.0, 10.0), PolarCoord(0.0, 90.0));
    PolarCoord a, b;
    modifier.ChangePerspective(PolarCoord(-170.0, 35.0), a);
    modifier.ChangePerspective(PolarCoord(190.0, 35.0), b);
    EXPECT_NEAR(RADifference(a.GetRA().GetDegrees(), b.GetRA().GetDegrees()), 0.0, 1e-9);
    EXPECT_NEAR(a.GetDec().GetDegrees(), b.GetDec().GetDegrees(), 1e-9);
}

TEST_F(PerspectiveModifierTest, TiltClampsRoundingPastOneAndSaysSo)
{
    // On the equator at RA 0 the sine of the new Dec is the sine passed in.
    PolarCoord p(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, 0.0, -2.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), -90.0);
    ASSERT_FALSE(Messages.empty());
    EXPECT_EQ(Messages[0], "Dec asin param exceeds 1: -2\r\n");

    // And the cosine of the new RA is the cosine passed in.
    Messages.clear();
    p = PolarCoord(0.0, 0.0);
    PerspectiveModifier::RotateAboutXAxis(p, 3.0, 0.0);
    EXPECT_DOUBLE_EQ(p.GetDec().GetDegrees(), 0.0);
    EXPECT_DOUBLE_EQ(p.GetRA().GetDegrees(), 0.0);
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], "RA acos param exceeds 1: 3\r\n");
}

TEST_F(PerspectiveModifierTest, EqualityLooksAtCentreAndZenithOnly)
{
    PerspectiveModifier a(PolarCoord(10, 20), PolarCoord(10, 90));
    EXPECT_TRUE(a == PerspectiveModifier(PolarCoord(10, 20), PolarCoord(10, 90)));
    EXPECT_TRUE(a != PerspectiveModifier(PolarCoord(10, 20), PolarCoord(40, 60)));
    EXPECT_TRUE(a != PerspectiveModifier(PolarCoord(10, 21), PolarCoord(10, 90)));
    // The empty modifier has no trigonometric values at all, yet equals a built one.
    PerspectiveModifier empty;
    EXPECT_EQ(empty.GetCosTilt(), 0.0);
    EXPECT_TRUE(empty == PerspectiveModifier(PolarCoord(0, 0), PolarCoord(0, 0)));
}
