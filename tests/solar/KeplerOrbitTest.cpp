// Motion on a conic: both Kepler equations, the Stumpff functions in every range, and the three
// solvers, checked against known values, against the laws of two-body motion (angular momentum,
// energy, velocity as the rate of the position) and against each other where they meet near
// e = 1.
#include <gtest/gtest.h>

#include "solar/KeplerOrbit.h"
#include "solar/SeriesMath.h"

#include <cmath>
#include <functional>

namespace {

constexpr double k = kGaussianGravitation;

double Degrees(double radians)
{
    return radians * kDegreesPerRadian;
}

double Distance(const OrbitPlaneState& s)
{
    return std::hypot(s.X, s.Y);
}

// Mean anomaly in degrees after `days` on an ellipse of semi-major axis a.
double MeanAnomaly(double days, double a)
{
    return Degrees(k * days / std::pow(a, 1.5));
}

// The laws every solution of the two-body problem keeps: angular momentum k sqrt(p) with the
// semi-latus rectum p = q (1 + e), the vis-viva energy, and velocity as the rate of position.
void ExpectTwoBodyMotion(const std::function<OrbitPlaneState(double)>& at, double days, double q,
                         double e, const char* what)
{
    SCOPED_TRACE(what);
    SCOPED_TRACE(days);
    const OrbitPlaneState s = at(days);
    const double r = Distance(s);
    const double p = q * (1.0 + e);
    EXPECT_NEAR((s.X * s.VY - s.Y * s.VX) / (k * std::sqrt(p)), 1.0, 1e-9);
    // v² = k² (2/r - 1/a), with 1/a = (1 - e) / q for every conic.
    const double v2 = s.VX * s.VX + s.VY * s.VY;
    EXPECT_NEAR(v2 / (k * k * (2.0 / r - (1.0 - e) / q)), 1.0, 1e-9);
    // The orbit itself: r = p / (1 + e cos nu), with cos nu = X / r.
    EXPECT_NEAR(r * (1.0 + e * s.X / r) / p, 1.0, 1e-9);

    const double h = 1e-3; // days
    const OrbitPlaneState before = at(days - h), after = at(days + h);
    const double scale = std::hypot(s.VX, s.VY);
    EXPECT_NEAR((after.X - before.X) / (2.0 * h), s.VX, 1e-6 * scale);
    EXPECT_NEAR((after.Y - before.Y) / (2.0 * h), s.VY, 1e-6 * scale);
}

} // namespace

TEST(KeplerEquation, KnownAnswersAndWholeTurns)
{
    int steps = -1;
    EXPECT_NEAR(SolveKepler(90.0, 0.5, &steps), 115.793621, 5e-7);
    EXPECT_EQ(steps, 4);
    EXPECT_NEAR(SolveKepler(-90.0, 0.5), 244.206379, 5e-7);
    EXPECT_NEAR(SolveKepler(450.0, 0.5), SolveKepler(90.0, 0.5), 1e-9);
    EXPECT_NEAR(SolveKepler(90.0 - 3600.0, 0.5), SolveKepler(90.0, 0.5), 1e-9);
    // A circle: the eccentric anomaly is the mean anomaly.
    EXPECT_NEAR(SolveKepler(123.4, 0.0), 123.4, 1e-9);
}

TEST(KeplerEquation, HoldsOverTheWholeRangeOfEllipses)
{
    for (double e : {0.0, 0.1, 0.5, 0.79, 0.8, 0.9, 0.97, 0.99, 0.999}) {
        for (double M = -350.0; M <= 360.0; M += 7.3) {
            int steps = 0;
            const double E = SolveKepler(M, e, &steps) * kRadiansPerDegree;
            const double m = std::remainder(M * kRadiansPerDegree - (E - e * std::sin(E)), TwoPi);
            EXPECT_NEAR(m, 0.0, 1e-10) << "e " << e << " M " << M;
            EXPECT_LT(steps, 15) << "e " << e << " M " << M;
        }
    }
}

TEST(HyperbolicKeplerEquation, KnownAnswerIsOddInTheMeanAnomaly)
{
    int steps = -1;
    EXPECT_NEAR(SolveHyperbolicKepler(1.0, 1.5, &steps), 1.161635, 5e-7);
    EXPECT_EQ(steps, 3);
    EXPECT_NEAR(SolveHyperbolicKepler(-1.0, 1.5), -SolveHyperbolicKepler(1.0, 1.5), 1e-15);
    EXPECT_EQ(SolveHyperbolicKepler(0.0, 2.0), 0.0);
}

