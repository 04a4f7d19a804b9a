// The message loop: sent and posted messages, response tables and their base classes,
// invalidation and the paint cycle, timers on virtual time, mouse capture and the keyboard
// focus.
#include <string>
#include <vector>

#include "HeadlessFixture.h"
#include <unistd.h>

#include <cstdio>

#include "platform/PngFile.h"
#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TClientDC.h"
#include "platform/TDC.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"

namespace {

constexpr UINT kPing = WM_USER + 1;
constexpr UINT kEcho = WM_USER + 2;
constexpr UINT kCommand = 500;

// A top-level window that writes down what reaches it.
class Recorder : public TWindow
{
public:
    explicit Recorder(TWindow* parent = nullptr) : TWindow(parent, "Recorder")
    {
        if (!parent) {
            Attr.X = 100;
            Attr.Y = 50;
            Attr.W = 200;
            Attr.H = 150;
        }
    }

    std::vector<std::string> Log;
    std::vector<TSize> Sizes;
    int nFocus = 0;
    std::vector<TRect> Painted;
    TColor Fill = TColor(0, 128, 0);

    void Paint(TDC& dc, bool, TRect& rect) override
    {
        Painted.push_back(rect);
        dc.FillRect(GetClientRect(), TBrush(Fill));
    }

    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{
            EvRow<WM_TIMER, &Recorder::EvTimer>(),
            EvRow<WM_LBUTTONDOWN, &Recorder::EvLButtonDown>(),
            EvRow<WM_MOUSEMOVE, &Recorder::EvMouseMove>(),
            EvRow<WM_LBUTTONUP, &Recorder::EvLButtonUp>(),
            EvRow<WM_SIZE, &Recorder::EvSize>(),
            EvRow<WM_CHAR, &Recorder::EvChar>(),
            EvRow<WM_SETFOCUS, &Recorder::EvSetFocus>(),
            MsgRow<kPing, &Recorder::EvPing>(),
            MsgRow<kEcho, &Recorder::EvEcho>(),
            CmRow<kCommand, &Recorder::CmSomething>(),
        };
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
    }

    void EvTimer(UINT id)
    {
        Log.push_back("timer " + std::to_string(id) + " at " + std::to_string(GetTickCount()));
    }
    void EvLButtonDown(UINT, TPoint& p)
    {
        Log.push_back("down " + Text(p));
        SetCapture();
    }
    void EvMouseMove(UINT keys, TPoint& p)
    {
        if (keys & MK_LBUTTON) {
            Log.push_back("drag " + Text(p));
        }
    }
    void EvLButtonUp(UINT, TPoint& p)
    {
        Log.push_back("up " + Text(p));
        ReleaseCapture();
    }
    void EvSize(UINT, TSize& size)
    {
        Sizes.push_back(size);
        TWindow::EvSize(SIZE_RESTORED, size);
    }
    void EvChar(UINT key, UINT, UINT) { Log.push_back(std::string("char ") + char(key)); }
    void EvSetFocus(HWND) { ++nFocus; }
    LRESULT EvPing(WPARAM w, LPARAM)
    {
        Log.push_back("ping " + std::to_string(w) + " begins");
        PostMessage(kEcho, w + 1);
        Log.push_back("ping " + std::to_string(w) + " ends");
        return LRESULT(w * 10);
    }
    LRESULT EvEcho(WPARAM w, LPARAM)
    {
        Log.push_back("echo " + std::to_string(w));
        return 0;
    }
    void CmSomething() { Log.push_back("command"); }

    static std::string Text(const TPoint& p)
    {
        return std::to_string(p.x) + "," + std::to_string(p.y);
    }
};

// A class that answers one message itself and leaves the rest to its base's table.
class Derived : public Recorder
{
public:
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{MsgRow<kEcho, &Derived::EvEchoHere>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : Recorder::Find(event);
    }
    LRESULT EvEchoHere(WPARAM w, LPARAM)
    {
        Log.push_back("derived echo " + std::to_string(w));
        return 0;
    }
};

using MessageLoop = HeadlessTest;

