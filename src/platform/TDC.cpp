#include "platform/TDC.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>

#include "platform/Blitter.h"
#include "platform/HostPalette.h"
#include "platform/PixelSource.h"
#include "platform/Raster.h"
#include "platform/ShapeSpans.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TDib.h"
#include "platform/TPalette.h"
#include "platform/TextRun.h"

namespace {

// The font a context starts with, a plain sans-serif of 13 pixels.
TFont DefaultFont()
{
    return TFont("Arial", -13);
}

// a * b / c rounded to the nearest, halves away from zero.
long long MulDiv(long long a, long long b, long long c)
{
    if (c == 0) {
        return 0;
    }
    long long n = a * b;
    long long half = std::llabs(c) / 2;
    long long q = (std::llabs(n) + half) / std::llabs(c);
    return (n >= 0) == (c > 0) ? q : -q;
}

constexpr long long kDeviceLimit = (1 << 30) - 1;

int ClampToDevice(long long v)
{
    return int(std::clamp(v, -kDeviceLimit, kDeviceLimit));
}

int LengthOf(const char* text, int count)
{
    if (!text) {
        return 0;
    }
    return count < 0 ? int(std::strlen(text)) : count;
}

constexpr double kTwoPi = 2 * std::numbers::pi;

} // namespace

TDC::TDC(Surface& surface, const DeviceCaps& caps)
    : pSurface(&surface), Caps(caps), bMemory(false), Pen(TColor::Black), Brush(TColor::White),
      Font(DefaultFont()), pPalette(HostPalette().GetObject()), TextColor(TColor::Black),
      BkColor(TColor::White), nBkMode(OPAQUE), nStretchMode(BLACKONWHITE), nMapMode(MM_TEXT),
      WindowExt(1, 1), ViewportExt(1, 1)
{}

TDC::TDC(const DeviceCaps& caps, std::shared_ptr<GdiBitmap> stockBitmap)
    : pSurface(&stockBitmap->GetSurface()), Caps(caps), pBitmap(std::move(stockBitmap)),
      bMemory(true), Pen(TColor::Black), Brush(TColor::White), Font(DefaultFont()),
      pPalette(HostPalette().GetObject()), TextColor(TColor::Black), BkColor(TColor::White),
      nBkMode(OPAQUE), nStretchMode(BLACKONWHITE), nMapMode(MM_TEXT), WindowExt(1, 1),
      ViewportExt(1, 1)
{}

TDC::~TDC() = default;

// Objects.

void TDC::SelectObject(const TPen& pen)
{
    if (!OrgPen) {
        OrgPen = Pen;
    }
    Pen = pen;
}

void TDC::SelectObject(const TBrush& brush)
{
    if (!OrgBrush) {
        OrgBrush = Brush;
    }
    Brush = brush;
}

void TDC::SelectObject(const TFont& font)
{
    if (!OrgFont) {
        OrgFont = Font;
    }
    // Looked up in the font given, so that a font selected again and again (a label's) finds
    // its face once, not at every selection.
    font.GetInstance();
    Font = font;
}

void TDC::SelectObject(const TPalette& palette, bool /*forceBackground*/)
{
    if (!palette.GetObject()) {
        return;
    }
    if (!OrgPalette) {
        OrgPalette = pPalette;
    }
    pPalette = palette.GetObject();
}

bool TDC::SelectObject(const TBitmap& bitmap)
{
    if (!bMemory || !bitmap.GetObject()) {
        return false;
    }
    if (!pOrgBitmap) {
        pOrgBitmap = pBitmap;
    }
    pBitmap = bitmap.GetObject();
    pSurface = &pBitmap->GetSurface();
    return true;
}

void TDC::RestorePen()
{
    if (OrgPen) {
        Pen = *OrgPen;
        OrgPen.reset();
    }
}

void TDC::RestoreBrush()
{
    if (OrgBrush) {
        Brush = *OrgBrush;
        OrgBrush.reset();
    }
}

