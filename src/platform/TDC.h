#pragma once
// A device context: draws on one surface with the selected pen, brush, font and palette, in the
// pixel rules of GDI.
//
// - Lines leave out their last pixel. Rectangles, ellipses, pies, arcs and rounded rectangles
//   fit their box without its right column and bottom row; the pen draws the edge inside the
//   figure and the brush fills the rest.
// - Colours may be RGB, palette indexes (0x01000000 | i, through the selected palette) or
//   palette-relative RGB (0x02000000 | rgb). On an 8-bit surface every colour becomes the nearest
//   entry of the surface's colour table.
// - Text is drawn from its top-left corner. On an 8-bit surface it is never smoothed; on an RGB
//   surface it is, unless the font asks for NONANTIALIASED_QUALITY.
// - Coordinates are logical: SetMapMode, the window and viewport origins and extents turn them
//   into device pixels. The clip region is in device pixels.
// - Drawing is done at once; GdiFlush has nothing to wait for.
// - Restore... selects the object that was in the context before the first SelectObject of
//   that kind.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/DeviceCaps.h"
#include "platform/GdiBitmap.h"
#include "platform/GdiPalette.h"
#include "platform/TBrush.h"
#include "platform/TColor.h"
#include "platform/TFont.h"
#include "platform/TPen.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TRegion.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class Raster;
class Surface;
struct TextRun;
class TBitmap;
class TDib;
class TPalette;

class TDC
{
public:
    // A context on a surface for a device (the screen unless told otherwise).
    explicit TDC(Surface& surface, const DeviceCaps& caps = ScreenDeviceCaps());
    virtual ~TDC();

    TDC(const TDC&) = delete;
    TDC& operator=(const TDC&) = delete;

    HDC GetHDC() const { return const_cast<TDC*>(this); }
    operator HDC() const { return GetHDC(); }
    // The surface drawn on now.
    Surface& GetSurface() const { return *pSurface; }

    // Objects.
    void SelectObject(const TPen& pen);
    void SelectObject(const TBrush& brush);
    void SelectObject(const TFont& font);
    // `forceBackground` matters only where palettes compete for a screen; here it does not.
    void SelectObject(const TPalette& palette, bool forceBackground = false);
    // Only memory contexts select bitmaps; false for other contexts and bad bitmaps.
    bool SelectObject(const TBitmap& bitmap);
    void RestorePen();
    void RestoreBrush();
    void RestoreFont();
    void RestorePalette();
    void RestoreBitmap();
    void RestoreObjects();
    // Maps the selected palette; returns its number of entries.
    UINT RealizePalette();
    const TPen& GetPen() const { return Pen; }
    const TBrush& GetBrush() const { return Brush; }
    const TFont& GetFont() const { return Font; }
    const std::shared_ptr<GdiPalette>& GetPalette() const { return pPalette; }

    // Attributes.
    TColor SetTextColor(const TColor& color);
    TColor GetTextColor() const { return TextColor; }
    TColor SetBkColor(const TColor& color);
    TColor GetBkColor() const { return BkColor; }
    // TRANSPARENT (1) or OPAQUE (2); returns the previous mode, 0 for a bad one.
    int SetBkMode(int mode);
    int GetBkMode() const { return nBkMode; }
    int SetStretchBltMode(int mode);
    int GetStretchBltMode() const { return nStretchMode; }
    int GetDeviceCaps(int index) const { return Caps.Get(index); }
    const DeviceCaps& GetCaps() const { return Caps; }

    // Mapping of logical to device coordinates.
    int SetMapMode(int mode);
    int GetMapMode() const { return nMapMode; }
    TPoint SetWindowOrg(const TPoint& origin);
    TPoint SetViewportOrg(const TPoint& origin);
    // Extents count only in MM_ISOTROPIC and MM_ANISOTROPIC; 0 is refused.
    TSize SetWindowExt(const TSize& extent);
    TSize SetViewportExt(const TSize& extent);
    bool LPtoDP(TPoint* points, int count = 1) const;
    bool DPtoLP(TPoint* points, int count = 1) const;

    // Clipping, in device coordinates. Returns SIMPLEREGION, or NULLREGION when nothing is left.
    int SelectClipRgn(const TRegion& region);
    // Removes the clip region.
    int SelectClipRgn(std::nullptr_t);
    // The visible part of the surface, in logical coordinates.
    TRect GetClipBox() const;

