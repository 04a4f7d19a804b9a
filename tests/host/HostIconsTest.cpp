// The host's icons: the component's own "PLNT" comes from the module's pictures, is kept once
// for every caller, and unknown names give no picture.
#include <gtest/gtest.h>

#include "host/HostIcons.h"
#include "platform/TDib.h"

TEST(HostIcons, PlanetIconIsASmallPictureWithAColourTableOfItsOwn)
{
    const TDib* icon = GetHostIcon("PLNT", 0);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->Size(), TSize(32, 32));
    EXPECT_EQ(icon->BitsPixel(), 8);
    EXPECT_GT(icon->NumColors(), 2);
    EXPECT_LT(icon->NumColors(), 256);

    // The planet sits in the middle on black; the corners are sky.
    EXPECT_EQ(icon->GetPixelColor(0, 0), TColor::Black);
    EXPECT_EQ(icon->GetPixelColor(31, 31), TColor::Black);
    const TColor middle = icon->GetPixelColor(16, 14);
    EXPECT_GT(middle.Red(), middle.Blue()) << "an ochre planet";
}

TEST(HostIcons, SameIconForEveryCallerWhateverTheCase)
{
    const TDib* icon = GetHostIcon("PLNT", 0);
    EXPECT_EQ(GetHostIcon("plnt", 0), icon);
    EXPECT_EQ(GetHostIcon("Plnt", 1), icon);
}

TEST(HostIcons, UnknownNamesGiveNoPicture)
{
    EXPECT_EQ(GetHostIcon("NOSUCHICON", 0), nullptr);
    EXPECT_EQ(GetHostIcon("", 0), nullptr);
    EXPECT_EQ(GetHostIcon(nullptr, 0), nullptr);
}
