// The horizon line of a view from the ground: when it is drawn, where its 200 points lie,
// when they are kept, what happens at a pole of the sky, and the map's part: drawn only for a
// view on the ground with the horizon shown, worked out again after a resize.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "MapFixture.h"
#include "SkyCanvas.h"
#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/ProjectionTesting.h"
#include "projection/RotatingOrientationInfo.h"
#include "solar/Earth200.h"

namespace {

unsigned HorizonIndex()
{
    return HostPalette().GetNearestPaletteIndex(TColor(255, 0, 255));
}

int CountIndex(Surface& surface, unsigned index)
{
    int n = 0;
    for (int y = 0; y < surface.Height(); ++y) {
        for (int x = 0; x < surface.Width(); ++x) {
            n += surface.ValueAt(x, y) == index;
        }
    }
    return n;
}

// Degrees between two directions.
double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double c = std::sin(a.GetDec().GetRadians()) * std::sin(b.GetDec().GetRadians()) +
                     std::cos(a.GetDec().GetRadians()) * std::cos(b.GetDec().GetRadians()) *
                         std::cos(a.GetRA().GetRadians() - b.GetRA().GetRadians());
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, c))));
}

// The horizon drawn straight onto a canvas by a map that has no window: the view from
// latitude 50 N at 2000 January 1, 0h UT.
class HorizonTest : public ::testing::Test
{
protected:
    HorizonTest() : Map(nullptr), Canvas(kWidth, kHeight)
    {
        Earth.SetTime(AstroTime(1, 1, 2000, 0.0));
    }
    // The rotations report the rounding they clamp near the pole of a frame; not looked at.
    void SetUp() override
    {
        Quiet = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Quiet); }

    // Azimuth (0 north, 90 west) and zenith distance, with clip off so that nothing moves.
    RotatingOrientationInfo Looking(double azimuth, double zenithDistance, double radius)
    {
        return RotatingOrientationInfo(&Earth, LatLong(50.0, 0.0),
                                       PolarCoord(azimuth, zenithDistance), radius, false);
    }
    Transformation View(const RotatingOrientationInfo& o, const TRect& rect = kRect)
    {
        return Transformation(Canvas.GetDC(), rect, o.GetCenterOfView(), o.GetFieldRadius(),
                              o.GetZenith());
    }
    const std::vector<TPoint>& Draw(const RotatingOrientationInfo& o, const Transformation& t,
                                    const TRect& rect = kRect)
    {
        Map.DrawHorizon(Canvas.GetDC(), o, t, rect);
        return Map.GetHorizonPoints();
    }
    void ClearCanvas() { Canvas.GetDC().FillRect(kRect, TBrush(TColor::Black)); }

    static constexpr int kWidth = 240;
    static constexpr int kHeight = 160;
    static inline const TRect kRect{0, 0, kWidth, kHeight};

    Earth200 Earth;
    MapWindow Map;
    SkyCanvas Canvas;
    DebugSink Quiet;
};

} // namespace

TEST_F(HorizonTest, ItIsDrawnOnlyWhenTheFieldComesWithinFifteenDegreesOfIt)
{
    // 40 degrees from the zenith and 34 to the edge: the field ends 16 degrees short.
    const RotatingOrientationInfo short34 = Looking(180.0, 40.0, 34.0);
    EXPECT_TRUE(Draw(short34, View(short34)).empty());
    EXPECT_EQ(CountIndex(Canvas.GetSurface(), HorizonIndex()), 0);

    const RotatingOrientationInfo near35 = Looking(180.0, 40.0, 35.0);
    EXPECT_EQ(Draw(near35, View(near35)).size(), 200u);
}

