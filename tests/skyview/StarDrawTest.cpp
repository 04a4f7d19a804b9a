// A catalogue star drawing itself: its grey comes from its magnitude once and stays with it
// until the display cache is flushed, and the shape setting picks the routine.
#include <gtest/gtest.h>

#include "SkyCanvas.h"
#include "catalogues/Star.h"

namespace {

class StarDrawTest : public ::testing::Test
{
protected:
    StarDrawTest() : Canvas(16, 16) {}

    // A star of magnitude 2.5, size 3 at 96 dpi, at the centre.
    Star MakeStar(double magnitude = 2.5)
    {
        Star star(1, magnitude, PolarCoord(10.0, 10.0));
        star.SetDisplayPoint(TPoint(8, 8));
        return star;
    }
    unsigned GreyIndex(unsigned level)
    {
        TColor color;
        unsigned index = 0;
        Canvas.Parameters.GetColorFromIntensity(level, color, index);
        return index;
    }
    std::string Centre() { return Canvas.Picture(TRect(6, 6, 11, 11)); }

    SkyCanvas Canvas;
};

} // namespace

TEST_F(StarDrawTest, FirstDrawWorksOutTheGreyAndKeepsIt)
{
    Star star = MakeStar(5.0);
    ASSERT_EQ(star.GetPaletteIndex(), Star::kNoPaletteIndex);
    star.Draw(Canvas.GetDC(), Canvas.Parameters);
    // Magnitude 5 has the intensity 107 with the defaults.
    EXPECT_EQ(star.GetColor(), TColor(107, 107, 107));
    EXPECT_EQ(star.GetPaletteIndex(), GreyIndex(107));
    EXPECT_EQ(Canvas.IndexAt(8, 8), GreyIndex(107));
    EXPECT_EQ(Canvas.IndexAt(9, 8), GreyIndex(107));

    // New settings do not reach a star that has its colour...
    Canvas.Parameters.IntensityRange = {200, 255};
    Canvas.Parameters.CalculateIntensityScale();
    star.Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(star.GetColor(), TColor(107, 107, 107));

    // ...until its display cache is flushed: one magnitude above the faint end it is now
    // 200 * (255 / 200)^(1/3) = 216.9.
    star.FlushDisplayCache();
    star.Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(star.GetColor(), TColor(216, 216, 216));
    EXPECT_EQ(star.GetPaletteIndex(), GreyIndex(216));
}

TEST_F(StarDrawTest, ShapeSelectsRaysOrDiscAndOtherShapesDrawNothing)
{
    Star ray = MakeStar();
    ray.Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(Centre(), Rows({
                            ".....",
                            ".###.",
                            ".#.#.",
                            ".###.",
                            ".....",
                        }));

    SkyCanvas roundCanvas(16, 16);
    roundCanvas.Parameters.SetShape(StarDisplayParameters::kRoundShape);
    Star round = MakeStar();
    round.Draw(roundCanvas.GetDC(), roundCanvas.Parameters);
    EXPECT_EQ(roundCanvas.Picture(TRect(6, 6, 11, 11)), Rows({
                                                            ".....",
                                                            ".###.",
                                                            ".###.",
                                                            ".###.",
                                                            ".....",
                                                        }));

    // A shape from a damaged bookmark: nothing drawn, nothing broken.
    SkyCanvas noShape(16, 16);
    noShape.Parameters.SetShape(2);
    Star none = MakeStar();
    none.Draw(noShape.GetDC(), noShape.Parameters);
    EXPECT_EQ(noShape.Picture(TRect(0, 0, 16, 16)).find_first_not_of(".\n"), std::string::npos);
}

TEST_F(StarDrawTest, PrintedStarsAreDarkOnWhite)
{
    Canvas.Parameters.SetPrinting(true);
    Canvas.WithoutFastBits();
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            Canvas.GetSurface().SetValue(x, y, SkyCanvas::kWhiteIndex);
        }
    }
    Star bright = MakeStar(2.5);
    bright.Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_EQ(bright.GetColor(), TColor(0, 0, 0));
    EXPECT_EQ(Centre(), Rows({
                            "#####",
                            "#...#",
                            "#.#.#",
                            "#...#",
                            "#####",
                        }));
}
