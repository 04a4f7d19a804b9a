#include "platform/Gdi.h"

#include <cstdlib>
#include <memory>
#include <vector>

#include "platform/DebugStream.h"
#include "platform/GdiBitmap.h"
#include "platform/GdiObject.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TPalette.h"

namespace {

constexpr LONG kMaxDimension = 32768;

} // namespace

HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits,
                         HANDLE /*section*/, DWORD /*offset*/)
{
    if (bits) {
        *bits = nullptr;
    }
    if (!info) {
        return nullptr;
    }
    const BITMAPINFOHEADER& h = info->bmiHeader;
    LONG height = h.biHeight < 0 ? -h.biHeight : h.biHeight;
    bool supported = h.biSize >= sizeof(BITMAPINFOHEADER) && h.biWidth > 0 && height > 0 &&
                     h.biWidth <= kMaxDimension && height <= kMaxDimension && h.biPlanes == 1 &&
                     h.biCompression == BI_RGB && (h.biBitCount == 8 || h.biBitCount == 32) &&
                     (usage == DIB_RGB_COLORS || usage == DIB_PAL_COLORS);
    if (!supported) {
        dbstream << "CreateDIBSection: unsupported header, " << h.biBitCount << " bits, "
                 << h.biWidth << " by " << h.biHeight << dbendl;
        return nullptr;
    }
    bool indexed = h.biBitCount == 8;
    auto surface = std::make_unique<Surface>(
        h.biWidth, height, indexed ? PixelFormat::Indexed8 : PixelFormat::Rgb32, h.biHeight > 0);
    if (indexed) {
        int count = h.biClrUsed ? int(std::min<DWORD>(h.biClrUsed, 256)) : 256;
        const BYTE* table = reinterpret_cast<const BYTE*>(info) + h.biSize;
        std::vector<COLORREF> colors;
        if (usage == DIB_PAL_COLORS) {
            std::shared_ptr<GdiPalette> palette = dc ? dc->GetPalette() : HostPalette().GetObject();
            for (int i = 0; i < count; ++i) {
                WORD index = WORD(table[2 * i] | table[2 * i + 1] << 8);
                colors.push_back(palette ? palette->ColorOf(index) : RGB(0, 0, 0));
            }
        } else {
            for (int i = 0; i < count; ++i) {
                const BYTE* q = table + 4 * i;
                colors.push_back(RGB(q[2], q[1], q[0]));
            }
        }
        surface->SetColorTable(colors);
    }
    auto bitmap = std::make_shared<GdiBitmap>(std::move(surface), true);
    if (bits) {
        *bits = bitmap->GetSurface().Bits();
    }
    return static_cast<HBITMAP>(GdiObject::AddHandle(bitmap));
}

HBITMAP CreatePaletteDIBSection(HDC dc, int width, int height, void** bits)
{
    struct
    {
        BITMAPINFOHEADER Header;
        WORD Indexes[256];
    } info{};
    info.Header.biSize = sizeof(BITMAPINFOHEADER);
    info.Header.biWidth = width;
    info.Header.biHeight = height; // positive: bottom-up
    info.Header.biPlanes = 1;
    info.Header.biBitCount = 8;
    info.Header.biCompression = BI_RGB;
    info.Header.biSizeImage = DWORD(width > 0 ? width : 0) * DWORD(height > 0 ? height : 0);
    info.Header.biClrUsed = 256;
    for (WORD i = 0; i < 256; ++i) {
        info.Indexes[i] = i;
    }
    void* pixels = nullptr;
    HBITMAP bitmap = CreateDIBSection(dc, reinterpret_cast<const BITMAPINFO*>(&info),
                                      DIB_PAL_COLORS, &pixels, nullptr, 0);
    if (bits) {
        *bits = pixels;
    }
    return bitmap;
}

int GetObjectA(HGDIOBJ object, int size, void* buffer)
{
    std::shared_ptr<GdiObject> found = GdiObject::FromHandle(object);
    return found ? found->Describe(size, buffer) : 0;
}

BOOL DeleteObject(HGDIOBJ object)
{
    return GdiObject::RemoveHandle(object) ? TRUE : FALSE;
}

BOOL GdiFlush()
{
    return TRUE;
}

UINT RealizePalette(HDC dc)
{
    return dc ? dc->RealizePalette() : 0;
}

int GetDeviceCaps(HDC dc, int index)
{
    return dc ? dc->GetDeviceCaps(index) : 0;
}

int SetMapMode(HDC dc, int mode)
{
    return dc ? dc->SetMapMode(mode) : 0;
}

BOOL LPtoDP(HDC dc, POINT* points, int count)
{
    if (!dc || !points) {
        return FALSE;
    }
    for (int i = 0; i < count; ++i) {
        TPoint p(points[i]);
        dc->LPtoDP(&p, 1);
        points[i] = p;
    }
    return TRUE;
}

