#include "coords/DegreeRange.h"

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

DegreeAngle DegreeRange::GetDifference(const DegreeAngle& a, const DegreeAngle& b)
{
    double d = std::fabs(a.GetDegrees() - b.GetDegrees());
    // Angles may each lie anywhere from -360 to 360, so the gap can pass a whole turn.
    if (d > 360.0) {
        d = std::fmod(d, 360.0);
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
    if (Contains(angle)) {
        return;
    }
    if (bEmpty) {
        Center = angle;
        HalfWidth = 0.0;
        bEmpty = false;
        return;
    }

    // Work in a frame without a seam: the lower of centre and angle moves up by whole turns
    // (one turn for angles in their normal range) until the two lie within half a turn.
    // Assignment keeps those values as they are, since normalising would undo the move.
    double center = Center.GetDegrees();
    double target = angle.GetDegrees();
    double end = 0.0;
    double d = std::fabs(target - center);
    if (d > 180.0) {
        double turns = std::round(d / 360.0) * 360.0;
        if (target >= center) {
            center += turns;
            end = center + HalfWidth.GetDegrees();
        } else {
            target += turns;
            angle = target;
            end = center - HalfWidth.GetDegrees();
        }
    } else if (target > center) {
        end = center - HalfWidth.GetDegrees();
    } else {
        end = center + HalfWidth.GetDegrees();
    }

    Center = DegreeAngle((end + target) / 2.0);
    // The halving may round the centre towards either end: the wider of the two gaps holds
    // both ends, so every angle enclosed before stays contained.
    const DegreeAngle toAngle = GetDifference(Center, angle);
    const DegreeAngle toEnd = GetDifference(Center, DegreeAngle(end));
    HalfWidth = toEnd > toAngle ? toEnd : toAngle;
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
