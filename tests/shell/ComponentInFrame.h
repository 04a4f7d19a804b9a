#pragma once
// The shared set-up of the component's window tests: a host frame window in a temporary
// settings home, into which a test enters the component as the host does.
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "host/ScopedHome.h"
#include "platform/Registry.h"
#include "platform/WindowCalls.h"
#include "shell/AstroNoxWindow.h"
#include "shell/OrbiscopeEntry.h"
#include "windows/HeadlessFixture.h"

class ComponentInFrame : public HeadlessTest
{
protected:
    explicit ComponentInFrame(int width = 300, int height = 200)
        : nFrameWidth(width), nFrameHeight(height)
    {}

    void SetUp() override
    {
        HeadlessTest::SetUp();
        SetHostFrameAPI(&Frame);
        pFrame = std::make_unique<HostFrameWindow>("Host", nFrameWidth, nFrameHeight);
        ASSERT_TRUE(pFrame->Create());
    }
    void TearDown() override
    {
        pFrame->Destroy();
        pFrame.reset();
        SetHostFrameAPI(nullptr);
        CloseRegistryStore();
        HeadlessTest::TearDown();
    }

    // The component entered into the frame with `command`, unpainted: the host's message loop
    // has not turned yet. Null when the entry refused.
    AstroNoxWindow* Enter(const char* command)
    {
        const std::uint32_t handle = orbiscope(pFrame->HWindow, command);
        return dynamic_cast<AstroNoxWindow*>(
            GetWindowPtr(reinterpret_cast<HWND>(std::uintptr_t(handle))));
    }

    ScopedHome Home;
    StandardHostFrame Frame;
    std::unique_ptr<HostFrameWindow> pFrame;

private:
    int nFrameWidth;
    int nFrameHeight;
};
