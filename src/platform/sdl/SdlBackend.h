#pragma once
// The window system on a real display through SDL2: each top-level window is an SDL window
// that shows the window's surface, SDL's events become the same input the headless desktop
// gives, and the clock is SDL's. Under X (Xvfb included) set SDL_VIDEODRIVER=x11.
//
// Everything runs on the thread of the message loop. SDL's own timers are not used: the loop
// waits for events no longer than until the next timer of the window system is due.
#include <memory>
#include <string>
#include <unordered_map>

#include "platform/WindowBackend.h"

struct SDL_Window;
struct SDL_Cursor;
union SDL_Event;

class SdlBackend : public WindowBackend
{
public:
    // Starts SDL's video on the display: X when DISPLAY is set, else Wayland, unless
    // SDL_VIDEODRIVER names a driver. Null, with the reason in `error`, when no display can be
    // opened; SDL's fallbacks that show nothing to anybody (offscreen, dummy) count as none
    // unless they were named.
    static std::unique_ptr<SdlBackend> Open(std::string& error);
    ~SdlBackend() override;

    SdlBackend(const SdlBackend&) = delete;
    SdlBackend& operator=(const SdlBackend&) = delete;

    const char* GetName() const override { return "sdl"; }
    void CreateNativeWindow(HWND window, const TRect& screenRect, const std::string& title,
                            bool popup) override;
    void DestroyNativeWindow(HWND window) override;
    void ShowNativeWindow(HWND window, bool visible) override;
    void MoveNativeWindow(HWND window, const TRect& screenRect) override;
    void SetNativeTitle(HWND window, const std::string& title) override;
    void SetNativeResizable(HWND window, TSize minimum) override;
    void ActivateNativeWindow(HWND window) override;
    void SetNativeBordered(HWND window, bool bordered) override;
    void Present(HWND window, const Surface& surface, const TRect& area) override;
    bool PumpEvents(int waitMs) override;
    DWORD Now() const override;
    void SetCursorShape(int cursorId) override;
    TSize GetScreenSize() const override;
    bool ModalStarted(HWND) override { return true; }

    // The SDL window of a top-level window, for tests; null when it has none.
    SDL_Window* GetNativeWindow(HWND window) const;
    // Hands one SDL event to the window system, as PumpEvents does with each.
    void Translate(const SDL_Event& event);

private:
    SdlBackend() = default;
    HWND HandleOf(unsigned windowId) const;

    std::unordered_map<HWND, SDL_Window*> Windows;
    std::unordered_map<unsigned, HWND> Handles;
    std::unordered_map<int, SDL_Cursor*> Cursors;
};
