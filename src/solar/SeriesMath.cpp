#include "solar/SeriesMath.h"

#include <cmath>

double Frac(double x)
{
    // Truncation in double precision rather than through a 32-bit integer, so that arguments
    // beyond two thousand million revolutions still give a fraction instead of overflowing.
    double f = x - std::trunc(x);
    if (f < 0.0) {
        f += 1.0;
        // A tiny negative fraction rounds up to a whole turn; that turn is the same as none.
        if (f >= 1.0) {
            f = 0.0;
        }
    }
    return f;
}

double NormalizeRadians(double x)
{
    if (std::fabs(x) > TwoPi) {
        return x - TwoPi * std::trunc(x / TwoPi);
    }
    return x;
}
