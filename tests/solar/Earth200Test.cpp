// The Earth as the observer: apparent places, nutation and sidereal time.
#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"

#include <cmath>
#include <tuple>

namespace {

// The Earth with its nutation open to the test.
class OpenEarth : public Earth200
{
public:
    using Earth200::ApplyNutation;
};

} // namespace

TEST(Earth200, ApparentPlacesAtTheEpoch)
{
    // The published places at T = 0: right ascension and declination in degrees to four
    // decimals, distance in AU to five.
    Earth200 earth;
    Sun200 sun;
    Mars200 mars;
    Jupiter200 jupiter;
    const std::tuple<SolarSystemObject*, double, double, double> cases[] = {
        {&sun, 281.2774, -23.0325, 0.98333},
        {&mars, 330.5163, -13.1826, 1.84954},
        {&jupiter, 23.8682, 8.5943, 4.62074},
    };
    const AstroTime epoch(51544.5, false);
    earth.SetTime(epoch);
    for (const auto& [body, ra, dec, distance] : cases) {
        body->SetTime(epoch);
        const SphericalCoord place = earth.GetApparentPlace(*body);
        EXPECT_NEAR(std::remainder(place.GetLongitude() * kDegreesPerRadian - ra, 360.0), 0.0,
                    0.00005)
            << body->GetName();
        EXPECT_NEAR(place.GetLatitude() * kDegreesPerRadian, dec, 0.00005) << body->GetName();
        EXPECT_NEAR(place.GetRadius(), distance, 0.000005) << body->GetName();
    }
}

TEST(Earth200, NutationAtTheEpoch)
{
    // dpsi = -14.03 and deps = -5.77 arcseconds. On the x axis nutation moves a vector by
    // dpsi cos eps along y and dpsi sin eps along z; on the y axis by deps along z.
    OpenEarth earth;
    earth.SetTime(AstroTime(51544.5, false));
    const double eps = 0.4090928;
    const double arcsecond = 1.0 / 206264.8062;

    RectCoord x(1.0, 0.0, 0.0), y(0.0, 1.0, 0.0);
    EXPECT_TRUE(earth.ApplyNutation(x));
    earth.ApplyNutation(y);
    EXPECT_NEAR(x.GetY() / std::cos(eps) / arcsecond, -14.03, 0.005);
    EXPECT_NEAR(x.GetZ() / std::sin(eps) / arcsecond, -14.03, 0.005);
    EXPECT_NEAR(y.GetZ() / arcsecond, -5.77, 0.005);
}

TEST(Earth200, SiderealTimes)
{
    // Mean sidereal times in hours. 2000 January 1, 12h, at longitudes 0, 15 west and 15 east
    // (345 west): the published values. 1987 April 10 at 19h 21m UT at Greenwich, and at the
    // midnight before: Meeus, Astronomical Algorithms, examples 12.b (8h 34m 57.0896s) and
    // 12.a (13h 10m 46.3668s). 1856 February 15 at 18h UT, before MJD 0, whose midnight is
    // still the one before it: Meeus's formula 12.4 at both times.
    const std::tuple<double, double, double, double> cases[] = {
        // MJD, longitude west, local and midnight sidereal time
        {51544.5, 0.0, 18.6973746, 6.6645196},   {51544.5, 15.0, 17.6973746, 5.6645196},
        {51544.5, 345.0, 19.6973746, 7.6645196}, {46895.80625, 0.0, 8.5825249, 13.1795463},
        {-1000.25, 0.0, 3.9911314, 9.9418491},
    };
    for (const auto& [mjd, west, local, midnight] : cases) {
        Earth200 earth;
        earth.SetTime(AstroTime(mjd, false));
        const LatLong place(51.5, west);
        EXPECT_NEAR(earth.GetLocalSiderealTime(place).GetDegrees() / 15.0, local, 1e-7)
            << mjd << " " << west;
        EXPECT_NEAR(earth.GetMidnightSiderealTime(place).GetDegrees() / 15.0, midnight, 1e-7)
            << mjd << " " << west;
    }
}
