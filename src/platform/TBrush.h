#pragma once
// A brush: the solid colour that fills shapes and rectangles, or no fill at all.
#include "platform/TColor.h"
#include "platform/WinTypes.h"

class TBrush
{
public:
    explicit TBrush(const TColor& color) : Color(color), nStyle(BS_SOLID) {}

    // A brush that fills nothing, for outlines alone.
    static TBrush Null()
    {
        TBrush b(TColor::Black);
        b.nStyle = BS_NULL;
        return b;
    }

    TColor GetColor() const { return Color; }
    bool IsNull() const { return nStyle == BS_NULL; }

    bool GetObject(LOGBRUSH& brush) const
    {
        brush = LOGBRUSH{nStyle, Color, 0};
        return true;
    }

private:
    TColor Color;
    UINT nStyle;
};
