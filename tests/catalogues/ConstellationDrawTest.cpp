// Constellations drawn on a small 8-bit map: figure lines in green and the closed boundary in
// red, each only where the view shows an end of it, as the settings ask.
#include <gtest/gtest.h>

#include <algorithm>

#include "ConstellationTesting.h"
#include "skyview/SkyCanvas.h"

namespace {

// A canvas of 64 by 48 pixels that looks at RA 0, Dec 0 with north up, 20 degrees to the
// nearer edge, and Orion read from invented lines.
class ConstellationDrawTest : public ConstellationFilesTest
{
protected:
    ConstellationDrawTest() { Canvas.Parameters.pTransformation = &View; }

    TPoint At(double ra, double dec)
    {
        TPoint point;
        View.Translate(PolarCoord(ra, dec), point);
        return point;
    }
    // The pixels of one colour of the palette, row by row.
    std::vector<TPoint> PixelsOf(const TColor& color)
    {
        std::vector<TPoint> found;
        for (int y = 0; y < 48; ++y) {
            for (int x = 0; x < 64; ++x) {
                if (Canvas.IndexAt(x, y) == Canvas.Parameters.GetPaletteIndex(color)) {
                    found.emplace_back(x, y);
                }
            }
        }
        return found;
    }

    const TColor Green{0, 255, 0};
    const TColor Red{255, 0, 0};
    std::unique_ptr<ConstellationCatalogue> pCatalogue = Catalogue("Orion, Ori\n");
    SkyCanvas Canvas{64, 48};
    Transformation View{Canvas.GetDC(), Canvas.Parameters.DrawRect, PolarCoord(0.0, 0.0), 20.0,
                        PolarCoord(0.0, 90.0)};
};

} // namespace

TEST_F(ConstellationDrawTest, FigureLineRunsGreenFromItsFirstEndUpToItsSecond)
{
    pCatalogue->LoadFigureInfo(*Dir.Open("figures.txt", "Ori,355,0,5,0\n"));
    Get(*pCatalogue, "Ori").DrawFigures(Canvas.GetDC(), View);
    // East is on the left: the line runs leftwards and leaves out its last pixel.
    const TPoint from = At(355, 0);
    const TPoint to = At(5, 0);
    ASSERT_EQ(from.y, to.y);
    const std::vector<TPoint> green = PixelsOf(Green);
    ASSERT_EQ(green.size(), std::size_t(from.x - to.x));
    for (std::size_t i = 0; i < green.size(); ++i) {
        EXPECT_EQ(green[i], TPoint(to.x + 1 + int(i), from.y));
    }
}

TEST_F(ConstellationDrawTest, FigureLineWithOneEndInViewRunsOffTheMapAndOneWithNoneIsNotDrawn)
{
    pCatalogue->LoadFigureInfo(*Dir.Open("figures.txt", "Ori,0,0,0,-60\nOri,60,0,70,10\n"));
    Get(*pCatalogue, "Ori").DrawFigures(Canvas.GetDC(), View);
    // From the centre straight down to the bottom row; nothing of the far line.
    const TPoint centre = At(0, 0);
    const std::vector<TPoint> green = PixelsOf(Green);
    ASSERT_EQ(green.size(), std::size_t(48 - centre.y));
    EXPECT_EQ(green.front(), centre);
    EXPECT_EQ(green.back(), TPoint(centre.x, 47));
}

TEST_F(ConstellationDrawTest, BoundaryIsClosedBackToItsFirstPointAndShownAsTheSettingsAsk)
{
    // A square round the centre, RA in hours across 0 h: the last edge, along the bottom,
    // is the one that closes it. The catalogue reads its files when they are first needed.
    Dir.WriteFile("figures.txt", "Ori,355,3,5,3\n");
    Dir.WriteFile("bounds.txt", "0.4 -6 Ori\n0.4 6 Ori\n-0.4 6 Ori\n-0.4 -6 Ori\n");
    pCatalogue->UseSettings(ConstellationSettings(false, true, true));
    Get(*pCatalogue, "Ori").Draw(Canvas.GetDC(), Canvas.Parameters);
    const TPoint centre = At(0, 0);
    for (const TPoint& edge : {TPoint(At(6, 0).x, centre.y), TPoint(At(354, 0).x, centre.y),
                               TPoint(centre.x, At(0, 6).y), TPoint(centre.x, At(0, -6).y)}) {
        EXPECT_EQ(Canvas.IndexAt(edge.x, edge.y), Canvas.Parameters.GetPaletteIndex(Red))
            << edge.x << ", " << edge.y;
    }
    // Neither the figure nor the name: only the red lines.
    EXPECT_EQ(Canvas.Picture(TRect(0, 0, 64, 48), {{Canvas.Parameters.GetPaletteIndex(Red), 'r'}})
                  .find_first_not_of(".r\n"),
              std::string::npos);
    pCatalogue->UseSettings(ConstellationSettings(true, false, false));
    Get(*pCatalogue, "Ori").Draw(Canvas.GetDC(), Canvas.Parameters);
    EXPECT_FALSE(PixelsOf(Green).empty());
}

TEST_F(ConstellationDrawTest, BoundaryEdgesWithNoEndInViewAreLeftOut)
{
    // Two corners above the middle row are in view; the two on the equator lie 40 degrees
    // to either side, out of view, and the edge between them would run along the middle row.
    pCatalogue->LoadBoundaryInfo(
        *Dir.Open("bounds.txt", "0.2 3 Ori\n2.6666667 0 Ori\n21.3333333 0 Ori\n23.8 3 Ori\n"));
    Get(*pCatalogue, "Ori").DrawBoundaries(Canvas.GetDC(), View);
    const std::vector<TPoint> red = PixelsOf(Red);
    for (const TPoint& p : red) {
        EXPECT_NE(p.y, At(0, 0).y) << p.x;
    }
    // The edges from the corners in view run out to the points beyond the map.
    EXPECT_NE(std::find(red.begin(), red.end(), At(0, 3)), red.end());
    EXPECT_GT(red.size(), 40u);
}
