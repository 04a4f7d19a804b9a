#include "skyview/GridInfo.h"

#include "state/StateContainer.h"

StateContainer& operator<<(StateContainer& sc, const GridInfo& grid)
{
    return sc << NewLevel << AstroKey("Show") << grid.bShow << AstroKey("NumberOfRALines")
              << unsigned(grid.nRALines) << AstroKey("NumberOfDecLines") << unsigned(grid.nDecLines)
              << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, GridInfo& grid)
{
    unsigned raLines = 0;
    unsigned decLines = 0;
    sc >> GoToLevel >> AstroKey("Show") >> grid.bShow >> AstroKey("NumberOfRALines") >> raLines >>
        AstroKey("NumberOfDecLines") >> decLines >> EndLevel;
    grid.nRALines = raLines;
    grid.nDecLines = decLines;
    return sc;
}
