#pragma once
// The dialog of the right ascension and declination grid. The user gives the meridians either
// as hours per line (for 24 lines or fewer) or as lines per hour, and the parallels as degrees
// per line; the dialog turns them into the counts of lines in a full turn that GridInfo holds.
//
// A number below 1 gives no lines of that kind. A grid of 21 lines per hour or more (504 RA
// lines, beyond what the map draws) is refused with a message and the dialog stays open.
// The show box is checked when the dialog opens, whatever the grid says: opening the dialog
// is taken as wanting to see the lines.
#include "shell/AstroDialog.h"
#include "skyview/GridInfo.h"

class GridDialog : public AstroDialog
{
public:
    // Control ids.
    static constexpr int kDegreesPerDecLine = 0x194;
    static constexpr int kHoursPerLineButton = 0x195;
    static constexpr int kLinesPerHourButton = 0x196;
    static constexpr int kHoursPerLine = 0x197;
    static constexpr int kLinesPerHour = 0x198;
    static constexpr int kShow = 0x199;

    GridDialog(TWindow* parent, const GridInfo& grid);

    // The result, after OK; the colour is the one given.
    const GridInfo& GetGridInfo() const { return Grid; }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;

private:
    GridInfo Grid;
};
