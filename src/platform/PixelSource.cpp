#include "platform/PixelSource.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/GdiPalette.h"

PixelSource::PixelSource(const Surface& surface)
    : pBits(surface.Bits()), pSurface(&surface), nWidth(surface.Width()), nHeight(surface.Height()),
      nStride(surface.Stride()), nBitCount(surface.IsIndexed() ? 8 : 32),
      bBottomUp(surface.IsBottomUp())
{
    if (surface.IsIndexed()) {
        aTable = surface.ColorTable();
    }
}

PixelSource::PixelSource(const BITMAPINFO& info, const void* bits, UINT usage,
                         const GdiPalette* palette)
{
    const BITMAPINFOHEADER& h = info.bmiHeader;
    int bitCount = h.biBitCount;
    bool known =
        bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24 || bitCount == 32;
    if (!bits || !known || h.biCompression != BI_RGB || h.biWidth <= 0 || h.biHeight == 0 ||
        h.biPlanes != 1) {
        return;
    }
    nWidth = h.biWidth;
    nHeight = std::abs(h.biHeight);
    bBottomUp = h.biHeight > 0;
    nBitCount = bitCount;
    nStride = int((std::int64_t(nWidth) * bitCount + 31) / 32 * 4);
    if (bitCount <= 8) {
        int count = h.biClrUsed ? int(std::min<DWORD>(h.biClrUsed, 1u << bitCount)) : 1 << bitCount;
        const BYTE* table = reinterpret_cast<const BYTE*>(&info) + h.biSize;
        for (int i = 0; i < count; ++i) {
            if (usage == DIB_PAL_COLORS) {
                WORD index = WORD(table[2 * i] | table[2 * i + 1] << 8);
                aTable.push_back(palette ? palette->ColorOf(index) : RGB(0, 0, 0));
            } else {
                const BYTE* q = table + 4 * i;
                aTable.push_back(RGB(q[2], q[1], q[0]));
            }
        }
        aTable.resize(std::size_t(1) << bitCount, RGB(0, 0, 0));
    }
    pBits = static_cast<const BYTE*>(bits);
}

unsigned PixelSource::IndexAt(int x, int y) const
{
    const BYTE* row = Row(y);
    switch (nBitCount) {
    case 1:
        return (row[x >> 3] >> (7 - (x & 7))) & 1;
    case 4:
        return (x & 1) ? row[x >> 1] & 0x0F : row[x >> 1] >> 4;
    case 8:
        return row[x];
    default:
        return 0;
    }
}

COLORREF PixelSource::RgbAt(int x, int y) const
{
    if (IsIndexed()) {
        return aTable[IndexAt(x, y)];
    }
    const BYTE* p = Row(y) + std::size_t(x) * std::size_t(nBitCount / 8);
    return RGB(p[2], p[1], p[0]);
}

void PixelSource::TakeCopy()
{
    if (!pBits || !aCopy.empty()) {
        return;
    }
    aCopy.assign(pBits, pBits + std::size_t(nStride) * std::size_t(nHeight));
    pBits = aCopy.data();
}
