// Comets: the built-in comets at known places, the choice of solver by eccentricity and mean
// anomaly on both sides of perihelion, the velocity the reduction reads, and the reading of a
// record, good and bad.
#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "platform/DebugStream.h"
#include "solar/Comet.h"
#include "solar/CometList.h"
#include "solar/KeplerOrbit.h"
#include "solar/RectCoordMath.h"
#include "solar/SeriesMath.h"

#include <cmath>
#include <string>
#include <vector>

namespace {

AstroTime AtMJD(double mjd)
{
    return AstroTime(mjd, false);
}

const CometElements& BuiltIn(const char* name)
{
    static const std::vector<ListedComet> comets = BuiltInComets();
    for (const ListedComet& comet : comets) {
        if (comet.Elements.Name == name) {
            return comet.Elements;
        }
    }
    static const CometElements none;
    ADD_FAILURE() << "no built-in comet " << name;
    return none;
}

void ExpectPosition(Comet& comet, double x, double y, double z, double tolerance)
{
    const RectCoord& p = comet.GetHelioPosition();
    EXPECT_NEAR(p.GetX(), x, tolerance);
    EXPECT_NEAR(p.GetY(), y, tolerance);
    EXPECT_NEAR(p.GetZ(), z, tolerance);
}

// Elements with a perihelion at MJD 51544.5 and an orientation that mixes all three axes.
CometElements Orbit(double q, double e)
{
    CometElements elements;
    elements.Name = "test";
    elements.Perihelion = AtMJD(51544.5);
    elements.PerihelionDistance = q;
    elements.Eccentricity = e;
    elements.Inclination = DegreeAngle(35.0);
    elements.Node = DegreeAngle(120.0);
    elements.Argument = DegreeAngle(-40.0);
    return elements;
}

// Days from perihelion at which the mean anomaly of an orbit reaches `degrees`.
double DaysForMeanAnomaly(double degrees, double q, double e)
{
    const double invA = std::fabs(1.0 - e) / q;
    return degrees * kRadiansPerDegree / (kGaussianGravitation * std::pow(invA, 1.5));
}

// A comet that shows the rates of its record.
class OpenComet : public Comet
{
public:
    using Comet::Comet;
    const PolarRates& Rates() const { return polarRates; }
};

// A body that stands still where it is put: an observer without a velocity of its own.
class StillObserver : public SolarSystemObject
{
public:
    explicit StillObserver(const RectCoord& where) : Where(where) {}
    std::string GetName() override { return "observer"; }

protected:
    bool Compute() override
    {
        position = Where;
        return true;
    }

private:
    RectCoord Where;
};

} // namespace

TEST(Comet, HalleyBeforeAndAfterPerihelion)
{
    Comet halley(BuiltIn("Halley's"));
    halley.SetTime(AtMJD(46380.0));
    ExpectPosition(halley, 0.95362, 1.50030, 0.00581, 5e-6);
    EXPECT_EQ(halley.GetLastSolver(), Comet::Solver::NearParabolic);
    EXPECT_EQ(halley.GetLastRounds(), 5);

    halley.SetTime(AtMJD(49470.0));
    ExpectPosition(halley, -13.93583, 11.87393, -5.79875, 5e-6);
    EXPECT_EQ(halley.GetLastSolver(), Comet::Solver::Elliptic);
}

TEST(Comet, HaleBoppAfterPerihelion)
{
    Comet haleBopp(BuiltIn("Hale-Bopp"));
    haleBopp.SetTime(AtMJD(50569.0));
    ExpectPosition(haleBopp, -0.22552, 1.02510, 0.11661, 5e-6);
    EXPECT_EQ(haleBopp.GetLastSolver(), Comet::Solver::NearParabolic);
}

