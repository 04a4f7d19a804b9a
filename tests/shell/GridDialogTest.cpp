// The grid dialog: meridians shown as hours per line (fewer than 24) or lines per hour, parallels
// as degrees per line, what is typed turned back into line counts on OK, and the refusal of
// 21 lines per hour or more, which leaves the dialog open and the grid as it was.
#include <cstdlib>
#include <tuple>

#include "DialogTesting.h"

namespace {

using GridDialogs = DialogTest;

TEST_F(GridDialogs, ShowsTheSpacingOfTheLinesAndTurnsWhatIsTypedIntoLineCounts)
{
    // The grid given, what the dialog shows of it, what the user types (meridians, then degrees
    // per parallel) and the grid taken: the dialog refuses 21 lines per hour and keeps its grid.
    const std::tuple<GridInfo, const char*, const char*, const char*, GridInfo> cases[] = {
        {GridInfo(12, 18, false), "2 h/line 20", "3 h/line", "15", GridInfo(8, 24, true)},
        {GridInfo(48, 36, true), "2 lines/h 10", "20 lines/h", "7", GridInfo(480, 51, true)},
        {GridInfo(0, 0, true), "0 h/line 0", "many lines/h", "0.5", GridInfo(0, 0, true)},
        {GridInfo(24, 36, false), "1 lines/h 10", "21 lines/h", "10", GridInfo(24, 36, false)},
    };
    for (const auto& [given, shown, typed, degrees, taken] : cases) {
        Messages.clear();
        const std::string meridians = typed;
        const bool perLine = meridians.find("h/line") != std::string::npos;
        const bool refused = std::atoi(typed) > 20;
        GridDialog dialog(nullptr, given);
        RunDialog(dialog, [&, shown = shown, degrees = degrees](TWindow& window) {
            const bool showsPerLine = dialog.IsDlgButtonChecked(GridDialog::kHoursPerLineButton);
            EXPECT_EQ(
                Text(window, showsPerLine ? GridDialog::kHoursPerLine : GridDialog::kLinesPerHour) +
                    (showsPerLine ? " h/line " : " lines/h ") +
                    Text(window, GridDialog::kDegreesPerDecLine),
                shown);
            HeadlessBackend::PressButton(window, perLine ? GridDialog::kHoursPerLineButton
                                                         : GridDialog::kLinesPerHourButton);
            HeadlessBackend::TypeInto(
                window, perLine ? GridDialog::kHoursPerLine : GridDialog::kLinesPerHour,
                meridians.substr(0, meridians.find(' ')));
            HeadlessBackend::TypeInto(window, GridDialog::kDegreesPerDecLine, degrees);
            if (refused) {
                AnswerMessage(IDOK);
            }
            HeadlessBackend::PressButton(window, IDOK);
            if (refused) {
                EXPECT_EQ(GetFocus(), window.ChildWithId(GridDialog::kLinesPerHour)->HWindow);
                HeadlessBackend::PressButton(window, IDCANCEL);
            }
        });
        EXPECT_EQ(dialog.GetGridInfo(), taken) << typed;
        EXPECT_EQ(Messages, std::vector<std::string>(
                                refused, formatHostString(getHostString(5, 0x1005), {"21"})));
    }
}

} // namespace
