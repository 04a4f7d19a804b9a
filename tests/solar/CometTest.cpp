// Comets: the built-in comets at known places and speeds, a whole period back, elements no
// orbit has, and the reading of a record, good and bad.
#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "platform/DebugStream.h"
#include "solar/Comet.h"
#include "solar/CometList.h"
#include "solar/KeplerOrbit.h"
#include "solar/RectCoordMath.h"
#include "solar/SeriesMath.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

AstroTime AtMJD(double mjd)
{
    return AstroTime(mjd, false);
}

const CometElements& BuiltIn(unsigned index)
{
    static const std::vector<ListedComet> comets = BuiltInComets();
    return comets.at(index).Elements;
}
const unsigned kHaleBopp = 0, kHalley = 1;

void ExpectPosition(Comet& comet, double x, double y, double z)
{
    const RectCoord& p = comet.GetHelioPosition();
    EXPECT_NEAR(p.GetX(), x, 5e-6);
    EXPECT_NEAR(p.GetY(), y, 5e-6);
    EXPECT_NEAR(p.GetZ(), z, 5e-6);
}

// A comet "test" of the given q and e with its perihelion at MJD 51544.5, in an orbit that
// mixes all three axes.
std::unique_ptr<Comet> TestComet(double q, double e)
{
    return std::make_unique<Comet>("test", AtMJD(51544.5), q, e, 35.0, 120.0, -40.0);
}

} // namespace

TEST(Comet, BuiltInCometsStandAtTheirPublishedPlaces)
{
    Comet halley(BuiltIn(kHalley));
    halley.SetTime(AtMJD(46380.0));
    ExpectPosition(halley, 0.95362, 1.50030, 0.00581);
    EXPECT_EQ(halley.GetLastSolver(), Comet::Solver::NearParabolic);
    EXPECT_EQ(halley.GetLastRounds(), 5);
    halley.SetTime(AtMJD(49470.0));
    ExpectPosition(halley, -13.93583, 11.87393, -5.79875);
    EXPECT_EQ(halley.GetLastSolver(), Comet::Solver::Elliptic);

    Comet haleBopp(BuiltIn(kHaleBopp));
    haleBopp.SetTime(AtMJD(50569.0));
    ExpectPosition(haleBopp, -0.22552, 1.02510, 0.11661);
    EXPECT_EQ(haleBopp.GetLastSolver(), Comet::Solver::NearParabolic);
}

TEST(Comet, HalleysMeanAnomalyFollowsItsPeriod)
{
    // Halley's orbit, a = q / (1 - e) = 17.939 AU, takes 2 pi a^1.5 / k = 27752 days (76.0
    // years): 2999.56 days after the perihelion of 1986 February 9.44, at MJD 49470, the mean
    // anomaly is 360 * 2999.56 / 27752 = 38.91 degrees, and the distance from the Sun that of
    // the eccentric anomaly it gives. 0.002 AU there is 0.005 degree of mean anomaly.
    const double e = 0.9672725, a = 0.5870992 / (1.0 - e);
    Comet halley(BuiltIn(kHalley));
    halley.SetTime(AtMJD(49470.0));
    const double E = SolveKepler(38.91, e) * kRadiansPerDegree;
    EXPECT_NEAR(halley.GetHelioDistance(), a * (1.0 - e * std::cos(E)), 0.002);
}

TEST(Comet, HalleyStandsAtPerihelionOnePeriodEarlier)
{
    // Unperturbed, Halley passes its perihelion one period of 27752 days before 1986, and is
    // at aphelion, a (1 + e) from the Sun, half a period before. The near-parabolic loop cannot
    // follow the ellipse that far: it must not take over just because the time lies before
    // perihelion.
    Comet halley(BuiltIn(kHalley));
    const double e = 0.9672725, a = 0.5870992 / (1.0 - e);
    const double period = TwoPi * std::pow(a, 1.5) / kGaussianGravitation;
    const AstroTime passage = halley.GetElements().Perihelion;
    halley.SetTime(passage);
    const RectCoord perihelion = halley.GetHelioPosition();
    halley.SetTime(AtMJD(passage.GetMJD() - period));
    EXPECT_LT(Length(Difference(halley.GetHelioPosition(), perihelion)), 1e-6);
    halley.SetTime(AtMJD(passage.GetMJD() - 0.5 * period));
    EXPECT_NEAR(halley.GetHelioDistance(), a * (1.0 + e), 1e-6);
}

