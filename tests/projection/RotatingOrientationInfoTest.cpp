// The view from a place on the ground: azimuth and zenith distance against the sky of the
// moment, the limit at the horizon, the steps of a scroll and the state.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/AstroScrollInfo.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "projection/Transformation.h"
#include "solar/Earth200.h"
#include "state/CmdLineStateContainer.h"

namespace {

// A body whose zenith is told: right ascension the local sidereal time, declination the
// latitude, as on the Earth, but with a sidereal time that stands still.
class StillBody : public SolarSystemObject
{
public:
    explicit StillBody(double siderealDegrees) : Sidereal(siderealDegrees) {}
    PolarCoord GetZenith(const LatLong& location) override
    {
        return PolarCoord(Sidereal, location.GetLatitude().GetDegrees());
    }
    std::string GetName() override { return "Still"; }

    double Sidereal;
};

// A body with no rotation of its own: the base class's zenith, the pole.
class PlainBody : public SolarSystemObject
{
public:
    std::string GetName() override { return "Plain"; }
};

// The angle between two directions, degrees.
double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double ra1 = a.GetRA().GetRadians();
    const double ra2 = b.GetRA().GetRadians();
    const double d1 = a.GetDec().GetRadians();
    const double d2 = b.GetDec().GetRadians();
    const double c =
        std::sin(d1) * std::sin(d2) + std::cos(d1) * std::cos(d2) * std::cos(ra1 - ra2);
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, c))));
}

// Azimuth (north through west) and altitude of a sky direction, by the spherical triangle of
// pole, zenith and star: independent of the rotations of the orientation.
PolarCoord AzimuthAltitude(const PolarCoord& sky, double siderealDegrees, double latitude)
{
    const double h = DegreesToRadians(siderealDegrees - sky.GetRA().GetDegrees());
    const double dec = sky.GetDec().GetRadians();
    const double lat = DegreesToRadians(latitude);
    const double altitude =
        std::asin(std::sin(lat) * std::sin(dec) + std::cos(lat) * std::cos(dec) * std::cos(h));
    // Measured from the south through west, north and east; then from the north through west.
    const double fromSouth =
        std::atan2(std::sin(h), std::cos(h) * std::sin(lat) - std::tan(dec) * std::cos(lat));
    return PolarCoord(std::fmod(540.0 - RadiansToDegrees(fromSouth), 360.0),
                      RadiansToDegrees(altitude));
}

// The offset of a direction of view: azimuth, and zenith distance from the altitude.
PolarCoord Looking(double azimuth, double altitude)
{
    return PolarCoord(azimuth, 90.0 - altitude);
}

AstroScrollInfo Step(int direction, double amount)
{
    return AstroScrollInfo(direction, 350, DegreeAngle(amount));
}

class RotatingOrientationInfoTest : public ::testing::Test
{
protected:
    // The rotations report the rounding they clamp near the pole of a frame; not looked at.
    void SetUp() override
    {
        Quiet = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Quiet); }

    // Sidereal time 100 degrees: the meridian stands at RA 100.
    StillBody Sky{100.0};
    const LatLong Place{40.0, 0.0};
    DebugSink Quiet;
};

} // namespace

TEST_F(RotatingOrientationInfoTest, StartsEmptyWithClipOnAndRaisesABuiltViewOnlyWithClipOn)
{
    RotatingOrientationInfo empty(&Sky);
    EXPECT_EQ(empty.GetType(), OrientationInfo::ROTATING);
    EXPECT_STREQ(empty.GetTypeName(), "Rotating");
    EXPECT_EQ(empty.GetLocation(), LatLong(0.0, 0.0));
    EXPECT_EQ(empty.GetZenithOffset(), PolarCoord(0.0, 0.0));
    EXPECT_TRUE(empty.GetClipAtHorizon());

    // 5 degrees up with a field of 20: raised to 20 degrees up, or left where it is.
    const RotatingOrientationInfo clipped(&Sky, Place, Looking(180.0, 5.0), 20.0, true);
    EXPECT_EQ(clipped.GetZenithOffset(), PolarCoord(180.0, 70.0));
    RotatingOrientationInfo free(&Sky, Place, Looking(180.0, 5.0), 20.0, false);
    EXPECT_EQ(free.GetZenithOffset(), PolarCoord(180.0, 85.0));

    // Neither a new place nor the switch moves the view.
    free.SetLocation(LatLong(-33.9, 208.8));
    free.SetClipAtHorizon(true);
    EXPECT_EQ(free.GetLocation(), LatLong(-33.9, 208.8));
    EXPECT_EQ(free.GetZenithOffset(), PolarCoord(180.0, 85.0));
}

