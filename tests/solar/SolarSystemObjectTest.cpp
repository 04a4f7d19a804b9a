// The frame every body shares: lazy computing, the rectangular state, magnitudes and phase
// angles, the apparent place from an origin that is not the Earth, the orbit matrix and the
// point facing an observer.
#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/Planet.h"
#include "solar/SeriesMath.h"
#include "solar/Sun200.h"

#include <cmath>

namespace {

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

// A body that stands where the test puts it and counts its computations.
class FixedBody : public Planet
{
public:
    FixedBody(double x, double y, double z, double base = 5.0) : Where(x, y, z), Base(base) {}
    std::string GetName() override { return "fixed"; }
    double GetBaseMagnitude() override { return Base; }
    int Computations = 0;

protected:
    bool Compute() override
    {
        ++Computations;
        position = Where;
        return true;
    }

private:
    RectCoord Where;
    double Base;
};

} // namespace

TEST(SolarSystemObject, ComputesOncePerTimeHoweverOftenAsked)
{
    FixedBody body(1.0, 2.0, 3.0);
    // A new body counts as computed: its record is zero until a time is set.
    EXPECT_EQ(body.GetHelioDistance(), 0.0);
    EXPECT_EQ(body.Computations, 0);

    body.SetTime(AtCenturies(0.1));
    body.SetTime(AtCenturies(0.1));
    body.GetHelioPosition();
    body.GetHelioVelocity();
    body.GetHelioDistance();
    EXPECT_EQ(body.Computations, 1);
    EXPECT_DOUBLE_EQ(body.GetHelioDistance(), std::sqrt(14.0));

    body.SetTime(AtCenturies(0.2));
    EXPECT_EQ(body.Computations, 2);
}

TEST(SolarSystemObject, PolarStateGivesPositionAndTheVelocityOfItsRates)
{
    const double L = 2.1, B = -0.3, R = 1.7;
    SolarSystemObject::PolarRates rates;
    rates.dL = 120.0;
    rates.dB = -8.0;
    rates.dR = 3.5;
    RectCoord position, velocity;
    SolarSystemObject::SetPolarState(L, B, R, position, &rates, &velocity);
    EXPECT_NEAR(position.GetX(), R * std::cos(L) * std::cos(B), 1e-15);
    EXPECT_NEAR(position.GetY(), R * std::sin(L) * std::cos(B), 1e-15);
    EXPECT_NEAR(position.GetZ(), R * std::sin(B), 1e-15);

    // The velocity is the change of position when L, B and R move by their rates.
    const double h = 1e-6;
    RectCoord after, before;
    SolarSystemObject::SetPolarState(L + rates.dL * h, B + rates.dB * h, R + rates.dR * h, after,
                                     nullptr, nullptr);
    SolarSystemObject::SetPolarState(L - rates.dL * h, B - rates.dB * h, R - rates.dR * h, before,
                                     nullptr, nullptr);
    EXPECT_NEAR(velocity.GetX(), (after.GetX() - before.GetX()) / (2.0 * h), 1e-4);
    EXPECT_NEAR(velocity.GetY(), (after.GetY() - before.GetY()) / (2.0 * h), 1e-4);
    EXPECT_NEAR(velocity.GetZ(), (after.GetZ() - before.GetZ()) / (2.0 * h), 1e-4);

    // Without rates only the position is written.
    RectCoord untouched(7.0, 8.0, 9.0);
    SolarSystemObject::SetPolarState(L, B, R, position, nullptr, &untouched);
    EXPECT_EQ(untouched.GetX(), 7.0);
}

TEST(SolarSystemObject, MagnitudeGrowsWithBothDistances)
{
    FixedBody observer(0.0, 1.0, 0.0);
    FixedBody target(2.0, 0.0, 0.0, 5.0);
    observer.SetTime(AtCenturies(0.0));
    target.SetTime(AtCenturies(0.0));
    // r = 2, d = sqrt(5); FixedBody has no phase law.
    EXPECT_NEAR(observer.GetMagnitudeOf(target), 5.0 + 5.0 * std::log10(2.0 * std::sqrt(5.0)),
                1e-12);
}

TEST(SolarSystemObject, MagnitudeAtAProductOfDistancesOfOneMillionthHasNoLogarithm)
{
    // r = 1e-6 and d = 1 exactly: the branch without the logarithm.
    FixedBody observer(1e-6, 1.0, 0.0);
    FixedBody target(1e-6, 0.0, 0.0, 4.0);
    observer.SetTime(AtCenturies(0.0));
    target.SetTime(AtCenturies(0.0));
    ASSERT_EQ(target.GetHelioDistance() * observer.GetDistanceTo(target), 1e-6);
    EXPECT_EQ(observer.GetMagnitudeOf(target), 4.0);

    FixedBody further(2e-6, 0.0, 0.0, 4.0);
    further.SetTime(AtCenturies(0.0));
    EXPECT_LT(observer.GetMagnitudeOf(further), 4.0 - 25.0);
}

TEST(SolarSystemObject, SunSeenFromTheEarthHasItsBaseMagnitude)
{
    Earth200 earth;
    Sun200 sun;
    earth.SetTime(AtCenturies(0.3));
    sun.SetTime(AtCenturies(0.3));
    EXPECT_EQ(earth.GetMagnitudeOf(sun), -27.0);
}

