// The Moon on the map: the picture of its phase range, inverted on paper, sized by half a
// degree, and the five pictures themselves as the module holds them.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "catalogues/AstroList.h"
#include "platform/ModuleResources.h"
#include "platform/TDib.h"
#include "projection/Transformation.h"
#include "skyview/Label.h"
#include "skyview/LabelManager.h"
#include "skyview/SkyCanvas.h"
#include "solar/MoonView.h"
#include "solar/PlanetCatalogue.h"

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

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

bool SameColorTables(const TDib& a, const TDib& b)
{
    if (a.NumColors() != b.NumColors()) {
        return false;
    }
    for (int i = 0; i < a.NumColors(); ++i) {
        if (a.GetColor(i) != b.GetColor(i)) {
            return false;
        }
    }
    return true;
}

bool SamePixels(const TDib& a, const TDib& b)
{
    if (a.Size() != b.Size()) {
        return false;
    }
    for (int y = 0; y < a.Height(); ++y) {
        for (int x = 0; x < a.Width(); ++x) {
            if (a.GetPixelIndex(x, y) != b.GetPixelIndex(x, y)) {
                return false;
            }
        }
    }
    return true;
}

// The planet catalogue at the epoch (phase 302.94, a last quarter), and a 128-pixel sky with a
// field of 1 degree centred on the Moon, in which half a degree is 32 pixels.
class MoonViewOnTheSky : public ::testing::Test
{
protected:
    MoonViewOnTheSky() : Canvas(128, 128)
    {
        Planets.SetTime(AtCenturies(0.0));
        Moon = static_cast<MoonView*>(Planets.GetView(PlanetCatalogue::kMoonPlace));
        View = std::make_unique<Transformation>(Canvas.GetDC(), TRect(0, 0, 128, 128),
                                                Moon->GetPosition(), 1.0, PolarCoord(0.0, 90.0));
        Canvas.Parameters.pTransformation = View.get();
        TPoint point;
        View->Translate(Moon->GetPosition(), point);
        Moon->SetDisplayPoint(point);
    }

    PlanetCatalogue Planets;
    MoonView* Moon = nullptr;
    SkyCanvas Canvas;
    std::unique_ptr<Transformation> View;
};

} // namespace

TEST(MoonViewPhase, EachRangeHasItsPictureWithTheUpperEndIncluded)
{
    struct Case
    {
        double Phase;
        const char* Picture;
    };
    const Case cases[] = {
        {0.0, "MOON1"},     {45.0, "MOON1"},   {45.001, "MOON2"}, {90.0, "MOON2"},
        {135.0, "MOON2"},   {135.5, "MOON3"},  {180.0, "MOON3"},  {225.0, "MOON3"},
        {225.1, "MOON4"},   {302.94, "MOON4"}, {315.0, "MOON4"},  {315.01, "MOON5"},
        {359.999, "MOON5"}, {360.0, "MOON5"},
    };
    for (const Case& c : cases) {
        EXPECT_STREQ(MoonView::GetPhaseBitmapName(DegreeAngle(c.Phase)), c.Picture) << c.Phase;
    }
}

TEST(MoonViewPhase, PicturesAreSmallEightBitDiscsOnBlackWithTablesOfTheirOwn)
{
    for (const char* name : {"MOON1", "MOON2", "MOON3", "MOON4", "MOON5"}) {
        SCOPED_TRACE(name);
        auto dib = ModulePicture(name);
        ASSERT_TRUE(dib->IsOK());
        EXPECT_EQ(dib->Size(), TSize(49, 49));
        EXPECT_EQ(dib->BitsPixel(), 8);
        EXPECT_GE(dib->NumColors(), 172);
        EXPECT_LE(dib->NumColors(), 227);
        for (TPoint corner : {TPoint(0, 0), TPoint(48, 0), TPoint(0, 48), TPoint(48, 48)}) {
            EXPECT_EQ(dib->GetPixelColor(corner.x, corner.y), TColor::Black);
        }
    }
}

