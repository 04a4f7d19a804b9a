#include "coords/DegreeRange.h"

#include <algorithm>
#include <cmath>

#include "host/HostFile.h"

DegreeRange::DegreeRange(bool all) : bFull(all), bEmpty(!all)
{}

DegreeRange::DegreeRange(const DegreeAngle& a, const DegreeAngle& b, int /*unused*/)
    : DegreeRange(a.GetDegrees(), b.GetDegrees())
{}

DegreeRange::DegreeRange(double a, double b, int /*unused*/)
    : Center((a + b) / 2.0), bFull(false), bEmpty(false)
{
    HalfWidth = DegreeAngle(std::fabs(b - Center.GetDegrees()));
}

void DegreeRange::Set(const DegreeAngle& center, const DegreeAngle& halfWidth)
{
    Center = center;
    HalfWidth = halfWidth;
    CommonInit();
}

void DegreeRange::CommonInit()
{
    bFull = false;
    bEmpty = false;
}

void DegreeRange::Copy(const DegreeRange& other)
{
    Center = other.Center;
    HalfWidth = other.HalfWidth;
    bFull = other.bFull;
    bEmpty = other.bEmpty;
}

namespace {

// An angle without its whole turns, exactly: what fmod gives, without its cost for the angles
// already inside a turn, which nearly all are (this runs for every star tested against a view).
double WithinATurn(double degrees)
{
    return std::fabs(degrees) < 360.0 ? degrees : std::fmod(degrees, 360.0);
}

} // namespace

DegreeAngle DegreeRange::GetDifference(const DegreeAngle& a, const DegreeAngle& b)
{
    // Each angle loses its whole turns first (exactly), so that the gap of angles held far
    // outside the normal range keeps the precision of one within it.
    double d = std::fabs(WithinATurn(a.GetDegrees()) - WithinATurn(b.GetDegrees()));
    if (d > 360.0) {
        d -= 360.0;
    }
    return DegreeAngle(d > 180.0 ? 360.0 - d : d);
}

bool DegreeRange::Contains(const DegreeAngle& angle) const
{
    if (bFull) {
        return true;
    }
    if (bEmpty) {
        return false;
    }
    return GetDifference(angle, Center).GetDegrees() <= HalfWidth.GetDegrees();
}

bool DegreeRange::Intersects(const DegreeRange& other) const
{
    if (bFull || other.bFull) {
        return true;
    }
    if (bEmpty || other.bEmpty) {
        return false;
    }
    return GetDifference(Center, other.Center).GetDegrees() <=
           HalfWidth.GetDegrees() + other.HalfWidth.GetDegrees();
}

void DegreeRange::Enclose(DegreeAngle& angle)
{
    // Infinity and NaN name no direction; a range that took one could hold nothing after.
    if (!std::isfinite(angle.GetDegrees()) || Contains(angle)) {
        return;
    }
    if (bEmpty) {
        Center = angle;
        HalfWidth = 0.0;
        bEmpty = false;
        return;
    }

    // Work in a frame without a seam: when centre and angle lie more than half a turn apart,
    // the lower of the two moves up by the whole turns that bring them within half a turn.
    // Both are first taken inside a turn either way (exactly), so that is one turn or two. The
    // move may leave the lower one still the lower (a gap between one and one and a half
    // turns), so the end to keep is chosen only afterwards, by the side of the centre the
    // angle now lies on. Assignment keeps a moved angle as it is: normalising would undo it.
    double center = WithinATurn(Center.GetDegrees());
    double target = WithinATurn(angle.GetDegrees());
    const double gap = std::fabs(target - center);
    if (gap > 180.0) {
        const double turns = std::round(gap / 360.0) * 360.0;
        if (target < center) {
            target += turns;
            angle = target;
        } else {
            center += turns;
        }
    }
    const double end =
        target > center ? center - HalfWidth.GetDegrees() : center + HalfWidth.GetDegrees();

    Center = DegreeAngle((end + target) / 2.0);
    // The halving may round the centre towards either end, so the wider of the two gaps is
    // taken. The kept end is worked out afresh from centre and half width, often a turn up,
    // with a coarser last place than the angles enclosed at that end: they may lie a unit of
    // it beyond the end, and a few such units of slack keep every one of them contained.
    constexpr double kEndRounding = 2.5e-13;
    const double toAngle = GetDifference(Center, angle).GetDegrees();
    const double toEnd = GetDifference(Center, DegreeAngle(end)).GetDegrees();
    HalfWidth = std::max(toAngle, toEnd + kEndRounding);
}

bool DegreeRange::Dump(HostFile& file) const
{
    double center = Center.GetDegrees();
    double halfWidth = HalfWidth.GetDegrees();
    if (bFull) {
        center = 0.0;
        halfWidth = 360.0;
    } else if (bEmpty) {
        center = 0.0;
        halfWidth = 0.0;
    }
    bool centerWritten = file.WriteDouble(center);
    bool halfWidthWritten = file.WriteDouble(halfWidth);
    return centerWritten && halfWidthWritten;
}

bool DegreeRange::Load(HostFile& file)
{
    double center = 0.0, halfWidth = 0.0;
    if (!file.ReadDouble(center) || !file.ReadDouble(halfWidth)) {
        return false;
    }
    Center = center;
    HalfWidth = halfWidth;
    bEmpty = halfWidth == 0.0;
    bFull = halfWidth >= 360.0;
    return true;
}
