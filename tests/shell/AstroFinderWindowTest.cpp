// The finder as a user works it, in a host that shows the component full screen: pick a
// catalogue, type the beginning of a name, wait for the search, choose with Return, and the
// map turns to the object; a click on the direction window turns the map too.
#include <memory>

#include "ComponentInFrame.h"
#include "host/HostAnimButtonGadget.h"
#include "host/HostBookmark.h"
#include "host/HostEdit.h"
#include "host/HostStackableControlBar.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/AstroFinderWindow.h"
#include "shell/AstroListBox.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/DirectionWindow.h"

namespace {

// The host's full-screen mode, as a window between the frame and the component: it answers
// the component's question and keeps the component over its whole client area.
class FullScreenHost : public TWindow
{
public:
    explicit FullScreenHost(TWindow* parent) : TWindow(parent) {}

    bool bFullScreen = true;

    LRESULT WmuFullScreen(WPARAM, LPARAM) { return bFullScreen ? 1 : 0; }
    void EvSize(UINT type, TSize& size)
    {
        TWindow::EvSize(type, size);
        for (TWindow* child : GetChildren()) {
            child->MoveWindow(0, 0, size.cx, size.cy);
        }
    }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{
            MsgRow<AstroNoxWindow::kFullScreenQuery, &FullScreenHost::WmuFullScreen>(),
            EvRow<WM_SIZE, &FullScreenHost::EvSize>(),
        };
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
    }
};

// A chart fixed on the stars at 0h UT on 2000 January 1, so that whatever is chosen is shown
// without questions about the horizon.
const char* const kChart =
    "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=20> "
    "CenterOfView=<RA=0 Dec=0> Zenith=<RA=0 Dec=90>> Time=<Year=2000 Month=1 Day=1 Hour=0 "
    "Minute=0 Second=0 Mode=0>> DisplayFinderWindow=1>";

class AstroFinderTest : public ComponentInFrame
{
protected:
    void SetUp() override
    {
        ComponentInFrame::SetUp();
        FrameWindow.MoveWindow(0, 0, 1000, 700);
        ASSERT_TRUE(Host.Create());
        Host.MoveWindow(0, 0, 1000, 700);
    }
    AstroNoxWindow& StartFullScreen(const char* command = kChart)
    {
        CancelFirstStart();
        const std::uint32_t handle = orbiscope(Host.HWindow, command);
        auto* window = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(HWND(std::uintptr_t(handle))));
        Pump();
        return *window;
    }
    // Picks a catalogue as a user does: a click drops the list, a click on a row takes it.
    static void PickCatalogue(AstroFinderWindow& finder, int row)
    {
        TComboBox& box = finder.GetListTypeBox();
        Desk().Click(box, TPoint(10, 5));
        Pump();
        ASSERT_NE(box.GetDroppedList(), nullptr);
        const int height = box.GetDroppedList()->GetItemHeight();
        Desk().Click(*box.GetDroppedList(), TPoint(10, 1 + row * height + height / 2));
        Pump();
    }
    // Types into the name field as a user does, after a click into it.
    static void TypeName(AstroFinderWindow& finder, const std::string& text)
    {
        Desk().Click(finder.GetNameEdit(), TPoint(5, 5));
        Pump();
        Desk().Type(text);
    }

    // The command string of a bookmark of the present view.
    static std::string BookmarkOf(AstroNoxWindow& window)
    {
        std::unique_ptr<HostBookmark> bookmark(reinterpret_cast<HostBookmark*>(
            window.SendMessage(AstroNoxWindow::kCreateBookmarkMessage, 0, 0)));
        return bookmark->Command;
    }

    FullScreenHost Host{&FrameWindow};
};

