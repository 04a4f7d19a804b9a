// The grid dialog: meridians shown as hours per line (fewer than 24) or lines per hour, parallels
// as degrees per line, what is typed turned back into line counts on OK, and the refusal of
// 21 lines per hour or more, which leaves the dialog open and the grid as it was.
#include "DialogTesting.h"

namespace {

using GridDialogs = DialogTest;

TEST_F(GridDialogs, ShowsTheSpacingOfTheLinesAndTurnsWhatIsTypedIntoLineCounts)
{
    const struct
    {
        GridInfo Given;
        const char* Shown; // hours per line or lines per hour, and degrees per parallel
        int Field;
        const char* Typed;
        const char* TypedDegrees;
        GridInfo Taken;
    } cases[] = {
        {GridInfo(12, 18, false), "2 h/line 20", GridDialog::kHoursPerLine, "3", "15",
         GridInfo(8, 24, true)},
        {GridInfo(48, 36, true), "2 lines/h 10", GridDialog::kLinesPerHour, "20", "7",
         GridInfo(480, 51, true)},
        {GridInfo(0, 0, true), "0 h/line 0", GridDialog::kLinesPerHour, "many", "0.5",
         GridInfo(0, 0, true)},
        {GridInfo(24, 36, false), "1 lines/h 10", GridDialog::kLinesPerHour, "21", "10",
         GridInfo(24, 36, false)},
        {GridInfo(24, 36, false), "1 lines/h 10", GridDialog::kLinesPerHour, "100000", "10",
         GridInfo(24, 36, false)},
    };
    for (const auto& c : cases) {
        Messages.clear();
        GridDialog dialog(nullptr, c.Given);
        RunDialog(dialog, [&](TWindow& window) {
            const bool perLine = dialog.IsDlgButtonChecked(GridDialog::kHoursPerLineButton);
            EXPECT_EQ(
                Text(window, perLine ? GridDialog::kHoursPerLine : GridDialog::kLinesPerHour) +
                    (perLine ? " h/line " : " lines/h ") +
                    Text(window, GridDialog::kDegreesPerDecLine),
                c.Shown);
            EXPECT_EQ(dialog.IsDlgButtonChecked(GridDialog::kShow), BST_CHECKED)
                << "checked whatever the grid says";
            HeadlessBackend::PressButton(window, c.Field == GridDialog::kHoursPerLine
                                                     ? GridDialog::kHoursPerLineButton
                                                     : GridDialog::kLinesPerHourButton);
            HeadlessBackend::TypeInto(window, c.Field, c.Typed);
            HeadlessBackend::TypeInto(window, GridDialog::kDegreesPerDecLine, c.TypedDegrees);
            const bool refused = std::atoi(c.Typed) > 20;
            if (refused) {
                AnswerMessage(IDOK);
            }
            HeadlessBackend::PressButton(window, IDOK);
            if (refused) {
                EXPECT_EQ(GetFocus(), window.ChildWithId(GridDialog::kLinesPerHour)->HWindow);
                HeadlessBackend::PressButton(window, IDCANCEL);
            }
        });
        EXPECT_EQ(dialog.GetGridInfo(), c.Taken) << c.Typed;
        EXPECT_EQ(Messages.size(), std::atoi(c.Typed) > 20 ? 1u : 0u) << c.Typed;
        for (const std::string& message : Messages) {
            EXPECT_EQ(message, formatHostString(getHostString(5, 0x1005), {"21"}));
        }
    }
}

} // namespace
