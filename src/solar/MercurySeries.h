#pragma once
// Mercury's heliocentric place from its analytic theory: perturbations by Venus, the
// Earth, Jupiter and Saturn. Ecliptic and mean equinox of date; about one arcsecond over a few
// centuries around 2000.
#include "solar/PlanetSeries.h"

class MercurySeries : public PlanetSeries
{
public:
    MercurySeries();

protected:
    SeriesPosition Compute(double T) override;
};