void TDC::RestoreFont()
{
    if (OrgFont) {
        Font = *OrgFont;
        OrgFont.reset();
    }
}

void TDC::RestorePalette()
{
    if (OrgPalette) {
        pPalette = *OrgPalette;
        OrgPalette.reset();
    }
}

void TDC::RestoreBitmap()
{
    if (pOrgBitmap) {
        pBitmap = pOrgBitmap;
        pOrgBitmap.reset();
        pSurface = &pBitmap->GetSurface();
    }
}

void TDC::RestoreObjects()
{
    RestorePen();
    RestoreBrush();
    RestoreFont();
    RestorePalette();
    RestoreBitmap();
}

UINT TDC::RealizePalette()
{
    return pPalette ? UINT(pPalette->Count()) : 0;
}

// Attributes.

TColor TDC::SetTextColor(const TColor& color)
{
    TColor old = TextColor;
    TextColor = color;
    return old;
}

TColor TDC::SetBkColor(const TColor& color)
{
    TColor old = BkColor;
    BkColor = color;
    return old;
}

int TDC::SetBkMode(int mode)
{
    if (mode != TRANSPARENT && mode != OPAQUE) {
        return 0;
    }
    int old = nBkMode;
    nBkMode = mode;
    return old;
}

int TDC::SetStretchBltMode(int mode)
{
    if (mode < BLACKONWHITE || mode > HALFTONE) {
        return 0;
    }
    int old = nStretchMode;
    nStretchMode = mode;
    return old;
}

// Mapping.

int TDC::SetMapMode(int mode)
{
    if (mode != MM_TEXT && mode != MM_ISOTROPIC && mode != MM_ANISOTROPIC) {
        return 0;
    }
    int old = nMapMode;
    nMapMode = mode;
    if (mode == MM_TEXT) {
        WindowExt = ViewportExt = TSize(1, 1);
    }
    return old;
}

TPoint TDC::SetWindowOrg(const TPoint& origin)
{
    TPoint old = WindowOrg;
    WindowOrg = origin;
    return old;
}

TPoint TDC::SetViewportOrg(const TPoint& origin)
{
    TPoint old = ViewportOrg;
    ViewportOrg = origin;
    return old;
}

TSize TDC::SetWindowExt(const TSize& extent)
{
    TSize old = WindowExt;
    if (nMapMode != MM_TEXT && extent.cx != 0 && extent.cy != 0) {
        WindowExt = extent;
    }
    return old;
}

TSize TDC::SetViewportExt(const TSize& extent)
{
    TSize old = ViewportExt;
    if (nMapMode != MM_TEXT && extent.cx != 0 && extent.cy != 0) {
        ViewportExt = extent;
    }
    return old;
}

bool TDC::IsScaled() const
{
    return WindowExt != ViewportExt;
}

int TDC::DevicePenWidth() const
{
    const int width = Pen.GetWidth();
    if (!IsScaled() || width <= 1) {
        return width;
    }
    // A pen's width is in logical units, as its lines are; however thin it becomes it still
    // draws one pixel.
    return std::max(1, int(MulDiv(width, std::abs(ViewportExt.cx), std::abs(WindowExt.cx))));
}

// Logical coordinates to surface pixels: the mapping, then the origin of the device area.
TPoint TDC::ToDevice(long long x, long long y) const
{
    if (!IsScaled()) {
        return TPoint(ClampToDevice(x - WindowOrg.x + ViewportOrg.x + Origin.x),
                      ClampToDevice(y - WindowOrg.y + ViewportOrg.y + Origin.y));
    }
    return TPoint(ClampToDevice(MulDiv(x - WindowOrg.x, ViewportExt.cx, WindowExt.cx) +
                                ViewportOrg.x + Origin.x),
                  ClampToDevice(MulDiv(y - WindowOrg.y, ViewportExt.cy, WindowExt.cy) +
                                ViewportOrg.y + Origin.y));
}

void TDC::SetDeviceArea(const TPoint& origin, const TRect& visible)
{
    Origin = origin;
    Visible = visible;
}