TEST(HyperbolicKeplerEquation, HoldsFromSlightToStrongHyperbolas)
{
    for (double e : {1.1, 1.5, 2.0, 5.0, 50.0}) {
        for (double m : {-1e4, -30.0, -1.0, -0.01, 0.02, 0.7, 3.0, 100.0, 1e5}) {
            int steps = 0;
            const double H = SolveHyperbolicKepler(m, e, &steps);
            EXPECT_NEAR(e * std::sinh(H) - H, m, 1e-9 * (1.0 + std::fabs(m))) << e << " " << m;
            EXPECT_LT(steps, 15) << "e " << e << " m " << m;
        }
    }
}

TEST(StumpffFunctions, KnownValues)
{
    const StumpffValues zero = Stumpff(0.0L);
    EXPECT_EQ(zero.C1, 1.0L);
    EXPECT_NEAR(static_cast<double>(zero.C2), 0.5, 1e-18);
    EXPECT_NEAR(static_cast<double>(zero.C3), 1.0 / 6.0, 1e-17);

    const StumpffValues one = Stumpff(1.0L);
    // The series stops at terms below 1e-12.
    EXPECT_NEAR(static_cast<double>(one.C1), std::sin(1.0), 1e-12);
    EXPECT_NEAR(static_cast<double>(one.C2), 1.0 - std::cos(1.0), 1e-12);
    EXPECT_NEAR(static_cast<double>(one.C3), 1.0 - std::sin(1.0), 1e-12);

    const StumpffValues minusOne = Stumpff(-1.0L);
    EXPECT_NEAR(static_cast<double>(minusOne.C1), std::sinh(1.0), 1e-12);
    EXPECT_NEAR(static_cast<double>(minusOne.C2), std::cosh(1.0) - 1.0, 1e-12);
    EXPECT_NEAR(static_cast<double>(minusOne.C3), std::sinh(1.0) - 1.0, 1e-12);
}

// c1 = 1 - E2 c3 and cos r = 1 - E2 c2 (cosh for negative E2) hold in every branch: the series
// inside |E2| < 100 (to its truncation, terms below 1e-12), the circular closed forms above and
// the hyperbolic ones below.
TEST(StumpffFunctions, IdentitiesHoldInEveryBranch)
{
    for (long double E2 :
         {-5000.0L, -400.0L, -100.0L, -99.5L, -30.0L, -0.3L, 0.2L, 17.0L, 99.5L, 100.0L, 2500.0L}) {
        const StumpffValues c = Stumpff(E2);
        const long double r = std::sqrt(std::fabs(E2));
        const long double c0 = E2 >= 0.0L ? std::cos(r) : std::cosh(r);
        const long double scale = E2 >= 0.0L ? 1.0L : c0;
        EXPECT_NEAR(static_cast<double>((c.C1 - (1.0L - E2 * c.C3)) / scale), 0.0, 1e-10)
            << static_cast<double>(E2);
        EXPECT_NEAR(static_cast<double>((c0 - (1.0L - E2 * c.C2)) / scale), 0.0, 1e-10)
            << static_cast<double>(E2);
    }
}

TEST(StumpffFunctions, SeriesAndClosedFormsMeetAtTheBoundaries)
{
    for (long double edge : {100.0L, -100.0L}) {
        const long double inside = edge * (1.0L - 1e-12L);
        const StumpffValues series = Stumpff(inside), closed = Stumpff(edge);
        EXPECT_NEAR(static_cast<double>(series.C1 / closed.C1), 1.0, 1e-9);
        EXPECT_NEAR(static_cast<double>(series.C2 / closed.C2), 1.0, 1e-9);
        EXPECT_NEAR(static_cast<double>(series.C3 / closed.C3), 1.0, 1e-9);
    }
}

TEST(ConicSolvers, EveryKindStandsAtPerihelionAtTheTimeOfPerihelion)
{
    const double q = 0.8;
    const OrbitPlaneState ellipse = EllipticOrbit(0.0, q / (1.0 - 0.5), 0.5);
    const OrbitPlaneState hyperbola = HyperbolicOrbit(0.0, q / (1.0 - 2.0), 2.0);
    const OrbitPlaneState nearEllipse = NearParabolicOrbit(0.0, q, 0.99);
    const OrbitPlaneState parabola = NearParabolicOrbit(0.0, q, 1.0);
    const OrbitPlaneState nearHyperbola = NearParabolicOrbit(0.0, q, 1.02);
    for (const auto& [s, e] : {std::pair{ellipse, 0.5},
                               {hyperbola, 2.0},
                               {nearEllipse, 0.99},
                               {parabola, 1.0},
                               {nearHyperbola, 1.02}}) {
        EXPECT_NEAR(s.X, q, 1e-14) << e;
        EXPECT_NEAR(s.Y, 0.0, 1e-14) << e;
        EXPECT_NEAR(s.VX, 0.0, 1e-14) << e;
        EXPECT_NEAR(s.VY, k * std::sqrt((1.0 + e) / q), 1e-14) << e;
    }
}

