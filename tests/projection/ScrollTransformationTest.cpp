#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/RotatingOrientationInfo.h"
#include "projection/ScrollTransformation.h"
#include "solar/Earth200.h"

namespace {

const TRect kScreen(0, 0, 1024, 768);

// A view that stands on the ground, as the map's rotating orientation keeps it: a zenith in
// the sky and the direction of view as an azimuth and a zenith distance in the horizon frame
// (whose pole is the zenith and whose RA 0 points at the north celestial pole).
struct GroundView
{
    PolarCoord Zenith;
    double Azimuth;
    double ZenithDistance;
    double Radius;

    Transformation Make(const TDC& dc) const
    {
        PerspectiveModifier horizon(Zenith, PolarCoord(0.0, 90.0));
        PolarCoord centre;
        horizon.ReversePerspective(PolarCoord(Azimuth, 90.0 - ZenithDistance), centre);
        return Transformation(dc, kScreen, centre, Radius, Zenith);
    }
    // One step of a scroll, as the orientation takes it.
    GroundView Step(const AstroScrollInfo& info) const
    {
        GroundView next = *this;
        double s = info.GetAmount().GetDegrees();
        switch (info.GetDirection()) {
        case 1:
            next.Azimuth = std::fmod(Azimuth + s, 360.0);
            break;
        case 2:
            next.Azimuth = std::fmod(Azimuth - s + 360.0, 360.0);
            break;
        case 3:
            next.ZenithDistance = ZenithDistance - s;
            break;
        default:
            next.ZenithDistance = ZenithDistance + s;
            break;
        }
        return next;
    }
};

// Stars spread over the part of the sky that a scroll of the view sweeps.
std::vector<PolarCoord> SkyAround(const PolarCoord& centre, double reach)
{
    std::vector<PolarCoord> stars;
    double cosDec = std::cos(centre.GetDec().GetRadians());
    for (double dDec = -reach; dDec <= reach; dDec += reach / 9.0) {
        for (double dRA = -reach; dRA <= reach; dRA += reach / 9.0) {
            double dec = centre.GetDec().GetDegrees() + dDec;
            if (std::fabs(dec) < 89.0) {
                stars.emplace_back(
                    std::fmod(centre.GetRA().GetDegrees() + dRA / std::fmax(cosDec, 0.2) + 720.0,
                              360.0),
                    dec);
            }
        }
    }
    return stars;
}

class ScrollTransformationTest : public ::testing::Test
{
protected:
    // The rotations report rounding they clamp at the centre; these tests look at points.
    void SetUp() override
    {
        Previous = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Previous); }

    // Scrolls `frames` steps from `start`: each star gets its vector in the first frame and
    // moves by Rotate after that. Every frame, each star that both roads put inside the
    // rectangle must come out within a pixel of the full transformation; returns how many
    // such comparisons were made.
    int CompareScroll(GroundView view, const AstroScrollInfo& info, int frames)
    {
        std::vector<PolarCoord> stars =
            SkyAround(view.Make(Screen.DC()).GetCenterOfView(), view.Radius * 2.5);
        std::vector<RectCoord> vectors(stars.size());
        int compared = 0;
        for (int frame = 0; frame < frames; ++frame) {
            Transformation full = view.Make(Screen.DC());
            ScrollTransformation scroll(info, full);
            for (std::size_t i = 0; i < stars.size(); ++i) {
                if (frame == 0) {
                    vectors[i] = scroll.GetRectCoord(stars[i]);
                } else {
                    EXPECT_TRUE(scroll.Rotate(vectors[i]));
                }
                TPoint cached, exact;
                bool cachedIn = scroll.Translate(vectors[i], cached);
                bool exactIn = full.Translate(stars[i], exact) && kScreen.Contains(exact);
                if (cachedIn && exactIn) {
                    EXPECT_LE(std::abs(cached.x - exact.x), 1) << "frame " << frame;
                    EXPECT_LE(std::abs(cached.y - exact.y), 1) << "frame " << frame;
                    ++compared;
                }
            }
            view = view.Step(info);
        }
        return compared;
    }

    TestDevice Screen;
    DebugSink Previous;
};

} // namespace

