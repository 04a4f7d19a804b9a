#include "solar/SolarSystemObject.h"

#include "solar/RectCoordMath.h"
#include "solar/SeriesMath.h"

#include <cmath>

namespace {

// Light time, days per AU.
constexpr double kLightDaysPerAu = 0.00578;
// Velocities are in 1e-4 AU per day.
constexpr double kVelocityUnit = 0.0001;
// Light time for the sub-observer point: AU per day.
constexpr double kAuPerLightDay = 173.14;
// Obliquity of the ecliptic at 2000, degrees, for turning vectors to the equator where the
// date does not matter.
constexpr double kObliquity2000 = 23.43929111;

double FixedObliquityCosine()
{
    static const double value = std::cos(kObliquity2000 * kRadiansPerDegree);
    return value;
}

double FixedObliquitySine()
{
    static const double value = std::sin(kObliquity2000 * kRadiansPerDegree);
    return value;
}

} // namespace

double SolarSystemObject::GetBaseMagnitude()
{
    return 99.0;
}

double SolarSystemObject::GetMagnitudeOf(SolarSystemObject&)
{
    return 99.0;
}

double SolarSystemObject::GetPhaseMagnitude(SolarSystemObject&)
{
    return GetBaseMagnitude();
}

DegreeAngle SolarSystemObject::GetPhaseAngleOf(SolarSystemObject&)
{
    return DegreeAngle(0.0);
}

bool SolarSystemObject::GetPole(const AstroTime&, DegreeAngle&, DegreeAngle&)
{
    return false;
}

DegreeAngle SolarSystemObject::GetPrimeMeridian(const AstroTime&)
{
    return DegreeAngle(0.0);
}

int SolarSystemObject::GetRotationSense()
{
    return 1;
}

PolarCoord SolarSystemObject::GetZenith(const LatLong&)
{
    return PolarCoord(0.0, 90.0);
}

DegreeAngle SolarSystemObject::GetLocalSiderealTime(const LatLong&)
{
    return DegreeAngle(0.0);
}

DegreeAngle SolarSystemObject::GetMidnightSiderealTime(const LatLong&)
{
    return DegreeAngle(0.0);
}

bool SolarSystemObject::Compute()
{
    return false;
}

RectCoord SolarSystemObject::EclipticToEquatorial(const RectCoord& rect)
{
    return rect;
}

bool SolarSystemObject::ApplyNutation(RectCoord&)
{
    return true;
}

bool SolarSystemObject::Update()
{
    if (time == computedTime) {
        return false;
    }
    Compute();
    computedTime = time;
    return true;
}

void SolarSystemObject::SetTime(const AstroTime& at)
{
    time = at;
    Update();
}

const RectCoord& SolarSystemObject::GetHelioPosition()
{
    Update();
    return position;
}

const RectCoord& SolarSystemObject::GetHelioVelocity()
{
    Update();
    return velocity;
}

double SolarSystemObject::GetHelioDistance()
{
    return Length(GetHelioPosition());
}

double SolarSystemObject::GetHelioLongitude()
{
    Update();
    return longitude;
}

double SolarSystemObject::GetHelioLatitude()
{
    Update();
    return latitude;
}

double SolarSystemObject::GetHelioRadius()
{
    Update();
    return radius;
}

double SolarSystemObject::GetDistanceTo(SolarSystemObject& other)
{
    const RectCoord here = GetHelioPosition();
    return Length(Difference(other.GetHelioPosition(), here));
}

SphericalCoord SolarSystemObject::GetApparentPlace(SolarSystemObject& target)
{
    Update();
    const RectCoord origin = GetHelioPosition();
    RectCoord g = Difference(target.GetHelioPosition(), origin);

    // Going back by the light time moves the target against its velocity; the observer's own
    // velocity enters with the opposite sign, which is the aberration. Both in one step.
    const double tau = kLightDaysPerAu * Length(g) * kVelocityUnit;
    const RectCoord relative = Difference(target.GetHelioVelocity(), GetHelioVelocity());
    g = Difference(g, Scaled(relative, tau));

    g = EclipticToEquatorial(g);
    ApplyNutation(g);
    return SphericalCoord(g);
}

