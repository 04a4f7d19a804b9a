#pragma once
// Small numeric helpers shared by the solar-system series: the full turn in radians, the
// fractional part, the reduction of large angles and the addition theorem.
//
// Inside the series every angle is in radians held in a plain double; these helpers keep that
// convention. Pi is the double nearest to the arc cosine of -1, and TwoPi is exactly twice it.

// Pi and the full turn, radians.
inline constexpr double Pi = 3.14159265358979323846;
inline constexpr double TwoPi = 2.0 * Pi;

// Degrees to radians and back, as multiplications by the full turn over 360.
inline constexpr double kRadiansPerDegree = TwoPi / 360.0;
inline constexpr double kDegreesPerRadian = 360.0 / TwoPi;

// Arcseconds in one radian, and in a full turn.
inline constexpr double kArcsecondsPerRadian = 206264.8062;
inline constexpr double kArcsecondsPerTurn = 1296000.0;

// The fractional part of x in [0, 1): x less its integer part toward zero, raised by one
// when that is negative. A NaN stays NaN.
double Frac(double x);

// Reduces an angle in radians by whole turns when it exceeds one turn either way; the sign
// stays, so the result lies in [-TwoPi, TwoPi].
double NormalizeRadians(double x);

// The cosine and sine of the sum of two angles from the cosines and sines of each:
// c = c1 c2 - s1 s2, s = s1 c2 + c1 s2. The outputs may be the same variables as the inputs.
inline void AddAngles(double c1, double s1, double c2, double s2, double& c, double& s)
{
    const double cosine = c1 * c2 - s1 * s2;
    const double sine = s1 * c2 + c1 * s2;
    c = cosine;
    s = sine;
}

// Two pi times the fractional part of a + b T: a mean anomaly or argument from its phase a
// (revolutions) and its rate b (revolutions per Julian century), radians in [0, TwoPi).
inline double MeanArgument(double a, double b, double T)
{
    return TwoPi * Frac(a + b * T);
}
