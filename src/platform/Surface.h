#pragma once
// A rectangle of pixels that device contexts draw on.
//
// Rows are `Stride()` bytes apart in memory, top-down or bottom-up. An 8-bit surface holds
// indexes into its colour table of 256 entries; its stride is the width rounded up to 4 bytes,
// so a width that is a multiple of 8 gives a stride equal to the width. The memory never moves
// while the surface lives, so pointers into it stay good.
#include <cstdint>
#include <vector>

#include "platform/ColorMatcher.h"
#include "platform/DrawingTarget.h"
#include "platform/PixelFormat.h"
#include "platform/TRect.h"
#include "platform/WinTypes.h"

class Surface : public DrawingTarget
{
public:
    // A surface of at least 1 by 1 pixel, cleared to 0 (black, or index 0). An 8-bit surface
    // starts with the standard palette as its colour table.
    Surface(int width, int height, PixelFormat format, bool bottomUp = false);

    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    Surface& GetDrawingSurface() override { return *this; }

    int Width() const { return nWidth; }
    int Height() const { return nHeight; }
    PixelFormat GetFormat() const { return Format; }
    bool IsIndexed() const { return Format == PixelFormat::Indexed8; }
    int Stride() const { return nStride; }
    bool IsBottomUp() const { return bBottomUp; }
    TRect Bounds() const { return TRect(0, 0, nWidth, nHeight); }

    // The row that comes first in memory (the bottom row of a bottom-up surface).
    BYTE* Bits() { return aBits.data(); }
    const BYTE* Bits() const { return aBits.data(); }
    // Row y counted from the top of the picture.
    BYTE* Row(int y) { return aBits.data() + RowOffset(y); }
    const BYTE* Row(int y) const { return aBits.data() + RowOffset(y); }

    // The stored value of a pixel: an index, or 0x00RRGGBB. 0 outside the surface.
    std::uint32_t ValueAt(int x, int y) const;
    void SetValue(int x, int y, std::uint32_t value);
    // The visible colour of a pixel as a plain RGB COLORREF; CLR_INVALID outside.
    COLORREF ColorAt(int x, int y) const;

    // The colour table of an 8-bit surface, always 256 entries; missing ones are black.
    const std::vector<COLORREF>& ColorTable() const { return Matcher.GetColors(); }
    void SetColorTable(const std::vector<COLORREF>& colors);
    void SetColorTable(const RGBQUAD* colors, int count);
    // Counts changes of the colour table, so that users can tell when theirs is stale.
    unsigned TableVersion() const { return nTableVersion; }

    // The stored value that shows `rgb` best: the nearest table index, or 0x00RRGGBB.
    std::uint32_t ValueForColor(COLORREF rgb) const;
    // The visible colour of a stored value, as a plain RGB COLORREF.
    COLORREF ColorForValue(std::uint32_t value) const;

    static std::uint32_t RgbToValue(COLORREF rgb)
    {
        return (rgb & 0x00FF00) | ((rgb & 0xFF) << 16) | ((rgb >> 16) & 0xFF);
    }
    static COLORREF ValueToRgb(std::uint32_t value) { return RgbToValue(value); }

private:
    std::size_t RowOffset(int y) const
    {
        return std::size_t(bBottomUp ? nHeight - 1 - y : y) * std::size_t(nStride);
    }

    int nWidth;
    int nHeight;
    PixelFormat Format;
    bool bBottomUp;
    int nStride;
    std::vector<BYTE> aBits;
    ColorMatcher Matcher;
    unsigned nTableVersion = 0;
};
