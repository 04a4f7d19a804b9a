#pragma once
// Draws the view frame as an azimuthal equidistant map: a direction at angle c from the
// centre lies c (in radians) * scale device units from the centre point, at position angle
// RA, clockwise from straight up. Distances from the centre stay true, so a whole hemisphere
// and more fits on the disc without folding; the small direction map uses it.
//
// Rectangle, aspects, truncation and the range of field radii drawn are those of Projector;
// only the scale differs: half the smaller side per field radius in radians.
// The way back covers the hemisphere round the centre only, while Project goes on drawing
// beyond it, out to any angle.
#include "projection/Projector.h"

class FlatProjector : public Projector
{
public:
    FlatProjector() = default;
    // `dc` is read only for LOGPIXELSX and LOGPIXELSY; `radius` is the field radius in degrees.
    FlatProjector(const TDC& dc, const TRect& rect, double radius);

    // A direction of the view frame to its point, which is always written. True when the
    // direction lies within the visible radius of the centre.
    bool Project(const PolarCoord& coord, TPoint& point) const;
    // A point to its direction in the view frame. False, with `coord` untouched, when the
    // point lies a quarter turn or more from the centre. Within a quarter unit of the centre
    // point the answer is the centre, (0, 90).
    bool ReverseProject(const TPoint& point, PolarCoord& coord) const;
};
