#pragma once
// Saturn's heliocentric place from its analytic theory: perturbations by Jupiter,
// Uranus and Neptune, and one three-body term. Ecliptic and mean equinox of date; a few
// arcseconds over a few centuries around 2000.
#include "solar/PlanetSeries.h"

class SaturnSeries : public PlanetSeries
{
public:
    SaturnSeries();

protected:
    SeriesPosition Compute(double T) override;
};
