#include "solar/Saturn200.h"

#include "solar/SeriesMath.h"
#include "solar/SolarSystemNames.h"

#include <cmath>

Saturn200::Saturn200(Sun200& sunRef) : name(GetSolarSystemName(kSaturnNameId)), sun(sunRef)
{}

bool Saturn200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

bool Saturn200::GetPole(const AstroTime& at, DegreeAngle& rightAscension, DegreeAngle& declination)
{
    const double T = at.GetCenturiesSince2000();
    rightAscension = DegreeAngle(40.66 - 0.036 * T);
    declination = DegreeAngle(83.52 - 0.004 * T);
    return true;
}

DegreeAngle Saturn200::GetPrimeMeridian(const AstroTime& at)
{
    // Days since 2000 January 1.5, and the turns of the meridian since then (810.79 degrees a
    // day for the rotation of the system III).
    const double d = at.GetCenturiesSince2000() * 36525.0;
    const double x = (227.2037 + 844.3 * d) / 360.0;
    return DegreeAngle((x - std::trunc(x)) * 360.0);
}

double Saturn200::GetPhaseMagnitude(SolarSystemObject& observer)
{
    DegreeAngle sunLatitude, sunLongitude, observerLatitude, observerLongitude;
    GetSubObserverPoint(sun, sunLatitude, sunLongitude);
    GetSubObserverPoint(observer, observerLatitude, observerLongitude);

    const double s = std::fabs(std::sin(sunLatitude.GetDegrees() * kRadiansPerDegree));
    double u =
        std::fabs(
            DegreeAngle(sunLongitude.GetDegrees() - observerLongitude.GetDegrees()).GetDegrees()) /
        100.0;
    if (u > 1.8) {
        u = std::fabs(u - 3.6);
    }
    return GetBaseMagnitude() - 2.6 * s + 1.25 * s * s + 4.4 * u;
}
