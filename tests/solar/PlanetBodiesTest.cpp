// The planets as bodies: the series behind each, the Sun at the origin, Saturn's pole and
// rings, and the phase laws.
#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/Mercury200.h"
#include "solar/Neptune200.h"
#include "solar/Pluto200.h"
#include "solar/Saturn200.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"
#include "solar/Uranus200.h"
#include "solar/Venus200.h"

#include <cmath>
#include <set>
#include <string>

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

// Every body of the series, set to one time.
class SolarSystemAtEpoch : public ::testing::Test
{
protected:
    void SetTo(double T)
    {
        for (SolarSystemObject* body : All()) {
            body->SetTime(AtCenturies(T));
        }
    }
    std::vector<SolarSystemObject*> All()
    {
        return {&mercury, &venus,  &earth,   &mars,  &jupiter,
                &saturn,  &uranus, &neptune, &pluto, &sun};
    }

    Sun200 sun;
    Mercury200 mercury;
    Venus200 venus;
    Earth200 earth;
    Mars200 mars;
    Jupiter200 jupiter;
    Saturn200 saturn{sun};
    Uranus200 uranus;
    Neptune200 neptune;
    Pluto200 pluto;
};

} // namespace

TEST_F(SolarSystemAtEpoch, BodiesHoldThePlacesOfTheirSeries)
{
    // L and B in degrees, R in AU, at T = 0.2; the record and the rectangular position agree.
    SetTo(0.2);
    const std::pair<SolarSystemObject*, std::array<double, 3>> cases[] = {
        {&mercury, {263.8315, -4.0577, 0.46598}}, {&venus, {5.2312, -3.2223, 0.72621}},
        {&earth, {100.5284, 0.0001, 0.98328}},    {&mars, {214.3794, 0.4893, 1.58924}},
        {&jupiter, {276.0970, 0.1044, 5.22739}},  {&saturn, {292.5315, 0.0561, 10.03436}},
        {&uranus, {35.3253, -0.4839, 19.81859}},  {&neptune, {348.0034, -1.0399, 29.93246}},
        {&pluto, {292.7535, -0.6721, 33.95124}},
    };
    for (const auto& [body, expected] : cases) {
        SCOPED_TRACE(body->GetName());
        EXPECT_NEAR(
            std::remainder(body->GetHelioLongitude() * kDegreesPerRadian - expected[0], 360.0), 0.0,
            0.00005);
        EXPECT_NEAR(body->GetHelioLatitude() * kDegreesPerRadian, expected[1], 0.00005);
        EXPECT_NEAR(body->GetHelioRadius(), expected[2], 0.000005);
        EXPECT_NEAR(body->GetHelioDistance(), body->GetHelioRadius(), 1e-12);
        const SphericalCoord fromPosition(body->GetHelioPosition());
        EXPECT_NEAR(fromPosition.GetLatitude(), body->GetHelioLatitude(), 1e-12);
        // The velocity is prograde: along the direction of increasing longitude.
        const RectCoord& p = body->GetHelioPosition();
        const RectCoord& v = body->GetHelioVelocity();
        EXPECT_GT(p.GetX() * v.GetY() - p.GetY() * v.GetX(), 0.0);
    }
}

TEST_F(SolarSystemAtEpoch, SunStaysAtTheOriginAtAnyTime)
{
    for (double T : {-20.0, 0.0, 0.37, 15.0}) {
        sun.SetTime(AtCenturies(T));
        for (const RectCoord& v : {sun.GetHelioPosition(), sun.GetHelioVelocity()}) {
            EXPECT_EQ(v.GetX(), 0.0);
            EXPECT_EQ(v.GetY(), 0.0);
            EXPECT_EQ(v.GetZ(), 0.0);
        }
    }
}

TEST_F(SolarSystemAtEpoch, SaturnFacesTheEarthAndTheSun)
{
    SetTo(0.0);
    DegreeAngle latitude, longitude;
    ASSERT_TRUE(saturn.GetSubObserverPoint(earth, latitude, longitude));
    EXPECT_NEAR(latitude.GetDegrees(), -19.093, 0.0005);
    EXPECT_NEAR(longitude.GetDegrees(), 96.964, 0.0005);
    ASSERT_TRUE(saturn.GetSubObserverPoint(sun, latitude, longitude));
    EXPECT_NEAR(latitude.GetDegrees(), -20.810, 0.0005);
    EXPECT_NEAR(longitude.GetDegrees(), 89.016, 0.0005);
}

