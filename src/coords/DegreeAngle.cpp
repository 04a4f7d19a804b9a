#include "coords/DegreeAngle.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "coords/AngleMath.h"
#include "coords/RadianAngle.h"
#include "host/HostFile.h"
#include "state/StateContainer.h"

DegreeAngle::DegreeAngle(double degrees) : Degrees(degrees)
{
    Normalise();
}

DegreeAngle::DegreeAngle(const RadianAngle& angle) : Degrees(RadiansToDegrees(angle.GetRadians()))
{
    Normalise();
}

DegreeAngle::DegreeAngle(const std::string& text) : Degrees(std::strtod(text.c_str(), nullptr))
{}

DegreeAngle& DegreeAngle::operator=(double degrees)
{
    Degrees = degrees;
    return *this;
}

DegreeAngle& DegreeAngle::operator+=(double degrees)
{
    Degrees += degrees;
    Normalise();
    return *this;
}

DegreeAngle& DegreeAngle::operator-=(double degrees)
{
    Degrees -= degrees;
    Normalise();
    return *this;
}

double DegreeAngle::GetRadians() const
{
    return DegreesToRadians(Degrees);
}

void DegreeAngle::Normalise()
{
    Degrees = RemoveWholeTurns(Degrees, 360.0);
}

StateContainer& DegreeAngle::operator<<(StateContainer& sc) const
{
    return sc << Degrees;
}

StateContainer& DegreeAngle::operator>>(StateContainer& sc)
{
    return sc >> Degrees;
}

bool DegreeAngle::Dump(HostFile& file) const
{
    return file.WriteDouble(Degrees);
}

bool DegreeAngle::Load(HostFile& file)
{
    return file.ReadDouble(Degrees);
}

StateContainer& operator<<(StateContainer& sc, const DegreeAngle& angle)
{
    return angle << sc;
}

StateContainer& operator>>(StateContainer& sc, DegreeAngle& angle)
{
    return angle >> sc;
}
