// Buttons: clicks, presses that slide off, the space bar, check boxes and radio groups.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TButton.h"
#include "platform/TCheckBox.h"
#include "platform/TGroupBox.h"
#include "platform/TRadioButton.h"
#include "platform/TStatic.h"
#include "platform/WindowCalls.h"

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
    auto* button = new TButton(&Host, 30, "Now", 10, 10, 80, 24);
    Host.Create();
    Desk().Click(*button, TPoint(40, 12));
    EXPECT_EQ(Host.Count(30, BN_CLICKED), 1);

    // Pressed, then the pointer slides off before the release: no click.
    Desk().MouseDown(button->ClientToScreen(TPoint(40, 12)));
    EXPECT_TRUE(button->IsPressed());
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

TEST_F(Buttons, CheckBoxTogglesAndRadioButtonsShareOneCheckPerGroup)
{
    auto* box = new TCheckBox(&Host, 40, "Daylight saving", 10, 10, 150, 20);
    auto* am = new TRadioButton(&Host, 41, "am", 10, 40, 60, 20);
    auto* pm = new TRadioButton(&Host, 42, "pm", 80, 40, 60, 20);
    auto* other = new TRadioButton(&Host, 43, "other group", 10, 70, 120, 20);
    am->Attr.Style |= WS_GROUP;
    other->Attr.Style |= WS_GROUP;
    Host.Create();

    Desk().Click(*box, TPoint(5, 10));
    EXPECT_TRUE(box->IsChecked());
    Desk().Click(*box, TPoint(5, 10));
    EXPECT_FALSE(box->IsChecked());

    other->Check();
    Desk().Click(*am, TPoint(5, 10));
    EXPECT_EQ(am->GetCheck(), BST_CHECKED);
    Desk().Click(*pm, TPoint(5, 10));
    EXPECT_EQ(am->GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(pm->GetCheck(), BST_CHECKED);
    EXPECT_EQ(other->GetCheck(), BST_CHECKED) << "another group is left alone";
    EXPECT_EQ(Host.Count(42, BN_CLICKED), 1);

    CheckRadioButton(Host.HWindow, 41, 42, 41);
    EXPECT_EQ(IsDlgButtonChecked(Host.HWindow, 41), BST_CHECKED);
    EXPECT_EQ(IsDlgButtonChecked(Host.HWindow, 42), BST_UNCHECKED);
}

TEST_F(Buttons, GroupBoxAndLabelsLetClicksThroughToWhatLiesBelow)
{
    auto* inside = new TButton(&Host, 50, "Inside", 20, 30, 80, 24);
    new TGroupBox(&Host, 51, "Frame", 10, 10, 200, 100);
    new TStatic(&Host, 52, "Label over the button", 20, 30, 80, 24);
    Host.Create();
    Desk().Click(*inside, TPoint(40, 12));
    EXPECT_EQ(Host.Count(50, BN_CLICKED), 1);
}

TEST_F(Buttons, CheckBoxDrawsItsTickAndLabel)
{
    auto* box = new TCheckBox(&Host, 60, "Labels", 10, 10, 100, 20);
    Host.Create();
    Pump();
    auto before = WindowSystem::Get().CaptureWindow(box->HWindow);
    box->Check();
    Pump();
    auto after = WindowSystem::Get().CaptureWindow(box->HWindow);
    int changed = 0;
    int changedOutsideBox = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (before->ColorAt(x, y) != after->ColorAt(x, y)) {
                ++changed;
                changedOutsideBox += x >= 13;
            }
        }
    }
    EXPECT_GT(changed, 5) << "the tick shows";
    EXPECT_EQ(changedOutsideBox, 0) << "only inside the box";
}

} // namespace