COLORREF SetTextColor(HDC dc, COLORREF color)
{
    return dc ? COLORREF(dc->SetTextColor(color)) : CLR_INVALID;
}

COLORREF SetBkColor(HDC dc, COLORREF color)
{
    return dc ? COLORREF(dc->SetBkColor(color)) : CLR_INVALID;
}

int SetBkMode(HDC dc, int mode)
{
    return dc ? dc->SetBkMode(mode) : 0;
}

int SetStretchBltMode(HDC dc, int mode)
{
    return dc ? dc->SetStretchBltMode(mode) : 0;
}

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color)
{
    return dc ? COLORREF(dc->SetPixel(x, y, color)) : CLR_INVALID;
}

COLORREF GetPixel(HDC dc, int x, int y)
{
    return dc ? COLORREF(dc->GetPixel(x, y)) : CLR_INVALID;
}

BOOL MoveToEx(HDC dc, int x, int y, POINT* oldPoint)
{
    if (!dc) {
        return FALSE;
    }
    if (oldPoint) {
        *oldPoint = dc->GetCurrentPosition();
    }
    return dc->MoveTo(x, y) ? TRUE : FALSE;
}

BOOL LineTo(HDC dc, int x, int y)
{
    return dc && dc->LineTo(x, y) ? TRUE : FALSE;
}

BOOL Polyline(HDC dc, const POINT* points, int count)
{
    if (!dc || !points || count < 2) {
        return FALSE;
    }
    std::vector<TPoint> copy(points, points + count);
    return dc->Polyline(copy.data(), count) ? TRUE : FALSE;
}

BOOL InvertRect(HDC dc, const RECT* rect)
{
    return dc && rect && dc->InvertRect(TRect(*rect)) ? TRUE : FALSE;
}

BOOL Rectangle(HDC dc, int x1, int y1, int x2, int y2)
{
    return dc && dc->Rectangle(x1, y1, x2, y2) ? TRUE : FALSE;
}

BOOL Ellipse(HDC dc, int x1, int y1, int x2, int y2)
{
    return dc && dc->Ellipse(x1, y1, x2, y2) ? TRUE : FALSE;
}

BOOL Pie(HDC dc, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return dc && dc->Pie(x1, y1, x2, y2, x3, y3, x4, y4) ? TRUE : FALSE;
}

BOOL Arc(HDC dc, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return dc && dc->Arc(x1, y1, x2, y2, x3, y3, x4, y4) ? TRUE : FALSE;
}

BOOL RoundRect(HDC dc, int x1, int y1, int x2, int y2, int width, int height)
{
    return dc && dc->RoundRect(x1, y1, x2, y2, width, height) ? TRUE : FALSE;
}

BOOL TextOutA(HDC dc, int x, int y, const char* text, int count)
{
    return dc && dc->TextOut(x, y, text, count) ? TRUE : FALSE;
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, const char* text, UINT count,
                 const int* dx)
{
    if (!dc) {
        return FALSE;
    }
    TRect area = rect ? TRect(*rect) : TRect();
    return dc->ExtTextOut(x, y, options, rect ? &area : nullptr, text, int(count), dx) ? TRUE
                                                                                       : FALSE;
}

BOOL GetTextExtentPoint32A(HDC dc, const char* text, int count, SIZE* size)
{
    if (!dc || !size) {
        return FALSE;
    }
    TSize extent;
    bool ok = dc->GetTextExtent(text, count, extent);
    *size = extent;
    return ok ? TRUE : FALSE;
}

BOOL GetTextMetricsA(HDC dc, TEXTMETRIC* metrics)
{
    return dc && metrics && dc->GetTextMetrics(*metrics) ? TRUE : FALSE;
}

BOOL BitBlt(HDC dc, int x, int y, int width, int height, HDC source, int sx, int sy, DWORD rop)
{
    return dc && dc->BitBlt(x, y, width, height, source, sx, sy, rop) ? TRUE : FALSE;
}

BOOL StretchBlt(HDC dc, int x, int y, int width, int height, HDC source, int sx, int sy, int sw,
                int sh, DWORD rop)
{
    return dc && source && dc->StretchBlt(x, y, width, height, *source, sx, sy, sw, sh, rop)
               ? TRUE
               : FALSE;
}

int StretchDIBits(HDC dc, int x, int y, int width, int height, int sx, int sy, int sw, int sh,
                  const void* bits, const BITMAPINFO* info, UINT usage, DWORD rop)
{
    if (!dc || !info) {
        return 0;
    }
    return dc->StretchDIBits(x, y, width, height, sx, sy, sw, sh, bits, *info, usage, rop);
}
