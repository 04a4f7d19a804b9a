#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/PolarCoord.h"
#include "state/CmdLineStateContainer.h"

TEST(PolarCoord, SetReadsTwoDecimalDegreesAndKeepsTheRAWhenTheDecIsMissing)
{
    PolarCoord coord(1.0, 2.0);
    StringParser both("400.5, -12.25", ", ", true);
    ASSERT_TRUE(coord.Set(both));
    EXPECT_EQ(coord.GetRA().GetDegrees(), 400.5) << "stored without normalising";
    StringParser raOnly("  45  ", " ", true);
    EXPECT_FALSE(coord.Set(raOnly));
    EXPECT_TRUE(coord == PolarCoord(45.0, -12.25));
}

TEST(PolarCoord, StateIsALevelReadBackInsideNestedLevelsWithSixDigits)
{
    CmdLineStateContainer writer;
    writer << AstroKey("View") << NewLevel << AstroKey("Center")
           << PolarCoord(123.456789, -0.000123456789) << EndLevel << AstroKey("Zenith Offset")
           << PolarCoord(270.0, 60.0);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(),
              "View=<Center=<RA=123.457 Dec=-0.000123457>> Zenith_Offset=<RA=270 Dec=60>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    PolarCoord center, offset, missing(5.0, 6.0);
    reader >> AstroKey("View") >> GoToLevel >> AstroKey("Center") >> center >> EndLevel >>
        AstroKey("Zenith Offset") >> offset >> AstroKey("Elsewhere") >> missing;
    EXPECT_TRUE(center == PolarCoord(123.457, -0.000123457));
    EXPECT_TRUE(offset == PolarCoord(270.0, 60.0));
    EXPECT_TRUE(missing == PolarCoord(0.0, 0.0));
}