TEST_F(ScrollTransformationTest, RotateTurnsAboutTheViewsXAxisOnlyWhenGoingUpOrDown)
{
    Transformation t = GroundView{PolarCoord(80, 35), 120.0, 50.0, 20.0}.Make(Screen.DC());
    const RectCoord v(0.3, -0.4, std::sqrt(0.75));
    RectCoord w = v;
    EXPECT_TRUE(ScrollTransformation(AstroScrollInfo(3, 350, DegreeAngle(2.5)), t).Rotate(w));
    EXPECT_EQ(w.GetX(), v.GetX());
    EXPECT_GT(std::fabs(w.GetY() - v.GetY()), 0.01);
    EXPECT_TRUE(ScrollTransformation(AstroScrollInfo(4, 350, DegreeAngle(2.5)), t).Rotate(w));
    EXPECT_NEAR(w.GetY(), v.GetY(), 1e-15);
    EXPECT_NEAR(w.GetZ(), v.GetZ(), 1e-15);

    for (int sideways : {1, 2}) {
        RectCoord u = v;
        EXPECT_TRUE(
            ScrollTransformation(AstroScrollInfo(sideways, 350, DegreeAngle(2.0)), t).Rotate(u));
        EXPECT_EQ(u.GetX(), v.GetX());
        EXPECT_EQ(u.GetY(), v.GetY());
        EXPECT_EQ(u.GetZ(), v.GetZ());
    }
}

TEST_F(ScrollTransformationTest, StarStraightAheadComesOutAtTheCentre)
{
    for (double azimuth : {0.0, 37.0, 90.0, 181.0, 300.0}) {
        GroundView view{PolarCoord(200, -20), azimuth, 65.0, 15.0};
        Transformation t = view.Make(Screen.DC());
        ScrollTransformation s(AstroScrollInfo(1, 350, DegreeAngle(2.0)), t);
        TPoint point;
        EXPECT_TRUE(s.Translate(s.GetRectCoord(t.GetCenterOfView()), point));
        EXPECT_NEAR(point.x, 512, 1) << azimuth;
        EXPECT_NEAR(point.y, 384, 1) << azimuth;
    }
}

TEST_F(ScrollTransformationTest, StoredVectorsStayWithinAPixelOfTheFullTransformation)
{
    GroundView view{PolarCoord(150, 40), 250.0, 60.0, 20.0};
    EXPECT_GT(CompareScroll(view, AstroScrollInfo(1, 350, DegreeAngle(2.0)), 30), 1000);
    EXPECT_GT(CompareScroll(view, AstroScrollInfo(2, 350, DegreeAngle(3.0)), 30), 1000);
    // Looking due north, where the orientation's own rotations are least precise.
    GroundView north{PolarCoord(10, 50), 0.0, 45.0, 10.0};
    EXPECT_GT(CompareScroll(north, AstroScrollInfo(1, 350, DegreeAngle(1.0)), 20), 500);

    GroundView low{PolarCoord(300, -33), 100.0, 80.0, 20.0};
    EXPECT_GT(CompareScroll(low, AstroScrollInfo(3, 350, DegreeAngle(2.0)), 30), 1000);
    GroundView high{PolarCoord(300, -33), 200.0, 10.0, 20.0};
    EXPECT_GT(CompareScroll(high, AstroScrollInfo(4, 350, DegreeAngle(2.0)), 30), 1000);
    // A narrow field magnifies any drift of the stored vectors.
    GroundView narrow{PolarCoord(45, 10), 170.0, 40.0, 1.0};
    EXPECT_GT(CompareScroll(narrow, AstroScrollInfo(3, 350, DegreeAngle(0.1)), 40), 1000);
}

