// The map's questions about the sky: whether an object can rise, when a direction or a body
// that moves crosses the horizon, and when the night begins.
//
// Rise and set times are checked against an independent reckoning made here: the Sun from the
// low-precision formulae of the Astronomical Almanac (about 0.01 degree, 1950 to 2050), sidereal
// time from the IAU 1982 expression, and the crossing of altitude 0 found by bisection. The map
// takes sidereal hours for solar hours, so its times are late by up to four minutes (hours after
// 0h UT times 0.00273); a tolerance of 5 minutes holds that with room.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "MapFixture.h"
#include "catalogues/Star.h"
#include "projection/RotatingOrientationInfo.h"
#include "solar/PlanetCatalogue.h"
#include "solar/SolarSystemObject.h"
#include "time/TimeStep.h"

namespace {

constexpr double kMinutesPerDay = 1440.0;

// The altitude in degrees of a direction (degrees) at a Modified Julian Date, for a place with
// longitude positive west.
double AltitudeAt(double mjd, double ra, double dec, double latitude, double westLongitude)
{
    const double gmst = 280.46061837 + 360.98564736629 * (mjd - 51544.5);
    const double hourAngle = DegreesToRadians(gmst - westLongitude - ra);
    const double lat = DegreesToRadians(latitude);
    const double d = DegreesToRadians(dec);
    return RadiansToDegrees(
        std::asin(std::sin(lat) * std::sin(d) + std::cos(lat) * std::cos(d) * std::cos(hourAngle)));
}

// The Sun's altitude, from its apparent place by the Almanac's low-precision formulae.
double SunAltitudeAt(double mjd, double latitude, double westLongitude)
{
    const double n = mjd - 51544.5;
    const double g = DegreesToRadians(357.528 + 0.9856003 * n);
    const double lambda =
        DegreesToRadians(280.460 + 0.9856474 * n + 1.915 * std::sin(g) + 0.020 * std::sin(2.0 * g));
    const double epsilon = DegreesToRadians(23.439 - 0.0000004 * n);
    const double ra = std::atan2(std::cos(epsilon) * std::sin(lambda), std::cos(lambda));
    const double dec = std::asin(std::sin(epsilon) * std::sin(lambda));
    return AltitudeAt(mjd, RadiansToDegrees(ra), RadiansToDegrees(dec), latitude, westLongitude);
}

// The next moment after `from` at which the Sun's centre sinks below altitude 0: steps of 5
// minutes to bracket it, then halving to well under a second.
double NextSunCrossing(double from, double latitude, double westLongitude)
{
    auto crossed = [&](double mjd) { return SunAltitudeAt(mjd, latitude, westLongitude) < 0.0; };
    double before = from;
    while (crossed(before)) {
        before += 5.0 / kMinutesPerDay;
    }
    double after = before;
    while (!crossed(after)) {
        before = after;
        after += 5.0 / kMinutesPerDay;
    }
    for (int i = 0; i < 30; ++i) {
        const double middle = 0.5 * (before + after);
        (crossed(middle) ? after : before) = middle;
    }
    return after;
}

class MapSkyEventsTest : public MapTest
{
protected:
    // The map on the ground at a place (longitude positive west), looking south, at a time.
    MapWindow& StandAt(double latitude, double westLongitude, const AstroTime& time)
    {
        MapWindow& map = pHost ? Map() : Open(64, 48);
        map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(),
                                                   LatLong(latitude, westLongitude),
                                                   PolarCoord(180.0, 60.0), 20.0, true));
        map.SetTime(time);
        Pump();
        return map;
    }
};

} // namespace

