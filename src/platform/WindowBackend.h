#pragma once
// What the window system needs from the machine it runs on: top-level windows on a screen,
// a way to show their pixels, events, a clock and a mouse cursor. Two backends implement it:
// a headless desktop in memory with virtual time (tests, rendering) and SDL2 (a real display).
//
// Everything runs on the one thread of the message loop. A backend turns its events into input
// by calling the window system's Input... functions from PumpEvents.
#include <string>

#include "platform/Surface.h"
#include "platform/TRect.h"
#include "platform/WinTypes.h"

class WindowBackend
{
public:
    virtual ~WindowBackend() = default;

    virtual const char* GetName() const = 0;

    // A top-level window gets a place on the screen, hidden at first. `popup` asks for no
    // frame or caption (menus, drop-down lists).
    virtual void CreateNativeWindow(HWND window, const TRect& screenRect, const std::string& title,
                                    bool popup) = 0;
    virtual void DestroyNativeWindow(HWND window) = 0;
    virtual void ShowNativeWindow(HWND window, bool visible) = 0;
    virtual void MoveNativeWindow(HWND window, const TRect& screenRect) = 0;
    virtual void SetNativeTitle(HWND window, const std::string& title) = 0;
    // Lets the user resize a top-level window with the desktop's frame, down to `minimum`.
    virtual void SetNativeResizable(HWND /*window*/, TSize /*minimum*/) {}
    // A top-level window became the active one: it takes the keyboard on the desktop too.
    virtual void ActivateNativeWindow(HWND /*window*/) {}
    // Shows or takes away the desktop's frame and caption round a top-level window, as a
    // window that fills the screen has none.
    virtual void SetNativeBordered(HWND /*window*/, bool /*bordered*/) {}
    // Puts `area` of the window's surface (window coordinates) on the screen.
    virtual void Present(HWND window, const Surface& surface, const TRect& area) = 0;

    // Turns the events that have arrived into input. With `waitMs` above 0 it first waits up to
    // that long for one; -1 waits without a limit. Returns false when no event can ever come
    // without being waited for in another way (a headless desktop).
    virtual bool PumpEvents(int waitMs) = 0;

    // Milliseconds on the backend's clock.
    virtual DWORD Now() const = 0;
    // Shows one of the system cursors (IDC_...).
    virtual void SetCursorShape(int cursorId) = 0;
    virtual TSize GetScreenSize() const = 0;

    // A modal loop has begun for a window (a dialog, a message box, a menu): a scripted desktop
    // answers it here. Returns false when the backend has no answer and the loop should end
    // the window as cancelled.
    virtual bool ModalStarted(HWND window) = 0;
    // The answer given at ModalStarted left the window open, and nothing more can come to
    // close it: the loop ends it as cancelled. A scripted desktop counts it as a failure.
    virtual void ModalLeftOpen(HWND /*window*/) {}
};
