// The host's palette and nearest-colour matching, on which star intensities and the day sky
// depend.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "platform/HostPalette.h"
#include "platform/TPalette.h"

namespace {

TEST(HostPalette, HoldsBlackWhiteAndEveryNamedColourExactly)
{
    const TPalette& palette = HostPalette();
    ASSERT_EQ(palette.GetNumEntries(), 256);
    EXPECT_EQ(HostPaletteColors()[0], RGB(0, 0, 0));
    EXPECT_EQ(HostPaletteColors()[255], RGB(255, 255, 255));
    EXPECT_EQ(HostPaletteColors()[kHostPaletteDaySky], RGB(0, 0, 0x60));
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(0, 0, 0x60)), UINT(kHostPaletteDaySky));

    const TColor named[] = {TColor::Black,      TColor::White,       TColor::LtRed,
                            TColor::LtGreen,    TColor::LtBlue,      TColor::LtYellow,
                            TColor::LtMagenta,  TColor::LtCyan,      TColor::Gray,
                            TColor::LtGray,     TColor(255, 128, 0), TColor(0, 0, 0x60),
                            TColor(255, 0, 255)};
    for (TColor c : named) {
        UINT index = palette.GetNearestPaletteIndex(c);
        EXPECT_EQ(HostPaletteColors()[index], c.GetValue())
            << "colour " << std::hex << c.GetValue();
    }
}

TEST(HostPalette, EveryGreyOfAStarHasAGreyWithinOneLevel)
{
    std::set<UINT> used;
    for (int level = 0; level <= 255; ++level) {
        UINT index = HostPalette().GetNearestPaletteIndex(TColor(level, level, level));
        COLORREF c = HostPaletteColors()[index];
        EXPECT_EQ(GetRValue(c), GetGValue(c)) << "level " << level;
        EXPECT_EQ(GetGValue(c), GetBValue(c)) << "level " << level;
        EXPECT_LE(std::abs(GetRValue(c) - level), 1) << "level " << level;
        used.insert(index);
    }
    EXPECT_GE(used.size(), 180u) << "a long run of distinct greys";
}

TEST(TPalette, NearestEntryTakesTheLowestIndexAmongEquals)
{
    PALETTEENTRY entries[] = {{0, 0, 0, 0}, {100, 0, 0, 0}, {100, 0, 0, 0}, {0, 0, 200, 0}};
    TPalette palette(entries, 4);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(90, 0, 0)), 1u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(0, 10, 150)), 3u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(20, 0, 20)), 0u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor::PaletteIndex(2)), 2u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(PALETTERGB(0, 0, 190))), 3u);
    EXPECT_EQ(GetNearestPaletteIndex(palette, RGB(99, 1, 1)), 1u);
}

} // namespace
