#include <gtest/gtest.h>

#include <vector>

#include "ProjectionTesting.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/Transformation.h"

TEST(Transformation, TheCentreComesBackAsItselfAndNorthStaysUpOverThePoles)
{
    TestDevice screen;
    const PolarCoord centre(10, 20);
    const Transformation t(screen.DC(), TRect(0, 0, 640, 480), centre, 30.0, PolarCoord(10, 90));
    TPoint point;
    EXPECT_TRUE(t.Translate(centre, point));
    EXPECT_EQ(point, TPoint(320, 240));
    PolarCoord back(1, 2);
    EXPECT_TRUE(t.ReverseTranslate(point, back));
    EXPECT_LT(Separation(back, centre), 1e-6) << "no division by zero at the centre point";
    EXPECT_FALSE(t.ReverseTranslate(TPoint(-400, 240), back)) << "off the sphere";
    EXPECT_FALSE(t.GetVisibleRange().GetRA().IsFull());

    // Along a meridian, from just short of a pole and from the pole itself, the same directions
    // stand above and below the centre of a view that keeps north up; its range holds every RA.
    for (double dec : {90.0, 89.9, -90.0, -89.9}) {
        const PolarCoord at(300, dec);
        const Transformation over(screen.DC(), TRect(0, 0, 400, 400), at, 30.0,
                                  FixedOrientationInfo::NorthUpZenith(at));
        TPoint up, down;
        over.Translate(PolarCoord(dec > 0 ? 120 : 300, dec > 0 ? 80 : -80), up);
        over.Translate(PolarCoord(dec > 0 ? 300 : 120, dec > 0 ? 80 : -80), down);
        EXPECT_TRUE(std::abs(up.x - 200) <= 1 && up.y < 150) << dec;
        EXPECT_TRUE(std::abs(down.x - 200) <= 1 && down.y > 250) << dec;
        EXPECT_TRUE(over.GetVisibleRange().GetRA().IsFull()) << dec;
    }
}

// Translate takes a shorter road than the rotations wherever rounding cannot move a pixel; it
// must answer as they do, pixel for pixel. What it draws lies in the visible range, and comes
// back within pixels.
TEST(Transformation, TranslateAnswersAsTheRotationsDoAndComesBackWithinPixels)
{
    const QuietDebug quiet;
    TestDevice screen, printer(192, 96);
    const TRect rect(0, 0, 1024, 768);
    // Views on the stars, near a pole, across the seam, with a zenith that is no pole.
    const std::pair<PolarCoord, PolarCoord> views[] = {
        {{10, 20}, {10, 90}}, {{180, 89}, {0, 90}}, {{359, -60}, {20, -10}}};
    const DegreeAngle manyTurns(std::string("1000270")), nothing(std::string("nan"));
    std::mt19937 random(21);
    for (const auto& [centre, zenith] : views) {
        for (double radius : {90.0, 5.0, 0.1}) {
            for (TestDevice* device : {&screen, &printer}) {
                const Transformation t(device->DC(), rect, centre, radius, zenith);
                // Odd coordinates too: a negative RA, a Dec beyond a pole, an RA many turns
                // out (as read from text) and no number.
                std::vector<PolarCoord> sky = {{-170, 5},
                                               {190, 95},
                                               {manyTurns, DegreeAngle(5.0)},
                                               {nothing, DegreeAngle(5.0)}};
                while (sky.size() < 1000) {
                    sky.push_back(RandomDirection(random));
                }
                for (int y = 0; y < 768; y += 13) {
                    for (int x = 0; x < 1024; x += 13) {
                        t.ReverseTranslate(TPoint(x, y), sky.emplace_back(centre));
                    }
                }
                const double pixel = RadiansToDegrees(1.0 / t.GetProjector().GetScale());
                const SkyRange range = t.GetVisibleRange();
                for (const PolarCoord& direction : sky) {
                    TPoint fast(-7, -7), literal(-9, -9);
                    PolarCoord view, back;
                    t.GetModifier().ChangePerspective(direction, view);
                    const bool visible = t.Translate(direction, fast);
                    ASSERT_EQ(visible, t.GetProjector().Project(view, literal));
                    ASSERT_EQ(fast, literal) << direction.GetDescription() << " r " << radius;
                    if (std::fabs(direction.GetDec().GetDegrees()) > 90.0) {
                        continue;
                    }
                    // What the surface shows lies in the range the catalogues are asked for.
                    if (visible && rect.Contains(fast)) {
                        ASSERT_TRUE(range.Contains(direction)) << direction.GetDescription();
                    }
                    if (Separation(direction, centre) < 0.5 * t.GetVisibleRadius()) {
                        ASSERT_TRUE(t.ReverseTranslate(fast, back));
                        ASSERT_LT(Separation(direction, back), 4.0 * pixel);
                    }
                }
            }
        }
    }
}
