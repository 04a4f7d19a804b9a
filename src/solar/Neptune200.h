#pragma once
// Neptune, from its analytic theory.
#include "solar/NeptuneSeries.h"
#include "solar/Planet.h"

class Neptune200 : public Planet
{
public:
    Neptune200();

    double GetBaseMagnitude() override { return -6.87; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    NeptuneSeries Series;
};
