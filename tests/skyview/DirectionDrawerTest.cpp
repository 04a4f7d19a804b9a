// The direction map's geometry and drawing: where the disc and the compass letters go, which
// way the disc is turned, how the corners of the main view land on it and come back from a
// click, and what it paints on a small white surface.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "projection/PerspectiveModifier.h"
#include "projection/ProjectionTesting.h"
#include "projection/Transformation.h"
#include "skyview/DirectionDrawer.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kHorizon = RGB(255, 0, 255);
constexpr COLORREF kField = RGB(0, 0, 255);

// Degrees between two sky directions.
double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double c = std::sin(a.GetDec().GetRadians()) * std::sin(b.GetDec().GetRadians()) +
                     std::cos(a.GetDec().GetRadians()) * std::cos(b.GetDec().GetRadians()) *
                         std::cos(a.GetRA().GetRadians() - b.GetRA().GetRadians());
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, c))));
}

double Distance(const TPoint& a, const TPoint& b)
{
    return std::hypot(double(a.x - b.x), double(a.y - b.y));
}

TPoint CentreOf(const TRect& r)
{
    return TPoint(r.left + r.Width() / 2, r.top + r.Height() / 2);
}

// The letters' font of the direction window.
TFont LetterFont()
{
    return TFont("Arial", 15, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET);
}

// A white 96-dpi surface with a drawer over all of it.
class DirectionDrawerTest : public ::testing::Test
{
protected:
    DirectionDrawerTest() : Page(kSize, kSize, PixelFormat::Rgb32), Dc(Page, DeviceCaps{})
    {
        Dc.FillRect(Page.Bounds(), TBrush(TColor::White));
        Drawer.SetRect(Page.Bounds());
    }
    // The rotations report rounding they clamp near a pole; not looked at here.
    void SetUp() override
    {
        Quiet = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Quiet); }

    int Count(COLORREF colour, const TRect& area) const
    {
        int n = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                n += Page.ColorAt(x, y) == colour;
            }
        }
        return n;
    }

    // Pixels of smoothed text: well away from the white paper, towards `colour`.
    int CountInk(COLORREF colour, const TRect& area) const
    {
        int n = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) {
                const COLORREF c = Page.ColorAt(x, y);
                const int off = std::abs(GetRValue(c) - GetRValue(colour)) +
                                std::abs(GetGValue(c) - GetGValue(colour)) +
                                std::abs(GetBValue(c) - GetBValue(colour));
                n += off < 200;
            }
        }
        return n;
    }

    static constexpr int kSize = 200;
    Surface Page;
    TDC Dc;
    TFont Font = LetterFont();
    DirectionDrawer Drawer;
    DebugSink Quiet;
};

TEST_F(DirectionDrawerTest, TheDiscIsTheLargestSquareLeftBesideTheLetters)
{
    Drawer.SetTextFont(Font, Dc);
    const int w = Drawer.GetTextWidth();
    const int h = Drawer.GetTextHeight();
    ASSERT_GT(w, 5);
    ASSERT_GT(h, 10);

    Drawer.SetRect(TRect(0, 0, 300, 200));
    const int side = 200 - 2 * h;
    const int left = w + ((300 - 2 * w) - side) / 2;
    EXPECT_EQ(Drawer.GetCircleRect(), TRect(left, h, left + side, h + side));

    // A tall rectangle: the square sits in its middle row.
    Drawer.SetRect(TRect(10, 0, 110, 400));
    const int tallSide = 100 - 2 * w;
    const int top = h + ((400 - 2 * h) - tallSide) / 2;
    EXPECT_EQ(Drawer.GetCircleRect(), TRect(10 + w, top, 10 + w + tallSide, top + tallSide));

    // Without the horizon no room is kept for the letters.
    Drawer.ShowHorizon(false);
    Drawer.SetRect(TRect(0, 0, 300, 200));
    EXPECT_EQ(Drawer.GetCircleRect(), TRect(50, 0, 250, 200));
}