TEST(SolarSystemObject, PhaseAngleIsTheAngleAtTheTarget)
{
    FixedBody observer(1.0, 1.0, 0.0);
    FixedBody target(1.0, 0.0, 0.0);
    FixedBody opposite(-2.0, 0.0, 0.0);
    for (SolarSystemObject* body : {(SolarSystemObject*)&observer, (SolarSystemObject*)&target,
                                    (SolarSystemObject*)&opposite}) {
        body->SetTime(AtCenturies(0.0));
    }
    EXPECT_NEAR(observer.GetPhaseAngleOf(target).GetDegrees(), 90.0, 1e-12);
    // Behind the Sun as seen from the observer: almost fully lit.
    EXPECT_NEAR(observer.GetPhaseAngleOf(opposite).GetDegrees(), std::atan(1.0 / 3.0) * 180 / Pi,
                1e-12);
    // Straight between the Sun and the target: fully lit, no NaN from rounding.
    FixedBody inner(0.5, 0.0, 0.0);
    inner.SetTime(AtCenturies(0.0));
    EXPECT_NEAR(inner.GetPhaseAngleOf(target).GetDegrees(), 0.0, 1e-6);
    // A target at the Sun has no phase angle.
    Sun200 sun;
    sun.SetTime(AtCenturies(0.0));
    EXPECT_EQ(observer.GetPhaseAngleOf(sun).GetDegrees(), 0.0);
}

TEST(SolarSystemObject, FromAnotherOriginPlacesStayEclipticAndUnnutated)
{
    // Seen from Mars the apparent place of Jupiter differs from the geometric ecliptic place
    // only by light time and aberration, well under an arcminute; seen from the Earth the
    // apparent place is equatorial and differs from the ecliptic one by degrees.
    Mars200 mars;
    Earth200 earth;
    Jupiter200 jupiter;
    for (SolarSystemObject* body :
         {(SolarSystemObject*)&mars, (SolarSystemObject*)&earth, (SolarSystemObject*)&jupiter}) {
        body->SetTime(AtCenturies(0.0));
    }
    const SphericalCoord apparent = mars.GetApparentPlace(jupiter);
    const SphericalCoord geometric = mars.GetGeometricPlace(jupiter);
    const double arcminute = 1.0 / 60.0 * kRadiansPerDegree;
    EXPECT_LT(std::fabs(std::remainder(apparent.GetLongitude() - geometric.GetLongitude(), TwoPi)),
              arcminute);
    EXPECT_LT(std::fabs(apparent.GetLatitude() - geometric.GetLatitude()), arcminute);
    EXPECT_GT(std::fabs(apparent.GetLongitude() - geometric.GetLongitude()), 0.0);

    const SphericalCoord fromEarth = earth.GetApparentPlace(jupiter);
    const SphericalCoord eclipticFromEarth = earth.GetGeometricPlace(jupiter);
    EXPECT_GT(std::fabs(fromEarth.GetLatitude() - eclipticFromEarth.GetLatitude()),
              5.0 * kRadiansPerDegree);
}

TEST(OrbitMatrix, IsTheTurnByArgumentThenInclinationThenNode)
{
    // The matrix carries a vector of the orbit's plane (x towards the node, z the pole) into
    // the reference frame: turn by the argument about z, tilt by the inclination about x,
    // turn by the node about z.
    const double node = 40.0, inclination = 25.0, argument = 110.0;
    OrbitMatrix m;
    SolarSystemObject::BuildOrbitMatrix(DegreeAngle(node), DegreeAngle(inclination),
                                        DegreeAngle(argument), m);
    auto turn = [](double v[3], int axis, double degrees) {
        const double c = std::cos(degrees * kRadiansPerDegree);
        const double s = std::sin(degrees * kRadiansPerDegree);
        const int a = (axis + 1) % 3, b = (axis + 2) % 3;
        const double va = c * v[a] - s * v[b];
        const double vb = s * v[a] + c * v[b];
        v[a] = va;
        v[b] = vb;
    };
    for (int column = 1; column <= 3; ++column) {
        double v[3] = {0.0, 0.0, 0.0};
        v[column - 1] = 1.0;
        turn(v, 2, argument);
        turn(v, 0, inclination);
        turn(v, 2, node);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_NEAR(m(row, column), v[row - 1], 1e-15) << row << "," << column;
        }
    }
}

TEST(SolarSystemObject, BodiesWithoutAPoleHaveNoSubObserverPoint)
{
    Earth200 earth;
    Mars200 mars;
    Sun200 sun;
    earth.SetTime(AtCenturies(0.0));
    mars.SetTime(AtCenturies(0.0));
    sun.SetTime(AtCenturies(0.0));
    DegreeAngle latitude(12.5), longitude(34.5);
    EXPECT_FALSE(mars.GetSubObserverPoint(earth, latitude, longitude));
    EXPECT_FALSE(sun.GetSubObserverPoint(earth, latitude, longitude));
    EXPECT_FALSE(earth.GetSubObserverPoint(sun, latitude, longitude));
    EXPECT_EQ(latitude.GetDegrees(), 12.5);
    EXPECT_EQ(longitude.GetDegrees(), 34.5);
}
