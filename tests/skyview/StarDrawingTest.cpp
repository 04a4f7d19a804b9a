// Which pixels a star covers, on both roads to the bitmap (written straight into the 8-bit bits,
// or through SetPixel), and the grey and shape a catalogue star takes. With the default settings
// on a 96-dpi screen a star of size s has the magnitude 3 - (s - 2) / 2.
#include <gtest/gtest.h>

#include <tuple>

#include "SkyCanvas.h"
#include "catalogues/Star.h"
#include "skyview/StarDrawing.h"

namespace {

double MagnitudeOfSize(int size)
{
    return 3.0 - (size - 2) / 2.0;
}

// Red: an index that differs from the colour passed with it, so that a picture tells which road
// a star took. The fast path writes the index ('r'), the slow path the colour (white, '#').
constexpr unsigned kRed = 9;
const std::map<unsigned, char> kLegend = {{kRed, 'r'}, {kHostPaletteDaySky, 'd'}};

void Ray(SkyCanvas& canvas, int x, int y, int size)
{
    DrawRayStar(canvas.Parameters, x, y, MagnitudeOfSize(size), TColor::White, kRed);
}

std::string Around(SkyCanvas& canvas, int x, int y, int half)
{
    return canvas.Picture(TRect(x - half, y - half, x + half + 1, y + half + 1), kLegend);
}

} // namespace

TEST(StarDrawing, RayStarsAreEightRaysAroundADarkCentreUnevenFromEightPixels)
{
    // Size 3 has arms of 1, size 6 of 3; size 8, too large for the fast path, has straight rays
    // of 2, upper diagonals of 3 and lower ones of 4.
    const std::vector<std::pair<int, std::vector<std::string>>> cases = {
        {3, {"", "", "...rrr...", "...r.r...", "...rrr...", "", "", ""}},
        {6,
         {".r..r..r.", "..r.r.r..", "...rrr...", ".rrr.rrr.", "...rrr...", "..r.r.r..", ".r..r..r.",
          ""}},
        {8,
         {".#.....#.", "..#.#.#..", "...###...", "..##.##..", "...###...", "..#.#.#..", ".#.....#.",
          "#.......#"}},
    };
    for (const auto& [size, rows] : cases) {
        SkyCanvas canvas(24, 24);
        Ray(canvas, 12, 12, size);
        std::string expected;
        for (const std::string& row : rows) {
            expected += (row.empty() ? "........." : row) + "\n";
        }
        EXPECT_EQ(canvas.Picture(TRect(8, 9, 17, 17), kLegend), expected) << "size " << size;
        EXPECT_EQ(canvas.Picture(TRect(0, 0, 24, 9)).find_first_not_of(".\n"), std::string::npos)
            << size;
        EXPECT_EQ(canvas.Picture(TRect(0, 17, 24, 24)).find_first_not_of(".\n"), std::string::npos)
            << size;
    }
}

TEST(StarDrawing, TheFastPathNeedsTheStarClearOfEveryEdgeAndAtMostSixPixels)
{
    // Size 5 must lie more than 5 pixels inside: 6 to 18 on a 24-pixel side. The right ray's
    // end tells the road.
    for (const auto& [x, y, size, fast] :
         std::vector<std::tuple<int, int, int, bool>>{{5, 12, 5, false},
                                                      {6, 12, 5, true},
                                                      {18, 12, 5, true},
                                                      {19, 12, 5, false},
                                                      {12, 5, 5, false},
                                                      {12, 19, 5, false},
                                                      {12, 12, 7, false}}) {
        SkyCanvas canvas(24, 24);
        Ray(canvas, x, y, size);
        EXPECT_EQ(canvas.IndexAt(x + size / 2, y), fast ? kRed : kHostPaletteWhite)
            << x << ", " << y << " size " << size;
    }
}

