// Copying pictures between surfaces of both formats with raster operations: the screen copy of
// the map, the merge of a foreground through its mask, stretched pictures.
#include <gtest/gtest.h>

#include <tuple>

#include "PictureText.h"
#include "platform/Blitter.h"
#include "platform/TBitmap.h"
#include "platform/TClientDC.h"
#include "platform/TDib.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"

namespace {

// Paints rows of text as pixels: each character is a colour of the basic legend.
void Paint(TDC& dc, const std::vector<std::string>& rows, int x0 = 0, int y0 = 0)
{
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            for (const auto& [color, c] : BasicLegend()) {
                if (c == rows[y][x]) {
                    dc.SetPixel(x0 + int(x), y0 + int(y), TColor(color));
                }
            }
        }
    }
}

using Formats = std::tuple<PixelFormat, PixelFormat>;

class Blit : public ::testing::TestWithParam<Formats>
{
protected:
    Blit()
        : Source(6, 4, std::get<0>(GetParam())), Target(6, 4, std::get<1>(GetParam())),
          SourceDc(Source), TargetDc(Target)
    {}

    Surface Source;
    Surface Target;
    TClientDC SourceDc;
    TClientDC TargetDc;
};

INSTANTIATE_TEST_SUITE_P(
    AllFormatPairs, Blit,
    ::testing::Combine(::testing::Values(PixelFormat::Indexed8, PixelFormat::Rgb32),
                       ::testing::Values(PixelFormat::Indexed8, PixelFormat::Rgb32)),
    [](const ::testing::TestParamInfo<Formats>& param) {
        auto name = [](PixelFormat f) { return f == PixelFormat::Indexed8 ? "Indexed8" : "Rgb32"; };
        return std::string(name(std::get<0>(param.param))) + "To" + name(std::get<1>(param.param));
    });

TEST_P(Blit, SourceCopyKeepsColoursAndPlace)
{
    Paint(SourceDc, {"rgbym#", "#....#", ".rr...", "....bb"});
    Paint(TargetDc, {"######", "######", "######", "######"});
    ASSERT_TRUE(TargetDc.BitBlt(1, 1, 4, 2, SourceDc, 0, 2, SRCCOPY));
    EXPECT_EQ(PictureOf(Target), Rows({
                                     "######",
                                     "#.rr.#",
                                     "#....#",
                                     "######",
                                 }));
    ASSERT_TRUE(TargetDc.BitBlt(TRect(0, 0, 6, 1), SourceDc, TPoint(0, 0)));
    EXPECT_EQ(PictureOf(Target, TRect(0, 0, 6, 1)), Rows({"rgbym#"}));
}

TEST_P(Blit, ForegroundMergesThroughItsMaskWithAndThenOr)
{
    // The sky: blue with a white star; the mask: white where the sky shows, black under the
    // foreground; the foreground: black where the sky shows.
    Paint(TargetDc, {"bbbbbb", "bb#bbb", "bbbbbb", "bbbbbb"});
    Surface mask(6, 4, std::get<0>(GetParam()));
    TClientDC maskDc(mask);
    Paint(maskDc, {"######", "######", "##....", "......"});
    Paint(SourceDc, {"......", "......", "..gggg", "gggrrg"});

    TargetDc.SetTextColor(TColor::PaletteIndex(0));
    TargetDc.SetBkColor(TColor::PaletteIndex(255));
    ASSERT_TRUE(TargetDc.BitBlt(0, 0, 6, 4, maskDc, 0, 0, SRCAND));
    EXPECT_EQ(PictureOf(Target), Rows({
                                     "bbbbbb",
                                     "bb#bbb",
                                     "bb....",
                                     "......",
                                 }));
    ASSERT_TRUE(TargetDc.BitBlt(0, 0, 6, 4, SourceDc, 0, 0, SRCPAINT));
    std::string merged = Rows({
        "bbbbbb",
        "bb#bbb",
        "bbgggg",
        "gggrrg",
    });
    EXPECT_EQ(PictureOf(Target), merged);

    // Merging again over the merged picture changes nothing.
    TargetDc.BitBlt(0, 0, 6, 4, maskDc, 0, 0, SRCAND);
    TargetDc.BitBlt(0, 0, 6, 4, SourceDc, 0, 0, SRCPAINT);
    EXPECT_EQ(PictureOf(Target), merged);
}

