#include "solar/Neptune200.h"

#include "solar/SolarSystemNames.h"

Neptune200::Neptune200() : name(GetSolarSystemName(kNeptuneNameId))
{}

bool Neptune200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}
