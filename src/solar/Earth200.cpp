#include "solar/Earth200.h"

#include "coords/HoursMinutesSeconds.h"
#include "solar/SeriesMath.h"
#include "solar/SolarSystemNames.h"

#include <cmath>

Earth200::Earth200() : name(GetSolarSystemName(kEarthNameId))
{}

bool Earth200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

RectCoord Earth200::EclipticToEquatorial(const RectCoord& rect)
{
    const double T = time.GetCenturiesSince2000();
    // Mean obliquity of the ecliptic, degrees.
    const double eps = 23.43929111 - (46.815 + (0.00059 - 0.001813 * T) * T) * T / 3600.0;
    const double c = std::cos(eps * kRadiansPerDegree);
    const double s = std::sin(eps * kRadiansPerDegree);
    return {rect.GetX(), rect.GetY() * c - rect.GetZ() * s, rect.GetY() * s + rect.GetZ() * c};
}

bool Earth200::ApplyNutation(RectCoord& rect)
{
    const double T = time.GetCenturiesSince2000();
    // Mean anomaly of the Sun, elongation and argument of latitude of the Moon, and the
    // longitude of its ascending node.
    const double ls = MeanArgument(0.993133, 99.997306, T);
    const double d = MeanArgument(0.827362, 1236.853087, T);
    const double f = MeanArgument(0.259089, 1342.227826, T);
    const double n = MeanArgument(0.347346, -5.372447, T);
    const double eps = 0.4090928 - 0.00022696 * T; // mean obliquity, radians

    // Nutation in longitude and in obliquity, arcseconds turned into radians.
    const double dpsi =
        (-17.2 * std::sin(n) - 1.319 * std::sin(2.0 * (f - d + n)) -
         0.227 * std::sin(2.0 * (f + n)) + 0.206 * std::sin(2.0 * n) + 0.143 * std::sin(ls)) /
        kArcsecondsPerRadian;
    const double deps = (9.203 * std::cos(n) + 0.574 * std::cos(2.0 * (f - d + n)) +
                         0.098 * std::cos(2.0 * (f + n)) - 0.09 * std::cos(2.0 * n)) /
                        kArcsecondsPerRadian;

    const double c = dpsi * std::cos(eps);
    const double s = dpsi * std::sin(eps);
    const double x = rect.GetX(), y = rect.GetY(), z = rect.GetZ();
    rect = RectCoord(x - (c * y + s * z), y + c * x - deps * z, z + s * x + deps * y);
    return true;
}

double Earth200::SiderealHours(double mjd, double westLongitude)
{
    const double mjd0 = std::floor(mjd);
    const double ut = (mjd - mjd0) * 24.0;
    const double tc = (mjd0 - 51544.5) / 36525.0;
    // Greenwich mean sidereal time, hours.
    const double g = 6.697374558 + 1.0027379093 * ut +
                     (8640184.812866 + (0.093104 - 0.0000062 * tc) * tc) * tc / 3600.0;
    return 24.0 * Frac((g - westLongitude / 15.0) / 24.0);
}

DegreeAngle Earth200::GetLocalSiderealTime(const LatLong& location)
{
    const double hours = SiderealHours(time.GetMJD(), location.GetLongitude().GetDegrees());
    return HoursMinutesSeconds(hours, 0.0, 0.0).GetDegreeAngle();
}

DegreeAngle Earth200::GetMidnightSiderealTime(const LatLong& location)
{
    const AstroTime midnight(std::floor(time.GetMJD()), false);
    const double hours = SiderealHours(midnight.GetMJD(), location.GetLongitude().GetDegrees());
    return HoursMinutesSeconds(hours, 0.0, 0.0).GetDegreeAngle();
}

PolarCoord Earth200::GetZenith(const LatLong& location)
{
    return PolarCoord(GetLocalSiderealTime(location), location.GetLatitude());
}