// Azimuth 0 is north and grows through west: 0 north, 90 west, 180 south, 270 east.
TEST_F(RotatingOrientationInfoTest, TheCompassPointsOfTheHorizonLieWhereTheSkyPutsThem)
{
    // Latitude 40 with the meridian at RA 100. Radius 0, so that the horizon itself is allowed.
    struct Case
    {
        const char* Name;
        double Azimuth;
        PolarCoord Sky;
    };
    const Case cases[] = {
        // Below the pole on the meridian, the pole 40 degrees above it.
        {"north", 0.0, PolarCoord(280.0, 50.0)},
        // On the equator, six hours west of the meridian.
        {"west", 90.0, PolarCoord(10.0, 0.0)},
        {"south", 180.0, PolarCoord(100.0, -50.0)},
        {"east", 270.0, PolarCoord(190.0, 0.0)},
    };
    for (const Case& c : cases) {
        RotatingOrientationInfo o(&Sky, Place, Looking(c.Azimuth, 0.0), 0.0, true);
        EXPECT_LT(Apart(o.GetCenterOfView(), c.Sky), 1e-9) << c.Name;
    }

    // Straight up is the zenith; up to its guard, the place's own.
    RotatingOrientationInfo up(&Sky, Place, Looking(123.0, 90.0), 10.0, true);
    EXPECT_EQ(up.GetZenith(), PolarCoord(100.0, 40.0));
    EXPECT_LT(Apart(up.GetCenterOfView(), PolarCoord(100.0, 40.0)), 1e-9);
}

TEST_F(RotatingOrientationInfoTest, TheOffsetOfADirectionIsItsAzimuthAndZenithDistance)
{
    // Directions all round the sky above the horizon, against the spherical triangle. The
    // frame's arc cosine loses digits next to the meridian (RA 100), hence the margin of a
    // hundred-thousandth of a degree.
    const PolarCoord stars[] = {{30.0, 60.0},  {100.0, 10.0}, {150.0, -20.0},
                                {250.0, 55.0}, {330.0, 50.0}, {95.0, 80.0}};
    for (const PolarCoord& star : stars) {
        const PolarCoord expected = AzimuthAltitude(star, 100.0, 40.0);
        ASSERT_GT(expected.GetDec().GetDegrees(), 0.0) << star.GetDescription();
        RotatingOrientationInfo o(&Sky, Place, PolarCoord(), 0.0, true);
        o.SetCenterOfView(star);
        const PolarCoord offset = o.GetZenithOffset();
        EXPECT_NEAR(
            std::remainder(offset.GetRA().GetDegrees() - expected.GetRA().GetDegrees(), 360.0), 0.0,
            1e-5)
            << star.GetDescription();
        EXPECT_NEAR(offset.GetDec().GetDegrees(), 90.0 - expected.GetDec().GetDegrees(), 1e-5)
            << star.GetDescription();
        // And back: the direction set is the direction seen.
        EXPECT_LT(Apart(o.GetCenterOfView(), star), 1e-5) << star.GetDescription();
    }
}

TEST_F(RotatingOrientationInfoTest, ClipOnKeepsTheLowerEdgeOfTheFieldAtTheHorizon)
{
    // A direction 10 degrees above the horizon in the south, radius 20.
    RotatingOrientationInfo probe(&Sky, Place, Looking(180.0, 10.0), 0.0, false);
    const PolarCoord low = probe.GetCenterOfView();

    RotatingOrientationInfo clipped(&Sky, Place, PolarCoord(), 20.0, true);
    clipped.SetCenterOfView(low);
    EXPECT_NEAR(clipped.GetZenithOffset().GetDec().GetDegrees(), 70.0, 1e-9);
    EXPECT_NEAR(clipped.GetZenithOffset().GetRA().GetDegrees(), 180.0, 1e-9);
    const PolarCoord seen = AzimuthAltitude(clipped.GetCenterOfView(), 100.0, 40.0);
    EXPECT_NEAR(seen.GetDec().GetDegrees(), 20.0, 1e-9) << "the centre stays 20 degrees up";

    RotatingOrientationInfo free(&Sky, Place, PolarCoord(), 20.0, false);
    free.SetCenterOfView(low);
    EXPECT_NEAR(free.GetZenithOffset().GetDec().GetDegrees(), 80.0, 1e-9);
    EXPECT_LT(Apart(free.GetCenterOfView(), low), 1e-9);

    // Nothing holds a view back from the zenith, nor from below the horizon with clip off.
    free.SetCenterOfView(PolarCoord(100.0, 40.0));
    EXPECT_NEAR(free.GetZenithOffset().GetDec().GetDegrees(), 0.0, 1e-6);
    free.SetCenterOfView(PolarCoord(280.0, -60.0));
    EXPECT_NEAR(free.GetZenithOffset().GetDec().GetDegrees(), 160.0, 1e-9);
}

