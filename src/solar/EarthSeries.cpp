#include "solar/EarthSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableEarth.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = -1;
constexpr int kOwnHighest = 7;
constexpr int kSharedLowest = -8;
constexpr int kSharedHighest = 0;

constexpr SeriesBlock kVenus = MakeSeriesBlock(kEarthVenusRows);
constexpr SeriesBlock kMars = MakeSeriesBlock(kEarthMarsRows);
constexpr SeriesBlock kJupiter = MakeSeriesBlock(kEarthJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kEarthSaturnRows);
static_assert(FitsRanges(kVenus, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kMars, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

} // namespace

EarthSeries::EarthSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition EarthSeries::Compute(double T)
{
    Begin();
    const double m2 = MeanArgument(kEarthM2.a, kEarthM2.b, T);
    const double m3 = MeanArgument(kEarthM3.a, kEarthM3.b, T);
    const double m4 = MeanArgument(kEarthM4.a, kEarthM4.b, T);
    const double m5 = MeanArgument(kEarthM5.a, kEarthM5.b, T);
    const double m6 = MeanArgument(kEarthM6.a, kEarthM6.b, T);
    // The Moon's elongation D, its anomaly A and its argument of latitude U0, for the motion
    // of the Earth about the barycentre of the Earth and the Moon.
    const double d = MeanArgument(0.8274, 1236.8531, T);
    const double a = MeanArgument(0.3749, 1325.5524, T);
    const double u0 = MeanArgument(0.2591, 1342.2278, T);

    FormOwnMultiples(m3);
    AddBlock(kVenus, m2, T);
    AddBlock(kMars, m4, T);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);

    DL += 6.45 * std::sin(d) - 0.42 * std::sin(d - a) + 0.18 * std::sin(d + a) +
          0.17 * std::sin(d - m3) - 0.06 * std::sin(d + m3);
    DR += 30.76 * std::cos(d) - 3.06 * std::cos(d - a) + 0.85 * std::cos(d + a) -
          0.58 * std::cos(d + m3) + 0.57 * std::cos(d - m3);
    DB += 0.576 * std::sin(u0);

    // Long-periodic terms.
    DL += 6.40 * std::sin(TwoPi * (0.6983 + 0.0561 * T)) +
          1.87 * std::sin(TwoPi * (0.5764 + 0.4174 * T)) +
          0.27 * std::sin(TwoPi * (0.4189 + 0.3306 * T)) +
          0.20 * std::sin(TwoPi * (0.3581 + 2.4814 * T));

    // The series is the Sun's longitude seen from the Earth; the half turn gives the Earth's.
    const double longitude =
        360.0 * Frac(0.7859453 + m3 / TwoPi + ((6191.2 + 1.1 * T) * T + DL) / kArcsecondsPerTurn) +
        180.0;
    const double latitude = -DB / 3600.0;

    SeriesPosition place;
    place.L = NormalizeRadians(longitude * kRadiansPerDegree);
    place.B = NormalizeRadians(latitude * kRadiansPerDegree);
    place.R = 1.0001398 - 0.0000007 * T + DR * 1e-6;
    // The rates take the sine of the anomaly in longitude and its cosine in distance, the other
    // way round from the derivative of the series; the apparent places of the reduction are
    // fixed to these, so they stay as they are.
    place.dL = 172.00 + 5.75 * OwnS[1];
    place.dB = 0.0;
    place.dR = 2.87 * OwnC[1];
    return place;
}
