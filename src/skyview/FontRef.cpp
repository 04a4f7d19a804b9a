#include "skyview/FontRef.h"

#include <cmath>

#include "platform/TDC.h"
#include "platform/TFont.h"

FontRef::FontRef(std::unique_ptr<TFont> font) : bOwnsFont(true), pFont(font.release())
{}

FontRef::FontRef(TFont& font) : bOwnsFont(false), pFont(&font)
{}

FontRef::~FontRef()
{
    if (bOwnsFont) {
        delete pFont;
    }
}

void FontRef::Release()
{
    if (nReferenceCount == 0) {
        delete this;
        return;
    }
    --nReferenceCount;
}

FontRef* FontRef::ForResolution(FontRef*& shared, int& resolution, const TDC& dc, const char* face,
                                double heightInches)
{
    const int dotsPerInch = dc.GetDeviceCaps(LOGPIXELSY);
    if (shared != nullptr && dotsPerInch == resolution) {
        return shared;
    }
    if (shared != nullptr) {
        shared->Release();
    }
    const int height = int(std::trunc(dotsPerInch * heightInches));
    shared = new FontRef(std::make_unique<TFont>(face, height, 0, 0, 0, FW_NORMAL, 0, false, false,
                                                 false, DEFAULT_CHARSET));
    resolution = dotsPerInch;
    return shared;
}
