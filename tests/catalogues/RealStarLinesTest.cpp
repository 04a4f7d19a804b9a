// Lines of the real star catalogues, as tools/starfiles/gather_stars.py writes them, read the
// way a text catalogue is loaded: line by line from a file through Star::Initialize.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "catalogues/Star.h"
#include "catalogues/TextFile.h"
#include "coords/ScratchFile.h"
#include "host/HostFile.h"

namespace {

// Four lines of bright.txt (Yale Bright Star Catalogue, J2000) and Sirius once more from
// stars.txt (Hipparcos through d3-celestial): SAO, V, RA h m s, Dec sign d m s, HR, HD, HIP,
// name.
const char* const kLines[] = {
    "151881,-1.46,6,45,8.900,-,16,42,58.00,2491,48915,32349,Sirius",
    "308,2.02,2,31,48.700,+,89,15,51.00,424,8890,11767,Polaris",
    "113271,0.50,5,55,10.300,+,7,24,25.00,2061,39801,27989,Betelgeuse",
    "67174,0.03,18,36,56.300,+,38,47,1.00,7001,172167,91262,Vega",
    "151881,-1.44,6,45,8.928,-,16,42,57.96,2491,48915,32349,Sirius",
};

struct Expected
{
    std::uint32_t SAONumber;
    double Magnitude;
    double RA;
    double Dec;
    const char* Name;
};

// J2000 positions of the four stars from SIMBAD (ICRS), independent of both sources; V
// magnitudes as each source gives them. The catalogues round RA to 0.1 s of time and Dec to
// 1", which near the pole is a large step in RA but a small one on the sky: positions are
// compared by their separation on the sphere, to 0.001 degrees (3.6").
const Expected kExpected[] = {
    {151881, -1.46, 101.287155, -16.716116, "Sirius"}, {308, 2.02, 37.954561, 89.264109, "Polaris"},
    {113271, 0.50, 88.792939, 7.407064, "Betelgeuse"}, {67174, 0.03, 279.234735, 38.783689, "Vega"},
    {151881, -1.44, 101.287155, -16.716116, "Sirius"},
};
constexpr double kPositionTolerance = 0.001;

// The angle between two directions, in degrees, by the haversine formula.
double SeparationDegrees(const PolarCoord& a, double ra, double dec)
{
    const double toRadians = std::acos(-1.0) / 180.0;
    double dRa = (a.GetRA().GetDegrees() - ra) * toRadians;
    double dDec = (a.GetDec().GetDegrees() - dec) * toRadians;
    double h = std::pow(std::sin(dDec / 2), 2) + std::cos(a.GetDec().GetDegrees() * toRadians) *
                                                     std::cos(dec * toRadians) *
                                                     std::pow(std::sin(dRa / 2), 2);
    return 2 * std::asin(std::sqrt(h)) / toRadians;
}

class RealStarLines : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::ofstream out(Catalogue.GetPath());
        for (const char* line : kLines) {
            out << line << '\n';
        }
    }

    ScratchFile Catalogue;
};

} // namespace

TEST_F(RealStarLines, ReadBackWithTheirCatalogueValues)
{
    TextFile file;
    ASSERT_TRUE(file.OpenForReading(Catalogue.GetPath().c_str()));
    std::size_t count = 0;
    while (const char* line = file.GetNextLine()) {
        ASSERT_LT(count, std::size(kExpected));
        const Expected& expected = kExpected[count];
        Star star;
        ASSERT_TRUE(star.Initialize(line)) << "line " << file.GetLineNumber();
        EXPECT_EQ(star.GetSAONumber(), expected.SAONumber);
        EXPECT_DOUBLE_EQ(star.GetMagnitude(), expected.Magnitude);
        EXPECT_LT(SeparationDegrees(star.GetPosition(), expected.RA, expected.Dec),
                  kPositionTolerance)
            << expected.Name << ": " << star.GetPosition().GetDescription();
        ASSERT_TRUE(star.HasName());
        EXPECT_EQ(*star.GetName(), expected.Name);
        EXPECT_EQ(star.GetUid(), 0x70000000u + 1000u + expected.SAONumber);
        ++count;
    }
    EXPECT_EQ(count, std::size(kExpected));
}
