#pragma once
// The map's off-screen bitmap for the benchmarks: a bottom-up 8-bit DIB section in the host
// palette, selected into a memory context, with its bits open to the star drawing through the
// display parameters.
#include <cstring>
#include <memory>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/AstroObject.h"
#include "platform/DeviceCaps.h"
#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"
#include "skyview/DisplayParameters.h"

class SkyBitmap
{
public:
    SkyBitmap(int width, int height)
        : nWidth(width), nHeight(height), Screen(1, 1, PixelFormat::Rgb32),
          ScreenDc(Screen, DeviceCaps{})
    {
        Dc = std::make_unique<TMemoryDC>(ScreenDc);
        Dc->SelectObject(HostPalette());
        hBitmap = CreatePaletteDIBSection(*Dc, width, height, &pBits);
        Bitmap = std::make_unique<TBitmap>(hBitmap);
        Dc->SelectObject(*Bitmap);
        DIBSECTION section{};
        GetObjectA(hBitmap, sizeof section, &section);
        Parameters.SetFastDrawBitmapBits(pBits, section.dsBmih);
        Parameters.SetDC(Dc.get());
    }
    ~SkyBitmap()
    {
        Parameters.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
        Dc.reset();
        Bitmap.reset();
        DeleteObject(hBitmap);
    }
    SkyBitmap(const SkyBitmap&) = delete;
    SkyBitmap& operator=(const SkyBitmap&) = delete;

    // The night sky, as each frame begins.
    void Clear() { std::memset(pBits, 0, std::size_t(nWidth) * std::size_t(nHeight)); }
    void Draw(const AstroList& list)
    {
        for (AstroObject* object : list) {
            object->Draw(*Dc, Parameters);
        }
    }
    const TDC& DC() const { return *Dc; }

    DisplayParameters Parameters;
    std::unique_ptr<TMemoryDC> Dc;

private:
    int nWidth;
    int nHeight;
    Surface Screen;
    TDC ScreenDc;
    void* pBits = nullptr;
    HBITMAP hBitmap = nullptr;
    std::unique_ptr<TBitmap> Bitmap;
};
