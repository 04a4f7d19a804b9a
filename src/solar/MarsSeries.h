#pragma once
// Mars's heliocentric place from its analytic theory: perturbations by Venus, the
// Earth, Jupiter and Saturn, and four long-periodic terms. Ecliptic and mean equinox of date;
// a few arcseconds over a few centuries around 2000.
#include "solar/PlanetSeries.h"

class MarsSeries : public PlanetSeries
{
public:
    MarsSeries();

protected:
    SeriesPosition Compute(double T) override;
};
