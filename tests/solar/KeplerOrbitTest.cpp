// Motion on a conic: both Kepler equations against known values, the Stumpff functions where
// their closed forms take over, and the three solvers against the laws of two-body motion
// (angular momentum, energy, the conic, velocity as the rate of the position).
#include <gtest/gtest.h>

#include "solar/KeplerOrbit.h"
#include "solar/SeriesMath.h"

#include <cmath>
#include <functional>

namespace {

constexpr double k = kGaussianGravitation;

// The laws every solution of the two-body problem keeps: angular momentum k sqrt(p) with the
// semi-latus rectum p = q (1 + e), the vis-viva energy, the conic itself, and velocity as the
// rate of position.
void ExpectTwoBodyMotion(const std::function<OrbitPlaneState(double)>& at, double days, double q,
                         double e, const char* what)
{
    SCOPED_TRACE(testing::Message() << what << " e " << e << " day " << days);
    const OrbitPlaneState s = at(days);
    const double r = std::hypot(s.X, s.Y);
    const double p = q * (1.0 + e);
    EXPECT_NEAR((s.X * s.VY - s.Y * s.VX) / (k * std::sqrt(p)), 1.0, 1e-9);
    // v² = k² (2/r - 1/a), with 1/a = (1 - e) / q for every conic.
    const double v2 = s.VX * s.VX + s.VY * s.VY;
    EXPECT_NEAR(v2 / (k * k * (2.0 / r - (1.0 - e) / q)), 1.0, 1e-9);
    // r = p / (1 + e cos nu), with cos nu = X / r.
    EXPECT_NEAR((r + e * s.X) / p, 1.0, 1e-9);

    const double h = 1e-3; // days
    const OrbitPlaneState before = at(days - h), after = at(days + h);
    const double scale = std::hypot(s.VX, s.VY);
    EXPECT_NEAR((after.X - before.X) / (2.0 * h), s.VX, 1e-6 * scale);
    EXPECT_NEAR((after.Y - before.Y) / (2.0 * h), s.VY, 1e-6 * scale);
}

} // namespace

TEST(KeplerEquation, KnownAnswersWholeTurnsAndEveryEllipse)
{
    int steps = -1;
    EXPECT_NEAR(SolveKepler(90.0, 0.5, &steps), 115.793621, 5e-7);
    EXPECT_EQ(steps, 4);
    EXPECT_NEAR(SolveKepler(-90.0, 0.5), 244.206379, 5e-7);
    EXPECT_NEAR(SolveKepler(450.0, 0.5), SolveKepler(90.0, 0.5), 1e-9);
    // Up to the most eccentric ellipses the equation holds within the step limit.
    for (double e : {0.0, 0.5, 0.79, 0.8, 0.97, 0.999}) {
        for (double M = -350.0; M <= 360.0; M += 7.3) {
            const double E = SolveKepler(M, e, &steps) * kRadiansPerDegree;
            EXPECT_NEAR(std::remainder(M * kRadiansPerDegree - (E - e * std::sin(E)), TwoPi), 0.0,
                        1e-10)
                << "e " << e << " M " << M;
            EXPECT_LT(steps, 15) << "e " << e << " M " << M;
        }
    }
}

TEST(HyperbolicKeplerEquation, KnownAnswerOddInTheMeanAnomaly)
{
    int steps = -1;
    EXPECT_NEAR(SolveHyperbolicKepler(1.0, 1.5, &steps), 1.161635, 5e-7);
    EXPECT_EQ(steps, 3);
    EXPECT_NEAR(SolveHyperbolicKepler(-1.0, 1.5), -SolveHyperbolicKepler(1.0, 1.5), 1e-15);
}

TEST(StumpffFunctions, ClosedFormsBeyondTheSeriesMeetIt)
{
    // From |E2| = 100 on, circular and hyperbolic closed forms take over from the series.
    const auto ratio = [](long double a, long double b) { return static_cast<double>(a / b); };
    for (long double edge : {100.0L, -100.0L}) {
        const StumpffValues series = Stumpff(edge * (1.0L - 1e-12L)), closed = Stumpff(edge);
        EXPECT_NEAR(ratio(series.C1, closed.C1), 1.0, 1e-9) << static_cast<double>(edge);
        EXPECT_NEAR(ratio(series.C2, closed.C2), 1.0, 1e-9) << static_cast<double>(edge);
        EXPECT_NEAR(ratio(series.C3, closed.C3), 1.0, 1e-9) << static_cast<double>(edge);
    }
}

TEST(ConicSolvers, SolutionsObeyTwoBodyMotion)
{
    const double q = 0.6;
    for (double e : {0.0, 0.3, 0.9, 0.97}) {
        const double a = q / (1.0 - e);
        const auto ellipse = [&](double days) {
            return EllipticOrbit(k * days / std::pow(a, 1.5) * kDegreesPerRadian, a, e);
        };
        for (double days : {-400.0, -20.0, 3.0, 150.0, 2000.0}) {
            ExpectTwoBodyMotion(ellipse, days, q, e, "ellipse");
        }
    }
    for (double e : {1.05, 1.5, 4.0}) {
        const auto hyperbola = [&](double days) { return HyperbolicOrbit(days, q / (1.0 - e), e); };
        for (double days : {-3000.0, -50.0, 0.0, 90.0, 10000.0}) {
            ExpectTwoBodyMotion(hyperbola, days, q, e, "hyperbola");
        }
    }
    for (double e : {0.9, 0.99, 1.0, 1.01, 1.09}) {
        const auto near = [&](double days) { return NearParabolicOrbit(days, q, e); };
        for (double days : {-300.0, -30.0, 0.0, 60.0, 500.0}) {
            ExpectTwoBodyMotion(near, days, q, e, "near-parabolic");
        }
    }
}
