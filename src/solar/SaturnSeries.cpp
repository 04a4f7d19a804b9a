#include "solar/SaturnSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableSaturn.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = 0;
constexpr int kOwnHighest = 11;
constexpr int kSharedLowest = -6;
constexpr int kSharedHighest = 1;

constexpr SeriesBlock kJupiter = MakeSeriesBlock(kSaturnJupiterRows);
constexpr SeriesBlock kUranus = MakeSeriesBlock(kSaturnUranusRows);
constexpr SeriesBlock kNeptune = MakeSeriesBlock(kSaturnNeptuneRows);
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kUranus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kNeptune, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

SaturnSeries::SaturnSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition SaturnSeries::Compute(double T)
{
    Begin();
    const double m5 = MeanArgument(kSaturnM5.a, kSaturnM5.b, T);
    const double m6 = MeanArgument(kSaturnM6.a, kSaturnM6.b, T);
    const double m7 = MeanArgument(kSaturnM7.a, kSaturnM7.b, T);
    const double m8 = MeanArgument(kSaturnM8.a, kSaturnM8.b, T);

    FormOwnMultiples(m6);
    AddBlock(kJupiter, m5, T);
    AddBlock(kUranus, m7, T);
    AddBlock(kNeptune, m8, T);

    // Terms in Jupiter, Saturn and Uranus together: -2 M5 + 5 M6 - 3 M7, then one and two M6
    // more.
    const double p = -2.0 * m5 + 5.0 * m6 - 3.0 * m7;
    double c = std::cos(p);
    double s = std::sin(p);
    DL += -0.8 * c - 0.1 * s;
    DR += -0.2 * c + 1.8 * s;
    DB += 0.3 * c + 0.5 * s;
    AddAngles(c, s, OwnC[1], OwnS[1], c, s);
    DL += (2.4 - 0.7 * T) * c + (27.8 - 0.4 * T) * s;
    DR += 2.1 * c - 0.2 * s;
    AddAngles(c, s, OwnC[1], OwnS[1], c, s);
    DL += 0.1 * c + 1.6 * s;
    DR += -3.6 * c + 0.3 * s;
    DB += -0.2 * c + 0.6 * s;

    const double longitude =
        360.0 * Frac(0.2561136 + m6 / TwoPi + ((5018.6 + 1.9 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (175.1 - 10.2 * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 9.557584 - 0.000186 * T + DR * 1e-5;
    place.dL = 5.84 + 0.65 * OwnC[1];
    place.dB = 0.24 * OwnC[1];
    place.dR = 3.09 * OwnS[1];
    return place;
}
