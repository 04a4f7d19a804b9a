#pragma once
// Small 8-bit pictures written as text for the picture tests: '.' black, '#' white, 'r' red,
// 'g' green, 'b' blue, one character per pixel, rows from the top. The colour table has 32
// entries (so that the picture is 8-bit), the five colours first and black after them.
#include <memory>
#include <string>
#include <vector>

#include "platform/TDib.h"

inline std::unique_ptr<TDib> MakeIndexedDib(const std::vector<std::string>& rows)
{
    auto dib = std::make_unique<TDib>(int(rows[0].size()), int(rows.size()), 32);
    const TColor colors[] = {TColor::Black, TColor::White, TColor::LtRed, TColor::LtGreen,
                             TColor::LtBlue};
    for (int i = 0; i < 5; ++i) {
        dib->SetColor(i, colors[i]);
    }
    for (int y = 0; y < dib->Height(); ++y) {
        for (int x = 0; x < dib->Width(); ++x) {
            dib->SetPixelIndex(x, y, int(std::string(".#rgb").find(rows[y][x])));
        }
    }
    return dib;
}
