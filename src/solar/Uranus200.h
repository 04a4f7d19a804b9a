#pragma once
// Uranus, from its analytic theory; it rotates retrograde.
#include "solar/Planet.h"
#include "solar/UranusSeries.h"

class Uranus200 : public Planet
{
public:
    Uranus200();

    double GetBaseMagnitude() override { return -7.19; }
    int GetRotationSense() override { return -1; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    UranusSeries Series;
};
