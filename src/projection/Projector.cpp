#include "projection/Projector.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "coords/AngleMath.h"
#include "platform/TDC.h"
#include "platform/WinTypes.h"

namespace {

// Offsets are held within this many device units of the centre. Only directions far outside
// the rectangle of a tiny field radius get there, and only as the far end of a line, which
// the drawing clips; the hold keeps the int arithmetic of the point defined.
constexpr int kFarOffset = 1 << 30;

// Truncation towards zero, held at the far offset; not a number gives 0.
int PixelOffset(double value)
{
    if (value >= kFarOffset) {
        return kFarOffset;
    }
    if (value <= -kFarOffset) {
        return -kFarOffset;
    }
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(value);
}

int AddOffset(int base, int offset)
{
    std::int64_t sum = std::int64_t(base) + offset;
    return static_cast<int>(std::clamp<std::int64_t>(sum, INT_MIN, INT_MAX));
}

double FieldRadiusDrawn(double radius)
{
    if (!(radius > 0.0)) {
        return Projector::kMinimumFieldRadius;
    }
    return std::min(radius, Projector::kMaximumFieldRadius);
}

} // namespace

Projector::Projector(const TDC& dc, const TRect& rect, double radius)
{
    Measure(dc, rect, radius);
    SetScale((nSmallerSide >> 1) / std::sin(DegreesToRadians(FieldRadius)));

    // The corner's angle from the centre; a corner beyond the hemisphere sees all of it.
    PolarCoord corner(0.0, 0.0);
    ReverseProject(GetCornerPoint(), corner);
    VisibleRadius = 90.0 - corner.GetDec().GetDegrees();
}

void Projector::Measure(const TDC& dc, const TRect& rect, double radius)
{
    Rect = rect;
    FieldRadius = FieldRadiusDrawn(radius);
    VisibleRadius = FieldRadius;

    int w = rect.Width();
    int h = rect.Height();
    int px = dc.GetDeviceCaps(LOGPIXELSX);
    int py = dc.GetDeviceCaps(LOGPIXELSY);
    if (px <= 0 || py <= 0) {
        px = py = 1;
    }
    int m = std::min(px, py);
    XAspect = double(px) / m;
    YAspect = double(py) / m;

    // A rectangle turned inside out has no side at all rather than a negative one, which
    // would mirror the picture.
    nSmallerSide = std::max(0, PixelOffset(std::min(w * XAspect, h * YAspect)));
    CenterPoint = TPoint(rect.left + (w >> 1), rect.top + (h >> 1));
    nHalfWidth = w >> 1;
    nHalfHeight = h >> 1;
}

void Projector::SetScale(double scale)
{
    Scale = scale;
    XScale = Scale * XAspect;
    YScale = Scale * YAspect;
}

TPoint Projector::GetCornerPoint() const
{
    return TPoint(CenterPoint.x + Rect.Width() / 2, CenterPoint.y + Rect.Height() / 2);
}

void Projector::ToOffset(const TPoint& point, double& dx, double& dy) const
{
    dy = -(double(point.y) - CenterPoint.y) / YAspect;
    dx = (double(point.x) - CenterPoint.x) / XAspect;
}

TPoint Projector::ToPoint(double dx, double dy) const
{
    return TPoint(AddOffset(CenterPoint.x, PixelOffset(dx)),
                  AddOffset(CenterPoint.y, -PixelOffset(dy)));
}

bool Projector::Project(const PolarCoord& coord, TPoint& point) const
{
    double fromCenter = 90.0 - coord.GetDec().GetDegrees();
    bool visible = fromCenter <= VisibleRadius;
    double r = std::sin(DegreesToRadians(fromCenter)) * Scale;
    double ra = DegreesToRadians(coord.GetRA().GetDegrees());
    point = ToPoint(std::sin(ra) * r * XAspect, std::cos(ra) * r * YAspect);
    return visible;
}

bool Projector::Project(const RectCoord& vector, TPoint& point) const
{
    if (vector.GetZ() < 0.0) {
        return false;
    }
    int dx = PixelOffset(vector.GetX() * XScale);
    int dy = PixelOffset(vector.GetY() * YScale);
    point = TPoint(AddOffset(CenterPoint.x, dx), AddOffset(CenterPoint.y, -dy));
    return std::abs(dx) < nHalfWidth && std::abs(dy) < nHalfHeight;
}

bool Projector::ReverseProject(const TPoint& point, PolarCoord& coord) const
{
    double dx = 0.0, dy = 0.0;
    ToOffset(point, dx, dy);
    double r = std::sqrt(dx * dx + dy * dy);
    if (!(r < Scale)) {
        return false;
    }
    double dec = 90.0 - RadiansToDegrees(std::asin(r / Scale));
    coord = DirectionOfOffset(dx, dy, dec);
    return true;
}

PolarCoord Projector::DirectionOfOffset(double dx, double dy, double dec)
{
    if (dec < 0.0) {
        dec = 0.0;
    }
    double r = std::sqrt(dx * dx + dy * dy);
    if (r < 0.25) {
        return PolarCoord(0.0, 90.0);
    }
    double ra = RadiansToDegrees(std::asin(dx / r));
    if (dy < 0.0) {
        ra = 180.0 - ra;
    }
    if (ra < 0.0) {
        ra += 360.0;
    }
    return PolarCoord(ra, dec);
}

int Projector::GetXExtent(const DegreeAngle& angle) const
{
    return PixelOffset(std::sin(angle.GetRadians()) * Scale * XAspect);
}

int Projector::GetYExtent(const DegreeAngle& angle) const
{
    return PixelOffset(std::sin(angle.GetRadians()) * Scale * YAspect);
}

bool Projector::operator==(const Projector& other) const
{
    return Rect == other.Rect && FieldRadius == other.FieldRadius &&
           VisibleRadius == other.VisibleRadius && XAspect == other.XAspect &&
           YAspect == other.YAspect && Scale == other.Scale && nSmallerSide == other.nSmallerSide &&
           CenterPoint == other.CenterPoint;
}
