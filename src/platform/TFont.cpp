#include "platform/TFont.h"

#include <cstring>

TFont::TFont(const char* faceName, int height, int width, int escapement, int orientation,
             int weight, BYTE pitchAndFamily, BYTE italic, BYTE underline, BYTE strikeout,
             BYTE charSet, BYTE outputPrecision, BYTE clipPrecision, BYTE quality)
{
    LogFont.lfHeight = height;
    LogFont.lfWidth = width;
    LogFont.lfEscapement = escapement;
    LogFont.lfOrientation = orientation;
    LogFont.lfWeight = weight;
    LogFont.lfItalic = italic;
    LogFont.lfUnderline = underline;
    LogFont.lfStrikeOut = strikeout;
    LogFont.lfCharSet = charSet;
    LogFont.lfOutPrecision = outputPrecision;
    LogFont.lfClipPrecision = clipPrecision;
    LogFont.lfQuality = quality;
    LogFont.lfPitchAndFamily = pitchAndFamily;
    if (faceName) {
        std::strncpy(LogFont.lfFaceName, faceName, LF_FACESIZE - 1);
    }
}

TFont::TFont(const LOGFONT& logFont) : LogFont(logFont)
{
    LogFont.lfFaceName[LF_FACESIZE - 1] = '\0';
}

bool TFont::GetObject(LOGFONT& logFont) const
{
    logFont = LogFont;
    return true;
}

std::string TFont::GetFaceName() const
{
    return std::string(LogFont.lfFaceName);
}

const std::shared_ptr<FontInstance>& TFont::GetInstance() const
{
    if (!bLookedUp) {
        pInstance = FontInstance::For(LogFont);
        bLookedUp = true;
    }
    return pInstance;
}
