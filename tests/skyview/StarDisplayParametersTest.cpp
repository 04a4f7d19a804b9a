// How a magnitude becomes a star's size in pixels and its grey, on the screen and on paper, with
// the defaults and with ranges a user may enter backwards or empty.
#include <gtest/gtest.h>

#include <tuple>

#include "platform/Surface.h"
#include "platform/TDC.h"
#include "skyview/DisplayParameters.h"
#include "skyview/StarDisplayParameters.h"

TEST(StarDisplayParameters, MagnitudesGiveSizesAndGreysEvenFromRangesEnteredBackwardsOrEmpty)
{
    StarDisplayParameters defaults;
    StarDisplayParameters reversedSizes;
    reversedSizes.SizeRange = {0.1, 0.01};
    StarDisplayParameters narrow;
    narrow.SizeMagnitudeRange = {2.0, 2.0005};
    StarDisplayParameters reversedGreys;
    reversedGreys.IntensityMagnitudeRange = {6.0, 3.0};
    StarDisplayParameters fromBlack;
    fromBlack.IntensityRange = {0, 255};
    StarDisplayParameters printing;
    printing.SetPrinting(true);
    StarDisplayParameters printingReversed = reversedGreys;
    printingReversed.SetPrinting(true);

    // Settings, dots per inch, magnitude, size in pixels, grey.
    const std::vector<
        std::tuple<const char*, StarDisplayParameters, int, double, unsigned, unsigned>>
        rows = {
            {"defaults", defaults, 96, 2.8, 2, 255},
            {"defaults", defaults, 96, 5.0, 2, 107},
            {"defaults", defaults, 96, 8.0, 2, 70},
            {"printer", printing, 300, -1.0, 30, 0},
            {"printer", printing, 300, 6.0, 3, 185},
            {"reversed sizes", reversedSizes, 96, -2.0, 10, 255},
            {"narrow size magnitudes", narrow, 96, -1.0, 2, 255},
            {"reversed grey magnitudes", reversedGreys, 96, 9.0, 2, 255},
            {"reversed grey magnitudes, printing", printingReversed, 96, 0.0, 8, 0},
            {"greys from black", fromBlack, 96, 6.0, 2, 0},
            {"greys from black", fromBlack, 96, 5.9, 2, 255},
        };
    for (auto [name, p, dpi, magnitude, size, grey] : rows) {
        Surface paper(1, 1, PixelFormat::Rgb32);
        DeviceCaps caps;
        caps.LogPixelsX = caps.LogPixelsY = dpi;
        TDC dc(paper, caps);
        p.CalculateIntensityScale();
        p.CalculateSizeScale(&dc);
        EXPECT_EQ(p.GetSizeFromMagnitude(magnitude), size) << name << " at " << magnitude;
        EXPECT_EQ(p.GetIntensityFromMagnitude(magnitude), grey) << name << " at " << magnitude;
    }
}

TEST(StarDisplayParameters, AGreyRangeEditedPastWhiteDrawsTheBrightestStarsWhiteNotDark)
{
    // A bookmark or settings file may carry levels above 255; the grey stops at white rather
    // than wrapping round to a dark one.
    DisplayParameters p;
    p.IntensityRange = {50, 400};
    p.CalculateIntensityScale();
    TColor color;
    unsigned index = 0;
    p.GetColorFromIntensity(p.GetIntensityFromMagnitude(-1.0), color, index);
    EXPECT_EQ(color, TColor::White);
}
