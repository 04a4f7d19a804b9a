#pragma once
// Mercury, from its analytic theory, with its phase law of magnitude.
#include "solar/MercurySeries.h"
#include "solar/Planet.h"

class Mercury200 : public Planet
{
public:
    Mercury200();

    double GetBaseMagnitude() override { return -0.42; }
    // The base magnitude brightened or dimmed by the phase angle seen from the observer.
    double GetPhaseMagnitude(SolarSystemObject& observer) override;
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    MercurySeries Series;
};
