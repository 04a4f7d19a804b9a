#include "projection/FixedOrientationInfo.h"

#include "state/StateContainer.h"

FixedOrientationInfo::FixedOrientationInfo(SolarSystemObject* origin)
    : OrientationInfo(FIXED, origin, 0.0)
{}

FixedOrientationInfo::FixedOrientationInfo(SolarSystemObject* origin, const PolarCoord& centre,
                                           const PolarCoord& zenith, double radius)
    : OrientationInfo(FIXED, origin, radius), CenterOfView(centre), Zenith(zenith)
{}

StateContainer& FixedOrientationInfo::operator<<(StateContainer& sc) const
{
    sc << NewLevel << AstroKey("Base");
    OrientationInfo::operator<<(sc);
    return sc << AstroKey("CenterOfView") << CenterOfView << AstroKey("Zenith") << Zenith
              << EndLevel;
}

StateContainer& FixedOrientationInfo::operator>>(StateContainer& sc)
{
    sc >> GoToLevel >> AstroKey("Base");
    OrientationInfo::operator>>(sc);
    return sc >> AstroKey("CenterOfView") >> CenterOfView >> AstroKey("Zenith") >> Zenith >>
           EndLevel;
}

std::unique_ptr<OrientationInfo> FixedOrientationInfo::Clone() const
{
    return std::make_unique<FixedOrientationInfo>(*this);
}

PolarCoord FixedOrientationInfo::NorthUpZenith(const PolarCoord& centre)
{
    const double ra = centre.GetRA().GetDegrees();
    const double dec = centre.GetDec().GetDegrees();
    if (dec >= 90.0) {
        return PolarCoord(ra + 180.0, 0.0);
    }
    if (dec <= -90.0) {
        return PolarCoord(ra, 0.0);
    }
    return PolarCoord(ra, 90.0);
}
