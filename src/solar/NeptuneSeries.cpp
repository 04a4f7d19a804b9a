#include "solar/NeptuneSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableNeptune.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = 0;
constexpr int kOwnHighest = 6;
constexpr int kSharedLowest = -6;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kJupiter = MakeSeriesBlock(kNeptuneJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kNeptuneSaturnRows);
constexpr SeriesBlock kUranus = MakeSeriesBlock(kNeptuneUranusRows);
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kUranus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

NeptuneSeries::NeptuneSeries()
    : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition NeptuneSeries::Compute(double T)
{
    Begin();
    const double m5 = MeanArgument(kNeptuneM5.a, kNeptuneM5.b, T);
    const double m6 = MeanArgument(kNeptuneM6.a, kNeptuneM6.b, T);
    const double m7 = MeanArgument(kNeptuneM7.a, kNeptuneM7.b, T);
    const double m8 = MeanArgument(kNeptuneM8.a, kNeptuneM8.b, T);

    FormOwnMultiples(m8);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);
    AddBlock(kUranus, m7, T);

    const double longitude =
        360.0 * Frac(0.1254046 + m8 / TwoPi + ((4982.8 - 21.3 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (54.77 + (0.26 + 0.06 * T) * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 30.072984 + (0.001234 + 0.000003 * T) * T + DR * 1e-5;
    place.dL = 1.04 + 0.02 * OwnC[1];
    place.dB = 0.03 * OwnS[1];
    place.dR = 0.27 * OwnS[1];
    return place;
}
