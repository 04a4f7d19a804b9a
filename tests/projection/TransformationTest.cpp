#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "ProjectionTesting.h"
#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "projection/Transformation.h"

namespace {

const TRect kScreen(0, 0, 640, 480);

double Separation(const PolarCoord& a, const PolarCoord& b)
{
    double ra1 = a.GetRA().GetRadians(), dec1 = a.GetDec().GetRadians();
    double ra2 = b.GetRA().GetRadians(), dec2 = b.GetDec().GetRadians();
    double cosine =
        std::sin(dec1) * std::sin(dec2) + std::cos(dec1) * std::cos(dec2) * std::cos(ra1 - ra2);
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, cosine))));
}

PolarCoord RandomDirection(std::mt19937& random)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    return PolarCoord(360.0 * unit(random), RadiansToDegrees(std::asin(2.0 * unit(random) - 1)));
}

// The rotations report rounding they clamp at the centre of view; these tests look at points
// and drop the reports.
class TransformationTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Previous = SetDebugSink([](const char*) {});
    }
    void TearDown() override { SetDebugSink(Previous); }

    TestDevice Screen;
    TestDevice Printer{192, 96};
    DebugSink Previous;
};

// What Translate must answer: the rotations one after the other, then the projection.
bool RotateThenProject(const Transformation& t, const PolarCoord& coord, TPoint& point)
{
    PolarCoord view = coord;
    PerspectiveModifier::RotateAboutYAxis(view, t.GetCenterOfView().GetRA().GetDegrees());
    PerspectiveModifier::RotateAboutXAxis(view, t.GetModifier().GetCosTilt(),
                                          t.GetModifier().GetSinTilt());
    PerspectiveModifier::RotateAboutCenterOfView(view, t.GetModifier().GetZenithAngle());
    return t.GetProjector().Project(view, point);
}

} // namespace

TEST_F(TransformationTest, CentreOfViewLandsOnTheCentrePointAndNorthStraightAbove)
{
    Transformation t(Screen.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(10, 90));
    TPoint point;
    EXPECT_TRUE(t.Translate(PolarCoord(10, 20), point));
    EXPECT_EQ(point, TPoint(320, 240));

    // Thirty degrees north, as far as the field radius: half the smaller side above. The
    // rotations leave the exact 240 a hair short, and truncation can take that last pixel.
    EXPECT_TRUE(t.Translate(PolarCoord(10, 50), point));
    EXPECT_EQ(point.x, 320);
    EXPECT_GE(240 - point.y, 239);
    EXPECT_LE(240 - point.y, 240);
}

TEST_F(TransformationTest, SkyIsSeenFromInsideTheSphere)
{
    Transformation t(Screen.DC(), kScreen, PolarCoord(0, 0), 30.0, PolarCoord(0, 90));
    TPoint centre, north, south, east, west;
    t.Translate(PolarCoord(0, 0), centre);
    t.Translate(PolarCoord(0, 10), north);
    t.Translate(PolarCoord(0, -10), south);
    t.Translate(PolarCoord(10, 0), east);  // larger RA
    t.Translate(PolarCoord(350, 0), west); // smaller RA
    EXPECT_EQ(centre, TPoint(320, 240));
    EXPECT_EQ(north.x, 320);
    EXPECT_LT(north.y, 240);
    EXPECT_GT(south.y, 240);
    EXPECT_LT(east.x, 320);
    EXPECT_EQ(east.y, 240);
    EXPECT_GT(west.x, 320);
    EXPECT_EQ(east.x - 320, 320 - west.x);
}

TEST_F(TransformationTest, ReverseOfTheCentrePointIsTheCentreOfView)
{
    PolarCoord centre(10, 20);
    Transformation t(Screen.DC(), kScreen, centre, 30.0, PolarCoord(10, 90));
    PolarCoord coord;
    EXPECT_TRUE(t.ReverseTranslate(TPoint(320, 240), coord));
    EXPECT_LT(Separation(coord, centre), 1e-6);
    EXPECT_TRUE(std::isfinite(coord.GetRA().GetDegrees()));

    // Off the disc the output stays as it was.
    Transformation wide(Screen.DC(), kScreen, centre, 90.0, PolarCoord(10, 90));
    PolarCoord untouched(1, 2);
    EXPECT_FALSE(wide.ReverseTranslate(TPoint(0, 0), untouched));
    EXPECT_EQ(untouched, PolarCoord(1, 2));
}