TEST_F(MessageLoop, SentMessageIsHandledAtOnceAndPostedOneAfterTheHandler)
{
    Recorder w;
    ASSERT_TRUE(w.Create());
    Pump();
    w.Log.clear();

    EXPECT_EQ(w.SendMessage(kPing, 4), 40) << "the handler's result comes back";
    EXPECT_EQ(w.Log, (std::vector<std::string>{"ping 4 begins", "ping 4 ends"}))
        << "nothing posted arrives while the poster runs";
    Pump();
    EXPECT_EQ(w.Log.back(), "echo 5");

    // Posting through the plain call queues behind what is already there.
    w.Log.clear();
    PostMessageA(w.HWindow, kEcho, 1, 0);
    PostMessageA(w.HWindow, kPing, 2, 0);
    Pump();
    EXPECT_EQ(w.Log,
              (std::vector<std::string>{"echo 1", "ping 2 begins", "ping 2 ends", "echo 3"}));
}

TEST_F(MessageLoop, MessagesToDestroyedWindowsGoNowhere)
{
    HWND gone;
    {
        Recorder w;
        w.Create();
        gone = w.HWindow;
        EXPECT_TRUE(PostMessageA(gone, kEcho, 1, 0));
    }
    EXPECT_EQ(GetWindowPtr(gone), nullptr);
    EXPECT_FALSE(PostMessageA(gone, kEcho, 1, 0));
    EXPECT_EQ(SendMessageA(gone, kPing, 1, 0), 0);
    Pump(); // the message posted before the window went is dropped, not delivered
}

TEST_F(MessageLoop, DerivedTableHidesTheBaseRowAndInheritsTheRest)
{
    Derived w;
    w.Create();
    w.SendMessage(kEcho, 7);
    w.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, 0), 0);
    w.SendMessage(WM_COMMAND, MAKEWPARAM(kCommand, EN_CHANGE), 0);
    EXPECT_EQ(w.Log.back(), "command") << "a notification code is not the command";
    EXPECT_NE(std::find(w.Log.begin(), w.Log.end(), "derived echo 7"), w.Log.end());
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "command"), 1);
}

TEST_F(MessageLoop, InvalidationPaintsOnceWithTheUnionOfTheRectangles)
{
    Recorder w;
    w.Create();
    Pump();
    ASSERT_EQ(w.Painted.size(), 1u) << "a new window paints all of itself once";
    EXPECT_EQ(w.Painted[0], TRect(0, 0, 200, 150));

    w.Fill = TColor(200, 0, 0);
    w.InvalidateRect(TRect(10, 10, 20, 20));
    w.InvalidateRect(TRect(50, 40, 60, 45));
    EXPECT_EQ(w.Painted.size(), 1u) << "invalidation alone paints nothing";
    EXPECT_EQ(w.GetUpdateRect(), TRect(10, 10, 60, 45));
    Pump();
    ASSERT_EQ(w.Painted.size(), 2u);
    EXPECT_EQ(w.Painted[1], TRect(10, 10, 60, 45));
    EXPECT_TRUE(w.GetUpdateRect().IsEmpty());

    // Only the invalid part changed on the screen.
    auto picture = WindowSystem::Get().CaptureWindow(w.HWindow);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->ColorAt(15, 15), RGB(200, 0, 0));
    EXPECT_EQ(picture->ColorAt(5, 5), RGB(0, 128, 0));
    EXPECT_EQ(picture->ColorAt(60, 45), RGB(0, 128, 0)) << "right and bottom edges lie outside";

    // UpdateWindow paints at once.
    w.Invalidate();
    w.UpdateWindow();
    EXPECT_EQ(w.Painted.size(), 3u);
    Pump();
    EXPECT_EQ(w.Painted.size(), 3u);
}

