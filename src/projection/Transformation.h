#pragma once
// The sky-to-surface mapping of one draw: a PerspectiveModifier that turns the sky into the
// frame of the view and a Projector that draws that frame on the device, with the way back
// and the part of the sky that can be seen.
//
// Angles are degrees: sky directions in the frame the centre and zenith were given in
// (equatorial for the map), view frame directions as PerspectiveModifier defines them. Points
// are device units of the rectangle given.
//
// Translate runs once per star and grid point: it allocates nothing, and the tilt's sines and
// cosines are worked out once, when the transformation is built.
#include "coords/PolarCoord.h"
#include "coords/RectCoord.h"
#include "coords/SkyRange.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "projection/PerspectiveModifier.h"
#include "projection/Projector.h"

class TDC;

class Transformation
{
public:
    // `radius` is the field radius in degrees; Projector says what it does with one at or
    // below 0 or above 90.
    Transformation(const TDC& dc, const TRect& rect, const PolarCoord& centre, double radius,
                   const PolarCoord& zenith);

    // Sky direction to point. The point is always written, even for a direction out of view:
    // lines with one end in view are drawn to the other end's point. True when the direction
    // lies within the visible radius.
    bool Translate(const PolarCoord& coord, TPoint& point) const;
    // A vector of the view frame to its point, with no rotation (see Projector::Project).
    bool Translate(const RectCoord& vector, TPoint& point) const;
    // Point to sky direction. False, with `coord` untouched, outside the hemisphere's disc.
    bool ReverseTranslate(const TPoint& point, PolarCoord& coord) const;

    // The unit vector of a direction that is already in the view frame: x right, y up, z
    // towards the viewer.
    static RectCoord GetRectCoord(const PolarCoord& viewCoord);

    // RA and Dec ranges that hold every visible direction. Worked out at the first call and
    // then served from a cache, which stays valid since nothing changes a built
    // transformation.
    SkyRange GetVisibleRange() const;

    PolarCoord GetCenterOfView() const { return Modifier.GetCenterOfView(); }
    PolarCoord GetZenith() const { return Modifier.GetZenith(); }
    double GetVisibleRadius() const { return Proj.GetVisibleRadius(); }
    const PerspectiveModifier& GetModifier() const { return Modifier; }
    const Projector& GetProjector() const { return Proj; }

    // Modifiers and projectors equal; the cached range does not count.
    bool operator==(const Transformation& other) const
    {
        return Modifier == other.Modifier && Proj == other.Proj;
    }
    bool operator!=(const Transformation& other) const { return !(*this == other); }

private:
    PerspectiveModifier Modifier;
    Projector Proj;
    mutable SkyRange VisibleRange;
    mutable bool bVisibleRangeValid = false;
};
