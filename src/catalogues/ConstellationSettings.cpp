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
    const int dotsPerInch = dc.GetDeviceCaps(LOGPIXELSY);
    if (psLabelFontRef != nullptr && dotsPerInch == nDCScaleForCurrentFont) {
        return psLabelFontRef;
    }
    // The old font goes only with the last label that holds it.
    if (psLabelFontRef != nullptr) {
        psLabelFontRef->Release();
    }
    const int height = int(std::trunc(dotsPerInch * kLabelHeightInches));
    psLabelFontRef =
        new FontRef(std::make_unique<TFont>("Arial Italic", height, 0, 0, 0, FW_NORMAL, 0, false,
                                            false, false, DEFAULT_CHARSET, 0, 0, 0));
    nDCScaleForCurrentFont = dotsPerInch;
    return psLabelFontRef;
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
