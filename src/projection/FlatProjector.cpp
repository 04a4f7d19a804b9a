#include "projection/FlatProjector.h"

#include <cmath>

#include "coords/AngleMath.h"

FlatProjector::FlatProjector(const TDC& dc, const TRect& rect, double radius)
{
    Measure(dc, rect, radius);
    SetScale((nSmallerSide >> 1) / DegreesToRadians(FieldRadius));

    // A corner a quarter turn or more away leaves the whole hemisphere visible.
    PolarCoord corner(0.0, 0.0);
    ReverseProject(GetCornerPoint(), corner);
    VisibleRadius = 90.0 - corner.GetDec().GetDegrees();
}

bool FlatProjector::Project(const PolarCoord& coord, TPoint& point) const
{
    double fromCenter = 90.0 - coord.GetDec().GetDegrees();
    bool visible = fromCenter <= VisibleRadius;
    double r = DegreesToRadians(fromCenter) * Scale;
    double ra = DegreesToRadians(coord.GetRA().GetDegrees());
    point = ToPoint(std::sin(ra) * r * XAspect, std::cos(ra) * r * YAspect);
    return visible;
}

bool FlatProjector::ReverseProject(const TPoint& point, PolarCoord& coord) const
{
    double dx = 0.0, dy = 0.0;
    ToOffset(point, dx, dy);
    double r = std::sqrt(dx * dx + dy * dy);
    double angle = r / Scale;
    if (!(angle < pi / 2.0)) {
        return false;
    }
    double dec = 90.0 - RadiansToDegrees(angle);
    coord = DirectionOfOffset(dx, dy, dec);
    return true;
}
