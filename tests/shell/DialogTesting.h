#pragma once
// What the tests of the component's dialogs share: the headless desktop, a user profile of the
// test's own, the computer in Sydney's zone, and the texts of their fields and of the message
// boxes they show.
#include <cstdlib>
#include <string>
#include <vector>

#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "host/ScopedHome.h"
#include "platform/TComboBox.h"
#include "platform/WindowCalls.h"
#include "shell/GridDialog.h"
#include "shell/LocationDialog.h"
#include "shell/TimeDialog.h"
#include "windows/HeadlessFixture.h"

class DialogTest : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        const char* tz = std::getenv("TZ");
        OldTz = tz ? tz : "";
        ::setenv("TZ", "Australia/Sydney", 1);
    }
    void TearDown() override
    {
        OldTz.empty() ? ::unsetenv("TZ") : ::setenv("TZ", OldTz.c_str(), 1);
        HeadlessTest::TearDown();
    }

    // Runs the dialog modal while `act` works it as a user would; what closed it.
    template <class Act>
    static int RunDialog(TDialog& dialog, Act act)
    {
        Desk().AnswerNextModal([&act](TWindow& window) { act(window); });
        return dialog.Execute();
    }
    // What a field shows; for a combo box, its chosen row.
    static std::string Text(TWindow& dialog, int id)
    {
        auto* combo = dynamic_cast<TComboBox*>(dialog.ChildWithId(id));
        return combo ? combo->GetText() : dialog.ChildWithId(id)->GetWindowText();
    }
    // Answers the next message box with `button`, keeping its text; every box of the
    // planetarium has its title as the caption.
    void AnswerMessage(int button)
    {
        Desk().AnswerNextModal([this, button](TWindow& box) {
            Messages.push_back(box.ChildWithId(-1)->GetWindowText());
            EXPECT_EQ(box.GetWindowText(), getHostString(5, 1000));
            HeadlessBackend::PressButton(box, button);
        });
    }

    ScopedHome Home;
    std::vector<std::string> Messages;

private:
    std::string OldTz;
};
