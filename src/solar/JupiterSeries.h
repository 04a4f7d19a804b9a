#pragma once
// Jupiter's heliocentric place from its analytic theory: perturbations by Saturn and
// Uranus, and one three-body term. Ecliptic and mean equinox of date; a few arcseconds over a few
// centuries around 2000.
#include "solar/PlanetSeries.h"

class JupiterSeries : public PlanetSeries
{
public:
    JupiterSeries();

protected:
    SeriesPosition Compute(double T) override;
};
