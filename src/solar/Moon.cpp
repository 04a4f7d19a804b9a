#include "solar/Moon.h"

#include "solar/RectCoordMath.h"
#include "solar/SeriesMath.h"
#include "solar/SolarSystemNames.h"

Moon::Moon(SolarSystemObject& earthRef, SolarSystemObject& sunRef)
    : name(GetSolarSystemName(kMoonNameId)), earth(earthRef), sun(sunRef)
{}

bool Moon::Compute()
{
    const LunarPosition& place = Series.Evaluate(time.GetCenturiesSince2000());
    RectCoord geocentric;
    SetPolarState(place.Longitude, place.Latitude, place.Distance, geocentric, nullptr, nullptr);

    position = Sum(geocentric, earth.GetHelioPosition());
    const SphericalCoord heliocentric(position);
    longitude = heliocentric.GetLongitude();
    latitude = heliocentric.GetLatitude();
    radius = heliocentric.GetRadius();
    polarRates = {};
    velocity = RectCoord();
    phaseStale = true;
    return true;
}

DegreeAngle Moon::GetPhase()
{
    Update();
    if (phaseStale) {
        const double difference = earth.GetGeometricPlace(*this).GetLongitude() -
                                  earth.GetGeometricPlace(sun).GetLongitude();
        double degrees = difference * kDegreesPerRadian;
        if (degrees < 0.0) {
            degrees += 360.0;
        }
        phase = DegreeAngle(degrees);
        phaseStale = false;
    }
    return phase;
}
