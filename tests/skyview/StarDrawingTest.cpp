// Which pixels a star covers, on both roads to the bitmap: written straight into the 8-bit
// bits, and through SetPixel. With the default settings on a 96-dpi screen a star of size s
// has the magnitude 3 - (s - 2) / 2.
#include <gtest/gtest.h>

#include <algorithm>

#include "SkyCanvas.h"
#include "skyview/StarDrawing.h"

namespace {

double MagnitudeOfSize(int size)
{
    return 3.0 - (size - 2) / 2.0;
}

// Red: a palette index that differs from the colour passed with it, so a picture tells which
// road a star took. The fast path writes the index ('r'), the slow path the colour (white).
constexpr unsigned kRedIndex = 9;
const std::map<unsigned, char> kLegend = {{kRedIndex, 'r'}, {kHostPaletteDaySky, 'd'}};

class StarDrawingTest : public ::testing::Test
{
protected:
    StarDrawingTest() : Canvas(24, 24) {}

    void Ray(int x, int y, int size)
    {
        DrawRayStar(Canvas.Parameters, x, y, MagnitudeOfSize(size), TColor::White, kRedIndex);
    }
    // The square of side 2 * half + 1 around (x, y).
    std::string Around(int x, int y, int half)
    {
        return Canvas.Picture(TRect(x - half, y - half, x + half + 1, y + half + 1), kLegend);
    }
    void Fill(unsigned index)
    {
        for (int y = 0; y < 24; ++y) {
            for (int x = 0; x < 24; ++x) {
                Canvas.GetSurface().SetValue(x, y, index);
            }
        }
    }

    SkyCanvas Canvas;
};

} // namespace

TEST_F(StarDrawingTest, SmallRayStarsAreEightRaysWithoutTheCentre)
{
    Ray(12, 12, 3);
    EXPECT_EQ(Around(12, 12, 2), Rows({
                                     ".....",
                                     ".rrr.",
                                     ".r.r.",
                                     ".rrr.",
                                     ".....",
                                 }));
    // Sizes 4 and 5 have arms of 2, size 6 of 3.
    for (int size : {4, 5}) {
        Fill(0);
        Ray(12, 12, size);
        EXPECT_EQ(Around(12, 12, 3), Rows({
                                         ".......",
                                         ".r.r.r.",
                                         "..rrr..",
                                         ".rr.rr.",
                                         "..rrr..",
                                         ".r.r.r.",
                                         ".......",
                                     }))
            << size;
    }
    Fill(0);
    Ray(12, 12, 6);
    EXPECT_EQ(Around(12, 12, 3), Rows({
                                     "r..r..r",
                                     ".r.r.r.",
                                     "..rrr..",
                                     "rrr.rrr",
                                     "..rrr..",
                                     ".r.r.r.",
                                     "r..r..r",
                                 }));
}

TEST_F(StarDrawingTest, SlowPathDrawsTheSameRaysInTheColour)
{
    for (int size : {3, 4, 5, 6, 7}) {
        Fill(0);
        Canvas.Parameters.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
        Ray(12, 12, size);
        std::string slow = Around(12, 12, 4);
        EXPECT_EQ(slow.find('r'), std::string::npos) << size;
        if (size == 7) {
            // Arm 3, like size 6, which the fast path never takes.
            EXPECT_EQ(slow, Rows({
                                ".........",
                                ".#..#..#.",
                                "..#.#.#..",
                                "...###...",
                                ".###.###.",
                                "...###...",
                                "..#.#.#..",
                                ".#..#..#.",
                                ".........",
                            }));
            continue;
        }
        SkyCanvas fast(24, 24);
        DrawRayStar(fast.Parameters, 12, 12, MagnitudeOfSize(size), TColor::White,
                    SkyCanvas::kWhiteIndex);
        EXPECT_EQ(slow, fast.Picture(TRect(8, 8, 17, 17))) << size;
    }
}

TEST_F(StarDrawingTest, LargeRayStarsAreUneven)
{
    // Size 8: arm 4, straight rays 2, upper diagonals 3.
    Ray(12, 12, 8);
    EXPECT_EQ(Canvas.Picture(TRect(8, 9, 17, 17)), Rows({
                                                       ".#.....#.",
                                                       "..#.#.#..",
                                                       "...###...",
                                                       "..##.##..",
                                                       "...###...",
                                                       "..#.#.#..",
                                                       ".#.....#.",
                                                       "#.......#",
                                                   }));
    // Nothing above the upper diagonals or beyond the lower ones.
    EXPECT_EQ(Canvas.Picture(TRect(0, 0, 24, 9)).find('#'), std::string::npos);
    EXPECT_EQ(Canvas.Picture(TRect(0, 17, 24, 24)).find('#'), std::string::npos);
}

TEST_F(StarDrawingTest, PairStarOnTheFastPathKeepsWhatIsDrawnThere)
{
    Canvas.GetSurface().SetValue(11, 10, 12);
    Ray(10, 10, 2);
    EXPECT_EQ(Canvas.IndexAt(10, 10), kRedIndex);
    EXPECT_EQ(Canvas.IndexAt(11, 10), 12u);

    // On a day sky the sky is the day colour's index.
    Fill(kHostPaletteDaySky);
    Canvas.Parameters.SetDaytime(true);
    Ray(10, 10, 2);
    EXPECT_EQ(Around(10, 10, 1), Rows({
                                     "ddd",
                                     "drr",
                                     "ddd",
                                 }));

    // Through SetPixel both pixels are drawn whatever they hold.
    Canvas.GetSurface().SetValue(11, 5, 12);
    Canvas.WithoutFastBits();
    Ray(10, 5, 2);
    EXPECT_EQ(Canvas.IndexAt(10, 5), SkyCanvas::kWhiteIndex);
    EXPECT_EQ(Canvas.IndexAt(11, 5), SkyCanvas::kWhiteIndex);
}