void TDC::LimitDeviceArea(const TRect& deviceRect)
{
    TRect limit = deviceRect.OffsetBy(Origin.x, Origin.y);
    Visible = Visible ? (*Visible & limit) : limit;
}

void TDC::TakeDeviceArea(const TDC& other)
{
    Origin = other.Origin;
    Visible = other.Visible;
}

void TDC::KeepTextRun(TextRun&&)
{}

TRect TDC::ToDevice(long long x1, long long y1, long long x2, long long y2) const
{
    return TRect(ToDevice(x1, y1), ToDevice(x2, y2));
}

TSize TDC::SizeToDevice(int cx, int cy) const
{
    return TSize(ClampToDevice(std::llabs(MulDiv(cx, ViewportExt.cx, WindowExt.cx))),
                 ClampToDevice(std::llabs(MulDiv(cy, ViewportExt.cy, WindowExt.cy))));
}

bool TDC::LPtoDP(TPoint* points, int count) const
{
    if (!points || count < 0) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        points[i] = ToDevice(points[i].x, points[i].y) - Origin;
    }
    return true;
}

bool TDC::DPtoLP(TPoint* points, int count) const
{
    if (!points || count < 0) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        TPoint& p = points[i];
        p = TPoint(
            ClampToDevice(MulDiv(std::int64_t(p.x) - ViewportOrg.x, WindowExt.cx, ViewportExt.cx) +
                          WindowOrg.x),
            ClampToDevice(MulDiv(std::int64_t(p.y) - ViewportOrg.y, WindowExt.cy, ViewportExt.cy) +
                          WindowOrg.y));
    }
    return true;
}

// Clipping.

int TDC::SelectClipRgn(const TRegion& region)
{
    ClipRect = region.GetRect();
    return DeviceClip().IsEmpty() ? NULLREGION : SIMPLEREGION;
}

int TDC::SelectClipRgn(std::nullptr_t)
{
    ClipRect.reset();
    return SIMPLEREGION;
}

TRect TDC::DeviceClip() const
{
    TRect bounds = pSurface->Bounds();
    if (Visible) {
        bounds = bounds & *Visible;
    }
    return ClipRect ? (ClipRect->OffsetBy(Origin.x, Origin.y) & bounds) : bounds;
}

TRect TDC::GetClipBox() const
{
    TRect clip = DeviceClip().OffsetBy(-Origin.x, -Origin.y);
    TPoint corners[2] = {clip.TopLeft(), clip.BottomRight()};
    DPtoLP(corners, 2);
    return TRect(corners[0], corners[1]).Normalized();
}

// Colours.

std::uint32_t TDC::ValueOf(const TColor& color) const
{
    if (color.IsPaletteIndex()) {
        int index = color.Index();
        COLORREF rgb = pPalette ? pPalette->ColorOf(index) : RGB(0, 0, 0);
        if (pSurface->IsIndexed() && index < 256 &&
            pSurface->ColorTable()[std::size_t(index)] == rgb) {
            return std::uint32_t(index);
        }
        return pSurface->ValueForColor(rgb);
    }
    return pSurface->ValueForColor(color.Rgb());
}

// Pixels and lines.

TColor TDC::SetPixel(int x, int y, const TColor& color)
{
    TPoint p = ToDevice(x, y);
    if (!DeviceClip().Contains(p)) {
        return TColor(CLR_INVALID);
    }
    std::uint32_t value = ValueOf(color);
    Raster(*pSurface, DeviceClip()).Pixel(p.x, p.y, value);
    return TColor(pSurface->ColorForValue(value));
}

TColor TDC::GetPixel(int x, int y) const
{
    TPoint p = ToDevice(x, y);
    if (!DeviceClip().Contains(p)) {
        return TColor(CLR_INVALID);
    }
    return TColor(pSurface->ColorAt(p.x, p.y));
}

bool TDC::MoveTo(int x, int y)
{
    Position = TPoint(x, y);
    return true;
}

bool TDC::MoveTo(const TPoint& p, TPoint& oldPoint)
{
    oldPoint = Position;
    return MoveTo(p);
}

