#pragma once
// Pluto's heliocentric place from its analytic theory: perturbations by Jupiter and
// Saturn, with the place of the equinox of 1950 precessed to the mean equinox of date. Good for
// about 1890 to 2100 only; outside that it drifts, without a warning.
#include "solar/PlanetSeries.h"

class PlutoSeries : public PlanetSeries
{
public:
    PlutoSeries();

    // Precesses an ecliptic longitude and latitude, radians, from the equinox of 1950 (to which
    // the theory belongs) to the mean equinox of date at T. The longitude comes out in
    // [0, TwoPi), the latitude in [-Pi/2, Pi/2].
    static void PrecessFrom1950(double T, double& longitude, double& latitude);

protected:
    SeriesPosition Compute(double T) override;
};