TEST_F(DirectionDrawerTest, DesiredSizesKeepTheDiscRoundOnTheDevice)
{
    Drawer.SetTextFont(Font, Dc);
    const int w = Drawer.GetTextWidth();
    const int h = Drawer.GetTextHeight();
    TestDevice square(96, 96);
    EXPECT_EQ(Drawer.GetDesiredHeight(200, square.DC()), 200 + 2 * h);
    EXPECT_EQ(Drawer.GetDesiredWidth(200, square.DC()), 200 + 2 * w);

    // Pixels twice as tall as wide: half as many rows for the same length.
    TestDevice tall(300, 150);
    EXPECT_EQ(Drawer.GetDesiredHeight(201, tall.DC()), 100 + 2 * h);
    EXPECT_EQ(Drawer.GetDesiredWidth(100, tall.DC()), 200 + 2 * w);

    Drawer.ShowHorizon(false);
    EXPECT_EQ(Drawer.GetDesiredHeight(200, square.DC()), 200);
    EXPECT_EQ(Drawer.GetDesiredWidth(150, square.DC()), 150);
}

TEST_F(DirectionDrawerTest, TheDiscLooksUpWithNorthAtTheTopAndWestOnTheRight)
{
    // Latitude 40 N with local sidereal time 100 degrees.
    Drawer.SetZenith(PolarCoord(100.0, 40.0));
    Drawer.UpdateAll(Dc);
    const FlatTransformation& t = *Drawer.GetTransformation();

    // The points of the horizon below the letters, as sky directions.
    const PolarCoord north = DirectionDrawer::GetAbsCoord(t, PolarCoord(0.0, 0.0));
    const PolarCoord west = DirectionDrawer::GetAbsCoord(t, PolarCoord(90.0, 0.0));
    const PolarCoord south = DirectionDrawer::GetAbsCoord(t, PolarCoord(180.0, 0.0));
    const PolarCoord east = DirectionDrawer::GetAbsCoord(t, PolarCoord(270.0, 0.0));
    // North of the zenith, past the pole: the meridian opposite, 50 degrees up from the equator.
    EXPECT_LT(Apart(north, PolarCoord(280.0, 50.0)), 1e-6);
    // West and east lie on the equator, a quarter turn either side of the meridian.
    EXPECT_LT(Apart(west, PolarCoord(10.0, 0.0)), 1e-6);
    EXPECT_LT(Apart(east, PolarCoord(190.0, 0.0)), 1e-6);
    EXPECT_LT(Apart(south, PolarCoord(100.0, -50.0)), 1e-6);

    // On the disc: the pole straight above the centre, 50 of the 90 degrees out.
    const TRect circle = Drawer.GetCircleRect();
    const TPoint centre = CentreOf(circle);
    TPoint pole;
    EXPECT_TRUE(t.Translate(PolarCoord(0.0, 90.0), pole));
    EXPECT_NEAR(pole.x, centre.x, 1);
    EXPECT_NEAR(centre.y - pole.y, circle.Height() / 2.0 * 50.0 / 90.0, 1.0);
    // A degree north of the zenith is the disc's up.
    EXPECT_EQ(t.GetZenith(), PolarCoord(100.0, 41.0));
}

TEST_F(DirectionDrawerTest, LettersStandOutsideTheRimWhereverTheZenithLies)
{
    Drawer.SetTextFont(Font, Dc);
    const int w = Drawer.GetTextWidth();
    const int h = Drawer.GetTextHeight();
    for (const PolarCoord& zenith :
         {PolarCoord(100.0, 40.0), PolarCoord(250.0, -33.0), PolarCoord(5.0, 0.0)}) {
        Drawer.SetZenith(zenith);
        Drawer.UpdateAll(Dc);
        const TRect c = Drawer.GetCircleRect();
        const TPoint mid = CentreOf(c);
        SCOPED_TRACE(zenith.GetDec().GetDegrees());
        // The rim's top point is the circle's top row; each letter keeps its gap from the rim.
        EXPECT_NEAR(Drawer.GetNorthPoint().x, mid.x - w / 2, 1);
        EXPECT_NEAR(Drawer.GetNorthPoint().y, c.top - (h + 2), 1);
        EXPECT_NEAR(Drawer.GetSouthPoint().x, mid.x - w / 2, 1);
        EXPECT_NEAR(Drawer.GetSouthPoint().y, c.bottom + 2, 1);
        EXPECT_NEAR(Drawer.GetWestPoint().x, c.right + 3, 1);
        EXPECT_NEAR(Drawer.GetWestPoint().y, mid.y - h / 2, 1);
        EXPECT_NEAR(Drawer.GetEastPoint().x, c.left - w, 1);
        EXPECT_NEAR(Drawer.GetEastPoint().y, mid.y - h / 2, 1);
        // No letter covers the disc.
        EXPECT_LE(Drawer.GetNorthPoint().y + h, c.top);
        EXPECT_GE(Drawer.GetSouthPoint().y, c.bottom);
        EXPECT_GE(Drawer.GetWestPoint().x, c.right);
        EXPECT_LE(Drawer.GetEastPoint().x + w, c.left);
    }
}

