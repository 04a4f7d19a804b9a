#pragma once
// The circle constants and the degree/radian conversions every subsystem shares.
//
// pi is worked out once at start as the arc cosine of -1, and two pi as twice that value.
// They are inline variables, so any global of another file that includes this header is
// initialised after them and may use them.
#include <cmath>

inline const double pi = std::acos(-1.0);
inline const double twoPi = 2.0 * pi;

// Degrees to radians, as degrees / 360 * two pi.
inline double DegreesToRadians(double degrees)
{
    return degrees / 360.0 * twoPi;
}

// Radians to degrees, as radians * 360 / two pi.
inline double RadiansToDegrees(double radians)
{
    return radians * 360.0 / twoPi;
}

// The whole part of `value` towards zero as an int32 field. Values beyond the range of int
// are held at its ends and a value that is not a number gives 0, so text such as "1e300" or
// "nan" cannot make the conversion undefined.
int TruncateToInt(double value);

// value + 1 for the carry of a sexagesimal field, held at the top of int instead of overflowing
// (a field that far up only comes from a value far outside any circle).
inline int CarryInto(int value)
{
    return value < 2147483647 ? value + 1 : value;
}

// The value without its whole turns of `turn`: value - trunc(value / turn) * turn, but only
// when its magnitude is above `turn`. The sign survives and +-turn itself stays as it is.
double RemoveWholeTurns(double value, double turn);
