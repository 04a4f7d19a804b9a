#include <gtest/gtest.h>

#include "state/CmdLineStateContainer.h"

namespace {

// Writes a pair of angles the way a coordinate class does.
void WritePair(StateContainer& sc, const char* key, double ra, double dec)
{
    sc << AstroKey(key) << NewLevel << AstroKey("RA") << ra << AstroKey("Dec") << dec << EndLevel;
}

void ReadPair(StateContainer& sc, const char* key, double& ra, double& dec)
{
    sc >> AstroKey(key) >> GoToLevel >> AstroKey("RA") >> ra >> AstroKey("Dec") >> dec >> EndLevel;
}

} // namespace

TEST(CmdLineStateContainer, LevelBecomesOneBracketedParameter)
{
    CmdLineStateContainer sc;
    WritePair(sc, "Center", 10.5, -20);
    EXPECT_EQ(sc.GetCmdLine().GetRawText(), "Center=<RA=10.5 Dec=-20>");
}

TEST(CmdLineStateContainer, ReadsBackWhatWasWrittenAndZeroForMissingKeys)
{
    CmdLineStateContainer writer;
    WritePair(writer, "Center", 10.5, -20);

    CmdLineStateContainer reader(writer.GetCmdLine());
    double ra = -1, dec = -1;
    ReadPair(reader, "Center", ra, dec);
    EXPECT_DOUBLE_EQ(ra, 10.5);
    EXPECT_DOUBLE_EQ(dec, -20);

    ReadPair(reader, "Elsewhere", ra, dec);
    EXPECT_EQ(ra, 0);
    EXPECT_EQ(dec, 0);
}

TEST(CmdLineStateContainer, EmptyLevelLeavesNoTrace)
{
    CmdLineStateContainer sc;
    sc << AstroKey("Nothing") << NewLevel << EndLevel;
    sc << AstroKey("Outer") << NewLevel << AstroKey("Inner") << NewLevel << EndLevel << EndLevel;
    EXPECT_EQ(sc.GetCmdLine().GetRawText(), "");
}

TEST(CmdLineStateContainer, BlanksInKeysBecomeUnderscoresBothWays)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Orientation Type") << 1;
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Orientation_Type=1");

    CmdLineStateContainer reader(writer.GetCmdLine());
    int type = 0;
    reader >> AstroKey("Orientation Type") >> type;
    EXPECT_EQ(type, 1);
}

TEST(CmdLineStateContainer, DoublesKeepSixSignificantDigits)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Value") << 123.456789 << AstroKey("Tiny") << 0.000001234567;
    CmdLineStateContainer reader(writer.GetCmdLine());
    double value = 0, tiny = 0;
    reader >> AstroKey("Value") >> value >> AstroKey("Tiny") >> tiny;
    EXPECT_DOUBLE_EQ(value, 123.457);
    EXPECT_DOUBLE_EQ(tiny, 1.23457e-06);
}

TEST(CmdLineStateContainer, TextsWithBlanksAndBracketsRoundTrip)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Root") << NewLevel;
    writer << AstroKey("Arc") << "+ 12 30 15.5" << AstroKey("Odd") << "a<b> \"c\\d\"";
    writer << AstroKey("Empty") << "" << AstroKey("Flag") << true;
    writer << EndLevel;

    CmdLineStateContainer reader(writer.GetCmdLine());
    std::string arc, odd, empty = "x";
    bool flag = false;
    reader >> AstroKey("Root") >> GoToLevel >> AstroKey("Arc") >> arc >> AstroKey("Odd") >> odd >>
        AstroKey("Empty") >> empty >> AstroKey("Flag") >> flag >> EndLevel;
    EXPECT_EQ(arc, "+ 12 30 15.5");
    EXPECT_EQ(odd, "a<b> \"c\\d\"");
    EXPECT_EQ(empty, "");
    EXPECT_TRUE(flag);
}

TEST(CmdLineStateContainer, RootLevelWithEmptyKeyJoinsTheParentText)
{
    CmdLineStateContainer sc;
    sc << AstroKey("") << NewLevel << AstroKey("A") << 1 << AstroKey("B") << 2 << EndLevel;
    EXPECT_EQ(sc.GetCmdLine().GetRawText(), "A=1 B=2");
}

TEST(CmdLineStateContainer, DeepNestingReadsTheRightLevel)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Map") << NewLevel;
    WritePair(writer, "Center", 1, 2);
    WritePair(writer, "Zenith", 3, 4);
    writer << AstroKey("Radius") << 30.0 << EndLevel;

    CmdLineStateContainer reader(writer.GetCmdLine());
    double ra = 0, dec = 0, radius = 0;
    reader >> AstroKey("Map") >> GoToLevel;
    ReadPair(reader, "Zenith", ra, dec);
    reader >> AstroKey("Radius") >> radius >> EndLevel;
    EXPECT_EQ(ra, 3);
    EXPECT_EQ(dec, 4);
    EXPECT_EQ(radius, 30);
}
