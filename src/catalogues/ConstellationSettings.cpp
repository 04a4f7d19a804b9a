#include "catalogues/ConstellationSettings.h"

#include <cmath>
#include <memory>

#include "platform/DeviceCaps.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "state/StateContainer.h"

namespace {

// Height of constellation names in inches.
constexpr double kLabelHeightInches = 0.18;

} // namespace

FontRef* ConstellationSettings::psLabelFontRef = nullptr;
int ConstellationSettings::nDCScaleForCurrentFont = 0;

FontRef* ConstellationSettings::GetLabelFontRef(const TDC& dc)
{
    return FontRef::ForResolution(psLabelFontRef, nDCScaleForCurrentFont, dc, "Arial Italic",
                                  kLabelHeightInches);
}

StateContainer& operator<<(StateContainer& sc, const ConstellationSettings& settings)
{
    return sc << NewLevel << AstroKey("Show Figures") << settings.bShowFigures
              << AstroKey("Show Boundaries") << settings.bShowBoundaries << AstroKey("Show Labels")
              << settings.bShowLabels << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, ConstellationSettings& settings)
{
    return sc >> GoToLevel >> AstroKey("Show Figures") >> settings.bShowFigures >>
           AstroKey("Show Boundaries") >> settings.bShowBoundaries >> AstroKey("Show Labels") >>
           settings.bShowLabels >> EndLevel;
}
