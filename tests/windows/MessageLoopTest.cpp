// The message loop: sent and posted messages, the order of one turn (posted messages, due
// timers, then paints), invalidation, timers on virtual time, mouse capture, the keyboard focus
// and the end of the loop.
#include <algorithm>
#include <string>
#include <vector>

#include "HeadlessFixture.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"

namespace {

constexpr UINT kPing = WM_USER + 1;
constexpr UINT kEcho = WM_USER + 2;

// A top-level window that writes down what reaches it. A ping posts an echo; a timer posts an
// echo of its id, invalidates the window and stops.
class Recorder : public TWindow
{
public:
    explicit Recorder(int x = 100) : TWindow(nullptr, "Recorder")
    {
        Attr.X = x;
        Attr.Y = 50;
        Attr.W = 200;
        Attr.H = 150;
    }

    std::vector<std::string> Log;
    std::vector<TRect> Painted;
    TColor Fill = TColor(0, 128, 0);
    bool bTimerPosts = false;

    void Paint(TDC& dc, bool, TRect& rect) override
    {
        Painted.push_back(rect);
        Log.push_back("paint");
        dc.FillRect(GetClientRect(), TBrush(Fill));
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        const std::string at =
            std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
        switch (msg) {
        case kPing:
            Log.push_back("ping " + std::to_string(wParam));
            PostMessage(kEcho, wParam + 1);
            return LRESULT(wParam * 10);
        case kEcho:
            Log.push_back("echo " + std::to_string(wParam));
            return 0;
        case WM_TIMER:
            Log.push_back("timer " + std::to_string(wParam) + " at " +
                          std::to_string(GetTickCount()));
            if (bTimerPosts) {
                PostMessage(kEcho, wParam);
                Invalidate();
                KillTimer(UINT(wParam));
            }
            return 0;
        case WM_LBUTTONDOWN:
            Log.push_back("down " + at);
            SetCapture();
            return 0;
        case WM_MOUSEMOVE:
            if (wParam & MK_LBUTTON) {
                Log.push_back("drag " + at);
            }
            return 0;
        case WM_LBUTTONUP:
            Log.push_back("up " + at);
            ReleaseCapture();
            return 0;
        case WM_CHAR:
            Log.push_back(std::string("char ") + char(wParam));
            return 0;
        default:
            return TWindow::WindowProc(msg, wParam, lParam);
        }
    }
};

using MessageLoop = HeadlessTest;

TEST_F(MessageLoop, SentMessageIsHandledAtOncePostedOneAfterWhatWasPostedBefore)
{
    Recorder w;
    ASSERT_TRUE(w.Create());
    Pump();
    w.Log.clear();
    EXPECT_EQ(w.SendMessage(kPing, 4), 40) << "the handler's result comes back";
    EXPECT_EQ(w.Log, std::vector<std::string>{"ping 4"}) << "the echo waits for the loop";
    Pump();
    EXPECT_EQ(w.Log.back(), "echo 5");

    w.Log.clear();
    PostMessageA(w.HWindow, kEcho, 1, 0);
    PostMessageA(w.HWindow, kPing, 2, 0);
    Pump();
    EXPECT_EQ(w.Log, (std::vector<std::string>{"echo 1", "ping 2", "echo 3"}));

    // A window that is gone takes nothing, and what was posted to it is dropped.
    HWND gone = w.HWindow;
    EXPECT_TRUE(PostMessageA(gone, kEcho, 1, 0));
    w.Destroy();
    EXPECT_FALSE(PostMessageA(gone, kEcho, 1, 0));
    EXPECT_EQ(SendMessageA(gone, kPing, 1, 0), 0);
    Pump();
}

// In one turn the timers that are due fire in the order they were set, then the windows
// paint; what the handlers posted arrives in the next turn.
TEST_F(MessageLoop, ATurnFiresDueTimersThenPaintsAndPostsWaitForTheNextTurn)
{
    Recorder w;
    w.bTimerPosts = true;
    w.Create();
    Pump();
    w.Log.clear();
    const std::string at100 = " at " + std::to_string(GetTickCount() + 100);
    w.SetTimer(2, 100);
    w.SetTimer(1, 100);
    Desk().AdvanceTime(100);
    EXPECT_EQ(w.Log, (std::vector<std::string>{"timer 2" + at100, "timer 1" + at100, "paint",
                                               "echo 2", "echo 1"}));
}

TEST_F(MessageLoop, InvalidationPaintsOnceWithTheUnionOfTheRectangles)
{
    Recorder w;
    w.Create();
    Pump();
    ASSERT_EQ(w.Painted, std::vector<TRect>{TRect(0, 0, 200, 150)}) << "a new window paints once";
    w.Fill = TColor(200, 0, 0);
    w.InvalidateRect(TRect(10, 10, 20, 20));
    w.InvalidateRect(TRect(50, 40, 60, 45));
    EXPECT_EQ(w.Painted.size(), 1u) << "invalidation alone paints nothing";
    Pump();
    ASSERT_EQ(w.Painted.size(), 2u);
    EXPECT_EQ(w.Painted[1], TRect(10, 10, 60, 45));
    // Only the invalid part changed on the screen.
    auto picture = WindowSystem::Get().CaptureWindow(w.HWindow);
    EXPECT_EQ(picture->ColorAt(15, 15), RGB(200, 0, 0));
    EXPECT_EQ(picture->ColorAt(5, 5), RGB(0, 128, 0));
    EXPECT_EQ(picture->ColorAt(60, 45), RGB(0, 128, 0)) << "right and bottom edges lie outside";
}

TEST_F(MessageLoop, TimersFireAtTheirMomentsOnVirtualTime)
{
    Recorder w;
    w.Create();
    Pump();
    w.Log.clear();
    const DWORD start = GetTickCount();
    auto at = [&](int id, DWORD offset) {
        return "timer " + std::to_string(id) + " at " + std::to_string(start + offset);
    };
    w.SetTimer(1, 300);
    w.SetTimer(2, 200);
    Desk().AdvanceTime(199);
    EXPECT_TRUE(w.Log.empty()) << "nothing is due before its time";
    Desk().AdvanceTime(451);
    EXPECT_EQ(w.Log, (std::vector<std::string>{at(2, 200), at(1, 300), at(2, 400), at(1, 600),
                                               at(2, 600)}));
    w.Log.clear();
    EXPECT_TRUE(w.KillTimer(2));
    EXPECT_FALSE(w.KillTimer(2));
    w.SetTimer(1, 100); // set again: the interval starts anew
    Desk().AdvanceTime(100);
    EXPECT_EQ(w.Log, (std::vector<std::string>{at(1, 750)}));
    w.KillTimer(1);
}

TEST_F(MessageLoop, CaptureKeepsTheDragAndKeysGoToTheFocus)
{
    Recorder w;
    Recorder other(400);
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
    w.SetFocus();
    Desk().Type("a");
    other.SetFocus();
    Desk().Type("b");
    EXPECT_EQ(w.Log.back(), "char a");
    EXPECT_EQ(other.Log.back(), "char b");
    EXPECT_EQ(GetActiveWindow(), other.HWindow) << "the focus brings its window to the front";
}

TEST_F(MessageLoop, DisabledAndHiddenWindowsTakeNoInput)
{
    Recorder w;
    w.Create();
    Pump();
    w.Log.clear();
    w.EnableWindow(false);
    Desk().Click(w, TPoint(10, 10));
    w.EnableWindow(true);
    w.Show(SW_HIDE);
    Desk().Click(w, TPoint(10, 10));
    EXPECT_TRUE(w.Log.empty());
}

TEST_F(MessageLoop, LoopRunsUntilQuitAndSaysWhenNothingCanCome)
{
    Recorder w;
    w.Create();
    w.PostMessage(kEcho, 1);
    PostQuitMessage(5);
    w.PostMessage(kEcho, 2);
    EXPECT_EQ(WindowSystem::Get().Run(), 5);
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "echo 2"), 0) << "behind the quit";
    // On the headless desktop nothing more can come: the loop returns rather than wait.
    EXPECT_EQ(WindowSystem::Get().Run(), 0);
    EXPECT_EQ(std::count(w.Log.begin(), w.Log.end(), "echo 2"), 1);
}

} // namespace
