// MapWindow: questions about the sky at the map's place and time. Is an object up, can it
// rise, when does a direction cross the horizon, when does the night begin.
#include <array>
#include <cmath>

#include "catalogues/AstroObject.h"
#include "coords/AngleMath.h"
#include "projection/PerspectiveModifier.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/MapWindow.h"
#include "solar/SolarSystemObject.h"
#include "time/TimeStep.h"

namespace {

// In the frame of a PerspectiveModifier centred on the zenith with the pole above it, Dec is
// the altitude.
const PolarCoord kLocalPole(0.0, 90.0);

double Altitude(const PolarCoord& zenith, const PolarCoord& direction)
{
    const PerspectiveModifier local(zenith, kLocalPole);
    PolarCoord out;
    local.ChangePerspective(direction, out);
    return out.GetDec().GetDegrees();
}

// A candidate crossing is taken when the object's vector and the zenith's stand at right
// angles within this much of the squared distance 2 between them.
constexpr double kRightAngleTolerance = 0.1;
// A moving object counts as risen at an estimate when its altitude there is above this, in
// degrees; and it is followed through at most this many estimates.
constexpr double kRisenAltitude = -0.1;
constexpr int kRiseRounds = 3;
// Rounding may push the sine of a crossing just past 1 when the object only grazes the
// horizon.
constexpr double kSineSlack = 1e-12;
// Below this the quadratic has no leading term: an object at a pole of the sky, or an
// observer at a pole of the Earth, where nothing rises or sets.
constexpr double kDegenerate = 1e-12;

} // namespace

bool MapWindow::ObjectIsUp(const AstroObject& o) const
{
    return Altitude(pOrientation->GetZenith(), o.GetPosition()) > 0.0;
}

bool MapWindow::ObjectCanRise(const AstroObject& o) const
{
    // The zenith's Dec is the latitude, so this is the altitude at the upper transit above 0.
    const DegreeAngle fromZenith(o.GetPosition().GetDec().GetDegrees() -
                                 pOrientation->GetZenith().GetDec().GetDegrees());
    return std::fabs(fromZenith.GetDegrees()) < 90.0;
}

AstroTime MapWindow::GetHorizonTime(const PolarCoord& p, HorizonTypes type) const
{
    const RotatingOrientationInfo* ground = GetRotatingOrientation();
    SolarSystemObject* origin = Collector.GetOrigin();
    if (!ground || !origin) {
        return Time;
    }

    // On the sphere fixed to the Earth, with longitudes positive west as in LatLong: find the
    // longitude A of the point under `p` at the moment `p` lies on the horizon, where
    // cos(dec) cos(lat) cos(A - lon) + sin(dec) sin(lat) = 0. Squared, that is a quadratic in
    // sin A, whose roots bring spurious answers that the test of step 5 sorts out.
    const double lat = ground->GetLocation().GetLatitude().GetRadians();
    const double lon = ground->GetLocation().GetLongitude().GetRadians();
    const double dec = p.GetDec().GetRadians();
    const double cd = std::cos(dec);
    const double sd = std::sin(dec);
    const double cl = std::cos(lat);
    const double sl = std::sin(lat);
    const double co = std::cos(lon);
    const double so = std::sin(lon);

    const double a = cd * cd * cl * cl;
    const double b = 2.0 * sl * sd * so * cl * cd;
    const double c = sl * sl * sd * sd - co * co * cl * cl * cd * cd;
    const double discriminant = b * b - 4.0 * a * c;
    if (a < kDegenerate || discriminant < 0.0) {
        return Time;
    }
    const double root = std::sqrt(discriminant);

    std::array<double, 4> candidates{};
    int count = 0;
    for (double x : {(-b + root) / (2.0 * a), (-b - root) / (2.0 * a)}) {
        if (std::fabs(x) > 1.0 + kSineSlack) {
            continue;
        }
        const double s = std::asin(std::fmax(-1.0, std::fmin(1.0, x)));
        candidates[count++] = s;
        candidates[count++] = pi - s;
    }

    const double zx = co * cl;
    const double zy = so * cl;
    const double zz = sl;
    bool found = false;
    double crossing = 0.0;
    for (int i = 0; i < count && !found; ++i) {
        double A = candidates[i];
        if (A < 0.0) {
            A += twoPi;
        }
        double d = lon - A;
        if (std::fabs(d) > pi) {
            d = d >= 0.0 ? -(twoPi - std::fabs(d)) : twoPi - std::fabs(d);
        }
        // A rising object lies east of the observer, at a smaller west-positive longitude; a
        // setting one west of it.
        if ((type == Rising && d < 0.0) || (type == Setting && d > 0.0)) {
            continue;
        }
        const double vx = std::cos(A) * cd - zx;
        const double vy = std::sin(A) * cd - zy;
        const double vz = sd - zz;
        if (std::fabs(vx * vx + vy * vy + vz * vz - 2.0) <= kRightAngleTolerance) {
            crossing = A;
            found = true;
        }
    }
    if (!found) {
        return Time;
    }

    // The object stands over longitude A when the local sidereal time there equals its RA.
    // Counted from the midnight of the origin's day, in sidereal hours taken as solar hours.
    const DegreeAngle sidereal = origin->GetMidnightSiderealTime(
        LatLong(ground->GetLocation().GetLatitude().GetDegrees(), RadiansToDegrees(crossing)));
    double hours = std::fmod(p.GetRA().GetDegrees() / 15.0 - sidereal.GetDegrees() / 15.0, 24.0);
    if (hours < 0.0) {
        hours += 24.0;
    }
    AstroTime t = Time;
    t.SetFromFloatHour(hours, false);
    if (t.GetMJD() < Time.GetMJD()) {
        t += TimeStep(TimeStep::DAYS, 1);
    }
    return t;
}

