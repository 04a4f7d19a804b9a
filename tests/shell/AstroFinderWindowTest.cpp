// The finder as a user works it, in a host that shows the component full screen: pick a
// catalogue, type the beginning of a name, wait for the search, choose with Return, and the
// map turns to the object; a click on the direction window turns the map too.
#include "ComponentInFrame.h"
#include "host/HostEdit.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/AstroFinderWindow.h"
#include "shell/AstroListBox.h"
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

    FullScreenHost Host{&FrameWindow};
};

TEST_F(AstroFinderTest, Look)
{
    AstroNoxWindow& window = StartFullScreen();
    ASSERT_NE(window.GetFinderWindow(), nullptr);
    AstroFinderWindow& finder = *window.GetFinderWindow();
    PickCatalogue(finder, 2);
    TypeName(finder, "sir");
    Desk().AdvanceTime(1000);
    Desk().SaveWindowPng(FrameWindow.HWindow, "/tmp/finder-look.png");
    EXPECT_EQ(finder.GetListTypeBox().GetSelIndex(), 2);
    ASSERT_NE(finder.GetSelectedObject(), nullptr);
    EXPECT_EQ(finder.GetSelectedObject()->GetListName(), "Sirius");
    Desk().Type("\r");
    Pump();
    EXPECT_EQ(window.GetMap()->GetLastTargetName(), "Sirius");
    Desk().SaveWindowPng(FrameWindow.HWindow, "/tmp/finder-look2.png");
}

} // namespace