TEST(MoonViewPhase, PicturesAreLitOnTheSideTheirPhaseNames)
{
    // Left and right thirds of each picture.
    auto left = [](const TDib& dib) { return Brightness(dib, 0, 16); };
    auto right = [](const TDib& dib) { return Brightness(dib, 33, 49); };
    auto crescentRight = ModulePicture("MOON1");
    auto firstQuarter = ModulePicture("MOON2");
    auto full = ModulePicture("MOON3");
    auto lastQuarter = ModulePicture("MOON4");
    auto crescentLeft = ModulePicture("MOON5");

    EXPECT_GT(right(*firstQuarter), 4 * left(*firstQuarter));
    EXPECT_GT(left(*lastQuarter), 4 * right(*lastQuarter));
    EXPECT_GT(right(*crescentRight), 2 * left(*crescentRight));
    EXPECT_GT(left(*crescentLeft), 2 * right(*crescentLeft));
    // The crescents show less of the Moon than the quarters, the quarters less than the full.
    const long fullLight = Brightness(*full, 0, 49);
    EXPECT_LT(Brightness(*crescentRight, 0, 49), Brightness(*firstQuarter, 0, 49));
    EXPECT_LT(Brightness(*firstQuarter, 0, 49), fullLight);
    EXPECT_LT(Brightness(*lastQuarter, 0, 49), fullLight);
    EXPECT_LT(Brightness(*crescentLeft, 0, 49), Brightness(*lastQuarter, 0, 49));
}

TEST_F(MoonViewOnTheSky, StartsWithTheFullMoonAndTakesThePictureOfThePhaseAtTheFirstDraw)
{
    PlanetCatalogue fresh;
    const auto* moon = static_cast<const MoonView*>(fresh.GetView(PlanetCatalogue::kMoonPlace));
    EXPECT_EQ(moon->GetShownPhase(), DegreeAngle(180.0));
    ASSERT_NE(moon->GetPhaseDib(), nullptr);
    EXPECT_TRUE(SamePixels(*moon->GetPhaseDib(), *ModulePicture("MOON3")));

    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_NEAR(Moon->GetShownPhase().GetDegrees(), 302.94, 0.005);
    EXPECT_TRUE(SamePixels(*Moon->GetPhaseDib(), *ModulePicture("MOON4")));
    EXPECT_TRUE(SameColorTables(*Moon->GetPhaseDib(), *ModulePicture("MOON4")));
}

TEST_F(MoonViewOnTheSky, HalfADegreeAcrossCentredOnItsPoint)
{
    const TPoint point = Moon->GetDisplayPoint();
    EXPECT_EQ(point, TPoint(64, 64));
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    // sin(0.5) / sin(1) of 64 pixels.
    EXPECT_EQ(Moon->GetBitmap().GetBitmapSize(), TSize(32, 32));
    EXPECT_TRUE(Moon->HasDisplayRect());
    EXPECT_EQ(Moon->GetDisplayRect(Canvas.Parameters), TRect(48, 48, 80, 80));

    // The last quarter is lit on the left: the left half of the disc on the map is bright, the
    // right half stays near the black of the sky.
    auto bright = [&](int x, int y) {
        return GetRValue(HostPaletteColors()[Canvas.IndexAt(x, y)]) > 100 ? 1u : 0u;
    };
    unsigned brightLeft = 0;
    unsigned brightRight = 0;
    for (int y = 48; y < 80; ++y) {
        for (int x = 48; x < 64; ++x) {
            brightLeft += bright(x, y);
            brightRight += bright(x + 16, y);
        }
    }
    // A half disc of radius 15 has some 350 pixels.
    EXPECT_GT(brightLeft, 250u);
    EXPECT_LT(brightRight, brightLeft / 4);
}

TEST_F(MoonViewOnTheSky, PrintingInvertsThePictureAndTheScreenTakesItBack)
{
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    auto original = ModulePicture("MOON4");

    Canvas.Parameters.SetPrinting(true);
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_TRUE(Moon->IsShownForPrinting());
    const TDib* printed = Moon->GetPhaseDib();
    ASSERT_EQ(printed->NumColors(), original->NumColors());
    for (int i = 0; i < original->NumColors(); ++i) {
        const TColor was = original->GetColor(i);
        EXPECT_EQ(printed->GetColor(i),
                  TColor(255 - was.Red(), 255 - was.Green(), 255 - was.Blue()))
            << i;
    }
    EXPECT_TRUE(SamePixels(*printed, *original));
    // The sky round the disc is now white on the page.
    EXPECT_EQ(Canvas.IndexAt(48, 48), unsigned(kHostPaletteWhite));

    Canvas.Parameters.SetPrinting(false);
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_FALSE(Moon->IsShownForPrinting());
    EXPECT_TRUE(SameColorTables(*Moon->GetPhaseDib(), *original));
    EXPECT_EQ(Canvas.IndexAt(48, 48), 0u);
}

