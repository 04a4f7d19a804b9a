// The pixel rules of lines, rectangles and figures, on both surface formats: the sky map and the
// printed chart depend on exactly which pixels these calls touch.
#include <gtest/gtest.h>

#include "PictureText.h"
#include "platform/HostPalette.h"
#include "platform/TClientDC.h"
#include "platform/TPalette.h"

namespace {

class PixelRules : public ::testing::TestWithParam<PixelFormat>
{
protected:
    PixelRules() : Canvas(8, 8, GetParam()), Dc(Canvas) {}

    Surface Canvas;
    TClientDC Dc;
};

INSTANTIATE_TEST_SUITE_P(BothFormats, PixelRules,
                         ::testing::Values(PixelFormat::Indexed8, PixelFormat::Rgb32), FormatName);

TEST_P(PixelRules, LinesLeaveOutTheirLastPixel)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.MoveTo(1, 1);
    Dc.LineTo(5, 1);
    Dc.MoveTo(1, 3);
    Dc.LineTo(4, 6);
    Dc.MoveTo(7, 7);
    Dc.LineTo(7, 4);
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     "........",
                                     ".####...",
                                     "........",
                                     ".#......",
                                     "..#.....",
                                     "...#...#",
                                     ".......#",
                                     ".......#",
                                 }));
}

TEST_P(PixelRules, ShallowLineStepsToTheNearestRow)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.MoveTo(0, 0);
    Dc.LineTo(6, 2);
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 0, 7, 3)), Rows({
                                                        "##.....",
                                                        "..###..",
                                                        ".....#.",
                                                    }));
}

TEST_P(PixelRules, ConsecutiveLinesJoinWithoutGapOrOverlap)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.MoveTo(1, 1);
    Dc.LineTo(5, 1);
    Dc.LineTo(5, 5);
    Dc.LineTo(1, 5);
    EXPECT_EQ(Dc.GetCurrentPosition(), TPoint(1, 5));
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 0, 7, 7)), Rows({
                                                        ".......",
                                                        ".#####.",
                                                        ".....#.",
                                                        ".....#.",
                                                        ".....#.",
                                                        "..####.",
                                                        ".......",
                                                    }));
}

// A pen of width 0 draws as one of width 1: a single pixel in each column.
TEST_P(PixelRules, PenOfWidthOneOrZeroDrawsSinglePixels)
{
    for (int width : {0, 1}) {
        Surface s(8, 8, GetParam());
        TClientDC dc(s);
        dc.SelectObject(TPen(TColor::White, width));
        dc.MoveTo(0, 2);
        dc.LineTo(8, 5);
        for (int x = 0; x < 8; ++x) {
            int lit = 0;
            for (int y = 0; y < 8; ++y) {
                lit += s.ColorAt(x, y) == RGB(255, 255, 255);
            }
            EXPECT_EQ(lit, 1) << "width " << width << ", column " << x;
        }
    }
}

TEST_P(PixelRules, WidePenCoversItsWidthAcrossTheLine)
{
    Dc.SelectObject(TPen(TColor::White, 3));
    Dc.MoveTo(1, 3);
    Dc.LineTo(6, 3);
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 1, 8, 6)), Rows({
                                                        "........",
                                                        "#######.",
                                                        "#######.",
                                                        "#######.",
                                                        "........",
                                                    }));
}

TEST_P(PixelRules, FillRectLeavesOutRightColumnAndBottomRow)
{
    Dc.FillRect(TRect(1, 1, 4, 3), TBrush(TColor::LtGreen));
    Dc.FillRect(6, 6, 5, 7, TBrush(TColor::White)); // right of left: nothing
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 0, 6, 4)), Rows({
                                                        "......",
                                                        ".ggg..",
                                                        ".ggg..",
                                                        "......",
                                                    }));
    EXPECT_EQ(Canvas.ColorAt(5, 6), RGB(0, 0, 0));
}

TEST_P(PixelRules, RectangleHasPenEdgeInsideAndBrushFill)
{
    Dc.SelectObject(TPen(TColor::LtRed));
    Dc.SelectObject(TBrush(TColor::LtGreen));
    Dc.Rectangle(6, 5, 1, 1); // corners in any order
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 0, 7, 6)), Rows({
                                                        ".......",
                                                        ".rrrrr.",
                                                        ".rgggr.",
                                                        ".rgggr.",
                                                        ".rrrrr.",
                                                        ".......",
                                                    }));
}

TEST_P(PixelRules, FrameRectDrawsOnlyTheBorder)
{
    Dc.FillRect(TRect(0, 0, 8, 8), TBrush(TColor::LtBlue));
    Dc.FrameRect(TRect(1, 1, 5, 4), TBrush(TColor::White));
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 0, 6, 5)), Rows({
                                                        "bbbbbb",
                                                        "b####b",
                                                        "b#bb#b",
                                                        "b####b",
                                                        "bbbbbb",
                                                    }));
}

