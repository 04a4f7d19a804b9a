#include <gtest/gtest.h>

#include <vector>

#include "ScratchFile.h"
#include "catalogues/StringParser.h"
#include "coords/PolarCoord.h"
#include "coords/StellarCoord.h"
#include "host/HostFile.h"
#include "state/CmdLineStateContainer.h"

TEST(PolarCoord, BuildsFromTwoNormalisedAngles)
{
    PolarCoord coord(370.0, -20.0);
    EXPECT_DOUBLE_EQ(coord.GetRA().GetDegrees(), 10.0);
    EXPECT_EQ(coord.GetDec().GetDegrees(), -20.0);
    EXPECT_EQ(PolarCoord().GetRA().GetDegrees(), 0.0);
    EXPECT_EQ(PolarCoord().GetDec().GetDegrees(), 0.0);
}

TEST(PolarCoord, DescriptionUsesTheDefaultNumberForm)
{
    EXPECT_EQ(PolarCoord(10.5, -20.0).GetDescription(), "RA = 10.5 Dec = -20");
    EXPECT_EQ(PolarCoord(123.456789, 0.0001).GetDescription(), "RA = 123.457 Dec = 0.0001");
    EXPECT_EQ(PolarCoord(0.0, 0.00001).GetDescription(), "RA = 0 Dec = 1e-05");
}

TEST(PolarCoord, SetReadsTwoDecimalDegreesWithoutNormalising)
{
    PolarCoord coord;
    StringParser parser("400.5, -12.25", ", ", true);
    ASSERT_TRUE(coord.Set(parser));
    EXPECT_EQ(coord.GetRA().GetDegrees(), 400.5);
    EXPECT_EQ(coord.GetDec().GetDegrees(), -12.25);
}

TEST(PolarCoord, SetWithAMissingTokenFailsAndKeepsWhatItRead)
{
    PolarCoord coord(1.0, 2.0);
    StringParser empty("", " ", true);
    EXPECT_FALSE(coord.Set(empty));
    EXPECT_TRUE(coord == PolarCoord(1.0, 2.0));

    StringParser raOnly("  45  ", " ", true);
    EXPECT_FALSE(coord.Set(raOnly));
    EXPECT_EQ(coord.GetRA().GetDegrees(), 45.0);
    EXPECT_EQ(coord.GetDec().GetDegrees(), 2.0);
}

TEST(PolarCoord, DumpWritesRAThenDecSixteenBytes)
{
    ScratchFile scratch;
    {
        HostFile file(scratch.GetPath(), HostFile::WriteNew);
        EXPECT_TRUE(PolarCoord(1.0, -2.0).Dump(file));
    }
    std::vector<unsigned char> bytes = scratch.Bytes();
    // 1.0 is 0x3FF0000000000000 and -2.0 is 0xC000000000000000, lowest byte first.
    EXPECT_EQ(bytes, (std::vector<unsigned char>{0, 0, 0, 0, 0, 0, 0xF0, 0x3F, //
                                                 0, 0, 0, 0, 0, 0, 0, 0xC0}));

    HostFile closed;
    EXPECT_FALSE(PolarCoord(1.0, -2.0).Dump(closed));
}

TEST(PolarCoord, WritesALevelWithRAAndDec)
{
    CmdLineStateContainer sc;
    sc << AstroKey("Center") << PolarCoord(10.5, -20.0);
    EXPECT_EQ(sc.GetCmdLine().GetRawText(), "Center=<RA=10.5 Dec=-20>");
}

TEST(PolarCoord, ReadsBackFromACommandStringAndAMissingKeyGivesZero)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Center") << PolarCoord(10.5, -20.0) << AstroKey("Zenith Offset")
           << PolarCoord(270.0, 60.0);

    CmdLineStateContainer reader(writer.GetCmdLine());
    PolarCoord center, offset, missing(5.0, 6.0);
    reader >> AstroKey("Center") >> center >> AstroKey("Zenith Offset") >> offset >>
        AstroKey("Elsewhere") >> missing;
    EXPECT_TRUE(center == PolarCoord(10.5, -20.0));
    EXPECT_TRUE(offset == PolarCoord(270.0, 60.0));
    EXPECT_TRUE(missing == PolarCoord(0.0, 0.0));
}

TEST(PolarCoord, ReadsInsideNestedLevelsWithSixSignificantDigits)
{
    CmdLineStateContainer writer;
    writer << AstroKey("View") << NewLevel << AstroKey("Center")
           << PolarCoord(123.456789, -0.000123456789) << EndLevel;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "View=<Center=<RA=123.457 Dec=-0.000123457>>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    PolarCoord center;
    reader >> AstroKey("View") >> GoToLevel >> AstroKey("Center") >> center >> EndLevel;
    EXPECT_DOUBLE_EQ(center.GetRA().GetDegrees(), 123.457);
    EXPECT_DOUBLE_EQ(center.GetDec().GetDegrees(), -0.000123457);
}

TEST(PolarCoord, ConvertsToTheCatalogueFormAndBack)
{
    PolarCoord vega(279.2347, 38.7837);
    StellarCoord stellar(vega);
    EXPECT_EQ(stellar.GetRA().GetHours(), 18);
    EXPECT_EQ(stellar.GetRA().GetMinutes(), 36);
    EXPECT_NEAR(stellar.GetRA().GetSeconds(), 56.328, 1e-6);
    EXPECT_EQ(stellar.GetDec().GetSign(), 1);
    EXPECT_EQ(stellar.GetDec().GetDegrees(), 38);
    EXPECT_EQ(stellar.GetDec().GetMinutes(), 47);
    EXPECT_NEAR(stellar.GetDec().GetSeconds(), 1.32, 1e-6);

    PolarCoord back(stellar);
    EXPECT_NEAR(back.GetRA().GetDegrees(), 279.2347, 1e-9);
    EXPECT_NEAR(back.GetDec().GetDegrees(), 38.7837, 1e-9);
}