TEST_F(HorizonTest, ItsPointsFollowTheHorizonAcrossTwiceTheFieldRadius)
{
    // South, 10 degrees up, 20 to the nearer edge: 233.9 pixels to the radian's sine, so the
    // horizon passes 40.6 pixels below the centre (120, 80).
    const RotatingOrientationInfo o = Looking(180.0, 80.0, 20.0);
    const Transformation t = View(o);
    const std::vector<TPoint>& points = Draw(o, t);
    ASSERT_EQ(points.size(), 200u);
    EXPECT_NEAR(points[100].x, 120, 1);
    EXPECT_EQ(points[100].y, 120);

    // From azimuth 160, west of south, on the right, to 199.8 on the left, symmetric about the
    // middle and lowest there.
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_LE(points[i].x, points[i - 1].x) << i;
    }
    for (std::size_t i = 1; i < 100; ++i) {
        EXPECT_LE(std::abs((points[i].x - 120) + (points[200 - i].x - 120)), 1) << i;
        EXPECT_LE(std::abs(points[i].y - points[200 - i].y), 1) << i;
        EXPECT_LE(points[i].y, points[100].y) << i;
    }

    // Every point read back lies on the horizon, 90 degrees from the zenith, to the pixel;
    // the first at azimuth 160.
    const PolarCoord zenith = o.GetZenith();
    for (const TPoint& p : points) {
        PolarCoord sky;
        ASSERT_TRUE(t.ReverseTranslate(p, sky)) << testing::PrintToString(p);
        EXPECT_NEAR(Apart(sky, zenith), 90.0, 0.5) << testing::PrintToString(p);
    }
    PolarCoord first;
    t.ReverseTranslate(points.front(), first);
    RotatingOrientationInfo probe = Looking(0.0, 0.0, 0.0);
    probe.SetCenterOfView(first);
    EXPECT_NEAR(probe.GetZenithOffset().GetRA().GetDegrees(), 160.0, 0.5);

    // The line is drawn in magenta through the points, and nothing above them.
    Surface& pixels = Canvas.GetSurface();
    EXPECT_EQ(pixels.ValueAt(points[100].x, points[100].y), HorizonIndex());
    int highest = kHeight;
    for (const TPoint& p : points) {
        highest = std::min(highest, p.y);
    }
    for (int y = 0; y < highest; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            ASSERT_NE(pixels.ValueAt(x, y), HorizonIndex()) << x << " " << y;
        }
    }
    EXPECT_GE(CountIndex(pixels, HorizonIndex()), points.front().x - points.back().x);
}

TEST_F(HorizonTest, ItsPointsAreKeptUntilTheOffsetTheRadiusOrTheRectangleChange)
{
    const RotatingOrientationInfo o = Looking(180.0, 80.0, 20.0);
    const std::vector<TPoint> first = Draw(o, View(o));

    // The horizon depends on the view against the horizon, not on the sky: handed the
    // projection of another part of the sky, the same view keeps its points, and draws them.
    const PolarCoord elsewhere(0.0, 0.0);
    const Transformation other(Canvas.GetDC(), kRect, elsewhere, 20.0,
                               FixedOrientationInfo::NorthUpZenith(elsewhere));
    ClearCanvas();
    EXPECT_EQ(Draw(o, other), first);
    EXPECT_EQ(Canvas.IndexAt(first[100].x, first[100].y), HorizonIndex());

    // So a time lapse keeps them too, although its projections differ.
    Earth.SetTime(AstroTime(1, 1, 2000, 3.0));
    EXPECT_EQ(Draw(o, View(o)), first);

    // Another offset, radius or rectangle makes them anew, here through the projection of
    // the other part of the sky, so that new points differ from the kept ones.
    auto remade = [&](const RotatingOrientationInfo& changed, const TRect& rect) {
        EXPECT_EQ(Draw(o, View(o)), first) << "made anew alike for the first view";
        return Draw(changed, other, rect) != first;
    };
    EXPECT_TRUE(remade(o, TRect(0, 0, 200, 160))) << "another rectangle";
    EXPECT_TRUE(remade(Looking(182.0, 80.0, 20.0), kRect)) << "another azimuth";
    EXPECT_TRUE(remade(Looking(180.0, 81.0, 20.0), kRect)) << "another height";
    EXPECT_TRUE(remade(Looking(180.0, 80.0, 25.0), kRect)) << "another radius";
    EXPECT_FALSE(remade(o, kRect)) << "the same view keeps them";
}

