// The component as a host starts it: the entry makes the component window inside the host's
// frame with the map set in by the bezel, command strings and bookmarks carry whole views, and
// the default state comes back at the next start.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ComponentInFrame.h"
#include "coords/StellarCoord.h"
#include "host/HostBookmark.h"
#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "host/HostStringTable.h"
#include "host/ScopedHome.h"
#include "platform/ControlLook.h"
#include "platform/Registry.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AstroNoxWindow.h"
#include "shell/OrbiscopeEntry.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/MapWindow.h"

namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

// A view unlike the map's own: the Pleiades, narrow, with a grid of 12 by 18 lines.
const char* const kPleiadesState =
    "orbiscope FullState=0 AstroNoxWindow=<MapWindow=<Grid=<Show=1 NumberOfRALines=12 "
    "NumberOfDecLines=18> Orientation_Type=0 Orientation=<Base=<Radius=5> "
    "CenterOfView=<RA=56.75 Dec=24.1167> Zenith=<RA=56.75 Dec=90>> Messier=1 "
    "Location_Name=Tucson>>";
// The same view without a place, which is therefore not kept as the default.
const char* const kPleiadesView =
    "FullState=1 AstroNoxWindow=<MapWindow=<Grid=<Show=1 NumberOfRALines=12 "
    "NumberOfDecLines=18> Orientation_Type=0 Orientation=<Base=<Radius=5> "
    "CenterOfView=<RA=56.75 Dec=24.1167> Zenith=<RA=56.75 Dec=90>>>>";

HWND ToHandle(std::uint32_t handle)
{
    return reinterpret_cast<HWND>(std::uintptr_t(handle));
}

} // namespace

class AstroNoxWindowTest : public ComponentInFrame
{
protected:
    AstroNoxWindowTest() : ComponentInFrame(kWidth, kHeight) {}

    // Starts the component in the frame as the host does.
    AstroNoxWindow& Start(const char* command = nullptr)
    {
        AstroNoxWindow* window = Enter(command);
        EXPECT_NE(window, nullptr);
        Pump();
        return *window;
    }
};

TEST_F(AstroNoxWindowTest, TheEntryMakesTheComponentOverTheFrameWithTheMapInsideTheBezel)
{
    AstroNoxWindow& window = Start();
    EXPECT_EQ(window.GetParentO(), pFrame.get());
    EXPECT_EQ(window.GetRect(), TRect(0, 0, kWidth, kHeight));
    MapWindow* map = window.GetMap();
    ASSERT_NE(map, nullptr);
    const int bezel = Frame.GetMetric(kHostMetricBezelWidth);
    EXPECT_EQ(map->GetRect(), TRect(bezel, bezel, kWidth - bezel, kHeight - bezel));
    EXPECT_EQ(map->GetFieldChangeMessage(), 0x07EAu);
    EXPECT_EQ(map->GetReferenceMessage(), 0x07E8u);
    EXPECT_NE(map->GetMemoryDC(), nullptr) << "the first paint drew the map";

    // The sunken edge: dark above and to the left, light below and to the right.
    auto screen = WindowSystem::Get().CaptureWindow(window.HWindow);
    EXPECT_EQ(screen->ColorAt(kWidth / 2, 0), RGB(128, 128, 128));
    EXPECT_EQ(screen->ColorAt(0, kHeight / 2), RGB(128, 128, 128));
    EXPECT_EQ(screen->ColorAt(kWidth / 2, 1), RGB(0, 0, 0));
    EXPECT_EQ(screen->ColorAt(kWidth / 2, kHeight - 1), RGB(255, 255, 255));
    EXPECT_EQ(screen->ColorAt(kWidth - 2, kHeight / 2), RGB(192, 192, 192));

    // The frame grows, the component and its map follow.
    pFrame->MoveWindow(0, 0, 400, 260);
    Pump();
    EXPECT_EQ(window.GetRect(), TRect(0, 0, 400, 260));
    EXPECT_EQ(map->GetRect(), TRect(bezel, bezel, 400 - bezel, 260 - bezel));
    EXPECT_EQ(map->GetDisplayParameters().FastHeader.biWidth, (400 - 2 * bezel + 7) / 8 * 8);
}