// The four kinds of object a user looks up, each by the first letters of its name in any case.
TEST_F(AstroFinderTest, TheBeginningOfANameFindsTheObjectAndReturnTurnsTheMapToIt)
{
    AstroNoxWindow& window = StartFullScreen();
    ASSERT_NE(window.GetFinderWindow(), nullptr);
    AstroFinderWindow& finder = *window.GetFinderWindow();
    MapWindow& map = *window.GetMap();
    struct Case
    {
        int Catalogue;
        const char* Typed;
        const char* Found;
    };
    const Case cases[] = {
        {2, "sir", "Sirius"},
        {1, "JUP", "Jupiter"},
        {0, "orio", "Orion"},
        {3, "m31", "M31 (Andromeda Galaxy)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Typed);
        PickCatalogue(finder, c.Catalogue);
        TypeName(finder, c.Typed);
        // The search waits for a pause in typing: a tick finds a key since the one before.
        Desk().AdvanceTime(999);
        EXPECT_EQ(finder.GetSelectedObject(), nullptr);
        Desk().AdvanceTime(1);
        ASSERT_NE(finder.GetSelectedObject(), nullptr);
        EXPECT_EQ(finder.GetSelectedObject()->GetListName(), c.Found);
        EXPECT_EQ(finder.GetNameEdit().GetText(), c.Typed) << "the field keeps what was typed";
        Desk().Type("\r");
        Pump();
        EXPECT_EQ(map.GetLastTargetName(), c.Found);
        const PolarCoord at = finder.GetSelectedObject()->GetPosition();
        EXPECT_NEAR(map.GetOrientation().GetCenterOfView().GetRA().GetDegrees(),
                    at.GetRA().GetDegrees(), 0.01);
        EXPECT_NEAR(map.GetOrientation().GetCenterOfView().GetDec().GetDegrees(),
                    at.GetDec().GetDegrees(), 0.01);
    }
}

// The delay comes from the profile; each key sets the search back by a tick of it, and Return
// does not wait for it.
TEST_F(AstroFinderTest, TheSearchRunsAfterAWholeTickWithoutTypingOrAtReturn)
{
    ASSERT_TRUE(HostProfile().Write("Global Config", "AutoSearchDelay", "300"));
    AstroNoxWindow& window = StartFullScreen();
    AstroFinderWindow& finder = *window.GetFinderWindow();
    PickCatalogue(finder, 2);
    TypeName(finder, "s");
    Desk().AdvanceTime(200);
    Desk().Type("i");
    Desk().AdvanceTime(200);
    Desk().Type("r");
    Desk().AdvanceTime(499); // ticks at 300 and 600 each find a key since the last
    EXPECT_EQ(finder.GetSelectedObject(), nullptr);
    Desk().AdvanceTime(1);
    ASSERT_NE(finder.GetSelectedObject(), nullptr);
    EXPECT_EQ(finder.GetSelectedObject()->GetListName(), "Sirius");
    EXPECT_FALSE(finder.IsSearchWaiting());

    Desk().Type("\b\bpica\r");
    Pump();
    EXPECT_EQ(window.GetMap()->GetLastTargetName(), "Spica");
}

// The rows a typed text leads to: the first name that begins with it; in a list in name order
// the row where it would stand when none does, in the Messier list (in number order) the first.
TEST_F(AstroFinderTest, AnUnknownBeginningLeadsToWhereTheNameWouldStand)
{
    AstroFinderWindow& finder = *StartFullScreen().GetFinderWindow();
    struct Case
    {
        int Catalogue;
        const char* Typed;
        const char* Row;
    };
    // clang-format off
    const Case cases[] = {
        {0, "", "Andromeda"},
        {0, "CANIS", "Canis Major"},
        {0, "Aa", "Andromeda"},
        {0, "Cx", "Cygnus"},
        {0, "Zz", "Vulpecula"},
        {1, "s", "Saturn"},
        {1, "me", "Mercury"},
        {3, "m1", "M1 (Crab Nebula)"},
        {3, "Crab", "M1 (Crab Nebula)"},
        {3, "m110", "M110"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Typed);
        PickCatalogue(finder, c.Catalogue);
        AstroListBox& list = finder.GetObjectList();
        AstroObject* row = list.GetObject(list.FindPrefix(c.Typed));
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->GetListName(), c.Row);
    }
}

