#pragma once
// Pluto, from its analytic theory (good for about 1890 to 2100); it rotates retrograde.
#include "solar/Planet.h"
#include "solar/PlutoSeries.h"

class Pluto200 : public Planet
{
public:
    Pluto200();

    double GetBaseMagnitude() override { return -1.0; }
    int GetRotationSense() override { return -1; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    PlutoSeries Series;
};
