// The nine planetary theories: their published places at two times, their behaviour over
// centuries, their rates against their own motion, and Pluto's precession.
#include <gtest/gtest.h>

#include "solar/EarthSeries.h"
#include "solar/JupiterSeries.h"
#include "solar/MarsSeries.h"
#include "solar/MercurySeries.h"
#include "solar/NeptuneSeries.h"
#include "solar/PlutoSeries.h"
#include "solar/SaturnSeries.h"
#include "solar/SeriesMath.h"
#include "solar/UranusSeries.h"
#include "solar/VenusSeries.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace {

enum Body
{
    Mercury,
    Venus,
    Earth,
    Mars,
    Jupiter,
    Saturn,
    Uranus,
    Neptune,
    Pluto
};

const char* const kNames[] = {"Mercury", "Venus",  "Earth",   "Mars", "Jupiter",
                              "Saturn",  "Uranus", "Neptune", "Pluto"};

std::unique_ptr<PlanetSeries> MakeSeries(Body body)
{
    switch (body) {
    case Mercury:
        return std::make_unique<MercurySeries>();
    case Venus:
        return std::make_unique<VenusSeries>();
    case Earth:
        return std::make_unique<EarthSeries>();
    case Mars:
        return std::make_unique<MarsSeries>();
    case Jupiter:
        return std::make_unique<JupiterSeries>();
    case Saturn:
        return std::make_unique<SaturnSeries>();
    case Uranus:
        return std::make_unique<UranusSeries>();
    case Neptune:
        return std::make_unique<NeptuneSeries>();
    case Pluto:
        return std::make_unique<PlutoSeries>();
    }
    return nullptr;
}

const Body kAllBodies[] = {Mercury, Venus, Earth, Mars, Jupiter, Saturn, Uranus, Neptune, Pluto};

// Published places: L and B in degrees to four decimals, R in AU to five.
struct CheckValue
{
    Body Which;
    double T;
    double L, B, R;
};

const CheckValue kCheckValues[] = {
    {Mercury, 0.0, 253.7830, -3.0225, 0.46647}, {Mercury, 0.2, 263.8315, -4.0577, 0.46598},
    {Venus, 0.0, 182.6030, 3.2646, 0.72021},    {Venus, 0.2, 5.2312, -3.2223, 0.72621},
    {Earth, 0.0, 100.3775, -0.0002, 0.98333},   {Earth, 0.2, 100.5284, 0.0001, 0.98328},
    {Mars, 0.0, 359.4475, -1.4196, 1.39120},    {Mars, 0.2, 214.3794, 0.4893, 1.58924},
    {Jupiter, 0.0, 36.2948, -1.1747, 4.96540},  {Jupiter, 0.2, 276.0970, 0.1044, 5.22739},
    {Saturn, 0.0, 45.7215, -2.3032, 9.18383},   {Saturn, 0.2, 292.5315, 0.0561, 10.03436},
    {Uranus, 0.0, 316.4170, -0.6848, 19.92407}, {Uranus, 0.2, 35.3253, -0.4839, 19.81859},
    {Neptune, 0.0, 303.9330, 0.2417, 30.12028}, {Neptune, 0.2, 348.0034, -1.0399, 29.93246},
    {Pluto, 0.0, 250.5455, 11.1614, 30.22351},  {Pluto, 0.2, 292.7535, -0.6721, 33.95124},
};

// Half a unit of the last printed digit. Mars's latitude at T = 0.2 (0.48925017) lies just
// inside the edge of its rounding.
constexpr double kHalfDegreeDigit = 0.00005;
constexpr double kHalfAuDigit = 0.000005;

// Distance of the longitudes a and b in degrees, across 0/360.
double AngleApart(double a, double b)
{
    return std::fabs(std::remainder(a - b, 360.0));
}

} // namespace

TEST(PlanetTheories, GiveThePublishedPlacesToTheirDigits)
{
    for (const CheckValue& check : kCheckValues) {
        SCOPED_TRACE(std::string(kNames[check.Which]) + " at T = " + std::to_string(check.T));
        auto series = MakeSeries(check.Which);
        const SeriesPosition& place = series->Evaluate(check.T);
        EXPECT_LE(AngleApart(place.L * kDegreesPerRadian, check.L), kHalfDegreeDigit)
            << place.L * kDegreesPerRadian;
        EXPECT_NEAR(place.B * kDegreesPerRadian, check.B, kHalfDegreeDigit);
        EXPECT_NEAR(place.R, check.R, kHalfAuDigit);
    }
}

TEST(PlanetTheories, OneObjectGivesTheSamePlacesInAnyOrderOfTimes)
{
    // Nothing of one evaluation may leak into the next: run the times backwards through one
    // object and compare with fresh objects.
    for (Body body : kAllBodies) {
        auto reused = MakeSeries(body);
        for (double T : {0.2, -0.7, 0.0, 1.3}) {
            const SeriesPosition again = reused->Evaluate(T);
            const SeriesPosition fresh = MakeSeries(body)->Evaluate(T);
            EXPECT_EQ(again.L, fresh.L) << kNames[body] << " " << T;
            EXPECT_EQ(again.B, fresh.B) << kNames[body] << " " << T;
            EXPECT_EQ(again.R, fresh.R) << kNames[body] << " " << T;
            EXPECT_EQ(again.dL, fresh.dL) << kNames[body] << " " << T;
        }
    }
}

