#pragma once
// Draws the view frame of a PerspectiveModifier onto a rectangle of a device as an
// orthographic hemisphere: a direction at angle c from the centre lies sin c * scale device
// units from the centre point, at position angle RA, clockwise from straight up. The back
// hemisphere folds onto the same disc; Project's result tells it apart.
//
// Units: angles in degrees, lengths in device units. Devices whose pixels are not square
// (LOGPIXELSX differs from LOGPIXELSY, as on some printers) stretch the axis with the finer
// resolution by the aspect, so that the sky keeps its shape on paper. Screen coordinates are
// truncated towards zero after the aspect is applied; that truncation is part of the result.
//
// The field radius is the angle from the centre to the nearer edge along the shorter side; the
// visible radius is the larger circle through the corners, at most 90.
//
// Field radius out of range. The radius is a plain double in the orientation and in saved
// state, so anything can arrive here. A radius at or below 0, or not a number, has no finite
// scale (the sine in the denominator is 0 or negative, which would blow the picture up or
// mirror it), so it is drawn as 0.1 degree: the smallest radius the map's own zoom reaches.
// A radius above 90 is drawn as 90: beyond it the sine falls again, so a wider radius would
// show a smaller hemisphere, and past 180 a mirrored one; 90 is also the largest radius the
// map accepts. The stored field radius is the one actually drawn. Devices that report no
// resolution (0 or less) count as square.
#include "coords/DegreeAngle.h"
#include "coords/PolarCoord.h"
#include "coords/RectCoord.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"

class TDC;

class Projector
{
public:
    // The smallest and largest field radius drawn, in degrees (see above).
    static constexpr double kMinimumFieldRadius = 0.1;
    static constexpr double kMaximumFieldRadius = 90.0;

    // An empty rectangle, both radii 0, aspects and scale 1, centre point (0, 0).
    Projector() = default;
    // `dc` is read only for LOGPIXELSX and LOGPIXELSY; `radius` is the field radius in degrees.
    Projector(const TDC& dc, const TRect& rect, double radius);

    // A direction of the view frame to its point, which is always written. True when the
    // direction lies within the visible radius of the centre; a direction of the far
    // hemisphere gives false and a point inside the disc.
    bool Project(const PolarCoord& coord, TPoint& point) const;
    // A vector of the view frame (x right, y up, z towards the viewer, unit length for a point
    // on the sphere) to its point. False, with the point unchanged, for the far hemisphere
    // (z below 0); otherwise whether the point lies strictly within half the width and half
    // the height of the centre point.
    bool Project(const RectCoord& vector, TPoint& point) const;
    // A point to its direction in the view frame. False, with `coord` untouched, when the
    // point lies outside the hemisphere's disc. Within a quarter unit of the centre point the
    // answer is the centre, (0, 90), since the position angle is not defined there.
    bool ReverseProject(const TPoint& point, PolarCoord& coord) const;

    // Device units along x or y covered by an angle seen from the centre, truncated.
    int GetXExtent(const DegreeAngle& angle) const;
    int GetYExtent(const DegreeAngle& angle) const;

    const TRect& GetRect() const { return Rect; }
    double GetFieldRadius() const { return FieldRadius; }
    double GetVisibleRadius() const { return VisibleRadius; }
    double GetXAspect() const { return XAspect; }
    double GetYAspect() const { return YAspect; }
    // Device units: the radius of the whole hemisphere before the aspect.
    double GetScale() const { return Scale; }
    int GetSmallerSide() const { return nSmallerSide; }
    const TPoint& GetCenterPoint() const { return CenterPoint; }

    // The rectangle, both radii, both aspects, the scale, the smaller side and the centre
    // point, exactly; the other fields follow from these.
    bool operator==(const Projector& other) const;
    bool operator!=(const Projector& other) const { return !(*this == other); }

protected:
    // Everything but the scale and the visible radius: rectangle, radius (held to the range
    // drawn), aspects, smaller side, centre point, half sizes. Shared with projections that
    // scale differently.
    void Measure(const TDC& dc, const TRect& rect, double radius);
    // The scale and what follows from it.
    void SetScale(double scale);
    // The point at the lower right corner, whose distance from the centre is the visible
    // radius.
    TPoint GetCornerPoint() const;
    // Pixels to the offset from the centre before the aspect: x right, y up.
    void ToOffset(const TPoint& point, double& dx, double& dy) const;
    // The view-frame direction of an offset from the centre point whose angle from the centre
    // is known: declination 90 less that angle (never below 0), right ascension clockwise from
    // straight up; within a quarter unit of the centre, the centre itself.
    static PolarCoord DirectionOfOffset(double dx, double dy, double dec);
    // The point at an offset from the centre point in device units, each axis truncated.
    TPoint ToPoint(double dx, double dy) const;

    TRect Rect;
    double FieldRadius = 0.0;
    double VisibleRadius = 0.0;
    double XAspect = 1.0;
    double YAspect = 1.0;
    double Scale = 1.0;
    int nSmallerSide = 0;
    TPoint CenterPoint;
    double XScale = 1.0;
    double YScale = 1.0;
    int nHalfWidth = 0;
    int nHalfHeight = 0;
};
