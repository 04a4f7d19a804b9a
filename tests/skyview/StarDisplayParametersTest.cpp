#include <gtest/gtest.h>

#include <cmath>

#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/StarDisplayParameters.h"
#include "state/CmdLineStateContainer.h"

namespace {

// Parameters worked out for a surface of a given resolution.
class StarDisplayParametersTest : public ::testing::Test
{
protected:
    StarDisplayParametersTest() : Paper(1, 1, PixelFormat::Rgb32) {}

    StarDisplayParameters For(int dotsPerInch, StarDisplayParameters parameters = {})
    {
        DeviceCaps caps;
        caps.LogPixelsX = caps.LogPixelsY = dotsPerInch;
        TDC dc(Paper, caps);
        parameters.CalculateIntensityScale();
        parameters.CalculateSizeScale(&dc);
        return parameters;
    }

    Surface Paper;
};

} // namespace

TEST_F(StarDisplayParametersTest, DefaultsOnAScreenOf96DotsPerInch)
{
    StarDisplayParameters p = For(96);
    EXPECT_EQ(p.SizePixels.Lower, 2u);
    EXPECT_EQ(p.SizePixels.Upper, 10u);
    EXPECT_DOUBLE_EQ(p.SizeScale, 2.0);
    EXPECT_NEAR(p.IntensityScale, std::cbrt(255.0 / 70.0), 1e-12);

    struct Row
    {
        double Magnitude;
        unsigned Size;
        unsigned Intensity;
    };
    const Row table[] = {
        {-1, 10, 255}, {0, 8, 255}, {1, 6, 255}, {2, 4, 255}, {3, 2, 255},
        {4, 2, 165},   {5, 2, 107}, {6, 2, 70},  {8, 2, 70},
    };
    for (const Row& row : table) {
        EXPECT_EQ(p.GetSizeFromMagnitude(row.Magnitude), row.Size) << row.Magnitude;
        EXPECT_EQ(p.GetIntensityFromMagnitude(row.Magnitude), row.Intensity) << row.Magnitude;
    }
    // Sizes between whole pixels are rounded half up.
    EXPECT_EQ(p.GetSizeFromMagnitude(2.75), 3u);
    EXPECT_EQ(p.GetSizeFromMagnitude(2.8), 2u);
    EXPECT_EQ(p.GetSizeFromMagnitude(-5.0), 10u);
}

TEST_F(StarDisplayParametersTest, PrinterResolutionGivesLargerPixelSizes)
{
    StarDisplayParameters p = For(300);
    EXPECT_EQ(p.SizePixels.Lower, 3u);
    EXPECT_EQ(p.SizePixels.Upper, 30u);
    EXPECT_DOUBLE_EQ(p.SizeScale, 27.0 / 4.0);
    EXPECT_EQ(p.GetSizeFromMagnitude(-1.0), 30u);
}

TEST_F(StarDisplayParametersTest, PrintingInvertsIntensities)
{
    StarDisplayParameters printing;
    printing.SetPrinting(true);
    StarDisplayParameters p = For(96, printing);
    EXPECT_EQ(p.GetIntensityFromMagnitude(3.0), 0u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(1.0), 0u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(6.0), 185u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(4.0), 255u - 165u);
}

TEST_F(StarDisplayParametersTest, ReversedSizeRangeGivesEveryStarTheLowerSize)
{
    StarDisplayParameters reversed;
    reversed.SizeRange = {0.1, 0.01};
    StarDisplayParameters p = For(96, reversed);
    EXPECT_EQ(p.SizePixels.Lower, 10u);
    EXPECT_EQ(p.SizePixels.Upper, 10u);
    for (double m : {-2.0, 0.0, 3.0, 7.0}) {
        EXPECT_EQ(p.GetSizeFromMagnitude(m), 10u) << m;
    }
}

TEST_F(StarDisplayParametersTest, NarrowSizeMagnitudeRangeHasNoScale)
{
    StarDisplayParameters narrow;
    narrow.SizeMagnitudeRange = {2.0, 2.0005};
    StarDisplayParameters p = For(96, narrow);
    EXPECT_EQ(p.SizeScale, 0.0);
    EXPECT_EQ(p.GetSizeFromMagnitude(-1.0), 2u);
    EXPECT_EQ(p.GetSizeFromMagnitude(5.0), 2u);
}

TEST_F(StarDisplayParametersTest, ReversedIntensityMagnitudeRangeMakesAllStarsTheUpperLevel)
{
    StarDisplayParameters reversed;
    reversed.IntensityMagnitudeRange = {6.0, 3.0};
    StarDisplayParameters p = For(96, reversed);
    EXPECT_EQ(p.GetIntensityFromMagnitude(0.0), 255u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(9.0), 255u);
    p.SetPrinting(true);
    EXPECT_EQ(p.GetIntensityFromMagnitude(0.0), 0u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(9.0), 0u);
}

