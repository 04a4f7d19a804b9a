#pragma once
// Saturn, from its analytic theory, with its rotation pole and prime meridian, and a magnitude
// that depends on the tilt of the rings towards the Sun and the observer.
#include "solar/Planet.h"
#include "solar/SaturnSeries.h"
#include "solar/Sun200.h"

class Saturn200 : public Planet
{
public:
    // The Sun is needed for the rings' tilt towards it.
    explicit Saturn200(Sun200& sunRef);

    double GetBaseMagnitude() override { return -8.88; }
    // The base magnitude, brighter the more the rings open towards the Sun, and dimmer the
    // further the Sun and the observer stand apart in Saturn's longitude.
    double GetPhaseMagnitude(SolarSystemObject& observer) override;
    // Right ascension and declination of the north pole of rotation, equator of date.
    bool GetPole(const AstroTime& at, DegreeAngle& rightAscension,
                 DegreeAngle& declination) override;
    // The angle of the prime meridian from the node of the equator, degrees.
    DegreeAngle GetPrimeMeridian(const AstroTime& at) override;
    int GetRotationSense() override { return 1; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

protected:
    bool Compute() override;

private:
    const std::string name;
    SaturnSeries Series;
    Sun200& sun;
};
