// The Moon on the map: the picture of its phase range, lit on the side its phase names,
// inverted on paper, half a degree across.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/ModuleResources.h"
#include "platform/TDib.h"
#include "projection/Transformation.h"
#include "skyview/SkyCanvas.h"
#include "solar/MoonView.h"
#include "solar/PlanetCatalogue.h"

namespace {

std::unique_ptr<TDib> ModulePicture(const char* name)
{
    return std::make_unique<TDib>(GetModuleInstance(), TResId(name));
}

// Brightness of a column range of a picture: the sum of red, green and blue of its pixels.
long Brightness(const TDib& dib, int fromX, int toX)
{
    long sum = 0;
    for (int y = 0; y < dib.Height(); ++y) {
        for (int x = fromX; x < toX; ++x) {
            const TColor color = dib.GetPixelColor(x, y);
            sum += color.Red() + color.Green() + color.Blue();
        }
    }
    return sum;
}

// The planet catalogue at a time, and a 128-pixel sky with a field of 1 degree centred on the
// Moon, in which half a degree is 32 pixels.
class MoonViewOnTheSky : public ::testing::Test
{
protected:
    MoonViewOnTheSky() : Canvas(128, 128) { LookAt(51544.5); } // phase 302.94, a last quarter

    void LookAt(double mjd)
    {
        Planets.SetTime(AstroTime(mjd, false));
        View = std::make_unique<Transformation>(Canvas.GetDC(), TRect(0, 0, 128, 128),
                                                Moon->GetPosition(), 1.0, PolarCoord(0.0, 90.0));
        Canvas.Parameters.pTransformation = View.get();
        TPoint point;
        View->Translate(Moon->GetPosition(), point);
        Moon->SetDisplayPoint(point);
    }

    PlanetCatalogue Planets;
    MoonView* Moon = static_cast<MoonView*>(Planets.GetView(PlanetCatalogue::kMoonPlace));
    SkyCanvas Canvas;
    std::unique_ptr<Transformation> View;
};

} // namespace

TEST(MoonViewPhase, EachRangeHasItsPictureWithTheUpperEndIncluded)
{
    const std::pair<double, const char*> cases[] = {
        {0.0, "MOON1"},    {45.0, "MOON1"},    {45.001, "MOON2"}, {135.0, "MOON2"},
        {135.5, "MOON3"},  {225.0, "MOON3"},   {225.1, "MOON4"},  {315.0, "MOON4"},
        {315.01, "MOON5"}, {359.999, "MOON5"}, {360.0, "MOON5"},
    };
    for (const auto& [phase, picture] : cases) {
        EXPECT_STREQ(MoonView::GetPhaseBitmapName(DegreeAngle(phase)), picture) << phase;
    }
}

TEST(MoonViewPhase, PicturesAreLitOnTheSideTheirPhaseNames)
{
    // Brightness of the left and right thirds of each picture.
    for (const auto& [name, litRight] :
         {std::pair{"MOON1", true}, {"MOON2", true}, {"MOON4", false}, {"MOON5", false}}) {
        auto dib = ModulePicture(name);
        ASSERT_TRUE(dib->IsOK()) << name;
        const long left = Brightness(*dib, 0, 16), right = Brightness(*dib, 33, 49);
        EXPECT_GT(litRight ? right : left, 2 * (litRight ? left : right)) << name;
    }
}

TEST_F(MoonViewOnTheSky, TakesANewPictureOnlyWhenThePhaseChanges)
{
    PlanetCatalogue fresh;
    EXPECT_EQ(
        static_cast<const MoonView*>(fresh.GetView(PlanetCatalogue::kMoonPlace))->GetShownPhase(),
        DegreeAngle(180.0));

    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_NEAR(Moon->GetShownPhase().GetDegrees(), 302.94, 0.005);
    const TDib* shown = Moon->GetPhaseDib();
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(Moon->GetPhaseDib(), shown);

    // Full Moon 2000 January 21, 4h 40m UT, the full disc. A full Moon shines at about -12.7
    // (Allen's Astrophysical Quantities); the map gives the Moon -12 at every phase.
    LookAt(51564.0 + (4.0 + 40.0 / 60.0) / 24.0);
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_STREQ(MoonView::GetPhaseBitmapName(Moon->GetShownPhase()), "MOON3");
    EXPECT_EQ(Moon->GetMagnitude(), -12.0);
}

TEST_F(MoonViewOnTheSky, HalfADegreeAcrossAndLitOnTheSideOfItsPhase)
{
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    // sin(0.5) / sin(1) of 64 pixels.
    EXPECT_EQ(Moon->GetDisplayRect(Canvas.Parameters), TRect(48, 48, 80, 80));

    // The last quarter is lit on the left: the left half of the disc on the map is bright, the
    // right half stays near the black of the sky. A half disc of radius 15 has some 350 pixels.
    unsigned brightLeft = 0, brightRight = 0;
    for (int y = 48; y < 80; ++y) {
        for (int x = 48; x < 64; ++x) {
            brightLeft += GetRValue(HostPaletteColors()[Canvas.IndexAt(x, y)]) > 100;
            brightRight += GetRValue(HostPaletteColors()[Canvas.IndexAt(x + 16, y)]) > 100;
        }
    }
    EXPECT_GT(brightLeft, 250u);
    EXPECT_LT(brightRight, brightLeft / 4);
}

TEST_F(MoonViewOnTheSky, PrintingInvertsThePictureAndTheScreenTakesItBack)
{
    // On the page the sky round the disc is white and the lit limb dark; back on the screen
    // the sky is black again.
    Canvas.Parameters.SetPrinting(true);
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(Canvas.IndexAt(48, 48), unsigned(kHostPaletteWhite));
    EXPECT_LT(GetRValue(HostPaletteColors()[Canvas.IndexAt(52, 64)]), 100);
    Canvas.Parameters.SetPrinting(false);
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(Canvas.IndexAt(48, 48), 0u);
    EXPECT_GT(GetRValue(HostPaletteColors()[Canvas.IndexAt(52, 64)]), 100);
}
