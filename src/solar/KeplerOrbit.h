#pragma once
// Motion on a fixed conic about the Sun, as comets use it: Kepler's equation for the ellipse
// and the hyperbola, the Stumpff functions, and three solvers that give position and velocity
// in the plane of the orbit. The method is that of Montenbruck and Pfleger, "Astronomy on the
// Personal Computer", for unperturbed two-body motion.
//
// Frame: the plane of the orbit, X towards the perihelion, Y a quarter turn ahead in the sense
// of motion. Units: astronomical units and astronomical units per day; time in days since the
// perihelion passage (negative before it). The solvers assume a body of no mass around the Sun
// (the Gaussian constant alone) and are exact to the tolerances of their iterations, 1e-11 in
// the eccentric anomaly, roughly the same relative size in the near-parabolic loop.

// The Gaussian gravitational constant: the Sun's mean motion for unit distance, radians per day.
inline constexpr double kGaussianGravitation = 0.01720209895;

// A position and velocity in the plane of the orbit, and how many rounds the iteration took.
struct OrbitPlaneState
{
    double X = 0.0;  // AU
    double Y = 0.0;  // AU
    double VX = 0.0; // AU per day
    double VY = 0.0; // AU per day
    int Rounds = 0;
};

// The three Stumpff functions c1, c2, c3 of one argument, in extended precision.
struct StumpffValues
{
    long double C1 = 0.0L;
    long double C2 = 0.0L;
    long double C3 = 0.0L;
};

// The eccentric anomaly, degrees in [0, 360), of an ellipse with eccentricity 0 <= e < 1 for a
// mean anomaly in degrees (any size and sign: whole turns are taken off first). Newton's method
// from the mean anomaly (e below 0.8) or from half a turn, at most 15 steps, until the equation
// holds to 1e-11 radian. `steps`, when given, receives the number of steps made.
double SolveKepler(double meanAnomalyDegrees, double e, int* steps = nullptr);

// The hyperbolic anomaly H (radians) with e sinh H - H = m for e > 1; odd in m. Newton's method
// from ln(2|m|/e + 1.8), at most 15 steps.
double SolveHyperbolicKepler(double m, double e, int* steps = nullptr);

// c1 = sin(r)/r, c2 = (1 - cos r)/r², c3 = (r - sin r)/r³ with r² = E2 (their hyperbolic twins
// for negative E2), by the power series while |E2| is below 100 and by the closed forms beyond.
StumpffValues Stumpff(long double E2);

// The ellipse with semi-major axis `a` (AU) and eccentricity e < 1 at a mean anomaly in
// degrees.
OrbitPlaneState EllipticOrbit(double meanAnomalyDegrees, double a, double e);

// The hyperbola with semi-major axis |a| (AU) and eccentricity e > 1, `days` from perihelion.
OrbitPlaneState HyperbolicOrbit(double days, double a, double e);

// Any conic with an eccentricity near 1, given by its perihelion distance q (AU) and e, `days`
// from perihelion: a parabola corrected by the Stumpff functions until the universal variable
// settles (at most 16 rounds). Worked in extended precision, since near e = 1 the differences
// 1 - e and the series lose digits quickly.
OrbitPlaneState NearParabolicOrbit(double days, double q, double e);
