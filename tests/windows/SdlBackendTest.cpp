// The SDL2 backend on SDL's dummy video driver: windows get SDL windows, SDL's events reach the
// windows as messages, the surface is shown in the SDL window and timers run on SDL's clock.
// The test against a real X server is in tests/e2e.
#include <gtest/gtest.h>

#include <SDL.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/sdl/SdlBackend.h"

namespace {

class Target : public TWindow
{
public:
    Target() : TWindow(nullptr, "SDL target")
    {
        Attr.X = 40;
        Attr.Y = 30;
        Attr.W = 160;
        Attr.H = 120;
    }
    std::vector<std::string> Log;
    void Paint(TDC& dc, bool, TRect&) override
    {
        dc.FillRect(GetClientRect(), TBrush(TColor(10, 200, 30)));
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        switch (msg) {
        case WM_LBUTTONDOWN:
            Log.push_back("down " + std::to_string(GET_X_LPARAM(lParam)) + "," +
                          std::to_string(GET_Y_LPARAM(lParam)));
            break;
        case WM_KEYDOWN:
            Log.push_back("key " + std::to_string(wParam));
            break;
        case WM_CHAR:
            Log.push_back(std::string("char ") + char(wParam));
            break;
        case WM_TIMER:
            Log.push_back("timer");
            break;
        case WM_CLOSE:
            Log.push_back("close");
            return 0;
        default:
            break;
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
};

class SdlDummy : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // Tests run without a display: SDL's dummy driver unless the caller chose another.
        setenv("SDL_VIDEODRIVER", "dummy", 0);
        std::string error;
        auto backend = SdlBackend::Open(error);
        if (!backend) {
            GTEST_SKIP() << "SDL cannot start here: " << error;
        }
        pBackend = backend.get();
        WindowSystem::Get().SetBackend(std::move(backend));
    }
    void TearDown() override
    {
        // Back to the headless desktop for the other tests.
        WindowSystem::Get().SetBackend(std::make_unique<HeadlessBackend>());
    }
    void Push(SDL_Event event) { pBackend->Translate(event); }
    SdlBackend* pBackend = nullptr;
};

TEST_F(SdlDummy, WindowGetsAnSdlWindowThatShowsItsPixels)
{
    Target w;
    ASSERT_TRUE(w.Create());
    WindowSystem::Get().ProcessAll();
    SDL_Window* native = pBackend->GetNativeWindow(w.HWindow);
    ASSERT_NE(native, nullptr);
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(native, &width, &height);
    EXPECT_EQ(width, 160);
    EXPECT_EQ(height, 120);
    EXPECT_STREQ(SDL_GetWindowTitle(native), "SDL target");
    SDL_Surface* shown = SDL_GetWindowSurface(native);
    ASSERT_NE(shown, nullptr);
    Uint32 pixel = 0;
    std::memcpy(&pixel, static_cast<BYTE*>(shown->pixels) + 50 * shown->pitch + 60 * 4, 4);
    Uint8 r, g, b;
    SDL_GetRGB(pixel, shown->format, &r, &g, &b);
    EXPECT_EQ(r, 10);
    EXPECT_EQ(g, 200);
    EXPECT_EQ(b, 30);
    w.SetCaption("Renamed");
    EXPECT_STREQ(SDL_GetWindowTitle(native), "Renamed");
    w.Destroy();
    EXPECT_EQ(pBackend->GetNativeWindow(w.HWindow), nullptr);
}

TEST_F(SdlDummy, SdlEventsBecomeMessages)
{
    Target w;
    w.Create();
    w.SetFocus();
    Uint32 id = SDL_GetWindowID(pBackend->GetNativeWindow(w.HWindow));

    SDL_Event press{};
    press.type = SDL_MOUSEBUTTONDOWN;
    press.button.windowID = id;
    press.button.button = SDL_BUTTON_LEFT;
    press.button.x = 12;
    press.button.y = 34;
    Push(press);
    press.type = SDL_MOUSEBUTTONUP;
    Push(press);

    SDL_Event key{};
    key.type = SDL_KEYDOWN;
    key.key.windowID = id;
    key.key.keysym.sym = SDLK_RETURN;
    Push(key);
    SDL_Event text{};
    text.type = SDL_TEXTINPUT;
    text.text.windowID = id;
    std::strcpy(text.text.text, "a\xC3\xA9"); // "a" and e with an acute accent
    Push(text);
    SDL_Event close{};
    close.type = SDL_WINDOWEVENT;
    close.window.windowID = id;
    close.window.event = SDL_WINDOWEVENT_CLOSE;
    Push(close);

    EXPECT_EQ(w.Log, (std::vector<std::string>{"down 12,34", "key 13", "char \r", "char a",
                                               std::string("char \xE9"), "close"}));
    w.Destroy();
}

TEST_F(SdlDummy, TimersRunOnSdlsClock)
{
    Target w;
    w.Create();
    w.SetTimer(1, 30);
    DWORD start = GetTickCount();
    while (GetTickCount() - start < 200 && w.Log.empty()) {
        if (!WindowSystem::Get().ProcessPending()) {
            pBackend->PumpEvents(10);
        }
    }
    EXPECT_EQ(w.Log, std::vector<std::string>{"timer"});
    EXPECT_GE(GetTickCount() - start, 30u);
    w.Destroy();
}

} // namespace
