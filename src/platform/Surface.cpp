#include "platform/Surface.h"

#include <algorithm>
#include <cstring>

#include "platform/HostPalette.h"

Surface::Surface(int width, int height, PixelFormat format, bool bottomUp)
    : nWidth(std::max(width, 1)), nHeight(std::max(height, 1)), Format(format), bBottomUp(bottomUp)
{
    nStride = IsIndexed() ? (nWidth + 3) / 4 * 4 : nWidth * 4;
    aBits.assign(std::size_t(nStride) * std::size_t(nHeight), 0);
    if (IsIndexed()) {
        Matcher.SetColors(HostPaletteColors());
    }
}

std::uint32_t Surface::ValueAt(int x, int y) const
{
    if (x < 0 || y < 0 || x >= nWidth || y >= nHeight) {
        return 0;
    }
    const BYTE* row = Row(y);
    if (IsIndexed()) {
        return row[x];
    }
    std::uint32_t value;
    std::memcpy(&value, row + 4 * x, 4);
    return value & 0x00FFFFFF;
}

void Surface::SetValue(int x, int y, std::uint32_t value)
{
    if (x < 0 || y < 0 || x >= nWidth || y >= nHeight) {
        return;
    }
    BYTE* row = Row(y);
    if (IsIndexed()) {
        row[x] = BYTE(value);
    } else {
        value &= 0x00FFFFFF;
        std::memcpy(row + 4 * x, &value, 4);
    }
}

COLORREF Surface::ColorAt(int x, int y) const
{
    if (x < 0 || y < 0 || x >= nWidth || y >= nHeight) {
        return CLR_INVALID;
    }
    return ColorForValue(ValueAt(x, y));
}

void Surface::SetColorTable(const std::vector<COLORREF>& colors)
{
    std::vector<COLORREF> table(256, RGB(0, 0, 0));
    std::copy_n(colors.begin(), std::min<std::size_t>(colors.size(), 256), table.begin());
    Matcher.SetColors(std::move(table));
    ++nTableVersion;
}

void Surface::SetColorTable(const RGBQUAD* colors, int count)
{
    std::vector<COLORREF> table;
    for (int i = 0; i < std::clamp(count, 0, 256); ++i) {
        table.push_back(RGB(colors[i].rgbRed, colors[i].rgbGreen, colors[i].rgbBlue));
    }
    SetColorTable(table);
}

std::uint32_t Surface::ValueForColor(COLORREF rgb) const
{
    return IsIndexed() ? std::uint32_t(Matcher.Nearest(rgb)) : RgbToValue(rgb & 0x00FFFFFF);
}

COLORREF Surface::ColorForValue(std::uint32_t value) const
{
    if (IsIndexed()) {
        return Matcher.GetColors()[value & 0xFF];
    }
    return ValueToRgb(value & 0x00FFFFFF);
}
