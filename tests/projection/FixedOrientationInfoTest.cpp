#include <gtest/gtest.h>

#include <cstddef>
#include <memory>

#include "projection/FixedOrientationInfo.h"
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
