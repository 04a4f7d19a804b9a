#pragma once
// The Earth's heliocentric place from the analytic theory of the Sun's apparent motion:
// perturbations by Venus, Mars, Jupiter and Saturn, the Moon's pull on the Earth, and four
// long-periodic terms. The theory gives the Sun seen from the Earth; the Earth seen from the Sun
// is its opposite. Ecliptic and mean equinox of date; about one arcsecond over a few centuries
// around 2000.
#include "solar/PlanetSeries.h"

class EarthSeries : public PlanetSeries
{
public:
    EarthSeries();

protected:
    SeriesPosition Compute(double T) override;
};
