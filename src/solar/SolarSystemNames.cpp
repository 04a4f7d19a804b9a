#include "solar/SolarSystemNames.h"

#include "host/HostStringTable.h"

namespace {

// The planetarium's own string table.
constexpr short kPlanetariumStringTable = 5;

} // namespace

std::string GetSolarSystemName(SolarSystemNameId id)
{
    return getHostString(kPlanetariumStringTable, static_cast<short>(id));
}