TEST_F(DirectionDrawerTest, ANearlyPolarZenithTakesThePoleAsUp)
{
    Drawer.SetZenith(PolarCoord(30.0, 89.5));
    Drawer.UpdateAll(Dc);
    EXPECT_EQ(Drawer.GetTransformation()->GetZenith(), PolarCoord(30.0, 90.0));
    Drawer.SetZenith(PolarCoord(30.0, 89.0));
    Drawer.UpdateAll(Dc);
    EXPECT_EQ(Drawer.GetTransformation()->GetZenith(), PolarCoord(30.0, 90.0));
    Drawer.SetZenith(PolarCoord(30.0, 88.5));
    Drawer.UpdateAll(Dc);
    EXPECT_EQ(Drawer.GetTransformation()->GetZenith(), PolarCoord(30.0, 89.5));
}

// The corners of a main view looking south at an altitude of 45 degrees, from latitude 40 N
// with the local sidereal time 100: 200 by 100 pixels, 20 degrees to the nearer edge.
struct SouthernView
{
    PolarCoord Zenith{100.0, 40.0};
    PolarCoord Centre{100.0, -5.0};
    TestDevice Screen;
    TRect Rect{0, 0, 200, 100};
    Transformation View{Screen.DC(), Rect, Centre, 20.0, Zenith};

    std::vector<PolarCoord> Corners() const
    {
        const TPoint corners[4] = {TPoint(0, 0), TPoint(200, 0), TPoint(200, 100), TPoint(0, 100)};
        const PolarCoord fallbacks[4] = {PolarCoord(315, 90), PolarCoord(45, 90),
                                         PolarCoord(135, 90), PolarCoord(225, 90)};
        std::vector<PolarCoord> field;
        for (int i = 0; i < 4; ++i) {
            field.push_back(DirectionDrawer::GetCornerPoint(View, corners[i], fallbacks[i]));
        }
        return field;
    }
};

TEST_F(DirectionDrawerTest, AViewToTheSouthIsOutlinedBelowTheZenithWithEastOnTheLeft)
{
    SouthernView view;
    const std::vector<PolarCoord> corners = view.Corners();
    // Orthographic view: a corner 111.8 pixels out, with 146.2 pixels to the sine, is 49.9
    // degrees from the centre of view.
    for (const PolarCoord& corner : corners) {
        EXPECT_NEAR(Apart(corner, view.Centre), 49.88, 0.05);
    }

    Drawer.ShowHorizon(false);
    Drawer.SetZenith(view.Zenith);
    Drawer.SetCenter(view.Centre);
    Drawer.SetField(corners);
    Drawer.UpdateAll(Dc);
    const std::vector<TPoint>& points = Drawer.GetFieldPoints();
    ASSERT_EQ(points.size(), 4u);

    // 200 pixels across the disc for 180 degrees: a degree is 10/9 pixel.
    const TPoint centre = CentreOf(Drawer.GetCircleRect());
    const double perDegree = kSize / 180.0;
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(Distance(points[i], centre), Apart(corners[i], view.Zenith) * perDegree, 1.5)
            << "corner " << i;
    }
    // The top of the view leans towards the zenith, its left towards the east.
    EXPECT_LT(points[0].y, points[3].y);
    EXPECT_LT(points[1].y, points[2].y);
    EXPECT_LT(points[0].x, points[1].x);
    EXPECT_LT(points[3].x, points[2].x);
    // The whole outline lies below the zenith, split by the meridian.
    for (const TPoint& p : points) {
        EXPECT_GT(p.y, centre.y);
    }
    EXPECT_NEAR(points[0].x + points[1].x, 2 * centre.x, 2);
    EXPECT_NEAR(points[3].x + points[2].x, 2 * centre.x, 2);
}