// One period before its 1986 passage the unperturbed Halley stands at perihelion again. The
// near-parabolic loop cannot follow the ellipse that far back: it must not be chosen merely
// because the time lies before perihelion.
TEST(Comet, OnePeriodBeforePerihelionStandsAtPerihelionAgain)
{
    const CometElements& elements = BuiltIn("Halley's");
    Comet halley(elements);
    const double a = elements.PerihelionDistance / (1.0 - elements.Eccentricity);
    const double period = TwoPi * std::pow(a, 1.5) / kGaussianGravitation; // days
    const double passage = elements.Perihelion.GetMJD();

    halley.SetTime(AtMJD(passage));
    const RectCoord perihelion = halley.GetHelioPosition();
    halley.SetTime(AtMJD(passage - period));
    EXPECT_EQ(halley.GetLastSolver(), Comet::Solver::Elliptic);
    EXPECT_LT(Length(Difference(halley.GetHelioPosition(), perihelion)), 1e-6);

    // Half a period back, near aphelion, the distance is a (1 + e).
    halley.SetTime(AtMJD(passage - 0.5 * period));
    EXPECT_NEAR(halley.GetHelioDistance(), a * (1.0 + elements.Eccentricity), 1e-6);
}

TEST(Comet, SolverFollowsEccentricityAndMeanAnomaly)
{
    struct Case
    {
        double e;
        double meanAnomaly; // degrees
        Comet::Solver expected;
    };
    const Case cases[] = {
        {0.5, 1.0, Comet::Solver::Elliptic},        // far from e = 1
        {0.9, 1.0, Comet::Solver::Elliptic},        // |1 - e| = 0.1 is not below 0.1
        {0.95, 4.9, Comet::Solver::NearParabolic},  //
        {0.95, -4.9, Comet::Solver::NearParabolic}, //
        {0.95, 5.1, Comet::Solver::Elliptic},       //
        {0.95, -5.1, Comet::Solver::Elliptic},      // before perihelion, far out
        {1.05, 5.1, Comet::Solver::Hyperbolic},     //
        {1.05, -5.1, Comet::Solver::Hyperbolic},    //
        {1.05, 4.9, Comet::Solver::NearParabolic},  //
        {1.2, 0.5, Comet::Solver::Hyperbolic},      //
        {1.0, 0.0, Comet::Solver::NearParabolic},   // a parabola has M = 0 at every time
    };
    for (const Case& c : cases) {
        Comet comet(Orbit(0.7, c.e));
        const double days = c.e == 1.0 ? 9000.0 : DaysForMeanAnomaly(c.meanAnomaly, 0.7, c.e);
        comet.SetTime(AtMJD(51544.5 + days));
        EXPECT_EQ(comet.GetLastSolver(), c.expected) << "e " << c.e << " M " << c.meanAnomaly;
        // Whichever solver runs, the comet lies on its orbit: r (1 + e cos nu) = q (1 + e),
        // with nu the angle from the direction of perihelion, the matrix's first column.
        const CometElements elements = Orbit(0.7, c.e);
        OrbitMatrix m;
        SolarSystemObject::BuildOrbitMatrix(elements.Node, elements.Inclination, elements.Argument,
                                            m);
        const RectCoord p = comet.GetHelioPosition();
        const double r = comet.GetHelioDistance();
        const double cosNu = (p.GetX() * m(1, 1) + p.GetY() * m(2, 1) + p.GetZ() * m(3, 1)) / r;
        EXPECT_NEAR(r * (1.0 + c.e * cosNu), 0.7 * (1.0 + c.e), 1e-9) << c.e;
    }
}

