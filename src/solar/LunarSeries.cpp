#include "solar/LunarSeries.h"

#include "solar/SeriesMath.h"
#include "solar/SeriesTableMoon.h"

#include <cmath>

namespace {

// sin(TwoPi Frac(x)): the sine of an argument in revolutions.
double Sine(double x)
{
    return std::sin(TwoPi * Frac(x));
}

// The highest multiple of each argument that the tables hold.
constexpr int kHighestL = 4;
constexpr int kHighestLs = 3;
constexpr int kHighestF = 4;
constexpr int kHighestD = 6;

constexpr int Magnitude(int x)
{
    return x < 0 ? -x : x;
}

template <typename Row>
constexpr bool FitsMultiples(std::span<const Row> rows)
{
    for (const Row& row : rows) {
        if (Magnitude(row.p) > kHighestL || Magnitude(row.q) > kHighestLs ||
            Magnitude(row.r) > kHighestF || Magnitude(row.s) > kHighestD) {
            return false;
        }
    }
    return true;
}
static_assert(FitsMultiples<LunarRow>(kMoonSolar1Rows));
static_assert(FitsMultiples<LunarRow>(kMoonSolar2Rows));
static_assert(FitsMultiples<LunarRow>(kMoonSolar3Rows));
static_assert(FitsMultiples<LunarLatitudeRow>(kMoonLatitudeRows));

// The scale of the parallax sum.
constexpr double kParallaxScale = 0.999953253;

} // namespace

LunarSeries::LunarSeries() : co(-kHighestD, kHighestD, 1, 4), si(-kHighestD, kHighestD, 1, 4)
{}

const LunarPosition& LunarSeries::Evaluate(double T)
{
    if (!bEvaluated || T != EvaluatedT) {
        Result = Compute(T);
        EvaluatedT = T;
        bEvaluated = true;
    }
    return Result;
}

double LunarSeries::EarthRadiiFromParallaxSum(double parallaxSum)
{
    return kArc / (parallaxSum * kParallaxScale);
}

double LunarSeries::DistanceFromParallaxSum(double parallaxSum)
{
    return EarthRadiiFromParallaxSum(parallaxSum) * kEarthRadiusKm / kAstronomicalUnitKm;
}

void LunarSeries::FormLongPeriodicChanges(double T)
{
    const double s1 = Sine(0.19833 + 0.05611 * T);
    const double s2 = Sine(0.27869 + 0.04508 * T);
    const double s3 = Sine(0.16827 - 0.36903 * T);
    const double s4 = Sine(0.34734 - 5.37261 * T);
    const double s5 = Sine(0.10498 - 5.37899 * T);
    const double s6 = Sine(0.42681 - 0.41855 * T);
    const double s7 = Sine(0.14943 - 5.37511 * T);
    dl0 = 0.84 * s1 + 0.31 * s2 + 14.27 * s3 + 7.26 * s4 + 0.28 * s5 + 0.24 * s6;
    dl = 2.94 * s1 + 0.31 * s2 + 14.27 * s3 + 9.34 * s4 + 1.12 * s5 + 0.83 * s6;
    dls = -6.40 * s1 - 1.89 * s6;
    df = 0.21 * s1 + 0.31 * s2 + 14.27 * s3 - 88.70 * s4 - 15.30 * s5 + 0.24 * s6 - 1.86 * s7;
    dd = dl0 - dls;
    dgam = -0.000003332 * Sine(0.59734 - 5.37261 * T) - 0.000000539 * Sine(0.35498 - 5.37899 * T) -
           0.000000064 * Sine(0.39943 - 5.37511 * T);
}

void LunarSeries::FormMeanArguments(double T)
{
    const double t2 = T * T;
    const double arc = kArc;
    l0 = TwoPi * Frac(0.60643382 + 1336.85522467 * T - 0.00000313 * t2) + dl0 / arc;
    l = TwoPi * Frac(0.37489701 + 1325.55240982 * T + 0.00002565 * t2) + dl / arc;
    ls = TwoPi * Frac(0.99312619 + 99.99735956 * T - 0.00000044 * t2) + dls / arc;
    f = TwoPi * Frac(0.25909118 + 1342.2278298 * T - 0.00000892 * t2) + df / arc;
    d = TwoPi * Frac(0.82736186 + 1236.85308708 * T - 0.00000397 * t2) + dd / arc;
}

