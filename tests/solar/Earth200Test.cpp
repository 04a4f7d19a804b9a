// The Earth as the observer: apparent places, nutation, sidereal time and the zenith.
#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"

#include <cmath>

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

// The Earth with its nutation open to the test.
class OpenEarth : public Earth200
{
public:
    using Earth200::ApplyNutation;
    using Earth200::EclipticToEquatorial;
};

double AngleApart(double a, double b)
{
    return std::fabs(std::remainder(a - b, 360.0));
}

} // namespace

TEST(Earth200, ApparentPlacesAtTheEpoch)
{
    // Right ascension and declination in degrees to four decimals, distance in AU to five.
    struct Expected
    {
        const char* Name;
        double RA, Dec, Distance;
    };
    Earth200 earth;
    Sun200 sun;
    Mars200 mars;
    Jupiter200 jupiter;
    const AstroTime epoch = AtCenturies(0.0);
    earth.SetTime(epoch);
    sun.SetTime(epoch);
    mars.SetTime(epoch);
    jupiter.SetTime(epoch);

    const std::pair<SolarSystemObject*, Expected> cases[] = {
        {&sun, {"Sun", 281.2774, -23.0325, 0.98333}},
        {&mars, {"Mars", 330.5163, -13.1826, 1.84954}},
        {&jupiter, {"Jupiter", 23.8682, 8.5943, 4.62074}},
    };
    for (const auto& [body, expected] : cases) {
        const SphericalCoord place = earth.GetApparentPlace(*body);
        EXPECT_LE(AngleApart(place.GetLongitude() * kDegreesPerRadian, expected.RA), 0.00005)
            << expected.Name << " " << place.GetLongitude() * kDegreesPerRadian;
        EXPECT_NEAR(place.GetLatitude() * kDegreesPerRadian, expected.Dec, 0.00005)
            << expected.Name;
        EXPECT_NEAR(place.GetRadius(), expected.Distance, 0.000005) << expected.Name;
    }
}

TEST(Earth200, NutationAtTheEpoch)
{
    // dpsi = -14.03 and deps = -5.77 arcseconds. On the x axis nutation moves a vector by
    // dpsi cos eps along y and dpsi sin eps along z; on the y axis by deps along z.
    OpenEarth earth;
    earth.SetTime(AtCenturies(0.0));
    const double eps = 0.4090928;
    const double arcsecond = 1.0 / 206264.8062;

    RectCoord x(1.0, 0.0, 0.0);
    EXPECT_TRUE(earth.ApplyNutation(x));
    EXPECT_EQ(x.GetX(), 1.0);
    EXPECT_NEAR(x.GetY() / std::cos(eps) / arcsecond, -14.03, 0.005);
    EXPECT_NEAR(x.GetZ() / std::sin(eps) / arcsecond, -14.03, 0.005);

    RectCoord y(0.0, 1.0, 0.0);
    earth.ApplyNutation(y);
    EXPECT_NEAR(y.GetZ() / arcsecond, -5.77, 0.005);
    EXPECT_NEAR(-y.GetX() / std::cos(eps) / arcsecond, -14.03, 0.005);
}

TEST(Earth200, EclipticPoleTurnsToTheObliquityOfTheDate)
{
    OpenEarth earth;
    for (double T : {0.0, -3.0}) {
        earth.SetTime(AtCenturies(T));
        const double eps = 23.43929111 - (46.815 + (0.00059 - 0.001813 * T) * T) * T / 3600.0;
        const RectCoord pole = earth.EclipticToEquatorial(RectCoord(0.0, 0.0, 1.0));
        // The ecliptic pole stands at 90 - eps degrees of declination, at 18h.
        EXPECT_NEAR(std::asin(pole.GetZ()) * kDegreesPerRadian, 90.0 - eps, 1e-10) << T;
        EXPECT_NEAR(pole.GetX(), 0.0, 1e-15);
        EXPECT_LT(pole.GetY(), 0.0);
    }
}

TEST(Earth200, SiderealTimeAtNoonOf2000January1)
{
    Earth200 earth;
    earth.SetTime(AtCenturies(0.0));
    // Longitudes are positive west: 15 is 15 degrees west, 345 is 15 degrees east.
    const std::pair<double, double> cases[] = {
        {0.0, 18.6973746}, {15.0, 17.6973746}, {345.0, 19.6973746}};
    for (const auto& [west, hours] : cases) {
        const DegreeAngle lst = earth.GetLocalSiderealTime(LatLong(51.5, west));
        EXPECT_NEAR(lst.GetDegrees() / 15.0, hours, 5e-8) << west;
        EXPECT_NEAR(Earth200::SiderealHours(51544.5, west), hours, 5e-8) << west;
    }
}

TEST(Earth200, SiderealTimeStaysInOneDayForAnyDateAndPlace)
{
    for (double mjd : {-700000.0, -1.25, 0.0, 51544.5, 60000.99, 2000000.3}) {
        for (double west : {0.0, 90.0, 359.9}) {
            const double hours = Earth200::SiderealHours(mjd, west);
            EXPECT_GE(hours, 0.0) << mjd << " " << west;
            EXPECT_LT(hours, 24.0) << mjd << " " << west;
        }
    }
}

TEST(Earth200, MidnightSiderealTimeIsThatOfTheDaysStart)
{
    // At noon the sidereal clock has run 12 solar hours, 12.0328 sidereal hours, since 0h.
    Earth200 earth;
    earth.SetTime(AstroTime(51544.5, false));
    const LatLong greenwich(51.5, 0.0);
    const double midnight = earth.GetMidnightSiderealTime(greenwich).GetDegrees() / 15.0;
    EXPECT_NEAR(Earth200::SiderealHours(51544.0, 0.0), midnight, 5e-8);
    EXPECT_NEAR(18.6973746 - midnight, 12.0 * 1.0027379093, 1e-6);
}

TEST(Earth200, ZenithIsLocalSiderealTimeAndLatitude)
{
    Earth200 earth;
    earth.SetTime(AtCenturies(0.05));
    const LatLong place(-33.9, 208.8);
    const PolarCoord zenith = earth.GetZenith(place);
    EXPECT_DOUBLE_EQ(zenith.GetRA().GetDegrees(), earth.GetLocalSiderealTime(place).GetDegrees());
    EXPECT_DOUBLE_EQ(zenith.GetDec().GetDegrees(), -33.9);
}

TEST(Earth200, SunAndEarthAreOppositeOneAnother)
{
    // The Sun seen from the Earth is the Earth seen from the Sun turned by half a circle.
    Earth200 earth;
    Sun200 sun;
    earth.SetTime(AtCenturies(0.2));
    sun.SetTime(AtCenturies(0.2));
    const SphericalCoord sunFromEarth = earth.GetGeometricPlace(sun);
    EXPECT_NEAR(std::remainder(sunFromEarth.GetLongitude() - earth.GetHelioLongitude() - Pi, TwoPi),
                0.0, 1e-12);
    EXPECT_NEAR(sunFromEarth.GetLatitude(), -earth.GetHelioLatitude(), 1e-12);
    EXPECT_NEAR(earth.GetHelioLongitude() * kDegreesPerRadian, 100.5284, 0.00005);
    EXPECT_NEAR(earth.GetHelioDistance(), 0.98328, 0.000005);
}
