// The component as a host starts it: the entry makes the component window inside the host's
// frame with the map set in by the bezel; command strings bring named objects into view and
// bookmarks whole views. The default state is driven in AstroNoxWindowCommandsTest.
#include <memory>
#include <string>

#include "ComponentInFrame.h"
#include "host/HostBookmark.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/AstroStatusWindow.h"

namespace {

// A view unlike the map's own: the Pleiades, narrow, with a grid of 12 by 18 lines.
const char* const kPleiades =
    "FullState=1 AstroNoxWindow=<MapWindow=<Grid=<Show=1 NumberOfRALines=12 "
    "NumberOfDecLines=18> Orientation_Type=0 Orientation=<Base=<Radius=5> "
    "CenterOfView=<RA=56.75 Dec=24.1167> Zenith=<RA=56.75 Dec=90>>>>";

class AstroNoxWindowTest : public ComponentInFrame
{
protected:
    static std::unique_ptr<HostBookmark> BookmarkOf(AstroNoxWindow& window)
    {
        return std::unique_ptr<HostBookmark>(reinterpret_cast<HostBookmark*>(
            window.SendMessage(AstroNoxWindow::kCreateBookmarkMessage, 0, 0)));
    }
    static void Open(AstroNoxWindow& window, const HostBookmark* bookmark)
    {
        EXPECT_EQ(window.SendMessage(AstroNoxWindow::kNewBookmarkMessage, 0, LPARAM(bookmark)), 1);
        Pump();
    }
};

// A bookmark can ask for the status panel: a fifth of the width at the left, with the map beside
// it. Without it the map fills the frame inside the bezel, and follows the frame's size.
TEST_F(AstroNoxWindowTest, TheMapFillsTheFrameInsideTheBezelBesideTheStatusPanelIfAskedFor)
{
    AstroNoxWindow& window = Start("FullState=1 AstroNoxWindow=<DisplayStatusWindow=1>");
    const int bezel = Frame.GetMetric(kHostMetricBezelWidth);
    ASSERT_NE(window.GetStatusWindow(), nullptr);
    EXPECT_EQ(window.GetStatusWindow()->GetRect(), TRect(5, 0, 65, 200));
    EXPECT_EQ(window.GetMap()->GetRect().left, 65 + Frame.GetMetric(kHostMetricBezelGap) + bezel);
    window.HandleCommandString(kPleiades);
    EXPECT_EQ(window.GetStatusWindow(), nullptr);
    for (const TSize size : {TSize(300, 200), TSize(400, 260)}) {
        FrameWindow.MoveWindow(0, 0, size.cx, size.cy);
        Pump();
        EXPECT_EQ(window.GetRect(), TRect(TPoint(0, 0), size));
        EXPECT_EQ(window.GetMap()->GetRect(),
                  TRect(bezel, bezel, size.cx - bezel, size.cy - bezel));
        // The sunken edge: dark above and to the left, light below and to the right.
        auto screen = WindowSystem::Get().CaptureWindow(window.HWindow);
        EXPECT_EQ(screen->ColorAt(size.cx / 2, 0), RGB(128, 128, 128));
        EXPECT_EQ(screen->ColorAt(size.cx / 2, size.cy - 1), RGB(255, 255, 255));
    }
    EXPECT_EQ(orbiscope(nullptr, nullptr), 0u) << "no parent";
    EXPECT_EQ(orbiscope(HWND(std::uintptr_t(0x7FFFFFF0u)), kPleiades), 0u) << "no window";
}

// Command strings name an object as the links of the host's articles do, by catalogue word and
// reference name ("stringref") or by uid ("uid"), and bring it into view.
TEST_F(AstroNoxWindowTest, ObjectsAreFoundByWordAndNameOrByUidAndOthersChangeNothing)
{
    // A chart fixed on the stars at 0h UT on 2000 January 1: it shows whatever is named
    // without asking about the horizon.
    AstroNoxWindow& window = Start(
        "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=20> "
        "CenterOfView=<RA=0 Dec=0> Zenith=<RA=0 Dec=90>> Time=<Year=2000 Month=1 Day=1 Hour=0 "
        "Minute=0 Second=0 Mode=0>>>");
    MapWindow& map = *window.GetMap();
    const std::pair<const char*, const char*> cases[] = {
        {"stringref=Planet,mars", "Mars"},
        {"stringref=constellation,ORION", "Orion"},
        {"stringref=Messier,m42", "M42 (Orion Nebula)"},
        {"uid=1879048503", "Sun"},                        // the uid base 0x70000000 and 311
        {"uid=0x7000003C", "Orion"},                      // the 60th constellation, in hexadecimal
        {"uid=1879048503 stringref=Planet,Mars", "Mars"}, // the name wins
        {"orbiscope stringref=STAR,sirius", "Sirius"},
    };
    map.ShowMessierObjects(false);
    for (const auto& [command, target] : cases) {
        map.ChangeCenterOfView(PolarCoord(0, 0));
        Pump();
        window.HandleCommandString(command);
        Pump();
        EXPECT_EQ(map.GetLastTargetName(), target) << command;
        EXPECT_NE(map.GetOrientation().GetCenterOfView(), PolarCoord(0, 0)) << command;
    }
    EXPECT_TRUE(map.IsShowingMessier()) << "what was located is shown";
    // Sirius stands at RA 6h 45m 09s, Dec -16 43'.
    EXPECT_NEAR(map.GetOrientation().GetCenterOfView().GetRA().GetDegrees(), 101.29, 0.05);
    EXPECT_NEAR(map.GetOrientation().GetCenterOfView().GetDec().GetDegrees(), -16.72, 0.05);

    // A string of no known form, and a reference that names nothing, change nothing.
    const std::string before = BookmarkOf(window)->Command;
    for (const char* command :
         {"", "orbiscope", "fullstat=1", "Grid=<Show=1>", "<<<", "stringref=Planet",
          "stringref=,Mars", "stringref=Comet,Halley", "stringref=Planet,Vulcan",
          "stringref=Planets,Mars", "stringref=Planet,Sun", "stringref=Star,Nowhere",
          "uid=1879048191", "uid=abc", "uid=-5", "uid=1879048494", "uid=1879048292",
          "uid=99999999999", "uid=0x7FFFFFFF"}) {
        window.HandleCommandString(command);
        Pump();
        EXPECT_EQ(BookmarkOf(window)->Command, before) << command;
    }
}

TEST_F(AstroNoxWindowTest, AnObjectNamedToTheEntryIsShownAtTheFirstPaint)
{
    MapWindow& map = *Enter("stringref=Planet,Jupiter").GetMap();
    // Before the first paint the host gives the view a chart, so that no horizon is in the way.
    map.SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 0), PolarCoord(0, 90), 20));
    Pump();
    EXPECT_EQ(map.GetLastTargetName(), "Jupiter");
    EXPECT_NE(map.GetOrientation().GetCenterOfView(), PolarCoord(0, 0));
}