TEST_F(TransformationTest, ForwardThenBackwardComesHomeOnEveryDevice)
{
    std::mt19937 random(9);
    for (TestDevice* device : {&Screen, &Printer}) {
        for (int view = 0; view < 20; ++view) {
            PolarCoord centre = RandomDirection(random);
            PolarCoord zenith = RandomDirection(random);
            if (Separation(centre, zenith) < 5.0 || Separation(centre, zenith) > 175.0) {
                continue;
            }
            double radius = 5.0 + 4.0 * view;
            Transformation t(device->DC(), kScreen, centre, radius, zenith);
            // One pixel is this many degrees at the centre, at most.
            double pixel = RadiansToDegrees(1.0 / t.GetProjector().GetScale());
            int tried = 0;
            while (tried < 100) {
                PolarCoord sky = RandomDirection(random);
                TPoint point;
                // Near the rim a pixel spans more of the sphere; keep to the inner field.
                if (Separation(sky, centre) > 0.8 * t.GetVisibleRadius()) {
                    continue;
                }
                ++tried;
                ASSERT_TRUE(t.Translate(sky, point));
                PolarCoord back;
                ASSERT_TRUE(t.ReverseTranslate(point, back));
                ASSERT_LT(Separation(sky, back), 4.0 * pixel)
                    << sky.GetDescription() << " in view " << view;
            }
        }
    }
}

TEST_F(TransformationTest, TranslateAnswersExactlyAsTheRotationsDo)
{
    // Whole-degree grids through the centre, directions straight back from pixels (whose
    // forward images lie on pixel boundaries), the rim of the visible radius, the meridian
    // through the centre, near the centre and its opposite, and the whole sphere, on views
    // from wide to a tenth of a degree, on square and oblong pixels.
    std::mt19937 random(21);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    struct View
    {
        PolarCoord centre, zenith;
    } views[] = {
        {{10, 20}, {10, 90}},    {{0, 0}, {0, 90}},        {{83.6, 22}, {40, 51.5}},
        {{250, -35}, {190, 40}}, {{180, 89}, {0, 90}},     {{359, -60}, {20, -10}},
        {{45, 60}, {100, 37.8}}, {{300.25, 5.5}, {0, 90}},
    };
    long compared = 0;
    auto check = [&](const Transformation& t, const PolarCoord& sky) {
        TPoint fast(-7, -7), literal(-9, -9);
        bool fastVisible = t.Translate(sky, fast);
        bool literalVisible = RotateThenProject(t, sky, literal);
        ++compared;
        ASSERT_EQ(fast, literal) << sky.GetDescription();
        ASSERT_EQ(fastVisible, literalVisible) << sky.GetDescription();
    };
    for (const View& v : views) {
        for (double radius : {90.0, 30.0, 5.0, 0.5, 0.1}) {
            for (TestDevice* device : {&Screen, &Printer}) {
                Transformation t(device->DC(), TRect(0, 0, 1024, 768), v.centre, radius, v.zenith);
                double step = radius >= 30.0 ? 1.0 : (radius >= 5.0 ? 0.25 : 0.01);
                double ra0 = std::round(v.centre.GetRA().GetDegrees() / step) * step;
                double dec0 = std::round(v.centre.GetDec().GetDegrees() / step) * step;
                for (int i = -20; i <= 20; ++i) {
                    for (int j = -20; j <= 20; ++j) {
                        double dec = dec0 + j * step;
                        if (std::fabs(dec) <= 90.0) {
                            check(t, PolarCoord(ra0 + i * step, dec));
                        }
                    }
                }
                for (int y = 0; y < 768; y += 7) {
                    for (int x = 0; x < 1024; x += 7) {
                        PolarCoord sky;
                        if (t.ReverseTranslate(TPoint(x, y), sky)) {
                            check(t, sky);
                        }
                    }
                }
                auto checkView = [&](double ra, double dec) {
                    PolarCoord sky;
                    t.GetModifier().ReversePerspective(PolarCoord(ra, dec), sky);
                    check(t, sky);
                };
                double rim = t.GetVisibleRadius();
                for (int k = 0; k < 360; ++k) {
                    checkView(k, 90.0 - rim);
                    checkView(k % 2 ? 0.0 : 180.0, 90.0 - rim * k / 360.0);
                    checkView(360.0 * unit(random), 90.0 - 0.1 * unit(random));
                    checkView(360.0 * unit(random), -90.0 + 0.1 * unit(random));
                }
                for (int k = 0; k < 2000; ++k) {
                    check(t, RandomDirection(random));
                }
                if (HasFatalFailure()) {
                    return;
                }
            }
        }
    }
    EXPECT_GT(compared, 500000);
}

