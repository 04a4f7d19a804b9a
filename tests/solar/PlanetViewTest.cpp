// A body as a sky object: seen from its origin, hidden when it is the origin, drawn as a star
// of its magnitude, or as the Sun's white disc, and labelled with its name.
#include <gtest/gtest.h>

#include <cmath>

#include "catalogues/Star.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"
#include "solar/CometView.h"
#include "solar/EarthView.h"
#include "solar/MarsView.h"
#include "solar/SunView.h"

namespace {

// An observer from which every body has one chosen magnitude.
class FixedMagnitudeOrigin : public SolarSystemObject
{
public:
    explicit FixedMagnitudeOrigin(double magnitude) : Magnitude(magnitude) {}
    double GetMagnitudeOf(SolarSystemObject&) override { return Magnitude; }
    std::string GetName() override { return "observer"; }

private:
    double Magnitude;
};

// A grey's palette index on the canvas.
unsigned GreyIndex(const SkyCanvas& canvas, unsigned level)
{
    TColor color;
    unsigned index = 0;
    canvas.Parameters.GetColorFromIntensity(level, color, index);
    return index;
}

} // namespace

TEST(PlanetView, BrightPlanetIsARayStarOfItsMagnitude)
{
    SkyCanvas canvas(16, 16);
    FixedMagnitudeOrigin origin(2.5); // size 3 and full white at 96 dpi
    MarsView mars;
    mars.SetOrigin(origin);
    mars.SetDisplayPoint(TPoint(8, 8));
    mars.Draw(canvas.GetDC(), canvas.Parameters);
    EXPECT_EQ(canvas.Picture(TRect(6, 6, 11, 11)), Rows({
                                                       ".....",
                                                       ".###.",
                                                       ".#.#.",
                                                       ".###.",
                                                       ".....",
                                                   }));
}

TEST(PlanetView, FaintPlanetIsTwoGreyPixels)
{
    SkyCanvas canvas(16, 16);
    FixedMagnitudeOrigin origin(5.0); // size 2, intensity 107
    MarsView mars;
    mars.SetOrigin(origin);
    mars.SetDisplayPoint(TPoint(8, 8));
    mars.Draw(canvas.GetDC(), canvas.Parameters);
    EXPECT_EQ(canvas.Picture(TRect(6, 6, 11, 11), {{GreyIndex(canvas, 107), 'g'}}), Rows({
                                                                                        ".....",
                                                                                        ".....",
                                                                                        "..gg.",
                                                                                        ".....",
                                                                                        ".....",
                                                                                    }));
}

TEST(PlanetView, PlanetLooksLikeAStarOfTheSameMagnitudeAnywhere)
{
    // The same magnitudes through a catalogue star and through a planet, near an edge too,
    // where both leave the fast road.
    for (double magnitude : {-2.0, 0.5, 1.7, 3.4, 4.6, 5.9}) {
        for (TPoint point : {TPoint(12, 12), TPoint(1, 22)}) {
            SCOPED_TRACE(magnitude);
            SkyCanvas planetSky(24, 24);
            SkyCanvas starSky(24, 24);
            FixedMagnitudeOrigin origin(magnitude);
            MarsView mars;
            mars.SetOrigin(origin);
            mars.SetDisplayPoint(point);
            mars.Draw(planetSky.GetDC(), planetSky.Parameters);
            Star star(1, magnitude, PolarCoord(0.0, 0.0));
            star.SetDisplayPoint(point);
            star.Draw(starSky.GetDC(), starSky.Parameters);
            EXPECT_EQ(planetSky.Picture(TRect(0, 0, 24, 24)), starSky.Picture(TRect(0, 0, 24, 24)));
        }
    }
}

TEST(PlanetView, SunIsAWhiteDiscTwelvePixelsAcrossOnScreenAndPaper)
{
    for (bool printing : {false, true}) {
        SCOPED_TRACE(printing);
        SkyCanvas canvas(32, 32);
        canvas.Parameters.SetPrinting(printing);
        const TColor brushBefore = canvas.GetDC().GetBrush().GetColor();
        const TColor penBefore = canvas.GetDC().GetPen().GetColor();
        SunView sun;
        sun.SetDisplayPoint(TPoint(16, 16));
        sun.Draw(canvas.GetDC(), canvas.Parameters);
        // The rounded rectangle from (10, 10) to (22, 22), its corner ellipses larger than
        // itself: a disc.
        EXPECT_EQ(canvas.Picture(TRect(9, 9, 23, 23)), Rows({
                                                           "..............",
                                                           ".....####.....",
                                                           "...########...",
                                                           "..##########..",
                                                           "..##########..",
                                                           ".############.",
                                                           ".############.",
                                                           ".############.",
                                                           ".############.",
                                                           "..##########..",
                                                           "..##########..",
                                                           "...########...",
                                                           ".....####.....",
                                                           "..............",
                                                       }));
        // The pen and brush go back to what the surface had before.
        EXPECT_EQ(canvas.GetDC().GetBrush().GetColor(), brushBefore);
        EXPECT_EQ(canvas.GetDC().GetPen().GetColor(), penBefore);
    }
}

TEST(PlanetView, BodyOfTheOriginIsNotVisible)
{
    EarthView earth;
    MarsView mars;
    EXPECT_TRUE(mars.IsVisible()); // no origin yet
    mars.SetOrigin(earth.GetSolarSystemObject());
    earth.SetOrigin(earth.GetSolarSystemObject());
    EXPECT_TRUE(mars.IsVisible());
    EXPECT_FALSE(earth.IsVisible());
}