// The arrows move through the list from the name field; a chosen row writes its name into the
// field without starting a search; Escape empties the field, which leads to the first row.
TEST_F(AstroFinderTest, TheListAndTheNameFieldFollowEachOther)
{
    AstroNoxWindow& window = StartFullScreen();
    AstroFinderWindow& finder = *window.GetFinderWindow();
    AstroListBox& list = finder.GetObjectList();
    PickCatalogue(finder, 2);
    TypeName(finder, "sir");
    Desk().PressKey(VK_DOWN);
    Pump();
    EXPECT_EQ(list.GetString(list.GetSelIndex()), "Situla") << "from the row typed, not the top";
    EXPECT_EQ(finder.GetNameEdit().GetText(), "Situla");
    EXPECT_FALSE(finder.IsSearchWaiting());
    Desk().PressKey(VK_UP);
    Desk().PressKey(VK_UP);
    Pump();
    EXPECT_EQ(finder.GetNameEdit().GetText(), list.GetString(list.GetSelIndex()));

    // A click on a row, then Return; a double click on the row below.
    const int height = list.GetItemHeight();
    const int top = list.GetTopIndex();
    Desk().Click(list, TPoint(20, 1 + height / 2));
    Pump();
    EXPECT_EQ(finder.GetNameEdit().GetText(), list.GetString(top));
    Desk().Type("\r");
    Pump();
    EXPECT_EQ(window.GetMap()->GetLastTargetName(), list.GetString(top));
    Desk().DoubleClick(list, TPoint(20, 1 + height + height / 2));
    Pump();
    EXPECT_EQ(window.GetMap()->GetLastTargetName(), list.GetString(top + 1));

    // A click into the field selects what it holds, so that typing replaces it.
    TypeName(finder, "veg");
    EXPECT_EQ(finder.GetNameEdit().GetText(), "veg");
    TypeName(finder, "\x1b");
    EXPECT_EQ(finder.GetNameEdit().GetText(), "");
    Desk().AdvanceTime(1000);
    EXPECT_EQ(list.GetSelIndex(), 0);
    EXPECT_EQ(list.GetTopIndex(), 0);
}

// Without star files the star list is empty: a search moves nothing and Return shows nothing.
TEST_F(AstroFinderTest, AnEmptyListFindsNothingAndReturnChoosesNothing)
{
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "BrightCat", Home.File("none.bin")));
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "LargeStarCatalogueFile", Home.File("no.bin")));
    AstroNoxWindow& window = StartFullScreen();
    AstroFinderWindow& finder = *window.GetFinderWindow();
    PickCatalogue(finder, 2);
    EXPECT_EQ(finder.GetObjectList().GetCount(), 0);
    EXPECT_EQ(finder.GetObjectList().FindPrefix("sir"), -1);
    TypeName(finder, "sir\r");
    Desk().AdvanceTime(1000);
    EXPECT_EQ(finder.GetSelectedObject(), nullptr);
    EXPECT_EQ(window.GetMap()->GetLastTargetName().find("Sirius"), std::string::npos);
}