SphericalCoord SolarSystemObject::GetGeometricPlace(SolarSystemObject& target)
{
    const RectCoord origin = GetHelioPosition();
    return SphericalCoord(Difference(target.GetHelioPosition(), origin));
}

bool SolarSystemObject::GetSubObserverPoint(SolarSystemObject& observer, DegreeAngle& latitudeOut,
                                            DegreeAngle& longitudeOut)
{
    // The body as it was when the light left it.
    const AstroTime emitted(time.GetMJD() - GetDistanceTo(observer) / kAuPerLightDay, false);
    DegreeAngle poleRA, poleDec;
    if (!GetPole(emitted, poleRA, poleDec)) {
        return false;
    }
    const DegreeAngle meridian = GetPrimeMeridian(emitted);

    OrbitMatrix m;
    BuildOrbitMatrix(DegreeAngle(poleRA.GetDegrees() + 90.0),
                     DegreeAngle(90.0 - poleDec.GetDegrees()), meridian, m);

    // From the observer to the body, turned to the equator.
    const RectCoord ecliptic = Difference(GetHelioPosition(), observer.GetHelioPosition());
    const double ce = FixedObliquityCosine(), se = FixedObliquitySine();
    const double x = ecliptic.GetX();
    const double y = ecliptic.GetY() * ce - ecliptic.GetZ() * se;
    const double z = ecliptic.GetY() * se + ecliptic.GetZ() * ce;

    // The direction to the observer in the body's frame.
    const double a = -(x * m(1, 1) + y * m(2, 1) + z * m(3, 1));
    const double b = -(x * m(1, 2) + y * m(2, 2) + z * m(3, 2));
    const double c = -(x * m(1, 3) + y * m(2, 3) + z * m(3, 3));
    if (a == 0.0 && b == 0.0 && c == 0.0) {
        return false; // the observer stands at the body: no direction
    }

    latitudeOut = DegreeAngle(std::atan(c / std::sqrt(a * a + b * b)) * kDegreesPerRadian);
    double lon = std::atan2(b, a) * kDegreesPerRadian;
    if (GetRotationSense() > 0) {
        lon = -lon;
    }
    lon = std::fmod(lon, 360.0);
    if (lon < 0.0) {
        lon += 360.0;
    }
    longitudeOut = DegreeAngle(lon);
    return true;
}

void SolarSystemObject::BuildOrbitMatrix(const DegreeAngle& node, const DegreeAngle& inclination,
                                         const DegreeAngle& argument, OrbitMatrix& matrix)
{
    const double cw = std::cos(argument.GetDegrees() * kRadiansPerDegree);
    const double sw = std::sin(argument.GetDegrees() * kRadiansPerDegree);
    const double ci = std::cos(inclination.GetDegrees() * kRadiansPerDegree);
    const double si = std::sin(inclination.GetDegrees() * kRadiansPerDegree);
    const double cn = std::cos(node.GetDegrees() * kRadiansPerDegree);
    const double sn = std::sin(node.GetDegrees() * kRadiansPerDegree);
    matrix(1, 1) = cw * cn - sw * ci * sn;
    matrix(1, 2) = -sw * cn - cw * ci * sn;
    matrix(1, 3) = si * sn;
    matrix(2, 1) = sw * ci * cn + cw * sn;
    matrix(2, 2) = cw * ci * cn - sw * sn;
    matrix(2, 3) = -si * cn;
    matrix(3, 1) = sw * si;
    matrix(3, 2) = cw * si;
    matrix(3, 3) = ci;
}

void SolarSystemObject::SetPolarState(double L, double B, double R, RectCoord& positionOut,
                                      const PolarRates* rates, RectCoord* velocityOut)
{
    const double cl = std::cos(L), sl = std::sin(L);
    const double cb = std::cos(B), sb = std::sin(B);
    positionOut = RectCoord(R * cl * cb, R * sl * cb, R * sb);
    if (rates != nullptr && velocityOut != nullptr) {
        const double dL = rates->dL, dB = rates->dB, dR = rates->dR;
        *velocityOut =
            RectCoord(dR * cl * cb - R * dL * sl * cb - R * dB * cl * sb,
                      dR * sl * cb + R * dL * cl * cb - R * dB * sl * sb, dR * sb + R * dB * cb);
    }
}
