#include "skyview/PositionStatusItem.h"

#include "coords/DegreeAngle.h"
#include "coords/StellarCoord.h"

namespace {

// The degree sign in the component's code page.
constexpr char kDegreeSign = '\xB0';

enum Line
{
    kRALine,
    kDecLine,
    kAzimuthLine,
    kAltitudeLine,
    kLines
};

} // namespace

PositionStatusItem::PositionStatusItem(const std::string& heading)
    : TextStatusItem(kId, heading, kLines)
{}

void PositionStatusItem::Set(const StellarCoord& position)
{
    SetLine(kRALine, "RA: (" + Number(position.GetRA().GetDegreeAngle().GetDegrees()) + ")" +
                         position.GetRA().GetDescription1());
    SetLine(kDecLine, "Dec: (" + Number(position.GetDec().GetDegreeAngle().GetDegrees()) + ")" +
                          position.GetDec().GetDescription1());
    SetLine(kAzimuthLine, "");
    SetLine(kAltitudeLine, "");
    Invalidate();
}

void PositionStatusItem::Set(const StellarCoord& position, const DegreeAngle& azimuth,
                             const DegreeAngle& altitude)
{
    Set(position);
    SetLine(kAzimuthLine, "Azimuth: " + Number(azimuth.GetDegrees()) + kDegreeSign);
    SetLine(kAltitudeLine, "Altitude: " + Number(altitude.GetDegrees()) + kDegreeSign);
}

void PositionStatusItem::Clear()
{
    for (int line = 0; line < kLines; ++line) {
        SetLine(std::size_t(line), "");
    }
    Invalidate();
}