void LunarSeries::FormMultiples(int column, double argument, int highest, double factor)
{
    co[0][column] = 1.0;
    si[0][column] = 0.0;
    co[1][column] = factor * std::cos(argument);
    si[1][column] = factor * std::sin(argument);
    for (int j = 2; j <= highest; ++j) {
        AddAngles(co[j - 1][column], si[j - 1][column], co[1][column], si[1][column], co[j][column],
                  si[j][column]);
    }
    for (int j = 1; j <= highest; ++j) {
        co[-j][column] = co[j][column];
        si[-j][column] = -si[j][column];
    }
}

void LunarSeries::Product(int p, int q, int r, int s, double& x, double& y) const
{
    x = 1.0;
    y = 0.0;
    const int indices[4] = {p, q, r, s};
    for (int column = 1; column <= 4; ++column) {
        const int j = indices[column - 1];
        if (j != 0) {
            AddAngles(x, y, co[j][column], si[j][column], x, y);
        }
    }
}

void LunarSeries::AddSolarRows(std::span<const LunarRow> rows)
{
    for (const LunarRow& row : rows) {
        double x = 0.0, y = 0.0;
        Product(row.p, row.q, row.r, row.s, x, y);
        dlam += row.a * y;
        ds += row.b * y;
        gam1c += row.c * x;
        sinpi += row.e * x;
    }
}

LunarPosition LunarSeries::Compute(double T)
{
    const double arc = kArc;
    FormLongPeriodicChanges(T);
    dlam = 0.0;
    ds = 0.0;
    gam1c = 0.0;
    sinpi = 3422.7; // the constant part of the parallax, arcseconds
    n = 0.0;
    FormMeanArguments(T);

    // The factors make up for the eccentricity of the Earth's orbit (l'), the Moon's (l) and
    // the inclination of its orbit (F) in the coefficients.
    const double inclinationFactor = 1.000002708 + 139.978 * dgam;
    FormMultiples(1, l, kHighestL, 1.000002208);
    FormMultiples(2, ls, kHighestLs, 0.997504612 - 0.002495388 * T);
    FormMultiples(3, f, kHighestF, inclinationFactor);
    FormMultiples(4, d, kHighestD, 1.0);

    AddSolarRows(kMoonSolar1Rows);
    AddSolarRows(kMoonSolar2Rows);
    AddSolarRows(kMoonSolar3Rows);

    for (const LunarLatitudeRow& row : kMoonLatitudeRows) {
        double x = 0.0, y = 0.0;
        Product(row.p, row.q, row.r, row.s, x, y);
        n += row.a * y;
    }

    // Planetary perturbations of the longitude.
    dlam += 0.82 * Sine(0.7736 - 62.5512 * T) + 0.31 * Sine(0.0466 - 125.1025 * T) +
            0.35 * Sine(0.5785 - 25.1042 * T) + 0.66 * Sine(0.4591 + 1335.8075 * T) +
            0.64 * Sine(0.3130 - 91.5680 * T) + 1.14 * Sine(0.1480 + 1331.2898 * T) +
            0.21 * Sine(0.5918 + 1056.5859 * T) + 0.44 * Sine(0.5784 + 1322.8595 * T) +
            0.24 * Sine(0.2275 - 5.7374 * T) + 0.28 * Sine(0.2965 + 2.6929 * T) +
            0.33 * Sine(0.3132 + 6.3368 * T);

    LunarPosition place;
    place.Longitude = TwoPi * Frac((l0 + dlam / arc) / TwoPi);
    const double s = f + ds / arc;
    const double latitude =
        (inclinationFactor * (18519.7 + gam1c) * std::sin(s) - 6.24 * std::sin(3.0 * s) + n) /
        3600.0;
    place.Latitude = latitude * kRadiansPerDegree;
    place.ParallaxSum = sinpi;
    place.Distance = DistanceFromParallaxSum(sinpi);
    return place;
}
