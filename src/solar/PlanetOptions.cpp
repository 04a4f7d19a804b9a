#include "solar/PlanetOptions.h"

#include "state/StateContainer.h"

StateContainer& operator<<(StateContainer& sc, const PlanetOptions& options)
{
    return sc << NewLevel << AstroKey("Show Labels") << options.bShowLabels << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, PlanetOptions& options)
{
    return sc >> GoToLevel >> AstroKey("Show Labels") >> options.bShowLabels >> EndLevel;
}
