#pragma once
// A clip region. Only rectangles are needed: a region is one rectangle, or empty.
#include "platform/TRect.h"

class TRegion
{
public:
    TRegion() = default;
    explicit TRegion(const TRect& rect) : Rect(rect.Normalized()) {}

    const TRect& GetRect() const { return Rect; }
    bool IsEmpty() const { return Rect.IsEmpty(); }
    bool Contains(const TPoint& p) const { return Rect.Contains(p); }

private:
    TRect Rect;
};
