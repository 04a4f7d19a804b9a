#include "solar/VenusSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableVenus.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = 0;
constexpr int kOwnHighest = 8;
constexpr int kSharedLowest = -8;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kMercury = MakeSeriesBlock(kVenusMercuryRows);
constexpr SeriesBlock kEarth = MakeSeriesBlock(kVenusEarthRows);
constexpr SeriesBlock kMars = MakeSeriesBlock(kVenusMarsRows);
constexpr SeriesBlock kJupiter = MakeSeriesBlock(kVenusJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kVenusSaturnRows);
static_assert(FitsRanges(kMercury, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kEarth, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kMars, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

VenusSeries::VenusSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition VenusSeries::Compute(double T)
{
    Begin();
    const double m1 = MeanArgument(kVenusM1.a, kVenusM1.b, T);
    const double m2 = MeanArgument(kVenusM2.a, kVenusM2.b, T);
    const double m3 = MeanArgument(kVenusM3.a, kVenusM3.b, T);
    const double m4 = MeanArgument(kVenusM4.a, kVenusM4.b, T);
    const double m5 = MeanArgument(kVenusM5.a, kVenusM5.b, T);
    const double m6 = MeanArgument(kVenusM6.a, kVenusM6.b, T);

    FormOwnMultiples(m2);
    AddBlock(kMercury, m1, T);
    AddBlock(kEarth, m3, T);
    AddBlock(kMars, m4, T);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);

    // Long-periodic terms, then the correction of the mean longitude.
    DL += 2.74 * std::sin(TwoPi * (0.0764 + 0.4174 * T)) +
          0.27 * std::sin(TwoPi * (0.9201 + 0.3307 * T));
    DL += 1.9 + 1.8 * T;

    const double longitude =
        360.0 * Frac(0.3654783 + m2 / TwoPi + ((5071.2 + 1.1 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (-67.70 + (0.04 + 0.01 * T) * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 0.7233482 - 0.0000002 * T + DR * 1e-6;
    place.dL = 280.00 + 3.79 * OwnC[1];
    place.dB = 9.54 * OwnC[1] - 13.57 * OwnS[1];
    place.dR = 1.37 * OwnS[1];
    return place;
}
