#pragma once
// The Moon, from its own lunar theory: computed around the Earth and then added to the Earth's
// heliocentric position, so that the reduction treats it like any other body. It also gives
// its phase, the elongation from the Sun in ecliptic longitude, 0 to 360 degrees (0 new moon,
// 180 full moon).
//
// The Moon takes the Earth's position as the Earth holds it: set the time on the Earth first.
// It has no velocity of its own; in the apparent place only the observer's velocity acts.
#include "solar/LunarSeries.h"
#include "solar/SolarSystemObject.h"

class Moon : public SolarSystemObject
{
public:
    Moon(SolarSystemObject& earthRef, SolarSystemObject& sunRef);

    double GetBaseMagnitude() override { return -10.0; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

    // The phase for the present position, computed on the first call after each change.
    DegreeAngle GetPhase();

protected:
    bool Compute() override;

private:
    const std::string name;
    LunarSeries Series;
    DegreeAngle phase;
    bool phaseStale = true;
    SolarSystemObject& earth;
    SolarSystemObject& sun;
};