bool TDC::LineTo(int x, int y)
{
    DrawLineTo(Position, TPoint(x, y));
    Position = TPoint(x, y);
    return true;
}

bool TDC::Polyline(const TPoint* points, int count)
{
    if (!points || count < 2) {
        return false;
    }
    for (int i = 1; i < count; ++i) {
        DrawLineTo(points[i - 1], points[i]);
    }
    return true;
}

bool TDC::DrawLineTo(const TPoint& from, const TPoint& to)
{
    if (Pen.IsNull()) {
        return true;
    }
    Raster raster(*pSurface, DeviceClip());
    raster.WideLine(ToDevice(from.x, from.y), ToDevice(to.x, to.y), ValueOf(Pen.GetColor()),
                    DevicePenWidth(), false);
    return true;
}

// Rectangles.

bool TDC::FillRect(int x1, int y1, int x2, int y2, const TBrush& brush)
{
    return FillRect(TRect(x1, y1, x2, y2), brush);
}

bool TDC::FillRect(const TRect& rect, const TBrush& brush)
{
    if (brush.IsNull() || rect.IsEmpty()) {
        return true;
    }
    TRect d = ToDevice(rect.left, rect.top, rect.right, rect.bottom).Normalized();
    Raster(*pSurface, DeviceClip()).Fill(d, ValueOf(brush.GetColor()));
    return true;
}

bool TDC::FrameRect(const TRect& rect, const TBrush& brush)
{
    if (brush.IsNull() || rect.IsEmpty()) {
        return true;
    }
    TRect d = ToDevice(rect.left, rect.top, rect.right, rect.bottom).Normalized();
    Raster raster(*pSurface, DeviceClip());
    std::uint32_t value = ValueOf(brush.GetColor());
    raster.Fill(TRect(d.left, d.top, d.right, d.top + 1), value);
    raster.Fill(TRect(d.left, d.bottom - 1, d.right, d.bottom), value);
    raster.Fill(TRect(d.left, d.top, d.left + 1, d.bottom), value);
    raster.Fill(TRect(d.right - 1, d.top, d.right, d.bottom), value);
    return true;
}

bool TDC::InvertRect(const TRect& rect)
{
    if (rect.IsEmpty()) {
        return true;
    }
    TRect d = ToDevice(rect.left, rect.top, rect.right, rect.bottom).Normalized();
    Raster(*pSurface, DeviceClip()).Invert(d);
    return true;
}

// Figures.

bool TDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return DrawFigure(ShapeSpans::Rectangle(ToDevice(x1, y1, x2, y2), DeviceClip()), Figure::Closed,
                      {}, {});
}

bool TDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return DrawFigure(ShapeSpans::Ellipse(ToDevice(x1, y1, x2, y2), DeviceClip()), Figure::Closed,
                      {}, {});
}

bool TDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return DrawFigure(ShapeSpans::Ellipse(ToDevice(x1, y1, x2, y2), DeviceClip()), Figure::Pie,
                      ToDevice(x3, y3), ToDevice(x4, y4));
}

bool TDC::Pie(const TRect& rect, const TPoint& start, const TPoint& end)
{
    return Pie(rect.left, rect.top, rect.right, rect.bottom, start.x, start.y, end.x, end.y);
}

bool TDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return DrawFigure(ShapeSpans::Ellipse(ToDevice(x1, y1, x2, y2), DeviceClip()), Figure::Arc,
                      ToDevice(x3, y3), ToDevice(x4, y4));
}

bool TDC::Arc(const TRect& rect, const TPoint& start, const TPoint& end)
{
    return Arc(rect.left, rect.top, rect.right, rect.bottom, start.x, start.y, end.x, end.y);
}

bool TDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    TSize corner = SizeToDevice(x3, y3);
    return DrawFigure(
        ShapeSpans::RoundRect(ToDevice(x1, y1, x2, y2), corner.cx, corner.cy, DeviceClip()),
        Figure::Closed, {}, {});
}