// The finder comes and goes with the host's full-screen mode, a fifth of the width at the left
// or as wide as its names need; beside the status panel it takes the next fifth.
TEST_F(AstroFinderTest, TheFinderStandsBesideTheMapInFullScreenModeOnly)
{
    AstroNoxWindow& window = StartFullScreen();
    MapWindow& map = *window.GetMap();
    const int inset = Frame.GetMetric(kHostMetricBezelGap) + Frame.GetMetric(kHostMetricBezelWidth);
    ASSERT_NE(window.GetFinderWindow(), nullptr);
    EXPECT_EQ(window.GetFinderWindow()->GetRect(), TRect(16, 0, 216, 700));
    EXPECT_EQ(map.GetRect().left, 216 + inset);
    EXPECT_NE(BookmarkOf(window).find("DisplayFinderWindow=1"), std::string::npos);

    Host.MoveWindow(0, 0, 600, 700);
    Pump();
    EXPECT_EQ(window.GetFinderWindow()->GetRect(),
              TRect(10, 0, 10 + AstroFinderWindow::GetDesiredWidth(), 700));

    Host.MoveWindow(0, 0, 1000, 700);
    window.HandleCommandString("FullState=1 AstroNoxWindow=<DisplayStatusWindow=1 "
                               "DisplayFinderWindow=1>");
    Pump();
    ASSERT_NE(window.GetStatusWindow(), nullptr);
    EXPECT_EQ(window.GetStatusWindow()->GetRect(), TRect(0, 0, 200, 700));
    EXPECT_EQ(window.GetFinderWindow()->GetRect(), TRect(200, 0, 400, 700));
    EXPECT_EQ(map.GetRect().left, 400 + inset);

    window.SendMessage(WM_COMMAND, AstroNoxWindow::kCmDisplayLocatorControls);
    EXPECT_EQ(window.GetFinderWindow(), nullptr);
    window.SendMessage(WM_COMMAND, AstroNoxWindow::kCmDisplayLocatorControls);
    EXPECT_NE(window.GetFinderWindow(), nullptr);

    // A window too small for the finder squeezes the map to nothing, and back.
    for (const TSize size : {TSize(40, 30), TSize(1, 1), TSize(1000, 700)}) {
        Host.MoveWindow(0, 0, size.cx, size.cy);
        Pump();
    }
    EXPECT_EQ(map.GetRect().left, 400 + inset);

    // Leaving full-screen mode is a change of size; a bookmark then asks for the finder in vain.
    Host.bFullScreen = false;
    Host.MoveWindow(0, 0, 900, 700);
    Pump();
    EXPECT_EQ(window.GetFinderWindow(), nullptr);
    window.HandleCommandString(kChart);
    Pump();
    EXPECT_EQ(window.GetFinderWindow(), nullptr);
    EXPECT_EQ(map.GetRect().left, Frame.GetMetric(kHostMetricBezelWidth));
}

