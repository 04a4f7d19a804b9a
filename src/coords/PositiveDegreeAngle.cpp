#include "coords/PositiveDegreeAngle.h"

#include <cmath>

PositiveDegreeAngle::PositiveDegreeAngle(double degrees) : DegreeAngle(degrees)
{
    MakePositive();
}

PositiveDegreeAngle::PositiveDegreeAngle(const DegreeAngle& angle) : DegreeAngle(angle)
{
    MakePositive();
}

void PositiveDegreeAngle::MakePositive()
{
    if (Degrees < 0.0) {
        double magnitude = std::fabs(Degrees);
        Degrees = 360.0 - (magnitude - std::trunc(magnitude / 360.0) * 360.0);
    }
}