bool TDC::RoundRect(const TRect& rect, const TPoint& corner)
{
    return RoundRect(rect.left, rect.top, rect.right, rect.bottom, corner.x, corner.y);
}

bool TDC::DrawFigure(const ShapeSpans& shape, Figure figure, TPoint start, TPoint end)
{
    Raster raster(*pSurface, DeviceClip());
    bool pen = !Pen.IsNull();
    bool brush = !Brush.IsNull() && figure != Figure::Arc;
    if (!pen && !brush) {
        return true;
    }
    std::uint32_t penValue = pen ? ValueOf(Pen.GetColor()) : 0;
    std::uint32_t brushValue = brush ? ValueOf(Brush.GetColor()) : 0;
    const TRect& box = shape.GetBox();
    double cx = (box.left + box.right) / 2.0, cy = (box.top + box.bottom) / 2.0;

    // Angles count counter-clockwise on the screen, so y grows upwards here.
    double startAngle = 0, span = 0;
    bool whole = figure == Figure::Closed;
    if (!whole) {
        startAngle = std::atan2(cy - start.y, start.x - cx);
        double endAngle = std::atan2(cy - end.y, end.x - cx);
        span = std::fmod(endAngle - startAngle + 2 * kTwoPi, kTwoPi);
        whole = start == end || span == 0;
    }
    auto inside = [&](int x, int y) {
        double px = x + 0.5 - cx, py = cy - (y + 0.5);
        if (px == 0 && py == 0) {
            return true;
        }
        return std::fmod(std::atan2(py, px) - startAngle + 2 * kTwoPi, kTwoPi) <= span;
    };
    auto paint = [&](int y, ShapeSpans::Run run, std::uint32_t value) {
        if (whole) {
            raster.Run(y, run.Left, run.Right, value);
            return;
        }
        int left = std::max(run.Left, int(raster.GetClip().left));
        int right = std::min(run.Right, int(raster.GetClip().right));
        for (int x = left; x < right; ++x) {
            if (inside(x, y)) {
                raster.Pixel(x, y, value);
            }
        }
    };
    shape.ForEachRun(
        DevicePenWidth(),
        [&](int y, ShapeSpans::Run run) {
            if (pen) {
                paint(y, run, penValue);
            } else if (brush) {
                paint(y, run, brushValue);
            }
        },
        [&](int y, ShapeSpans::Run run) {
            if (brush) {
                paint(y, run, brushValue);
            }
        });

    if (figure == Figure::Pie && !whole && pen && !box.IsEmpty()) {
        // The two radii, from the centre to where each ray leaves the ellipse.
        double a = box.Width() / 2.0, b = box.Height() / 2.0;
        auto clampX = [&](double x) {
            return std::clamp(int(std::floor(x)), int(box.left), int(box.right) - 1);
        };
        auto clampY = [&](double y) {
            return std::clamp(int(std::floor(y)), int(box.top), int(box.bottom) - 1);
        };
        TPoint centre(clampX(cx), clampY(cy));
        for (const TPoint& p : {start, end}) {
            double vx = p.x - cx, vy = p.y - cy;
            double length = std::sqrt((vx / a) * (vx / a) + (vy / b) * (vy / b));
            if (length == 0) {
                continue;
            }
            TPoint rim(clampX(cx + vx / length), clampY(cy + vy / length));
            raster.WideLine(centre, rim, penValue, DevicePenWidth(), true);
        }
    }
    return true;
}

// Text.

const FontInstance* TDC::CurrentFont() const
{
    if (!IsScaled()) {
        return Font.GetInstance().get();
    }
    LOGFONT scaled = Font.GetLogFont();
    scaled.lfHeight =
        LONG(MulDiv(scaled.lfHeight, std::abs(ViewportExt.cy), std::abs(WindowExt.cy)));
    scaled.lfWidth = LONG(MulDiv(scaled.lfWidth, std::abs(ViewportExt.cx), std::abs(WindowExt.cx)));
    if (scaled.lfHeight == 0 && Font.GetLogFont().lfHeight != 0) {
        scaled.lfHeight = Font.GetLogFont().lfHeight < 0 ? -1 : 1;
    }
    pScaledFont = FontInstance::For(scaled);
    return pScaledFont.get();
}

