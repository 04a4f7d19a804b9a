// Constellations drawn on a small 8-bit map: figure lines in green, the closed boundary in
// red, each only where the view shows an end of it; the centre mark; what Draw leaves out by
// the settings; and the name, which the label manager draws centred on its point.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ConstellationTesting.h"
#include "catalogues/AstroList.h"
#include "skyview/LabelManager.h"
#include "skyview/SkyCanvas.h"

namespace {

// A canvas of 64 by 48 pixels that looks at RA 0, Dec 0 with north up, 20 degrees to the
// nearer edge, and one constellation, Orion, read from invented lines.
class ConstellationDrawTest : public ConstellationFilesTest
{
protected:
    void SetUp() override
    {
        ConstellationFilesTest::SetUp();
        pCatalogue = Catalogue("Orion, Ori\nLyra, Lyr\n");
        pCanvas = std::make_unique<SkyCanvas>(64, 48);
        pView = std::make_unique<Transformation>(pCanvas->GetDC(), pCanvas->Parameters.DrawRect,
                                                 PolarCoord(0.0, 0.0), 20.0, PolarCoord(0.0, 90.0));
        pCanvas->Parameters.pTransformation = pView.get();
        Green = pCanvas->Parameters.GetPaletteIndex(TColor(0, 255, 0));
        Red = pCanvas->Parameters.GetPaletteIndex(TColor(255, 0, 0));
        Yellow = pCanvas->Parameters.GetPaletteIndex(TColor::LtYellow);
        Orange = pCanvas->Parameters.GetPaletteIndex(TColor(255, 128, 0));
    }
    void TearDown() override
    {
        pCatalogue.reset();
        ConstellationFilesTest::TearDown();
    }

    Constellation& Orion() { return *pCatalogue->FindConstellationWithAbbreviation("Ori"); }

    TPoint At(double ra, double dec)
    {
        TPoint point;
        pView->Translate(PolarCoord(ra, dec), point);
        return point;
    }

    // The pixels of one palette index.
    std::vector<TPoint> PixelsOf(unsigned index)
    {
        std::vector<TPoint> found;
        for (int y = 0; y < 48; ++y) {
            for (int x = 0; x < 64; ++x) {
                if (pCanvas->IndexAt(x, y) == index) {
                    found.emplace_back(x, y);
                }
            }
        }
        return found;
    }

    std::unique_ptr<ConstellationCatalogue> pCatalogue;
    std::unique_ptr<SkyCanvas> pCanvas;
    std::unique_ptr<Transformation> pView;
    unsigned Green = 0;
    unsigned Red = 0;
    unsigned Yellow = 0;
    unsigned Orange = 0;
};

} // namespace

TEST_F(ConstellationDrawTest, FigureLineRunsGreenFromItsFirstEndUpToItsSecond)
{
    pCatalogue->LoadFigureInfo(*Open("figures.txt", "Ori,355,0,5,0\n"));
    Orion().DrawFigures(pCanvas->GetDC(), *pView);

    // East is on the left: the line runs leftwards and leaves out its last pixel.
    const TPoint from = At(355, 0);
    const TPoint to = At(5, 0);
    ASSERT_EQ(from.y, to.y);
    ASSERT_GT(from.x, to.x);
    const std::vector<TPoint> green = PixelsOf(Green);
    ASSERT_EQ(green.size(), std::size_t(from.x - to.x));
    for (std::size_t i = 0; i < green.size(); ++i) {
        EXPECT_EQ(green[i], TPoint(to.x + 1 + int(i), from.y));
    }
}

TEST_F(ConstellationDrawTest, FigureLineWithOneEndInViewRunsOffTheMapAndOneOutOfRangeIsNotDrawn)
{
    pCatalogue->LoadFigureInfo(*Open("figures.txt", "Ori,0,0,0,-60\n"
                                                    "Ori,60,0,70,10\n"));
    Orion().DrawFigures(pCanvas->GetDC(), *pView);
    const TPoint centre = At(0, 0);
    const std::vector<TPoint> green = PixelsOf(Green);
    // From the centre straight down to the bottom row; nothing of the far line.
    ASSERT_EQ(green.size(), std::size_t(48 - centre.y));
    for (const TPoint& p : green) {
        EXPECT_EQ(p.x, centre.x);
        EXPECT_GE(p.y, centre.y);
    }
}

TEST_F(ConstellationDrawTest, BoundaryIsDrawnRedAndClosedBackToItsFirstPoint)
{
    // A square round the centre, RA in hours across 0 h: the last edge, along the bottom,
    // is the one that closes it.
    pCatalogue->LoadBoundaryInfo(*Open("bounds.txt", "0.4 -6 Ori\n"
                                                     "0.4 6 Ori\n"
                                                     "-0.4 6 Ori\n"
                                                     "-0.4 -6 Ori\n"));
    Orion().DrawBoundaries(pCanvas->GetDC(), *pView);

    const TPoint centre = At(0, 0);
    const TPoint right = At(6, 0);
    const TPoint left = At(354, 0);
    const TPoint top = At(0, 6);
    const TPoint bottom = At(0, -6);
    EXPECT_EQ(pCanvas->IndexAt(right.x, centre.y), Red);
    EXPECT_EQ(pCanvas->IndexAt(left.x, centre.y), Red);
    EXPECT_EQ(pCanvas->IndexAt(centre.x, top.y), Red);
    EXPECT_EQ(pCanvas->IndexAt(centre.x, bottom.y), Red);
    EXPECT_EQ(pCanvas->IndexAt(centre.x, centre.y), 0u);
    EXPECT_TRUE(PixelsOf(Green).empty());
}

