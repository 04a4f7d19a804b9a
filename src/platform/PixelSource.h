#pragma once
// Read access to the pixels of a picture that is copied somewhere: a surface, or the bits of a
// device-independent bitmap of 1, 4, 8, 24 or 32 bits per pixel (uncompressed). Pixels of 8
// bits or fewer are indexes into a colour table; the others are blue, green, red bytes.
#include <vector>

#include "platform/Surface.h"
#include "platform/WinTypes.h"

class GdiPalette;

class PixelSource
{
public:
    explicit PixelSource(const Surface& surface);
    // With DIB_PAL_COLORS the colour table holds WORD indexes into `palette`.
    PixelSource(const BITMAPINFO& info, const void* bits, UINT usage, const GdiPalette* palette);

    bool IsOK() const { return pBits != nullptr; }
    int Width() const { return nWidth; }
    int Height() const { return nHeight; }
    int BitCount() const { return nBitCount; }
    bool IsIndexed() const { return nBitCount <= 8; }
    const std::vector<COLORREF>& ColorTable() const { return aTable; }
    // The surface read, if any.
    const Surface* GetSurface() const { return pSurface; }

    // Row y counted from the top of the picture.
    const BYTE* Row(int y) const
    {
        return pBits + std::size_t(bBottomUp ? nHeight - 1 - y : y) * std::size_t(nStride);
    }
    // The index of a pixel of an indexed picture.
    unsigned IndexAt(int x, int y) const;
    // The plain RGB colour of any pixel.
    COLORREF RgbAt(int x, int y) const;

    // Reads from a private copy of the bits from now on, so that the original can be written
    // while this is read (a copy within one surface).
    void TakeCopy();

private:
    const BYTE* pBits = nullptr;
    const Surface* pSurface = nullptr;
    int nWidth = 0;
    int nHeight = 0;
    int nStride = 0;
    int nBitCount = 0;
    bool bBottomUp = true;
    std::vector<COLORREF> aTable;
    std::vector<BYTE> aCopy;
};