TEST(StarDrawing, APairStarOnTheFastPathKeepsWhatIsDrawnThere)
{
    SkyCanvas canvas(24, 24);
    canvas.GetSurface().SetValue(11, 10, 12);
    Ray(canvas, 10, 10, 2);
    EXPECT_EQ(Around(canvas, 10, 10, 1), Rows({"...", ".r?", "..."}));
    // On a day sky the sky is the day colour's index.
    canvas.Fill(kHostPaletteDaySky);
    canvas.Parameters.SetDaytime(true);
    Ray(canvas, 10, 10, 2);
    EXPECT_EQ(Around(canvas, 10, 10, 1), Rows({"ddd", "drr", "ddd"}));
    // Through SetPixel both pixels are drawn whatever they hold.
    canvas.GetSurface().SetValue(11, 5, 12);
    canvas.WithoutFastBits();
    Ray(canvas, 10, 5, 2);
    EXPECT_EQ(Around(canvas, 10, 5, 1), Rows({"ddd", "d##", "ddd"}));
}

TEST(StarDrawing, RoundStarsArePairsBlocksAndDiscsWithoutTheirRightColumnAndBottomRow)
{
    SkyCanvas canvas(24, 24);
    DrawRoundStar(canvas.Parameters, TPoint(3, 3), MagnitudeOfSize(2), TColor::White);
    DrawRoundStar(canvas.Parameters, TPoint(8, 3), MagnitudeOfSize(3), TColor::White);
    DrawRoundStar(canvas.Parameters, TPoint(16, 4), MagnitudeOfSize(6), TColor::White);
    EXPECT_EQ(canvas.Picture(TRect(2, 0, 20, 8)), Rows({
                                                      "..................",
                                                      "............####..",
                                                      ".....###...######.",
                                                      ".##..###...######.",
                                                      ".....###...######.",
                                                      "...........######.",
                                                      "............####..",
                                                      "..................",
                                                  }));
}

TEST(StarDrawing, ACatalogueStarTakesItsGreyOnceUntilItsCacheIsFlushed)
{
    // Magnitude 5 has the intensity 107 with the defaults; new settings reach the star only
    // after a flush: one magnitude above the faint end it is then 200 * (255 / 200)^(1/3).
    SkyCanvas canvas(16, 16);
    Star star(1, 5.0, PolarCoord(10.0, 10.0));
    star.SetDisplayPoint(TPoint(8, 8));
    for (const auto& [flush, grey] : {std::pair{false, 107}, {false, 107}, {true, 216}}) {
        if (flush) {
            star.FlushDisplayCache();
        }
        canvas.Fill(0);
        star.Draw(canvas.GetDC(), canvas.Parameters);
        EXPECT_EQ(canvas.IndexAt(9, 8),
                  canvas.Parameters.GetPaletteIndex(TColor(grey, grey, grey)));
        canvas.Parameters.IntensityRange = {200, 255};
        canvas.Parameters.CalculateIntensityScale();
    }
}

TEST(StarDrawing, TheShapeSettingPicksTheStarAndPrintedStarsAreDarkOnWhite)
{
    // A star of 3 pixels; shape 2 comes from a damaged bookmark: nothing drawn, nothing broken.
    for (const auto& [shape, printing, rows] :
         std::vector<std::tuple<unsigned, bool, std::vector<std::string>>>{
             {StarDisplayParameters::kRoundShape, false, {".###.", ".###.", ".###."}},
             {2, false, {".....", ".....", "....."}},
             {StarDisplayParameters::kRayShape, true, {"#...#", "#.#.#", "#...#"}},
         }) {
        SkyCanvas canvas(16, 16);
        canvas.Parameters.SetShape(shape);
        if (printing) {
            canvas.Parameters.SetPrinting(true);
            canvas.WithoutFastBits();
            canvas.Fill(kHostPaletteWhite);
        }
        Star star(1, 2.5, PolarCoord(10.0, 10.0));
        star.SetDisplayPoint(TPoint(8, 8));
        star.Draw(canvas.GetDC(), canvas.Parameters);
        EXPECT_EQ(canvas.Picture(TRect(6, 7, 11, 10)), Rows(rows))
            << "shape " << shape << (printing ? ", printing" : "");
    }
}
