#include "solar/MercurySeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableMercury.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = -1;
constexpr int kOwnHighest = 9;
constexpr int kSharedLowest = -5;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kVenus = MakeSeriesBlock(kMercuryVenusRows);
constexpr SeriesBlock kEarth = MakeSeriesBlock(kMercuryEarthRows);
constexpr SeriesBlock kJupiter = MakeSeriesBlock(kMercuryJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kMercurySaturnRows);
static_assert(FitsRanges(kVenus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kEarth, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
// Saturn's single term uses the multiple -2 only, which is set directly.
static_assert(kSaturn.LowestJ == -2 && kSaturn.HighestJ == -2 && kSaturn.HighestI <= kOwnHighest);

} // namespace

MercurySeries::MercurySeries()
    : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition MercurySeries::Compute(double T)
{
    Begin();
    const double m1 = MeanArgument(kMercuryM1.a, kMercuryM1.b, T);
    const double m2 = MeanArgument(kMercuryM2.a, kMercuryM2.b, T);
    const double m3 = MeanArgument(kMercuryM3.a, kMercuryM3.b, T);
    const double m5 = MeanArgument(kMercuryM5.a, kMercuryM5.b, T);
    const double m6 = MeanArgument(kMercuryM6.a, kMercuryM6.b, T);

    FormOwnMultiples(m1);
    AddBlock(kVenus, m2, T);
    AddBlock(kEarth, m3, T);
    AddBlock(kJupiter, m5, T);
    SetDisturberMultiple(-2, -2.0 * m6);
    AddRows(kSaturn, T);

    DL += 2.8 + 3.2 * T;

    const double longitude =
        360.0 * Frac(0.2151379 + m1 / TwoPi + ((5601.7 + 1.1 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (-2522.15 + (-30.18 + 0.04 * T) * T + DB) / 3600.0;

    // The rates, from the own multiples: cos i M1 and sin i M1 are OwnC[i] and OwnS[i].
    const double c1 = OwnC[1], c2 = OwnC[2], c3 = OwnC[3], c4 = OwnC[4];
    const double s1 = OwnS[1], s2 = OwnS[2], s3 = OwnS[3], s4 = OwnS[4];

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 0.3952829 + 0.0000016 * T + DR * 1e-6;
    place.dL = 714.00 + 292.66 * c1 + 71.96 * c2 + 18.16 * c3 + 4.61 * c4 + 3.81 * s2 + 2.43 * s3 +
               1.08 * s4;
    place.dB = 73.40 * c1 + 29.82 * c2 + 10.22 * c3 + 3.28 * c4 - 40.44 * s1 - 16.55 * s2 -
               5.56 * s3 - 1.72 * s4;
    place.dR = 55.94 * s1 + 11.36 * s2 + 2.60 * s3;
    return place;
}
