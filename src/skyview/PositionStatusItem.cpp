#include "skyview/PositionStatusItem.h"

#include "coords/DegreeAngle.h"
#include "coords/StellarCoord.h"

PositionStatusItem::PositionStatusItem(const std::string& heading) : TextStatusItem(kId, heading, 2)
{}

void PositionStatusItem::Set(const StellarCoord& position)
{
    SetLine(0, "RA: (" + Number(position.GetRA().GetDegreeAngle().GetDegrees()) + ")" +
                   position.GetRA().GetDescription1());
    SetLine(1, "Dec: (" + Number(position.GetDec().GetDegreeAngle().GetDegrees()) + ")" +
                   position.GetDec().GetDescription1());
    Invalidate();
}
