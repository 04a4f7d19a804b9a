#include <gtest/gtest.h>

#include <cmath>

#include "SkyCanvas.h"
#include "platform/HostPalette.h"
#include "skyview/DisplayParameters.h"
#include "state/CmdLineStateContainer.h"

TEST(DisplayParameters, SkyColoursHaveTheirPaletteIndexes)
{
    DisplayParameters p;
    EXPECT_EQ(p.nNightIndex, unsigned(kHostPaletteBlack));
    EXPECT_EQ(p.nDayIndex, unsigned(kHostPaletteDaySky));
    EXPECT_EQ(p.nBackgroundIndex, p.nNightIndex);
    EXPECT_EQ(p.BackgroundColor, TColor(0, 0, 0));

    p.SetDaytime(true);
    EXPECT_TRUE(p.IsDaytime());
    EXPECT_EQ(p.BackgroundColor, TColor(0, 0, 0x60));
    EXPECT_EQ(p.nBackgroundIndex, p.nDayIndex);
    p.SetDaytime(false);
    EXPECT_EQ(p.BackgroundColor, TColor(0, 0, 0));
    EXPECT_EQ(p.nBackgroundIndex, p.nNightIndex);
}

TEST(DisplayParameters, IntensityBecomesAGreyAndItsNearestEntry)
{
    DisplayParameters p;
    TColor color;
    unsigned index = 0;
    ASSERT_TRUE(p.GetColorFromIntensity(255, color, index));
    EXPECT_EQ(color, TColor(255, 255, 255));
    EXPECT_EQ(index, unsigned(kHostPaletteWhite));

    p.GetColorFromIntensity(0, color, index);
    EXPECT_EQ(index, unsigned(kHostPaletteBlack));

    p.GetColorFromIntensity(128, color, index);
    EXPECT_EQ(color, TColor(128, 128, 128));
    EXPECT_EQ(TColor(kHostPaletteEntries[index]), TColor(128, 128, 128));

    // Levels above white are white.
    p.GetColorFromIntensity(300, color, index);
    EXPECT_EQ(color, TColor(255, 255, 255));
}

TEST(DisplayParameters, FastBitsAddressThePixelsOfTheBitmap)
{
    SkyCanvas canvas(16, 12);
    DisplayParameters& p = canvas.Parameters;
    ASSERT_NE(p.pFastBits, nullptr);
    EXPECT_EQ(p.pFastTopRow, p.pFastBits + 11 * 16);
    EXPECT_EQ(p.FastHeader.biWidth, 16);

    // Pixel (x, y) from the top is the byte at top row - y * width + x.
    const int points[][2] = {{0, 0}, {15, 0}, {3, 5}, {0, 11}, {15, 11}};
    BYTE value = 20;
    for (const auto& point : points) {
        p.pFastTopRow[-point[1] * 16 + point[0]] = value;
        EXPECT_EQ(canvas.IndexAt(point[0], point[1]), value);
        ++value;
    }

    // A top-down or deep header gives no top row; no bits, neither.
    BITMAPINFOHEADER topDown = p.FastHeader;
    topDown.biHeight = -12;
    BYTE bits[16 * 12];
    p.SetFastDrawBitmapBits(bits, topDown);
    EXPECT_EQ(p.pFastTopRow, nullptr);
    BITMAPINFOHEADER deep = p.FastHeader;
    deep.biHeight = 12;
    deep.biBitCount = 32;
    p.SetFastDrawBitmapBits(bits, deep);
    EXPECT_EQ(p.pFastTopRow, nullptr);
    p.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    EXPECT_EQ(p.pFastBits, nullptr);
    EXPECT_EQ(p.pFastTopRow, nullptr);
}

TEST(DisplayParameters, SurfaceAndStarSettingsWorkOutTheScalesForThatSurface)
{
    Surface paper(1, 1, PixelFormat::Rgb32);
    DeviceCaps printer;
    printer.LogPixelsX = printer.LogPixelsY = 300;
    TDC dc(paper, printer);

    DisplayParameters p;
    p.SetDC(&dc);
    EXPECT_EQ(p.pDC, &dc);
    EXPECT_EQ(p.SizePixels.Lower, 3u);
    EXPECT_EQ(p.SizePixels.Upper, 30u);

    StarDisplayParameters settings;
    settings.SizeRange = {0.05, 0.2};
    settings.IntensityRange = {100, 200};
    settings.IntensityMagnitudeRange = {4.0, 5.0};
    p.SetStarDisplayParams(settings);
    EXPECT_EQ(p.SizePixels.Lower, 15u);
    EXPECT_EQ(p.SizePixels.Upper, 60u);
    EXPECT_DOUBLE_EQ(p.IntensityScale, 2.0);
    EXPECT_EQ(p.GetIntensityFromMagnitude(4.0), 200u);
}

TEST(DisplayParameters, StateNestsTheStarSettingsAndReworksTheScales)
{
    DisplayParameters p;
    p.LimitingMagnitude = 5.0;
    p.IntensityRange = {50, 200};

    CmdLineStateContainer writer;
    writer << AstroKey("Display") << p;
    const std::string text = writer.GetCmdLine().GetRawText();
    EXPECT_EQ(text.rfind("Display=<Star_Params=<Limiting_Magnitude=5 ", 0), 0u) << text;

    CmdLineStateContainer reader(writer.GetCmdLine());
    DisplayParameters back;
    reader >> AstroKey("Display") >> back;
    EXPECT_EQ(back.LimitingMagnitude, 5.0);
    EXPECT_EQ(back.IntensityRange.Lower, 50u);
    EXPECT_NEAR(back.IntensityScale, std::cbrt(4.0), 1e-12);
}
