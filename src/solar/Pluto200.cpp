#include "solar/Pluto200.h"

#include "solar/SolarSystemNames.h"

Pluto200::Pluto200() : name(GetSolarSystemName(kPlutoNameId))
{}

bool Pluto200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}
