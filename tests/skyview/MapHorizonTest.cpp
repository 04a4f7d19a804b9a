// The horizon line of a view from the ground: when it is drawn, where its 200 points lie, what
// happens at a pole of the sky, and the map's part: drawn only for a view on the ground with the
// horizon shown, worked out again after a resize.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "MapFixture.h"
#include "SkyCanvas.h"
#include "platform/DebugStream.h"
#include "projection/RotatingOrientationInfo.h"
#include "solar/Earth200.h"

namespace {

unsigned Magenta()
{
    return IndexOf(TColor(255, 0, 255));
}

// The horizon drawn onto a 240 by 160 canvas by a map that has no window, for a view from
// latitude 50 N at 2000 January 1, 0h UT: azimuth (0 north, 90 west) and zenith distance of the
// centre of view, and the field radius.
class HorizonTest : public ::testing::Test
{
protected:
    // The rotations report the rounding they clamp near the pole of a frame; not looked at.
    void SetUp() override
    {
        Earth.SetTime(AstroTime(1, 1, 2000, 0.0));
        Quiet = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Quiet); }

    std::vector<TPoint> Draw(double azimuth, double zenithDistance, double radius)
    {
        const RotatingOrientationInfo o(&Earth, LatLong(50.0, 0.0),
                                        PolarCoord(azimuth, zenithDistance), radius, false);
        View = std::make_unique<Transformation>(Canvas.GetDC(), TRect(0, 0, 240, 160),
                                                o.GetCenterOfView(), radius, o.GetZenith());
        Zenith = o.GetZenith();
        Map.DrawHorizon(Canvas.GetDC(), o, *View, TRect(0, 0, 240, 160));
        return Map.GetHorizonPoints();
    }

    Earth200 Earth;
    MapWindow Map{nullptr};
    SkyCanvas Canvas{240, 160};
    std::unique_ptr<Transformation> View;
    PolarCoord Zenith;
    DebugSink Quiet;
};

} // namespace

TEST_F(HorizonTest, ItIsDrawnOnlyWhenTheFieldComesWithinFifteenDegreesOfIt)
{
    // 40 degrees from the zenith and 34 to the edge: the field ends 16 degrees short.
    EXPECT_TRUE(Draw(180.0, 40.0, 34.0).empty());
    EXPECT_EQ(CountValue(Canvas.GetSurface(), Magenta()), 0);
    EXPECT_EQ(Draw(180.0, 40.0, 35.0).size(), 200u);
}

TEST_F(HorizonTest, ItsPointsLieOnTheHorizonAcrossTwiceTheFieldSymmetricAboutTheView)
{
    // South, 10 degrees up, 20 to the nearer edge: 233.9 pixels to the radian's sine, so the
    // horizon passes 40.6 pixels below the centre (120, 80), lowest there.
    const std::vector<TPoint> points = Draw(180.0, 80.0, 20.0);
    ASSERT_EQ(points.size(), 200u);
    EXPECT_NEAR(points[100].x, 120, 1);
    EXPECT_EQ(points[100].y, 120);
    EXPECT_EQ(Canvas.IndexAt(points[100].x, points[100].y), Magenta());
    for (std::size_t i = 1; i < 100; ++i) {
        EXPECT_LE(std::abs((points[i].x - 120) + (points[200 - i].x - 120)), 1) << i;
        EXPECT_LE(std::abs(points[i].y - points[200 - i].y), 1) << i;
        EXPECT_LE(points[i].y, points[100].y) << i;
    }
    // Read back, each is 90 degrees from the zenith to the pixel; the first, on the right, at
    // azimuth 160, 20 degrees west of south.
    for (const TPoint& p : points) {
        PolarCoord sky;
        ASSERT_TRUE(View->ReverseTranslate(p, sky));
        EXPECT_NEAR(Apart(sky, Zenith), 90.0, 0.5);
    }
    PolarCoord first;
    View->ReverseTranslate(points.front(), first);
    RotatingOrientationInfo probe(&Earth, LatLong(50.0, 0.0), PolarCoord(), 10.0, false);
    probe.SetCenterOfView(first);
    EXPECT_NEAR(probe.GetZenithOffset().GetRA().GetDegrees(), 160.0, 0.5);
}

TEST_F(HorizonTest, AtAPoleOfTheSkyTheHorizonIsTheEquator)
{
    // A zenith within a tenth of a degree of the pole, as at the North Pole; looking towards
    // RA 30, 10 degrees up.
    for (double zenithDec : {89.95, 90.0}) {
        const Transformation t(Canvas.GetDC(), TRect(0, 0, 240, 160), PolarCoord(30.0, 10.0), 30.0,
                               PolarCoord(30.0, zenithDec));
        const RotatingOrientationInfo o(&Earth, LatLong(90.0, 0.0), PolarCoord(180.0, 80.0), 30.0,
                                        false);
        Map.DrawHorizon(Canvas.GetDC(), o, t, TRect(0, 0, 240, 160));
        int onEquator = 0;
        for (const TPoint& p : Map.GetHorizonPoints()) {
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

TEST_F(MapHorizonTest, TheMapDrawsItForAViewOnTheGroundWithTheHorizonShownAndAfterAResize)
{
    RecordingMap& map = Open(240, 160);
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    // South at 30 degrees up, 30 to the nearer edge: the arc of the horizon below the middle.
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 60.0), 30.0, true));
    Pump();
    const std::vector<TPoint> before = map.GetHorizonPoints();
    ASSERT_EQ(before.size(), 200u);
    EXPECT_GT(CountValue(Bitmap(), Magenta()), 50);
    // Half the size, half the distances from the centre, to the pixel.
    map.MoveWindow(0, 0, 120, 80);
    Pump();
    const std::vector<TPoint>& after = map.GetHorizonPoints();
    ASSERT_EQ(after.size(), 200u);
    for (std::size_t i = 0; i < after.size(); i += 20) {
        EXPECT_NEAR(after[i].x - 60, (before[i].x - 120) / 2.0, 1.0) << i;
        EXPECT_NEAR(after[i].y - 40, (before[i].y - 80) / 2.0, 1.0) << i;
    }
    // Hidden, the line goes and clipping stays as it was; a view fixed on the stars has none.
    DisplayParameters shown = map.GetDisplayParameters();
    DisplayParameters hidden = shown;
    hidden.bShowHorizon = false;
    map.SetDisplayParameters(hidden);
    Pump();
    EXPECT_EQ(CountValue(Bitmap(), Magenta()), 0);
    EXPECT_TRUE(map.IsClippedAtHorizon());
    map.SetDisplayParameters(shown);
    map.SetOrientation(NorthUp(Orion(), 90.0));
    Pump();
    EXPECT_EQ(CountValue(Bitmap(), Magenta()), 0);
}