TEST_F(MapSkyEventsTest, ARisingLaterThanTheMapsTimeOfDayFallsOnTheNextDay)
{
    // From 40 north on the meridian of Greenwich, a star of RA 18 and Dec 10 is up at 0h UT on
    // 2000 January 1, sets about an hour later and rises again near noon: on the horizon
    // within the minutes the method allows (some 11 degrees an hour).
    MapWindow& map = StandAt(40.0, 0.0, AstroTime(1, 1, 2000, 0.0));
    const AstroTime rise = map.GetRiseTime(PolarCoord(18.0, 10.0));
    const AstroTime set = map.GetSetTime(PolarCoord(18.0, 10.0));
    for (const auto& [time, rising] : {std::pair{rise, true}, {set, false}}) {
        const double altitude = AltitudeAt(time.GetMJD(), 18.0, 10.0, 40.0, 0.0);
        EXPECT_NEAR(altitude, 0.0, 0.6) << time.GetDescription1();
        EXPECT_EQ(AltitudeAt(time.GetMJD() + 0.01, 18.0, 10.0, 40.0, 0.0) > altitude, rising);
    }
    // A minute after that rising, the next one is a day later.
    map.SetTime(rise + TimeStep(TimeStep::MINUTES, 1));
    EXPECT_NEAR(map.GetRiseTime(PolarCoord(18.0, 10.0)).GetMJD() - rise.GetMJD(), 1.0, 1e-5);

    // A star south of -50 never rises here and one north of +50 never sets: neither crosses
    // the horizon, nor does anything for an observer at a pole of the Earth.
    EXPECT_FALSE(map.ObjectCanRise(Star(5, 2.0, PolarCoord(100.0, -60.0))));
    EXPECT_EQ(map.GetRiseTime(PolarCoord(100.0, -60.0)), map.GetTime());
    EXPECT_EQ(map.GetSetTime(PolarCoord(100.0, 70.0)), map.GetTime());
    // A body that moves is followed to its rising, then put back at the map's time, as is
    // the Earth.
    PlanetView& mars = *map.GetCollector().GetPlanetCatalogue().GetView(3);
    EXPECT_GT(map.GetRiseTime(mars).GetMJD(), map.GetTime().GetMJD());
    EXPECT_EQ(mars.GetSolarSystemObject().GetTime(), map.GetTime());
    EXPECT_EQ(map.GetCollector().GetOrigin()->GetTime(), map.GetTime());
    StandAt(90.0, 0.0, map.GetTime());
    EXPECT_EQ(map.GetRiseTime(PolarCoord(100.0, -10.0)), map.GetTime());
}

TEST_F(MapSkyEventsTest, TheNightBeginsNowWhileTheSunIsDownElseAtTheNextSunset)
{
    // The Sun at Dec 23.4 stays up wherever 90 less the latitude is below that; at the equator
    // the night begins at sunset whatever the season; at Tokyo at local noon on the June
    // solstice the Sun sets near 10h UT, early in the day of UT.
    for (const auto& [latitude, west, time, now] :
         std::vector<std::tuple<double, double, AstroTime, bool>>{
             {51.48, 0.0, AstroTime(1, 1, 2000, 0.0), true},
             {80.0, 0.0, AstroTime(21, 6, 2000, 12.0), true},
             {-80.0, 0.0, AstroTime(21, 12, 2000, 0.0), true},
             {0.0, 0.0, AstroTime(21, 6, 2000, 12.0), false},
             {0.0, 0.0, AstroTime(21, 12, 2000, 12.0), false},
             {35.68, 360.0 - 139.69, AstroTime(21, 6, 2000, 3.0), false},
         }) {
        SCOPED_TRACE(testing::Message() << latitude << " at " << time.GetDescription1());
        const AstroTime dark = StandAt(latitude, west, time).GetNearestDarkTime();
        const double reckoned =
            now ? time.GetMJD() : NextSunCrossing(time.GetMJD(), latitude, west);
        EXPECT_LT(std::fabs(dark.GetMJD() - reckoned) * kMinutesPerDay, now ? 1e-6 : 5.0);
        EXPECT_GE(dark.GetMJD(), reckoned - 0.5 / kMinutesPerDay) << "never early";
    }
}
