#pragma once
// How a star reaches pixels. Thousands of stars are drawn on every repaint, most of them a
// few pixels in size, so a small star well inside the off-screen bitmap is written straight
// into its 8-bit bits as a palette index; stars near an edge, large stars and stars on other
// surfaces (a printer) go through SetPixel and the shape calls of the surface in
// parameters.pDC, which clip.
//
// The ray star is eight rays around the point (its centre left dark) of an arm of
// (size + 0.5) / 2 pixels; from 8 pixels on the rays are uneven, the lower diagonals longest.
// A star of 2 pixels is two pixels side by side; on the fast path it does not cover what is
// already drawn there (a line, another star).
#include "platform/TColor.h"
#include "platform/TPoint.h"

class DisplayParameters;

// Draws a ray star of the size of `magnitude` at (x, y): through the bits when they are set
// and the star is at most 6 pixels and clear of all four edges, with `paletteIndex`;
// otherwise through SetPixel on parameters.pDC with `color`.
void DrawRayStar(DisplayParameters& parameters, int x, int y, double magnitude, TColor color,
                 unsigned paletteIndex);

// Draws a round star of the size of `magnitude` at `point` on parameters.pDC: two pixels, a
// 3 by 3 block, or from 4 pixels on a filled circle of radius size / 2.
void DrawRoundStar(DisplayParameters& parameters, const TPoint& point, double magnitude,
                   TColor color);
