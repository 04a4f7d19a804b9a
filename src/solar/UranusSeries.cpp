#include "solar/UranusSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableUranus.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = -2;
constexpr int kOwnHighest = 7;
constexpr int kSharedLowest = -8;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kJupiter = MakeSeriesBlock(kUranusJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kUranusSaturnRows);
constexpr SeriesBlock kNeptune = MakeSeriesBlock(kUranusNeptuneRows);
constexpr SeriesBlock kJupiterSaturn = MakeSeriesBlock(kUranusJupiterSaturnRows);
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kNeptune, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
// The combined block uses the multiples -4 to -6 only, built from 2 M5 - 4 M6 below.
static_assert(FitsRanges(kJupiterSaturn, kOwnLowest, kOwnHighest, -6, -4));

} // namespace

UranusSeries::UranusSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition UranusSeries::Compute(double T)
{
    Begin();
    const double m5 = MeanArgument(kUranusM5.a, kUranusM5.b, T);
    const double m6 = MeanArgument(kUranusM6.a, kUranusM6.b, T);
    const double m7 = MeanArgument(kUranusM7.a, kUranusM7.b, T);
    const double m8 = MeanArgument(kUranusM8.a, kUranusM8.b, T);

    FormOwnMultiples(m7);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);
    AddBlock(kNeptune, m8, T);

    // Jupiter and Saturn together: the multiple J stands for 2 M5 + J M6, for J = -4 to -6.
    SetDisturberMultiple(-1, -m6);
    SetDisturberMultiple(-4, 2.0 * m5 - 4.0 * m6);
    ExtendDisturberMultiples(-4, kJupiterSaturn.LowestJ);
    AddRows(kJupiterSaturn, T);

    const double longitude =
        360.0 * Frac(0.4734843 + m7 / TwoPi + ((5082.3 + 34.2 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (-130.61 + (-0.54 + 0.04 * T) * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 19.211991 + (-0.000333 - 0.000005 * T) * T + DR * 1e-5;
    place.dL = 2.05 + 0.19 * OwnC[1];
    place.dB = -0.03 * OwnS[1];
    place.dR = 1.86 * OwnS[1];
    return place;
}