bool TDC::TextOut(int x, int y, const char* text, int count)
{
    return DrawText(ToDevice(x, y), text, LengthOf(text, count), nullptr, nullptr);
}

bool TDC::ExtTextOut(int x, int y, UINT options, const TRect* rect, const char* text, int count,
                     const int* dx)
{
    TRect area;
    if (rect) {
        area = ToDevice(rect->left, rect->top, rect->right, rect->bottom).Normalized();
        if (options & ETO_OPAQUE) {
            Raster(*pSurface, DeviceClip()).Fill(area, ValueOf(BkColor));
        }
    }
    bool clipped = rect && (options & ETO_CLIPPED);
    return DrawText(ToDevice(x, y), text, LengthOf(text, count), dx, clipped ? &area : nullptr);
}

bool TDC::DrawText(TPoint at, const char* text, int count, const int* dx, const TRect* clip)
{
    const FontInstance* font = CurrentFont();
    if (!font) {
        return false;
    }
    if (count <= 0) {
        return true;
    }
    auto advance = [&](int i) {
        return dx ? SizeToDevice(dx[i], 0).cx : font->Advance(BYTE(text[i]));
    };
    const TEXTMETRIC& metrics = font->GetMetrics();
    TRect area = DeviceClip();
    if (clip) {
        area = area & *clip;
    }
    Raster raster(*pSurface, area);
    if (nBkMode == OPAQUE) {
        int width = 0;
        for (int i = 0; i < count; ++i) {
            width += advance(i);
        }
        raster.Fill(TRect(at.x, at.y, at.x + width, at.y + metrics.tmHeight), ValueOf(BkColor));
    }
    bool smooth = !pSurface->IsIndexed() && Font.GetLogFont().lfQuality != NONANTIALIASED_QUALITY;
    std::uint32_t value = ValueOf(TextColor);
    COLORREF rgb = pSurface->ColorForValue(value);
    int penX = at.x, baseline = at.y + metrics.tmAscent;
    TextRun run;
    const bool keep = KeepsTextRuns();
    if (keep) {
        run.pFont = IsScaled() ? pScaledFont : Font.GetInstance();
        run.Text.assign(text, std::size_t(count));
        run.PenX.reserve(std::size_t(count));
        run.Baseline = baseline;
        run.Color = rgb;
        run.Clip = area;
    }
    for (int i = 0; i < count; ++i) {
        if (keep) {
            run.PenX.push_back(penX);
        } else {
            raster.Mask(font->GetGlyph(BYTE(text[i]), smooth), penX, baseline, value, rgb, smooth);
        }
        penX += advance(i);
    }
    if (keep) {
        KeepTextRun(std::move(run));
    }
    return true;
}

TSize TDC::GetTextExtent(const char* text, int count) const
{
    TSize size;
    GetTextExtent(text, count, size);
    return size;
}

bool TDC::GetTextExtent(const char* text, int count, TSize& size) const
{
    const FontInstance* font = CurrentFont();
    if (!font) {
        size = TSize();
        return false;
    }
    size = font->Extent(text, LengthOf(text, count));
    if (IsScaled()) {
        size = TSize(ClampToDevice(std::llabs(MulDiv(size.cx, WindowExt.cx, ViewportExt.cx))),
                     ClampToDevice(std::llabs(MulDiv(size.cy, WindowExt.cy, ViewportExt.cy))));
    }
    return true;
}

