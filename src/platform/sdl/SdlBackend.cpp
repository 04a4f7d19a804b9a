#include "platform/sdl/SdlBackend.h"

#include <SDL.h>

#include <cstdlib>

#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"
#include "platform/sdl/X11Display.h"

namespace {

// The virtual key of an SDL key; 0 for keys the component does not use.
UINT VirtualKeyOf(SDL_Keycode key)
{
    if (key >= SDLK_a && key <= SDLK_z) {
        return UINT('A' + (key - SDLK_a));
    }
    if (key >= SDLK_0 && key <= SDLK_9) {
        return UINT('0' + (key - SDLK_0));
    }
    if (key >= SDLK_F1 && key <= SDLK_F12) {
        return VK_F1 + UINT(key - SDLK_F1);
    }
    switch (key) {
    case SDLK_BACKSPACE:
        return VK_BACK;
    case SDLK_TAB:
        return VK_TAB;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        return VK_RETURN;
    case SDLK_ESCAPE:
        return VK_ESCAPE;
    case SDLK_SPACE:
        return VK_SPACE;
    case SDLK_PAGEUP:
        return VK_PRIOR;
    case SDLK_PAGEDOWN:
        return VK_NEXT;
    case SDLK_END:
        return VK_END;
    case SDLK_HOME:
        return VK_HOME;
    case SDLK_LEFT:
        return VK_LEFT;
    case SDLK_UP:
        return VK_UP;
    case SDLK_RIGHT:
        return VK_RIGHT;
    case SDLK_DOWN:
        return VK_DOWN;
    case SDLK_INSERT:
        return VK_INSERT;
    case SDLK_DELETE:
        return VK_DELETE;
    case SDLK_LSHIFT:
    case SDLK_RSHIFT:
        return VK_SHIFT;
    case SDLK_LCTRL:
    case SDLK_RCTRL:
        return VK_CONTROL;
    case SDLK_LALT:
    case SDLK_RALT:
        return VK_MENU;
    case SDLK_APPLICATION:
    case SDLK_MENU:
        return VK_APPS;
    default:
        return 0;
    }
}

SDL_SystemCursor SystemCursorOf(int id)
{
    switch (id) {
    case IDC_IBEAM:
        return SDL_SYSTEM_CURSOR_IBEAM;
    case IDC_WAIT:
        return SDL_SYSTEM_CURSOR_WAIT;
    case IDC_CROSS:
        return SDL_SYSTEM_CURSOR_CROSSHAIR;
    case IDC_SIZENWSE:
        return SDL_SYSTEM_CURSOR_SIZENWSE;
    case IDC_SIZENESW:
        return SDL_SYSTEM_CURSOR_SIZENESW;
    case IDC_SIZEWE:
        return SDL_SYSTEM_CURSOR_SIZEWE;
    case IDC_SIZENS:
        return SDL_SYSTEM_CURSOR_SIZENS;
    case IDC_SIZEALL:
        return SDL_SYSTEM_CURSOR_SIZEALL;
    case IDC_NO:
        return SDL_SYSTEM_CURSOR_NO;
    case IDC_HAND:
        return SDL_SYSTEM_CURSOR_HAND;
    case IDC_APPSTARTING:
        return SDL_SYSTEM_CURSOR_WAITARROW;
    default:
        return SDL_SYSTEM_CURSOR_ARROW;
    }
}

// Text comes from SDL in UTF-8; the component's text is one byte per character (Latin 1).
std::string ToLatin1(const char* utf8)
{
    std::string text;
    for (const unsigned char* p = reinterpret_cast<const unsigned char*>(utf8); *p;) {
        unsigned c = *p++;
        if (c < 0x80) {
            text += char(c);
        } else if ((c & 0xE0) == 0xC0 && (*p & 0xC0) == 0x80) {
            unsigned code = ((c & 0x1F) << 6) | (*p++ & 0x3F);
            if (code < 0x100) {
                text += char(code);
            }
        } else {
            // A character beyond Latin 1: skip its continuation bytes.
            while ((*p & 0xC0) == 0x80) {
                ++p;
            }
        }
    }
    return text;
}

} // namespace

std::unique_ptr<SdlBackend> SdlBackend::Open(std::string& error)
{
    const char* named = std::getenv("SDL_VIDEODRIVER");
    const bool chosen = named && *named;
    const char* x = std::getenv("DISPLAY");
    if (!chosen) {
        SDL_SetHint(SDL_HINT_VIDEODRIVER, x && *x ? "x11" : "wayland");
    }
    // The windows are drawn in memory and copied to the screen: SDL is not to make a renderer
    // for that, which would make each window anew at its first picture and lose what was set
    // on it for the window manager (its smallest size).
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        error = x && *x && !chosen ? std::string("the X display \"") + x +
                                         "\" cannot be reached (" + SDL_GetError() + ")"
                                   : SDL_GetError();
        return nullptr;
    }
    const std::string driver = SDL_GetCurrentVideoDriver() ? SDL_GetCurrentVideoDriver() : "";
    if (!chosen && driver != "x11" && driver != "wayland") {
        error = "no display, only SDL's \"" + driver + "\" driver, which shows nothing";
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
        return nullptr;
    }
    if (driver == "x11") {
        PrepareX11Display();
    }
    std::unique_ptr<SdlBackend> backend(new SdlBackend);
    SDL_StartTextInput();
    TSize screen = backend->GetScreenSize();
    DeviceCaps caps = ScreenDeviceCaps();
    caps.HorzRes = screen.cx;
    caps.VertRes = screen.cy;
    SetScreenDeviceCaps(caps);
    return backend;
}

