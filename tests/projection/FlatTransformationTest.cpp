#include <gtest/gtest.h>

#include <cmath>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/FlatTransformation.h"

namespace {

double Separation(const PolarCoord& a, const PolarCoord& b)
{
    double ra1 = a.GetRA().GetRadians(), dec1 = a.GetDec().GetRadians();
    double ra2 = b.GetRA().GetRadians(), dec2 = b.GetDec().GetRadians();
    double cosine =
        std::sin(dec1) * std::sin(dec2) + std::cos(dec1) * std::cos(dec2) * std::cos(ra1 - ra2);
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, cosine))));
}

} // namespace

// As the direction map uses it: the zenith of a place at the centre, the pole straight up,
// the whole sky above the horizon on a disc of 100 pixels.
TEST(FlatTransformationTest, HorizonIsTheRimAndThePoleStandsAtItsAltitude)
{
    TestDevice screen;
    const PolarCoord zenith(40.0, 52.0);
    FlatTransformation map(screen.DC(), TRect(0, 0, 200, 200), zenith, 90.0, PolarCoord(0, 90));
    TPoint point;
    EXPECT_TRUE(map.Translate(zenith, point));
    EXPECT_EQ(point, TPoint(100, 100));
    // The pole, 38 degrees from the zenith, straight above the centre.
    EXPECT_TRUE(map.Translate(PolarCoord(0.0, 90.0), point));
    EXPECT_NEAR(point.x, 100, 1);
    EXPECT_NEAR(100 - point.y, 38.0 / 90.0 * 100.0, 1.0);
    // South on the horizon lies on the rim, 30 degrees below it beyond.
    map.Translate(PolarCoord(40.0, 52.0 - 90.0), point);
    EXPECT_NEAR(point.y - 100, 100, 1);
    EXPECT_FALSE(map.Translate(PolarCoord(40.0, 52.0 - 120.0), point));
    EXPECT_NEAR(point.y - 100, 133, 1);

    PolarCoord coord(1, 2);
    EXPECT_FALSE(map.ReverseTranslate(TPoint(200, 100), coord));
    EXPECT_EQ(coord, PolarCoord(1, 2));
}

TEST(FlatTransformationTest, PointsGoBackToTheSkyWithinAPixel)
{
    SetDebugSink([](const char*) {}); // rounding clamped near the centre is reported
    TestDevice screen;
    const PolarCoord centre(250.0, -30.0);
    FlatTransformation map(screen.DC(), TRect(0, 0, 300, 300), centre, 90.0, PolarCoord(0, 90));
    for (double ra = 170.0; ra < 330.0; ra += 20.0) {
        for (double dec = -80.0; dec < 50.0; dec += 20.0) {
            PolarCoord sky(ra, dec);
            if (Separation(sky, centre) > 85.0) {
                continue;
            }
            TPoint point;
            ASSERT_TRUE(map.Translate(sky, point));
            PolarCoord back;
            ASSERT_TRUE(map.ReverseTranslate(point, back));
            EXPECT_LT(Separation(back, sky), 1.5 * 90.0 / 150.0) << ra << " " << dec;
        }
    }
    SetDebugSink(DebugSink());
}
