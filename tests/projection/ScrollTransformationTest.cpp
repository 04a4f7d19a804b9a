#include <gtest/gtest.h>

#include <vector>

#include "ProjectionTesting.h"
#include "projection/RotatingOrientationInfo.h"
#include "projection/ScrollTransformation.h"

// The map's view on the ground scrolling: each star's vector is taken once and then turned
// frame by frame, and must stay within a pixel of the full transformation for as long as the
// frames carry the vectors over, which is every whole step and no step a limit cut.
TEST(ScrollTransformation, StoredVectorsFollowTheViewUntilALimitCutsAStep)
{
    const QuietDebug quiet;
    TestDevice screen;
    StillBody sky;
    const TRect rect(0, 0, 1024, 768);
    // Direction, degrees a step, field radius, starting offset, steps, whether the last carries.
    const std::tuple<int, double, double, PolarCoord, int, bool> scrolls[] = {
        {AstroScrollInfo::AZIMUTH_UP, 3.0, 20.0, {200, 50}, 12, true},
        {AstroScrollInfo::AZIMUTH_DOWN, 1.0, 10.0, {0, 45}, 12, true},
        {AstroScrollInfo::TOWARDS_ZENITH, 0.1, 1.0, {170, 40}, 30, true},
        // Down to the horizon limit of 70, where the last step moves nothing.
        {AstroScrollInfo::TOWARDS_HORIZON, 2.0, 20.0, {200, 62}, 5, false},
        // Up to 0.4 degrees from the zenith: the last step is 1.9 degrees, not 2.
        {AstroScrollInfo::TOWARDS_ZENITH, 2.0, 20.0, {200, 4.3}, 2, false},
    };
    std::mt19937 random(5);
    int compared = 0;
    for (const auto& [direction, amount, radius, start, steps, lastCarries] : scrolls) {
        RotatingOrientationInfo o(&sky, LatLong(40.0, 75.0), start, radius, true);
        AstroScrollInfo info(direction, 350, DegreeAngle(amount));
        auto view = [&, radius = radius] {
            return Transformation(screen.DC(), rect, o.GetCenterOfView(), radius, o.GetZenith());
        };
        ScrollTransformation previous(info, view());
        std::vector<PolarCoord> stars;
        std::vector<RectCoord> vectors;
        while (stars.size() < 300) {
            const PolarCoord star = RandomDirection(random);
            if (Separation(star, o.GetCenterOfView()) < 3.0 * radius) {
                stars.push_back(star);
                vectors.push_back(previous.GetRectCoord(star));
            }
        }
        for (int step = 1; step <= steps; ++step) {
            ASSERT_TRUE(o.Scroll(info));
            const Transformation full = view();
            const ScrollTransformation next(info, full);
            const bool carries = next.Continues(previous);
            ASSERT_EQ(carries, step < steps || lastCarries) << direction << ", step " << step;
            for (std::size_t i = 0; i < stars.size() && carries; ++i) {
                EXPECT_TRUE(next.Rotate(vectors[i]));
                TPoint cached, exact;
                if (next.Translate(vectors[i], cached) && full.Translate(stars[i], exact) &&
                    rect.Contains(exact)) {
                    ASSERT_LE(std::max(std::abs(cached.x - exact.x), std::abs(cached.y - exact.y)),
                              1)
                        << "direction " << direction;
                    ++compared;
                }
            }
            previous = next;
        }
        // Time moving on turns the sky under the view: nothing carries over.
        sky.Sidereal += 0.5;
        EXPECT_FALSE(ScrollTransformation(info, view()).Continues(previous));
        sky.Sidereal -= 0.5;
    }
    EXPECT_GT(compared, 2000);
}