TEST_F(DirectionDrawerTest, ACornerOffTheHemisphereFallsBackToTheCentreOfView)
{
    // 80 degrees to the nearer edge of a wide strip: its corners lie beyond the visible disc.
    TestDevice screen;
    const PolarCoord centre(40.0, 10.0);
    Transformation wide(screen.DC(), TRect(0, 0, 400, 100), centre, 80.0, PolarCoord(0.0, 90.0));
    PolarCoord unused;
    ASSERT_FALSE(wide.ReverseTranslate(TPoint(0, 0), unused));
    const PolarCoord corner =
        DirectionDrawer::GetCornerPoint(wide, TPoint(0, 0), PolarCoord(315.0, 90.0));
    EXPECT_LT(Apart(corner, centre), 1e-6);

    // A corner within the view keeps its own direction.
    Transformation narrow(screen.DC(), TRect(0, 0, 100, 100), centre, 30.0, PolarCoord(0.0, 90.0));
    const PolarCoord own =
        DirectionDrawer::GetCornerPoint(narrow, TPoint(0, 0), PolarCoord(315.0, 90.0));
    EXPECT_GT(Apart(own, centre), 30.0);
}

TEST_F(DirectionDrawerTest, AFieldBeyondTheHorizonHasNoOutline)
{
    Drawer.SetZenith(PolarCoord(0.0, 89.9));
    Drawer.SetField({PolarCoord(0.0, -30.0), PolarCoord(20.0, -30.0), PolarCoord(20.0, -50.0),
                     PolarCoord(0.0, -50.0)});
    Drawer.UpdateAll(Dc);
    EXPECT_TRUE(Drawer.GetFieldPoints().empty());
    Drawer.Paint(Dc, Page.Bounds());
    EXPECT_EQ(Count(kField, Page.Bounds()), 0);

    // One corner above the horizon is enough for the whole outline.
    Drawer.SetField({PolarCoord(0.0, 10.0), PolarCoord(20.0, -30.0), PolarCoord(20.0, -50.0),
                     PolarCoord(0.0, -50.0)});
    Drawer.UpdateAll(Dc);
    EXPECT_EQ(Drawer.GetFieldPoints().size(), 4u);
}

TEST_F(DirectionDrawerTest, AClickOnTheDiscGivesBackTheDirectionUnderIt)
{
    SouthernView view;
    Drawer.SetTextFont(Font, Dc);
    Drawer.SetZenith(view.Zenith);
    Drawer.SetField(view.Corners());

    PolarCoord clicked;
    const TPoint centre = CentreOf(Drawer.GetCircleRect());
    ASSERT_TRUE(Drawer.ScreenToPolar(Dc, centre, clicked));
    EXPECT_LT(Apart(clicked, view.Zenith), 0.5);

    // Each corner of the outline leads back to its corner of the view, within a pixel's
    // worth of degrees.
    const double degreesPerPixel = 90.0 / (Drawer.GetCircleRect().Width() / 2.0);
    for (std::size_t i = 0; i < 4; ++i) {
        ASSERT_TRUE(Drawer.ScreenToPolar(Dc, Drawer.GetFieldPoints()[i], clicked));
        EXPECT_LT(Apart(clicked, view.Corners()[i]), 1.5 * degreesPerPixel) << "corner " << i;
    }

    // Outside the disc, in the corners of the rectangle, there is no direction; the
    // output stays as it was.
    const PolarCoord before = clicked;
    EXPECT_FALSE(Drawer.ScreenToPolar(Dc, TPoint(2, 2), clicked));
    EXPECT_FALSE(Drawer.ScreenToPolar(Dc, TPoint(kSize - 3, kSize - 3), clicked));
    EXPECT_EQ(clicked, before);

    // A drawer with no room for its disc takes no clicks.
    Drawer.SetRect(TRect(0, 0, 10, 10));
    EXPECT_FALSE(Drawer.ScreenToPolar(Dc, TPoint(5, 5), clicked));
}

