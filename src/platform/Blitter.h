#pragma once
// Copies pictures between surfaces with a raster operation: BitBlt, StretchBlt and
// StretchDIBits all end here.
//
// Source pixels are first turned into the destination's format: an index through the colour
// tables (kept as it is when both tables agree), an RGB colour to the nearest index, or an index
// to its colour. Then pattern (the brush), source and destination are combined bit by bit as
// the raster operation's truth table says, on indexes for an 8-bit destination and on RGB for
// a 32-bit one. A source of another size is sampled at the nearest pixel.
#include <cstdint>

#include "platform/PixelSource.h"
#include "platform/Raster.h"
#include "platform/WinTypes.h"

class Blitter
{
public:
    // Whether an operation reads the source, the pattern, the destination.
    static bool UsesSource(DWORD rop);
    static bool UsesPattern(DWORD rop);
    // The result of an operation on values of the destination's format.
    static std::uint32_t Combine(DWORD rop, std::uint32_t pattern, std::uint32_t source,
                                 std::uint32_t destination);

    // Draws the source rectangle (sx, sy, sw, sh) into (dx, dy, dw, dh) of the raster; sizes
    // must be positive. `source` may be null for an operation that does not read it.
    // `pattern` is the brush value in the destination's format. False for bad sizes.
    static bool Blit(Raster& target, int dx, int dy, int dw, int dh, const PixelSource* source,
                     int sx, int sy, int sw, int sh, DWORD rop, std::uint32_t pattern);
};
