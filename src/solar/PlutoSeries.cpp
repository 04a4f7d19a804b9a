#include "solar/PlutoSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTablePluto.h"

#include <cmath>

namespace {

constexpr int kOwnLowest = 0;
constexpr int kOwnHighest = 6;
constexpr int kSharedLowest = -3;
constexpr int kSharedHighest = 2;

constexpr SeriesBlock kJupiter = MakeSeriesBlock(kPlutoJupiterRows);
constexpr SeriesBlock kSaturn = MakeSeriesBlock(kPlutoSaturnRows);
static_assert(FitsRanges(kJupiter, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));
static_assert(FitsRanges(kSaturn, kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest));

// Pluto's rows carry no powers of T: every row forms its argument anew.
constexpr bool HasNoTimePowers(std::span<const PerturbationRow> rows)
{
    for (const PerturbationRow& row : rows) {
        if (row.IT != 0) {
            return false;
        }
    }
    return true;
}
static_assert(HasNoTimePowers(kPlutoJupiterRows) && HasNoTimePowers(kPlutoSaturnRows));

} // namespace

// A rotation about the line of the nodes of the two ecliptics (at the longitude n) by the angle
// q between them, and the general precession p in longitude.
void PlutoSeries::PrecessFrom1950(double T, double& longitude, double& latitude)
{
    const double tc = T + 0.5; // centuries since 1950
    const double n = 3.044;    // longitude of the node of the ecliptic of date on that of 1950
    const double p = (0.0243764 + 0.00000539 * tc) * tc;
    const double q = 0.000228 * tc;

    const double cq = std::cos(q), sq = std::sin(q);
    const double cb = std::cos(latitude), sb = std::sin(latitude);
    const double cl = std::cos(n - longitude), sl = std::sin(n - longitude);
    const double x = cb * cl;
    const double y = cq * cb * sl - sq * sb;
    const double z = cq * sb + sq * cb * sl;

    latitude = std::atan(z / std::sqrt((1.0 + z) * (1.0 - z)));
    const double turns = (n + p - std::atan(y / x)) / TwoPi;
    longitude = TwoPi * Frac(x > 0.0 ? turns : turns + 0.5);
}

PlutoSeries::PlutoSeries() : PlanetSeries(kOwnLowest, kOwnHighest, kSharedLowest, kSharedHighest)
{}

SeriesPosition PlutoSeries::Compute(double T)
{
    Begin();
    const double m5 = MeanArgument(kPlutoM5.a, kPlutoM5.b, T);
    const double m6 = MeanArgument(kPlutoM6.a, kPlutoM6.b, T);
    const double m9 = MeanArgument(kPlutoM9.a, kPlutoM9.b, T);

    FormOwnMultiples(m9);
    AddBlock(kJupiter, m5, T);
    AddBlock(kSaturn, m6, T);

    // Terms in Jupiter and Saturn together: M5 - M6, then one M9 more.
    const double p = m5 - m6;
    double c = std::cos(p);
    double s = std::sin(p);
    DL += -9.11 * c + 0.12 * s;
    DR += -3.4 * c - 3.3 * s;
    DB += 0.81 * c + 0.78 * s;
    AddAngles(c, s, OwnC[1], OwnS[1], c, s);
    DL += 5.92 * c + 0.25 * s;
    DR += 2.3 * c - 3.8 * s;
    DB += -0.67 * c - 0.51 * s;

    double longitude =
        360.0 * Frac(0.6232469 + m9 / TwoPi + DL / kArcsecondsPerTurn) * kRadiansPerDegree;
    double latitude = (-3.909434 + DB / 3600.0) * kRadiansPerDegree;
    PrecessFrom1950(T, longitude, latitude);

    SeriesPosition place;
    place.L = NormalizeRadians(longitude);
    place.B = NormalizeRadians(latitude);
    place.R = 40.7247248 + DR * 1e-5;
    place.dL = 0.69 + 0.34 * OwnC[1] + 0.12 * OwnC[2] + 0.05 * OwnC[3];
    place.dB = -0.08 * OwnC[1] - 0.17 * OwnS[1] - 0.09 * OwnS[2];
    place.dR = 6.66 * OwnS[1] + 1.64 * OwnS[2];
    return place;
}
