#include "projection/PerspectiveModifier.h"

#include <cmath>

#include "coords/AngleMath.h"
#include "platform/DebugStream.h"

namespace {

// An angle brought into 0 - 360 after a turn. One correction is enough for every RA already
// in 0 - 360; a negative RA (which a DegreeAngle may hold) turned by a large angle can still
// lie below 0 after it, and must not, since the tilt tells the two halves of the circle apart
// by RA above 180. Such values, and unnormalised ones, take the remainder.
double TurnedRA(double ra, double degrees)
{
    double v = ra - degrees;
    if (v < 0.0) {
        v += 360.0;
    } else if (v > 360.0) {
        v -= 360.0;
    }
    if (v < 0.0 || v > 360.0) {
        v = std::fmod(v, 360.0);
        if (v < 0.0) {
            v += 360.0;
        }
    }
    return v;
}

// How far past 1 rounding alone takes a sine or cosine made of a few products and a quotient:
// some ulps, well under this.
constexpr double kRoundingExcess = 1e-12;

// Holds a sine or cosine past 1 at +-1. Only an excess beyond rounding is reported: a view
// whose axis passes through a pole meets the rounding one on every draw.
double ClampUnit(double value, const char* message)
{
    if (value > 1.0 || value < -1.0) {
        if (std::fabs(value) > 1.0 + kRoundingExcess) {
            dbstream << message << value << dbendl;
        }
        return value >= 0.0 ? 1.0 : -1.0;
    }
    return value;
}

} // namespace

PerspectiveModifier::PerspectiveModifier(const PolarCoord& centre, const PolarCoord& zenith)
    : CenterOfView(centre), Zenith(zenith)
{
    double tilt = DegreesToRadians(90.0 - centre.GetDec().GetDegrees());
    CosTilt = std::cos(tilt);
    CosNegativeTilt = std::cos(-tilt);
    SinTilt = std::sin(tilt);
    SinNegativeTilt = std::sin(-tilt);

    // With the zenith angle still 0 the zenith lands at this RA; the last turn brings it to 0.
    PolarCoord turned;
    ChangePerspective(zenith, turned);
    ZenithAngle = turned.GetRA().GetDegrees();
}

bool PerspectiveModifier::ChangePerspective(const PolarCoord& in, PolarCoord& out) const
{
    out = in;
    RotateAboutYAxis(out, CenterOfView.GetRA().GetDegrees());
    RotateAboutXAxis(out, CosTilt, SinTilt);
    RotateAboutCenterOfView(out, ZenithAngle);
    return true;
}

bool PerspectiveModifier::ReversePerspective(const PolarCoord& in, PolarCoord& out) const
{
    out = in;
    RotateAboutCenterOfView(out, -ZenithAngle);
    RotateAboutXAxis(out, CosNegativeTilt, SinNegativeTilt);
    RotateAboutYAxis(out, -CenterOfView.GetRA().GetDegrees());
    return true;
}

void PerspectiveModifier::RotateAboutYAxis(PolarCoord& coord, double degrees)
{
    coord.SetRA(DegreeAngle(TurnedRA(coord.GetRA().GetDegrees(), degrees)));
}

void PerspectiveModifier::RotateAboutCenterOfView(PolarCoord& coord, double degrees)
{
    coord.SetRA(DegreeAngle(TurnedRA(coord.GetRA().GetDegrees(), degrees)));
}

void PerspectiveModifier::RotateAboutXAxis(PolarCoord& coord, double cosine, double sine)
{
    double ra = coord.GetRA().GetDegrees();
    double cr = std::cos(DegreesToRadians(ra));
    double dec = DegreesToRadians(coord.GetDec().GetDegrees());
    double cd = std::cos(dec);
    double sd = std::sin(dec);

    double s = ClampUnit(cr * cd * sine + sd * cosine, "Dec asin param exceeds 1: ");
    double newDec = std::asin(s);
    double c =
        ClampUnit((cr * cd * cosine - sd * sine) / std::cos(newDec), "RA acos param exceeds 1: ");
    double newRA = RadiansToDegrees(std::acos(c));
    // The arc cosine only knows 0 - 180; the old RA tells which half the direction is in.
    if (ra > 180.0) {
        newRA = 360.0 - newRA;
    }
    coord = PolarCoord(DegreeAngle(newRA), DegreeAngle(RadiansToDegrees(newDec)));
}
