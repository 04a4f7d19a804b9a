#pragma once
// Vector arithmetic on RectCoord for the solar-system reduction: sums, differences, scaling
// and length. The unit and frame are those of the operands.
#include "coords/RectCoord.h"

#include <cmath>

inline RectCoord Sum(const RectCoord& a, const RectCoord& b)
{
    return {a.GetX() + b.GetX(), a.GetY() + b.GetY(), a.GetZ() + b.GetZ()};
}

inline RectCoord Difference(const RectCoord& a, const RectCoord& b)
{
    return {a.GetX() - b.GetX(), a.GetY() - b.GetY(), a.GetZ() - b.GetZ()};
}

inline RectCoord Scaled(const RectCoord& a, double factor)
{
    return {a.GetX() * factor, a.GetY() * factor, a.GetZ() * factor};
}

inline double Length(const RectCoord& a)
{
    return std::sqrt(a.GetX() * a.GetX() + a.GetY() * a.GetY() + a.GetZ() * a.GetZ());
}
