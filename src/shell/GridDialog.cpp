#include "shell/GridDialog.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "host/HostStringTable.h"
#include "shell/AstroDialogTemplates.h"
#include "skyview/MapWindow.h"

namespace {

constexpr short kCaption = 0x960;
constexpr short kTooManyLines = 0x1005;
constexpr std::uint32_t kHoursInTurn = 24;
constexpr std::uint32_t kDegreesInTurn = 360;

// `whole` / `part` for a part of at least 1, else 0; the part is a typed number.
std::uint32_t Divide(std::uint32_t whole, long part)
{
    return part >= 1 ? std::uint32_t(whole / std::uint64_t(part)) : 0;
}

} // namespace

GridDialog::GridDialog(TWindow* parent, const GridInfo& grid)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kGrid)), Grid(grid)
{}

std::string GridDialog::GetHelpKey() const
{
    return ProfileHelpKey("GridDialogHelpKey", "Ascension/Declination Lines");
}

void GridDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    CheckDlgButton(kShow, BST_CHECKED);
    std::uint32_t ra = Grid.nRALines;
    if (ra < kHoursInTurn) {
        CheckDlgButton(kHoursPerLineButton, BST_CHECKED);
        SetDlgItemText(kHoursPerLine, std::to_string(ra ? kHoursInTurn / ra : 0));
    } else {
        CheckDlgButton(kLinesPerHourButton, BST_CHECKED);
        SetDlgItemText(kLinesPerHour, std::to_string(ra / kHoursInTurn));
    }
    std::uint32_t dec = Grid.nDecLines;
    SetDlgItemText(kDegreesPerDecLine, std::to_string(dec ? kDegreesInTurn / dec : 0));
}

void GridDialog::CmOk()
{
    bool show = IsDlgButtonChecked(kShow) == BST_CHECKED;
    std::uint32_t ra = 0;
    if (IsDlgButtonChecked(kHoursPerLineButton) == BST_CHECKED) {
        ra = Divide(kHoursInTurn, ReadInteger(kHoursPerLine));
    } else {
        // Lines per hour beyond the limit are refused below whatever their number.
        long perHour = std::min<long>(ReadInteger(kLinesPerHour), MapWindow::kMaximumGridLines);
        ra = perHour >= 1 ? std::uint32_t(perHour) * kHoursInTurn : 0;
    }
    std::uint32_t dec = Divide(kDegreesInTurn, ReadInteger(kDegreesPerDecLine));

    if (ra >= MapWindow::kMaximumGridLines || dec >= MapWindow::kMaximumGridLines) {
        // Dec lines never reach the limit, 360 at most; only RA lines can be too many.
        std::uint32_t limitPerHour = MapWindow::kMaximumGridLines / kHoursInTurn + 1;
        ShowMessage(
            formatHostString(getHostString(5, kTooManyLines), {std::to_string(limitPerHour)}));
        if (TWindow* field = GetControl(kLinesPerHour)) {
            field->SetFocus();
        }
        return;
    }
    // Kept only when accepted, so that a refused grid followed by Cancel leaves the old one.
    Grid.nRALines = ra;
    Grid.nDecLines = dec;
    Grid.bShow = show;
    AstroDialog::CmOk();
}
