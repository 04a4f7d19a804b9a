#pragma once
// The names of the bodies of the solar system as the user sees them: texts of the host's
// string table 5, by the ids below. Every body takes its name through this one function.
#include <string>

// Ids of the names in string table 5.
enum SolarSystemNameId : unsigned
{
    kMercuryNameId = 0x11f9,
    kVenusNameId = 0x11fa,
    kEarthNameId = 0x11fb,
    kMarsNameId = 0x11fc,
    kJupiterNameId = 0x11fd,
    kSaturnNameId = 0x11fe,
    kUranusNameId = 0x11ff,
    kNeptuneNameId = 0x1200,
    kPlutoNameId = 0x1201,
    kMoonNameId = 0x1202,
    kSunNameId = 0x1203
};

// The name for an id from string table 5; empty when the table has none.
std::string GetSolarSystemName(SolarSystemNameId id);
