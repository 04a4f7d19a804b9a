#pragma once
// A planet: a body with a magnitude seen from elsewhere and a phase angle. Planets are the
// observers that magnitudes and phase angles are asked of.
#include "solar/PlanetSeries.h"
#include "solar/SolarSystemObject.h"

class Planet : public SolarSystemObject
{
public:
    // The target's phase magnitude brought to its distances from the Sun and from here; when
    // their product is at most 1e-6 (the Sun, whose distance from itself is 0) the phase
    // magnitude alone.
    double GetMagnitudeOf(SolarSystemObject& target) override;
    // The angle at the target between the Sun and this planet, degrees, 0 to 180. A target at
    // the Sun or here has no such angle and gives 0.
    DegreeAngle GetPhaseAngleOf(SolarSystemObject& target) override;

protected:
    // Takes a place from a series into the record: longitude, latitude, radius, rates, and the
    // rectangular position and velocity made from them.
    void TakeSeriesPosition(const SeriesPosition& place);
};