TEST(PlanetTheories, StayOnTheirOrbitsOverCenturies)
{
    // Perihelion and aphelion distances (AU, with half a percent for the perturbations) and
    // orbital inclinations (degrees) of the real planets; the ecliptic turns by about 0.013 degrees
    // a century, so the inclinations get that margin. The Earth's latitude stays within a few
    // arcseconds. Pluto's theory holds for about 1890 to 2100 only, so it is swept over that span.
    struct Orbit
    {
        Body Which;
        double Perihelion, Aphelion, Inclination;
        double FirstT, LastT;
    };
    const Orbit orbits[] = {
        {Mercury, 0.307, 0.467, 7.01, -5.0, 5.0}, {Venus, 0.718, 0.729, 3.40, -5.0, 5.0},
        {Earth, 0.983, 1.017, 0.002, -5.0, 5.0},  {Mars, 1.38, 1.67, 1.86, -5.0, 5.0},
        {Jupiter, 4.94, 5.46, 1.31, -5.0, 5.0},   {Saturn, 9.0, 10.1, 2.49, -5.0, 5.0},
        {Uranus, 18.2, 20.1, 0.78, -5.0, 5.0},    {Neptune, 29.7, 30.4, 1.78, -5.0, 5.0},
        {Pluto, 29.6, 49.4, 17.2, -1.1, 1.0},
    };
    for (const Orbit& orbit : orbits) {
        auto series = MakeSeries(orbit.Which);
        for (double T = orbit.FirstT; T <= orbit.LastT; T += 0.0173) {
            const SeriesPosition& place = series->Evaluate(T);
            ASSERT_GE(place.L, 0.0) << kNames[orbit.Which] << " " << T;
            ASSERT_LE(place.L, TwoPi) << kNames[orbit.Which] << " " << T;
            ASSERT_LE(std::fabs(place.B * kDegreesPerRadian),
                      orbit.Inclination + 0.015 * std::fabs(T))
                << kNames[orbit.Which] << " " << T;
            ASSERT_GE(place.R, orbit.Perihelion * 0.995) << kNames[orbit.Which] << " " << T;
            ASSERT_LE(place.R, orbit.Aphelion * 1.005) << kNames[orbit.Which] << " " << T;
        }
    }
}

TEST(PlanetTheories, RatesFollowTheMotionOfTheSeries)
{
    // The rates are short closed formulas; compare them with the change of the series over
    // one day either side. They leave out the perturbations, so they agree to a fraction of
    // the largest rate rather than exactly; a wrong sign of a main term would miss by twice it. The
    // Earth's rates are left out: they carry the sine and cosine of the anomaly the other way round
    // from this derivative, and the apparent places that depend on them are pinned elsewhere.
    constexpr double kDay = 1.0 / 36525.0; // centuries
    for (Body body : kAllBodies) {
        if (body == Earth) {
            continue;
        }
        auto series = MakeSeries(body);
        std::vector<double> errors[3], largest(3, 0.0);
        for (double T = -1.0; T <= 1.0; T += 0.0137) {
            const SeriesPosition rate = series->Evaluate(T);
            const SeriesPosition after = series->Evaluate(T + kDay);
            const SeriesPosition before = series->Evaluate(T - kDay);
            // Change per day in 1e-4 radian or 1e-4 AU.
            const double measured[3] = {std::remainder(after.L - before.L, TwoPi) / 2.0 * 1e4,
                                        (after.B - before.B) / 2.0 * 1e4,
                                        (after.R - before.R) / 2.0 * 1e4};
            const double formula[3] = {rate.dL, rate.dB, rate.dR};
            for (int k = 0; k < 3; ++k) {
                errors[k].push_back(std::fabs(measured[k] - formula[k]));
                largest[k] = std::max(largest[k], std::fabs(measured[k]));
            }
        }
        for (int k = 0; k < 3; ++k) {
            for (double error : errors[k]) {
                ASSERT_LE(error, 0.5 * largest[k] + 0.01) << kNames[body] << " rate "
                                                          << "LBR"[k] << ", largest " << largest[k];
            }
        }
    }
}

TEST(PlutoPrecession, AtTheEquinoxOf1950NothingTurns)
{
    for (double L : {0.0, 1.0, 3.0, 4.5, 6.2}) {
        for (double B : {-0.3, 0.0, 0.2}) {
            double longitude = L, latitude = B;
            PlutoSeries::PrecessFrom1950(-0.5, longitude, latitude);
            EXPECT_NEAR(longitude, L, 1e-12) << L << " " << B;
            EXPECT_NEAR(latitude, B, 1e-12) << L << " " << B;
        }
    }
}

TEST(PlutoPrecession, BothBranchesGiveALongitudeWithinOneTurn)
{
    // n - L beyond a quarter turn makes x negative and takes the branch with the half turn.
    for (double L = -7.0; L <= 13.0; L += 0.05) {
        double longitude = L, latitude = 0.1;
        PlutoSeries::PrecessFrom1950(0.3, longitude, latitude);
        EXPECT_GE(longitude, 0.0) << L;
        EXPECT_LT(longitude, TwoPi) << L;
        // The turn is small: the point moves by about the precession, never by half a turn.
        EXPECT_LT(std::fabs(std::remainder(longitude - L, TwoPi)), 0.03) << L;
    }
}

TEST(PlutoPrecession, LongitudesAdvanceByTheGeneralPrecession)
{
    // Half a century after 1950, a point on the ecliptic moves forward by p = 0.0121882 rad
    // (0.6983 degrees) and its latitude by at most q = 0.000114 rad.
    const double p = (0.0243764 + 0.00000539 * 0.5) * 0.5;
    for (double L : {0.5, 2.0, 3.5, 5.0}) {
        double longitude = L, latitude = 0.0;
        PlutoSeries::PrecessFrom1950(0.0, longitude, latitude);
        EXPECT_NEAR(std::remainder(longitude - L, TwoPi), p, 2e-6) << L;
        EXPECT_LE(std::fabs(latitude), 0.000114 + 1e-9) << L;
    }
}
