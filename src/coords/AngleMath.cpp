#include "coords/AngleMath.h"

#include <climits>

int TruncateToInt(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    double whole = std::trunc(value);
    if (whole >= static_cast<double>(INT_MAX)) {
        return INT_MAX;
    }
    if (whole <= static_cast<double>(INT_MIN)) {
        return INT_MIN;
    }
    return static_cast<int>(whole);
}

double RemoveWholeTurns(double value, double turn)
{
    if (std::fabs(value) > turn) {
        double reduced = value - std::trunc(value / turn) * turn;
        // Beyond about 1e17 turns the product above loses the remainder altogether; the
        // exact remainder keeps such values inside the circle.
        return std::fabs(reduced) > turn ? std::fmod(value, turn) : reduced;
    }
    return value;
}
