#include "solar/Mercury200.h"

#include "solar/SolarSystemNames.h"

Mercury200::Mercury200() : name(GetSolarSystemName(kMercuryNameId))
{}

bool Mercury200::Compute()
{
    TakeSeriesPosition(Series.Evaluate(time.GetCenturiesSince2000()));
    return true;
}

double Mercury200::GetPhaseMagnitude(SolarSystemObject& observer)
{
    const double x = observer.GetPhaseAngleOf(*this).GetDegrees() / 100.0;
    return GetBaseMagnitude() + ((2.0 * x - 2.73) * x + 3.8) * x;
}
