#pragma once
// The Sun: the origin of the heliocentric frame. Its position and velocity are zero at every
// time; it exists so that the Sun can be a target like any other body.
#include "solar/SolarSystemObject.h"

class Sun200 : public SolarSystemObject
{
public:
    Sun200();

    double GetBaseMagnitude() override { return -27.0; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
};
