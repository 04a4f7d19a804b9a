#include "platform/TPalette.h"

#include <algorithm>

TPalette::TPalette(const PALETTEENTRY* entries, int count)
{
    std::vector<PALETTEENTRY> v;
    if (entries) {
        v.assign(entries, entries + std::clamp(count, 0, 256));
    }
    Create(std::move(v));
}

TPalette::TPalette(const LOGPALETTE* logPalette)
{
    std::vector<PALETTEENTRY> v;
    if (logPalette) {
        v.assign(logPalette->palPalEntry,
                 logPalette->palPalEntry + std::min<int>(logPalette->palNumEntries, 256));
    }
    Create(std::move(v));
}

TPalette::TPalette(HPALETTE handle, TAutoDelete autoDelete)
    : pPalette(GdiObject::FromHandleAs<GdiPalette>(handle)), Handle(pPalette ? handle : nullptr),
      bAutoDelete(autoDelete == AutoDelete)
{}

TPalette::TPalette(const TPalette& other)
{
    Create(other.pPalette ? other.pPalette->GetEntries() : std::vector<PALETTEENTRY>{});
}

TPalette::~TPalette()
{
    if (bAutoDelete && Handle) {
        GdiObject::RemoveHandle(Handle);
    }
}

void TPalette::Create(std::vector<PALETTEENTRY> entries)
{
    pPalette = std::make_shared<GdiPalette>(std::move(entries));
    Handle = static_cast<HPALETTE>(GdiObject::AddHandle(pPalette));
    bAutoDelete = true;
}

int TPalette::GetNumEntries() const
{
    return pPalette ? pPalette->Count() : 0;
}

UINT TPalette::GetPaletteEntries(WORD start, WORD count, PALETTEENTRY* entries) const
{
    if (!pPalette || !entries) {
        return 0;
    }
    UINT copied = 0;
    for (int i = start; i < start + count && i < pPalette->Count(); ++i) {
        entries[copied++] = pPalette->GetEntries()[std::size_t(i)];
    }
    return copied;
}

UINT TPalette::SetPaletteEntries(WORD start, WORD count, const PALETTEENTRY* entries)
{
    if (!pPalette || !entries || start >= pPalette->Count()) {
        return 0;
    }
    UINT n = std::min<UINT>(count, UINT(pPalette->Count() - start));
    pPalette->SetEntries(start, entries, int(n));
    return n;
}

UINT TPalette::GetNearestPaletteIndex(const TColor& color) const
{
    return ::GetNearestPaletteIndex(Handle, color);
}

UINT GetNearestPaletteIndex(HPALETTE palette, COLORREF color)
{
    auto object = GdiObject::FromHandleAs<GdiPalette>(palette);
    if (!object || object->Count() == 0) {
        return CLR_INVALID;
    }
    TColor c(color);
    if (c.IsPaletteIndex()) {
        return c.Index() < object->Count() ? c.Index() : 0;
    }
    return UINT(object->Nearest(c.Rgb()));
}
