#pragma once
// Venus's heliocentric place from its analytic theory: perturbations by Mercury, the
// Earth, Mars, Jupiter and Saturn, and two long-periodic terms. Ecliptic and mean equinox of
// date; about one arcsecond over a few centuries around 2000.
#include "solar/PlanetSeries.h"

class VenusSeries : public PlanetSeries
{
public:
    VenusSeries();

protected:
    SeriesPosition Compute(double T) override;
};
