// The map with a view from the ground: its first view, a projection that turns with the
// time, the place and the clip switch, and the view's way through the map's state.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "MapFixture.h"
#include "coords/AngleMath.h"
#include "host/HostCmdLine.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "state/CmdLineStateContainer.h"

namespace {

const RotatingOrientationInfo* Ground(const MapWindow& map)
{
    return dynamic_cast<const RotatingOrientationInfo*>(&map.GetOrientation());
}

double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double c = std::sin(a.GetDec().GetRadians()) * std::sin(b.GetDec().GetRadians()) +
                     std::cos(a.GetDec().GetRadians()) * std::cos(b.GetDec().GetRadians()) *
                         std::cos(a.GetRA().GetRadians() - b.GetRA().GetRadians());
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, c))));
}

class MapGroundViewTest : public MapTest
{
protected:
    // From latitude 50 N, longitude 10 W, south at 30 degrees, field 20.
    MapWindow& OpenOnTheGround()
    {
        MapWindow& map = Open(160, 120);
        map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(),
                                                   LatLong(50.0, 10.0), PolarCoord(180.0, 60.0),
                                                   20.0, true));
        map.SetTime(AstroTime(1, 1, 2000, 0.0));
        Pump();
        return map;
    }
};

} // namespace

TEST(MapFirstView, ANewMapLooksEastFromSanFranciscoThirtyDegreesUp)
{
    MapWindow map(nullptr);
    const RotatingOrientationInfo* ground = Ground(map);
    ASSERT_NE(ground, nullptr);
    EXPECT_EQ(ground->GetOrigin(), map.GetCollector().GetOrigin());
    EXPECT_EQ(ground->GetLocation(), LatLong(37.8, 122.4));
    EXPECT_EQ(ground->GetZenithOffset(), PolarCoord(270.0, 60.0));
    EXPECT_EQ(ground->GetFieldRadius(), 20.0);
    EXPECT_TRUE(map.IsClippedAtHorizon());
}

TEST_F(MapGroundViewTest, AsTheTimeRunsTheProjectionTurnsWithTheSky)
{
    MapWindow& map = OpenOnTheGround();
    const PolarCoord before = map.GetTransformation()->GetCenterOfView();
    const int changes = pHost->nFieldChanges;

    // An hour later the same place and offset look at sky 15.04 degrees further east.
    map.SetTime(AstroTime(1, 1, 2000, 1.0));
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 1) << "a new projection";
    const PolarCoord after = map.GetTransformation()->GetCenterOfView();
    EXPECT_NEAR(after.GetRA().GetDegrees() - before.GetRA().GetDegrees(), 15.0 * 1.0027379093,
                1e-6);
    EXPECT_NEAR(after.GetDec().GetDegrees(), before.GetDec().GetDegrees(), 1e-9);
    EXPECT_EQ(Ground(map)->GetZenithOffset(), PolarCoord(180.0, 60.0));
}

TEST_F(MapGroundViewTest, ACentreChosenWhileTheTimeIsDirtyIsSeenAtTheNewTime)
{
    MapWindow& map = OpenOnTheGround();
    // A direction 49 degrees up in the south-west at the new time: the offset must be worked
    // out against the sky of that time, not of the old one.
    const AstroTime later(1, 1, 2000, 5.0);
    map.SetTime(later);
    ASSERT_TRUE(map.IsTimeDirty());
    const PolarCoord target(130.0, 20.0);
    map.ChangeCenterOfView(target);
    Pump();
    EXPECT_LT(Apart(map.GetTransformation()->GetCenterOfView(), target), 1e-6);
    EXPECT_LT(Apart(map.GetOrientation().GetCenterOfView(), target), 1e-6);
}

