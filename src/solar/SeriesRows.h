#pragma once
// The row layouts of the coefficient tables of the planetary and lunar series. The tables
// themselves are constant arrays in the generated headers SeriesTable<Body>.h.

// One term of a planetary perturbation series. With M the body's own anomaly and M' the
// disturber's, the row's argument is I M + J M'; IT = 0 starts a new argument, IT = k > 0 takes
// the argument of the row before and multiplies by T once more. The six coefficients weigh the
// cosine and sine of the argument for longitude (arcseconds), radius (1e-6 AU for Mercury to
// Mars and the Earth, 1e-5 AU beyond) and latitude (arcseconds).
struct PerturbationRow
{
    int I;
    int J;
    int IT;
    double dlc;
    double dls;
    double drc;
    double drs;
    double dbc;
    double dbs;
};

// One solar term of the lunar theory: the argument p l + q l' + r F + s D of the Moon's anomaly,
// the Sun's anomaly, the argument of latitude and the elongation. a weighs its sine in the
// longitude sum, b its sine in the latitude sum S (arcseconds), c its cosine in the inclination
// sum and e its cosine in the parallax sum (arcseconds).
struct LunarRow
{
    int p;
    int q;
    int r;
    int s;
    double a;
    double b;
    double c;
    double e;
};

// One term of the lunar latitude sum N: a weighs the sine of p l + q l' + r F + s D, arcseconds.
struct LunarLatitudeRow
{
    int p;
    int q;
    int r;
    int s;
    double a;
};

// A mean anomaly or argument M = TwoPi Frac(a + b T): phase a in revolutions and rate b in
// revolutions per Julian century.
struct MeanArgumentConstants
{
    double a;
    double b;
};