TEST_F(HorizonTest, AtAPoleOfTheSkyTheFrameIsKeptDefined)
{
    // A zenith within a tenth of a degree of the pole, as an observer at the North Pole has
    // it: the horizon is the celestial equator.
    for (double zenithDec : {89.95, 90.0}) {
        const PolarCoord centre(30.0, 10.0);
        const Transformation t(Canvas.GetDC(), kRect, centre, 30.0, PolarCoord(30.0, zenithDec));
        // Looking away from the pole, towards RA 30, 10 degrees up.
        const RotatingOrientationInfo o(&Earth, LatLong(90.0, 0.0), PolarCoord(180.0, 80.0), 30.0,
                                        false);
        const std::vector<TPoint>& points = Draw(o, t);
        ASSERT_EQ(points.size(), 200u);
        int onEquator = 0;
        for (const TPoint& p : points) {
            ASSERT_LT(std::abs(p.x), 10000) << zenithDec;
            ASSERT_LT(std::abs(p.y), 10000) << zenithDec;
            PolarCoord sky;
            if (t.ReverseTranslate(p, sky)) {
                EXPECT_NEAR(sky.GetDec().GetDegrees(), 0.0, 0.6) << zenithDec;
                ++onEquator;
            }
        }
        EXPECT_GT(onEquator, 100) << zenithDec;
    }
}

using MapHorizonTest = MapTest;

TEST_F(MapHorizonTest, TheMapDrawsItForAViewOnTheGroundWithTheHorizonShown)
{
    MapWindow& map = Open(240, 160);
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    // South at 20 degrees, field 20: the lower edge of the field on the horizon, whose arc
    // rises into the picture towards its sides.
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 70.0), 20.0, true));
    Pump();
    EXPECT_EQ(map.GetHorizonPoints().size(), 200u);
    const int drawn = CountIndex(Bitmap(), HorizonIndex());
    EXPECT_GT(drawn, 50);
    EXPECT_EQ(Bitmap().ValueAt(2, 20), 0u) << "the sky above it";

    // Hidden, the line goes, and clipping stays as it was.
    DisplayParameters hidden = map.GetDisplayParameters();
    hidden.bShowHorizon = false;
    map.SetDisplayParameters(hidden);
    Pump();
    EXPECT_EQ(CountIndex(Bitmap(), HorizonIndex()), 0);
    EXPECT_TRUE(map.IsClippedAtHorizon());

    // A view fixed on the stars has no horizon.
    DisplayParameters shown = map.GetDisplayParameters();
    shown.bShowHorizon = true;
    map.SetDisplayParameters(shown);
    const PolarCoord centre(84.0, 0.0);
    map.SetOrientation(
        FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre), 90.0));
    Pump();
    EXPECT_EQ(CountIndex(Bitmap(), HorizonIndex()), 0);
}

TEST_F(MapHorizonTest, AfterAResizeItIsWorkedOutForTheNewRectangle)
{
    MapWindow& map = Open(240, 160);
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 60.0), 30.0, true));
    Pump();
    const std::vector<TPoint> before = map.GetHorizonPoints();
    ASSERT_EQ(before.size(), 200u);

    map.MoveWindow(0, 0, 120, 80);
    Pump();
    const std::vector<TPoint>& after = map.GetHorizonPoints();
    ASSERT_EQ(after.size(), 200u);
    // Half the size, half the distances from the centre, to the pixel.
    for (std::size_t i = 0; i < after.size(); i += 20) {
        EXPECT_NEAR(after[i].x - 60, (before[i].x - 120) / 2.0, 1.0) << i;
        EXPECT_NEAR(after[i].y - 40, (before[i].y - 80) / 2.0, 1.0) << i;
    }
}
