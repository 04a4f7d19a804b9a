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
    return DumpDouble(file, Degrees);
}

bool DegreeAngle::Load(HostFile& file)
{
    return LoadDouble(file, Degrees);
}

StateContainer& operator<<(StateContainer& sc, const DegreeAngle& angle)
{
    return angle << sc;
}

StateContainer& operator>>(StateContainer& sc, DegreeAngle& angle)
{
    return angle >> sc;
}

bool DumpDouble(HostFile& file, double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    unsigned char bytes[8];
    for (int i = 0; i < 8; ++i) {
        bytes[i] = static_cast<unsigned char>(bits >> (8 * i));
    }
    return file.Write(bytes, sizeof bytes) == sizeof bytes;
}

bool LoadDouble(HostFile& file, double& value)
{
    unsigned char bytes[8];
    if (file.Read(bytes, sizeof bytes) != sizeof bytes) {
        return false;
    }
    std::uint64_t bits = 0;
    for (int i = 7; i >= 0; --i) {
        bits = (bits << 8) | bytes[i];
    }
    std::memcpy(&value, &bits, sizeof value);
    return true;
}