SdlBackend::~SdlBackend()
{
    for (auto& [handle, window] : Windows) {
        SDL_DestroyWindow(window);
    }
    for (auto& [id, cursor] : Cursors) {
        SDL_FreeCursor(cursor);
    }
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    // With nothing else of SDL in use, SDL_Quit also lets go of what SDL opened along the way
    // (its connection to the desktop bus, under X).
    if (SDL_WasInit(SDL_INIT_EVERYTHING) == 0) {
        SDL_Quit();
    }
}

void SdlBackend::CreateNativeWindow(HWND window, const TRect& screenRect, const std::string& title,
                                    bool popup)
{
    Uint32 flags = SDL_WINDOW_HIDDEN;
    if (popup) {
        flags |= SDL_WINDOW_BORDERLESS | SDL_WINDOW_SKIP_TASKBAR | SDL_WINDOW_POPUP_MENU;
    }
    SDL_Window* native =
        SDL_CreateWindow(title.c_str(), screenRect.left, screenRect.top,
                         std::max(1, screenRect.Width()), std::max(1, screenRect.Height()), flags);
    if (!native) {
        dbstream << "SdlBackend: no window for \"" << title << "\": " << SDL_GetError() << dbendl;
        return;
    }
    Windows[window] = native;
    Handles[SDL_GetWindowID(native)] = window;
}

void SdlBackend::DestroyNativeWindow(HWND window)
{
    auto found = Windows.find(window);
    if (found == Windows.end()) {
        return;
    }
    Handles.erase(SDL_GetWindowID(found->second));
    SDL_DestroyWindow(found->second);
    Windows.erase(found);
    // A window that goes with the keyboard (a menu, a dialog) leaves it to no window at all on
    // X: the active one takes it back.
    if (HWND active = WindowSystem::Get().GetActiveWindow(); active && active != window) {
        ActivateNativeWindow(active);
    }
}

SDL_Window* SdlBackend::GetNativeWindow(HWND window) const
{
    auto found = Windows.find(window);
    return found == Windows.end() ? nullptr : found->second;
}

HWND SdlBackend::HandleOf(unsigned windowId) const
{
    auto found = Handles.find(windowId);
    return found == Handles.end() ? nullptr : found->second;
}

void SdlBackend::ShowNativeWindow(HWND window, bool visible)
{
    if (SDL_Window* native = GetNativeWindow(window)) {
        if (visible) {
            SDL_ShowWindow(native);
            SDL_RaiseWindow(native);
            // A window shown takes the keyboard: without a window manager nothing else gives
            // it, and the keys would go nowhere. A menu leaves it with its owner, which routes
            // the keys to it.
            if (!(SDL_GetWindowFlags(native) & SDL_WINDOW_POPUP_MENU)) {
                SDL_SetWindowInputFocus(native);
            }
        } else {
            SDL_HideWindow(native);
        }
    }
}

void SdlBackend::MoveNativeWindow(HWND window, const TRect& screenRect)
{
    if (SDL_Window* native = GetNativeWindow(window)) {
        SDL_SetWindowPosition(native, screenRect.left, screenRect.top);
        SDL_SetWindowSize(native, std::max(1, screenRect.Width()),
                          std::max(1, screenRect.Height()));
    }
}

void SdlBackend::SetNativeResizable(HWND window, TSize minimum)
{
    if (SDL_Window* native = GetNativeWindow(window)) {
        SDL_SetWindowResizable(native, SDL_TRUE);
        SDL_SetWindowMinimumSize(native, std::max(1, minimum.cx), std::max(1, minimum.cy));
    }
}

void SdlBackend::ActivateNativeWindow(HWND window)
{
    // Without it the keyboard would stay with a window that is gone (a menu, a dialog), which
    // on X leaves it with no window at all.
    SDL_Window* native = GetNativeWindow(window);
    if (native && (SDL_GetWindowFlags(native) & SDL_WINDOW_SHOWN)) {
        SDL_SetWindowInputFocus(native);
    }
}

void SdlBackend::SetNativeBordered(HWND window, bool bordered)
{
    if (SDL_Window* native = GetNativeWindow(window)) {
        SDL_SetWindowBordered(native, bordered ? SDL_TRUE : SDL_FALSE);
    }
}

void SdlBackend::SetNativeTitle(HWND window, const std::string& title)
{
    if (SDL_Window* native = GetNativeWindow(window)) {
        SDL_SetWindowTitle(native, title.c_str());
    }
}

