// The off-screen bitmap of the sky map: an 8-bit DIB section whose bits stars are written into
// directly, bottom-up, with rows of biWidth bytes.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"

namespace {

// A BITMAPINFO with room for a table of 256 entries behind the header.
struct InfoWithTable
{
    BITMAPINFOHEADER Header{};
    WORD Table[256 * 2]{};

    const BITMAPINFO* Info() const { return reinterpret_cast<const BITMAPINFO*>(this); }
};

// The header the map builds: palette indexes 0 to 255 in order, height positive.
InfoWithTable MapHeader(int width, int height)
{
    InfoWithTable info;
    info.Header.biSize = sizeof(BITMAPINFOHEADER);
    info.Header.biWidth = width;
    info.Header.biHeight = height;
    info.Header.biPlanes = 1;
    info.Header.biBitCount = 8;
    info.Header.biCompression = BI_RGB;
    info.Header.biSizeImage = DWORD(width * height);
    info.Header.biClrUsed = 256;
    for (WORD i = 0; i < 256; ++i) {
        info.Table[i] = i;
    }
    return info;
}

class DibSection : public ::testing::Test
{
protected:
    DibSection()
    {
        Dc.SelectObject(HostPalette(), true);
        Dc.RealizePalette();
        InfoWithTable info = MapHeader(kWidth, kHeight);
        Handle = CreateDIBSection(Dc, info.Info(), DIB_PAL_COLORS, &pBits, nullptr, 0);
    }
    ~DibSection() override
    {
        Dc.RestoreObjects();
        DeleteObject(Handle);
    }

    // The byte of pixel (x, y), counted from the top, as the fast star drawing finds it.
    BYTE& Pixel(int x, int y)
    {
        BYTE* topRow = static_cast<BYTE*>(pBits) + (kHeight - 1) * kWidth;
        return topRow[-y * kWidth + x];
    }

    static constexpr int kWidth = 24;
    static constexpr int kHeight = 16;
    TMemoryDC Dc;
    HBITMAP Handle = nullptr;
    void* pBits = nullptr;
};

TEST_F(DibSection, BitsAreBottomUpAndShowThroughTheContext)
{
    TBitmap wrapper(Handle, NoAutoDelete);
    ASSERT_TRUE(Dc.SelectObject(wrapper));
    static_cast<BYTE*>(pBits)[0] = kHostPaletteWhite; // first row in memory: the bottom one
    Pixel(5, 2) = 12;                                 // blue
    EXPECT_EQ(Dc.GetPixel(0, kHeight - 1), TColor::White);
    EXPECT_EQ(Dc.GetPixel(5, 2), TColor::LtBlue);

    Dc.SetPixel(7, 3, TColor::LtRed);
    EXPECT_EQ(Pixel(7, 3), GetNearestPaletteIndex(HostPalette(), RGB(255, 0, 0)));
    EXPECT_EQ(GdiFlush(), TRUE);
}

TEST_F(DibSection, TwoPixelStarIsWrittenOnlyWhereTheSkyIs)
{
    TBitmap wrapper(Handle, NoAutoDelete);
    Dc.SelectObject(wrapper);
    Dc.FillRect(TRect(0, 0, kWidth, kHeight), TBrush(TColor(0, 0, 0x60)));
    Dc.SetPixel(11, 10, TColor::LtGreen); // a constellation line already there
    GdiFlush();

    BYTE sky = BYTE(GetNearestPaletteIndex(HostPalette(), RGB(0, 0, 0x60)));
    BYTE star = BYTE(GetNearestPaletteIndex(HostPalette(), RGB(107, 107, 107)));
    ASSERT_EQ(sky, kHostPaletteDaySky);
    for (int x : {10, 11}) {
        if (Pixel(x, 10) == sky) {
            Pixel(x, 10) = star;
        }
    }
    EXPECT_EQ(Dc.GetPixel(10, 10), TColor(HostPaletteColors()[star]));
    EXPECT_EQ(Dc.GetPixel(11, 10), TColor::LtGreen);
    EXPECT_EQ(Dc.GetPixel(12, 10), TColor(0, 0, 0x60));
}

TEST_F(DibSection, DeletingTheHandleWhileSelectedKeepsTheContextWorking)
{
    {
        TBitmap wrapper(Handle, NoAutoDelete);
        Dc.SelectObject(wrapper);
    }
    EXPECT_EQ(DeleteObject(Handle), TRUE);
    EXPECT_EQ(DeleteObject(Handle), FALSE) << "a handle is deleted once";
    DIBSECTION ds{};
    EXPECT_EQ(GetObjectA(Handle, sizeof ds, &ds), 0);
    Dc.SetPixel(1, 1, TColor::White);
    EXPECT_EQ(Dc.GetPixel(1, 1), TColor::White) << "the selected bitmap lives on";
    Dc.RestoreBitmap();
    EXPECT_EQ(Dc.GetSurface().Width(), 1);
    Handle = nullptr;
}

TEST_F(DibSection, RefusesHeadersItCannotHonour)
{
    auto refused = [&](auto change) {
        InfoWithTable info = MapHeader(8, 8);
        change(info.Header);
        void* bits = reinterpret_cast<void*>(1);
        HBITMAP h = CreateDIBSection(Dc, info.Info(), DIB_PAL_COLORS, &bits, nullptr, 0);
        return h == nullptr && bits == nullptr;
    };
    EXPECT_TRUE(refused([](BITMAPINFOHEADER& h) { h.biBitCount = 24; }));
    EXPECT_TRUE(refused([](BITMAPINFOHEADER& h) { h.biWidth = 0; }));
    EXPECT_TRUE(refused([](BITMAPINFOHEADER& h) { h.biHeight = 0; }));
    EXPECT_TRUE(refused([](BITMAPINFOHEADER& h) { h.biCompression = BI_RLE8; }));
    EXPECT_TRUE(refused([](BITMAPINFOHEADER& h) { h.biWidth = 1 << 20; }));
    EXPECT_EQ(CreateDIBSection(Dc, nullptr, DIB_PAL_COLORS, nullptr, nullptr, 0), nullptr);
}

} // namespace
