#pragma once
// Text in a rectangle, as DrawText lays it out: lines broken at line feeds and, with
// DT_WORDBREAK, between words; aligned left, centred or right and, for one line, at the top,
// the middle or the bottom; "&" marks a mnemonic and is not drawn ("&&" draws one) unless
// DT_NOPREFIX; DT_END_ELLIPSIS shortens a line that does not fit with "..."; DT_CALCRECT only
// measures and sets the rectangle's right and bottom edges.
#include <string>
#include <vector>

#include "platform/TRect.h"
#include "platform/WinTypes.h"

class TDC;

class TextLayout
{
public:
    TextLayout(const TDC& dc, const std::string& text, int width, UINT format);

    const std::vector<std::string>& GetLines() const { return aLines; }
    int GetLineHeight() const { return nLineHeight; }
    // The width of the widest line and the height of all.
    int GetWidth() const { return nWidth; }
    int GetHeight() const { return nLineHeight * int(aLines.size()); }

    // Draws the lines in the rectangle; returns the height of the text.
    int Draw(TDC& dc, const TRect& rect) const;

    // The text without mnemonic marks.
    static std::string StripPrefix(const std::string& text);

private:
    UINT nFormat;
    std::vector<std::string> aLines;
    int nLineHeight = 0;
    int nWidth = 0;
};

// The plain call: the height of the text; with DT_CALCRECT the rectangle is set to fit it.
int DrawTextA(HDC dc, const char* text, int count, RECT* rect, UINT format);