TEST_P(Blit, DestinationAndNotSourceBlacksOutWhereTheMaskIsWhite)
{
    Paint(TargetDc, {"gggggg", "grrrrg", "gggggg", "yyyyyy"});
    Paint(SourceDc, {"###...", "###...", "......", "#....#"});
    ASSERT_TRUE(TargetDc.BitBlt(0, 0, 6, 4, SourceDc, 0, 0, 0x00220326));
    EXPECT_EQ(PictureOf(Target), Rows({
                                     "...ggg",
                                     "...rrg",
                                     "gggggg",
                                     ".yyyy.",
                                 }));
}

TEST_P(Blit, DestinationInvertTwiceRestores)
{
    Paint(TargetDc, {"######", "......", "#.#.#.", "rgbym#"});
    std::vector<COLORREF> before = ColorsOf(Target);
    ASSERT_TRUE(TargetDc.BitBlt(0, 0, 3, 4, nullptr, 0, 0, DSTINVERT));
    EXPECT_EQ(PictureOf(Target, TRect(0, 0, 6, 3)), Rows({
                                                        "...###",
                                                        "###...",
                                                        ".#..#.",
                                                    }));
    TargetDc.BitBlt(0, 0, 3, 4, nullptr, 0, 0, DSTINVERT);
    EXPECT_EQ(ColorsOf(Target), before);
}

TEST_P(Blit, StretchTakesTheNearestPixel)
{
    Paint(SourceDc, {"rg", "b#"});
    TargetDc.SetStretchBltMode(COLORONCOLOR);
    ASSERT_TRUE(TargetDc.StretchBlt(0, 0, 4, 4, SourceDc, 0, 0, 2, 2, SRCCOPY));
    EXPECT_EQ(PictureOf(Target, TRect(0, 0, 4, 4)), Rows({
                                                        "rrgg",
                                                        "rrgg",
                                                        "bb##",
                                                        "bb##",
                                                    }));
    Paint(SourceDc, {"rrggbb", "rrggbb", "yy##mm", "yy##mm"});
    TargetDc.StretchBlt(TRect(0, 0, 3, 2), SourceDc, TRect(0, 0, 6, 4));
    EXPECT_EQ(PictureOf(Target, TRect(0, 0, 3, 2)), Rows({"rgb", "y#m"}));
    EXPECT_FALSE(TargetDc.StretchBlt(0, 0, -4, 4, SourceDc, 0, 0, 2, 2, SRCCOPY));
}

TEST_P(Blit, ClipAndSourceEdgesLimitTheCopy)
{
    Paint(SourceDc, {"rrrrrr", "rrrrrr", "rrrrrr", "rrrrrr"});
    TargetDc.SelectClipRgn(TRegion(TRect(0, 0, 3, 4)));
    TargetDc.BitBlt(1, 1, 6, 2, SourceDc, 0, 0, SRCCOPY);
    TargetDc.SelectClipRgn(nullptr);
    TargetDc.BitBlt(4, 0, 3, 2, SourceDc, 4, 2, SRCCOPY); // runs off the source's right edge
    EXPECT_EQ(PictureOf(Target), Rows({
                                     "....rr",
                                     ".rr.rr",
                                     ".rr...",
                                     "......",
                                 }));
}

