#pragma once
// A line of text as a device context lays it out, in surface pixels: the font at its drawn
// size, the characters, where each one's pen position stands on the baseline, the colour, and
// the part of the surface it is kept inside. A device that draws text as words of its own (a
// printed page) is handed such runs in place of pixels.
#include <memory>
#include <string>
#include <vector>

#include "platform/TRect.h"
#include "platform/WinTypes.h"

class FontInstance;

struct TextRun
{
    std::shared_ptr<const FontInstance> pFont;
    // One byte per character, in the Windows Latin 1 code page.
    std::string Text;
    // The pen position of each character, left to right.
    std::vector<int> PenX;
    int Baseline = 0;
    COLORREF Color = 0;
    TRect Clip;
};
