#include "projection/ScrollTransformation.h"

#include <algorithm>
#include <cmath>

#include "coords/AngleMath.h"

namespace {

// A sky direction as a unit vector: x towards RA 0, z towards the pole.
struct SkyVector
{
    SkyVector(double x, double y, double z) : X(x), Y(y), Z(z) {}
    explicit SkyVector(const PolarCoord& coord)
    {
        double ra = coord.GetRA().GetRadians();
        double dec = coord.GetDec().GetRadians();
        X = std::cos(dec) * std::cos(ra);
        Y = std::cos(dec) * std::sin(ra);
        Z = std::sin(dec);
    }

    double X, Y, Z;
};

SkyVector Cross(const SkyVector& a, const SkyVector& b)
{
    return SkyVector(a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X);
}

double Dot(const SkyVector& a, const SkyVector& b)
{
    return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}

double Length(const SkyVector& a)
{
    return std::sqrt(Dot(a, a));
}

// The angle between two directions in radians, through the arc tangent, which keeps its
// digits for small and for near-opposite angles alike.
double AngleBetween(const SkyVector& a, const SkyVector& b)
{
    return std::atan2(Length(Cross(a, b)), Dot(a, b));
}

// How far, in pixels, a frame may stray from the step that Rotate assumes and still keep the
// stored vectors. Rounding of the orientation's own rotations stays far below it; any real
// change of the scroll lies far above it.
constexpr double kCarryPixels = 0.05;

} // namespace

ScrollTransformation::ScrollTransformation(const AstroScrollInfo& info,
                                           const Transformation& transformation)
    : bVertical(info.IsVertical()), ScrollInfo(info), View(transformation),
      HorizonModifier(transformation.GetZenith(), PolarCoord(0.0, 90.0))
{
    double step = info.GetAmount().GetRadians();
    SinStep = std::sin(step);
    CosStep = std::cos(step);
    if (!bVertical) {
        PolarCoord centre;
        HorizonModifier.ChangePerspective(transformation.GetCenterOfView(), centre);
        double azimuth = DegreesToRadians(centre.GetRA().GetDegrees() - 180.0);
        double tilt = DegreesToRadians(90.0 - centre.GetDec().GetDegrees());
        SinAzimuth = std::sin(azimuth);
        CosAzimuth = std::cos(azimuth);
        SinTilt = std::sin(tilt);
        CosTilt = std::cos(tilt);
    }
}

RectCoord ScrollTransformation::GetRectCoord(const PolarCoord& coord) const
{
    PolarCoord framed;
    if (bVertical) {
        View.GetModifier().ChangePerspective(coord, framed);
    } else {
        HorizonModifier.ChangePerspective(coord, framed);
    }
    return Transformation::GetRectCoord(framed);
}

bool ScrollTransformation::Rotate(RectCoord& vector) const
{
    if (!bVertical) {
        return true;
    }
    double y = vector.GetY();
    double z = vector.GetZ();
    if (ScrollInfo.GetDirection() == AstroScrollInfo::TOWARDS_ZENITH) {
        vector = RectCoord(vector.GetX(), y * CosStep - z * SinStep, y * SinStep + z * CosStep);
    } else {
        vector = RectCoord(vector.GetX(), y * CosStep + z * SinStep, -y * SinStep + z * CosStep);
    }
    return true;
}

bool ScrollTransformation::Translate(const RectCoord& vector, TPoint& point) const
{
    if (bVertical) {
        return View.Translate(vector, point);
    }
    double x = vector.GetX();
    double y = vector.GetY();
    double z = vector.GetZ();
    // About the zenith by the azimuth, then tilted by the zenith distance.
    double turnedX = x * CosAzimuth - y * SinAzimuth;
    double turnedY = x * SinAzimuth + y * CosAzimuth;
    RectCoord tilted(turnedX, turnedY * CosTilt + z * SinTilt, -turnedY * SinTilt + z * CosTilt);
    return View.Translate(tilted, point);
}

bool ScrollTransformation::Continues(const ScrollTransformation& previousScroll) const
{
    const Transformation& previous = previousScroll.View;
    if (previousScroll.bVertical != bVertical) {
        return false;
    }
    const Projector& proj = View.GetProjector();
    double scale =
        std::max(proj.GetScale() * proj.GetXAspect(), proj.GetScale() * proj.GetYAspect());
    if (!(scale > 0.0) || !std::isfinite(scale)) {
        return false;
    }
    double tolerance = kCarryPixels / scale;

    SkyVector zenith(View.GetZenith());
    if (!(AngleBetween(zenith, SkyVector(previous.GetZenith())) <= tolerance)) {
        return false;
    }
    if (!bVertical) {
        return true;
    }
    // The centre must have gone one step along the great circle through the zenith: no
    // further from that circle's plane than the tolerance, the step between the centres, and
    // the same step off the centre's distance from the zenith.
    SkyVector before(previous.GetCenterOfView());
    SkyVector after(View.GetCenterOfView());
    SkyVector normal = Cross(before, zenith);
    if (!(std::fabs(Dot(normal, after)) <= tolerance * Length(normal))) {
        return false;
    }
    double step = ScrollInfo.GetAmount().GetRadians();
    double towardsZenith = AngleBetween(before, zenith) - AngleBetween(after, zenith);
    if (ScrollInfo.GetDirection() != AstroScrollInfo::TOWARDS_ZENITH) {
        towardsZenith = -towardsZenith;
    }
    return std::fabs(AngleBetween(before, after) - step) <= tolerance &&
           std::fabs(towardsZenith - step) <= tolerance;
}
