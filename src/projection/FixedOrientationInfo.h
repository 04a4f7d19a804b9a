#pragma once
// A view that stays on the stars: centre of view and zenith are stored sky directions, in
// degrees, and do not move when time runs.
//
// State, at the caller's key: a "Base" level with "Radius", then "CenterOfView" and "Zenith"
// levels with "RA" and "Dec".
#include "projection/OrientationInfo.h"

class FixedOrientationInfo : public OrientationInfo
{
public:
    // Radius 0, centre and zenith (0, 0).
    explicit FixedOrientationInfo(SolarSystemObject* origin);
    FixedOrientationInfo(SolarSystemObject* origin, const PolarCoord& centre,
                         const PolarCoord& zenith, double radius);

    StateContainer& operator<<(StateContainer& sc) const override;
    StateContainer& operator>>(StateContainer& sc) override;

    void SetCenterOfView(const PolarCoord& centre) override { CenterOfView = centre; }
    PolarCoord GetCenterOfView() const override { return CenterOfView; }
    PolarCoord GetZenith() const override { return Zenith; }
    std::unique_ptr<OrientationInfo> Clone() const override;

    // The zenith that puts north straight above `centre`: the north pole, or at a pole, where
    // every direction is south or north, the limit of that as the centre nears the pole along
    // its own meridian (the opposite meridian up at the north pole, the centre's own at the
    // south pole).
    static PolarCoord NorthUpZenith(const PolarCoord& centre);

private:
    PolarCoord CenterOfView;
    PolarCoord Zenith;
};
