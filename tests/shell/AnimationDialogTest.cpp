// The time-lapse dialog: the six step fields and the pace, OK, the start button and Cancel.
#include <gtest/gtest.h>

#include "DialogTesting.h"
#include "host/HostStringTable.h"
#include "shell/AnimationDialog.h"

namespace {

using AnimationDialogs = DialogTest;

// A step with a different count in every unit, so that a field swapped with another shows.
AnimationSettings DistinctPace()
{
    TimeStep step;
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        step.SetStep(static_cast<TimeStep::TIME_UNITS>(unit), unit + 1);
    }
    return AnimationSettings(step, 2.5);
}

TEST_F(AnimationDialogs, OpensWithEachUnitInItsField)
{
    AnimationDialog dialog(nullptr, DistinctPace());
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(window.GetWindowText(), getHostString(5, 0xaf0));
        EXPECT_TRUE(AllKeysReplaced(window));
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kYears), "1");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kMonths), "2");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kDays), "3");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kHours), "4");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kMinutes), "5");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kSeconds), "6");
        EXPECT_EQ(dialog.GetDlgItemText(AnimationDialog::kSecondsPerStep), "2.5");
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(AnimationDialogs, OkKeepsTheTypedPaceAndTextReadsAsZero)
{
    AnimationDialog dialog(nullptr, AnimationSettings());
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            HeadlessBackend::TypeInto(window, AnimationDialog::kYears, "0");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kMonths, "0");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kDays, "-1");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kHours, "12");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kMinutes, "ten");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kSeconds, "30");
                            HeadlessBackend::TypeInto(window, AnimationDialog::kSecondsPerStep,
                                                      "0.25");
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    const AnimationSettings& pace = dialog.GetAnimationSettings();
    EXPECT_EQ(pace.GetStep(TimeStep::DAYS), -1) << "a lapse may run backwards";
    EXPECT_EQ(pace.GetStep(TimeStep::HOURS), 12);
    EXPECT_EQ(pace.GetStep(TimeStep::MINUTES), 0);
    EXPECT_EQ(pace.GetStep(TimeStep::SECONDS), 30);
    EXPECT_DOUBLE_EQ(pace.GetSecondsPerStep(), 0.25);
}

TEST_F(AnimationDialogs, StartKeepsThePaceAndClosesWithItsOwnResult)
{
    AnimationDialog dialog(nullptr, DistinctPace());
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            HeadlessBackend::TypeInto(window, AnimationDialog::kMinutes, "15");
                            HeadlessBackend::PressButton(window, AnimationDialog::kStart);
                        }),
              AnimationDialog::kStart);
    EXPECT_EQ(dialog.GetAnimationSettings().GetStep(TimeStep::MINUTES), 15);
    EXPECT_EQ(dialog.GetAnimationSettings().GetStep(TimeStep::YEARS), 1);
}

TEST_F(AnimationDialogs, CancelLeavesThePaceGiven)
{
    AnimationDialog dialog(nullptr, DistinctPace());
    EXPECT_EQ(RunDialog(dialog,
                        [](TWindow& window) {
                            HeadlessBackend::TypeInto(window, AnimationDialog::kYears, "99");
                            HeadlessBackend::PressButton(window, IDCANCEL);
                        }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetAnimationSettings(), DistinctPace());
}

TEST_F(AnimationDialogs, HelpOpensTheProfilesTopic)
{
    SetProfile("AnimationDialogHelpKey", "Running Time");
    AnimationDialog dialog(nullptr, AnimationSettings());
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, 9);
        Desk().PressKey(VK_ESCAPE);
    });
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Running Time") << "the user's profile overrides the default";
}

} // namespace
