// The Moon as a body: its phase, published and at known lunations.
#include <gtest/gtest.h>

#include "solar/Earth200.h"
#include "solar/Moon.h"
#include "solar/Sun200.h"

#include <cmath>

namespace {

// The Earth, the Sun and the Moon at one time, the Earth first as the Moon needs it.
class MoonAndEarth : public ::testing::Test
{
protected:
    void SetTo(double mjd)
    {
        for (SolarSystemObject* body :
             {(SolarSystemObject*)&earth, (SolarSystemObject*)&sun, (SolarSystemObject*)&moon}) {
            body->SetTime(AstroTime(mjd, false));
        }
    }

    Earth200 earth;
    Sun200 sun;
    Moon moon{earth, sun};
};

} // namespace

TEST_F(MoonAndEarth, PhaseAtTheEpochAndAtTheNewAndFullMoonsOfJanuary2000)
{
    // The published phase at T = 0 (the apparent place is pinned by PlanetCatalogueTest).
    SetTo(51544.5);
    EXPECT_NEAR(moon.GetPhase().GetDegrees(), 302.94, 0.005);
    // New Moon 2000 January 6, 18h 14m UT; full Moon January 21, 4h 40m UT, during a total
    // eclipse (USNO phases of the Moon). The phase is geometric and takes UT for dynamical
    // time, which moves it by some 0.02 degree.
    SetTo(51549.0 + (18.0 + 14.0 / 60.0) / 24.0);
    EXPECT_NEAR(std::remainder(moon.GetPhase().GetDegrees(), 360.0), 0.0, 0.1);
    SetTo(51564.0 + (4.0 + 40.0 / 60.0) / 24.0);
    EXPECT_NEAR(moon.GetPhase().GetDegrees(), 180.0, 0.1);
}
