// Push buttons: a click counts only when released over the button, the space bar presses it, a
// disabled one takes no clicks, and labels and group boxes let clicks through to what lies
// below. Check boxes and radio buttons are worked in the dialogs of tests/shell.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TButton.h"
#include "platform/TGroupBox.h"
#include "platform/TStatic.h"

namespace {

class Buttons : public HeadlessTest
{
protected:
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    ControlHost Host;
};

TEST_F(Buttons, ClickTellsTheParentOnlyWhenReleasedOverTheButton)
{
    auto* button = new TButton(&Host, 30, "Now", 20, 30, 80, 24);
    new TGroupBox(&Host, 51, "Frame", 10, 10, 200, 100);
    new TStatic(&Host, 52, "Label over the button", 20, 30, 80, 24);
    Host.Create();
    Desk().Click(*button, TPoint(40, 12));
    EXPECT_EQ(Host.Count(30, BN_CLICKED), 1) << "through the label and the group box";

    Desk().MouseDown(button->ClientToScreen(TPoint(40, 12)));
    Desk().MouseMove(button->ClientToScreen(TPoint(200, 12)));
    EXPECT_FALSE(button->IsPressed()) << "it looks released while the pointer is off";
    Desk().MouseUp(button->ClientToScreen(TPoint(200, 12)));
    EXPECT_EQ(Host.Count(30, BN_CLICKED), 1);

    button->SetFocus();
    Desk().PressKey(VK_SPACE);
    EXPECT_EQ(Host.Count(30, BN_CLICKED), 2);
    button->EnableWindow(false);
    Desk().Click(*button, TPoint(40, 12));
    EXPECT_EQ(Host.Count(30, BN_CLICKED), 2) << "a disabled button takes no clicks";
}

} // namespace