TEST_F(RotatingOrientationInfoTest, TheZenithIsKeptOffThePolesOfTheSky)
{
    EXPECT_EQ(RotatingOrientationInfo::KeepOffPole(PolarCoord(12.0, 89.95)),
              PolarCoord(12.0, 89.9));
    EXPECT_EQ(RotatingOrientationInfo::KeepOffPole(PolarCoord(12.0, -90.0)),
              PolarCoord(12.0, -89.9));
    EXPECT_EQ(RotatingOrientationInfo::KeepOffPole(PolarCoord(12.0, 89.85)),
              PolarCoord(12.0, 89.85));
    EXPECT_EQ(RotatingOrientationInfo::KeepOffPole(PolarCoord(12.0, 0.0)), PolarCoord(12.0, 0.0));

    // An observer at either pole of the Earth.
    RotatingOrientationInfo north(&Sky, LatLong(90.0, 0.0), Looking(180.0, 30.0), 20.0, true);
    EXPECT_EQ(north.GetZenith(), PolarCoord(100.0, 89.9));
    RotatingOrientationInfo south(&Sky, LatLong(-90.0, 0.0), Looking(0.0, 30.0), 20.0, true);
    EXPECT_EQ(south.GetZenith(), PolarCoord(100.0, -89.9));
    // The view there is still a direction 30 degrees above the horizon, that is at Dec 30
    // (-30 in the south), within the tenth of a degree of the guard.
    EXPECT_NEAR(north.GetCenterOfView().GetDec().GetDegrees(), 30.0, 0.1);
    EXPECT_NEAR(south.GetCenterOfView().GetDec().GetDegrees(), -30.0, 0.1);
    EXPECT_TRUE(std::isfinite(north.GetCenterOfView().GetRA().GetDegrees()));

    // A body that does not turn, or none at all, puts the observer at its pole.
    PlainBody plain;
    RotatingOrientationInfo onPlain(&plain, Place, Looking(0.0, 45.0), 10.0, true);
    EXPECT_EQ(onPlain.GetZenith(), PolarCoord(0.0, 89.9));
    RotatingOrientationInfo nowhere(nullptr, Place, Looking(0.0, 45.0), 10.0, true);
    EXPECT_EQ(nowhere.GetZenith(), PolarCoord(0.0, 89.9));
    EXPECT_NEAR(nowhere.GetCenterOfView().GetDec().GetDegrees(), 45.0, 0.1);
}

TEST_F(RotatingOrientationInfoTest, OnTheTurningEarthTheViewStaysOnTheHorizonAsTheStarsMove)
{
    // 2000 January 1, 12h UT at Greenwich: sidereal time 18.6973746 hours.
    Earth200 earth;
    earth.SetTime(AstroTime(51544.5, false));
    const LatLong greenwich(51.5, 0.0);
    RotatingOrientationInfo o(&earth, greenwich, Looking(180.0, 30.0), 20.0, true);
    const PolarCoord zenith = o.GetZenith();
    EXPECT_NEAR(zenith.GetRA().GetDegrees(), 18.6973746 * 15.0, 1e-5);
    EXPECT_DOUBLE_EQ(zenith.GetDec().GetDegrees(), 51.5);
    // Looking south at 30 degrees: on the meridian, 38.5 degrees below the equator's top.
    const PolarCoord before = o.GetCenterOfView();
    EXPECT_NEAR(before.GetRA().GetDegrees(), zenith.GetRA().GetDegrees(), 1e-9);
    EXPECT_NEAR(before.GetDec().GetDegrees(), -8.5, 1e-9);

    // An hour later the same offset looks at a point of the sky 15.04 degrees further east.
    earth.SetTime(AstroTime(51544.5 + 1.0 / 24.0, false));
    const PolarCoord after = o.GetCenterOfView();
    EXPECT_EQ(o.GetZenithOffset(), Looking(180.0, 30.0));
    EXPECT_NEAR(after.GetRA().GetDegrees() - before.GetRA().GetDegrees(), 15.0 * 1.0027379093,
                1e-6);
    EXPECT_NEAR(after.GetDec().GetDegrees(), -8.5, 1e-9);
}

