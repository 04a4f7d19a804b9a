#pragma once
// One rendered character: a coverage mask placed relative to the pen position on the baseline.
#include <vector>

#include "platform/WinTypes.h"

struct Glyph
{
    int Left = 0;  // columns from the pen position to the mask's first column
    int Top = 0;   // rows from the baseline up to the mask's first row
    int Width = 0; // columns of the mask
    int Rows = 0;  // rows of the mask
    // Width * Rows coverage values, row by row from the top: 0 to 255, or only 0 and 255 when
    // rendered without smoothing.
    std::vector<BYTE> Coverage;
};
