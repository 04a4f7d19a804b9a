#include "solar/KeplerOrbit.h"

#include "solar/SeriesMath.h"

#include <cmath>

namespace {

// Newton steps allowed to either Kepler equation.
constexpr int kMaxKeplerSteps = 15;
// Rounds allowed to the near-parabolic loop.
constexpr int kMaxParabolicRounds = 16;

} // namespace

double SolveKepler(double meanAnomalyDegrees, double e, int* steps)
{
    const double turns = meanAnomalyDegrees / 360.0;
    double m = TwoPi * (turns - std::trunc(turns));
    if (m < 0.0) {
        m += TwoPi;
    }
    // From the mean anomaly the iteration is quick for small e; for large e it can overshoot
    // near perihelion, and half a turn is a start from which Newton's method always converges.
    double E = e < 0.8 ? m : Pi;
    double f = E - e * std::sin(E) - m;
    int n = 0;
    while (std::fabs(f) > 1e-11 && n < kMaxKeplerSteps) {
        E -= f / (1.0 - e * std::cos(E));
        f = E - e * std::sin(E) - m;
        ++n;
    }
    if (steps != nullptr) {
        *steps = n;
    }
    return E * kDegreesPerRadian;
}

double SolveHyperbolicKepler(double m, double e, int* steps)
{
    double H = std::log(2.0 * std::fabs(m) / e + 1.8);
    if (m < 0.0) {
        H = -H;
    }
    double f = e * std::sinh(H) - H - m;
    int n = 0;
    while (std::fabs(f) > 1e-10 * (1.0 + std::fabs(H + m)) && n < kMaxKeplerSteps) {
        H -= f / (e * std::cosh(H) - 1.0);
        f = e * std::sinh(H) - H - m;
        ++n;
    }
    if (steps != nullptr) {
        *steps = n;
    }
    return H;
}

StumpffValues Stumpff(long double E2)
{
    StumpffValues c;
    if (E2 >= 100.0L) {
        // Far out the alternating series cancels away its digits; the closed forms do not.
        const long double r = std::sqrt(E2);
        c.C1 = std::sin(r) / r;
        c.C2 = (1.0L - std::cos(r)) / E2;
        c.C3 = (r - std::sin(r)) / (r * E2);
        return c;
    }
    if (E2 <= -100.0L) {
        // An orbit just beyond e = 1 far from perihelion. The circular functions of an
        // imaginary r = i sqrt(-E2) are the hyperbolic ones of sqrt(-E2): sin(ir)/(ir) is
        // sinh(r)/r, 1 - cos(ir) is 1 - cosh(r), and so on. The series would give the same
        // values (all its terms are then positive, so nothing cancels), but it needs hundreds of
        // terms out there; the closed forms cost one exponential.
        const long double r = std::sqrt(-E2);
        const long double sh = std::sinh(r);
        c.C1 = sh / r;
        c.C2 = (std::cosh(r) - 1.0L) / -E2;
        c.C3 = (sh - r) / (r * -E2);
        return c;
    }
    long double add = 1.0L;
    for (int n = 1;; ++n) {
        c.C1 += add;
        add /= 2.0L * n;
        c.C2 += add;
        add /= 2.0L * n + 1.0L;
        c.C3 += add;
        add *= -E2;
        if (std::fabs(add) < 1e-12L) {
            break;
        }
    }
    return c;
}

OrbitPlaneState EllipticOrbit(double meanAnomalyDegrees, double a, double e)
{
    OrbitPlaneState state;
    const double E = SolveKepler(meanAnomalyDegrees, e, &state.Rounds) * kRadiansPerDegree;
    const double c = std::cos(E), s = std::sin(E);
    const double f = std::sqrt((1.0 + e) * (1.0 - e));
    const double kk = kGaussianGravitation / std::sqrt(a);
    const double d = 1.0 - e * c;
    state.X = a * (c - e);
    state.Y = a * f * s;
    state.VX = -kk * s / d;
    state.VY = kk * f * c / d;
    return state;
}

OrbitPlaneState HyperbolicOrbit(double days, double a, double e)
{
    OrbitPlaneState state;
    a = std::fabs(a);
    const double kk = kGaussianGravitation / std::sqrt(a);
    const double m = days * kk / a; // hyperbolic mean anomaly, radians
    const double H = SolveHyperbolicKepler(m, e, &state.Rounds);
    const double ex = std::exp(H);
    const double ch = 0.5 * (ex + 1.0 / ex);
    const double sh = 0.5 * (ex - 1.0 / ex);
    const double f = std::sqrt((e - 1.0) * (e + 1.0));
    const double d = e * ch - 1.0;
    state.X = a * (e - ch);
    state.Y = a * f * sh;
    state.VX = -kk * sh / d;
    state.VY = kk * f * ch / d;
    return state;
}

OrbitPlaneState NearParabolicOrbit(double days, double q, double e)
{
    const long double k = kGaussianGravitation;
    const long double ee = e, qq = q;
    const long double kk = k / std::sqrt((1.0L + ee) * qq);
    const long double tau = k * static_cast<long double>(days);

    long double E2 = 0.0L, U = 0.0L, U2 = 0.0L;
    long double fac = 0.5L * ee; // 3 e c3, which is e/2 on the parabola
    StumpffValues c;
    int rounds = 0;
    for (;;) {
        ++rounds;
        const long double E20 = E2;
        // Barker's equation for the parabola, scaled by the present fac: U = B - 1/B solves
        // U³/3 + U = 2A, and B is the cube root of A + sqrt(A² + 1). For negative A the same
        // number is formed as 1 / (sqrt(A² + 1) - A), which does not cancel.
        const long double A = 1.5L * std::sqrt(fac / (qq * qq * qq)) * tau;
        const long double root = std::sqrt(A * A + 1.0L);
        const long double B = std::cbrt(A >= 0.0L ? root + A : 1.0L / (root - A));
        U = B - 1.0L / B;
        U2 = U * U;
        E2 = U2 * (1.0L - ee) / fac;
        c = Stumpff(E2);
        fac = 3.0L * ee * c.C3;
        if (std::fabs(E2 - E20) < 1e-9L || rounds >= kMaxParabolicRounds) {
            break;
        }
    }

    const long double R = qq * (1.0L + U2 * c.C2 * ee / fac);
    const long double X = qq * (1.0L - U2 * c.C2 / fac);
    const long double Y = qq * std::sqrt((1.0L + ee) / fac) * U * c.C1;
    OrbitPlaneState state;
    state.X = static_cast<double>(X);
    state.Y = static_cast<double>(Y);
    state.VX = static_cast<double>(-kk * Y / R);
    state.VY = static_cast<double>(kk * (X / R + ee));
    state.Rounds = rounds;
    return state;
}
