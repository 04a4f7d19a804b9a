// Colour values as the drawing calls read them.
#include <gtest/gtest.h>

#include "platform/TColor.h"

namespace {

TEST(TColor, RgbValuesKeepRedInTheLowByte)
{
    TColor orange(255, 128, 0);
    EXPECT_EQ(orange.GetValue(), 0x000080FFu);
    EXPECT_EQ(COLORREF(orange), RGB(255, 128, 0));
    EXPECT_EQ(orange.Red(), 255);
    EXPECT_EQ(orange.Green(), 128);
    EXPECT_EQ(orange.Blue(), 0);
    EXPECT_FALSE(orange.IsPaletteIndex());
    EXPECT_FALSE(orange.IsPaletteRelative());
    EXPECT_EQ(TColor(PALETTEENTRY{1, 2, 3, 4}), TColor(1, 2, 3));
    EXPECT_EQ(TColor(RGBQUAD{3, 2, 1, 9}), TColor(1, 2, 3)) << "a quad is blue first";
}

TEST(TColor, PaletteIndexAndPaletteRelativeForms)
{
    TColor index = TColor::PaletteIndex(255);
    EXPECT_EQ(index.GetValue(), 0x010000FFu);
    EXPECT_TRUE(index.IsPaletteIndex());
    EXPECT_EQ(index.Index(), 255);
    EXPECT_EQ(TColor(PALETTEINDEX(0)).GetValue(), 0x01000000u);

    TColor relative = TColor(0, 0, 0x60).PalRelative();
    EXPECT_EQ(relative.GetValue(), 0x02600000u);
    EXPECT_TRUE(relative.IsPaletteRelative());
    EXPECT_EQ(relative, TColor(PALETTERGB(0, 0, 0x60)));
    EXPECT_EQ(relative.Rgb(), TColor(0, 0, 0x60));
    EXPECT_EQ(relative.Blue(), 0x60);
}

TEST(TColor, NamedColours)
{
    EXPECT_EQ(TColor::Black, TColor(0, 0, 0));
    EXPECT_EQ(TColor::White, TColor(255, 255, 255));
    EXPECT_EQ(TColor::LtRed, TColor(255, 0, 0));
    EXPECT_EQ(TColor::LtGreen, TColor(0, 255, 0));
    EXPECT_EQ(TColor::LtBlue, TColor(0, 0, 255));
    EXPECT_EQ(TColor::LtYellow, TColor(255, 255, 0));
    EXPECT_EQ(TColor::LtMagenta, TColor(255, 0, 255));
    EXPECT_EQ(TColor::LtCyan, TColor(0, 255, 255));
    EXPECT_EQ(TColor::Gray, TColor(128, 128, 128));
    EXPECT_EQ(TColor::LtGray, TColor(192, 192, 192));
}

} // namespace