TEST_F(AstroNoxWindowTest, TheEntryRefusesAParentThatIsNoWindow)
{
    EXPECT_EQ(orbiscope(nullptr, nullptr), 0u);
    EXPECT_EQ(orbiscope(ToHandle(0x7FFFFFF0u), "FullState=1"), 0u);
    HostFrameWindow unshown("Never created", 100, 100);
    EXPECT_EQ(orbiscope(unshown.HWindow, nullptr), 0u);
    EXPECT_TRUE(unshown.GetChildren().empty());
}

TEST_F(AstroNoxWindowTest, AFullStateCommandRestoresTheViewWhateverTheKeysValue)
{
    AstroNoxWindow& window = Start(kPleiadesState);
    const MapWindow& map = *window.GetMap();
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), PolarCoord(56.75, 24.1167));
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 5.0);
    EXPECT_EQ(map.GetGridInfo(), GridInfo(12, 18, true));
    EXPECT_TRUE(map.IsShowingMessier());
    EXPECT_EQ(map.GetLocationName(), "Tucson");
    EXPECT_EQ(map.GetTransformation()->GetCenterOfView(), PolarCoord(56.75, 24.1167));
}

TEST_F(AstroNoxWindowTest, CommandsWithoutAKnownFormChangeNothing)
{
    AstroNoxWindow& window = Start();
    MapWindow& map = *window.GetMap();
    const PolarCoord centre = map.GetOrientation().GetCenterOfView();
    for (const char* command : {"", "orbiscope", "fullstat=1", "Grid=<Show=1>", "<<<", "=>"}) {
        window.HandleCommandString(command);
        EXPECT_EQ(map.GetOrientation().GetCenterOfView(), centre) << command;
        EXPECT_FALSE(map.GetGridInfo().bShow) << command;
    }
    // Key names ignore case, as every name of the component does.
    window.HandleCommandString("FULLSTATE=1 astronoxwindow=<mapwindow=<Grid=<Show=1 "
                               "NumberOfRALines=24 NumberOfDecLines=36>>>");
    EXPECT_TRUE(map.GetGridInfo().bShow);
}

TEST_F(AstroNoxWindowTest, ABookmarkCarriesTheViewIntoAnotherComponent)
{
    AstroNoxWindow& first = Start(kPleiadesView);
    auto* bookmark = reinterpret_cast<HostBookmark*>(
        first.SendMessage(AstroNoxWindow::kCreateBookmarkMessage, 0, 0));
    ASSERT_NE(bookmark, nullptr);
    std::unique_ptr<HostBookmark> owned(bookmark);
    EXPECT_EQ(owned->Type, "PLNT");
    EXPECT_EQ(owned->Command.rfind("orbiscope FullState=1 AstroNoxWindow=<MapWindow=<", 0), 0u)
        << owned->Command;
    // Without an object in view the title names the centre.
    EXPECT_EQ(owned->Title,
              getHostString(5, 1000) + StellarCoord(PolarCoord(56.75, 24.1167)).GetDescription());

    first.Destroy();
    AstroNoxWindow& second = Start();
    EXPECT_FALSE(second.GetMap()->GetGridInfo().bShow);
    EXPECT_EQ(second.SendMessage(AstroNoxWindow::kNewBookmarkMessage, 0,
                                 reinterpret_cast<LPARAM>(owned.get())),
              1);
    EXPECT_EQ(second.GetMap()->GetOrientation().GetCenterOfView(), PolarCoord(56.75, 24.1167));
    EXPECT_EQ(second.GetMap()->GetGridInfo(), GridInfo(12, 18, true));
    EXPECT_EQ(second.SendMessage(AstroNoxWindow::kNewBookmarkMessage, 0, 0), 1)
        << "no bookmark, no change, still answered";
}

TEST_F(AstroNoxWindowTest, TheDefaultStateIsKeptOnceThereIsALocationName)
{
    {
        AstroNoxWindow& window = Start();
        EXPECT_FALSE(window.RestoreDefaultState()) << "a first start";
        window.SetMessierObjectsDisplay(true);
        EXPECT_FALSE(window.RestoreDefaultState()) << "no place yet, nothing kept";
        window.GetMap()->SetLocationName("Paris");
        window.GetMap()->SetOrientation(
            FixedOrientationInfo(nullptr, PolarCoord(10, 20), PolarCoord(10, 90), 25.0));
        window.SetMessierObjectsDisplay(true);
        EXPECT_EQ(window.GetStateRoot(), "SOFTWARE\\Orbiscope\\Planetarium\\1.0\\orbiscope");
        window.Destroy();
    }
    AstroNoxWindow& next = Start();
    const MapWindow& map = *next.GetMap();
    EXPECT_EQ(map.GetLocationName(), "Paris");
    EXPECT_TRUE(map.IsShowingMessier());
    EXPECT_EQ(map.GetOrientation().GetCenterOfView(), PolarCoord(10, 20));
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 25.0);
    EXPECT_NE(map.GetTime().GetYear(), 0) << "the time is not part of the default";
}

