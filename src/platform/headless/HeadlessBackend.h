#pragma once
// A desktop in memory: the backend of tests and of rendering without a display.
//
// Time is virtual. The clock stands still until AdvanceTime moves it; then every timer that
// falls due on the way fires at its own moment, in order, and the loop delivers what the
// handlers post and paints what they invalidate before the clock moves on.
//
// Input is given as a user would give it: the mouse moves, presses and releases at points on
// the screen, keys go down and up and characters are typed, and the window system routes them
// as it routes real input (capture, focus, modal windows). Nothing is delivered until asked
// for, and the helpers do not turn the loop: call ProcessAll (or AdvanceTime) to see the
// paints that follow.
//
// Modal windows (dialogs, message boxes, menus) are answered by the answers queued with
// AnswerNextModal, one per window in the order they open. An answer runs once the window is
// shown; it may press buttons, type, let time pass and open further modal windows. A modal
// window with no answer waiting, or left open by its answer, is closed as cancelled and counted.
#include <deque>
#include <functional>
#include <string>
#include <unordered_map>

#include "platform/WindowBackend.h"

class TWindow;

class HeadlessBackend : public WindowBackend
{
public:
    explicit HeadlessBackend(TSize screen = TSize(1024, 768));

    const char* GetName() const override { return "headless"; }
    void CreateNativeWindow(HWND window, const TRect& screenRect, const std::string& title,
                            bool popup) override;
    void DestroyNativeWindow(HWND window) override;
    void ShowNativeWindow(HWND, bool) override {}
    void MoveNativeWindow(HWND, const TRect&) override {}
    void SetNativeTitle(HWND window, const std::string& title) override;
    void Present(HWND, const Surface&, const TRect&) override { ++nPresents; }
    bool PumpEvents(int) override { return false; }
    DWORD Now() const override { return nNow; }
    void SetCursorShape(int cursorId) override { nCursor = cursorId; }
    TSize GetScreenSize() const override { return Screen; }
    bool ModalStarted(HWND window) override;
    void ModalLeftOpen(HWND) override { ++nUnanswered; }

    // Virtual time: moves the clock on, firing the timers that fall due on the way.
    void AdvanceTime(DWORD milliseconds);

    // The mouse, at points on the screen.
    void MouseMove(TPoint screen);
    void MouseDown(TPoint screen, UINT button = MK_LBUTTON);
    void MouseUp(TPoint screen, UINT button = MK_LBUTTON);
    void Wheel(TPoint screen, int delta);
    // The mouse at points of a window's client area.
    void Click(const TWindow& window, TPoint client, UINT button = MK_LBUTTON);
    void DoubleClick(const TWindow& window, TPoint client);
    // Press at `from`, move in `steps` steps to `to`, release there.
    void Drag(const TWindow& window, TPoint from, TPoint to, int steps = 4);

    // The keyboard: a key goes down and up (Backspace, Tab, Enter and Escape type their
    // character on the way); typing gives each character with its key, and "\r", "\t", "\b"
    // and "\x1b" press those keys.
    void KeyDown(UINT virtualKey);
    void KeyUp(UINT virtualKey);
    void PressKey(UINT virtualKey);
    void Type(const std::string& text);

    // Answers to modal windows.
    using ModalAnswer = std::function<void(TWindow& window)>;
    void AnswerNextModal(ModalAnswer answer);
    std::size_t GetWaitingAnswers() const { return Answers.size(); }
    // Modal windows that were closed because nobody answered them or their answer left them
    // open.
    int GetUnansweredCount() const { return nUnanswered; }

    // Helpers for answers: click the control of an id in its middle; click into the control
    // of an id, select all of its text and type over it; choose the item of a popup menu.
    static void PressButton(TWindow& window, int id);
    static void TypeInto(TWindow& window, int id, const std::string& text);
    static void ChooseMenuItem(TWindow& menu, UINT command);

    // What the desktop shows.
    int GetCursorShape() const { return nCursor; }
    std::string GetTitle(HWND window) const;
    unsigned long GetPresentCount() const { return nPresents; }
    bool SaveWindowPng(HWND window, const std::string& path) const;
    bool SaveDesktopPng(const std::string& path) const;

private:
    TSize Screen;
    DWORD nNow = 0;
    int nCursor = IDC_ARROW;
    std::deque<ModalAnswer> Answers;
    int nUnanswered = 0;
    unsigned long nPresents = 0;
    std::unordered_map<HWND, std::string> Titles;
};

// The headless backend in use, installed in place of any other backend if need be.
HeadlessBackend& Headless();
