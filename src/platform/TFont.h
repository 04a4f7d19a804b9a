#pragma once
// A font as the component describes it: face name, height (negative: character height,
// positive: cell height, in logical units), width, weight, italic and character set.
// The face is looked up when the font is first used; copies share it and its glyph cache.
#include <memory>
#include <string>

#include "platform/FontInstance.h"
#include "platform/WinTypes.h"

class TFont
{
public:
    TFont(const char* faceName, int height = 0, int width = 0, int escapement = 0,
          int orientation = 0, int weight = FW_NORMAL,
          BYTE pitchAndFamily = DEFAULT_PITCH | FF_DONTCARE, BYTE italic = false,
          BYTE underline = false, BYTE strikeout = false, BYTE charSet = DEFAULT_CHARSET,
          BYTE outputPrecision = OUT_DEFAULT_PRECIS, BYTE clipPrecision = CLIP_DEFAULT_PRECIS,
          BYTE quality = DEFAULT_QUALITY);
    explicit TFont(const LOGFONT& logFont);

    // The description, as GetObject gives it for a font.
    bool GetObject(LOGFONT& logFont) const;
    const LOGFONT& GetLogFont() const { return LogFont; }
    std::string GetFaceName() const;
    int GetHeight() const { return LogFont.lfHeight; }

    // The face at its size; null when no face can be found.
    const std::shared_ptr<FontInstance>& GetInstance() const;

private:
    LOGFONT LogFont{};
    mutable std::shared_ptr<FontInstance> pInstance;
    mutable bool bLookedUp = false;
};