TEST_P(PixelRules, InvertRectTwiceRestoresTheSurface)
{
    Dc.FillRect(TRect(0, 0, 4, 8), TBrush(TColor::White));
    Dc.SetPixel(5, 5, TColor::LtRed);
    Dc.SetPixel(6, 2, TColor(0, 0, 0x60));
    std::vector<COLORREF> before = ColorsOf(Canvas);

    Dc.InvertRect(TRect(2, 1, 7, 7));
    EXPECT_EQ(Canvas.ColorAt(3, 3), RGB(0, 0, 0)) << "white turns black";
    EXPECT_EQ(Canvas.ColorAt(4, 3), RGB(255, 255, 255)) << "black turns white";
    EXPECT_EQ(Canvas.ColorAt(1, 3), RGB(255, 255, 255)) << "outside stays";
    EXPECT_EQ(Canvas.ColorAt(7, 3), RGB(0, 0, 0)) << "right column stays";

    Dc.InvertRect(TRect(2, 1, 7, 7));
    EXPECT_EQ(ColorsOf(Canvas), before);
}

TEST_P(PixelRules, EllipseFitsItsBoxWithoutRightAndBottomEdge)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.SelectObject(TBrush(TColor::White));
    Dc.Ellipse(1, 1, 7, 7);
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     "........",
                                     "..####..",
                                     ".######.",
                                     ".######.",
                                     ".######.",
                                     ".######.",
                                     "..####..",
                                     "........",
                                 }));
}

TEST_P(PixelRules, EllipsePenOutlinesAndBrushFillsInside)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.SelectObject(TBrush(TColor::LtGreen));
    Dc.Ellipse(TRect(1, 1, 7, 7));
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     "........",
                                     "..####..",
                                     ".#gggg#.",
                                     ".#gggg#.",
                                     ".#gggg#.",
                                     ".#gggg#.",
                                     "..####..",
                                     "........",
                                 }));
}

TEST_P(PixelRules, WideEllipseIsSymmetricAndTouchesEveryEdgeOfItsBox)
{
    Surface s(24, 16, GetParam());
    TClientDC dc(s);
    dc.SelectObject(TPen(TColor::White));
    dc.SelectObject(TBrush(TColor::White));
    dc.Ellipse(2, 3, 21, 14);
    auto on = [&](int x, int y) { return s.ColorAt(x, y) == RGB(255, 255, 255); };
    TRect lit(24, 16, 0, 0);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 24; ++x) {
            if (!on(x, y)) {
                continue;
            }
            EXPECT_TRUE(on(22 - x, y)) << "mirror in x of " << x << ", " << y;
            EXPECT_TRUE(on(x, 16 - y)) << "mirror in y of " << x << ", " << y;
            lit = TRect(std::min(lit.left, LONG(x)), std::min(lit.top, LONG(y)),
                        std::max(lit.right, LONG(x + 1)), std::max(lit.bottom, LONG(y + 1)));
        }
    }
    EXPECT_EQ(lit, TRect(2, 3, 21, 14));
}

TEST_P(PixelRules, PieAndArcWithCoincidentPointsDrawTheWholeFigure)
{
    Surface ellipse(8, 8, GetParam());
    TClientDC reference(ellipse);
    reference.SelectObject(TPen(TColor::LtRed));
    reference.SelectObject(TBrush(TColor::LtGreen));
    reference.Ellipse(0, 1, 8, 7);

    Dc.SelectObject(TPen(TColor::LtRed));
    Dc.SelectObject(TBrush(TColor::LtGreen));
    Dc.Pie(0, 1, 8, 7, 0, 0, 0, 0);
    EXPECT_EQ(PictureOf(Canvas), PictureOf(ellipse));

    Surface outline(8, 8, GetParam());
    TClientDC outlineDc(outline);
    outlineDc.SelectObject(TPen(TColor::LtRed));
    outlineDc.SelectObject(TBrush::Null());
    outlineDc.Ellipse(0, 1, 8, 7);

    Surface arc(8, 8, GetParam());
    TClientDC arcDc(arc);
    arcDc.SelectObject(TPen(TColor::LtRed));
    arcDc.SelectObject(TBrush(TColor::LtGreen)); // an arc never fills
    arcDc.Arc(TRect(0, 1, 8, 7), TPoint(0, 0), TPoint(0, 0));
    EXPECT_EQ(PictureOf(arc), PictureOf(outline));
}

