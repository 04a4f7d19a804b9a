// The horizon line of a view from the ground: drawn only when the field comes within 15
// degrees of it and the horizon is shown, through points that lie on it, also at a pole of the
// sky, and worked out again after a resize; and the ground below it. That it crosses views of
// every shape is checked by the whole-program pictures of views from 50 N.
#include <gtest/gtest.h>

#include <vector>

#include "MapFixture.h"
#include "catalogues/ConstellationSettings.h"
#include "projection/RotatingOrientationInfo.h"

namespace {

class MapHorizonTest : public MapTest
{
protected:
    // At 2000 January 1, 0h UT, from a latitude; azimuth (0 north, 90 west) and zenith distance
    // of the centre of view, and the field radius.
    RecordingMap& Look(double latitude, double azimuth, double zenithDistance, double radius)
    {
        RecordingMap& map = pHost ? Map() : Open(240, 160);
        map.SetTime(AstroTime(1, 1, 2000, 0.0));
        map.SetOrientation(
            RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(latitude, 0.0),
                                    PolarCoord(azimuth, zenithDistance), radius, false));
        Pump();
        return map;
    }
    int Magenta() { return CountValue(Bitmap(), IndexOf(TColor(255, 0, 255))); }
};

} // namespace

TEST_F(MapHorizonTest, ItIsDrawnWhenTheFieldComesWithinFifteenDegreesOfItAndLiesOnIt)
{
    // 40 degrees from the zenith and 34 to the edge: the field ends 16 degrees short.
    EXPECT_TRUE(Look(50.0, 180.0, 40.0, 34.0).GetHorizonPoints().empty());
    EXPECT_EQ(Magenta(), 0);
    EXPECT_FALSE(Look(50.0, 180.0, 40.0, 35.0).GetHorizonPoints().empty());

    // At the North Pole (the zenith a tenth of a degree or less from the pole of the sky) the
    // horizon is the equator; elsewhere every point is 90 degrees from the zenith.
    for (double latitude : {50.0, 89.95, 90.0}) {
        RecordingMap& map = Look(latitude, 180.0, 80.0, 20.0);
        int on = 0;
        for (const TPoint& p : map.GetHorizonPoints()) {
            PolarCoord sky;
            if (map.MapWindowPointToPolarCoord(p, sky)) {
                EXPECT_NEAR(Apart(sky, map.GetOrientation().GetZenith()), 90.0, 0.6) << latitude;
                ++on;
            }
        }
        EXPECT_GT(on, 100) << latitude;
        EXPECT_GT(Magenta(), 100) << latitude;
    }
}

TEST_F(MapHorizonTest, AfterAResizeItIsWorkedOutAgainAndHiddenOrOnAFixedViewItIsNotDrawn)
{
    RecordingMap& map = Look(50.0, 180.0, 60.0, 30.0);
    const std::vector<TPoint> before = map.GetHorizonPoints();
    ASSERT_FALSE(before.empty());
    // Half the size, half the distances from the centre, to the pixel.
    map.MoveWindow(0, 0, 120, 80);
    Pump();
    const std::vector<TPoint>& after = map.GetHorizonPoints();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); i += 20) {
        EXPECT_NEAR(after[i].x - 60, (before[i].x - 120) / 2.0, 1.0) << i;
        EXPECT_NEAR(after[i].y - 40, (before[i].y - 80) / 2.0, 1.0) << i;
    }
    // Hidden, the line goes and clipping stays as it was; a view fixed on the stars has none.
    DisplayParameters shown = map.GetDisplayParameters();
    DisplayParameters hidden = shown;
    hidden.bShowHorizon = false;
    map.SetDisplayParameters(hidden);
    map.ClipAtHorizon(true);
    Pump();
    EXPECT_EQ(Magenta(), 0);
    EXPECT_TRUE(map.IsClippedAtHorizon());
    map.SetDisplayParameters(shown);
    map.SetOrientation(NorthUp(Orion(), 90.0));
    Pump();
    EXPECT_EQ(Magenta(), 0);
}

TEST_F(MapHorizonTest, TheGroundBelowItHidesTheSkyOnlyWhileTheViewIsKeptAboveIt)
{
    // A window three times as wide as high, looking 10 degrees up, whose line runs out of it
    // on both sides: each pixel is ground exactly when it lies below the horizon, stars or
    // none. A view that may sink below the horizon has no ground.
    Open(480, 160, true);
    Map().ShowPlanets(false);
    Map().SetConstellationSettings(ConstellationSettings(false, false, false));
    RecordingMap& map = Look(50.0, 180.0, 80.0, 10.0);
    const unsigned ground = IndexOf(TColor(40, 40, 40));
    int wrong = 0;
    int below = 0;
    for (int y = 0; y < 160; ++y) {
        for (int x = 0; x < 480; ++x) {
            PolarCoord sky;
            if (Bitmap().ValueAt(x, y) == IndexOf(TColor(255, 0, 255)) ||
                !map.MapWindowPointToPolarCoord(TPoint(x, y), sky)) {
                continue;
            }
            const bool isBelow = Apart(sky, map.GetOrientation().GetZenith()) > 90.0;
            below += isBelow;
            wrong += isBelow != (Bitmap().ValueAt(x, y) == ground);
        }
    }
    EXPECT_GT(below, 500);
    EXPECT_LT(wrong, 20) << "of " << below;
    map.ClipAtHorizon(false);
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    Pump();
    EXPECT_EQ(CountValue(Bitmap(), ground), 0);
}
