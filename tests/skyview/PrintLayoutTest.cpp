// The layout of a printed star chart: the sky, the band below it with the compass and the
// heading, on pages of several sizes and resolutions, and where the heading's lines go.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/DirectionDrawer.h"
#include "skyview/PrintPageLayout.h"

namespace {

// A device of a given page and resolution; the layout reads nothing else from it.
DeviceCaps Page(int width, int height, int dpi)
{
    DeviceCaps caps;
    caps.LogPixelsX = dpi;
    caps.LogPixelsY = dpi;
    caps.HorzRes = width;
    caps.VertRes = height;
    return caps;
}

// The width of "W" in Arial of a cell height, as the compass measures its letters.
int WidthOfW(int height)
{
    Surface scratch(1, 1, PixelFormat::Rgb32);
    TDC dc(scratch);
    dc.SelectObject(
        TFont("Arial", height, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET));
    return dc.GetTextExtent("W").cx;
}

const std::vector<std::string> kHeading = {
    "9:30:00pm March 3, 1999",         "Tucson",
    "Minimum field Of View: 20\xB0",   "Center RA: 05h 36m 00.0s",
    "Center Dec: + 00\xB0 00' 00.0\"",
};

class PrintLayoutTest : public ::testing::Test
{
protected:
    Surface Scratch{1, 1, PixelFormat::Rgb32};
    DirectionDrawer Compass;
    PrintPageLayout Layout;
};

TEST_F(PrintLayoutTest, AnA4PageAt300DpiKeepsTwoInchesBelowTheSky)
{
    TDC dc(Scratch, Page(2480, 3508, 300));
    Layout.LayOut(dc, Compass);
    // The compass letters are 0.14 inch (42 pixels) high: the compass is the band's height
    // plus a letter's width on either side.
    const int w = WidthOfW(42);
    EXPECT_EQ(Compass.GetTextWidth(), w);

    EXPECT_EQ(Layout.GetPageRect(), TRect(0, 0, 2480, 3508));
    EXPECT_EQ(Layout.GetBandHeight(), 600);
    // A gap of a fifth of an inch between the sky and the band.
    EXPECT_EQ(Layout.GetSkyRect(), TRect(0, 0, 2480, 3508 - 600 - 60));
    EXPECT_EQ(Layout.GetCompassRect(), TRect(0, 3508 - 600, 600 + 2 * w, 3508));
    EXPECT_EQ(Layout.GetTextRect(), TRect(600 + 2 * w + 60, 3508 - 600, 2480, 3508));
    // The compass's disc is as high as the band, less room for its letters.
    Compass.SetRect(Layout.GetCompassRect());
    EXPECT_EQ(Compass.GetCircleRect().Width(), 600 - 2 * Compass.GetTextHeight());
}

TEST_F(PrintLayoutTest, LetterPaperAndLowResolutionsScaleTheSameInches)
{
    TDC letter(Scratch, Page(2550, 3300, 300));
    Layout.LayOut(letter, Compass);
    EXPECT_EQ(Layout.GetSkyRect(), TRect(0, 0, 2550, 3300 - 660));
    EXPECT_EQ(Layout.GetCompassRect().top, 2700);

    // At 72 pixels per inch: a band of 144, gaps of 14 (a fifth of an inch, truncated) and
    // compass letters of 10.
    TDC coarse(Scratch, Page(595, 842, 72));
    Layout.LayOut(coarse, Compass);
    const int w = WidthOfW(10);
    EXPECT_EQ(Layout.GetBandHeight(), 144);
    EXPECT_EQ(Layout.GetSkyRect(), TRect(0, 0, 595, 842 - 144 - 14));
    EXPECT_EQ(Layout.GetCompassRect(), TRect(0, 842 - 144, 144 + 2 * w, 842));
    EXPECT_EQ(Layout.GetTextRect().left, 144 + 2 * w + 14);
}

TEST_F(PrintLayoutTest, OnAPageUnderSixInchesTheBandIsAThird)
{
    // Five inches high at 100 pixels per inch.
    TDC dc(Scratch, Page(850, 500, 100));
    Layout.LayOut(dc, Compass);
    EXPECT_EQ(Layout.GetBandHeight(), 166);
    EXPECT_EQ(Layout.GetSkyRect(), TRect(0, 0, 850, 500 - 166 - 20));
    EXPECT_EQ(Layout.GetCompassRect().top, 500 - 166);
    EXPECT_EQ(Layout.GetCompassRect().Height(), 166);

    // Exactly six inches keeps the two.
    TDC six(Scratch, Page(850, 600, 100));
    Layout.LayOut(six, Compass);
    EXPECT_EQ(Layout.GetBandHeight(), 200);
}

TEST_F(PrintLayoutTest, TheHeadingIsCentredInTheBandWhenItFits)
{
    // A page at 100 dpi: heading letters a sixth of an inch (16 pixels) high.
    Surface paper(850, 1100, PixelFormat::Rgb32);
    TDC dc(paper, Page(850, 1100, 100));
    dc.FillRect(paper.Bounds(), TBrush(TColor::White));
    Layout.LayOut(dc, Compass);
    const TRect text = Layout.GetTextRect();
    const std::vector<TPoint> at = Layout.DrawHeading(dc, kHeading);
    ASSERT_EQ(at.size(), 5u);

    dc.SelectObject(
        TFont("Arial", 16, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET));
    const int line = dc.GetTextExtent(kHeading[0]).cy;
    EXPECT_EQ(at[0].y, text.top + (text.Height() - 5 * line) / 2);
    for (std::size_t i = 0; i < at.size(); ++i) {
        EXPECT_EQ(at[i].y, at[0].y + int(i) * line);
        const int width = dc.GetTextExtent(kHeading[i]).cx;
        EXPECT_EQ(at[i].x, text.left + (text.Width() - width) / 2) << kHeading[i];
    }
    // The lines are black on the page, and nothing lands left of the band's text part.
    int ink = 0;
    for (int y = text.top; y < text.bottom; ++y) {
        for (int x = 0; x < paper.Width(); ++x) {
            if (paper.ColorAt(x, y) != RGB(255, 255, 255)) {
                EXPECT_GE(x, text.left);
                ++ink;
            }
        }
    }
    EXPECT_GT(ink, 100);
}

TEST_F(PrintLayoutTest, HeadingLinesThatDoNotFitStartAtTheTopAndAreCut)
{
    // A page of two inches: the band is 66 pixels, room for four lines of 16 at most.
    Surface paper(850, 200, PixelFormat::Rgb32);
    TDC dc(paper, Page(850, 200, 100));
    dc.FillRect(paper.Bounds(), TBrush(TColor::White));
    Layout.LayOut(dc, Compass);
    const TRect text = Layout.GetTextRect();
    ASSERT_EQ(text.Height(), 66);
    dc.SelectClipRgn(TRegion(text));
    const std::vector<TPoint> at = Layout.DrawHeading(dc, kHeading);
    ASSERT_EQ(at.size(), 5u);
    EXPECT_EQ(at[0].y, text.top);
    EXPECT_GE(at[4].y + 10, text.bottom) << "the last line runs past the band";
    // Nothing of it lands above or below the band.
    for (int x = 0; x < paper.Width(); ++x) {
        for (int y = 0; y < text.top; ++y) {
            ASSERT_EQ(paper.ColorAt(x, y), RGB(255, 255, 255));
        }
    }
    EXPECT_EQ(text.bottom, paper.Height());
}

} // namespace