TEST_F(StarDisplayParametersTest, IntensityRangeFromBlackBecomesAStep)
{
    StarDisplayParameters fromBlack;
    fromBlack.IntensityRange = {0, 255};
    StarDisplayParameters p = For(96, fromBlack);
    EXPECT_EQ(p.GetIntensityFromMagnitude(6.0), 0u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(5.9), 255u);
    EXPECT_EQ(p.GetIntensityFromMagnitude(1.0), 255u);
}

TEST_F(StarDisplayParametersTest, WithoutASurfaceTheScreenResolutionApplies)
{
    DeviceCaps saved = ScreenDeviceCaps();
    DeviceCaps retina = saved;
    retina.LogPixelsX = retina.LogPixelsY = 192;
    SetScreenDeviceCaps(retina);
    StarDisplayParameters p;
    p.CalculateSizeScale(nullptr);
    SetScreenDeviceCaps(saved);
    EXPECT_EQ(p.SizePixels.Lower, 2u);
    EXPECT_EQ(p.SizePixels.Upper, 19u);
}

TEST(StarDisplayParametersState, WritesEveryKeyInOrderAndReadsItBack)
{
    StarDisplayParameters p;
    p.LimitingMagnitude = 7.5;
    p.SizeMagnitudeRange = {-2.0, 4.0};
    p.SizeRange = {0.02, 0.15};
    p.IntensityMagnitudeRange = {2.5, 6.5};
    p.IntensityRange = {60, 250};
    p.Shape = StarDisplayParameters::kRoundShape;
    p.LabelType = StarDisplayParameters::kPopularNameLabels;
    p.LimitingMagnitudeLabels = 1.5;
    p.bPrinting = true;

    CmdLineStateContainer writer;
    writer << AstroKey("Stars") << p;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Stars=<Limiting_Magnitude=7.5 Size_Magnitude_Range=<Upper=4 Lower=-2> "
              "Size_Range=<Upper=0.15 Lower=0.02> Intensity_Magnitude_Range=<Upper=6.5 "
              "Lower=2.5> Intensity_Range=<Upper=250 Lower=60> Shape=1 Label_Type=1 "
              "Limiting_Magnitude_Labels=1.5>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    StarDisplayParameters back;
    reader >> AstroKey("Stars") >> back;
    // Every value comes back in its place: written again it gives the same text.
    CmdLineStateContainer again;
    again << AstroKey("Stars") << back;
    EXPECT_EQ(again.GetCmdLine().GetRawText(), writer.GetCmdLine().GetRawText());
    // Printing is no state, and the scales follow what was read.
    EXPECT_FALSE(back.bPrinting);
    EXPECT_NEAR(back.IntensityScale, std::pow(250.0 / 60.0, 1.0 / 4.0), 1e-12);
}

TEST(StarDisplayParametersState, MissingLevelReadsAsZeros)
{
    CmdLineStateContainer empty;
    StarDisplayParameters back;
    empty >> AstroKey("Stars") >> back;
    EXPECT_EQ(back.LimitingMagnitude, 0.0);
    EXPECT_EQ(back.IntensityRange.Upper, 0u);
    EXPECT_EQ(back.Shape, 0u);
    // Sizes of nothing still draw stars of the smallest size.
    EXPECT_EQ(back.GetSizeFromMagnitude(-1.0), 2u);
}

TEST(StarDisplayParameters, LabelTypeNamesAreAppended)
{
    std::vector<std::string> names = {"first"};
    StarDisplayParameters::GetLabelTypeNames(names);
    EXPECT_EQ(names, (std::vector<std::string>{"first", "None", "Popular Name"}));
}

TEST(StarLabelFont, ArialFourteenHundredthsOfAnInchKeptUntilTheResolutionChanges)
{
    Surface surface(4, 4, PixelFormat::Indexed8);
    TDC screen(surface, DeviceCaps{});
    DeviceCaps printerCaps;
    printerCaps.LogPixelsX = printerCaps.LogPixelsY = 600;
    TDC printer(surface, printerCaps);

    FontRef* font = StarDisplayParameters::GetLabelFontRef(screen);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(StarDisplayParameters::GetLabelFontRef(screen), font);
    LOGFONT description{};
    ASSERT_TRUE(font->GetFont().GetObject(description));
    EXPECT_EQ(font->GetFont().GetFaceName(), "Arial");
    EXPECT_EQ(description.lfHeight, 13); // 96 * 0.14 = 13.44
    EXPECT_EQ(description.lfWeight, FW_NORMAL);
    EXPECT_EQ(description.lfCharSet, DEFAULT_CHARSET);
    EXPECT_FALSE(description.lfItalic);
    EXPECT_TRUE(font->OwnsFont());

    // A label holds the screen font across a change of resolution.
    Label held("Vega", TPoint(), *font, TColor::White);
    FontRef* paper = StarDisplayParameters::GetLabelFontRef(printer);
    EXPECT_NE(paper, font);
    EXPECT_EQ(paper->GetFont().GetHeight(), 84);
    held.Measure(screen);
    EXPECT_EQ(held.GetSize(), TSize(29, 14));

    FontRef* again = StarDisplayParameters::GetLabelFontRef(screen);
    EXPECT_NE(again, font);
    EXPECT_EQ(again->GetFont().GetHeight(), 13);
}
