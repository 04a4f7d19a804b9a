#include "platform/Raster.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

void StoreRgb(BYTE* p, std::uint32_t value)
{
    std::memcpy(p, &value, 4);
}

std::uint32_t LoadRgb(const BYTE* p)
{
    std::uint32_t v;
    std::memcpy(&v, p, 4);
    return v & 0x00FFFFFF;
}

// The step along the minor axis at step i of n for a total minor distance of d >= 0: the
// nearest whole pixel, halves rounded away from the start.
std::int64_t MinorOffset(std::int64_t i, std::int64_t d, std::int64_t n)
{
    return (2 * i * d + n) / (2 * n);
}

} // namespace

Raster::Raster(Surface& surface, const TRect& clip) : Target(surface), Clip(clip & surface.Bounds())
{}

void Raster::Pixel(int x, int y, std::uint32_t value)
{
    if (!Clip.Contains(TPoint(x, y))) {
        return;
    }
    BYTE* row = Target.Row(y);
    if (Target.IsIndexed()) {
        row[x] = BYTE(value);
    } else {
        StoreRgb(row + 4 * x, value);
    }
}

void Raster::Run(int y, int x0, int x1, std::uint32_t value)
{
    if (y < Clip.top || y >= Clip.bottom) {
        return;
    }
    x0 = std::max(x0, int(Clip.left));
    x1 = std::min(x1, int(Clip.right));
    if (x0 >= x1) {
        return;
    }
    BYTE* row = Target.Row(y);
    if (Target.IsIndexed()) {
        std::memset(row + x0, int(value & 0xFF), std::size_t(x1 - x0));
    } else {
        for (int x = x0; x < x1; ++x) {
            StoreRgb(row + 4 * x, value);
        }
    }
}

void Raster::Fill(const TRect& rect, std::uint32_t value)
{
    TRect r = rect & Clip;
    for (int y = r.top; y < r.bottom; ++y) {
        Run(y, r.left, r.right, value);
    }
}

void Raster::Invert(const TRect& rect)
{
    TRect r = rect & Clip;
    for (int y = r.top; y < r.bottom; ++y) {
        BYTE* row = Target.Row(y);
        if (Target.IsIndexed()) {
            for (int x = r.left; x < r.right; ++x) {
                row[x] = BYTE(~row[x]);
            }
        } else {
            for (int x = r.left; x < r.right; ++x) {
                StoreRgb(row + 4 * x, ~LoadRgb(row + 4 * x) & 0x00FFFFFF);
            }
        }
    }
}

void Raster::Line(const TPoint& a, const TPoint& b, std::uint32_t value, bool withLast)
{
    std::int64_t dx = std::int64_t(b.x) - a.x, dy = std::int64_t(b.y) - a.y;
    std::int64_t adx = std::llabs(dx), ady = std::llabs(dy);
    std::int64_t n = std::max(adx, ady);
    if (n == 0) {
        if (withLast) {
            Pixel(a.x, a.y, value);
        }
        return;
    }
    bool xMajor = adx >= ady;
    int majorStep = (xMajor ? dx : dy) > 0 ? 1 : -1;
    int minorStep = (xMajor ? dy : dx) >= 0 ? 1 : -1;
    std::int64_t minorDistance = xMajor ? ady : adx;
    std::int64_t majorStart = xMajor ? a.x : a.y;
    std::int64_t clipLow = xMajor ? Clip.left : Clip.top;
    std::int64_t clipHigh = xMajor ? Clip.right : Clip.bottom;

    // Only the steps whose major coordinate lies inside the clip are visited.
    std::int64_t first = 0, last = withLast ? n : n - 1;
    if (majorStep > 0) {
        first = std::max(first, clipLow - majorStart);
        last = std::min(last, clipHigh - 1 - majorStart);
    } else {
        first = std::max(first, majorStart - (clipHigh - 1));
        last = std::min(last, majorStart - clipLow);
    }
    for (std::int64_t i = first; i <= last; ++i) {
        std::int64_t minor = minorStep * MinorOffset(i, minorDistance, n);
        std::int64_t major = majorStart + majorStep * i;
        if (xMajor) {
            Pixel(int(major), int(a.y + minor), value);
        } else {
            Pixel(int(a.x + minor), int(major), value);
        }
    }
}

void Raster::WideLine(const TPoint& a, const TPoint& b, std::uint32_t value, int width,
                      bool withLast)
{
    if (width <= 1) {
        Line(a, b, value, withLast);
        return;
    }
    int before = width / 2;
    std::int64_t dx = std::int64_t(b.x) - a.x, dy = std::int64_t(b.y) - a.y;
    std::int64_t n = std::max(std::llabs(dx), std::llabs(dy));
    std::int64_t last = withLast ? n : n - 1;
    if (n == 0) {
        last = withLast ? 0 : -1;
    }
    for (std::int64_t i = 0; i <= last; ++i) {
        int x = n == 0 ? a.x : int(a.x + (dx >= 0 ? 1 : -1) * MinorOffset(i, std::llabs(dx), n));
        int y = n == 0 ? a.y : int(a.y + (dy >= 0 ? 1 : -1) * MinorOffset(i, std::llabs(dy), n));
        Fill(TRect(x - before, y - before, x - before + width, y - before + width), value);
    }
}

void Raster::Mask(const Glyph& glyph, int x, int y, std::uint32_t value, COLORREF rgb, bool blend)
{
    int left = x + glyph.Left, top = y - glyph.Top;
    TRect area = TRect(left, top, left + glyph.Width, top + glyph.Rows) & Clip;
    bool mix = blend && !Target.IsIndexed();
    int r = GetRValue(rgb), g = GetGValue(rgb), b = GetBValue(rgb);
    for (int py = area.top; py < area.bottom; ++py) {
        const BYTE* coverage =
            glyph.Coverage.data() + std::size_t(py - top) * std::size_t(glyph.Width);
        BYTE* row = Target.Row(py);
        for (int px = area.left; px < area.right; ++px) {
            int c = coverage[px - left];
            if (!mix) {
                if (c >= 128) {
                    if (Target.IsIndexed()) {
                        row[px] = BYTE(value);
                    } else {
                        StoreRgb(row + 4 * px, value);
                    }
                }
                continue;
            }
            if (c == 0) {
                continue;
            }
            std::uint32_t old = LoadRgb(row + 4 * px);
            auto mixChannel = [c](int from, int to) {
                return (from * (255 - c) + to * c + 127) / 255;
            };
            int nr = mixChannel(int(old >> 16) & 0xFF, r);
            int ng = mixChannel(int(old >> 8) & 0xFF, g);
            int nb = mixChannel(int(old) & 0xFF, b);
            StoreRgb(row + 4 * px, std::uint32_t(nr << 16 | ng << 8 | nb));
        }
    }
}