TEST_F(ConstellationDrawTest, BoundaryEdgesWithNoEndInViewAreLeftOut)
{
    // Two corners above the middle row are in view; the two on the equator lie 40 degrees
    // to either side, out of view, and the edge between them would run along the middle row.
    pCatalogue->LoadBoundaryInfo(*Open("bounds.txt", "0.2 3 Ori\n"
                                                     "2.6666667 0 Ori\n"
                                                     "21.3333333 0 Ori\n"
                                                     "23.8 3 Ori\n"));
    Orion().DrawBoundaries(pCanvas->GetDC(), *pView);
    const int middle = At(0, 0).y;
    for (int x = 0; x < 64; ++x) {
        EXPECT_NE(pCanvas->IndexAt(x, middle), Red) << x;
    }
    // The edges from the corners in view run out to the points beyond the map.
    EXPECT_EQ(pCanvas->IndexAt(At(0, 3).x, At(0, 3).y), Red);
    EXPECT_GT(PixelsOf(Red).size(), 40u);
}

TEST_F(ConstellationDrawTest, DrawShowsFiguresAndBoundariesAsTheSettingsSayAndNeverTheName)
{
    WriteFile("figures.txt", "Ori,355,0,5,0\n");
    WriteFile("bounds.txt", "0.4 -6 Ori\n0.4 6 Ori\n-0.4 6 Ori\n-0.4 -6 Ori\n");
    WriteFile("centres.txt", "Ori,0,0,0,0\nLyr,280,37,280,37\n");
    pCatalogue->UseSettings(ConstellationSettings(false, false, true));
    Orion().Draw(pCanvas->GetDC(), pCanvas->Parameters);
    EXPECT_EQ(pCanvas->Picture(TRect(0, 0, 64, 48)).find_first_not_of(".\n"), std::string::npos);

    pCatalogue->UseSettings(ConstellationSettings(true, false, false));
    Orion().Draw(pCanvas->GetDC(), pCanvas->Parameters);
    EXPECT_FALSE(PixelsOf(Green).empty());
    EXPECT_TRUE(PixelsOf(Red).empty());

    pCatalogue->UseSettings(ConstellationSettings(false, true, false));
    Orion().Draw(pCanvas->GetDC(), pCanvas->Parameters);
    EXPECT_FALSE(PixelsOf(Red).empty());
    EXPECT_TRUE(PixelsOf(Orange).empty());
    // The files were read when they were first needed.
    EXPECT_TRUE(pCatalogue->IsFigureLoaded());
    EXPECT_TRUE(pCatalogue->IsBoundaryLoaded());
}

TEST_F(ConstellationDrawTest, CentreMarksAreFiveByFiveLightYellowSquaresOfTheCentresInView)
{
    pCatalogue->LoadCenterPointInfo(*Open("centres.txt", "Ori,0,0,2,5\n"
                                                         "Lyr,280,37,280,37\n"));
    pCatalogue->DrawCenters(pCanvas->GetDC(), *pView);
    const std::vector<TPoint> yellow = PixelsOf(Yellow);
    ASSERT_EQ(yellow.size(), 25u);
    const TPoint centre = At(0, 0);
    EXPECT_EQ(yellow.front(), TPoint(centre.x - 2, centre.y - 2));
    EXPECT_EQ(yellow.back(), TPoint(centre.x + 2, centre.y + 2));
}

TEST_F(ConstellationDrawTest, NameStandsCentredOnTheLabelPointInTheLabelColour)
{
    pCatalogue->LoadCenterPointInfo(*Open("centres.txt", "Ori,0,0,1,-2\n"
                                                         "Lyr,280,37,280,37\n"));
    AstroList objects(10, 10);
    objects.Add(&Orion());
    LabelManager labels;
    labels.LoadLabels(pCanvas->Parameters, objects);
    labels.Arrange(pCanvas->Parameters);
    labels.Draw(pCanvas->GetDC());

    const std::vector<TPoint> orange = PixelsOf(Orange);
    ASSERT_FALSE(orange.empty());
    int left = 64, right = -1, top = 48, bottom = -1;
    for (const TPoint& p : orange) {
        left = std::min(left, p.x);
        right = std::max(right, p.x);
        top = std::min(top, p.y);
        bottom = std::max(bottom, p.y);
    }
    const TPoint point = At(1, -2);
    // The ink of "Orion" sits round the label point, a few pixels at most off its middle,
    // with no line to anything.
    EXPECT_LE(std::abs((left + right) / 2 - point.x), 3);
    EXPECT_LE(std::abs((top + bottom) / 2 - point.y), 4);
    EXPECT_GT(right - left, 20);
}
