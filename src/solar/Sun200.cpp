#include "solar/Sun200.h"

#include "solar/SolarSystemNames.h"

Sun200::Sun200() : name(GetSolarSystemName(kSunNameId))
{}

bool Sun200::Compute()
{
    longitude = 0.0;
    latitude = 0.0;
    radius = 0.0;
    polarRates = {};
    SetPolarState(longitude, latitude, radius, position, &polarRates, &velocity);
    return true;
}
