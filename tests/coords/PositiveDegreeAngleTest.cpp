#include <gtest/gtest.h>

#include "coords/PositiveDegreeAngle.h"
#include "state/CmdLineStateContainer.h"

TEST(PositiveDegreeAngle, NegativeValuesBecomeTheirTwinBetweenZeroAnd360)
{
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(-30.0).GetDegrees(), 330.0);
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(30.0).GetDegrees(), 30.0);
    EXPECT_EQ(PositiveDegreeAngle(0.0).GetDegrees(), 0.0);
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(-400.0).GetDegrees(), 320.0);
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(725.0).GetDegrees(), 5.0);
    // -360 survives the normalising and its twin is a whole turn.
    EXPECT_EQ(PositiveDegreeAngle(-360.0).GetDegrees(), 360.0);
    EXPECT_EQ(PositiveDegreeAngle(-720.0).GetDegrees(), 0.0);
}

TEST(PositiveDegreeAngle, FromADegreeAngle)
{
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(DegreeAngle(-90.0)).GetDegrees(), 270.0);
    EXPECT_DOUBLE_EQ(PositiveDegreeAngle(DegreeAngle(90.0)).GetDegrees(), 90.0);
}

TEST(PositiveDegreeAngle, StreamsAsADegreeAngle)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Azimuth") << PositiveDegreeAngle(-10.0);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Azimuth=350");

    CmdLineStateContainer reader(writer.GetCmdLine());
    PositiveDegreeAngle azimuth;
    reader >> AstroKey("Azimuth") >> azimuth;
    EXPECT_EQ(azimuth.GetDegrees(), 350.0);
}
