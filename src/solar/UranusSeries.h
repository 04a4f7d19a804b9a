#pragma once
// Uranus's heliocentric place from its analytic theory: perturbations by Jupiter, Saturn
// and Neptune, and a block of terms in Jupiter and Saturn together. Ecliptic and mean equinox of
// date; a few arcseconds over a few centuries around 2000.
#include "solar/PlanetSeries.h"

class UranusSeries : public PlanetSeries
{
public:
    UranusSeries();

protected:
    SeriesPosition Compute(double T) override;
};