TEST_F(MapGroundViewTest, ANewPlaceGivesANewProjectionAndAFixedViewHasNone)
{
    MapWindow& map = OpenOnTheGround();
    map.SetGridInfo(ShownGrid());
    Pump();
    ASSERT_FALSE(map.IsAnythingDirty());
    const PolarCoord before = map.GetTransformation()->GetCenterOfView();

    // 15 degrees further west: the same offset looks at sky an hour of RA further west.
    map.SetLocation(LatLong(50.0, 25.0));
    EXPECT_TRUE(map.IsTransformationDirty());
    EXPECT_TRUE(map.IsGridDirty());
    EXPECT_EQ(Ground(map)->GetLocation(), LatLong(50.0, 25.0));
    Pump();
    EXPECT_NEAR(before.GetRA().GetDegrees() -
                    map.GetTransformation()->GetCenterOfView().GetRA().GetDegrees(),
                15.0, 1e-6);

    // The clip switch raises nothing.
    map.ClipAtHorizon(false);
    EXPECT_FALSE(map.IsClippedAtHorizon());
    EXPECT_FALSE(map.IsAnythingDirty());
    map.ClipAtHorizon(true);
    EXPECT_TRUE(map.IsClippedAtHorizon());

    // A view fixed on the stars has no place and no switch.
    const PolarCoord centre(84.0, 0.0);
    map.SetOrientation(
        FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre), 30.0));
    Pump();
    ASSERT_FALSE(map.IsAnythingDirty());
    map.SetLocation(LatLong(10.0, 10.0));
    map.ClipAtHorizon(true);
    EXPECT_FALSE(map.IsAnythingDirty());
    EXPECT_FALSE(map.IsClippedAtHorizon());
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), centre);
}

TEST_F(MapGroundViewTest, TheViewComesBackFromTheFullAndTheDefaultState)
{
    MapWindow& map = OpenOnTheGround();
    CmdLineStateContainer full;
    full << AstroKey("MapWindow") << map;
    const std::string text = full.GetCmdLine().GetRawText();
    EXPECT_NE(text.find("Orientation_Type=1 Orientation=<Base=<Radius=20> Location=<Lat=50 "
                        "Long=10> Zenith_Offset=<RA=180 Dec=60>>"),
              std::string::npos)
        << text;

    // Into a map that looks at the stars.
    MapWindow copy(nullptr);
    const PolarCoord centre(84.0, 0.0);
    copy.SetOrientation(
        FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre), 30.0));
    CmdLineStateContainer in{HostCmdLine(text)};
    in >> AstroKey("MapWindow") >> copy;
    const RotatingOrientationInfo* ground = Ground(copy);
    ASSERT_NE(ground, nullptr);
    EXPECT_EQ(ground->GetOrigin(), copy.GetCollector().GetOrigin()) << "the copy's own Earth";
    EXPECT_EQ(ground->GetLocation(), LatLong(50.0, 10.0));
    EXPECT_EQ(ground->GetZenithOffset(), PolarCoord(180.0, 60.0));
    EXPECT_EQ(ground->GetFieldRadius(), 20.0);

    CmdLineStateContainer defaults;
    map.SaveDefaultState(defaults);
    MapWindow restored(nullptr);
    restored.SetOrientation(
        FixedOrientationInfo(nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre), 30.0));
    CmdLineStateContainer back{defaults.GetCmdLine()};
    restored.RestoreDefaultState(back);
    ASSERT_NE(Ground(restored), nullptr);
    EXPECT_EQ(Ground(restored)->GetZenithOffset(), PolarCoord(180.0, 60.0));

    // Any type but 0 is a view on the ground.
    MapWindow odd(nullptr);
    CmdLineStateContainer oddState{
        HostCmdLine("MapWindow=<Orientation_Type=7 Orientation=<Base=<Radius=15> "
                    "Location=<Lat=-33.9 Long=208.8> Zenith_Offset=<RA=90 Dec=45>>>")};
    oddState >> AstroKey("MapWindow") >> odd;
    ASSERT_NE(Ground(odd), nullptr);
    EXPECT_EQ(Ground(odd)->GetLocation(), LatLong(-33.9, 208.8));
}
