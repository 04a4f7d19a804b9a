#pragma once
// Pixel-level drawing on one surface inside a clip rectangle, with values already in the
// surface's format (an index, or 0x00RRGGBB). Device contexts turn their calls into these.
//
// Lines follow GDI: a line from a to b leaves out b, and its pixels are those nearest to the
// ideal line along the longer axis.
#include <cstdint>

#include "platform/Glyph.h"
#include "platform/Surface.h"
#include "platform/TRect.h"

class Raster
{
public:
    // `clip` is cut to the surface.
    Raster(Surface& surface, const TRect& clip);

    const TRect& GetClip() const { return Clip; }
    Surface& GetSurface() { return Target; }

    void Pixel(int x, int y, std::uint32_t value);
    // Pixels x0 to x1 - 1 of row y.
    void Run(int y, int x0, int x1, std::uint32_t value);
    void Fill(const TRect& rect, std::uint32_t value);
    // Inverts every bit of each pixel: index i becomes 255 - i, colour c becomes white - c.
    void Invert(const TRect& rect);
    // A line one pixel wide; with `withLast` the end point is drawn too.
    void Line(const TPoint& a, const TPoint& b, std::uint32_t value, bool withLast);
    // A line of a square pen `width` pixels across, centred on the one-pixel line.
    void WideLine(const TPoint& a, const TPoint& b, std::uint32_t value, int width, bool withLast);
    // A glyph with its origin (pen position on the baseline) at (x, y). On an 8-bit surface,
    // or without `blend`, pixels of coverage 128 and more take `value`; otherwise `rgb` is mixed
    // into each pixel by its coverage.
    void Mask(const Glyph& glyph, int x, int y, std::uint32_t value, COLORREF rgb, bool blend);

private:
    Surface& Target;
    TRect Clip;
};
