#include "skyview/FontRef.h"

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
