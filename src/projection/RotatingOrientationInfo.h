#pragma once
// A view that stands on the ground: a place on the origin body and the direction of view
// against the local horizon. The centre of view and the zenith in sky coordinates are not
// stored; each call works them out from the origin's rotation at the origin's present time,
// so when the map's time runs the stars move through a view that stays fixed against the
// horizon.
//
// The local frame is the frame of a PerspectiveModifier with the zenith as its centre and the
// north celestial pole above it. The zenith offset holds the direction of view in it: its RA
// is the azimuth in degrees, 0 north, 90 west, 180 south, 270 east (north through west), and
// its Dec the zenith distance in degrees, not the altitude.
//
// With clip at horizon set the field may not reach below the horizon: the view's centre stays
// at least a field radius above it. Nothing limits the view towards the zenith.
//
// State, at the caller's key: a "Base" level with "Radius", a "Location" level with "Lat" and
// "Long", a "Zenith Offset" level with "RA" and "Dec". The clip flag is no part of it.
#include "coords/LatLong.h"
#include "projection/OrientationInfo.h"

class RotatingOrientationInfo : public OrientationInfo
{
public:
    // The nearest a zenith may come to a pole of the sky, in degrees: there the local frame,
    // whose zenith is the pole, would have no north.
    static constexpr double kPoleGuard = 0.1;
    static constexpr double kGuardedDec = 89.9;

    // Location (0, 0), offset (0, 0), radius 0, clip on.
    explicit RotatingOrientationInfo(SolarSystemObject* origin);
    // With clip on the horizon limit applies at once.
    RotatingOrientationInfo(SolarSystemObject* origin, const LatLong& location,
                            const PolarCoord& zenithOffset, double radius, bool clipAtHorizon);
    // A copy keeps everything, the clip flag and an offset beyond the limit included.
    RotatingOrientationInfo(const RotatingOrientationInfo&) = default;
    RotatingOrientationInfo& operator=(const RotatingOrientationInfo&) = default;

    StateContainer& operator<<(StateContainer& sc) const override;
    StateContainer& operator>>(StateContainer& sc) override;

    // Sky direction to zenith offset at the origin's present time; with clip on, the limit.
    void SetCenterOfView(const PolarCoord& centre) override;
    // Zenith offset to sky direction at the origin's present time.
    PolarCoord GetCenterOfView() const override;
    // The origin's zenith for the location, kept off the poles (KeepOffPole). An origin that
    // knows no zenith of its own gives the pole of the sky.
    PolarCoord GetZenith() const override;
    // The same origin, location, offset and radius, with clip on whatever this one's flag:
    // the limit may thus move the clone's view.
    std::unique_ptr<OrientationInfo> Clone() const override;
    // Moves the offset by one step of `info` (see AstroScrollInfo for the directions). False,
    // with the offset as it was, when the view cannot move on: a step towards the zenith
    // within half a degree of it, a step the limit takes back whole, an unknown direction.
    // The limit applies here whatever the clip flag says.
    bool Scroll(AstroScrollInfo& info) override;

    // Azimuth in RA, zenith distance in Dec, degrees.
    const PolarCoord& GetZenithOffset() const { return ZenithOffset; }
    const LatLong& GetLocation() const { return Location; }
    // Replaces the location and nothing else.
    void SetLocation(const LatLong& location) { Location = location; }
    bool GetClipAtHorizon() const { return bClipAtHorizon; }
    // Does not move the view.
    void SetClipAtHorizon(bool clip) { bClipAtHorizon = clip; }

    // A zenith closer than kPoleGuard to a pole moved back to Dec +-kGuardedDec, its RA kept.
    static PolarCoord KeepOffPole(const PolarCoord& zenith);

    // Everything this object holds: origin, location, offset, radius and clip flag.
    bool operator==(const RotatingOrientationInfo& other) const;
    bool operator!=(const RotatingOrientationInfo& other) const { return !(*this == other); }

private:
    // Keeps the lower edge of the field at or above the horizon: a zenith distance that with
    // the radius passes 90 becomes 90 - radius. True when it moved the view.
    bool ApplyHorizonLimit();

    LatLong Location;
    PolarCoord ZenithOffset;
    bool bClipAtHorizon = true;
};
