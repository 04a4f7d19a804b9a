#include "solar/JupiterSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableJupiter.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = -1;
constexpr int kOwnHighest = 5;
constexpr int kSharedLowest = -10;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kSaturn = MakeSeriesBlock(kJupiterSaturnRows);
constexpr SeriesBlock kUranus = MakeSeriesBlock(kJupiterUranusRows);
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kUranus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

JupiterSeries::JupiterSeries()
    : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition JupiterSeries::Compute(double T)
{
    Begin();
    const double m5 = MeanArgument(kJupiterM5.a, kJupiterM5.b, T);
    const double m6 = MeanArgument(kJupiterM6.a, kJupiterM6.b, T);
    const double m7 = MeanArgument(kJupiterM7.a, kJupiterM7.b, T);

    FormOwnMultiples(m5);
    AddBlock(kSaturn, m6, T);
    AddBlock(kUranus, m7, T);

    // Terms in Jupiter, Saturn and Uranus together: 2 M5 - 6 M6 + 3 M7, then one M5 more.
    const double p = 2.0 * m5 - 6.0 * m6 + 3.0 * m7;
    double c = std::cos(p);
    double s = std::sin(p);
    DL += -0.8 * c + 8.5 * s;
    DR += -0.1 * c;
    AddAngles(c, s, OwnC[1], OwnS[1], c, s);
    DL += 0.4 * c + 0.5 * s;
    DR += -0.7 * c + 0.5 * s;
    DB += -0.1 * c;

    const double longitude =
        360.0 * Frac(0.0388910 + m5 / TwoPi + ((5025.2 + 0.8 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (227.3 - 0.3 * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 5.208873 + 0.000041 * T + DR * 1e-5;
    place.dL = 14.50 + 1.41 * OwnC[1];
    place.dB = 0.33 * OwnS[1];
    place.dR = 3.66 * OwnS[1];
    return place;
}
