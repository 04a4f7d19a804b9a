#include "solar/Mars200.h"

#include "solar/SolarSystemNames.h"

Mars200::Mars200() : name(GetSolarSystemName(kMarsNameId))
{}

bool Mars200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

double Mars200::GetPhaseMagnitude(SolarSystemObject& observer)
{
    const double x = observer.GetPhaseAngleOf(*this).GetDegrees() / 100.0;
    return GetBaseMagnitude() + 1.6 * x;
}