TEST_P(PixelRules, PieRunsCounterClockwiseFromStartToEnd)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.SelectObject(TBrush(TColor::White));
    // From the ray to the east to the ray to the north: the upper right quarter, with both
    // radii drawn by the pen from the centre pixel (4, 4).
    Dc.Pie(0, 0, 8, 8, 8, 4, 4, 0);
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     "....##..",
                                     "....###.",
                                     "....####",
                                     "....####",
                                     "....####",
                                     "........",
                                     "........",
                                     "........",
                                 }));
}

TEST_P(PixelRules, ArcRunsCounterClockwiseAndLeavesTheInsideAlone)
{
    Dc.SelectObject(TPen(TColor::White));
    // Counter-clockwise on the screen from west to east runs through the south: the lower
    // half of the rim.
    Dc.Arc(0, 0, 8, 8, 0, 4, 8, 4);
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     "........",
                                     "........",
                                     "........",
                                     "........",
                                     "#......#",
                                     "#......#",
                                     ".#....#.",
                                     "..####..",
                                 }));
    // The other way round gives the upper half.
    Surface upper(8, 8, GetParam());
    TClientDC upperDc(upper);
    upperDc.SelectObject(TPen(TColor::White));
    upperDc.Arc(0, 0, 8, 8, 8, 4, 0, 4);
    EXPECT_EQ(PictureOf(upper, TRect(0, 0, 8, 4)), Rows({
                                                       "..####..",
                                                       ".#....#.",
                                                       "#......#",
                                                       "#......#",
                                                   }));
}

TEST_P(PixelRules, RoundStarIsAFilledDiscFromAPie)
{
    // A round star of size 6 at (4, 4): radius 3, pen and brush of the star's colour.
    TColor grey(165, 165, 165);
    Dc.SelectObject(TPen(grey, 1, PS_SOLID));
    Dc.SelectObject(TBrush(grey));
    Dc.Pie(TRect(1, 1, 7, 7), TPoint(0, 0), TPoint(0, 0));
    Dc.RestoreBrush();
    Dc.RestorePen();
    ColorLegend legend = {{RGB(0, 0, 0), '.'},
                          {Canvas.ColorForValue(Canvas.ValueForColor(grey)), 'o'}};
    EXPECT_EQ(PictureOf(Canvas, legend), Rows({
                                             "........",
                                             "..oooo..",
                                             ".oooooo.",
                                             ".oooooo.",
                                             ".oooooo.",
                                             ".oooooo.",
                                             "..oooo..",
                                             "........",
                                         }));
}

TEST_P(PixelRules, RoundRectWithCornersLargerThanItselfIsAFilledDisc)
{
    Surface sun(16, 16, GetParam());
    TClientDC sunDc(sun);
    sunDc.SelectObject(TPen(TColor::White));
    sunDc.SelectObject(TBrush(TColor::White));
    sunDc.RoundRect(2, 2, 14, 14, 20, 40);

    Surface disc(16, 16, GetParam());
    TClientDC discDc(disc);
    discDc.SelectObject(TPen(TColor::White));
    discDc.SelectObject(TBrush(TColor::White));
    discDc.Ellipse(2, 2, 14, 14);

    EXPECT_EQ(PictureOf(sun), PictureOf(disc));
    EXPECT_EQ(sun.ColorAt(2, 2), RGB(0, 0, 0)) << "corners are cut";
    EXPECT_EQ(sun.ColorAt(8, 8), RGB(255, 255, 255));
    EXPECT_EQ(sun.ColorAt(2, 8), RGB(255, 255, 255));
    EXPECT_EQ(sun.ColorAt(14, 8), RGB(0, 0, 0)) << "right edge is outside";
}

TEST_P(PixelRules, RoundRectWithSmallCornersRoundsOnlyTheCorners)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.SelectObject(TBrush(TColor::LtBlue));
    Dc.RoundRect(TRect(0, 0, 8, 7), TPoint(4, 4));
    EXPECT_EQ(PictureOf(Canvas), Rows({
                                     ".######.",
                                     "#bbbbbb#",
                                     "#bbbbbb#",
                                     "#bbbbbb#",
                                     "#bbbbbb#",
                                     "#bbbbbb#",
                                     ".######.",
                                     "........",
                                 }));
}

TEST_P(PixelRules, ClipRectangleStopsALine)
{
    EXPECT_EQ(Dc.SelectClipRgn(TRegion(TRect(2, 0, 5, 8))), SIMPLEREGION);
    Dc.SelectObject(TPen(TColor::White));
    Dc.MoveTo(0, 3);
    Dc.LineTo(8, 3);
    Dc.SetPixel(6, 6, TColor::White);
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 2, 8, 4)), Rows({
                                                        "........",
                                                        "..###...",
                                                    }));
    EXPECT_EQ(Canvas.ColorAt(6, 6), RGB(0, 0, 0));
    EXPECT_EQ(Dc.GetClipBox(), TRect(2, 0, 5, 8));

    Dc.SelectClipRgn(nullptr);
    Dc.MoveTo(0, 3);
    Dc.LineTo(8, 3);
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 3, 8, 4)), Rows({"########"}));
    EXPECT_EQ(Dc.SelectClipRgn(TRegion(TRect(20, 20, 30, 30))), NULLREGION);
}

