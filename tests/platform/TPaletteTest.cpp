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

TEST(TPalette, ChangedEntriesChangeTheAnswer)
{
    PALETTEENTRY entries[] = {{0, 0, 0, 0}, {255, 255, 255, 0}};
    TPalette palette(entries, 2);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(200, 200, 0)), 1u);
    PALETTEENTRY red = {255, 0, 0, 0};
    EXPECT_EQ(palette.SetPaletteEntries(0, 1, &red), 1u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(TColor(200, 200, 0)), 0u);
    EXPECT_EQ(palette.SetPaletteEntries(5, 1, &red), 0u) << "beyond the palette";

    PALETTEENTRY read[2]{};
    EXPECT_EQ(palette.GetPaletteEntries(0, 5, read), 2u);
    EXPECT_EQ(read[0].peRed, 255);
}

TEST(TPalette, CopiesAreIndependentAndHandlesDieWithTheirOwner)
{
    PALETTEENTRY entries[] = {{1, 2, 3, 0}};
    HPALETTE handle;
    {
        TPalette original(entries, 1);
        TPalette copy(original);
        EXPECT_NE(copy.GetHandle(), original.GetHandle());
        PALETTEENTRY other = {9, 9, 9, 0};
        copy.SetPaletteEntries(0, 1, &other);
        PALETTEENTRY read{};
        original.GetPaletteEntries(0, 1, &read);
        EXPECT_EQ(read.peRed, 1);
        handle = original.GetHandle();
        TPalette wrapper(handle);
        EXPECT_TRUE(wrapper.IsOK());
    }
    EXPECT_EQ(GetNearestPaletteIndex(handle, RGB(0, 0, 0)), CLR_INVALID);
    TPalette stale(handle);
    EXPECT_FALSE(stale.IsOK());
    EXPECT_EQ(stale.GetNumEntries(), 0);
}

} // namespace
