#pragma once
// The one message loop of the process and everything it keeps: the table of window handles,
// the queue of posted messages, timers, the invalid windows waiting for WM_PAINT, mouse
// capture, keyboard focus, the cursor and the modal loops.
//
// One turn of the loop (ProcessPending) handles, in this order, the input that the backend has
// received, the messages posted before the turn began, the timers that are due and then the
// paints, so a posted message always arrives after the handler that posted it has returned and
// a paint comes after the messages that caused it. Timers are due by the backend's clock; each
// timer fires at most once per turn, and timers due at the same moment fire in the order they
// were set.
//
// Windows call it through their members and the plain calls of WindowCalls.h; backends call
// the Input functions; tests reach it to turn the loop.
#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/Surface.h"
#include "platform/TPoint.h"
#include "platform/WinTypes.h"
#include "platform/WindowBackend.h"

class TWindow;

class WindowSystem
{
public:
    static WindowSystem& Get();

    // The backend: headless until another is set. Set it before windows exist.
    WindowBackend& GetBackend();
    void SetBackend(std::unique_ptr<WindowBackend> backend);

    // Handles.
    HWND AddWindow(TWindow& window);
    void RemoveWindow(HWND handle);
    TWindow* FindWindow(HWND handle) const;
    // Top-level windows with a handle, from the bottom of the screen to the top.
    const std::vector<TWindow*>& GetTopLevels() const { return aTopLevels; }
    void AddTopLevel(TWindow& window);
    void RemoveTopLevel(TWindow& window);
    void RaiseTopLevel(TWindow& window);

    // Messages.
    LRESULT SendMessage(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam);
    bool PostMessage(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam);
    void PostQuitMessage(int exitCode);
    // One turn of the loop without waiting; true when it did anything.
    bool ProcessPending();
    // Turns the loop until the queue, the timers and the paints have nothing left for now.
    void ProcessAll();
    // The loop of the program: runs until WM_QUIT and returns its exit code. On a backend that
    // can receive nothing more it returns when nothing is left to do (with exit code 0).
    int Run();

    // Modal loops. RunModal shows `window` in front of all others, which take no input until it
    // ends, keeps messages, timers and paints of every window going, and returns the result
    // given to EndModal. A window left open when no input can come any more is sent WM_CLOSE.
    int RunModal(TWindow& window);
    void EndModal(TWindow& window, int result);
    bool IsInModalLoop(const TWindow& window) const;
    int GetModalDepth() const { return int(aModal.size()); }

    // Timers.
    UINT_PTR SetTimer(HWND handle, UINT_PTR id, UINT elapse);
    bool KillTimer(HWND handle, UINT_PTR id);
    void KillTimers(HWND handle);
    DWORD Now() const { return pBackend ? pBackend->Now() : 0; }
    // When the next timer is due, if one runs.
    std::optional<DWORD> NextTimerDue() const;
    // Sends WM_TIMER for each timer due by the clock, once each; returns how many fired.
    int FireDueTimers();

    // Painting.
    void NoteInvalid(TWindow& window);
    // Paints every invalid window; true when one was painted.
    bool PaintInvalid();
    // Paints `window` and its children where they are invalid, and shows the result.
    void UpdateWindow(TWindow& window);
    // Shows a part of a top-level window's surface (window coordinates).
    void Present(TWindow& topLevel, const TRect& area);

    // Input from the backend. Mouse points are on the screen. A key going down that types a
    // character by itself (Backspace, Tab, Enter, Escape, a letter with Ctrl) gives WM_CHAR
    // after WM_KEYDOWN; other characters come by InputChar.
    void InputMouse(UINT msg, TPoint screenPoint, int wheelDelta = 0);
    void InputKey(UINT msg, UINT virtualKey);
    void InputChar(char c);
    void InputClose(HWND topLevel);
    void InputResize(HWND topLevel, TSize size);
    void InputMove(HWND topLevel, TPoint screenPoint);
    void InputExposed(HWND topLevel);
    // Counts input events taken, so that a turn knows whether any came.
    unsigned long GetInputCount() const { return nInput; }

    // Capture, focus, activation, keys and the cursor.
    HWND SetCapture(HWND handle);
    bool ReleaseCapture();
    HWND GetCapture() const { return hCapture; }
    HWND SetFocus(HWND handle);
    HWND GetFocus() const { return hFocus; }
    HWND GetActiveWindow() const { return hActive; }
    void Activate(TWindow& topLevel);
    bool IsKeyDown(UINT virtualKey) const { return aKeys[virtualKey & 0xFF]; }
    UINT GetMouseKeys() const;
    TPoint GetCursorPos() const { return MousePosition; }
    HCURSOR SetCursor(HCURSOR cursor);
    HCURSOR GetCursor() const { return hCursor; }
    // The window the mouse was last over.
    HWND GetCursorWindow() const { return hMouseOver; }

    // Pictures of what is on the screen: one window with its children, or the whole desktop
    // with every visible top-level window in its place.
    std::unique_ptr<Surface> CaptureWindow(HWND handle) const;
    std::unique_ptr<Surface> CaptureDesktop() const;

private:
    WindowSystem();

    struct Timer
    {
        HWND Window;
        UINT_PTR Id;
        UINT Elapse;
        DWORD Due;
        std::uint64_t Order;
    };
    struct ModalFrame
    {
        HWND Window;
        bool bDone;
        int Result;
    };

    LRESULT Dispatch(TWindow& window, UINT msg, WPARAM wParam, LPARAM lParam);
    TWindow* WindowAt(TPoint screenPoint) const;
    bool AcceptsInput(const TWindow& window) const;
    bool PaintTree(TWindow& window, TRect& painted);
    void PaintOne(TWindow& window, TRect& painted);
    struct Kept;
    void KeepChildren(TWindow& window, const TRect& onSurface, std::vector<Kept>& kept);
    void SetEnabledForModal(TWindow& modal, std::vector<HWND>& disabled);
    TWindow* KeyTarget() const;

    std::unique_ptr<WindowBackend> pBackend;
    std::unordered_map<std::uintptr_t, TWindow*> Windows;
    std::uintptr_t nNextHandle = 0x100;
    std::vector<TWindow*> aTopLevels;
    std::deque<MSG> Queue;
    std::vector<Timer> aTimers;
    std::uint64_t nTimerOrder = 0;
    std::vector<HWND> aNeedPaint;
    std::vector<ModalFrame> aModal;
    bool bQuit = false;
    int nExitCode = 0;
    HWND hCapture = nullptr;
    HWND hFocus = nullptr;
    HWND hActive = nullptr;
    HWND hMouseOver = nullptr;
    HCURSOR hCursor = nullptr;
    TPoint MousePosition;
    std::array<bool, 256> aKeys{};
    unsigned long nInput = 0;
    // The last button press, for double clicks.
    HWND hLastDown = nullptr;
    UINT nLastDownMsg = 0;
    DWORD nLastDownTime = 0;
    TPoint LastDownPoint;
};