// On the map's screen the zenith is up and, facing south, west is to the right.
TEST_F(RotatingOrientationInfoTest, AViewBuiltFromItHasTheZenithUpAndTheHorizonLevel)
{
    TestDevice device;
    const TRect rect(0, 0, 400, 400);
    RotatingOrientationInfo o(&Sky, Place, Looking(180.0, 30.0), 20.0, true);
    const Transformation t(device.DC(), rect, o.GetCenterOfView(), o.GetFieldRadius(),
                           o.GetZenith());
    auto seen = [&](double azimuth, double altitude) {
        RotatingOrientationInfo probe(&Sky, Place, Looking(azimuth, altitude), 0.0, false);
        TPoint p;
        t.Translate(probe.GetCenterOfView(), p);
        return p;
    };
    EXPECT_EQ(seen(180.0, 30.0), TPoint(200, 200));
    const TPoint higher = seen(180.0, 40.0);
    EXPECT_EQ(higher.x, 200);
    EXPECT_LT(higher.y, 200);
    // Azimuth runs south, west, north, east: 170 lies west of south, 190 east of it.
    const TPoint west = seen(170.0, 30.0);
    EXPECT_GT(west.x, 200);
    const TPoint east = seen(190.0, 30.0);
    EXPECT_LT(east.x, 200);
    // Both at the same height: the horizon and its parallels lie level.
    EXPECT_EQ(west.y, east.y);
    EXPECT_EQ(west.x - 200, 200 - east.x);
}

TEST_F(RotatingOrientationInfoTest, ScrollingTurnsAlongTheHorizonWithTheAzimuthNormalised)
{
    RotatingOrientationInfo o(&Sky, Place, PolarCoord(359.0, 50.0), 20.0, true);
    AstroScrollInfo up = Step(AstroScrollInfo::AZIMUTH_UP, 2.0);
    EXPECT_TRUE(o.Scroll(up));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetRA().GetDegrees(), 1.0) << "361 is 1";
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 50.0);

    AstroScrollInfo down = Step(AstroScrollInfo::AZIMUTH_DOWN, 2.5);
    EXPECT_TRUE(o.Scroll(down));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetRA().GetDegrees(), -1.5);
    // A negative azimuth is the same direction as its positive twin.
    RotatingOrientationInfo twin(&Sky, Place, PolarCoord(358.5, 50.0), 20.0, true);
    EXPECT_LT(Apart(o.GetCenterOfView(), twin.GetCenterOfView()), 1e-9);

    AstroScrollInfo nowhere = Step(7, 2.0);
    EXPECT_FALSE(o.Scroll(nowhere));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetRA().GetDegrees(), -1.5);
}

TEST_F(RotatingOrientationInfoTest, ScrollingUpStopsJustShortOfTheZenith)
{
    RotatingOrientationInfo o(&Sky, Place, PolarCoord(90.0, 6.0), 20.0, true);
    AstroScrollInfo up = Step(AstroScrollInfo::TOWARDS_ZENITH, 2.0);
    EXPECT_TRUE(o.Scroll(up));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 4.0);
    EXPECT_TRUE(o.Scroll(up));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 2.0);
    // 2.0 is less than a step and a half degree: the last step stops at 0.4.
    EXPECT_TRUE(o.Scroll(up));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 0.4);
    EXPECT_FALSE(o.Scroll(up));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 0.4);

    RotatingOrientationInfo near(&Sky, Place, PolarCoord(90.0, 2.3), 20.0, true);
    EXPECT_TRUE(near.Scroll(up));
    EXPECT_DOUBLE_EQ(near.GetZenithOffset().GetDec().GetDegrees(), 0.4);
    EXPECT_FALSE(near.Scroll(up));
}