TEST_F(TransformationTest, OddCoordinatesGetTheRotationsAnswerToo)
{
    Transformation t(Screen.DC(), kScreen, PolarCoord(200, 10), 60.0, PolarCoord(0, 90));
    // Negative RAs, Decs beyond a pole, an RA many turns out (stored as is, like a value read
    // from text) and one that is not a number.
    DegreeAngle manyTurns, nothing;
    manyTurns = 360.0 * 2778 + 190.0;
    nothing = std::numeric_limits<double>::quiet_NaN();
    PolarCoord odd[] = {PolarCoord(-170, 5),
                        PolarCoord(-359, -20),
                        PolarCoord(190, 95),
                        PolarCoord(200, -100),
                        PolarCoord(manyTurns, DegreeAngle(5.0)),
                        PolarCoord(nothing, DegreeAngle(5.0))};
    for (const PolarCoord& sky : odd) {
        TPoint a(1, 1), b(1, 1);
        EXPECT_EQ(t.Translate(sky, a), RotateThenProject(t, sky, b));
        EXPECT_EQ(a, b) << sky.GetDescription();
    }
    TPoint turned, plain;
    t.Translate(odd[4], turned);
    t.Translate(PolarCoord(190.0, 5.0), plain);
    EXPECT_EQ(turned, plain);
}

TEST_F(TransformationTest, TranslateWritesThePointEvenOutOfView)
{
    Transformation t(Screen.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(10, 90));
    TPoint point(-1, -1);
    EXPECT_FALSE(t.Translate(PolarCoord(10, -75), point));
    // 95 degrees south of the centre: folded back to 85 from it, below the centre point.
    EXPECT_EQ(point.x, 320);
    EXPECT_GT(point.y, 240 + 400);
}

TEST_F(TransformationTest, VectorsOfTheViewFrameLandWhereTheirDirectionsDo)
{
    Transformation t(Printer.DC(), kScreen, PolarCoord(83.6, 22), 30.0, PolarCoord(40, 51.5));
    std::mt19937 random(4);
    for (int i = 0; i < 500; ++i) {
        PolarCoord sky = RandomDirection(random);
        PolarCoord view;
        t.GetModifier().ChangePerspective(sky, view);
        RectCoord v = Transformation::GetRectCoord(view);
        ASSERT_NEAR(v.GetX() * v.GetX() + v.GetY() * v.GetY() + v.GetZ() * v.GetZ(), 1.0, 1e-12);
        TPoint fromVector(-5, -5), fromDirection;
        bool front = t.Translate(v, fromVector);
        t.Translate(sky, fromDirection);
        if (v.GetZ() < 0.0) {
            ASSERT_FALSE(front);
            ASSERT_EQ(fromVector, TPoint(-5, -5));
            continue;
        }
        ASSERT_LE(std::abs(fromVector.x - fromDirection.x), 1);
        ASSERT_LE(std::abs(fromVector.y - fromDirection.y), 1);
        bool inside = std::abs(fromVector.x - 320) < 320 && std::abs(fromVector.y - 240) < 240;
        ASSERT_EQ(front, inside);
    }

    RectCoord up = Transformation::GetRectCoord(PolarCoord(0, 60));
    EXPECT_NEAR(up.GetX(), 0.0, 1e-15);
    EXPECT_NEAR(up.GetY(), 0.5, 1e-15);
    EXPECT_NEAR(up.GetZ(), std::sqrt(3.0) / 2.0, 1e-15);
}