TEST_F(MoonViewOnTheSky, NewPictureOnlyWhenThePhaseChanges)
{
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    const DegreeAngle first = Moon->GetShownPhase();
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(Moon->GetShownPhase(), first);

    // Ten days on, some 12 degrees a day: past the new moon, some 65 degrees from the Sun.
    Planets.SetTime(AtCenturies(10.0 / 36525.0));
    Moon->Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_FALSE(Moon->GetShownPhase() == first);
    EXPECT_STREQ(MoonView::GetPhaseBitmapName(Moon->GetShownPhase()), "MOON2");
    EXPECT_TRUE(SamePixels(*Moon->GetPhaseDib(), *ModulePicture("MOON2")));
}

TEST_F(MoonViewOnTheSky, PlaceFromTheEarthAndPointInTheBitmap)
{
    // The display point reaches the bitmap too.
    Moon->SetDisplayPoint(TPoint(30, 40));
    EXPECT_EQ(Moon->GetBitmap().GetDisplayPoint(), TPoint(30, 40));
    // The apparent place at the epoch.
    EXPECT_NEAR(Moon->GetPosition().GetRA().GetDegrees(), 222.4406, 0.0001);
    EXPECT_NEAR(Moon->GetPosition().GetDec().GetDegrees(), -10.8974, 0.0001);
}

TEST(MoonViewOrientation, AngleTurnsThePicturesNorthTowardsThePoleOfTheView)
{
    SkyCanvas canvas(64, 64);
    const PolarCoord moon(0.0, 0.0);
    const PolarCoord northOfMoon(0.0, 5.0);
    struct Case
    {
        PolarCoord Zenith;
        TPoint North; // where the view shows a point north of the Moon
        double Angle; // a positive angle turns a picture counter-clockwise
    };
    const Case cases[] = {
        {PolarCoord(0.0, 90.0), TPoint(32, 16), 0.0},   // north up: no turn
        {PolarCoord(90.0, 0.0), TPoint(48, 32), 270.0}, // east up: north to the right
        {PolarCoord(270.0, 0.0), TPoint(16, 32), 90.0}, // west up: north to the left
    };
    for (const Case& c : cases) {
        Transformation view(canvas.GetDC(), TRect(0, 0, 64, 64), moon, 10.0, c.Zenith);
        TPoint north;
        view.Translate(northOfMoon, north);
        EXPECT_EQ(north, c.North);
        EXPECT_NEAR(MoonView::GetOrientationAngle(view, moon).GetDegrees(), c.Angle, 1e-9);
    }
}

TEST_F(MoonViewOnTheSky, LabelStandsClearOfThePicture)
{
    // The picture is 32 pixels across: the label's first place is 3 + 16 pixels right of the
    // Moon's point, and the picture itself is kept clear of other labels.
    AstroList objects(10, 10);
    objects.Add(Moon);
    LabelManager labels;
    labels.LoadLabels(Canvas.Parameters, objects);
    labels.Arrange(Canvas.Parameters);
    ASSERT_EQ(labels.size(), 1u);
    ASSERT_EQ(labels.GetObjectsToAvoid().GetCount(), 1u);
    EXPECT_EQ(labels.GetObjectsToAvoid()[0], Moon);
    EXPECT_EQ(labels[0]->GetText(), "Moon");
    // Times New Roman 15 pixels high: the text is 15 rows, its top 7 above the point.
    EXPECT_EQ(labels[0]->GetDisplayRect().TopLeft(), TPoint(64 + 19, 64 - 7));
    EXPECT_EQ(labels[0]->GetDisplayRect().Height(), 15);

    // The label moves with the Moon's point.
    Moon->SetDisplayPoint(TPoint(60, 70));
    EXPECT_EQ(Moon->GetLabel(Canvas.Parameters)->GetObjectPoint(), TPoint(60, 70));
    EXPECT_EQ(Moon->GetBitmap().GetDisplayPoint(), TPoint(60, 70));
}
