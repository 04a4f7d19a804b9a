// The nine planetary theories against the places published with them, Pluto's precession from
// the equinox of 1950 on both branches of its arc tangent included.
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

#include <array>
#include <cmath>
#include <memory>
#include <string>

namespace {

template <class Series>
std::unique_ptr<PlanetSeries> Make()
{
    return std::make_unique<Series>();
}

// Each theory with the places printed with it: L and B in degrees to four decimals, R in AU to
// five, at T = 0 and T = 0.2.
struct Theory
{
    const char* Name;
    std::unique_ptr<PlanetSeries> (*MakeSeries)();
    std::array<double, 3> At[2];
};

const Theory kTheories[] = {
    {"Mercury", Make<MercurySeries>, {{253.7830, -3.0225, 0.46647}, {263.8315, -4.0577, 0.46598}}},
    {"Venus", Make<VenusSeries>, {{182.6030, 3.2646, 0.72021}, {5.2312, -3.2223, 0.72621}}},
    {"Earth", Make<EarthSeries>, {{100.3775, -0.0002, 0.98333}, {100.5284, 0.0001, 0.98328}}},
    {"Mars", Make<MarsSeries>, {{359.4475, -1.4196, 1.39120}, {214.3794, 0.4893, 1.58924}}},
    {"Jupiter", Make<JupiterSeries>, {{36.2948, -1.1747, 4.96540}, {276.0970, 0.1044, 5.22739}}},
    {"Saturn", Make<SaturnSeries>, {{45.7215, -2.3032, 9.18383}, {292.5315, 0.0561, 10.03436}}},
    {"Uranus", Make<UranusSeries>, {{316.4170, -0.6848, 19.92407}, {35.3253, -0.4839, 19.81859}}},
    {"Neptune", Make<NeptuneSeries>, {{303.9330, 0.2417, 30.12028}, {348.0034, -1.0399, 29.93246}}},
    {"Pluto", Make<PlutoSeries>, {{250.5455, 11.1614, 30.22351}, {292.7535, -0.6721, 33.95124}}},
};

} // namespace

TEST(PlanetTheories, GiveThePublishedPlacesToTheirDigits)
{
    // Half a unit of the last printed digit either way. One object takes T = 0.2 and then
    // T = 0, so that anything one evaluation left behind would spoil the second.
    for (const Theory& theory : kTheories) {
        auto series = theory.MakeSeries();
        for (int k : {1, 0}) {
            SCOPED_TRACE(std::string(theory.Name) + (k == 0 ? " at T = 0" : " at T = 0.2"));
            const SeriesPosition& place = series->Evaluate(0.2 * k);
            EXPECT_NEAR(std::remainder(place.L * kDegreesPerRadian - theory.At[k][0], 360.0), 0.0,
                        0.00005);
            EXPECT_NEAR(place.B * kDegreesPerRadian, theory.At[k][1], 0.00005);
            EXPECT_NEAR(place.R, theory.At[k][2], 0.000005);
        }
    }
}