// At the time of perihelion every solver gives (q, 0) in the plane, which the orbit matrix
// turns to the direction of the perihelion: the first column of the matrix. (The hyperbolic
// equation stops at a tolerance of 1e-10, so H is nearly but not exactly 0.)
TEST(Comet, AtPerihelionEverySolverStandsAtTheFirstColumnOfTheMatrix)
{
    for (double e : {0.3, 0.97, 1.0, 1.03, 2.5}) {
        const CometElements elements = Orbit(0.45, e);
        Comet comet(elements);
        comet.SetTime(elements.Perihelion);
        OrbitMatrix m;
        SolarSystemObject::BuildOrbitMatrix(elements.Node, elements.Inclination, elements.Argument,
                                            m);
        ExpectPosition(comet, 0.45 * m(1, 1), 0.45 * m(2, 1), 0.45 * m(3, 1), 1e-10);
    }
}

// The velocity is kept in 1e-4 AU per day like the series bodies', and the polar rates agree
// with it: both are the rates of the position and of its longitude, latitude and distance.
TEST(Comet, VelocityAndRatesAreTheRatesOfThePosition)
{
    for (double e : {0.6, 0.99, 1.4}) {
        OpenComet comet(Orbit(0.8, e));
        const double mjd = 51544.5 + 37.0;
        const double h = 0.01; // days
        comet.SetTime(AtMJD(mjd - h));
        const RectCoord before = comet.GetHelioPosition();
        const double lBefore = comet.GetHelioLongitude(), bBefore = comet.GetHelioLatitude();
        const double rBefore = comet.GetHelioRadius();
        comet.SetTime(AtMJD(mjd + h));
        const RectCoord after = comet.GetHelioPosition();
        const double lAfter = comet.GetHelioLongitude(), bAfter = comet.GetHelioLatitude();
        const double rAfter = comet.GetHelioRadius();
        comet.SetTime(AtMJD(mjd));
        const RectCoord rate = Scaled(Difference(after, before), 1e4 / (2.0 * h));
        const RectCoord& v = comet.GetHelioVelocity();
        EXPECT_NEAR(v.GetX(), rate.GetX(), 1e-3) << e;
        EXPECT_NEAR(v.GetY(), rate.GetY(), 1e-3) << e;
        EXPECT_NEAR(v.GetZ(), rate.GetZ(), 1e-3) << e;
        const double dL = std::remainder(lAfter - lBefore, TwoPi) * 1e4 / (2.0 * h);
        EXPECT_NEAR(comet.Rates().dL, dL, 1e-3) << e;
        EXPECT_NEAR(comet.Rates().dB, (bAfter - bBefore) * 1e4 / (2.0 * h), 1e-3) << e;
        EXPECT_NEAR(comet.Rates().dR, (rAfter - rBefore) * 1e4 / (2.0 * h), 1e-3) << e;
    }
}

// Seen from an observer at rest the apparent place is the comet where it stood when its light
// left: the light-time step must use the comet's own motion in the unit the reduction expects.
TEST(Comet, ApparentPlaceFromRestIsWhereTheLightLeft)
{
    const CometElements& elements = BuiltIn("Hale-Bopp");
    Comet comet(elements);
    StillObserver observer(RectCoord(0.3, -0.9, 0.05));
    const double mjd = 50540.0;
    comet.SetTime(AtMJD(mjd));
    observer.SetTime(AtMJD(mjd));
    const SphericalCoord apparent = observer.GetApparentPlace(comet);

    // Light time by iteration, 0.00578 days per AU.
    double lightDays = 0.0;
    Comet earlier(elements);
    RectCoord seen;
    for (int i = 0; i < 4; ++i) {
        earlier.SetTime(AtMJD(mjd - lightDays));
        seen = Difference(earlier.GetHelioPosition(), observer.GetHelioPosition());
        lightDays = 0.00578 * Length(seen);
    }
    const SphericalCoord expected(seen);
    const double arcsec = kArcsecondsPerRadian;
    EXPECT_NEAR(std::remainder(apparent.GetLongitude() - expected.GetLongitude(), TwoPi) * arcsec,
                0.0, 0.05);
    EXPECT_NEAR((apparent.GetLatitude() - expected.GetLatitude()) * arcsec, 0.0, 0.05);
    // And the correction is no trifle: the geometric place lies tens of arcseconds away.
    const SphericalCoord geometric = observer.GetGeometricPlace(comet);
    const double moved =
        std::hypot(std::remainder(geometric.GetLongitude() - expected.GetLongitude(), TwoPi) *
                       std::cos(expected.GetLatitude()),
                   geometric.GetLatitude() - expected.GetLatitude());
    EXPECT_GT(moved * arcsec, 10.0);
}