TEST(Comet, HalleyPassesPerihelionAtFiftyFourAndAHalfKilometresASecond)
{
    // Vis-viva, k sqrt(2 / q - 1 / a) = 0.031489 AU a day, 54.5 km/s, Halley's published
    // speed at perihelion. The velocity is kept in 1e-4 AU a day, the unit of the series
    // bodies', so that the light time of the apparent place takes the comet's own motion.
    Comet halley(BuiltIn(kHalley));
    halley.SetTime(halley.GetElements().Perihelion);
    EXPECT_NEAR(Length(halley.GetHelioVelocity()), 314.89, 0.01);
}

// Elements no real orbit has overflow the solvers; the comet then rests at the Sun instead of
// carrying infinities or NaNs into the drawing. So does a comet without elements.
TEST(Comet, AbsurdElementsGiveNoInfinities)
{
    Comet empty;
    empty.SetTime(AtMJD(50000.0));
    EXPECT_EQ(empty.GetHelioDistance(), 0.0);
    for (const auto& [q, e] : {std::pair{1.0, 1e200}, {1e-300, 0.5}, {1e300, 0.5}}) {
        auto comet = TestComet(q, e);
        for (double mjd : {-1e6, 40000.0, 51544.5, 60000.0, 1e7}) {
            comet->SetTime(AtMJD(mjd));
            const RectCoord& p = comet->GetHelioPosition();
            const RectCoord& v = comet->GetHelioVelocity();
            EXPECT_TRUE(
                std::isfinite(p.GetX() + p.GetY() + p.GetZ() + v.GetX() + v.GetY() + v.GetZ()))
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

    bool Read(Comet& comet, const std::string& record)
    {
        StringParser parser(record, ",", true);
        return comet.Initialize(2, parser);
    }

    std::vector<std::string> Messages;
    DebugSink Previous;
};

TEST_F(CometRecord, ReadsAllSevenFieldsAndGoesWhereTheBuiltInCometGoes)
{
    Comet comet;
    ASSERT_TRUE(Read(comet, "Hale-Bopp, 1997 april 1.14565555556, 0.9141261, +0.9950884, "
                            "89.42829, 282.47081, 130.59099, ignored"));
    EXPECT_EQ(comet.GetName(), "Hale-Bopp");
    EXPECT_EQ(comet.GetElements().Perihelion.GetDescription1(),
              "April 1, 1997 at 3 hours 29 minutes 44 seconds.");
    comet.SetTime(AtMJD(50569.0));
    ExpectPosition(comet, -0.22552, 1.02510, 0.11661);

    // The limits of real orbits: a parabola, angles beyond a turn, a year BC.
    EXPECT_TRUE(Read(comet, "Parabola, 2000 January 1.5, 0.01, 1, -10, 370, 720"));
    EXPECT_TRUE(Read(comet, "Interstellar, -44 March 15.0, 2.0, 3.36, 44, 308, 209"));
    EXPECT_EQ(comet.GetElements().Perihelion.GetYear(), -44);
    EXPECT_TRUE(Messages.empty());
}

TEST_F(CometRecord, RefusesBadRecordsAndKeepsWhatItHad)
{
    const char* const bad[] = {
        "",
        "Short, 1997 April 1.1, 0.91, 0.99, 89.4, 282.4",
        "Gap, 1997 April 1.1, 0.91, 0.99,, 282.4, 130.5",
        "NegativeE, 1997 April 1.1, 0.91, -0.01, 89.4, 282.4, 130.5",
        "ZeroQ, 1997 April 1.1, 0, 0.99, 89.4, 282.4, 130.5",
        "Text, 1997 April 1.1, near, 0.99, 89.4, 282.4, 130.5",
        "Trailing, 1997 April 1.1, 0.91, 0.99x, 89.4, 282.4, 130.5",
        "NotFinite, 1997 April 1.1, 0.91, 0.99, nan, 282.4, 130.5",
        "Month, 1997 Aprul 1.1, 0.91, 0.99, 89.4, 282.4, 130.5",
        "NoDay, 1997 April, 0.91, 0.99, 89.4, 282.4, 130.5",
        "Day, 1997 April 40, 0.91, 0.99, 89.4, 282.4, 130.5",
        "Year, MCMXCVII April 1.1, 0.91, 0.99, 89.4, 282.4, 130.5",
    };
    for (const char* record : bad) {
        auto comet = TestComet(0.5, 0.3);
        Messages.clear();
        EXPECT_FALSE(Read(*comet, record)) << record;
        EXPECT_EQ(comet->GetName(), "test") << record;
        ASSERT_EQ(Messages.size(), 1u) << record;
        EXPECT_NE(Messages[0].find("Comet3"), std::string::npos) << Messages[0];
        // Still a working body on its old orbit.
        comet->SetTime(AtMJD(51544.5));
        EXPECT_NEAR(comet->GetHelioDistance(), 0.5, 1e-14) << record;
    }
}