TEST_F(RotatingOrientationInfoTest, ScrollingDownStopsAtTheHorizonLimitWhateverTheClipFlag)
{
    RotatingOrientationInfo o(&Sky, Place, PolarCoord(180.0, 67.0), 20.0, false);
    AstroScrollInfo down = Step(AstroScrollInfo::TOWARDS_HORIZON, 2.0);
    EXPECT_TRUE(o.Scroll(down));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 69.0);
    // 71 is cut back to the limit, a real move of one degree.
    EXPECT_TRUE(o.Scroll(down));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 70.0);
    // At the limit the step is taken back, and still counts as done.
    EXPECT_TRUE(o.Scroll(down));
    EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), 70.0);
    EXPECT_FALSE(o.GetClipAtHorizon()) << "scrolling does not touch the flag";

    // A view below the limit, which only clip off allows, cannot turn sideways: the limit
    // would take the whole step back.
    RotatingOrientationInfo below(&Sky, Place, PolarCoord(180.0, 85.0), 20.0, false);
    AstroScrollInfo side = Step(AstroScrollInfo::AZIMUTH_UP, 2.0);
    EXPECT_FALSE(below.Scroll(side));
    EXPECT_EQ(below.GetZenithOffset(), PolarCoord(180.0, 85.0));
    // A step up from there moves it, to the limit.
    AstroScrollInfo up = Step(AstroScrollInfo::TOWARDS_ZENITH, 2.0);
    EXPECT_TRUE(below.Scroll(up));
    EXPECT_DOUBLE_EQ(below.GetZenithOffset().GetDec().GetDegrees(), 70.0);
}

TEST_F(RotatingOrientationInfoTest, CloneAlwaysClipsWhileACopyKeepsTheFlag)
{
    const RotatingOrientationInfo low(&Sky, Place, PolarCoord(200.0, 85.0), 20.0, false);
    std::unique_ptr<OrientationInfo> clone = low.Clone();
    auto* rotating = dynamic_cast<RotatingOrientationInfo*>(clone.get());
    ASSERT_NE(rotating, nullptr);
    EXPECT_EQ(rotating->GetOrigin(), &Sky);
    EXPECT_EQ(rotating->GetLocation(), Place);
    EXPECT_EQ(rotating->GetFieldRadius(), 20.0);
    EXPECT_TRUE(rotating->GetClipAtHorizon());
    EXPECT_EQ(rotating->GetZenithOffset(), PolarCoord(200.0, 70.0)) << "raised to the limit";

    const RotatingOrientationInfo copy(low);
    EXPECT_EQ(copy, low);
    EXPECT_FALSE(copy.GetClipAtHorizon());
    EXPECT_EQ(copy.GetZenithOffset(), PolarCoord(200.0, 85.0));

    // Every field counts for equality.
    const RotatingOrientationInfo base(&Sky, Place, PolarCoord(200.0, 50.0), 20.0, true);
    EXPECT_EQ(base, RotatingOrientationInfo(&Sky, Place, PolarCoord(200.0, 50.0), 20.0, true));
    EXPECT_NE(base, RotatingOrientationInfo(&Sky, LatLong(41.0, 0.0), PolarCoord(200.0, 50.0), 20.0,
                                            true));
    EXPECT_NE(base, RotatingOrientationInfo(&Sky, Place, PolarCoord(200.0, 50.0), 20.0, false));
}

TEST_F(RotatingOrientationInfoTest, StateHoldsRadiusLocationAndOffsetButNotTheClipFlag)
{
    const RotatingOrientationInfo o(&Sky, LatLong(37.8, 122.4), PolarCoord(270.0, 60.0), 20.0,
                                    true);
    CmdLineStateContainer writer;
    writer << AstroKey("Orientation") << o;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Orientation=<Base=<Radius=20> Location=<Lat=37.8 Long=122.4> "
              "Zenith_Offset=<RA=270 Dec=60>>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    RotatingOrientationInfo restored(nullptr);
    restored.SetClipAtHorizon(false);
    reader >> AstroKey("Orientation") >> restored;
    EXPECT_EQ(restored.GetFieldRadius(), 20.0);
    EXPECT_EQ(restored.GetLocation(), LatLong(37.8, 122.4));
    EXPECT_EQ(restored.GetZenithOffset(), PolarCoord(270.0, 60.0));
    EXPECT_FALSE(restored.GetClipAtHorizon()) << "the flag it was built with";
    EXPECT_EQ(restored.GetOrigin(), nullptr) << "the origin is not state";

    // What is missing reads as 0.
    CmdLineStateContainer empty(HostCmdLine("Other=<Radius=5>"));
    RotatingOrientationInfo zeroed(&Sky, Place, PolarCoord(1.0, 2.0), 5.0, true);
    empty >> AstroKey("Orientation") >> zeroed;
    EXPECT_EQ(zeroed.GetFieldRadius(), 0.0);
    EXPECT_EQ(zeroed.GetLocation(), LatLong(0.0, 0.0));
    EXPECT_EQ(zeroed.GetZenithOffset(), PolarCoord(0.0, 0.0));
}
