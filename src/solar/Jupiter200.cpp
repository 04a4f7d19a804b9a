#include "solar/Jupiter200.h"

#include "solar/SolarSystemNames.h"

Jupiter200::Jupiter200() : name(GetSolarSystemName(kJupiterNameId))
{}

bool Jupiter200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

double Jupiter200::GetPhaseMagnitude(SolarSystemObject& observer)
{
    const double x = observer.GetPhaseAngleOf(*this).GetDegrees() / 100.0;
    return GetBaseMagnitude() + 0.5 * x;
}