    // Pixels and lines. SetPixel returns the colour set, CLR_INVALID when clipped.
    TColor SetPixel(int x, int y, const TColor& color);
    TColor SetPixel(const TPoint& p, const TColor& color) { return SetPixel(p.x, p.y, color); }
    TColor GetPixel(int x, int y) const;
    TColor GetPixel(const TPoint& p) const { return GetPixel(p.x, p.y); }
    bool MoveTo(int x, int y);
    bool MoveTo(const TPoint& p) { return MoveTo(p.x, p.y); }
    bool MoveTo(const TPoint& p, TPoint& oldPoint);
    TPoint GetCurrentPosition() const { return Position; }
    bool LineTo(int x, int y);
    bool LineTo(const TPoint& p) { return LineTo(p.x, p.y); }
    // Lines from point to point, leaving out the last point; the current position stays.
    bool Polyline(const TPoint* points, int count);

    // Rectangles.
    bool FillRect(int x1, int y1, int x2, int y2, const TBrush& brush);
    bool FillRect(const TRect& rect, const TBrush& brush);
    // A border one pixel wide just inside the rectangle.
    bool FrameRect(const TRect& rect, const TBrush& brush);
    bool InvertRect(const TRect& rect);

    // Figures with pen and brush.
    bool Rectangle(int x1, int y1, int x2, int y2);
    bool Rectangle(const TRect& rect)
    {
        return Rectangle(rect.left, rect.top, rect.right, rect.bottom);
    }
    bool Ellipse(int x1, int y1, int x2, int y2);
    bool Ellipse(const TRect& rect)
    {
        return Ellipse(rect.left, rect.top, rect.right, rect.bottom);
    }
    // The part of the ellipse counter-clockwise from the ray towards (x3, y3) to the ray towards
    // (x4, y4); when both rays are one (both points (0, 0), say) the whole ellipse.
    bool Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    bool Pie(const TRect& rect, const TPoint& start, const TPoint& end);
    bool Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    bool Arc(const TRect& rect, const TPoint& start, const TPoint& end);
    // Corners are quarters of an ellipse x3 wide and y3 high, cut to the rectangle.
    bool RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    bool RoundRect(const TRect& rect, const TPoint& corner);

    // Text. A count of -1 takes the text to its end.
    bool TextOut(int x, int y, const char* text, int count = -1);
    bool TextOut(const TPoint& p, const char* text, int count = -1)
    {
        return TextOut(p.x, p.y, text, count);
    }
    bool TextOut(int x, int y, const std::string& text)
    {
        return TextOut(x, y, text.c_str(), int(text.size()));
    }
    // ETO_OPAQUE fills `rect` with the background colour, ETO_CLIPPED keeps the text inside it.
    // `dx`, when given, holds the advance of each character.
    bool ExtTextOut(int x, int y, UINT options, const TRect* rect, const char* text, int count = -1,
                    const int* dx = nullptr);
    bool ExtTextOut(const TPoint& p, UINT options, const TRect* rect, const std::string& text)
    {
        return ExtTextOut(p.x, p.y, options, rect, text.c_str(), int(text.size()));
    }
    // The width of the text and the height of a line in the selected font.
    TSize GetTextExtent(const char* text, int count = -1) const;
    TSize GetTextExtent(const std::string& text) const
    {
        return GetTextExtent(text.c_str(), int(text.size()));
    }
    bool GetTextExtent(const char* text, int count, TSize& size) const;
    bool GetTextMetrics(TEXTMETRIC& metrics) const;