void SdlBackend::Present(HWND window, const Surface& surface, const TRect& area)
{
    SDL_Window* native = GetNativeWindow(window);
    SDL_Surface* target = native ? SDL_GetWindowSurface(native) : nullptr;
    if (!target || surface.IsIndexed()) {
        return;
    }
    TRect r = area & surface.Bounds() & TRect(0, 0, target->w, target->h);
    if (r.IsEmpty()) {
        return;
    }
    // The window's pixels are 0x00RRGGBB in memory order blue, green, red: SDL's XRGB8888.
    auto* pixels = const_cast<BYTE*>(surface.Row(r.top)) + std::size_t(r.left) * 4;
    SDL_Surface* source = SDL_CreateRGBSurfaceWithFormatFrom(
        pixels, r.Width(), r.Height(), 32, surface.Stride(), SDL_PIXELFORMAT_XRGB8888);
    if (!source) {
        return;
    }
    SDL_Rect to{r.left, r.top, r.Width(), r.Height()};
    SDL_BlitSurface(source, nullptr, target, &to);
    SDL_FreeSurface(source);
    SDL_UpdateWindowSurfaceRects(native, &to, 1);
}

bool SdlBackend::PumpEvents(int waitMs)
{
    SDL_Event event;
    if (waitMs != 0 && SDL_WaitEventTimeout(&event, waitMs < 0 ? -1 : waitMs)) {
        Translate(event);
    }
    while (SDL_PollEvent(&event)) {
        Translate(event);
    }
    return true;
}

void SdlBackend::Translate(const SDL_Event& event)
{
    WindowSystem& system = WindowSystem::Get();
    auto screenPoint = [&](unsigned windowId, int x, int y) {
        TWindow* w = GetWindowPtr(HandleOf(windowId));
        return w ? w->ClientToScreen(TPoint(x, y)) : TPoint(x, y);
    };
    switch (event.type) {
    case SDL_QUIT:
        // The program is asked to end (a signal, or its last window closed).
        system.PostQuitMessage(0);
        break;
    case SDL_WINDOWEVENT: {
        HWND handle = HandleOf(event.window.windowID);
        if (!handle) {
            break;
        }
        switch (event.window.event) {
        case SDL_WINDOWEVENT_CLOSE:
            system.InputClose(handle);
            break;
        case SDL_WINDOWEVENT_EXPOSED:
            system.InputExposed(handle);
            break;
        case SDL_WINDOWEVENT_SIZE_CHANGED:
            system.InputResize(handle, TSize(event.window.data1, event.window.data2));
            break;
        case SDL_WINDOWEVENT_MOVED:
            system.InputMove(handle, TPoint(event.window.data1, event.window.data2));
            break;
        default:
            break;
        }
        break;
    }
    case SDL_MOUSEMOTION:
        system.InputMouse(WM_MOUSEMOVE,
                          screenPoint(event.motion.windowID, event.motion.x, event.motion.y));
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: {
        bool down = event.type == SDL_MOUSEBUTTONDOWN;
        UINT msg = event.button.button == SDL_BUTTON_RIGHT    ? WM_RBUTTONDOWN
                   : event.button.button == SDL_BUTTON_MIDDLE ? WM_MBUTTONDOWN
                                                              : WM_LBUTTONDOWN;
        // While a button is held the mouse stays with the window it was pressed in.
        SDL_CaptureMouse(down ? SDL_TRUE : SDL_FALSE);
        system.InputMouse(down ? msg : msg + 1,
                          screenPoint(event.button.windowID, event.button.x, event.button.y));
        break;
    }
    case SDL_MOUSEWHEEL:
        system.InputMouse(WM_MOUSEWHEEL, system.GetCursorPos(),
                          event.wheel.y * WHEEL_DELTA *
                              (event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -1 : 1));
        break;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        if (UINT key = VirtualKeyOf(event.key.keysym.sym)) {
            system.InputKey(event.type == SDL_KEYDOWN ? WM_KEYDOWN : WM_KEYUP, key);
        }
        break;
    case SDL_TEXTINPUT:
        for (char c : ToLatin1(event.text.text)) {
            system.InputChar(c);
        }
        break;
    default:
        break;
    }
}

DWORD SdlBackend::Now() const
{
    return DWORD(SDL_GetTicks64());
}

void SdlBackend::SetCursorShape(int cursorId)
{
    SDL_Cursor*& cursor = Cursors[cursorId];
    if (!cursor) {
        cursor = SDL_CreateSystemCursor(SystemCursorOf(cursorId));
    }
    if (cursor) {
        SDL_SetCursor(cursor);
    }
}

TSize SdlBackend::GetScreenSize() const
{
    SDL_DisplayMode mode;
    if (SDL_GetDesktopDisplayMode(0, &mode) != 0 || mode.w <= 0 || mode.h <= 0) {
        return TSize(1024, 768);
    }
    return TSize(mode.w, mode.h);
}
