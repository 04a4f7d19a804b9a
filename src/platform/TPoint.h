#pragma once
// A point in device or logical units: x to the right, y downwards.
#include "platform/WinTypes.h"

class TSize;

class TPoint : public POINT
{
public:
    constexpr TPoint() : POINT{0, 0} {}
    constexpr TPoint(int px, int py) : POINT{px, py} {}
    constexpr TPoint(const POINT& p) : POINT(p) {}

    constexpr int X() const { return x; }
    constexpr int Y() const { return y; }

    constexpr TPoint OffsetBy(int dx, int dy) const { return TPoint(x + dx, y + dy); }
    constexpr TPoint operator+(const TPoint& other) const
    {
        return TPoint(x + other.x, y + other.y);
    }
    constexpr TPoint operator-(const TPoint& other) const
    {
        return TPoint(x - other.x, y - other.y);
    }
    constexpr TPoint operator-() const { return TPoint(-x, -y); }
    TPoint& operator+=(const TPoint& other)
    {
        x += other.x;
        y += other.y;
        return *this;
    }
    TPoint& operator-=(const TPoint& other)
    {
        x -= other.x;
        y -= other.y;
        return *this;
    }
    constexpr bool operator==(const TPoint& other) const { return x == other.x && y == other.y; }
    constexpr bool operator!=(const TPoint& other) const { return !(*this == other); }
};