TEST_F(StarDrawingTest, FastPathNeedsTheStarClearOfEveryEdge)
{
    // Size 5 must lie more than 5 pixels inside: 6 to 18 on a 24-pixel side.
    struct Case
    {
        int x, y;
        bool fast;
    };
    const Case cases[] = {
        {5, 12, false}, {6, 12, true}, {18, 12, true}, {19, 12, false},
        {12, 5, false}, {12, 6, true}, {12, 18, true}, {12, 19, false},
    };
    for (const Case& c : cases) {
        Fill(0);
        Ray(c.x, c.y, 5);
        // The right ray's end tells the road: red from the index, white from the colour.
        unsigned expected = c.fast ? kRedIndex : SkyCanvas::kWhiteIndex;
        EXPECT_EQ(Canvas.IndexAt(c.x + 2, c.y), expected) << c.x << ", " << c.y;
        EXPECT_EQ(Canvas.IndexAt(c.x - 2, c.y - 2), expected) << c.x << ", " << c.y;
    }
    // Size 7 never takes the fast path, even in the middle.
    Fill(0);
    Ray(12, 12, 7);
    EXPECT_EQ(Canvas.IndexAt(15, 12), SkyCanvas::kWhiteIndex);
}

TEST_F(StarDrawingTest, StarsAcrossTheEdgeAreClippedBySetPixel)
{
    Ray(-1, 12, 3);
    EXPECT_EQ(Canvas.Picture(TRect(0, 10, 3, 15)), Rows({
                                                       "...",
                                                       "#..",
                                                       "#..",
                                                       "#..",
                                                       "...",
                                                   }));
    Fill(0);
    Ray(23, 0, 6);
    EXPECT_EQ(Canvas.Picture(TRect(19, 0, 24, 4)), Rows({
                                                       ".###.",
                                                       "...##",
                                                       "..#.#",
                                                       ".#..#",
                                                   }));
    // A bitmap lower than the star never takes the fast path, however far down the star is.
    SkyCanvas strip(16, 1);
    DrawRayStar(strip.Parameters, 4, 5, MagnitudeOfSize(2), TColor::White, kRedIndex);
    DrawRayStar(strip.Parameters, 8, 0, MagnitudeOfSize(2), TColor::White, kRedIndex);
    EXPECT_EQ(strip.Picture(TRect(0, 0, 16, 1)), Rows({"........##......"}));
}

TEST_F(StarDrawingTest, WithoutASurfaceTheSlowPathDrawsNothing)
{
    Canvas.WithoutFastBits();
    Canvas.Parameters.pDC = nullptr;
    Ray(12, 12, 4);
    DrawRoundStar(Canvas.Parameters, TPoint(12, 12), MagnitudeOfSize(4), TColor::White);
    EXPECT_EQ(Canvas.Picture(TRect(0, 0, 24, 24)).find_first_not_of(".\n"), std::string::npos);
}

TEST_F(StarDrawingTest, RoundStarsArePairsBlocksAndDiscs)
{
    DisplayParameters& p = Canvas.Parameters;
    DrawRoundStar(p, TPoint(5, 5), MagnitudeOfSize(2), TColor::White);
    DrawRoundStar(p, TPoint(15, 5), MagnitudeOfSize(3), TColor::White);
    EXPECT_EQ(Canvas.Picture(TRect(3, 3, 18, 8)), Rows({
                                                      "...............",
                                                      "...........###.",
                                                      "..##.......###.",
                                                      "...........###.",
                                                      "...............",
                                                  }));

    // From 4 pixels on a filled circle in the box of radius size / 2, its right column and
    // bottom row left out.
    for (int size : {4, 6, 8}) {
        Fill(0);
        DrawRoundStar(p, TPoint(12, 12), MagnitudeOfSize(size), TColor::White);
        int r = size / 2;
        std::string inside = Canvas.Picture(TRect(12 - r, 12 - r, 12 + r, 12 + r));
        std::string all = Canvas.Picture(TRect(0, 0, 24, 24));
        EXPECT_EQ(std::count(all.begin(), all.end(), '#'),
                  std::count(inside.begin(), inside.end(), '#'))
            << size;
        EXPECT_EQ(Canvas.IndexAt(12, 12), SkyCanvas::kWhiteIndex) << size;
        EXPECT_EQ(Canvas.IndexAt(12 - r, 12), SkyCanvas::kWhiteIndex) << size;
        EXPECT_EQ(Canvas.IndexAt(12, 12 - r), SkyCanvas::kWhiteIndex) << size;
        EXPECT_EQ(Canvas.IndexAt(12 - r, 12 - r), 0u) << size;
    }

    // The context keeps its own pen and brush.
    const TColor pen = Canvas.GetDC().GetPen().GetColor();
    const TColor brush = Canvas.GetDC().GetBrush().GetColor();
    const TColor grey(128, 128, 128);
    ASSERT_NE(pen, grey);
    ASSERT_NE(brush, grey);
    DrawRoundStar(p, TPoint(12, 12), MagnitudeOfSize(6), grey);
    EXPECT_EQ(Canvas.GetDC().GetPen().GetColor(), pen);
    EXPECT_EQ(Canvas.GetDC().GetBrush().GetColor(), brush);
}
