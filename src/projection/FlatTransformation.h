#pragma once
// The sky on an azimuthal equidistant map: a PerspectiveModifier that turns the sky into the
// frame of the view and a FlatProjector that draws that frame. The direction map draws the
// whole sky above the horizon with it; no star request is ever made from it, so it keeps no
// visible range.
//
// Angles are degrees; points are device units of the rectangle given.
#include "coords/PolarCoord.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "projection/FlatProjector.h"
#include "projection/PerspectiveModifier.h"

class TDC;

class FlatTransformation
{
public:
    FlatTransformation(const TDC& dc, const TRect& rect, const PolarCoord& centre, double radius,
                       const PolarCoord& zenith);

    // Sky direction to point; the point is always written. True within the visible radius.
    bool Translate(const PolarCoord& coord, TPoint& point) const;
    // Point to sky direction. False, with `coord` untouched, a quarter turn or more from the
    // centre.
    bool ReverseTranslate(const TPoint& point, PolarCoord& coord) const;

    PolarCoord GetCenterOfView() const { return Modifier.GetCenterOfView(); }
    PolarCoord GetZenith() const { return Modifier.GetZenith(); }
    const PerspectiveModifier& GetModifier() const { return Modifier; }
    const FlatProjector& GetProjector() const { return Proj; }

private:
    PerspectiveModifier Modifier;
    FlatProjector Proj;
};
