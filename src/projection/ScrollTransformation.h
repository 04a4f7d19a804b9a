#pragma once
// Moves stars cheaply while the view scrolls. A star's direction becomes a vector once, and
// each later frame turns that vector by one small rotation instead of passing the star through
// the spherical rotations of the full transformation again.
//
// The frame the vectors are kept in depends on the kind of scroll:
//  - up or down (directions 3 and 4): the view frame of the transformation in force when the
//    vector was made (x right, y up, z towards the viewer). Such a scroll turns the sky about
//    the view's x axis by the step, and Rotate carries the vector along frame by frame;
//  - along the horizon (directions 1 and 2): the local horizon frame, whose pole is the zenith
//    and whose RA 0 points at the north celestial pole. A star does not move in that frame, so
//    Rotate leaves the vector alone; Translate turns it by the view's azimuth and tilts it by
//    the view's zenith distance on every frame.
// A frame of a scroll thus costs per star one small rotation and the multiplications of
// Translate: no sine, no cosine and no spherical rotation.
//
// Angles are degrees; the step comes from the scroll's amount.
#include "coords/PolarCoord.h"
#include "coords/RectCoord.h"
#include "platform/TPoint.h"
#include "projection/AstroScrollInfo.h"
#include "projection/PerspectiveModifier.h"
#include "projection/Transformation.h"

class ScrollTransformation
{
public:
    // One frame of the scroll `info` over the view `transformation`; both are copied.
    ScrollTransformation(const AstroScrollInfo& info, const Transformation& transformation);

    // The vector of a sky direction in the frame of the scroll.
    RectCoord GetRectCoord(const PolarCoord& coord) const;
    // Advances a vector made for the frame before this one by one step. Returns true.
    bool Rotate(RectCoord& vector) const;
    // Vector to point, with Transformation::Translate(RectCoord&, TPoint&)'s answer: false
    // behind the viewer, otherwise whether the point lies within the rectangle.
    bool Translate(const RectCoord& vector, TPoint& point) const;

    // True when vectors stored in the frame `previous` carry over to this frame through
    // Rotate: the two scrolls are of the same kind, they share the zenith, and for an up or
    // down scroll the view moved by exactly this frame's step along the vertical. A step cut
    // short at a limit, a jump of the view or a turn of the sky under it answers false, and
    // the stored vectors must then be made again.
    bool Continues(const ScrollTransformation& previous) const;

    bool IsVertical() const { return bVertical; }
    const AstroScrollInfo& GetScrollInfo() const { return ScrollInfo; }
    const Transformation& GetTransformation() const { return View; }

private:
    bool bVertical;
    AstroScrollInfo ScrollInfo;
    Transformation View;
    // Sky to local horizon frame.
    PerspectiveModifier HorizonModifier;
    double SinStep = 0.0;
    double CosStep = 1.0;
    // Of the view's azimuth - 180 and of its zenith distance, in the horizon frame; used for
    // scrolls along the horizon only.
    double SinAzimuth = 0.0;
    double CosAzimuth = 1.0;
    double SinTilt = 0.0;
    double CosTilt = 1.0;
};
