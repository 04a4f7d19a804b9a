#pragma once
// The sky-to-surface mapping of one draw: a PerspectiveModifier that turns the sky into the
// frame of the view and a Projector that draws that frame on the device, with the way back
// and the part of the sky that can be seen.
//
// Angles are degrees: sky directions in the frame the centre and zenith were given in
// (equatorial for the map), view frame directions as PerspectiveModifier defines them. Points
// are device units of the rectangle given.
//
// Translate runs once per star and grid point and allocates nothing. Its answer is that of the
// three rotations of PerspectiveModifier followed by Projector::Project, exactly: the screen
// points are truncated, so the last bits of each step decide a pixel. Those rotations cost
// seven calls of the maths library per point, two of them arc functions. Translate first
// takes a cheaper road, the same turns as one product of vectors with the sines and cosines
// of the centre's RA, the tilt and the zenith angle worked out once here: two sine-cosine
// pairs per point. Its doubles differ from the rotations' in the last bits, so it keeps its
// answer only when no truncation, no visibility test and no clamping of the rotations could
// come out otherwise: both roads' rounding is bounded (about 1e-14 on the unit sphere, taken
// as 1e-12), and a value that close to a pixel boundary, a direction within 0.06 degree of
// the centre or its opposite, or one next to the meridian through the centre (where the
// rotations' arc cosine loses half its digits and may clamp) goes the literal way. About
// one direction in 150 does; in views narrower than a degree the disc round the centre
// takes a larger share (a sixth of a field of radius 0.1).
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
    // The cheaper road of Translate; false when the answer must come from the rotations.
    bool TranslateByVector(const PolarCoord& coord, TPoint& point, bool& visible) const;

    PerspectiveModifier Modifier;
    Projector Proj;
    mutable SkyRange VisibleRange;
    mutable bool bVisibleRangeValid = false;

    // For TranslateByVector, all derived from the two halves.
    bool bVectorPath = false;
    double SinCenterRA = 0.0;
    double CosCenterRA = 1.0;
    double SinZenithAngle = 0.0;
    double CosZenithAngle = 1.0;
    double CosVisibleRadius = 0.0;
    double XScale = 1.0;
    double YScale = 1.0;
};