TEST(PlanetView, WithoutAnOriginThereIsNoPlaceAndNoMagnitude)
{
    MarsView mars;
    EXPECT_EQ(mars.GetPosition(), PolarCoord(0.0, 0.0));
    EXPECT_EQ(mars.GetMagnitude(), 99.0);
    EXPECT_EQ(mars.GetDistance(), 0.0);
    SkyCanvas canvas(16, 16);
    mars.SetDisplayPoint(TPoint(8, 8));
    mars.Draw(canvas.GetDC(), canvas.Parameters); // a magnitude of 99 is the faintest grey
    EXPECT_EQ(canvas.Picture(TRect(8, 8, 10, 9), {{GreyIndex(canvas, 70), 'g'}}), "gg\n");
}

TEST(PlanetView, PlaceAndDistanceAreAskedOfTheOrigin)
{
    EarthView earth;
    SunView sun;
    sun.SetOrigin(earth.GetSolarSystemObject());
    const AstroTime epoch(51544.5, false); // 2000 January 1, 12h
    earth.SetTime(epoch);
    sun.SetTime(epoch);
    // The Sun at the epoch by the low-accuracy solar formulae of Meeus (Astronomical
    // Algorithms, chapter 25, good to 0.01 degree): apparent right ascension 281.283,
    // declination -23.033 degrees, distance 0.98331 AU.
    EXPECT_NEAR(sun.GetPosition().GetRA().GetDegrees(), 281.283, 0.01);
    EXPECT_NEAR(sun.GetPosition().GetDec().GetDegrees(), -23.033, 0.01);
    EXPECT_NEAR(sun.GetDistance(), 0.98331, 0.0001);
}

namespace {

// A surface of a printer at 600 dots per inch.
class PrinterPage
{
public:
    PrinterPage() : Page(8, 8, PixelFormat::Rgb32), Dc(Page, Caps()) {}
    static DeviceCaps Caps()
    {
        DeviceCaps caps;
        caps.LogPixelsX = caps.LogPixelsY = 600;
        return caps;
    }
    Surface Page;
    TDC Dc;
};

} // namespace

TEST(PlanetViewLabel, NameInTimesNewRomanSharedByAllBodiesAndFollowingThePoint)
{
    SkyCanvas canvas(16, 16);
    MarsView mars;
    SunView sun;
    mars.SetDisplayPoint(TPoint(3, 4));
    Label* label = mars.GetLabel(canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "Mars");
    EXPECT_EQ(label->GetObject(), &mars);
    EXPECT_EQ(label->GetObjectPoint(), TPoint(3, 4));
    EXPECT_EQ(label->GetColor(), TColor::White);
    EXPECT_EQ(label->GetFontRef()->GetFont().GetFaceName(), "Times New Roman");
    EXPECT_EQ(label->GetFontRef()->GetFont().GetHeight(), 15); // 96 * 0.16 = 15.36
    EXPECT_EQ(label->GetFontRef()->GetFont().GetLogFont().lfCharSet, DEFAULT_CHARSET);

    EXPECT_EQ(mars.GetLabel(canvas.Parameters), label);
    EXPECT_EQ(sun.GetLabel(canvas.Parameters)->GetFontRef(), label->GetFontRef());
    mars.SetDisplayPoint(TPoint(9, 1));
    EXPECT_EQ(label->GetObjectPoint(), TPoint(9, 1));
}

TEST(PlanetViewLabel, PrinterOfAnotherResolutionRebuildsBlackAndTheScreenRebuildsAgain)
{
    SkyCanvas canvas(16, 16);
    PrinterPage printer;
    MarsView mars;
    EarthView earth;
    ASSERT_NE(mars.GetLabel(canvas.Parameters), nullptr);
    ASSERT_NE(earth.GetLabel(canvas.Parameters), nullptr);

    DisplayParameters printing(canvas.Parameters);
    printing.pDC = &printer.Dc;
    printing.SetPrinting(true);
    const Label* paper = mars.GetLabel(printing);
    EXPECT_EQ(paper->GetColor(), TColor::Black);
    EXPECT_EQ(paper->GetFontRef()->GetFont().GetHeight(), 96); // 600 * 0.16
    // The Earth's screen label holds the old font and is made anew in the new one.
    const Label* earthOnPaper = earth.GetLabel(printing);
    EXPECT_EQ(earthOnPaper->GetFontRef(), paper->GetFontRef());
    EXPECT_EQ(earthOnPaper->GetColor(), TColor::Black);

    const Label* screen = mars.GetLabel(canvas.Parameters);
    EXPECT_EQ(screen->GetColor(), TColor::White);
    EXPECT_EQ(screen->GetFontRef()->GetFont().GetHeight(), 15);
    EXPECT_EQ(earth.GetLabel(canvas.Parameters)->GetFontRef(), screen->GetFontRef());
    // Once rebuilt, the labels stay.
    EXPECT_EQ(mars.GetLabel(canvas.Parameters), screen);

    DisplayParameters noSurface(canvas.Parameters);
    noSurface.pDC = nullptr;
    EXPECT_EQ(mars.GetLabel(noSurface), nullptr);
}

TEST(PlanetViewLabel, CometIsAlwaysLabelledWithItsName)
{
    SkyCanvas canvas(16, 16);
    CometView comet(7, "Hale-Bopp", AstroTime(50539.0, false), 0.914, 0.995, 89.4, 282.5, 130.6);
    comet.SetShowLabel(false);
    EXPECT_TRUE(comet.IsLabeled(canvas.Parameters));
    ASSERT_NE(comet.GetLabel(canvas.Parameters), nullptr);
    EXPECT_EQ(comet.GetLabel(canvas.Parameters)->GetText(), "Hale-Bopp");

    MarsView mars;
    EXPECT_FALSE(mars.IsLabeled(canvas.Parameters));
    mars.SetShowLabel(true);
    EXPECT_TRUE(mars.IsLabeled(canvas.Parameters));
}
