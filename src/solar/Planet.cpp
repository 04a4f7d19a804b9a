#include "solar/Planet.h"

#include "solar/SeriesMath.h"

#include <algorithm>
#include <cmath>

double Planet::GetMagnitudeOf(SolarSystemObject& target)
{
    const double m = target.GetPhaseMagnitude(*this);
    const double r = target.GetHelioDistance();
    const double d = GetDistanceTo(target);
    if (r * d <= 1e-6) {
        return m;
    }
    return m + 5.0 * std::log10(r * d);
}

DegreeAngle Planet::GetPhaseAngleOf(SolarSystemObject& target)
{
    const double d = GetDistanceTo(target);
    const double a = target.GetHelioDistance();
    const double b = GetHelioDistance();
    if (d * a == 0.0) {
        return DegreeAngle(0.0);
    }
    // Rounding can carry the cosine a hair beyond one for a target straight behind or before.
    const double cosine = std::clamp((a * a + d * d - b * b) / (2.0 * d * a), -1.0, 1.0);
    return DegreeAngle(std::acos(cosine) * kDegreesPerRadian);
}

void Planet::TakeSeriesPosition(const SeriesPosition& place)
{
    longitude = place.L;
    latitude = place.B;
    radius = place.R;
    polarRates = {place.dL, place.dB, place.dR};
    SetPolarState(longitude, latitude, radius, position, &polarRates, &velocity);
}