TEST_F(ScrollTransformationTest, StoredVectorsCarryOverOnlyAfterAWholeStep)
{
    const AstroScrollInfo up(3, 350, DegreeAngle(2.0));
    const AstroScrollInfo down(4, 350, DegreeAngle(2.0));
    const AstroScrollInfo sideways(1, 350, DegreeAngle(2.0));
    GroundView view{PolarCoord(120, 30), 45.0, 50.0, 20.0};
    ScrollTransformation first(up, view.Make(Screen.DC()));

    GroundView next = view.Step(up);
    EXPECT_TRUE(ScrollTransformation(up, next.Make(Screen.DC())).Continues(first));
    // Back down by a step from the next frame is a whole step the other way.
    ScrollTransformation second(up, next.Make(Screen.DC()));
    EXPECT_TRUE(ScrollTransformation(down, view.Make(Screen.DC())).Continues(second));

    // A step cut short at a limit, no step at all, and a step the other way.
    GroundView shortStep = view;
    shortStep.ZenithDistance -= 1.0;
    EXPECT_FALSE(ScrollTransformation(up, shortStep.Make(Screen.DC())).Continues(first));
    EXPECT_FALSE(ScrollTransformation(up, view.Make(Screen.DC())).Continues(first));
    EXPECT_FALSE(ScrollTransformation(up, view.Step(down).Make(Screen.DC())).Continues(first));

    // The view swung sideways while going up, and the sky turned under the view.
    GroundView swung = next;
    swung.Azimuth += 1.0;
    EXPECT_FALSE(ScrollTransformation(up, swung.Make(Screen.DC())).Continues(first));
    GroundView turned = next;
    turned.Zenith = PolarCoord(120.5, 30);
    EXPECT_FALSE(ScrollTransformation(up, turned.Make(Screen.DC())).Continues(first));

    // Sideways vectors live in the horizon frame: any azimuth will do, not another kind of
    // scroll nor another zenith.
    ScrollTransformation flat(sideways, view.Make(Screen.DC()));
    GroundView far = view;
    far.Azimuth += 40.0;
    EXPECT_TRUE(ScrollTransformation(sideways, far.Make(Screen.DC())).Continues(flat));
    EXPECT_FALSE(ScrollTransformation(up, next.Make(Screen.DC())).Continues(flat));
    EXPECT_FALSE(ScrollTransformation(sideways, turned.Make(Screen.DC())).Continues(flat));
}

// The map's view on the ground stepping as it scrolls: every whole step carries the stored
// vectors over; the step the horizon limit cuts off, and the one cut short below the zenith,
// do not, although the orientation reports them done.
TEST_F(ScrollTransformationTest, AViewOnTheGroundCarriesItsVectorsUntilALimitCutsAStep)
{
    Earth200 earth;
    earth.SetTime(AstroTime(1, 1, 2000, 20.0));
    auto frame = [&](const RotatingOrientationInfo& o, const AstroScrollInfo& info) {
        return ScrollTransformation(info, Transformation(Screen.DC(), kScreen, o.GetCenterOfView(),
                                                         o.GetFieldRadius(), o.GetZenith()));
    };

    AstroScrollInfo down(AstroScrollInfo::TOWARDS_HORIZON, 350, DegreeAngle(2.0));
    RotatingOrientationInfo o(&earth, LatLong(40.0, 75.0), PolarCoord(200.0, 62.0), 20.0, true);
    ScrollTransformation previous = frame(o, down);
    for (double expected : {64.0, 66.0, 68.0, 70.0}) {
        ASSERT_TRUE(o.Scroll(down));
        EXPECT_DOUBLE_EQ(o.GetZenithOffset().GetDec().GetDegrees(), expected);
        ScrollTransformation next = frame(o, down);
        EXPECT_TRUE(next.Continues(previous)) << expected;
        previous = next;
    }
    ASSERT_TRUE(o.Scroll(down)) << "at the limit the step counts as done";
    EXPECT_FALSE(frame(o, down).Continues(previous)) << "but nothing moved";

    AstroScrollInfo up(AstroScrollInfo::TOWARDS_ZENITH, 350, DegreeAngle(2.0));
    RotatingOrientationInfo high(&earth, LatLong(40.0, 75.0), PolarCoord(200.0, 4.3), 20.0, true);
    previous = frame(high, up);
    ASSERT_TRUE(high.Scroll(up));
    ScrollTransformation whole = frame(high, up);
    EXPECT_TRUE(whole.Continues(previous));
    ASSERT_TRUE(high.Scroll(up));
    EXPECT_DOUBLE_EQ(high.GetZenithOffset().GetDec().GetDegrees(), 0.4);
    EXPECT_FALSE(frame(high, up).Continues(whole)) << "the last step is 1.9 degrees, not 2";

    // Along the horizon every step carries over.
    AstroScrollInfo side(AstroScrollInfo::AZIMUTH_UP, 350, DegreeAngle(3.0));
    previous = frame(o, side);
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(o.Scroll(side));
        ScrollTransformation next = frame(o, side);
        EXPECT_TRUE(next.Continues(previous)) << i;
        previous = next;
    }
}