TEST(BlitWithinOneSurface, OverlappingCopyMovesThePictureIntact)
{
    Surface s(6, 1, PixelFormat::Indexed8);
    TClientDC dc(s);
    Paint(dc, {"rgby.."});
    dc.BitBlt(1, 0, 5, 1, dc, 0, 0, SRCCOPY);
    EXPECT_EQ(PictureOf(s), Rows({"rrgby."}));
    dc.BitBlt(0, 0, 5, 1, dc, 1, 0, SRCCOPY);
    EXPECT_EQ(PictureOf(s), Rows({"rgby.."}));
}

TEST(BlitOperations, TruthTableCombinesPatternSourceAndDestination)
{
    const std::uint32_t p = 0xF0, s = 0xCC, d = 0xAA;
    // With these operands every operation gives back its own truth table.
    for (DWORD rop : {SRCCOPY, SRCPAINT, SRCAND, SRCINVERT, SRCERASE, NOTSRCCOPY, NOTSRCERASE,
                      MERGEPAINT, PATCOPY, PATINVERT, DSTINVERT, BLACKNESS, WHITENESS,
                      DWORD(0x00220326), DWORD(0x00B8074A)}) {
        EXPECT_EQ(Blitter::Combine(rop, p, s, d) & 0xFF, (rop >> 16) & 0xFF) << std::hex << rop;
    }
    EXPECT_TRUE(Blitter::UsesSource(SRCAND));
    EXPECT_FALSE(Blitter::UsesSource(DSTINVERT));
    EXPECT_TRUE(Blitter::UsesPattern(PATCOPY));
    EXPECT_FALSE(Blitter::UsesPattern(0x00220326));
}

TEST(StretchDIBits, DrawsABottomUpPictureTheRightWayUp)
{
    TDib dib(2, 3, 4);
    dib.SetColor(1, TColor::LtRed);
    dib.SetColor(2, TColor::LtGreen);
    dib.SetColor(3, TColor::LtBlue);
    dib.SetPixelIndex(0, 0, 1); // top row red
    dib.SetPixelIndex(1, 0, 1);
    dib.SetPixelIndex(0, 1, 2); // middle green
    dib.SetPixelIndex(1, 2, 3); // bottom right blue
    for (PixelFormat format : {PixelFormat::Indexed8, PixelFormat::Rgb32}) {
        Surface s(4, 6, format);
        TClientDC dc(s);
        dc.SetStretchBltMode(COLORONCOLOR);
        EXPECT_EQ(dc.StretchDIBits(TRect(0, 0, 4, 6), TRect(0, 0, 2, 3), dib), 3);
        EXPECT_EQ(PictureOf(s), Rows({
                                    "rrrr",
                                    "rrrr",
                                    "gg..",
                                    "gg..",
                                    "..bb",
                                    "..bb",
                                }));
        EXPECT_EQ(dc.StretchDIBits(TRect(0, 0, 4, 6), TRect(0, 0, 2, 3), TDib("no such file")), 0);
    }
}

TEST(TBitmapFromDib, KeepsColoursOrMapsThemToThePalette)
{
    TDib dib(2, 1, 0);
    ASSERT_EQ(dib.BitsPixel(), 24);
    BYTE* bits = static_cast<BYTE*>(dib.GetBits());
    // Blue, green and red of (0, 0).
    bits[0] = 10;
    bits[1] = 130;
    bits[2] = 250;
    TBitmap rgb(dib);
    EXPECT_EQ(rgb.GetObject()->GetSurface().ColorAt(0, 0), RGB(250, 130, 10));

    PALETTEENTRY entries[] = {{0, 0, 0, 0}, {255, 128, 0, 0}};
    TPalette palette(entries, 2);
    TBitmap mapped(dib, &palette);
    const Surface& s = mapped.GetObject()->GetSurface();
    EXPECT_TRUE(s.IsIndexed());
    EXPECT_EQ(s.ValueAt(0, 0), 1u);
    EXPECT_EQ(s.ColorAt(1, 0), RGB(0, 0, 0));

    TBitmap broken(TDib("no such file"));
    EXPECT_FALSE(broken.IsOK());
    EXPECT_EQ(broken.Size(), TSize(0, 0));
}

} // namespace
