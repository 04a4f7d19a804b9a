#pragma once
// A width and a height, in device or logical units.
#include "platform/WinTypes.h"

class TSize : public SIZE
{
public:
    constexpr TSize() : SIZE{0, 0} {}
    constexpr TSize(int width, int height) : SIZE{width, height} {}
    constexpr TSize(const SIZE& s) : SIZE(s) {}

    constexpr int X() const { return cx; }
    constexpr int Y() const { return cy; }

    constexpr bool operator==(const TSize& other) const { return cx == other.cx && cy == other.cy; }
    constexpr bool operator!=(const TSize& other) const { return !(*this == other); }
};
