#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/PolarCoord.h"
#include "coords/StellarCoord.h"
#include "state/CmdLineStateContainer.h"

TEST(StellarCoord, DefaultsToZeroWithAPositiveSign)
{
    StellarCoord coord;
    EXPECT_EQ(coord.GetRA().GetHours(), 0);
    EXPECT_EQ(coord.GetDec().GetSign(), 1);
    EXPECT_EQ(coord.GetDescription(), "RA: 00h 00m 00.0s   Dec: + 00\xB0 00' 00.0\"");
}

TEST(StellarCoord, DescriptionJoinsBothFirstDescriptions)
{
    StellarCoord coord(HoursMinutesSeconds(18, 36, 56.3), DegreesMinutesSecondsArc(38, 47, 1.3, 1));
    EXPECT_EQ(coord.GetDescription(), "RA: 18h 36m 56.3s   Dec: + 38\xB0 47' 01.3\"");

    StellarCoord south(PolarCoord(0.0, -0.5));
    EXPECT_EQ(south.GetDescription(), "RA: 00h 00m 00.0s   Dec: - 00\xB0 30' 00.0\"");
}

TEST(StellarCoord, SetReadsTheCatalogueLineForm)
{
    StringParser parser("6,45,8.9,-,16,42,58.0,,,,Sirius", ",", true);
    StellarCoord sirius;
    ASSERT_TRUE(sirius.Set(parser));
    EXPECT_EQ(sirius.GetRA().GetHours(), 6);
    EXPECT_EQ(sirius.GetRA().GetMinutes(), 45);
    EXPECT_NEAR(sirius.GetRA().GetSeconds(), 8.9, 1e-9);
    EXPECT_EQ(sirius.GetDec().GetSign(), -1);
    EXPECT_EQ(sirius.GetDec().GetDegrees(), 16);
    EXPECT_EQ(sirius.GetDec().GetMinutes(), 42);
    EXPECT_NEAR(sirius.GetDec().GetSeconds(), 58.0, 1e-9);
    EXPECT_EQ(*parser.GetNextToken(), "Sirius");

    PolarCoord position(sirius);
    EXPECT_NEAR(position.GetRA().GetDegrees(), 101.2870833, 1e-6);
    EXPECT_NEAR(position.GetDec().GetDegrees(), -16.7161111, 1e-6);
}

TEST(StellarCoord, SetFailsWhenEitherPartIsRefused)
{
    for (const char* text : {"24 0 0 + 10 0 0", "1 2 3 + 91 0 0", "1 2 3", "1 2 3 -", ""}) {
        StringParser parser(text, " ", true);
        StellarCoord coord;
        EXPECT_FALSE(coord.Set(parser)) << text;
    }
}

TEST(StellarCoord, StreamsALevelOfHoursAndArc)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Star")
           << StellarCoord(HoursMinutesSeconds(6, 45, 8.9),
                           DegreesMinutesSecondsArc(16, 42, 58.0, -1));
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Star=<RA=\"6 45 8.9\" Dec=\"- 16 42 58\">");

    CmdLineStateContainer reader(writer.GetCmdLine());
    StellarCoord coord,
        missing(HoursMinutesSeconds(1, 2, 3.0), DegreesMinutesSecondsArc(1, 2, 3.0, -1));
    reader >> AstroKey("Star") >> coord >> AstroKey("Nothing") >> missing;
    EXPECT_EQ(coord.GetDescription(), "RA: 06h 45m 08.9s   Dec: - 16\xB0 42' 58.0\"");
    EXPECT_EQ(missing.GetDescription(), StellarCoord().GetDescription());
}