bool TDC::GetTextMetrics(TEXTMETRIC& metrics) const
{
    const FontInstance* font = CurrentFont();
    if (!font) {
        metrics = TEXTMETRIC{};
        return false;
    }
    metrics = font->GetMetrics();
    if (IsScaled()) {
        auto y = [&](LONG v) {
            return LONG(ClampToDevice(std::llabs(MulDiv(v, WindowExt.cy, ViewportExt.cy))));
        };
        auto x = [&](LONG v) {
            return LONG(ClampToDevice(std::llabs(MulDiv(v, WindowExt.cx, ViewportExt.cx))));
        };
        metrics.tmHeight = y(metrics.tmHeight);
        metrics.tmAscent = y(metrics.tmAscent);
        metrics.tmDescent = y(metrics.tmDescent);
        metrics.tmInternalLeading = y(metrics.tmInternalLeading);
        metrics.tmExternalLeading = y(metrics.tmExternalLeading);
        metrics.tmAveCharWidth = x(metrics.tmAveCharWidth);
        metrics.tmMaxCharWidth = x(metrics.tmMaxCharWidth);
    }
    return true;
}

// Pictures.

bool TDC::BitBlt(int x, int y, int width, int height, const TDC* source, int sx, int sy, DWORD rop)
{
    TRect target = ToDevice(x, y, (long long)x + width, (long long)y + height).Normalized();
    Raster raster(*pSurface, DeviceClip());
    std::uint32_t pattern = Brush.IsNull() ? 0 : ValueOf(Brush.GetColor());
    if (!Blitter::UsesSource(rop)) {
        return Blitter::Blit(raster, target.left, target.top, target.Width(), target.Height(),
                             nullptr, 0, 0, 0, 0, rop, pattern);
    }
    if (!source) {
        return false;
    }
    TRect from =
        source->ToDevice(sx, sy, (long long)sx + width, (long long)sy + height).Normalized();
    PixelSource pixels(source->GetSurface());
    return Blitter::Blit(raster, target.left, target.top, target.Width(), target.Height(), &pixels,
                         from.left, from.top, from.Width(), from.Height(), rop, pattern);
}

bool TDC::StretchBlt(int x, int y, int width, int height, const TDC& source, int sx, int sy, int sw,
                     int sh, DWORD rop)
{
    if (width <= 0 || height <= 0 || sw <= 0 || sh <= 0) {
        return false;
    }
    TRect target = ToDevice(x, y, (long long)x + width, (long long)y + height).Normalized();
    TRect from = source.ToDevice(sx, sy, (long long)sx + sw, (long long)sy + sh).Normalized();
    Raster raster(*pSurface, DeviceClip());
    std::uint32_t pattern = Brush.IsNull() ? 0 : ValueOf(Brush.GetColor());
    PixelSource pixels(source.GetSurface());
    return Blitter::Blit(raster, target.left, target.top, target.Width(), target.Height(), &pixels,
                         from.left, from.top, from.Width(), from.Height(), rop, pattern);
}

int TDC::StretchDIBits(int x, int y, int width, int height, int sx, int sy, int sw, int sh,
                       const void* bits, const BITMAPINFO& info, UINT usage, DWORD rop)
{
    if (width <= 0 || height <= 0 || sw <= 0 || sh <= 0) {
        return 0;
    }
    PixelSource pixels(info, bits, usage, pPalette.get());
    if (!pixels.IsOK()) {
        return 0;
    }
    int top = info.bmiHeader.biHeight > 0 ? pixels.Height() - sy - sh : sy;
    TRect target = ToDevice(x, y, (long long)x + width, (long long)y + height).Normalized();
    Raster raster(*pSurface, DeviceClip());
    std::uint32_t pattern = Brush.IsNull() ? 0 : ValueOf(Brush.GetColor());
    bool done = Blitter::Blit(raster, target.left, target.top, target.Width(), target.Height(),
                              &pixels, sx, top, sw, sh, rop, pattern);
    return done ? sh : 0;
}

int TDC::StretchDIBits(const TRect& target, const TRect& from, const TDib& dib, DWORD rop)
{
    if (!dib.IsOK()) {
        return 0;
    }
    return StretchDIBits(target.left, target.top, target.Width(), target.Height(), from.left,
                         from.top, from.Width(), from.Height(), dib.GetBits(), *dib.GetInfo(),
                         dib.Usage(), rop);
}
