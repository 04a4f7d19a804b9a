#pragma once
// Venus, from its analytic theory, with its phase law of magnitude; it rotates retrograde.
#include "solar/Planet.h"
#include "solar/VenusSeries.h"

class Venus200 : public Planet
{
public:
    Venus200();

    double GetBaseMagnitude() override { return -4.4; }
    // The base magnitude brightened or dimmed by the phase angle seen from the observer.
    double GetPhaseMagnitude(SolarSystemObject& observer) override;
    int GetRotationSense() override { return -1; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    VenusSeries Series;
};