AstroTime MapWindow::GetRiseTime(const PolarCoord& p) const
{
    return GetHorizonTime(p, Rising);
}

AstroTime MapWindow::GetSetTime(const PolarCoord& p) const
{
    return GetHorizonTime(p, Setting);
}

AstroTime MapWindow::GetRiseTime(AstroObject& o)
{
    if (!o.IsTimeDependent()) {
        return GetRiseTime(o.GetPosition());
    }
    const RotatingOrientationInfo* ground = GetRotatingOrientation();
    SolarSystemObject* origin = Collector.GetOrigin();
    if (!ground || !origin) {
        return Time;
    }
    // A body moves while the sky turns: each estimate is made again from where the body
    // stands at the last one, until it is found up there.
    AstroTime t = Time;
    for (int round = 0; round < kRiseRounds; ++round) {
        t = GetRiseTime(o.GetPosition());
        origin->SetTime(t);
        o.SetTime(t);
        if (Altitude(origin->GetZenith(ground->GetLocation()), o.GetPosition()) > kRisenAltitude) {
            break;
        }
    }
    origin->SetTime(Time);
    o.SetTime(Time);
    return t;
}

AstroTime MapWindow::GetNearestDarkTime()
{
    const PlanetView* sun = Collector.GetPlanetCatalogue().GetView(PlanetCatalogue::kSunPlace);
    if (!sun || !ObjectIsUp(*sun)) {
        return Time;
    }
    // Where the Sun's Dec passes 90 less the latitude it stays up all day, as in a polar
    // summer.
    const double sunDec = sun->GetPosition().GetDec().GetDegrees();
    const double limit = 90.0 - std::fabs(pOrientation->GetZenith().GetDec().GetDegrees());
    if (std::fabs(sunDec) > limit || !ObjectCanRise(*sun)) {
        return Time;
    }
    return GetSetTime(sun->GetPosition());
}

void MapWindow::ShowObjectRising(AstroObject& o)
{
    // Ten minutes after it rises the object stands clear of the horizon. The centre waits for
    // the new time, as a view from the ground turns with it.
    AstroTime t = GetRiseTime(o);
    t += TimeStep(TimeStep::MINUTES, 10);
    SetTime(t);
    ChangeCenterOfView(o.GetPosition());
}
