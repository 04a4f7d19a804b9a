#include "solar/Uranus200.h"

#include "solar/SolarSystemNames.h"

Uranus200::Uranus200() : name(GetSolarSystemName(kUranusNameId))
{}

bool Uranus200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}