TEST_F(DirectionDrawerTest, PaintDrawsRimCrossLettersAndAClosedOutline)
{
    SouthernView view;
    Drawer.SetTextFont(Font, Dc);
    Drawer.SetZenith(view.Zenith);
    Drawer.SetField(view.Corners());
    Drawer.Paint(Dc, Page.Bounds());

    const TRect c = Drawer.GetCircleRect();
    const TPoint mid = CentreOf(c);
    // The rim at its top, left and right.
    EXPECT_EQ(Page.ColorAt(mid.x, c.top), kHorizon);
    EXPECT_EQ(Page.ColorAt(c.left, mid.y), kHorizon);
    EXPECT_EQ(Page.ColorAt(c.right - 1, mid.y), kHorizon);
    // The cross: a twelfth of the disc each way, through the centre.
    const int arm = c.Width() / 12 / 2;
    EXPECT_EQ(Page.ColorAt(mid.x - arm, mid.y), kHorizon);
    EXPECT_EQ(Page.ColorAt(mid.x + arm, mid.y), kHorizon);
    EXPECT_EQ(Page.ColorAt(mid.x, mid.y - arm), kHorizon);
    EXPECT_EQ(Page.ColorAt(mid.x, mid.y + arm), kHorizon);
    EXPECT_EQ(Page.ColorAt(mid.x + arm + 2, mid.y), kWhite);
    EXPECT_EQ(Page.ColorAt(mid.x + arm, mid.y + 2), kWhite);

    // The outline runs through all four corners and back along the closing side.
    const std::vector<TPoint>& p = Drawer.GetFieldPoints();
    ASSERT_EQ(p.size(), 4u);
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_EQ(Page.ColorAt(p[i].x, p[i].y), kField) << "corner " << i;
    }
    const TPoint closing((p[3].x + p[0].x) / 2, (p[3].y + p[0].y) / 2);
    EXPECT_GT(Count(kField, TRect(closing.x - 1, closing.y - 1, closing.x + 2, closing.y + 2)), 0);

    // Each letter leaves black in its cell, on a transparent background.
    const int w = Drawer.GetTextWidth();
    const int h = Drawer.GetTextHeight();
    for (const TPoint& letter : {Drawer.GetNorthPoint(), Drawer.GetWestPoint(),
                                 Drawer.GetSouthPoint(), Drawer.GetEastPoint()}) {
        const TRect cell(letter.x, letter.y, letter.x + w, letter.y + h);
        EXPECT_GT(CountInk(RGB(0, 0, 0), cell), 5);
    }
}

TEST_F(DirectionDrawerTest, WithoutAFontTheRimAndCrossAreDrawnButNoLetters)
{
    Drawer.SetZenith(PolarCoord(100.0, 40.0));
    Drawer.Paint(Dc, Page.Bounds());
    const TRect c = Drawer.GetCircleRect();
    const TPoint mid = CentreOf(c);
    EXPECT_EQ(Page.ColorAt(mid.x, c.top), kHorizon);
    EXPECT_EQ(Page.ColorAt(mid.x, mid.y), kHorizon);
    EXPECT_EQ(CountInk(RGB(0, 0, 0), Page.Bounds()), 0);
    // No field was given: no outline.
    EXPECT_EQ(Count(kField, Page.Bounds()), 0);

    // Without the horizon only the cross is left.
    Dc.FillRect(Page.Bounds(), TBrush(TColor::White));
    Drawer.ShowHorizon(false);
    Drawer.Paint(Dc, Page.Bounds());
    const TRect full = Drawer.GetCircleRect();
    EXPECT_EQ(Page.ColorAt(CentreOf(full).x, full.top), kWhite);
    EXPECT_EQ(Page.ColorAt(CentreOf(full).x, CentreOf(full).y), kHorizon);
}

} // namespace
