#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Moon.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"

#include <cmath>

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

double AngleApart(double a, double b)
{
    return std::fabs(std::remainder(a - b, 360.0));
}

// The Earth, the Sun and the Moon at one time, the Earth first as the Moon needs it.
class MoonAndEarth : public ::testing::Test
{
protected:
    void SetTo(double T)
    {
        earth.SetTime(AtCenturies(T));
        sun.SetTime(AtCenturies(T));
        moon.SetTime(AtCenturies(T));
    }

    Earth200 earth;
    Sun200 sun;
    Moon moon{earth, sun};
};

} // namespace

TEST_F(MoonAndEarth, GeocentricPlaceAtTheEpoch)
{
    SetTo(0.0);
    const SphericalCoord place = earth.GetGeometricPlace(moon);
    EXPECT_LE(AngleApart(place.GetLongitude() * kDegreesPerRadian, 223.3189), 0.00005);
    EXPECT_NEAR(place.GetLatitude() * kDegreesPerRadian, 5.1709, 0.00005);
    EXPECT_NEAR(place.GetRadius(), 0.00269013, 0.000000005);
    EXPECT_NEAR(place.GetRadius() * 149597870.0, 402438.0, 0.5);
}

TEST_F(MoonAndEarth, GeocentricPlaceFiveCenturiesOn)
{
    SetTo(0.2);
    const SphericalCoord place = earth.GetGeometricPlace(moon);
    EXPECT_LE(AngleApart(place.GetLongitude() * kDegreesPerRadian, 352.0797), 0.00005);
    EXPECT_NEAR(place.GetLatitude() * kDegreesPerRadian, -5.0741, 0.00005);
    EXPECT_NEAR(place.GetRadius(), 0.00270301, 0.000000005);
}

TEST_F(MoonAndEarth, ApparentPlaceAndPhaseAtTheEpoch)
{
    SetTo(0.0);
    const SphericalCoord place = earth.GetApparentPlace(moon);
    EXPECT_LE(AngleApart(place.GetLongitude() * kDegreesPerRadian, 222.4406), 0.00005);
    EXPECT_NEAR(place.GetLatitude() * kDegreesPerRadian, -10.8974, 0.00005);
    EXPECT_NEAR(moon.GetPhase().GetDegrees(), 302.94, 0.005);
}

TEST_F(MoonAndEarth, HeliocentricRecordIsTheEarthsPlusTheMoonsOwn)
{
    SetTo(0.1);
    const RectCoord& moonAt = moon.GetHelioPosition();
    const RectCoord& earthAt = earth.GetHelioPosition();
    const SphericalCoord geocentric = earth.GetGeometricPlace(moon);
    EXPECT_NEAR(geocentric.GetRadius(), moon.GetDistanceTo(earth), 1e-15);
    EXPECT_NEAR(moon.GetHelioDistance(), moon.GetHelioRadius(), 1e-15);
    EXPECT_NEAR(std::hypot(moonAt.GetX() - earthAt.GetX(), moonAt.GetY() - earthAt.GetY(),
                           moonAt.GetZ() - earthAt.GetZ()),
                geocentric.GetRadius(), 1e-15);
    const SphericalCoord helio(moonAt);
    EXPECT_DOUBLE_EQ(helio.GetLongitude(), moon.GetHelioLongitude());
    // No velocity of its own.
    EXPECT_EQ(moon.GetHelioVelocity().GetX(), 0.0);
    EXPECT_EQ(moon.GetHelioVelocity().GetY(), 0.0);
    EXPECT_EQ(moon.GetHelioVelocity().GetZ(), 0.0);
}

TEST_F(MoonAndEarth, PhaseIsComputedOnceForEachPosition)
{
    SetTo(0.0);
    const double first = moon.GetPhase().GetDegrees();
    // The Earth moves on while the Moon keeps its time: the phase already computed stays.
    earth.SetTime(AtCenturies(0.001));
    EXPECT_EQ(moon.GetPhase().GetDegrees(), first);
    // A new time for the Moon makes it compute again, from the Earth as it now stands.
    moon.SetTime(AtCenturies(0.001));
    EXPECT_NE(moon.GetPhase().GetDegrees(), first);
}

TEST_F(MoonAndEarth, PhaseRunsThroughALunation)
{
    // Near new moon the phase lies close to 0 or 360, near full moon close to 180; over one
    // synodic month of 29.53 days it runs once through every value, 12.2 degrees a day.
    SetTo(0.0);
    const double start = moon.GetPhase().GetDegrees();
    double previous = start;
    double travelled = 0.0;
    for (int day = 1; day <= 59; ++day) {
        SetTo(day * 0.5 / 36525.0);
        const double phase = moon.GetPhase().GetDegrees();
        ASSERT_GE(phase, 0.0);
        ASSERT_LT(phase, 360.0);
        travelled += std::remainder(phase - previous, 360.0);
        previous = phase;
    }
    EXPECT_NEAR(travelled / 29.5, 12.19, 0.4);
}

TEST_F(MoonAndEarth, NameAndMagnitude)
{
    EXPECT_EQ(moon.GetName(), "Moon");
    EXPECT_EQ(moon.GetBaseMagnitude(), -10.0);
    // The Moon is no origin for magnitudes.
    SetTo(0.0);
    EXPECT_EQ(moon.GetMagnitudeOf(sun), 99.0);
}