// A view from the ground goes through a bookmark and the default state as its own kind, with
// its place and its direction against the horizon.
TEST_F(AstroNoxWindowTest, AViewFromTheGroundTravelsByBookmarkAndComesBackAtTheNextStart)
{
    const LatLong paris(48.85, 357.65);
    const PolarCoord southWest(135.0, 55.0);
    std::unique_ptr<HostBookmark> owned;
    {
        AstroNoxWindow& window = Start(kPleiadesView);
        MapWindow& map = *window.GetMap();
        map.SetOrientation(
            RotatingOrientationInfo(map.GetCollector().GetOrigin(), paris, southWest, 25.0, true));
        map.SetLocationName("Paris");
        window.SetMessierObjectsDisplay(false);
        owned.reset(reinterpret_cast<HostBookmark*>(
            window.SendMessage(AstroNoxWindow::kCreateBookmarkMessage, 0, 0)));
        ASSERT_NE(owned, nullptr);
        EXPECT_NE(owned->Command.find("Orientation_Type=1"), std::string::npos) << owned->Command;
        window.Destroy();
    }

    AstroNoxWindow& next = Start();
    auto* ground = dynamic_cast<const RotatingOrientationInfo*>(&next.GetMap()->GetOrientation());
    ASSERT_NE(ground, nullptr) << "the default state keeps the kind";
    EXPECT_EQ(ground->GetLocation(), paris);
    EXPECT_EQ(ground->GetZenithOffset(), southWest);
    EXPECT_DOUBLE_EQ(ground->GetFieldRadius(), 25.0);

    // A component that looks at the stars takes the bookmark's view from the ground.
    next.HandleCommandString(kPleiadesView);
    ASSERT_EQ(next.GetMap()->GetOrientation().GetType(), OrientationInfo::FIXED);
    next.SendMessage(AstroNoxWindow::kNewBookmarkMessage, 0, reinterpret_cast<LPARAM>(owned.get()));
    ground = dynamic_cast<const RotatingOrientationInfo*>(&next.GetMap()->GetOrientation());
    ASSERT_NE(ground, nullptr);
    EXPECT_EQ(ground->GetLocation(), paris);
    EXPECT_EQ(ground->GetZenithOffset(), southWest);
    Pump();
    EXPECT_EQ(next.GetMap()->GetHorizonPoints().size(), 200u) << "the horizon is drawn";
}

TEST_F(AstroNoxWindowTest, ItAnswersWhichCapabilitiesItHas)
{
    AstroNoxWindow& window = Start();
    EXPECT_EQ(window.SendMessage(AstroNoxWindow::kCapabilityMessage, 0, 0), 1);
    EXPECT_EQ(window.SendMessage(AstroNoxWindow::kCapabilityMessage, 1, 0), 1);
    EXPECT_EQ(window.SendMessage(AstroNoxWindow::kCapabilityMessage, 2, 0), 0);
}

TEST_F(AstroNoxWindowTest, AReferenceFromTheMapGoesToTheHostsFrame)
{
    std::string launched;
    StandardHostFrame recording([&](const std::string& address) {
        launched = address;
        return true;
    });
    SetHostFrameAPI(&recording);
    AstroNoxWindow& window = Start();
    const std::string reference = "article:orion";
    window.SendMessage(AstroNoxWindow::kReferenceMessage, 0, reinterpret_cast<LPARAM>(&reference));
    EXPECT_EQ(launched, reference);
    window.SendMessage(AstroNoxWindow::kReferenceMessage, 0, 0);
    EXPECT_EQ(launched, reference);
    SetHostFrameAPI(&Frame);
}