TEST_F(SolarSystemAtEpoch, SaturnsMagnitudeFollowsItsRings)
{
    SetTo(0.0);
    EXPECT_NEAR(earth.GetMagnitudeOf(saturn), 0.20, 0.005);
    // Over its orbit the rings open and close: Saturn stays between magnitude -0.6 and 1.5.
    for (double T = -0.3; T <= 0.3; T += 0.0123) {
        SetTo(T);
        const double m = earth.GetMagnitudeOf(saturn);
        EXPECT_GT(m, -0.6) << T;
        EXPECT_LT(m, 1.5) << T;
    }
}

TEST_F(SolarSystemAtEpoch, SaturnsLongitudeRunsWithItsRotation)
{
    // The sub-Earth longitude lies in 0 to 360 and, counted westward on a planet that turns
    // the direct way, grows by the rotation of 844.3 degrees a day, less a small change of
    // direction.
    SetTo(0.0);
    DegreeAngle latitude, first, later;
    saturn.GetSubObserverPoint(earth, latitude, first);
    SetTo(1.0 / 36525.0);
    saturn.GetSubObserverPoint(earth, latitude, later);
    EXPECT_GE(later.GetDegrees(), 0.0);
    EXPECT_LT(later.GetDegrees(), 360.0);
    EXPECT_NEAR(std::remainder(later.GetDegrees() - first.GetDegrees() - 844.3, 360.0), 0.0, 0.5);
}

TEST_F(SolarSystemAtEpoch, MarsPhaseAngleAndMagnitude)
{
    SetTo(0.0);
    EXPECT_NEAR(earth.GetPhaseAngleOf(mars).GetDegrees(), 31.47, 0.005);
    EXPECT_NEAR(earth.GetMagnitudeOf(mars), 1.04, 0.005);
}

TEST_F(SolarSystemAtEpoch, MagnitudesOverADecadeStayInTheirKnownRanges)
{
    // The brightest and faintest of each planet as seen from the Earth, with a margin.
    struct Range
    {
        SolarSystemObject* Body;
        double Brightest, Faintest;
    };
    const Range ranges[] = {{&mercury, -2.6, 6.0},  {&venus, -5.0, -3.0}, {&mars, -3.0, 2.0},
                            {&jupiter, -3.0, -1.5}, {&uranus, 5.3, 6.1},  {&neptune, 7.6, 8.0},
                            {&pluto, 13.5, 16.5}};
    for (double T = 0.0; T <= 0.1; T += 0.00171) {
        SetTo(T);
        for (const Range& range : ranges) {
            const double m = earth.GetMagnitudeOf(*range.Body);
            EXPECT_GT(m, range.Brightest) << range.Body->GetName() << " " << T;
            EXPECT_LT(m, range.Faintest) << range.Body->GetName() << " " << T;
        }
    }
}

TEST_F(SolarSystemAtEpoch, OnlyTheSunAndTheMoonAreNoObservers)
{
    // Magnitudes asked of the Sun have no observer behind them.
    SetTo(0.0);
    EXPECT_EQ(sun.GetMagnitudeOf(mars), 99.0);
    EXPECT_EQ(sun.GetPhaseAngleOf(mars).GetDegrees(), 0.0);
}

TEST_F(SolarSystemAtEpoch, NamesAndSensesOfRotation)
{
    std::set<std::string> names;
    for (SolarSystemObject* body : All()) {
        names.insert(body->GetName());
    }
    EXPECT_EQ(names.size(), 10u);
    EXPECT_EQ(mars.GetName(), "Mars");
    EXPECT_EQ(sun.GetName(), "Sun");
    for (SolarSystemObject* body : All()) {
        const bool retrograde = body == &venus || body == &uranus || body == &pluto;
        EXPECT_EQ(body->GetRotationSense(), retrograde ? -1 : 1) << body->GetName();
    }
}
