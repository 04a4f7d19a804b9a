#pragma once
// The shared set-up of the component's window tests: a host frame window, into which a test
// enters the component as the host does, and the article addresses the host is asked to open;
// with what the dialog tests have, for the dialogs the component opens.
#include <cstdint>
#include <memory>

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
        pFrame = std::make_unique<HostFrameWindow>("Host", 300, 200);
        ASSERT_TRUE(pFrame->Create());
        Frame.SetFrameWindow(pFrame.get());
    }
    void TearDown() override
    {
        pFrame->Destroy();
        pFrame.reset();
        SetHostFrameAPI(nullptr);
        CloseRegistryStore();
        DialogTest::TearDown();
    }

    // The component entered into the frame with `command` as the host does, and painted.
    AstroNoxWindow& Start(const char* command = nullptr)
    {
        const std::uint32_t handle = orbiscope(pFrame->HWindow, command);
        auto* window = dynamic_cast<AstroNoxWindow*>(GetWindowPtr(HWND(std::uintptr_t(handle))));
        EXPECT_NE(window, nullptr) << command;
        Pump();
        return *window;
    }

    std::vector<std::string> Launched;
    StandardHostFrame Frame{[this](const std::string& address) {
        Launched.push_back(address);
        return true;
    }};
    std::unique_ptr<HostFrameWindow> pFrame;
};
