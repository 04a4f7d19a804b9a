#pragma once
// The orbit of one comet as six numbers and a name: the time of perihelion passage, the
// perihelion distance and eccentricity, and the three angles that place the orbit. The angles
// are taken in the ecliptic frame of the date, so no precession is applied to them: elements
// of a standard equinox (J2000) stand about 50 arcseconds a year off in the node.
#include "coords/DegreeAngle.h"
#include "time/AstroTime.h"

#include <string>

struct CometElements
{
    std::string Name;
    AstroTime Perihelion;            // time of perihelion passage, Universal Time
    double PerihelionDistance = 0.0; // q, AU
    double Eccentricity = 0.0;       // e: below 1 an ellipse, 1 a parabola, above 1 a hyperbola
    DegreeAngle Inclination;         // of the orbit to the ecliptic, degrees
    DegreeAngle Node;                // longitude of the ascending node, degrees
    DegreeAngle Argument;            // argument of perihelion, degrees
};