TEST(Comet, MagnitudesNameAndTheZeroRecordBeforeTheFirstTime)
{
    Comet comet(BuiltIn("Halley's"));
    EXPECT_EQ(comet.GetName(), "Halley's");
    EXPECT_EQ(comet.GetBaseMagnitude(), 99.0);
    StillObserver observer(RectCoord(1.0, 0.0, 0.0));
    EXPECT_EQ(comet.GetPhaseMagnitude(observer), 99.0);
    EXPECT_EQ(comet.GetMagnitudeOf(observer), 0.0);
    // Like every body it is at the Sun until a time is set.
    EXPECT_EQ(comet.GetHelioDistance(), 0.0);
    EXPECT_EQ(comet.GetLastSolver(), Comet::Solver::None);

    // An empty comet has no orbit and stays there.
    Comet empty;
    empty.SetTime(AtMJD(50000.0));
    EXPECT_EQ(empty.GetHelioDistance(), 0.0);
}

TEST(Comet, NewElementsMoveAComputedCometAtOnce)
{
    Comet comet(Orbit(0.5, 0.3));
    comet.SetTime(AtMJD(51544.5));
    EXPECT_NEAR(comet.GetHelioDistance(), 0.5, 1e-14);
    comet.SetElements(Orbit(2.0, 0.3));
    EXPECT_NEAR(comet.GetHelioDistance(), 2.0, 1e-14);
}

// Elements no real orbit has overflow the solvers; the comet then rests at the Sun instead of
// carrying infinities or NaNs into the drawing.
TEST(Comet, AbsurdElementsGiveNoInfinities)
{
    for (const auto& [q, e] : {std::pair{1.0, 1e200}, {1e-300, 0.5}, {1e300, 0.5}}) {
        Comet comet(Orbit(q, e));
        for (double mjd : {-1e6, 40000.0, 51544.5, 60000.0, 1e7}) {
            comet.SetTime(AtMJD(mjd));
            const RectCoord& p = comet.GetHelioPosition();
            const RectCoord& v = comet.GetHelioVelocity();
            EXPECT_TRUE(std::isfinite(p.GetX()) && std::isfinite(p.GetY()) &&
                        std::isfinite(p.GetZ()))
                << q << " " << e << " " << mjd;
            EXPECT_TRUE(std::isfinite(v.GetX()) && std::isfinite(v.GetY()) &&
                        std::isfinite(v.GetZ()))
                << q << " " << e << " " << mjd;
        }
    }
}

class CometRecord : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([this](const char* text) { Messages.emplace_back(text); });
    }
    void TearDown() override { SetDebugSink(Previous); }

    bool Read(Comet& comet, const std::string& record, unsigned index = 2)
    {
        StringParser parser(record, ",", true);
        return comet.Initialize(index, parser);
    }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

