#include "skyview/OrientationStatusItem.h"

#include "coords/PositiveDegreeAngle.h"
#include "coords/StellarCoord.h"
#include "projection/OrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"

namespace {

// RA as hours from 0 to 24 (an orientation may hand out a negative RA), Dec as an arc.
std::string RAText(const PolarCoord& direction)
{
    return StellarCoord(PolarCoord(PositiveDegreeAngle(direction.GetRA()), direction.GetDec()))
        .GetRA()
        .GetDescription1();
}

std::string DecText(const PolarCoord& direction)
{
    return StellarCoord(direction).GetDec().GetDescription1();
}

} // namespace

OrientationStatusItem::OrientationStatusItem() : TextStatusItem(kId, "Orientation: ", 8)
{}

void OrientationStatusItem::Set(const OrientationInfo& orientation)
{
    const PolarCoord centre = orientation.GetCenterOfView();
    const PolarCoord zenith = orientation.GetZenith();
    // The RA lines carry a second blank so that their values line up with the Dec lines'.
    SetLine(0, std::string("Type: ") + orientation.GetTypeName());
    SetLine(1, "Field of View: " + Number(2.0 * orientation.GetFieldRadius()));
    SetLine(2, "Center RA:  " + RAText(centre));
    SetLine(3, "Center Dec: " + DecText(centre));
    SetLine(4, "Zenith RA:  " + RAText(zenith));
    SetLine(5, "Zenith Dec: " + DecText(zenith));

    const auto* ground = orientation.GetType() == OrientationInfo::ROTATING
                             ? dynamic_cast<const RotatingOrientationInfo*>(&orientation)
                             : nullptr;
    if (ground) {
        const PolarCoord& offset = ground->GetZenithOffset();
        SetLine(6, "Offset RA: " + Number(offset.GetRA().GetDegrees()));
        SetLine(7, "Offset Dec: " + Number(offset.GetDec().GetDegrees()));
    } else {
        SetLine(6, "");
        SetLine(7, "");
    }
    Invalidate();
}
