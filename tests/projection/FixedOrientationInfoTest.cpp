#include <gtest/gtest.h>

#include <cstddef>
#include <memory>

#include "ProjectionTesting.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/Transformation.h"
#include "state/CmdLineStateContainer.h"

class SolarSystemObject;

namespace {

// The orientation keeps the pointer to the body the observer stands on and never follows it
// here, so any distinct address stands in for the Earth.
alignas(std::max_align_t) char earthStandIn;
SolarSystemObject* const kEarth = reinterpret_cast<SolarSystemObject*>(&earthStandIn);

// A second kind of orientation, to see what the base keeps for every kind.
class TurningOrientation : public OrientationInfo
{
public:
    explicit TurningOrientation(double radius) : OrientationInfo(ROTATING, kEarth, radius) {}
    void SetCenterOfView(const PolarCoord&) override {}
    PolarCoord GetCenterOfView() const override { return PolarCoord(); }
    PolarCoord GetZenith() const override { return PolarCoord(0, 90); }
    std::unique_ptr<OrientationInfo> Clone() const override
    {
        return std::make_unique<TurningOrientation>(*this);
    }
};

} // namespace

TEST(FixedOrientationInfo, KeepsWhatItIsGivenAndClonesIt)
{
    FixedOrientationInfo empty(kEarth);
    EXPECT_EQ(empty.GetType(), OrientationInfo::FIXED);
    EXPECT_STREQ(empty.GetTypeName(), "Fixed");
    EXPECT_EQ(empty.GetFieldRadius(), 0.0);
    EXPECT_EQ(empty.GetCenterOfView(), PolarCoord(0, 0));
    EXPECT_EQ(empty.GetZenith(), PolarCoord(0, 0));

    FixedOrientationInfo original(kEarth, PolarCoord(83.6, 22), PolarCoord(40, 51.5), 20.0);
    std::unique_ptr<OrientationInfo> clone = original.Clone();
    ASSERT_NE(dynamic_cast<FixedOrientationInfo*>(clone.get()), nullptr);
    EXPECT_EQ(clone->GetOrigin(), kEarth);
    EXPECT_EQ(clone->GetCenterOfView(), PolarCoord(83.6, 22));
    EXPECT_EQ(clone->GetZenith(), PolarCoord(40, 51.5));
    EXPECT_EQ(clone->GetFieldRadius(), 20.0);

    // The clone goes its own way; the radius is stored without any test.
    clone->SetCenterOfView(PolarCoord(1, 2));
    clone->SetFieldRadius(-3.0);
    EXPECT_EQ(clone->GetCenterOfView(), PolarCoord(1, 2));
    EXPECT_EQ(clone->GetFieldRadius(), -3.0);
    EXPECT_EQ(original.GetCenterOfView(), PolarCoord(83.6, 22));
    EXPECT_EQ(original.GetFieldRadius(), 20.0);
}

TEST(FixedOrientationInfo, StateGoesIntoLevelsAtTheCallersKey)
{
    FixedOrientationInfo orientation(kEarth, PolarCoord(10.5, -20), PolarCoord(0, 90), 20.0);
    CmdLineStateContainer writer;
    writer << AstroKey("Orientation") << orientation;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "Orientation=<Base=<Radius=20> CenterOfView=<RA=10.5 Dec=-20> "
              "Zenith=<RA=0 Dec=90>>");
}

TEST(FixedOrientationInfo, StateComesBackThroughACommandString)
{
    FixedOrientationInfo original(kEarth, PolarCoord(83.633333, 22.014444),
                                  PolarCoord(123.456789, 51.5), 12.3456789);
    CmdLineStateContainer writer;
    writer << AstroKey("Orientation") << original;

    CmdLineStateContainer reader(writer.GetCmdLine());
    FixedOrientationInfo restored(nullptr);
    reader >> AstroKey("Orientation") >> restored;
    // Doubles keep six significant digits.
    EXPECT_DOUBLE_EQ(restored.GetFieldRadius(), 12.3457);
    EXPECT_DOUBLE_EQ(restored.GetCenterOfView().GetRA().GetDegrees(), 83.6333);
    EXPECT_DOUBLE_EQ(restored.GetCenterOfView().GetDec().GetDegrees(), 22.0144);
    EXPECT_DOUBLE_EQ(restored.GetZenith().GetRA().GetDegrees(), 123.457);
    EXPECT_DOUBLE_EQ(restored.GetZenith().GetDec().GetDegrees(), 51.5);
    // The origin is not state: the reader keeps its own.
    EXPECT_EQ(restored.GetOrigin(), nullptr);
}

