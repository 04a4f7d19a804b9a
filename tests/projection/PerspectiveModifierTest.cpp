#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ProjectionTesting.h"
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
    const double ra = p.GetRA().GetRadians(), dec = p.GetDec().GetRadians();
    return {std::cos(ra) * std::cos(dec), std::sin(ra) * std::cos(dec), std::sin(dec)};
}

// The view frame built from vectors, independently of the rotations: the centre is the pole,
// "up" points towards the zenith, and "right" is the right hand of an observer inside the
// sphere who looks at the centre with the zenith above. RA is the angle from up to right.
PolarCoord ViewDirection(const PolarCoord& centre, const PolarCoord& zenith, const PolarCoord& d)
{
    const Vector c = UnitVector(centre), z = UnitVector(zenith), v = UnitVector(d);
    // Up is the zenith less its component along the centre; its length does not change the angle.
    const Vector up = {z.x - z.Dot(c) * c.x, z.y - z.Dot(c) * c.y, z.z - z.Dot(c) * c.z};
    const Vector right = {c.y * up.z - c.z * up.y, c.z * up.x - c.x * up.z,
                          c.x * up.y - c.y * up.x};
    return PolarCoord(RadiansToDegrees(std::atan2(v.Dot(right), v.Dot(up))),
                      RadiansToDegrees(std::asin(v.Dot(c))));
}

} // namespace

TEST(PerspectiveModifier, ViewFrameIsTheFrameBuiltFromVectorsOnEitherSideOfTheSeam)
{
    const QuietDebug quiet;
    std::mt19937 random(3);
    for (int views = 0; views < 40;) {
        const PolarCoord centre = RandomDirection(random), zenith = RandomDirection(random);
        if (Separation(centre, zenith) < 5.0 || Separation(centre, zenith) > 175.0) {
            continue;
        }
        ++views;
        const PerspectiveModifier modifier(centre, zenith);
        for (int i = 0; i < 200; ++i) {
            const PolarCoord sky = RandomDirection(random);
            PolarCoord view, back;
            modifier.ChangePerspective(sky, view);
            // Near the pole of the view the angle from up means little: compare on the sphere.
            ASSERT_LT(Separation(view, ViewDirection(centre, zenith, sky)), 1e-5)
                << sky.GetDescription() << " seen from " << centre.GetDescription();
            modifier.ReversePerspective(view, back);
            ASSERT_LT(Separation(sky, back), 1e-5) << sky.GetDescription();
        }
    }
    // RA -170 and 190 are one direction, even turned by a centre's 200 to below -360.
    const PerspectiveModifier modifier(PolarCoord(200.0, 10.0), PolarCoord(0.0, 90.0));
    PolarCoord a, b;
    modifier.ChangePerspective(PolarCoord(-170.0, 35.0), a);
    modifier.ChangePerspective(PolarCoord(190.0, 35.0), b);
    EXPECT_LT(Separation(a, b), 1e-9);
}

TEST(PerspectiveModifier, TheCelestialPoleTurnsWithoutAWordOnTheDiagnosticStream)
{
    // Turning the pole itself sends the rotation's arc cosine an ulp past -1 for some centres;
    // that is rounding, not a fault worth a message on every draw.
    std::vector<std::string> told;
    DebugSink previous = SetDebugSink([&told](const char* text) { told.push_back(text); });
    for (double dec = -89.5; dec < 90.0; dec += 0.25) {
        const PerspectiveModifier modifier(PolarCoord(0.0, dec), PolarCoord(0.0, 90.0));
        for (double ra = 0.0; ra < 360.0; ra += 7.5) {
            PolarCoord view;
            modifier.ChangePerspective(PolarCoord(ra, 90.0), view);
            EXPECT_NEAR(view.GetDec().GetDegrees(), dec, 1e-9) << dec << " " << ra;
        }
    }
    SetDebugSink(previous);
    EXPECT_TRUE(told.empty()) << told.front();
}