TEST_F(CometRecord, ReadsAllSevenFields)
{
    Comet comet;
    ASSERT_TRUE(Read(comet, "Hale-Bopp, 1997 april 1.14565555556, 0.9141261, +0.9950884, "
                            "89.42829, 282.47081, 130.59099, ignored"));
    const CometElements& read = comet.GetElements();
    EXPECT_EQ(read.Name, "Hale-Bopp");
    EXPECT_EQ(read.Perihelion.GetYear(), 1997);
    EXPECT_EQ(read.Perihelion.GetMonth(), 4u);
    EXPECT_EQ(read.Perihelion.GetDay(), 1u);
    EXPECT_EQ(read.Perihelion.GetHour(), 3u);
    EXPECT_EQ(read.Perihelion.GetMinute(), 29u);
    EXPECT_NEAR(read.Perihelion.GetSecond(), 44.64, 1e-4);
    EXPECT_EQ(read.PerihelionDistance, 0.9141261);
    EXPECT_EQ(read.Eccentricity, 0.9950884);
    EXPECT_EQ(read.Inclination.GetDegrees(), 89.42829);
    EXPECT_EQ(read.Node.GetDegrees(), 282.47081);
    EXPECT_EQ(read.Argument.GetDegrees(), 130.59099);
    EXPECT_TRUE(Messages.empty());

    // The record's comet goes where the built-in one goes.
    comet.SetTime(AtMJD(50569.0));
    ExpectPosition(comet, -0.22552, 1.02510, 0.11661, 5e-6);
}

TEST_F(CometRecord, RefusesBadRecordsAndKeepsWhatItHad)
{
    const char* const bad[] = {
        "",
        "Lonely",
        "NoElements, 1997 April 1.1",
        "Short, 1997 April 1.1, 0.91, 0.99, 89.4, 282.4",
        "Gap, 1997 April 1.1, 0.91, 0.99,, 282.4, 130.5",
        "Blank, 1997 April 1.1, 0.91, 0.99,   , 282.4, 130.5",
        "NegativeE, 1997 April 1.1, 0.91, -0.01, 89.4, 282.4, 130.5",
        "ZeroQ, 1997 April 1.1, 0, 0.99, 89.4, 282.4, 130.5",
        "NegativeQ, 1997 April 1.1, -0.91, 0.99, 89.4, 282.4, 130.5",
        "Text, 1997 April 1.1, near, 0.99, 89.4, 282.4, 130.5",
        "Trailing, 1997 April 1.1, 0.91, 0.99x, 89.4, 282.4, 130.5",
        "NotFinite, 1997 April 1.1, 0.91, 0.99, nan, 282.4, 130.5",
        "Huge, 1997 April 1.1, 0.91, 0.99, 1e999, 282.4, 130.5",
        "Month, 1997 Aprul 1.1, 0.91, 0.99, 89.4, 282.4, 130.5",
        "NoDay, 1997 April, 0.91, 0.99, 89.4, 282.4, 130.5",
        "Day, 1997 April 40, 0.91, 0.99, 89.4, 282.4, 130.5",
        "Year, MCMXCVII April 1.1, 0.91, 0.99, 89.4, 282.4, 130.5",
    };
    for (const char* record : bad) {
        Comet comet(Orbit(0.5, 0.3));
        Messages.clear();
        EXPECT_FALSE(Read(comet, record)) << record;
        EXPECT_EQ(comet.GetElements().PerihelionDistance, 0.5) << record;
        EXPECT_EQ(comet.GetElements().Name, "test") << record;
        ASSERT_EQ(Messages.size(), 1u) << record;
        EXPECT_NE(Messages[0].find("Comet3"), std::string::npos) << Messages[0];
        // Still a working body.
        comet.SetTime(AtMJD(51544.5));
        EXPECT_NEAR(comet.GetHelioDistance(), 0.5, 1e-14) << record;
    }
}

TEST_F(CometRecord, AcceptsTheLimitsOfRealOrbits)
{
    Comet comet;
    EXPECT_TRUE(Read(comet, "Circle, 2000 January 1.5, 1.0, 0, 0, 0, 0"));
    EXPECT_TRUE(Read(comet, "Parabola, 2000 January 1.5, 0.01, 1, -10, 370, 720"));
    EXPECT_TRUE(Read(comet, "Interstellar, -44 March 15.0, 2.0, 3.36, 44, 308, 209"));
    EXPECT_EQ(comet.GetElements().Perihelion.GetYear(), -44);
    EXPECT_TRUE(Messages.empty());
}