    // Pictures. The raster operation combines source, destination and the selected brush.
    bool BitBlt(int x, int y, int width, int height, const TDC* source, int sx, int sy,
                DWORD rop = SRCCOPY);
    bool BitBlt(int x, int y, int width, int height, const TDC& source, int sx, int sy,
                DWORD rop = SRCCOPY)
    {
        return BitBlt(x, y, width, height, &source, sx, sy, rop);
    }
    bool BitBlt(const TRect& target, const TDC& source, const TPoint& from, DWORD rop = SRCCOPY)
    {
        return BitBlt(target.left, target.top, target.Width(), target.Height(), &source, from.x,
                      from.y, rop);
    }
    // Copies with scaling; every stretch mode takes the nearest source pixel. Sizes must be
    // positive.
    bool StretchBlt(int x, int y, int width, int height, const TDC& source, int sx, int sy, int sw,
                    int sh, DWORD rop = SRCCOPY);
    bool StretchBlt(const TRect& target, const TDC& source, const TRect& from, DWORD rop = SRCCOPY)
    {
        return StretchBlt(target.left, target.top, target.Width(), target.Height(), source,
                          from.left, from.top, from.Width(), from.Height(), rop);
    }
    // Copies from DIB bits. As in GDI, (sx, sy) of a bottom-up DIB counts from its lower-left
    // corner. Returns the number of rows copied, 0 on failure.
    int StretchDIBits(int x, int y, int width, int height, int sx, int sy, int sw, int sh,
                      const void* bits, const BITMAPINFO& info, UINT usage, DWORD rop = SRCCOPY);
    int StretchDIBits(const TRect& target, const TRect& from, const TDib& dib, DWORD rop = SRCCOPY);

protected:
    // For memory contexts: no surface of their own until a bitmap is selected.
    TDC(const DeviceCaps& caps, std::shared_ptr<GdiBitmap> stockBitmap);
    // Puts device pixel (0, 0) at `origin` on the surface and keeps all drawing inside
    // `visible` (surface pixels), whatever clip region is selected: the client area of a
    // window. Device coordinates, clip regions included, then count from `origin`.
    void SetDeviceArea(const TPoint& origin, const TRect& visible);
    // Narrows the area that can be drawn on, in device coordinates (a paint's invalid part).
    void LimitDeviceArea(const TRect& deviceRect);
    // Draws where `other` draws: the same origin on the surface and the same area kept to.
    void TakeDeviceArea(const TDC& other);
    // A device that draws text as words of its own (a printed page, as text of its file)
    // says so here; it is then handed each run of text in place of its pixels. The background
    // of opaque text is filled all the same.
    virtual bool KeepsTextRuns() const { return false; }
    virtual void KeepTextRun(TextRun&& run);

private:
    bool IsScaled() const;
    // The pen's width in device pixels: scaled with the mapping across, at least 1.
    int DevicePenWidth() const;
    // Device coordinates are kept within a billion pixels of the origin, so that no sum of
    // them overflows.
    TPoint ToDevice(long long x, long long y) const;
    TRect ToDevice(long long x1, long long y1, long long x2, long long y2) const;
    TSize SizeToDevice(int cx, int cy) const;
    TRect DeviceClip() const;
    // The value of a colour on the present surface.
    std::uint32_t ValueOf(const TColor& color) const;
    // The font at the present scale.
    const FontInstance* CurrentFont() const;
    enum class Figure
    {
        Closed,
        Arc,
        Pie,
    };
    bool DrawFigure(const class ShapeSpans& shape, Figure figure, TPoint start, TPoint end);
    bool DrawText(TPoint at, const char* text, int count, const int* dx, const TRect* clip);
    bool DrawLineTo(const TPoint& from, const TPoint& to);

    Surface* pSurface;
    DeviceCaps Caps;
    std::shared_ptr<GdiBitmap> pBitmap;
    std::shared_ptr<GdiBitmap> pOrgBitmap;
    bool bMemory;
    TPen Pen;
    std::optional<TPen> OrgPen;
    TBrush Brush;
    std::optional<TBrush> OrgBrush;
    TFont Font;
    std::optional<TFont> OrgFont;
    mutable std::shared_ptr<FontInstance> pScaledFont;
    std::shared_ptr<GdiPalette> pPalette;
    std::optional<std::shared_ptr<GdiPalette>> OrgPalette;
    TColor TextColor;
    TColor BkColor;
    int nBkMode;
    int nStretchMode;
    int nMapMode;
    TPoint Position;
    TPoint WindowOrg;
    TPoint ViewportOrg;
    TSize WindowExt;
    TSize ViewportExt;
    std::optional<TRect> ClipRect;
    // Where device (0, 0) lies on the surface, and the part of the surface the context may
    // touch, in surface pixels.
    TPoint Origin;
    std::optional<TRect> Visible;
};