TEST_F(TransformationTest, VisibleRangeNearThePoleHoldsEveryRA)
{
    // Field radius chosen so that the corners of a square lie 15 degrees out.
    double radius = RadiansToDegrees(std::asin(std::sin(DegreesToRadians(15.0)) / std::sqrt(2.0)));
    Transformation t(Screen.DC(), TRect(0, 0, 600, 600), PolarCoord(40, 80), radius,
                     PolarCoord(0, 90));
    ASSERT_NEAR(t.GetVisibleRadius(), 15.0, 0.01);
    SkyRange range = t.GetVisibleRange();
    EXPECT_TRUE(range.GetRA().IsFull());
    EXPECT_FALSE(range.GetDec().IsFull());
    EXPECT_EQ(range.GetDec().GetCenter().GetDegrees(), 80.0);
    EXPECT_EQ(range.GetDec().GetHalfWidth().GetDegrees(), t.GetVisibleRadius());

    // The same in the south.
    Transformation south(Screen.DC(), TRect(0, 0, 600, 600), PolarCoord(40, -80), radius,
                         PolarCoord(0, 90));
    EXPECT_TRUE(south.GetVisibleRange().GetRA().IsFull());
}

TEST_F(TransformationTest, VisibleRangeHoldsEveryDirectionOnTheSurface)
{
    struct View
    {
        PolarCoord centre;
        double radius;
    } views[] = {{{10, 20}, 30.0}, {{200, -45}, 10.0}, {{359, 50}, 5.0}, {{120, 0}, 60.0}};
    for (const View& v : views) {
        Transformation t(Printer.DC(), kScreen, v.centre, v.radius, PolarCoord(0, 90));
        SkyRange range = t.GetVisibleRange();
        if (v.radius <= 10.0) {
            EXPECT_FALSE(range.GetRA().IsFull()) << v.centre.GetDescription();
            EXPECT_LT(range.GetRA().GetHalfWidth().GetDegrees(), 90.0);
        }
        for (int y = 0; y <= 480; y += 8) {
            for (int x = 0; x <= 640; x += 8) {
                PolarCoord sky;
                if (t.ReverseTranslate(TPoint(x, y), sky)) {
                    ASSERT_TRUE(range.Contains(sky))
                        << sky.GetDescription() << " at " << x << "," << y;
                }
            }
        }
    }
}

TEST_F(TransformationTest, VisibleRangeIsKeptButTakesNoPartInEquality)
{
    Transformation a(Screen.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(10, 90));
    Transformation b(Screen.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(10, 90));
    SkyRange first = a.GetVisibleRange();
    EXPECT_EQ(a.GetVisibleRange().GetRA().GetHalfWidth(), first.GetRA().GetHalfWidth());
    EXPECT_TRUE(a == b);
    Transformation copy = a;
    EXPECT_EQ(copy.GetVisibleRange().GetDec().GetHalfWidth(), first.GetDec().GetHalfWidth());

    EXPECT_TRUE(a !=
                Transformation(Screen.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(20, 90)));
    EXPECT_TRUE(
        a != Transformation(Printer.DC(), kScreen, PolarCoord(10, 20), 30.0, PolarCoord(10, 90)));
}

TEST_F(TransformationTest, FieldRadiusOfZeroDrawsTheSmallestField)
{
    Transformation t(Screen.DC(), kScreen, PolarCoord(10, 20), 0.0, PolarCoord(10, 90));
    EXPECT_TRUE(t ==
                Transformation(Screen.DC(), kScreen, PolarCoord(10, 20), 0.1, PolarCoord(10, 90)));
    // Half the field radius north lies about half way to the top.
    TPoint north;
    EXPECT_TRUE(t.Translate(PolarCoord(10, 20.05), north));
    EXPECT_EQ(north.x, 320);
    EXPECT_NEAR(240 - north.y, 120, 1);
    EXPECT_LT(t.GetVisibleRange().GetDec().GetHalfWidth().GetDegrees(), 0.2);
    EXPECT_FALSE(t.GetVisibleRange().GetRA().IsFull());
}