TEST(ConicSolvers, SolutionsObeyTwoBodyMotion)
{
    const double q = 0.6;
    for (double e : {0.0, 0.3, 0.9, 0.97}) {
        const double a = q / (1.0 - e);
        const auto ellipse = [&](double days) { return EllipticOrbit(MeanAnomaly(days, a), a, e); };
        for (double days : {-400.0, -20.0, 3.0, 150.0, 2000.0}) {
            ExpectTwoBodyMotion(ellipse, days, q, e, "ellipse");
        }
    }
    for (double e : {1.05, 1.5, 4.0}) {
        const auto hyperbola = [&](double days) { return HyperbolicOrbit(days, q / (1.0 - e), e); };
        for (double days : {-3000.0, -50.0, 1.0, 90.0, 10000.0}) {
            ExpectTwoBodyMotion(hyperbola, days, q, e, "hyperbola");
        }
    }
    for (double e : {0.9, 0.99, 1.0, 1.01, 1.09}) {
        const auto near = [&](double days) { return NearParabolicOrbit(days, q, e); };
        for (double days : {-300.0, -30.0, 0.5, 60.0, 500.0}) {
            ExpectTwoBodyMotion(near, days, q, e, "near-parabolic");
        }
    }
}

// Near e = 1 the near-parabolic loop and the ellipse or hyperbola solver must give the same
// orbit, before and after perihelion, so that the change of solver makes no jump.
TEST(ConicSolvers, NearParabolicAgreesWithTheEllipseAndTheHyperbolaOnBothSides)
{
    const double q = 0.9;
    for (double e : {0.9, 0.95, 0.99, 0.999}) {
        const double a = q / (1.0 - e);
        for (double M : {-30.0, -5.0, -1.0, 2.0, 5.0, 30.0}) {
            const double days = M * kRadiansPerDegree * std::pow(a, 1.5) / k;
            const OrbitPlaneState near = NearParabolicOrbit(days, q, e);
            const OrbitPlaneState ellipse = EllipticOrbit(M, a, e);
            EXPECT_NEAR(near.X, ellipse.X, 1e-8 * a) << "e " << e << " M " << M;
            EXPECT_NEAR(near.Y, ellipse.Y, 1e-8 * a) << "e " << e << " M " << M;
            EXPECT_NEAR(near.VY, ellipse.VY, 1e-10) << "e " << e << " M " << M;
        }
    }
    for (double e : {1.001, 1.01, 1.05, 1.1}) {
        const double a = q / (e - 1.0);
        for (double M : {-30.0, -5.0, -1.0, 2.0, 5.0, 30.0}) {
            const double days = M * kRadiansPerDegree * std::pow(a, 1.5) / k;
            const OrbitPlaneState near = NearParabolicOrbit(days, q, e);
            const OrbitPlaneState hyperbola = HyperbolicOrbit(days, -a, e);
            EXPECT_NEAR(near.X, hyperbola.X, 1e-8 * a) << "e " << e << " M " << M;
            EXPECT_NEAR(near.Y, hyperbola.Y, 1e-8 * a) << "e " << e << " M " << M;
            EXPECT_NEAR(near.VY, hyperbola.VY, 1e-10) << "e " << e << " M " << M;
        }
    }
}

// Across e = 1 the near-parabolic loop is continuous: a hair on either side of the parabola
// gives the parabola.
TEST(ConicSolvers, NearParabolicIsContinuousThroughTheParabola)
{
    for (double days : {-200.0, -10.0, 25.0, 400.0}) {
        const OrbitPlaneState parabola = NearParabolicOrbit(days, 1.2, 1.0);
        for (double e : {1.0 - 1e-9, 1.0 + 1e-9}) {
            const OrbitPlaneState near = NearParabolicOrbit(days, 1.2, e);
            const double scale = Distance(parabola);
            EXPECT_NEAR(near.X, parabola.X, 1e-7 * scale) << days << " " << e;
            EXPECT_NEAR(near.Y, parabola.Y, 1e-7 * scale) << days << " " << e;
        }
    }
    // Barker's equation for the parabola: tan(nu/2) + tan³(nu/2) / 3 = k days / sqrt(2 q³).
    const double q = 1.2, days = 77.0;
    const OrbitPlaneState parabola = NearParabolicOrbit(days, q, 1.0);
    const double t = std::tan(0.5 * std::atan2(parabola.Y, parabola.X));
    EXPECT_NEAR(t + t * t * t / 3.0, k * days / std::sqrt(2.0 * q * q * q), 1e-12);
}
