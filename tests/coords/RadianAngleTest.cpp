#include <gtest/gtest.h>

#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "coords/RadianAngle.h"
#include "state/CmdLineStateContainer.h"

TEST(RadianAngle, NormalisesOnlyAboveTwoPiKeepingTheSign)
{
    EXPECT_EQ(RadianAngle(twoPi).GetRadians(), twoPi);
    EXPECT_EQ(RadianAngle(-twoPi).GetRadians(), -twoPi);
    EXPECT_DOUBLE_EQ(RadianAngle(twoPi + 0.5).GetRadians(), 0.5);
    EXPECT_DOUBLE_EQ(RadianAngle(-twoPi - 0.5).GetRadians(), -0.5);
    EXPECT_DOUBLE_EQ(RadianAngle(-1.0).GetRadians(), -1.0);
    EXPECT_NEAR(RadianAngle(5 * twoPi + 1.0).GetRadians(), 1.0, 1e-12);
}

TEST(RadianAngle, AssignmentAndTextKeepTheValueAsItIs)
{
    RadianAngle angle;
    angle = 10.0;
    EXPECT_EQ(angle.GetRadians(), 10.0);
    EXPECT_EQ(RadianAngle(std::string("10.5")).GetRadians(), 10.5);
}

TEST(RadianAngle, AddingAndSubtractingNormalise)
{
    RadianAngle angle(6.0);
    angle += 1.0;
    EXPECT_DOUBLE_EQ(angle.GetRadians(), 7.0 - twoPi);
    angle -= 2.0;
    EXPECT_DOUBLE_EQ(angle.GetRadians(), 5.0 - twoPi);
}

TEST(RadianAngle, ConvertsFromDegreesThroughTheSharedPi)
{
    EXPECT_DOUBLE_EQ(RadianAngle(DegreeAngle(180.0)).GetRadians(), pi);
    EXPECT_DOUBLE_EQ(RadianAngle(DegreeAngle(-45.0)).GetRadians(), -pi / 4);
    EXPECT_DOUBLE_EQ(RadianAngle(pi).GetDegrees(), 180.0);
    EXPECT_TRUE(RadianAngle(1.0) > RadianAngle(0.5));
}

TEST(RadianAngle, StreamsAsOneValue)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Phase") << RadianAngle(1.25);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Phase=1.25");

    CmdLineStateContainer reader(writer.GetCmdLine());
    RadianAngle angle, missing(2.0);
    reader >> AstroKey("Phase") >> angle >> AstroKey("Absent") >> missing;
    EXPECT_EQ(angle.GetRadians(), 1.25);
    EXPECT_EQ(missing.GetRadians(), 0.0);
}
