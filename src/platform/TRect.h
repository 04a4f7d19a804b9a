#pragma once
// A rectangle by its edges. As everywhere in drawing, it holds the pixels from left to
// right - 1 and from top to bottom - 1: the right and bottom edges lie outside it.
#include <algorithm>

#include "platform/TPoint.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TRect : public RECT
{
public:
    constexpr TRect() : RECT{0, 0, 0, 0} {}
    constexpr TRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
    constexpr TRect(const RECT& r) : RECT(r) {}
    constexpr TRect(const TPoint& topLeft, const TPoint& bottomRight)
        : RECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}
    {}
    constexpr TRect(const TPoint& origin, const TSize& extent)
        : RECT{origin.x, origin.y, origin.x + extent.cx, origin.y + extent.cy}
    {}

    constexpr int Left() const { return left; }
    constexpr int Top() const { return top; }
    constexpr int Right() const { return right; }
    constexpr int Bottom() const { return bottom; }
    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr TSize Size() const { return TSize(Width(), Height()); }
    constexpr TPoint TopLeft() const { return TPoint(left, top); }
    constexpr TPoint BottomRight() const { return TPoint(right, bottom); }

    // No pixel inside: a width or height of 0 or less.
    constexpr bool IsEmpty() const { return right <= left || bottom <= top; }
    // Same edges, with left <= right and top <= bottom.
    constexpr TRect Normalized() const
    {
        return TRect(std::min(left, right), std::min(top, bottom), std::max(left, right),
                     std::max(top, bottom));
    }
    // The pixel at p lies inside: left <= x < right and top <= y < bottom.
    constexpr bool Contains(const TPoint& p) const
    {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    // The two rectangles share at least one pixel.
    constexpr bool Touches(const TRect& other) const
    {
        return other.right > left && other.left < right && other.bottom > top && other.top < bottom;
    }
    constexpr TRect OffsetBy(int dx, int dy) const
    {
        return TRect(left + dx, top + dy, right + dx, bottom + dy);
    }
    constexpr TRect InflatedBy(int dx, int dy) const
    {
        return TRect(left - dx, top - dy, right + dx, bottom + dy);
    }
    // The common part; empty rectangles come out as (0, 0, 0, 0).
    constexpr TRect operator&(const TRect& other) const
    {
        TRect r(std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom));
        return r.IsEmpty() ? TRect() : r;
    }
    // The smallest rectangle holding both; an empty rectangle adds nothing.
    constexpr TRect operator|(const TRect& other) const
    {
        if (IsEmpty()) {
            return other.IsEmpty() ? TRect() : other;
        }
        if (other.IsEmpty()) {
            return *this;
        }
        return TRect(std::min(left, other.left), std::min(top, other.top),
                     std::max(right, other.right), std::max(bottom, other.bottom));
    }
    constexpr bool operator==(const TRect& other) const
    {
        return left == other.left && top == other.top && right == other.right &&
               bottom == other.bottom;
    }
    constexpr bool operator!=(const TRect& other) const { return !(*this == other); }
};
