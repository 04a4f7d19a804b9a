#include "projection/Transformation.h"

#include <cmath>

#include "coords/AngleMath.h"

namespace {

// Below this the cosine of the far Dec edge counts as 0: the field reaches a pole.
constexpr double kSmallCosine = 1e-07;

} // namespace

Transformation::Transformation(const TDC& dc, const TRect& rect, const PolarCoord& centre,
                               double radius, const PolarCoord& zenith)
    : Modifier(centre, zenith), Proj(dc, rect, radius)
{}

bool Transformation::Translate(const PolarCoord& coord, TPoint& point) const
{
    PolarCoord view;
    Modifier.ChangePerspective(coord, view);
    return Proj.Project(view, point);
}

bool Transformation::Translate(const RectCoord& vector, TPoint& point) const
{
    return Proj.Project(vector, point);
}

bool Transformation::ReverseTranslate(const TPoint& point, PolarCoord& coord) const
{
    PolarCoord view;
    if (!Proj.ReverseProject(point, view)) {
        return false;
    }
    Modifier.ReversePerspective(view, coord);
    return true;
}

RectCoord Transformation::GetRectCoord(const PolarCoord& viewCoord)
{
    double ra = viewCoord.GetRA().GetRadians();
    double fromCenter = DegreesToRadians(90.0 - viewCoord.GetDec().GetDegrees());
    double sinFromCenter = std::sin(fromCenter);
    return RectCoord(std::sin(ra) * sinFromCenter, std::cos(ra) * sinFromCenter,
                     std::cos(fromCenter));
}

SkyRange Transformation::GetVisibleRange() const
{
    if (bVisibleRangeValid) {
        return VisibleRange;
    }
    PolarCoord centre = Modifier.GetCenterOfView();
    double v = DegreesToRadians(Proj.GetVisibleRadius());
    double d = std::fabs(centre.GetDec().GetRadians());

    // A field that reaches a pole holds every RA. Otherwise the cosine of the Dec edge
    // nearer the pole stands in for that of the centre, which widens the range a little
    // beyond the cap's true half width: objects are rather loaded than missed.
    DegreeRange ra(true);
    if (v + d < pi / 2.0) {
        double c = std::cos(d + v);
        double s = c >= kSmallCosine ? std::sin(v) / c : 1.0;
        double halfWidth = std::asin(s >= 1.0 ? 1.0 : s);
        ra.Set(centre.GetRA(), DegreeAngle(RadiansToDegrees(halfWidth)));
    }
    DegreeRange dec;
    dec.Set(centre.GetDec(), DegreeAngle(Proj.GetVisibleRadius()));

    VisibleRange = SkyRange(ra, dec);
    bVisibleRangeValid = true;
    return VisibleRange;
}
