#include "projection/Transformation.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>

#include "coords/AngleMath.h"

namespace {

// Below this the cosine of the far Dec edge counts as 0: the field reaches a pole.
constexpr double kSmallCosine = 1e-07;

// Bounds of the vector road of Translate, on the unit sphere unless said otherwise.
// What the rounding of either road can move a coordinate of the view vector by. The steps
// of the rotations add up to about 1e-14 (angles of up to 720 degrees turned into radians,
// sines and cosines within an ulp); the bound leaves a factor of a hundred.
constexpr double kRoundingBound = 1e-12;
// Distance from the axis through the centre below which the rotations' arc sine and the
// quotient of their arc cosine lose too many digits: about 0.06 degree from the centre or
// from its opposite.
constexpr double kNearAxis = 1e-3;
// Share of that distance across the meridian through the centre below which the rotations'
// arc cosine nears 1 and may clamp (and report it), or the half of the circle is in doubt.
constexpr double kNearMeridian = 1e-2;
// Closeness of the cosine of a direction's angle from the centre to that of the visible
// radius below which the visibility test is left to the rotations.
constexpr double kVisibleMargin = 1e-9;
// Device units beyond which an offset is left to the rotations and their hold of far points.
constexpr double kFarOffset = 1 << 29;

// True when every value within `margin` of `value` truncates towards zero to the same whole
// number, so that the rotations' value, no further off than that, gives the same pixel.
bool TruncatesAlike(double value, double margin)
{
    if (!(std::fabs(value) < kFarOffset)) {
        return false;
    }
    double whole = std::trunc(value);
    double fraction = std::fabs(value - whole);
    // The next whole number away from zero is always a boundary; the one towards zero is
    // one unless it is 0 itself, since truncation gives 0 on both sides of it.
    if (1.0 - fraction <= margin) {
        return false;
    }
    return whole == 0.0 || fraction > margin;
}

int OffsetFrom(int base, double offset)
{
    std::int64_t sum = std::int64_t(base) + static_cast<int>(offset);
    return static_cast<int>(std::clamp<std::int64_t>(sum, INT_MIN, INT_MAX));
}

} // namespace

Transformation::Transformation(const TDC& dc, const TRect& rect, const PolarCoord& centre,
                               double radius, const PolarCoord& zenith)
    : Modifier(centre, zenith), Proj(dc, rect, radius)
{
    double centerRA = centre.GetRA().GetDegrees();
    double zenithAngle = Modifier.GetZenithAngle();
    SinCenterRA = std::sin(DegreesToRadians(centerRA));
    CosCenterRA = std::cos(DegreesToRadians(centerRA));
    SinZenithAngle = std::sin(DegreesToRadians(zenithAngle));
    CosZenithAngle = std::cos(DegreesToRadians(zenithAngle));
    CosVisibleRadius = std::cos(DegreesToRadians(Proj.GetVisibleRadius()));
    XScale = Proj.GetScale() * Proj.GetXAspect();
    YScale = Proj.GetScale() * Proj.GetYAspect();
    // Angles beyond a turn lose digits in the rotations' own subtraction; such a centre, or
    // anything not finite, is left to them.
    bVectorPath = std::fabs(centerRA) <= 360.0 && std::isfinite(zenithAngle) &&
                  std::isfinite(Modifier.GetCosTilt()) && std::isfinite(Modifier.GetSinTilt()) &&
                  std::isfinite(CosVisibleRadius) && std::isfinite(XScale) && std::isfinite(YScale);
}

bool Transformation::Translate(const PolarCoord& coord, TPoint& point) const
{
    bool visible = false;
    if (TranslateByVector(coord, point, visible)) {
        return visible;
    }
    PolarCoord view;
    Modifier.ChangePerspective(coord, view);
    return Proj.Project(view, point);
}

bool Transformation::TranslateByVector(const PolarCoord& coord, TPoint& point, bool& visible) const
{
    double ra = coord.GetRA().GetDegrees();
    double dec = coord.GetDec().GetDegrees();
    // Beyond a pole the rotations take the half of the circle from RA alone, which mirrors
    // such a direction; only they can give that answer.
    if (!bVectorPath || !(std::fabs(ra) <= 360.0 && std::fabs(dec) <= 90.0)) {
        return false;
    }
    double sinRA = std::sin(DegreesToRadians(ra));
    double cosRA = std::cos(DegreesToRadians(ra));
    double sinDec = std::sin(DegreesToRadians(dec));
    double cosDec = std::cos(DegreesToRadians(dec));

    // About the old pole by the centre's RA.
    double cosTurned = cosRA * CosCenterRA + sinRA * SinCenterRA;
    double sinTurned = sinRA * CosCenterRA - cosRA * SinCenterRA;
    // The tilt: z towards the centre of view, x along the meridian through it, y across.
    double cosTilt = Modifier.GetCosTilt();
    double sinTilt = Modifier.GetSinTilt();
    double x = cosTurned * cosDec * cosTilt - sinDec * sinTilt;
    double y = sinTurned * cosDec;
    double z = cosTurned * cosDec * sinTilt + sinDec * cosTilt;

    double axisDistance = std::sqrt(x * x + y * y);
    if (!(axisDistance >= kNearAxis && std::fabs(y) >= kNearMeridian * axisDistance)) {
        return false;
    }
    if (!(std::fabs(z - CosVisibleRadius) > kVisibleMargin)) {
        return false;
    }

    // About the centre by the zenith angle: to the right of and up from the centre point.
    double right = (y * CosZenithAngle - x * SinZenithAngle) * XScale;
    double up = (x * CosZenithAngle + y * SinZenithAngle) * YScale;
    // How far the rotations' point may lie from this one, per unit of scale: the arc sine
    // magnifies rounding by 1 / distance from the axis, the arc cosine by 1 / |y|.
    double error = kRoundingBound * (1.0 / axisDistance + 2.0 / std::fabs(y) + 1.0);
    if (!TruncatesAlike(right, error * XScale) || !TruncatesAlike(up, error * YScale)) {
        return false;
    }

    const TPoint& center = Proj.GetCenterPoint();
    point = TPoint(OffsetFrom(center.x, right), OffsetFrom(center.y, -up));
    visible = z >= CosVisibleRadius;
    return true;
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
