// A body as a sky object: drawn as a star of its magnitude or as the Sun's white disc, safe
// without an origin, and labelled with its name in a font of the device's resolution.
#include <gtest/gtest.h>

#include "catalogues/Star.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"
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

} // namespace

TEST(PlanetView, PlanetLooksLikeAStarOfTheSameMagnitudeAnywhere)
{
    // Bright ray stars and faint grey ones, near an edge too, where drawing leaves the fast
    // road. Without an origin a planet has the faintest magnitude, 99.
    for (double magnitude : {-2.0, 0.5, 1.7, 3.4, 4.6, 5.9, 99.0}) {
        for (TPoint point : {TPoint(12, 12), TPoint(1, 22)}) {
            SCOPED_TRACE(testing::Message() << magnitude << " at " << point.x << ", " << point.y);
            SkyCanvas planetSky(24, 24);
            SkyCanvas starSky(24, 24);
            FixedMagnitudeOrigin origin(magnitude);
            MarsView mars;
            if (magnitude < 99.0) {
                mars.SetOrigin(origin);
            }
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

TEST(PlanetViewLabel, NameInTheFontOfTheDeviceWhiteOnScreenAndBlackOnPaper)
{
    SkyCanvas canvas(16, 16);
    Surface page(8, 8, PixelFormat::Rgb32);
    DeviceCaps printerCaps; // a printer of 600 dots per inch
    printerCaps.LogPixelsX = printerCaps.LogPixelsY = 600;
    TDC printer(page, printerCaps);
    MarsView mars;
    EarthView earth;
    // On the screen: the name in white Times New Roman of 96 * 0.16 = 15.36 pixels, one font
    // for all bodies, and the label follows the body's point.
    mars.SetDisplayPoint(TPoint(3, 4));
    Label* label = mars.GetLabel(canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "Mars");
    EXPECT_EQ(label->GetColor(), TColor::White);
    EXPECT_EQ(label->GetFontRef()->GetFont().GetFaceName(), "Times New Roman");
    EXPECT_EQ(label->GetFontRef()->GetFont().GetHeight(), 15);
    EXPECT_EQ(earth.GetLabel(canvas.Parameters)->GetFontRef(), label->GetFontRef());
    mars.SetDisplayPoint(TPoint(9, 1));
    EXPECT_EQ(label->GetObjectPoint(), TPoint(9, 1));

    DisplayParameters printing(canvas.Parameters);
    printing.pDC = &printer;
    printing.SetPrinting(true);
    const Label* paper = mars.GetLabel(printing);
    EXPECT_EQ(paper->GetColor(), TColor::Black);
    EXPECT_EQ(paper->GetFontRef()->GetFont().GetHeight(), 96); // 600 * 0.16
    // The Earth's screen label holds the old font and is made anew in the new one; back on
    // the screen both are rebuilt once more.
    EXPECT_EQ(earth.GetLabel(printing)->GetFontRef(), paper->GetFontRef());
    const Label* screen = mars.GetLabel(canvas.Parameters);
    EXPECT_EQ(screen->GetColor(), TColor::White);
    EXPECT_EQ(screen->GetFontRef()->GetFont().GetHeight(), 15);
    EXPECT_EQ(earth.GetLabel(canvas.Parameters)->GetFontRef(), screen->GetFontRef());

    DisplayParameters noSurface(canvas.Parameters);
    noSurface.pDC = nullptr;
    EXPECT_EQ(mars.GetLabel(noSurface), nullptr);
}
