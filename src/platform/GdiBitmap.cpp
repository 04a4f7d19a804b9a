#include "platform/GdiBitmap.h"

#include <cstring>

GdiBitmap::GdiBitmap(std::unique_ptr<Surface> surface, bool isDibSection)
    : pSurface(std::move(surface)), bDibSection(isDibSection)
{}

BITMAPINFOHEADER GdiBitmap::GetDibHeader() const
{
    BITMAPINFOHEADER h{};
    h.biSize = sizeof(BITMAPINFOHEADER);
    h.biWidth = pSurface->Width();
    h.biHeight = pSurface->IsBottomUp() ? pSurface->Height() : -pSurface->Height();
    h.biPlanes = 1;
    h.biBitCount = pSurface->IsIndexed() ? 8 : 32;
    h.biCompression = BI_RGB;
    h.biSizeImage = DWORD(pSurface->Stride()) * DWORD(pSurface->Height());
    h.biClrUsed = pSurface->IsIndexed() ? 256 : 0;
    return h;
}

int GdiBitmap::Describe(int size, void* buffer) const
{
    if (!buffer || size < int(sizeof(BITMAP))) {
        return 0;
    }
    BITMAP bm{};
    bm.bmWidth = pSurface->Width();
    bm.bmHeight = pSurface->Height();
    bm.bmWidthBytes = pSurface->Stride();
    bm.bmPlanes = 1;
    bm.bmBitsPixel = pSurface->IsIndexed() ? 8 : 32;
    // Only a DIB section lets its bits be seen.
    bm.bmBits = bDibSection ? const_cast<BYTE*>(pSurface->Bits()) : nullptr;
    if (bDibSection && size >= int(sizeof(DIBSECTION))) {
        DIBSECTION ds{};
        ds.dsBm = bm;
        ds.dsBmih = GetDibHeader();
        std::memcpy(buffer, &ds, sizeof ds);
        return int(sizeof ds);
    }
    std::memcpy(buffer, &bm, sizeof bm);
    return int(sizeof bm);
}