// The direction window shows where the map looks; a click on its disc turns the map there: the
// middle is the zenith, the top north, the rim the horizon, distances from the middle true. The
// buttons zoom and show the constellation figures, the figure button's picture telling which.
TEST_F(AstroFinderTest, TheDirectionWindowAndTheButtonsWorkTheMap)
{
    // The zenith at RA 30, Dec 40: north of it along the meridian lies the pole.
    AstroNoxWindow& window = StartFullScreen(
        "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=20> "
        "CenterOfView=<RA=30 Dec=40> Zenith=<RA=30 Dec=40>>> DisplayFinderWindow=1>");
    AstroFinderWindow& finder = *window.GetFinderWindow();
    MapWindow& map = *window.GetMap();
    DirectionWindow& direction = finder.GetDirectionWindow();
    EXPECT_EQ(direction.GetDrawer().GetCenter(), map.GetOrientation().GetCenterOfView());
    ASSERT_EQ(direction.GetDrawer().GetFieldPoints().size(), 4u);

    const TRect disc = direction.GetDrawer().GetCircleRect();
    const TPoint middle(disc.left + disc.Width() / 2, disc.top + disc.Height() / 2);
    const int radius = disc.Height() / 2;
    struct Click
    {
        const char* Where;
        TPoint At;
        double RA, Dec; // degrees
    };
    const Click clicks[] = {
        {"middle", middle, 30.0, 40.0},
        {"half way north", TPoint(middle.x, middle.y - radius / 2), 30.0, 85.0},
        {"half way south", TPoint(middle.x, middle.y + radius / 2), 30.0, -5.0},
        {"outside the disc: nothing moves", TPoint(disc.left + 1, disc.top + 1), 30.0, -5.0},
    };
    for (const Click& click : clicks) {
        SCOPED_TRACE(click.Where);
        Desk().Click(direction, click.At);
        Pump();
        const PolarCoord centre = map.GetOrientation().GetCenterOfView();
        EXPECT_NEAR(centre.GetRA().GetDegrees(), click.RA, 1.0);
        EXPECT_NEAR(centre.GetDec().GetDegrees(), click.Dec, 1.0);
        EXPECT_EQ(direction.GetDrawer().GetCenter(), centre) << "the window follows the map";
    }

    HostStackableControlBar& bar = finder.GetButtonBar();
    auto press = [&](int id) {
        const TRect bounds = bar.GadgetWithId(id)->GetBounds();
        Desk().Click(bar,
                     TPoint(bounds.left + bounds.Width() / 2, bounds.top + bounds.Height() / 2));
        Pump();
    };
    press(AstroFinderWindow::kZoomInButton);
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 15.0);
    press(AstroFinderWindow::kZoomOutButton);
    EXPECT_DOUBLE_EQ(map.GetOrientation().GetFieldRadius(), 20.0);
    auto* outline =
        dynamic_cast<HostAnimButtonGadget*>(bar.GadgetWithId(AstroFinderWindow::kOutlineButton));
    ASSERT_NE(outline, nullptr);
    EXPECT_EQ(outline->GetBitmapFile(), "showoutl.bmp");
    press(AstroFinderWindow::kOutlineButton);
    EXPECT_TRUE(map.GetConstellationSettings().bShowFigures);
    EXPECT_EQ(outline->GetBitmapFile(), "hideoutl.bmp");
    EXPECT_EQ(bar.GadgetWithId(AstroFinderWindow::kSkyhuntButton), nullptr) << "not enabled";
}

// The list paints in the profile's colours, its rows on the list's own background and its
// scroll bar's track in a colour of its own; the buttons let the panel show round them.
TEST_F(AstroFinderTest, TheListAndTheButtonsShowTheProfilesColours)
{
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "BackgroundListColor", "0, 0, 64"));
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "BackgroundHiliteColor", "128, 0, 0"));
    ASSERT_TRUE(HostProfile().Write("Orbiscope", "CustomScrollBarFillColor", "0, 64, 0"));
    AstroFinderWindow& finder = *StartFullScreen().GetFinderWindow();
    AstroListBox& list = finder.GetObjectList();
    auto colorAt = [&](const TWindow& child, TPoint point) {
        const TRect rect = child.GetRect();
        return WindowSystem::Get()
            .CaptureWindow(finder.HWindow)
            ->ColorAt(rect.left + point.x, rect.top + point.y);
    };
    const TWindow* scrollBar = list.ChildWithId(AstroListBox::kScrollBarId);
    ASSERT_NE(scrollBar, nullptr);
    const int rowEnd = scrollBar->GetRect().left - 2;
    const int height = list.GetItemHeight();
    EXPECT_EQ(colorAt(list, TPoint(rowEnd, 1 + height / 2)), RGB(0, 0, 64));
    EXPECT_EQ(colorAt(list, TPoint(scrollBar->GetRect().left + 1, list.GetRect().Height() / 2)),
              RGB(0, 64, 0));
    TypeName(finder, "\r");
    Desk().PressKey(VK_DOWN);
    Pump();
    EXPECT_EQ(colorAt(list, TPoint(rowEnd, 1 + height / 2)), RGB(128, 0, 0));

    HostStackableControlBar& bar = finder.GetButtonBar();
    const TRect button = bar.GadgetWithId(AstroFinderWindow::kZoomInButton)->GetInnerRect();
    EXPECT_EQ(colorAt(bar, button.TopLeft()), RGB(0, 0, 0)) << "the black panel";
    EXPECT_NE(colorAt(bar, TPoint(button.left + button.Width() / 2, button.top + 3)), RGB(0, 0, 0));
}

} // namespace