// The status panel comes with a bookmark that asks for it: a fifth of the width at the left,
// the map beside it, and a bookmark made then asks for it again.
TEST_F(AstroNoxWindowTest, ABookmarkBringsTheStatusPanelBesideTheMapAndTakesItAway)
{
    const std::string withPanel =
        "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=5> "
        "CenterOfView=<RA=56.75 Dec=24.1167> Zenith=<RA=56.75 Dec=90>>> DisplayStatusWindow=1>";
    AstroNoxWindow& window = Start(withPanel.c_str());
    MapWindow& map = *window.GetMap();
    AstroStatusWindow* panel = window.GetStatusWindow();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(map.GetStatusWindow(), panel);
    EXPECT_NE(panel->HWindow, nullptr);
    EXPECT_EQ(panel->GadgetCount(), 4);
    EXPECT_EQ(panel->FirstGadget(), &map.GetPointerItem());
    EXPECT_EQ(map.GetOrientationItem().GetLine(1), "Field of View: 10");

    // Left: a sixtieth of the width; wide: a fifth of it. The map keeps the gap and the bezel
    // from it and the bezel from the other edges.
    const int gap = Frame.GetMetric(kHostMetricBezelGap);
    const int bezel = Frame.GetMetric(kHostMetricBezelWidth);
    EXPECT_EQ(panel->GetRect(), TRect(kWidth / 60, 0, kWidth / 60 + kWidth / 5, kHeight));
    EXPECT_EQ(map.GetRect(), TRect(kWidth / 60 + kWidth / 5 + gap + bezel, bezel, kWidth - bezel,
                                   kHeight - bezel));
    pFrame->MoveWindow(0, 0, 600, 300);
    Pump();
    EXPECT_EQ(panel->GetRect(), TRect(10, 0, 130, 300));
    EXPECT_EQ(map.GetRect().left, 130 + gap + bezel);

    // The panel shows its blocks: text on the button face.
    auto picture = WindowSystem::Get().CaptureWindow(panel->HWindow);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    int ink = 0;
    for (int y = 0; y < picture->Height(); ++y) {
        for (int x = 0; x < picture->Width(); ++x) {
            ink += picture->ColorAt(x, y) != face;
        }
    }
    EXPECT_GT(ink, 200);

    auto bookmarkOf = [&]() {
        return std::unique_ptr<HostBookmark>(reinterpret_cast<HostBookmark*>(
            window.SendMessage(AstroNoxWindow::kCreateBookmarkMessage, 0, 0)));
    };
    const std::unique_ptr<HostBookmark> shown = bookmarkOf();
    ASSERT_NE(shown, nullptr);
    EXPECT_NE(shown->Command.find("DisplayStatusWindow=1"), std::string::npos);

    // A view without the panel takes it away; the map keeps its blocks.
    window.HandleCommandString(kPleiadesView);
    EXPECT_EQ(window.GetStatusWindow(), nullptr);
    EXPECT_EQ(map.GetStatusWindow(), nullptr);
    EXPECT_EQ(map.GetRect(), TRect(bezel, bezel, 600 - bezel, 300 - bezel));
    EXPECT_EQ(map.GetOrientationItem().GetLine(1), "Field of View: 10");
    const std::unique_ptr<HostBookmark> hidden = bookmarkOf();
    ASSERT_NE(hidden, nullptr);
    EXPECT_NE(hidden->Command.find("DisplayStatusWindow=0"), std::string::npos);

    // The first bookmark brings it back.
    window.SendMessage(AstroNoxWindow::kNewBookmarkMessage, 0,
                       reinterpret_cast<LPARAM>(shown.get()));
    ASSERT_NE(window.GetStatusWindow(), nullptr);
    EXPECT_EQ(window.GetStatusWindow()->GadgetCount(), 4);
    EXPECT_EQ(map.GetStatusWindow(), window.GetStatusWindow());
}

TEST_F(AstroNoxWindowTest, AStatusPanelAskedForBeforeTheWindowIsShownComesWithIt)
{
    // The window tree owns the component.
    auto* window = new AstroNoxWindow(pFrame.get());
    window->SetStatusWindowState(true);
    AstroStatusWindow* panel = window->GetStatusWindow();
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->HWindow, nullptr);
    window->SetStatusWindowState(true);
    EXPECT_EQ(window->GetStatusWindow(), panel) << "one panel at most";

    ASSERT_TRUE(window->Create());
    Pump();
    EXPECT_NE(panel->HWindow, nullptr);
    EXPECT_EQ(panel->GetRect(), TRect(kWidth / 60, 0, kWidth / 60 + kWidth / 5, kHeight));
    EXPECT_FALSE(window->GetMap()->GetTimeItem().GetLine(0).empty())
        << "the first draw told the time";
    window->Destroy();
}
