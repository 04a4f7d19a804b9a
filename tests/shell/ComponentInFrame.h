#pragma once
// The shared set-up of the component's window tests: a host frame window, into which a test
// enters the component as the host does, and the article addresses the host is asked to open;
// with what the dialog tests have, for the dialogs the component opens.
#include <cstdint>

#include "DialogTesting.h"
#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "platform/Registry.h"
#include "shell/AstroNoxWindow.h"
#include "shell/OrbiscopeEntry.h"
#include "skyview/MapWindow.h"

class ComponentInFrame : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        SetHostFrameAPI(&Frame);
        ASSERT_TRUE(FrameWindow.Create());
        Frame.SetFrameWindow(&FrameWindow);
    }
    void TearDown() override
    {
        FrameWindow.Destroy();
        SetHostFrameAPI(nullptr);
        CloseRegistryStore();
        DialogTest::TearDown();
    }

    // The component entered into the frame with `command` as the host does, unpainted: the
    // host's loop has not turned yet. The first start's location dialog is cancelled, so that
    // the map keeps its own start and nothing is saved.
    AstroNoxWindow& Enter(const char* command)
    {
        CancelFirstStart();
        const std::uint32_t handle = orbiscope(FrameWindow.HWindow, command);
        auto* window = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(HWND(std::uintptr_t(handle))));
        EXPECT_NE(window, nullptr) << command;
        return *window;
    }
    // At a first start the component asks for the place: the dialog is cancelled.
    void CancelFirstStart()
    {
        if (!AstroNoxWindow::HasDefaultState()) {
            Desk().AnswerNextModal(
                [](TWindow& dialog) { HeadlessBackend::PressButton(dialog, IDCANCEL); });
        }
    }
    // The component entered and painted.
    AstroNoxWindow& Start(const char* command = nullptr)
    {
        AstroNoxWindow& window = Enter(command);
        Pump();
        return window;
    }

    std::vector<std::string> Launched;
    StandardHostFrame Frame{[this](const std::string& address) {
        Launched.push_back(address);
        return true;
    }};
    HostFrameWindow FrameWindow{"Host", 300, 200};
};