// A view from the ground goes through a bookmark as its own kind, with its place and its
// direction against the horizon, into a component that looks elsewhere; the bookmark made then
// is the same string.
TEST_F(AstroNoxWindowTest, ABookmarkCarriesAViewFromTheGroundUnchanged)
{
    const LatLong paris(48.85, 357.65);
    const PolarCoord southWest(135.0, 55.0);
    AstroNoxWindow& window = Start(kPleiades);
    MapWindow& map = *window.GetMap();
    map.SetOrientation(
        RotatingOrientationInfo(map.GetCollector().GetOrigin(), paris, southWest, 25.0, true));
    const std::unique_ptr<HostBookmark> bookmark = BookmarkOf(window);
    window.HandleCommandString(kPleiades);
    Open(window, bookmark.get());
    auto* ground = dynamic_cast<const RotatingOrientationInfo*>(&map.GetOrientation());
    ASSERT_NE(ground, nullptr) << "the kind of view is kept";
    EXPECT_EQ(ground->GetLocation(), paris);
    EXPECT_EQ(ground->GetZenithOffset(), southWest);
    EXPECT_DOUBLE_EQ(ground->GetFieldRadius(), 25.0);
    Open(window, nullptr); // no bookmark: no change, still answered
    EXPECT_EQ(BookmarkOf(window)->Command, bookmark->Command);
}

} // namespace
