#include "solar/MarsSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableMars.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = -2;
constexpr int kOwnHighest = 16;
constexpr int kSharedLowest = -9;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kVenus = MakeSeriesBlock(kMarsVenusRows);
constexpr SeriesBlock kEarth = MakeSeriesBlock(kMarsEarthRows);
constexpr SeriesBlock kJupiter = MakeSeriesBlock(kMarsJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kMarsSaturnRows);
static_assert(FitsRanges(kVenus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kEarth, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

MarsSeries::MarsSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition MarsSeries::Compute(double T)
{
    Begin();
    const double m2 = MeanArgument(kMarsM2.a, kMarsM2.b, T);
    const double m3 = MeanArgument(kMarsM3.a, kMarsM3.b, T);
    const double m4 = MeanArgument(kMarsM4.a, kMarsM4.b, T);
    const double m5 = MeanArgument(kMarsM5.a, kMarsM5.b, T);
    const double m6 = MeanArgument(kMarsM6.a, kMarsM6.b, T);

    FormOwnMultiples(m4);
    AddBlock(kVenus, m2, T);
    AddBlock(kEarth, m3, T);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);

    // Long-periodic terms, then the correction of the mean longitude.
    DL += 52.49 * std::sin(TwoPi * (0.1868 + 0.0549 * T)) +
          0.61 * std::sin(TwoPi * (0.9220 + 0.3307 * T)) +
          0.32 * std::sin(TwoPi * (0.4731 + 2.1485 * T)) +
          0.28 * std::sin(TwoPi * (0.9467 + 0.1133 * T));
    DL += 0.14 + 0.87 * T - 0.11 * T * T;

    const double longitude =
        360.0 * Frac(0.9334591 + m4 / TwoPi + ((6615.5 + 1.1 * T) * T + DL) / kArcsecondsPerTurn);
    const double latitude = (596.32 + (-2.92 - 0.10 * T) * T + DB) / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 1.5303352 + 0.0000131 * T + DR * 1e-6;
    place.dL = 91.50 + 17.07 * OwnC[1] + 2.03 * OwnC[2];
    place.dB = 0.83 * OwnC[1] + 2.80 * OwnS[1];
    place.dR = 12.98 * OwnS[1] + 1.21 * OwnC[2];
    return place;
}