TEST_P(PixelRules, FarAwayCoordinatesAreClippedNotFollowed)
{
    Dc.SelectObject(TPen(TColor::White));
    Dc.MoveTo(-2000000000, 4);
    Dc.LineTo(2000000000, 4);
    Dc.SelectObject(TBrush(TColor::LtRed));
    Dc.Ellipse(-100000, -100000, -99990, -99990);
    EXPECT_EQ(PictureOf(Canvas, TRect(0, 3, 8, 6)), Rows({
                                                        "........",
                                                        "########",
                                                        "........",
                                                    }));
}

TEST_P(PixelRules, HugeFiguresCostOnlyTheirVisiblePart)
{
    const int far = 2000000000;
    Dc.SelectObject(TPen(TColor::White));
    Dc.SelectObject(TBrush(TColor::White));
    Dc.Ellipse(-far, -far, far, far);
    EXPECT_EQ(PictureOf(Canvas), Rows(std::vector<std::string>(8, "########")));

    Dc.SelectObject(TBrush(TColor::LtRed));
    Dc.Pie(-far, -far, far, far, 0, 0, 0, 0);
    Dc.RoundRect(-far, -far, far, far, far, far);
    EXPECT_EQ(PictureOf(Canvas), Rows(std::vector<std::string>(8, "rrrrrrrr")));

    Dc.SelectObject(TPen(TColor::LtBlue, 3));
    Dc.MoveTo(-far, -far);
    Dc.LineTo(far, far);
    EXPECT_EQ(Canvas.ColorAt(4, 4), RGB(0, 0, 255));
    EXPECT_EQ(Canvas.ColorAt(7, 0), RGB(255, 0, 0));
    Dc.SelectObject(TPen(TColor::LtBlue, 1 << 30));
    Dc.MoveTo(4, -far);
    Dc.LineTo(4, far);
    EXPECT_EQ(Canvas.ColorAt(7, 0), RGB(0, 0, 255)) << "a pen wider than the surface covers it";

    Surface source(8, 8, GetParam());
    TClientDC sourceDc(source);
    EXPECT_TRUE(Dc.BitBlt(-far, -far, 2147483647, 2147483647, sourceDc, -far, -far, SRCCOPY));
    EXPECT_TRUE(Dc.StretchBlt(-far, 0, 2147483647, 8, sourceDc, 0, 0, 8, 8, SRCCOPY));
}

TEST_P(PixelRules, SetPixelGivesTheColourThatWasSet)
{
    TColor set = Dc.SetPixel(2, 2, TColor(250, 10, 10));
    if (GetParam() == PixelFormat::Indexed8) {
        EXPECT_EQ(set, TColor::LtRed) << "the nearest palette entry";
    } else {
        EXPECT_EQ(set, TColor(250, 10, 10));
    }
    EXPECT_EQ(Dc.GetPixel(2, 2), set);
    EXPECT_EQ(Dc.SetPixel(8, 2, TColor::White), TColor(CLR_INVALID));
    EXPECT_EQ(Dc.GetPixel(-1, 0), TColor(CLR_INVALID));
}

TEST_P(PixelRules, PaletteIndexAndPaletteRelativeColours)
{
    Dc.SetPixel(0, 0, TColor::PaletteIndex(12));
    EXPECT_EQ(Canvas.ColorAt(0, 0), RGB(0, 0, 255)) << "entry 12 of the host palette is blue";
    Dc.SetPixel(1, 0, TColor(PALETTERGB(250, 120, 5)));
    Dc.SetPixel(4, 0, TColor(250, 120, 5).PalRelative());
    for (int x : {1, 4}) {
        EXPECT_EQ(Canvas.ColorAt(x, 0),
                  GetParam() == PixelFormat::Indexed8 ? RGB(255, 128, 0) : RGB(250, 120, 5));
    }

    PALETTEENTRY own[2] = {{0, 0, 0, 0}, {10, 200, 30, 0}};
    TPalette palette(own, 2);
    Dc.SelectObject(palette);
    Dc.SetPixel(2, 0, TColor::PaletteIndex(1));
    EXPECT_EQ(TColor(Canvas.ColorAt(2, 0)),
              TColor(Canvas.ColorForValue(Canvas.ValueForColor(RGB(10, 200, 30)))));
    Dc.RestorePalette();
    Dc.SetPixel(3, 0, TColor::PaletteIndex(1));
    EXPECT_EQ(Canvas.ColorAt(3, 0), RGB(128, 0, 0)) << "host palette again";
}

} // namespace
