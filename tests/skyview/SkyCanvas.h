#pragma once
// An off-screen sky as the map makes it: a bottom-up 8-bit DIB section with the host palette,
// selected into a memory context of a 96-dpi screen, its bits handed to a DisplayParameters.
// Pictures of it are text, one character per pixel by palette index, so that a test states the
// exact pixels it expects.
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "skyview/DisplayParameters.h"

class SkyCanvas
{
public:
    // `width` should be a multiple of 8, as the map's bitmap is.
    SkyCanvas(int width, int height)
        : Screen(1, 1, PixelFormat::Rgb32), ScreenDc(Screen, DeviceCaps{})
    {
        Dc = std::make_unique<TMemoryDC>(ScreenDc);
        Dc->SelectObject(HostPalette());
        void* bits = nullptr;
        hBitmap = CreatePaletteDIBSection(*Dc, width, height, &bits);
        Bitmap = std::make_unique<TBitmap>(hBitmap);
        Dc->SelectObject(*Bitmap);
        DIBSECTION section{};
        GetObjectA(hBitmap, sizeof section, &section);
        Parameters.SetFastDrawBitmapBits(bits, section.dsBmih);
        Parameters.SetDC(Dc.get());
        Parameters.SetDrawRect(TRect(0, 0, width, height));
    }
    ~SkyCanvas()
    {
        WithoutFastBits();
        Dc.reset();
        Bitmap.reset();
        DeleteObject(hBitmap);
    }

    // Sends stars through SetPixel, as when printing.
    void WithoutFastBits() { Parameters.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{}); }

    Surface& GetSurface() { return Dc->GetSurface(); }
    TDC& GetDC() { return *Dc; }
    unsigned IndexAt(int x, int y) { return GetSurface().ValueAt(x, y); }
    void Fill(unsigned index)
    {
        for (int y = 0; y < GetSurface().Height(); ++y) {
            for (int x = 0; x < GetSurface().Width(); ++x) {
                GetSurface().SetValue(x, y, index);
            }
        }
    }

    // '.' for the night sky (index 0), '#' for white (255) and the characters of `legend` for
    // other indexes; '?' for anything else.
    std::string Picture(const TRect& area, const std::map<unsigned, char>& legend = {})
    {
        std::string text;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                const unsigned index = IndexAt(x, y);
                const auto found = legend.find(index);
                text += found != legend.end()        ? found->second
                        : index == 0                 ? '.'
                        : index == kHostPaletteWhite ? '#'
                                                     : '?';
            }
            text += '\n';
        }
        return text;
    }

    DisplayParameters Parameters;

private:
    Surface Screen;
    TDC ScreenDc;
    std::unique_ptr<TMemoryDC> Dc;
    HBITMAP hBitmap = nullptr;
    std::unique_ptr<TBitmap> Bitmap;
};

// Rows joined with line ends, as Picture writes them.
inline std::string Rows(const std::vector<std::string>& rows)
{
    std::string text;
    for (const std::string& row : rows) {
        text += row + '\n';
    }
    return text;
}
