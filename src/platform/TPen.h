#pragma once
// A pen: the colour, width and style of lines and outlines. A pen of width 0 or 1 draws
// single pixels; styles other than PS_NULL draw solid.
#include "platform/TColor.h"
#include "platform/WinTypes.h"

class TPen
{
public:
    explicit TPen(const TColor& color, int width = 1, int style = PS_SOLID)
        : Color(color), nWidth(width), nStyle(style)
    {}

    TColor GetColor() const { return Color; }
    int GetWidth() const { return nWidth; }
    int GetStyle() const { return nStyle; }
    bool IsNull() const { return UINT(nStyle) == PS_NULL; }

    bool GetObject(LOGPEN& pen) const
    {
        pen = LOGPEN{UINT(nStyle), POINT{nWidth, 0}, Color};
        return true;
    }

private:
    TColor Color;
    int nWidth;
    int nStyle;
};
