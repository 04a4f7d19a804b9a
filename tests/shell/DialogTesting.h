#pragma once
// What the dialog tests share: the headless desktop, a user profile of the test's own, the
// help requests the dialogs make, and the reading of the message boxes they show.
#include <cstdlib>
#include <string>
#include <vector>

#include "host/HostProf.h"
#include "host/ScopedHome.h"
#include "platform/TDialog.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"
#include "windows/HeadlessFixture.h"

class DialogTest : public HeadlessTest
{
protected:
    struct HelpRequest
    {
        std::string File;
        UINT Command;
        std::string Key;
    };

    void SetUp() override
    {
        HeadlessTest::SetUp();
        PreviousHelp = SetWinHelpHandler(
            [this](HWND, const std::string& file, UINT command, const std::string& key) {
                HelpRequests.push_back({file, command, key});
                return true;
            });
    }
    void TearDown() override
    {
        SetWinHelpHandler(PreviousHelp);
        HeadlessTest::TearDown();
    }

    // Sets a key of section "Orbiscope" in the test's own profile.
    static void SetProfile(const std::string& key, const std::string& value)
    {
        ASSERT_TRUE(HostProfile().Write("Orbiscope", key, value));
    }

    // The text of a message box: its one label.
    static std::string MessageText(TWindow& box)
    {
        TWindow* label = box.ChildWithId(-1);
        return label ? label->GetWindowText() : std::string();
    }

    // Runs the dialog modal while `act` works it as a user would; what closed it.
    template <class Act>
    static int RunDialog(TDialog& dialog, Act act)
    {
        Desk().AnswerNextModal([&act](TWindow& window) { act(window); });
        return dialog.Execute();
    }

    // Answers the next message box with `button`, keeping its text and caption.
    void AnswerMessage(int button)
    {
        Desk().AnswerNextModal([this, button](TWindow& box) {
            Messages.push_back(MessageText(box));
            Captions.push_back(box.GetWindowText());
            HeadlessBackend::PressButton(box, button);
        });
    }

    // Whether no control of the dialog still shows a string-table key.
    static bool AllKeysReplaced(const TWindow& dialog)
    {
        for (const TWindow* child : dialog.GetChildren()) {
            if (child->GetWindowText().find("STID_") != std::string::npos) {
                return false;
            }
        }
        return true;
    }

    ScopedHome Home;
    std::vector<HelpRequest> HelpRequests;
    std::vector<std::string> Messages;
    std::vector<std::string> Captions;

private:
    WinHelpHandler PreviousHelp;
};
