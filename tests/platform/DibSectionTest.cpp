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

TEST_F(DibSection, GetObjectGivesTheHeaderAndTheBits)
{
    ASSERT_NE(Handle, nullptr);
    DIBSECTION ds{};
    ASSERT_EQ(GetObjectA(Handle, sizeof ds, &ds), int(sizeof ds));
    EXPECT_EQ(ds.dsBmih.biWidth, kWidth);
    EXPECT_EQ(ds.dsBmih.biHeight, kHeight);
    EXPECT_EQ(ds.dsBmih.biBitCount, 8);
    EXPECT_EQ(ds.dsBmih.biSizeImage, DWORD(kWidth * kHeight));
    EXPECT_EQ(ds.dsBm.bmWidthBytes, kWidth);
    EXPECT_EQ(ds.dsBm.bmBits, pBits);

    BITMAP bm{};
    EXPECT_EQ(GetObjectA(Handle, sizeof bm, &bm), int(sizeof bm));
    EXPECT_EQ(bm.bmHeight, kHeight);
    EXPECT_EQ(GetObjectA(Handle, 4, &bm), 0) << "too small a buffer";
}

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

TEST_F(DibSection, StrideIsTheWidthRoundedToFourBytes)
{
    InfoWithTable info = MapHeader(101, 3);
    void* bits = nullptr;
    HBITMAP odd = CreateDIBSection(Dc, info.Info(), DIB_PAL_COLORS, &bits, nullptr, 0);
    BITMAP bm{};
    GetObjectA(odd, sizeof bm, &bm);
    EXPECT_EQ(bm.bmWidthBytes, 104);
    DeleteObject(odd);

    info = MapHeader(104, 3);
    HBITMAP even = CreateDIBSection(Dc, info.Info(), DIB_PAL_COLORS, &bits, nullptr, 0);
    GetObjectA(even, sizeof bm, &bm);
    EXPECT_EQ(bm.bmWidthBytes, 104);
    DeleteObject(even);
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

TEST_F(DibSection, OwnColourTableWithRgbColours)
{
    struct
    {
        BITMAPINFOHEADER Header;
        RGBQUAD Colors[2];
    } info{};
    info.Header = MapHeader(8, 2).Header;
    info.Header.biClrUsed = 2;
    info.Colors[1] = RGBQUAD{10, 20, 30, 0};
    void* bits = nullptr;
    HBITMAP handle = CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS,
                                      &bits, nullptr, 0);
    ASSERT_NE(handle, nullptr);
    static_cast<BYTE*>(bits)[3] = 1;
    TBitmap wrapper(handle, AutoDelete);
    TMemoryDC dc;
    dc.SelectObject(wrapper);
    EXPECT_EQ(dc.GetPixel(3, 1), TColor(30, 20, 10));
    EXPECT_EQ(dc.GetPixel(2, 1), TColor::Black) << "entries beyond the table are black";
}

TEST_F(DibSection, TopDownRgbSection)
{
    BITMAPINFO info{};
    info.bmiHeader = MapHeader(4, -2).Header;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biClrUsed = 0;
    void* bits = nullptr;
    HBITMAP handle = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ASSERT_NE(handle, nullptr);
    BYTE orange[4] = {0, 128, 255, 0}; // blue, green, red
    std::memcpy(bits, orange, 4);
    TBitmap wrapper(handle, AutoDelete);
    TMemoryDC dc;
    dc.SelectObject(wrapper);
    EXPECT_EQ(dc.GetPixel(0, 0), TColor(255, 128, 0)) << "a negative height is top-down";
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

TEST_F(DibSection, CompatibleBitmapTakesTheFormatAndColoursOfTheContext)
{
    TBitmap wrapper(Handle, NoAutoDelete);
    Dc.SelectObject(wrapper);
    TBitmap compatible(Dc, 5, 4);
    ASSERT_TRUE(compatible.GetObject());
    const Surface& s = compatible.GetObject()->GetSurface();
    EXPECT_TRUE(s.IsIndexed());
    EXPECT_EQ(s.ColorTable(), Dc.GetSurface().ColorTable());
    EXPECT_EQ(compatible.Size(), TSize(5, 4));

    TMemoryDC screenLike;
    TBitmap rgb(screenLike, 3, 3);
    EXPECT_FALSE(rgb.GetObject()->GetSurface().IsIndexed());
}

} // namespace
