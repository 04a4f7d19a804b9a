#pragma once
// The Moon's geocentric place from an analytic lunar theory: mean arguments with long-periodic
// corrections, 104 solar terms in the longitude, the latitude and the parallax, 10 terms of the
// latitude sum N, and 11 planetary terms in the longitude. Ecliptic and mean equinox of date;
// about 10 arcseconds in longitude and 3 in latitude within a few centuries of 2000.
//
// T is Julian centuries from 2000 January 1.5. The four arguments are the Moon's mean anomaly
// l, the Sun's mean anomaly l', the Moon's argument of latitude F and its elongation D; a term
// (p, q, r, s) stands for the angle p l + q l' + r F + s D, whose cosine and sine come from
// tables of multiples by the addition theorem alone.
#include "solar/FlexDoubleIndexArray.h"
#include "solar/SeriesRows.h"

#include <span>

// The Moon seen from the Earth's centre, ecliptic of the mean equinox of date.
struct LunarPosition
{
    double Longitude = 0.0;   // radians, in [0, TwoPi)
    double Latitude = 0.0;    // radians
    double Distance = 0.0;    // AU
    double ParallaxSum = 0.0; // the parallax sum of the series, arcseconds, before its scale
};

class LunarSeries
{
public:
    // Arcseconds per radian, as the lunar theory rounds it.
    static constexpr double kArc = 206264.81;
    // The Earth's equatorial radius and the astronomical unit, kilometres.
    static constexpr double kEarthRadiusKm = 6378.14;
    static constexpr double kAstronomicalUnitKm = 149597870.0;

    LunarSeries();
    virtual ~LunarSeries() = default;

    // The place at T. A second call with the same T returns the stored result without
    // evaluating the series again.
    const LunarPosition& Evaluate(double T);

    // The Moon's distance from the Earth's centre for a parallax sum in arcseconds (the sum of
    // the series before its scale 0.999953253), in Earth radii and in AU.
    static double EarthRadiiFromParallaxSum(double parallaxSum);
    static double DistanceFromParallaxSum(double parallaxSum);

protected:
    // The theory proper, run by Evaluate when the time changes.
    virtual LunarPosition Compute(double T);

private:
    void FormLongPeriodicChanges(double T);
    void FormMeanArguments(double T);
    void FormMultiples(int column, double argument, int highest, double factor);
    // The cosine x and sine y of p l + q l' + r F + s D from the tables of multiples.
    void Product(int p, int q, int r, int s, double& x, double& y) const;
    void AddSolarRows(std::span<const LunarRow> rows);

    // Long-periodic changes of the five mean arguments (arcseconds) and of the inclination.
    double dl0 = 0.0, dl = 0.0, dls = 0.0, df = 0.0, dd = 0.0, dgam = 0.0;
    // Mean longitude, anomalies, argument of latitude and elongation, radians.
    double l0 = 0.0, l = 0.0, ls = 0.0, f = 0.0, d = 0.0;
    // Sums: longitude, latitude S and latitude N (arcseconds), inclination, parallax
    // (arcseconds).
    double dlam = 0.0, ds = 0.0, n = 0.0, gam1c = 0.0, sinpi = 0.0;
    // co[j][i], si[j][i]: cosine and sine of j times argument i (1 l, 2 l', 3 F, 4 D), each
    // scaled by the j-th power of the argument's factor.
    FlexDoubleIndexArray co;
    FlexDoubleIndexArray si;

    bool bEvaluated = false;
    double EvaluatedT = 0.0;
    LunarPosition Result;
};