TEST(FixedOrientationInfo, MissingStateReadsAsZero)
{
    CmdLineStateContainer reader(HostCmdLine("Other=<Radius=5>"));
    FixedOrientationInfo orientation(kEarth, PolarCoord(1, 2), PolarCoord(3, 4), 5.0);
    reader >> AstroKey("Orientation") >> orientation;
    EXPECT_EQ(orientation.GetFieldRadius(), 0.0);
    EXPECT_EQ(orientation.GetCenterOfView(), PolarCoord(0, 0));
    EXPECT_EQ(orientation.GetZenith(), PolarCoord(0, 0));
}

TEST(FixedOrientationInfo, NorthUpPutsTheNorthPoleAboveTheCentreAndTurnsSmoothlyAtThePoles)
{
    EXPECT_EQ(FixedOrientationInfo::NorthUpZenith(PolarCoord(10, 20)), PolarCoord(10, 90));
    EXPECT_EQ(FixedOrientationInfo::NorthUpZenith(PolarCoord(10, -89.5)), PolarCoord(10, 90));

    // Seen along a meridian from just below a pole and at the pole itself, the same
    // directions stand above and below the centre.
    TestDevice device;
    const TRect rect(0, 0, 400, 400);
    auto view = [&](const PolarCoord& centre) {
        return Transformation(device.DC(), rect, centre, 30.0,
                              FixedOrientationInfo::NorthUpZenith(centre));
    };
    for (double ra : {0.0, 84.0, 300.0}) {
        for (double pole : {90.0, -90.0}) {
            const double sign = pole > 0 ? 1.0 : -1.0;
            // Further north: towards the north pole, or away from the south pole.
            const PolarCoord north(pole > 0 ? ra + 180.0 : ra, sign * 80.0);
            const PolarCoord south(pole > 0 ? ra : ra + 180.0, sign * 80.0);
            for (double dec : {pole, sign * 89.9}) {
                Transformation t = view(PolarCoord(ra, dec));
                TPoint up;
                TPoint down;
                t.Translate(north, up);
                t.Translate(south, down);
                EXPECT_NEAR(up.x, 200, 1) << ra << " " << dec;
                EXPECT_LT(up.y, 150) << ra << " " << dec;
                EXPECT_NEAR(down.x, 200, 1) << ra << " " << dec;
                EXPECT_GT(down.y, 250) << ra << " " << dec;
            }
        }
    }
}

TEST(OrientationInfo, EveryKindKeepsTypeRadiusAndOrigin)
{
    TurningOrientation turning(45.0);
    EXPECT_EQ(turning.GetType(), OrientationInfo::ROTATING);
    EXPECT_STREQ(turning.GetTypeName(), "Rotating");
    EXPECT_EQ(turning.GetOrigin(), kEarth);

    // The base writes its radius into a level of its own at the key it is given.
    CmdLineStateContainer writer;
    writer << AstroKey("Base") << turning;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Base=<Radius=45>");
    TurningOrientation restored(0.0);
    CmdLineStateContainer reader(writer.GetCmdLine());
    reader >> AstroKey("Base") >> restored;
    EXPECT_EQ(restored.GetFieldRadius(), 45.0);

    std::unique_ptr<OrientationInfo> copy = turning.Clone();
    EXPECT_EQ(copy->GetType(), OrientationInfo::ROTATING);
    EXPECT_EQ(copy->GetFieldRadius(), 45.0);
}
