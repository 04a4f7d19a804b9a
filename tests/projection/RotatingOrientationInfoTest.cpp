// The view from a place on the ground: azimuth and zenith distance against the sky of the
// moment, the limit at the horizon and the steps of a scroll.
#include <gtest/gtest.h>

#include "ProjectionTesting.h"
#include "projection/AstroScrollInfo.h"
#include "projection/RotatingOrientationInfo.h"

namespace {

// Azimuth (north through west) and altitude of a direction under that sky at latitude 40, by
// the spherical triangle of pole, zenith and star: independent of the orientation's rotations.
PolarCoord AzimuthAltitude(const PolarCoord& sky)
{
    const double h = DegreesToRadians(100.0 - sky.GetRA().GetDegrees());
    const double dec = sky.GetDec().GetRadians(), lat = DegreesToRadians(40.0);
    const double altitude =
        std::asin(std::sin(lat) * std::sin(dec) + std::cos(lat) * std::cos(dec) * std::cos(h));
    const double fromSouth =
        std::atan2(std::sin(h), std::cos(h) * std::sin(lat) - std::tan(dec) * std::cos(lat));
    return PolarCoord(180.0 - RadiansToDegrees(fromSouth), RadiansToDegrees(altitude));
}

// The offset of a direction of view: azimuth, and zenith distance from the altitude.
PolarCoord Looking(double azimuth, double altitude)
{
    return PolarCoord(azimuth, 90.0 - altitude);
}

class RotatingOrientationInfoTest : public ::testing::Test
{
protected:
    QuietDebug Quiet;
    StillBody Sky;
    const LatLong Place{40.0, 0.0};
};

} // namespace

TEST_F(RotatingOrientationInfoTest, OffsetsAreTheAzimuthAndZenithDistanceOfTheSphericalTriangle)
{
    // The compass points (north below the pole on the meridian, west and east on the equator
    // six hours from it) and directions all round the sky above the horizon. The frame's arc
    // cosine loses digits next to the meridian, hence a hundred-thousandth of a degree.
    const PolarCoord stars[] = {{280, 50}, {10, 0},    {100, -50}, {190, 0},  {30, 60},
                                {100, 10}, {150, -20}, {250, 55},  {330, 50}, {95, 80}};
    for (const PolarCoord& star : stars) {
        RotatingOrientationInfo o(&Sky, Place, PolarCoord(), 0.0, true);
        o.SetCenterOfView(star);
        const PolarCoord offset = o.GetZenithOffset();
        const PolarCoord seen(offset.GetRA().GetDegrees(), 90.0 - offset.GetDec().GetDegrees());
        EXPECT_LT(Separation(seen, AzimuthAltitude(star)), 1e-5) << star.GetDescription();
        EXPECT_LT(Separation(o.GetCenterOfView(), star), 1e-5) << star.GetDescription();
    }
}

TEST_F(RotatingOrientationInfoTest, ClipKeepsTheFieldAboveTheHorizonAndTheZenithOffThePoles)
{
    // 10 degrees up with a field of 20: raised to 20 degrees up, or left where it is.
    const PolarCoord low = Looking(180.0, 10.0);
    EXPECT_EQ(RotatingOrientationInfo(&Sky, Place, low, 20.0, true).GetZenithOffset(),
              Looking(180.0, 20.0));
    const RotatingOrientationInfo free(&Sky, Place, low, 20.0, false);
    EXPECT_EQ(
        free.Clone()->GetCenterOfView(),
        RotatingOrientationInfo(&Sky, Place, Looking(180.0, 20.0), 20.0, true).GetCenterOfView())
        << "a clone clips";
    // An observer at a pole of the Earth, or on no body at all.
    const RotatingOrientationInfo south(&Sky, LatLong(-90.0, 0.0), Looking(0.0, 30.0), 20.0, true);
    EXPECT_EQ(south.GetZenith(), PolarCoord(100.0, -89.9));
    EXPECT_NEAR(south.GetCenterOfView().GetDec().GetDegrees(), -30.0, 0.1);
    EXPECT_EQ(RotatingOrientationInfo(nullptr, Place, low, 10, true).GetZenith(),
              PolarCoord(0.0, 89.9));
}

TEST_F(RotatingOrientationInfoTest, ScrollStepsStopShortOfTheZenithAndAtTheHorizonLimit)
{
    // Start offset, direction, amount; whether the step counts and the offset after it.
    const std::tuple<PolarCoord, int, double, bool, PolarCoord> steps[] = {
        {{359.0, 50.0}, AstroScrollInfo::AZIMUTH_UP, 2.0, true, {1.0, 50.0}},
        {{1.0, 50.0}, 7, 2.0, false, {1.0, 50.0}},
        {{90.0, 2.3}, AstroScrollInfo::TOWARDS_ZENITH, 2.0, true, {90.0, 0.4}},
        {{90.0, 0.4}, AstroScrollInfo::TOWARDS_ZENITH, 2.0, false, {90.0, 0.4}},
        // Below the limit, which only clip off allows, a step sideways would be taken back.
        {{180.0, 85.0}, AstroScrollInfo::AZIMUTH_UP, 2.0, false, {180.0, 85.0}},
        {{180.0, 85.0}, AstroScrollInfo::TOWARDS_ZENITH, 2.0, true, {180.0, 70.0}},
    };
    for (const auto& [start, direction, amount, done, after] : steps) {
        RotatingOrientationInfo o(&Sky, Place, start, 20.0, false);
        AstroScrollInfo step(direction, 350, DegreeAngle(amount));
        EXPECT_EQ(o.Scroll(step), done) << start.GetDescription() << " direction " << direction;
        EXPECT_LT(Separation(o.GetZenithOffset(), after), 1e-5) << start.GetDescription();
    }
}
