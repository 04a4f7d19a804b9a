#pragma once
// Neptune's heliocentric place from its analytic theory: perturbations by Jupiter,
// Saturn and Uranus. Ecliptic and mean equinox of date; a few arcseconds over a few centuries
// around 2000.
#include "solar/PlanetSeries.h"

class NeptuneSeries : public PlanetSeries
{
public:
    NeptuneSeries();

protected:
    SeriesPosition Compute(double T) override;
};