TEST_F(MessageLoop, ChildPaintsInItsOwnCoordinatesAndStaysOnTopOfItsParent)
{
    Recorder parent;
    auto* child = new Recorder(&parent);
    child->Attr.X = 30;
    child->Attr.Y = 20;
    child->Attr.W = 40;
    child->Attr.H = 30;
    child->Fill = TColor(0, 0, 255);
    parent.Create();
    Pump();
    ASSERT_EQ(child->Painted.size(), 1u);
    EXPECT_EQ(child->Painted[0], TRect(0, 0, 40, 30));

    parent.Fill = TColor(255, 255, 0);
    parent.Invalidate();
    Pump();
    EXPECT_EQ(child->Painted.size(), 1u) << "the parent's paint does not repaint the child";
    auto picture = WindowSystem::Get().CaptureWindow(parent.HWindow);
    EXPECT_EQ(picture->ColorAt(35, 25), RGB(0, 0, 255)) << "the child is still on top";
    EXPECT_EQ(picture->ColorAt(29, 25), RGB(255, 255, 0));
    EXPECT_EQ(picture->ColorAt(70, 25), RGB(255, 255, 0));

    // Drawing on the child outside a paint stays within the child.
    {
        TClientDC dc(*child);
        dc.FillRect(TRect(-100, -100, 500, 500), TBrush(TColor(9, 9, 9)));
    }
    picture = WindowSystem::Get().CaptureWindow(parent.HWindow);
    EXPECT_EQ(picture->ColorAt(30, 20), RGB(9, 9, 9));
    EXPECT_EQ(picture->ColorAt(29, 20), RGB(255, 255, 0));
    EXPECT_EQ(picture->ColorAt(70, 50), RGB(255, 255, 0));

    // Hiding the child shows the parent where it was.
    child->Show(SW_HIDE);
    Pump();
    picture = WindowSystem::Get().CaptureWindow(parent.HWindow);
    EXPECT_EQ(picture->ColorAt(35, 25), RGB(255, 255, 0));
}

TEST_F(MessageLoop, TimersFireInOrderAsVirtualTimeAdvances)
{
    Recorder w;
    w.Create();
    Pump();
    DWORD start = GetTickCount();
    EXPECT_EQ(w.SetTimer(1, 300), 1u);
    EXPECT_EQ(w.SetTimer(2, 200), 2u);
    Desk().AdvanceTime(199);
    EXPECT_TRUE(w.Log.empty()) << "nothing is due before its time";

    Desk().AdvanceTime(451);
    auto at = [&](int id, DWORD offset) {
        return "timer " + std::to_string(id) + " at " + std::to_string(start + offset);
    };
    EXPECT_EQ(w.Log, (std::vector<std::string>{at(2, 200), at(1, 300), at(2, 400), at(1, 600),
                                               at(2, 600)}))
        << "each fires at its own moment; timers due together fire in the order they were set";
    EXPECT_EQ(GetTickCount(), start + 650);

    w.Log.clear();
    EXPECT_TRUE(w.KillTimer(2));
    EXPECT_FALSE(w.KillTimer(2));
    Desk().AdvanceTime(300);
    EXPECT_EQ(w.Log, (std::vector<std::string>{at(1, 900)}));

    // Setting a running timer again starts its interval anew.
    w.Log.clear();
    w.SetTimer(1, 100);
    Desk().AdvanceTime(100);
    EXPECT_EQ(w.Log, (std::vector<std::string>{at(1, 1050)}));
    w.KillTimer(1);
}

TEST_F(MessageLoop, TimerThatIsSetAgainInItsHandlerKeepsItsNewInterval)
{
    class Stepper : public Recorder
    {
    public:
        const TResponseRow* Find(const TEventInfo& event) const override
        {
            static const TResponseTable table{EvRow<WM_TIMER, &Stepper::EvStep>()};
            const TResponseRow* row = table.Find(event);
            return row ? row : Recorder::Find(event);
        }
        void EvStep(UINT id)
        {
            Log.push_back(std::to_string(GetTickCount()));
            SetTimer(id, 50 * UINT(Log.size() + 1));
        }
    };
    Stepper w;
    w.Create();
    DWORD start = GetTickCount();
    w.SetTimer(5, 50);
    Desk().AdvanceTime(300);
    EXPECT_EQ(w.Log,
              (std::vector<std::string>{std::to_string(start + 50), std::to_string(start + 150),
                                        std::to_string(start + 300)}))
        << "50 ms, then 100, then 150";
}

