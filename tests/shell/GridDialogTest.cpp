// The grid dialog: meridians as hours per line or lines per hour, parallels as degrees per
// line, the refusal of too dense a grid, and what the caller reads back.
#include <gtest/gtest.h>

#include "DialogTesting.h"
#include "host/HostStringTable.h"
#include "platform/WindowCalls.h"
#include "shell/GridDialog.h"

namespace {

using GridDialogs = DialogTest;

TEST_F(GridDialogs, ShowsAGridOfFewerThan24LinesAsHoursPerLine)
{
    GridDialog dialog(nullptr, GridInfo(12, 18, false));
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(window.GetWindowText(), getHostString(5, 0x960));
        EXPECT_TRUE(AllKeysReplaced(window));
        EXPECT_EQ(dialog.IsDlgButtonChecked(GridDialog::kShow), BST_CHECKED)
            << "checked whatever the grid says";
        EXPECT_EQ(dialog.IsDlgButtonChecked(GridDialog::kHoursPerLineButton), BST_CHECKED);
        EXPECT_EQ(dialog.IsDlgButtonChecked(GridDialog::kLinesPerHourButton), BST_UNCHECKED);
        EXPECT_EQ(dialog.GetDlgItemText(GridDialog::kHoursPerLine), "2");
        EXPECT_EQ(dialog.GetDlgItemText(GridDialog::kDegreesPerDecLine), "20");
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(GridDialogs, ShowsADenseGridAsLinesPerHourAndAnEmptyOneAsZero)
{
    GridDialog dense(nullptr, GridInfo(48, 36, true));
    RunDialog(dense, [&](TWindow&) {
        EXPECT_EQ(dense.IsDlgButtonChecked(GridDialog::kLinesPerHourButton), BST_CHECKED);
        EXPECT_EQ(dense.GetDlgItemText(GridDialog::kLinesPerHour), "2");
        EXPECT_EQ(dense.GetDlgItemText(GridDialog::kDegreesPerDecLine), "10");
        Desk().PressKey(VK_ESCAPE);
    });
    GridDialog empty(nullptr, GridInfo(0, 0, true));
    RunDialog(empty, [&](TWindow&) {
        EXPECT_EQ(empty.IsDlgButtonChecked(GridDialog::kHoursPerLineButton), BST_CHECKED);
        EXPECT_EQ(empty.GetDlgItemText(GridDialog::kHoursPerLine), "0");
        EXPECT_EQ(empty.GetDlgItemText(GridDialog::kDegreesPerDecLine), "0");
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(GridDialogs, OkTurnsTheTypedSpacingIntoLineCounts)
{
    GridInfo given(24, 36, true);
    given.Color = TColor(200, 10, 10);
    GridDialog dialog(nullptr, given);
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            HeadlessBackend::PressButton(window, GridDialog::kHoursPerLineButton);
                            HeadlessBackend::TypeInto(window, GridDialog::kHoursPerLine, "3");
                            HeadlessBackend::TypeInto(window, GridDialog::kDegreesPerDecLine, "15");
                            HeadlessBackend::PressButton(window, GridDialog::kShow);
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    EXPECT_EQ(dialog.GetGridInfo().nRALines, 8u);
    EXPECT_EQ(dialog.GetGridInfo().nDecLines, 24u);
    EXPECT_FALSE(dialog.GetGridInfo().bShow) << "the box was unchecked";
    EXPECT_EQ(dialog.GetGridInfo().Color, TColor(200, 10, 10)) << "the colour is not the dialog's";
}

TEST_F(GridDialogs, NumbersBelowOneAndTextGiveNoLines)
{
    GridDialog dialog(nullptr, GridInfo(24, 36, true));
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::TypeInto(window, GridDialog::kLinesPerHour, "many");
        HeadlessBackend::TypeInto(window, GridDialog::kDegreesPerDecLine, "0");
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.GetGridInfo().nRALines, 0u);
    EXPECT_EQ(dialog.GetGridInfo().nDecLines, 0u);
}

TEST_F(GridDialogs, TwentyOneLinesPerHourAreRefusedAndTwentyPass)
{
    GridDialog dialog(nullptr, GridInfo(24, 36, true));
    EXPECT_EQ(RunDialog(dialog,
                        [&](TWindow& window) {
                            AnswerMessage(IDOK);
                            HeadlessBackend::TypeInto(window, GridDialog::kLinesPerHour, "21");
                            HeadlessBackend::PressButton(window, IDOK);
                            EXPECT_TRUE(window.IsWindowVisible()) << "the dialog stays open";
                            EXPECT_EQ(GetFocus(),
                                      window.ChildWithId(GridDialog::kLinesPerHour)->HWindow);
                            HeadlessBackend::TypeInto(window, GridDialog::kLinesPerHour, "20");
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_EQ(Messages.size(), 1u);
    EXPECT_EQ(Messages[0], formatHostString(getHostString(5, 0x1005), {"21"}));
    EXPECT_NE(Messages[0].find("21"), std::string::npos);
    EXPECT_EQ(Captions[0], getHostString(5, 1000));
    EXPECT_EQ(dialog.GetGridInfo().nRALines, 480u);
}

TEST_F(GridDialogs, CancelAfterARefusalLeavesTheGridGiven)
{
    GridDialog dialog(nullptr, GridInfo(24, 36, true));
    EXPECT_EQ(RunDialog(dialog,
                        [this](TWindow& window) {
                            AnswerMessage(IDOK);
                            HeadlessBackend::TypeInto(window, GridDialog::kLinesPerHour, "100000");
                            HeadlessBackend::PressButton(window, IDOK);
                            HeadlessBackend::PressButton(window, IDCANCEL);
                        }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetGridInfo(), GridInfo(24, 36, true));
}

TEST_F(GridDialogs, HelpOpensTheGridTopic)
{
    GridDialog dialog(nullptr, GridInfo());
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, 9);
        EXPECT_TRUE(window.IsWindowVisible());
        Desk().PressKey(VK_ESCAPE);
    });
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Ascension/Declination Lines");
    EXPECT_EQ(HelpRequests[0].Command, HELP_KEY);
}

} // namespace
