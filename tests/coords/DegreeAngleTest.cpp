#include <gtest/gtest.h>

#include <vector>

#include "ScratchFile.h"
#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "coords/RadianAngle.h"
#include "host/HostFile.h"
#include "state/CmdLineStateContainer.h"

TEST(DegreeAngle, NormalisesOnlyAboveOneTurnKeepingTheSign)
{
    EXPECT_EQ(DegreeAngle(0.0).GetDegrees(), 0.0);
    EXPECT_EQ(DegreeAngle(360.0).GetDegrees(), 360.0);
    EXPECT_EQ(DegreeAngle(-360.0).GetDegrees(), -360.0);
    EXPECT_DOUBLE_EQ(DegreeAngle(360.5).GetDegrees(), 0.5);
    EXPECT_DOUBLE_EQ(DegreeAngle(-400.0).GetDegrees(), -40.0);
    EXPECT_DOUBLE_EQ(DegreeAngle(725.5).GetDegrees(), 5.5);
    EXPECT_DOUBLE_EQ(DegreeAngle(-725.5).GetDegrees(), -5.5);
    EXPECT_EQ(DegreeAngle(720.0).GetDegrees(), 0.0);
    EXPECT_DOUBLE_EQ(DegreeAngle(-30.0).GetDegrees(), -30.0);
    EXPECT_DOUBLE_EQ(DegreeAngle(3600000.25).GetDegrees(), 0.25);
}

TEST(DegreeAngle, AssignmentAndTextKeepTheValueAsItIs)
{
    DegreeAngle angle;
    angle = 725.0;
    EXPECT_EQ(angle.GetDegrees(), 725.0);

    EXPECT_EQ(DegreeAngle(std::string("725.5")).GetDegrees(), 725.5);
    EXPECT_EQ(DegreeAngle(std::string("-12.25 rest")).GetDegrees(), -12.25);
    EXPECT_EQ(DegreeAngle(std::string("north")).GetDegrees(), 0.0);
}

TEST(DegreeAngle, AddingAndSubtractingNormalise)
{
    DegreeAngle angle(350.0);
    angle += 20.0;
    EXPECT_DOUBLE_EQ(angle.GetDegrees(), 10.0);
    angle -= 400.0;
    EXPECT_DOUBLE_EQ(angle.GetDegrees(), -30.0);
    angle += 30.0;
    EXPECT_EQ(angle.GetDegrees(), 0.0);
    // A sum of exactly one turn is not reduced.
    angle += 360.0;
    EXPECT_EQ(angle.GetDegrees(), 360.0);
}

TEST(DegreeAngle, ComparesStoredValuesExactly)
{
    EXPECT_TRUE(DegreeAngle(10.0) == DegreeAngle(370.0));
    EXPECT_FALSE(DegreeAngle(10.0) == DegreeAngle(10.000000001));
    EXPECT_TRUE(DegreeAngle(10.0) != DegreeAngle(-350.0));
    EXPECT_TRUE(DegreeAngle(20.0) > DegreeAngle(10.0));
    EXPECT_FALSE(DegreeAngle(10.0) > DegreeAngle(10.0));
    EXPECT_TRUE(DegreeAngle(-5.0) < DegreeAngle(5.0));
}

TEST(DegreeAngle, ConvertsFromAndToRadians)
{
    EXPECT_DOUBLE_EQ(DegreeAngle(RadianAngle(pi / 2)).GetDegrees(), 90.0);
    EXPECT_DOUBLE_EQ(DegreeAngle(90.0).GetRadians(), pi / 2);
    // A radian value assigned beyond two pi normalises on the way to degrees.
    RadianAngle large;
    large = 3 * pi;
    EXPECT_NEAR(DegreeAngle(large).GetDegrees(), 180.0, 1e-12);
}

TEST(DegreeAngle, DumpWritesEightLittleEndianBytesAndLoadReadsThemBack)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        ASSERT_TRUE(file.IsOpen());
        EXPECT_TRUE(DegreeAngle(1.0).Dump(file));
        EXPECT_TRUE(DegreeAngle(-123.456).Dump(file));
        DegreeAngle unnormalised;
        unnormalised = 400.0;
        EXPECT_TRUE(unnormalised.Dump(file));
    }
    std::vector<unsigned char> bytes = scratch.Bytes();
    ASSERT_EQ(bytes.size(), 24u);
    // 1.0 is 0x3FF0000000000000, lowest byte first.
    std::vector<unsigned char> one(bytes.begin(), bytes.begin() + 8);
    EXPECT_EQ(one, (std::vector<unsigned char>{0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));

    HostFile file(scratch.GetPath(), HostFile::ReadOnly);
    DegreeAngle first, second, stored, third(5.0);
    EXPECT_TRUE(first.Load(file));
    EXPECT_TRUE(second.Load(file));
    EXPECT_TRUE(stored.Load(file));
    EXPECT_EQ(first.GetDegrees(), 1.0);
    EXPECT_EQ(second.GetDegrees(), -123.456);
    // Loading keeps a stored value as it is, without normalising.
    EXPECT_EQ(stored.GetDegrees(), 400.0);
    // At the end of the file nothing is read and the angle keeps its value.
    EXPECT_FALSE(third.Load(file));
    EXPECT_EQ(third.GetDegrees(), 5.0);
}

TEST(DegreeAngle, DumpReportsAShortWrite)
{
    HostFile closed;
    EXPECT_FALSE(DegreeAngle(1.0).Dump(closed));

    ScratchFile scratch;
    scratch.WriteBytes({1, 2, 3});
    HostFile readOnly(scratch.GetPath(), HostFile::ReadOnly);
    EXPECT_FALSE(DegreeAngle(1.0).Dump(readOnly));
    DegreeAngle angle(7.0);
    EXPECT_FALSE(angle.Load(readOnly));
    EXPECT_EQ(angle.GetDegrees(), 7.0);
}

TEST(DegreeAngle, StreamsAsOneValueWithSixSignificantDigits)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Angle") << DegreeAngle(123.456789);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Angle=123.457");

    CmdLineStateContainer reader(writer.GetCmdLine());
    DegreeAngle angle(1.0), missing(1.0);
    reader >> AstroKey("Angle") >> angle >> AstroKey("Nothing") >> missing;
    EXPECT_DOUBLE_EQ(angle.GetDegrees(), 123.457);
    EXPECT_EQ(missing.GetDegrees(), 0.0);

    // Text that is no number reads as 0; a stored value comes back without normalising.
    CmdLineStateContainer text(HostCmdLine("Angle=west Other=725"));
    DegreeAngle other;
    text >> AstroKey("Angle") >> angle >> AstroKey("Other") >> other;
    EXPECT_EQ(angle.GetDegrees(), 0.0);
    EXPECT_EQ(other.GetDegrees(), 725.0);
}