TEST_F(MessageLoop, CaptureKeepsTheDragWithTheWindowOutsideItsRectangle)
{
    Recorder w;
    Recorder other;
    other.Attr.X = 400;
    w.Create();
    other.Create();
    Pump();
    w.Log.clear();
    other.Log.clear();

    // Press inside, drag far outside into the other window, release there.
    Desk().Drag(w, TPoint(20, 30), TPoint(420, 30), 2);
    EXPECT_EQ(w.Log,
              (std::vector<std::string>{"down 20,30", "drag 220,30", "drag 420,30", "up 420,30"}));
    EXPECT_TRUE(other.Log.empty()) << "the window under the pointer sees nothing while captured";
    EXPECT_EQ(GetCapture(), nullptr);

    // Without capture the other window gets its clicks.
    Desk().Click(other, TPoint(5, 6));
    EXPECT_EQ(other.Log.front(), "down 5,6");
}

TEST_F(MessageLoop, KeysGoToTheWindowWithTheFocus)
{
    Recorder first;
    Recorder second;
    second.Attr.X = 400;
    first.Create();
    second.Create();
    Pump();
    int focused = first.nFocus;
    first.SetFocus();
    EXPECT_EQ(first.nFocus, focused + 1);
    Desk().Type("ab");
    second.SetFocus();
    Desk().Type("c");
    EXPECT_EQ(std::count(first.Log.begin(), first.Log.end(), "char a"), 1);
    EXPECT_EQ(std::count(first.Log.begin(), first.Log.end(), "char b"), 1);
    EXPECT_EQ(second.Log.back(), "char c");
    EXPECT_EQ(GetFocus(), second.HWindow);
    EXPECT_EQ(GetActiveWindow(), second.HWindow) << "the focus brings its window to the front";
}

