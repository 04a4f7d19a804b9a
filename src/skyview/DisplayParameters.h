#pragma once
// What one draw needs beyond the star settings: the device context, the rectangle, the
// palette, the sky's colour, and direct access to the bits of the map's 8-bit off-screen
// bitmap, into which stars are written without a platform call. Every object's Draw receives
// it.
//
// The off-screen bitmap is a bottom-up 8-bit DIB whose width is a multiple of 8, so its row
// stride is biWidth. Pixel (x, y), y counted from the top, is the byte at
// pFastTopRow - y * biWidth + x, and holds a palette index.
#include <cstdint>

#include "platform/TColor.h"
#include "platform/TRect.h"
#include "platform/WinTypes.h"
#include "skyview/StarDisplayParameters.h"

class StateContainer;
class TDC;
class TPalette;
class Transformation;

class DisplayParameters : public StarDisplayParameters
{
public:
    // Night sky, no surface, no fast bits; the palette indexes of the two sky colours are
    // worked out from the palette.
    DisplayParameters();
    DisplayParameters(const DisplayParameters&) = default;
    DisplayParameters& operator=(const DisplayParameters&) = default;

    // Takes the star settings and works out the scales for the present surface.
    void SetStarDisplayParams(const StarDisplayParameters& parameters);
    // Stores the surface of the draw and works out the scales for it.
    void SetDC(TDC* dc);
    void SetDrawRect(const TRect& rect) { DrawRect = rect; }
    // The bits and header of the off-screen bitmap; null bits when it is gone. Only a
    // bottom-up 8-bit header gives the bits a top row, and only then can stars be written
    // into them.
    void SetFastDrawBitmapBits(void* bits, const BITMAPINFOHEADER& header);

    // The grey of a star's intensity (0 to 255) and its nearest palette index; always true.
    bool GetColorFromIntensity(unsigned intensity, TColor& color, unsigned& index) const;
    // The entry of the palette nearest to `color`.
    unsigned GetPaletteIndex(const TColor& color) const;
    // The palette the host gives the component.
    const TPalette* GetPalette() const;
    // Day sky RGB 0, 0, 0x60, or the black night sky.
    void SetDaytime(bool daytime);
    bool IsDaytime() const { return bDaytime; }
    // What lies below the horizon of a view from the ground: a dark grey on the screen, by
    // day and by night, and a light grey on paper.
    TColor GetGroundColor() const;

    // The width of lines on the present surface, in its pixels: one on the screen; on paper
    // at least a quarter of a millimetre, which a printer's single dot is not.
    int GetLineWidth() const;
    // The colour in which text of `screenColor` (a label, an object's mark) is drawn: that
    // colour on the screen; on white paper black for white and greys, and for other colours
    // a darker shade of the same hue that reads on white.
    TColor GetTextColor(const TColor& screenColor) const;

    // Every member, the bits, the surface and the header included.
    void Copy(const DisplayParameters& other) { *this = other; }

    // Bits of the 8-bit off-screen bitmap; null when direct access is not possible.
    BYTE* pFastBits = nullptr;
    // The screen's top row in those bits; null unless the header is a bottom-up 8-bit one.
    BYTE* pFastTopRow = nullptr;
    // The bitmap's header; biWidth is also the row stride in bytes.
    BITMAPINFOHEADER FastHeader = {};
    // The surface of the present draw, set only during a draw.
    TDC* pDC = nullptr;
    TRect DrawRect;
    // Selects the palette into a memory surface as a foreground palette.
    bool bPaletteForeground = false;
    bool bShowStatus = true;
    bool bShowHorizon = true;
    // The projection of the present draw; not owned.
    Transformation* pTransformation = nullptr;
    bool bDaytime = false;
    // The sky's colour and its palette index.
    TColor BackgroundColor = TColor::Black;
    std::uint32_t nBackgroundIndex = 0;
    // Palette indexes nearest to black and to the day sky.
    std::uint32_t nNightIndex = 0;
    std::uint32_t nDayIndex = 0;
};

// State: a level at the caller's key holding the star settings at "Star Params". Reading
// works out the scales again, for the screen.
StateContainer& operator<<(StateContainer& sc, const DisplayParameters& parameters);
StateContainer& operator>>(StateContainer& sc, DisplayParameters& parameters);
