#pragma once
// A font description made real: the face that fontconfig picks, FreeType at the pixel size the
// description asks for, the Windows-style metrics of that size and a cache of rendered glyphs.
//
// "Arial", "Times New Roman" and "Courier" (also "Courier New") come out as the Liberation
// fonts, which share their metrics. A style in the face name ("Arial Italic", "Arial Bold")
// is taken apart and asked for as a style. Sizes follow the rules of the Windows font mapper:
// a negative height is the character height (pixels per em), a positive one the cell height
// (ascent plus descent), and 0 means a character height of 12 pixels; a width other than 0
// scales the characters so that their average width is that many pixels.
//
// Glyphs are hinted for black-and-white output (TrueType interpreter version 35) and placed at
// whole-pixel advances, the designed widths rounded; so widths are the same whether a glyph is
// drawn with or without smoothing. Text is one byte per character in the Windows Latin 1 code
// page.
#include <array>
#include <memory>
#include <string>

#include "platform/Glyph.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class FontInstance
{
public:
    // The shared instance for a description, made at first use; null when no face can be found.
    static std::shared_ptr<FontInstance> For(const LOGFONT& font);

    ~FontInstance();
    FontInstance(const FontInstance&) = delete;
    FontInstance& operator=(const FontInstance&) = delete;

    const TEXTMETRIC& GetMetrics() const { return Metrics; }
    // The advance of one character in whole pixels.
    int Advance(BYTE c) const { return aAdvances[c]; }
    // The width of the text (sum of advances) and the height of a line (tmHeight).
    TSize Extent(const char* text, int count) const;
    // The rendered glyph of a character, smoothed or black and white.
    const Glyph& GetGlyph(BYTE c, bool smooth) const;

    // The face's own number of a character's glyph; 0 when the face has none.
    unsigned GetGlyphIndex(BYTE c) const;
    // The size the face is set to: pixels per em down and across (across differs when a width
    // was asked for).
    int GetPixelsPerEm() const { return nPixelsPerEm; }
    int GetXPixelsPerEm() const { return nXPixelsPerEm; }

    // The font file in use, the face's number within it, and its family and style names, as
    // fontconfig reports them.
    const std::string& GetFileName() const { return FileName; }
    int GetFaceIndex() const { return nFaceIndex; }
    const std::string& GetFamilyName() const { return FamilyName; }
    const std::string& GetStyleName() const { return StyleName; }

private:
    struct Impl;
    explicit FontInstance(std::unique_ptr<Impl> impl);
    void ComputeMetrics(const LOGFONT& font);

    std::unique_ptr<Impl> pImpl;
    TEXTMETRIC Metrics{};
    std::array<int, 256> aAdvances{};
    mutable std::array<std::unique_ptr<Glyph>, 256> aMonoGlyphs;
    mutable std::array<std::unique_ptr<Glyph>, 256> aSmoothGlyphs;
    int nPixelsPerEm = 0;
    int nXPixelsPerEm = 0;
    std::string FileName;
    int nFaceIndex = 0;
    std::string FamilyName;
    std::string StyleName;
};