TEST_F(MessageLoop, SizeMessageFollowsCreationAndResizing)
{
    Recorder w;
    w.Create();
    EXPECT_EQ(w.Sizes, (std::vector<TSize>{TSize(200, 150)}));
    w.SetWindowPos(nullptr, 0, 0, 320, 240, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(w.Sizes.back(), TSize(320, 240));
    EXPECT_EQ(w.GetClientRect(), TRect(0, 0, 320, 240));
    EXPECT_EQ(w.GetWindowRect(), TRect(100, 50, 420, 290));
    w.SetWindowPos(nullptr, 5, 6, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(w.Sizes.size(), 2u) << "a move is not a size";
    EXPECT_EQ(w.GetWindowRect(), TRect(5, 6, 325, 246));
}

TEST_F(MessageLoop, CursorFollowsTheWindowUnderThePointer)
{
    Recorder w;
    w.Create();
    Pump();
    w.SetCursor(nullptr, IDC_WAIT);
    Desk().MouseMove(w.ClientToScreen(TPoint(10, 10)));
    EXPECT_EQ(Desk().GetCursorShape(), IDC_WAIT);
    EXPECT_EQ(w.GetCursorResId().GetInt(), IDC_WAIT);
    w.SetCursor(nullptr, IDC_ARROW);
    EXPECT_EQ(Desk().GetCursorShape(), IDC_ARROW) << "a change shows at once under the pointer";
    SetCursor(LoadCursorA(nullptr, IDC_HAND));
    EXPECT_EQ(Desk().GetCursorShape(), IDC_HAND);
}

TEST_F(MessageLoop, HelpGoesToTheHandlerTheHostInstalled)
{
    EXPECT_FALSE(WinHelpA(nullptr, "orbiscope.hlp", HELP_KEY, UINT_PTR("Time Lapse")))
        << "no handler, no help";
    std::string asked;
    WinHelpHandler before =
        SetWinHelpHandler([&](HWND, const std::string& file, UINT command, const std::string& key) {
            asked = file + "|" + std::to_string(command) + "|" + key;
            return true;
        });
    EXPECT_TRUE(WinHelpA(nullptr, "orbiscope.hlp", HELP_KEY, UINT_PTR("Time Lapse")));
    EXPECT_EQ(asked, "orbiscope.hlp|257|Time Lapse");
    EXPECT_TRUE(WinHelpA(nullptr, "orbiscope.hlp", HELP_CONTEXT, 42));
    EXPECT_EQ(asked, "orbiscope.hlp|1|42");
    SetWinHelpHandler(before);
}

TEST_F(MessageLoop, WindowAndDesktopPicturesGoToPngFiles)
{
    Recorder w;
    w.Fill = TColor(1, 2, 3);
    w.Create();
    Pump();
    std::string dir = ::testing::TempDir();
    std::string window = dir + "orbiscope-window-" + std::to_string(getpid()) + ".png";
    std::string desktop = dir + "orbiscope-desktop-" + std::to_string(getpid()) + ".png";
    ASSERT_TRUE(Desk().SaveWindowPng(w.HWindow, window));
    ASSERT_TRUE(Desk().SaveDesktopPng(desktop));
    PngImage picture;
    ASSERT_TRUE(ReadPngFile(window, picture));
    EXPECT_EQ(picture.Width, 200);
    EXPECT_EQ(picture.Height, 150);
    EXPECT_EQ(picture.Pixels[0], 1);
    ASSERT_TRUE(ReadPngFile(desktop, picture));
    EXPECT_EQ(picture.Width, 1024);
    std::size_t at = (std::size_t(50) * 1024 + 100) * 3; // the window's corner on the screen
    EXPECT_EQ(picture.Pixels[at + 2], 3);
    EXPECT_FALSE(Desk().SaveWindowPng(nullptr, window));
    std::remove(window.c_str());
    std::remove(desktop.c_str());
}

} // namespace

namespace {

TEST_F(MessageLoop, TimerKilledByAnEarlierHandlerOfTheSameMomentDoesNotFire)
{
    class Killer : public Recorder
    {
    public:
        const TResponseRow* Find(const TEventInfo& event) const override
        {
            static const TResponseTable table{EvRow<WM_TIMER, &Killer::EvKill>()};
            const TResponseRow* row = table.Find(event);
            return row ? row : Recorder::Find(event);
        }
        void EvKill(UINT id)
        {
            Log.push_back(std::to_string(id));
            KillTimer(2);
        }
    };
    Killer w;
    w.Create();
    w.SetTimer(1, 100);
    w.SetTimer(2, 100);
    Desk().AdvanceTime(250);
    EXPECT_EQ(w.Log, (std::vector<std::string>{"1", "1"}));
    w.KillTimer(1);
}

TEST_F(MessageLoop, DisabledAndHiddenWindowsTakeNoInput)
{
    Recorder w;
    w.Create();
    Pump();
    w.EnableWindow(false);
    Desk().Click(w, TPoint(10, 10));
    EXPECT_TRUE(w.Log.empty());
    w.EnableWindow(true);
    w.Show(SW_HIDE);
    EXPECT_FALSE(w.IsWindowVisible());
    Desk().Click(w, TPoint(10, 10));
    EXPECT_TRUE(w.Log.empty()) << "the click fell on the desktop";
    w.Show(SW_SHOW);
    Desk().Click(w, TPoint(10, 10));
    EXPECT_EQ(w.Log.front(), "down 10,10");
}

TEST_F(MessageLoop, LoopRunsUntilQuitAndSaysWhenNothingCanCome)
{
    Recorder w;
    w.Create();
    w.PostMessage(kEcho, 1);
    PostQuitMessage(5);
    w.PostMessage(kEcho, 2);
    EXPECT_EQ(WindowSystem::Get().Run(), 5);
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "echo 1"), 1);
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "echo 2"), 0) << "behind the quit";
    // On the headless desktop nothing more can come: the loop returns rather than wait.
    EXPECT_EQ(WindowSystem::Get().Run(), 0);
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "echo 2"), 1);
}

} // namespace
