#include "coords/RadianAngle.h"

#include <cstdlib>

#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "state/StateContainer.h"

RadianAngle::RadianAngle(double radians) : Radians(radians)
{
    Normalise();
}

RadianAngle::RadianAngle(const DegreeAngle& angle) : Radians(DegreesToRadians(angle.GetDegrees()))
{
    Normalise();
}

RadianAngle::RadianAngle(const std::string& text) : Radians(std::strtod(text.c_str(), nullptr))
{}

RadianAngle& RadianAngle::operator=(double radians)
{
    Radians = radians;
    return *this;
}

RadianAngle& RadianAngle::operator+=(double radians)
{
    Radians += radians;
    Normalise();
    return *this;
}

RadianAngle& RadianAngle::operator-=(double radians)
{
    Radians -= radians;
    Normalise();
    return *this;
}

double RadianAngle::GetDegrees() const
{
    return RadiansToDegrees(Radians);
}

void RadianAngle::Normalise()
{
    Radians = RemoveWholeTurns(Radians, twoPi);
}

StateContainer& RadianAngle::operator<<(StateContainer& sc) const
{
    return sc << Radians;
}

StateContainer& RadianAngle::operator>>(StateContainer& sc)
{
    return sc >> Radians;
}

StateContainer& operator<<(StateContainer& sc, const RadianAngle& angle)
{
    return angle << sc;
}

StateContainer& operator>>(StateContainer& sc, RadianAngle& angle)
{
    return angle >> sc;
}
