#include "solar/Venus200.h"

#include "solar/SolarSystemNames.h"

Venus200::Venus200() : name(GetSolarSystemName(kVenusNameId))
{}

bool Venus200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

double Venus200::GetPhaseMagnitude(SolarSystemObject& observer)
{
    const double x = observer.GetPhaseAngleOf(*this).GetDegrees() / 100.0;
    return GetBaseMagnitude() + ((-0.65 * x + 2.39) * x + 0.09) * x;
}
