#include "projection/FlatTransformation.h"

FlatTransformation::FlatTransformation(const TDC& dc, const TRect& rect, const PolarCoord& centre,
                                       double radius, const PolarCoord& zenith)
    : Modifier(centre, zenith), Proj(dc, rect, radius)
{}

bool FlatTransformation::Translate(const PolarCoord& coord, TPoint& point) const
{
    PolarCoord view;
    Modifier.ChangePerspective(coord, view);
    return Proj.Project(view, point);
}

bool FlatTransformation::ReverseTranslate(const TPoint& point, PolarCoord& coord) const
{
    PolarCoord view;
    if (!Proj.ReverseProject(point, view)) {
        return false;
    }
    Modifier.ReversePerspective(view, coord);
    return true;
}
