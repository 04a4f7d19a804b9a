#pragma once
// What the window tests share: the headless desktop, a turn of the loop, and a check that a
// test leaves no window and no unused answer behind.
#include <gtest/gtest.h>

#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"

class HeadlessTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Headless();
        WindowSystem::Get().ProcessAll();
        nUnansweredBefore = Headless().GetUnansweredCount();
    }

    void TearDown() override
    {
        WindowSystem::Get().ProcessAll();
        EXPECT_EQ(WindowSystem::Get().GetTopLevels().size(), 0u) << "a window outlived its test";
        EXPECT_EQ(Headless().GetWaitingAnswers(), 0u) << "an answer was never used";
        EXPECT_EQ(Headless().GetUnansweredCount(), nUnansweredBefore)
            << "a modal window opened that the test did not answer";
        // Keys and buttons a test left down would reach the next one.
        for (UINT key : {VK_SHIFT, VK_CONTROL, VK_MENU}) {
            if (WindowSystem::Get().IsKeyDown(key)) {
                Headless().KeyUp(key);
            }
        }
    }

    static void Pump() { WindowSystem::Get().ProcessAll(); }
    static HeadlessBackend& Desk() { return Headless(); }

    // Modal windows a test leaves unanswered on purpose add to this.
    int nUnansweredBefore = 0;
};
