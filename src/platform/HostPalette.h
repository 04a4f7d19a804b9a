#pragma once
// The one palette of the system: the 256 colours the host frame hands to the component.
//
// It holds black at 0 and white at 255 (so that index masks work with AND and OR), every
// colour the component draws with by name, the day sky RGB 0, 0, 0x60, a small colour cube
// for pictures and a long run of greys for the stars, whose intensities are greys. It is the
// default palette of every device context and the colour table of a new 8-bit surface.
#include <vector>

#include "platform/WinTypes.h"

class TPalette;

constexpr int kHostPaletteSize = 256;
extern const PALETTEENTRY kHostPaletteEntries[kHostPaletteSize];

// The indexes of colours that code and tests name.
constexpr int kHostPaletteBlack = 0;
constexpr int kHostPaletteDaySky = 15;
constexpr int kHostPaletteWhite = 255;

// The palette as a shared object, made at first use.
const TPalette& HostPalette();
// The palette's colours as plain RGB COLORREF values, in index order.
const std::vector<COLORREF>& HostPaletteColors();
