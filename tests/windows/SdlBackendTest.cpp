// The SDL2 backend on SDL's dummy video driver: SDL's events reach the windows as messages and
// timers run on SDL's clock. The display smoke test of tests/e2e runs the program on a real X
// server and looks at its pixels.
#include <gtest/gtest.h>

#include <SDL.h>

#include <cstring>
#include <string>
#include <vector>

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
    SdlBackend* pBackend = nullptr;
};

TEST_F(SdlDummy, SdlEventsBecomeMessagesAndTimersRunOnSdlsClock)
{
    Target w;
    w.Create();
    w.SetFocus();
    const Uint32 id = SDL_GetWindowID(pBackend->GetNativeWindow(w.HWindow));
    SDL_Event press{};
    press.type = SDL_MOUSEBUTTONDOWN;
    press.button = {SDL_MOUSEBUTTONDOWN, 0, id, 0, SDL_BUTTON_LEFT, SDL_PRESSED, 1, 0, 12, 34};
    pBackend->Translate(press);
    SDL_Event key{};
    key.type = SDL_KEYDOWN;
    key.key.windowID = id;
    key.key.keysym.sym = SDLK_RETURN;
    pBackend->Translate(key);
    SDL_Event text{};
    text.type = SDL_TEXTINPUT;
    text.text.windowID = id;
    std::strcpy(text.text.text, "a\xC3\xA9"); // "a" and e with an acute accent
    pBackend->Translate(text);
    SDL_Event close{};
    close.type = SDL_WINDOWEVENT;
    close.window.windowID = id;
    close.window.event = SDL_WINDOWEVENT_CLOSE;
    pBackend->Translate(close);
    EXPECT_EQ(w.Log, (std::vector<std::string>{"down 12,34", "key 13", "char \r", "char a",
                                               std::string("char \xE9"), "close"}));

    w.Log.clear();
    w.SetTimer(1, 30);
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < 200 && w.Log.empty()) {
        if (!WindowSystem::Get().ProcessPending()) {
            pBackend->PumpEvents(10);
        }
    }
    EXPECT_EQ(w.Log, std::vector<std::string>{"timer"});
    w.Destroy();
}

} // namespace
