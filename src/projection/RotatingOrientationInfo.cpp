#include "projection/RotatingOrientationInfo.h"

#include <cmath>

#include "projection/AstroScrollInfo.h"
#include "projection/PerspectiveModifier.h"
#include "solar/SolarSystemObject.h"
#include "state/StateContainer.h"

namespace {

// The north celestial pole: what stands above the zenith in the local frame, so that its
// azimuth 0 points north.
const PolarCoord kNorthPole(0.0, 90.0);

// A step towards the zenith goes no nearer to it than this, in degrees of zenith distance:
// the last step stops at kLastZenithDistance, and one from there is refused.
constexpr double kZenithMargin = 0.5;
constexpr double kLastZenithDistance = 0.4;

// A step that the horizon limit takes back to within this many degrees of where the view was
// did not move it.
constexpr double kNoMove = 0.001;

} // namespace

RotatingOrientationInfo::RotatingOrientationInfo(SolarSystemObject* origin)
    : OrientationInfo(ROTATING, origin, 0.0)
{}

RotatingOrientationInfo::RotatingOrientationInfo(SolarSystemObject* origin, const LatLong& location,
                                                 const PolarCoord& zenithOffset, double radius,
                                                 bool clipAtHorizon)
    : OrientationInfo(ROTATING, origin, radius), Location(location), ZenithOffset(zenithOffset),
      bClipAtHorizon(clipAtHorizon)
{
    if (bClipAtHorizon) {
        ApplyHorizonLimit();
    }
}

StateContainer& RotatingOrientationInfo::operator<<(StateContainer& sc) const
{
    sc << NewLevel << AstroKey("Base");
    OrientationInfo::operator<<(sc);
    return sc << AstroKey("Location") << Location << AstroKey("Zenith Offset") << ZenithOffset
              << EndLevel;
}

StateContainer& RotatingOrientationInfo::operator>>(StateContainer& sc)
{
    sc >> GoToLevel >> AstroKey("Base");
    OrientationInfo::operator>>(sc);
    return sc >> AstroKey("Location") >> Location >> AstroKey("Zenith Offset") >> ZenithOffset >>
           EndLevel;
}

PolarCoord RotatingOrientationInfo::KeepOffPole(const PolarCoord& zenith)
{
    const double dec = zenith.GetDec().GetDegrees();
    if (90.0 - std::fabs(dec) < kPoleGuard) {
        return PolarCoord(zenith.GetRA(), DegreeAngle(dec > 0.0 ? kGuardedDec : -kGuardedDec));
    }
    return zenith;
}

PolarCoord RotatingOrientationInfo::GetZenith() const
{
    SolarSystemObject* origin = GetOrigin();
    return KeepOffPole(origin ? origin->GetZenith(Location) : kNorthPole);
}

PolarCoord RotatingOrientationInfo::GetCenterOfView() const
{
    const PerspectiveModifier local(GetZenith(), kNorthPole);
    // Azimuth and altitude in the local frame.
    const PolarCoord view(ZenithOffset.GetRA().GetDegrees(),
                          90.0 - ZenithOffset.GetDec().GetDegrees());
    PolarCoord sky;
    local.ReversePerspective(view, sky);
    return sky;
}

void RotatingOrientationInfo::SetCenterOfView(const PolarCoord& centre)
{
    const PerspectiveModifier local(GetZenith(), kNorthPole);
    PolarCoord view;
    local.ChangePerspective(centre, view);
    ZenithOffset = PolarCoord(view.GetRA().GetDegrees(), 90.0 - view.GetDec().GetDegrees());
    if (bClipAtHorizon) {
        ApplyHorizonLimit();
    }
}

std::unique_ptr<OrientationInfo> RotatingOrientationInfo::Clone() const
{
    return std::make_unique<RotatingOrientationInfo>(GetOrigin(), Location, ZenithOffset,
                                                     GetFieldRadius(), true);
}

bool RotatingOrientationInfo::ApplyHorizonLimit()
{
    const double radius = GetFieldRadius();
    if (ZenithOffset.GetDec().GetDegrees() + radius > 90.0) {
        ZenithOffset.SetDec(DegreeAngle(90.0 - radius));
        return true;
    }
    return false;
}

bool RotatingOrientationInfo::Scroll(AstroScrollInfo& info)
{
    const double step = info.GetAmount().GetDegrees();
    DegreeAngle azimuth = ZenithOffset.GetRA();
    DegreeAngle distance = ZenithOffset.GetDec();
    switch (info.GetDirection()) {
    case AstroScrollInfo::AZIMUTH_UP:
        azimuth += step;
        break;
    case AstroScrollInfo::AZIMUTH_DOWN:
        azimuth -= step;
        break;
    case AstroScrollInfo::TOWARDS_ZENITH:
        if (step + kZenithMargin <= distance.GetDegrees()) {
            distance -= step;
        } else if (distance.GetDegrees() < kZenithMargin) {
            return false;
        } else {
            distance = kLastZenithDistance;
        }
        break;
    case AstroScrollInfo::TOWARDS_HORIZON:
        distance += step;
        break;
    default:
        return false;
    }

    const PolarCoord before = ZenithOffset;
    ZenithOffset = PolarCoord(azimuth, distance);
    if (ApplyHorizonLimit() &&
        std::fabs(before.GetDec().GetDegrees() - distance.GetDegrees()) < kNoMove) {
        ZenithOffset = before;
        return false;
    }
    return true;
}

bool RotatingOrientationInfo::operator==(const RotatingOrientationInfo& other) const
{
    return GetOrigin() == other.GetOrigin() && GetFieldRadius() == other.GetFieldRadius() &&
           Location == other.Location && ZenithOffset == other.ZenithOffset &&
           bClipAtHorizon == other.bClipAtHorizon;
}
