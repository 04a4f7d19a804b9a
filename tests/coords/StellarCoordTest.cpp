#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/PolarCoord.h"
#include "coords/StellarCoord.h"
#include "state/CmdLineStateContainer.h"

TEST(StellarCoord, ConvertsToAndFromDecimalDegreesAndRefusesEitherPartOutOfRange)
{
    const StellarCoord vega{PolarCoord(279.2347, 38.7837)};
    EXPECT_EQ(vega.GetDescription(), "RA: 18h 36m 56.3s   Dec: + 38\xB0 47' 01.3\"");
    const PolarCoord back(vega);
    EXPECT_NEAR(back.GetRA().GetDegrees(), 279.2347, 1e-9);
    EXPECT_NEAR(back.GetDec().GetDegrees(), 38.7837, 1e-9);
    // The line form: RA, then the sign as a token of its own, then Dec.
    for (const char* text : {"24 0 0 + 10 0 0", "1 2 3 + 91 0 0", "1 2 3", "1 2 3 -", ""}) {
        StringParser refused(text, " ", true);
        StellarCoord coord;
        EXPECT_FALSE(coord.Set(refused)) << text;
    }
}

TEST(StellarCoord, StateReadsBackAsTheSameDirection)
{
    // Six digits round 59.9999997 seconds to "60", which reading would refuse: such seconds are
    // written as the next minute.
    CmdLineStateContainer writer;
    writer << AstroKey("Star")
           << StellarCoord(HoursMinutesSeconds(23, 59, 59.9999997),
                           DegreesMinutesSecondsArc(16, 42, 58.0, -1));
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Star=<RA=\"0 0 0\" Dec=\"- 16 42 58\">");
    CmdLineStateContainer reader(writer.GetCmdLine());
    StellarCoord coord;
    reader >> AstroKey("Star") >> coord;
    EXPECT_EQ(coord.GetDescription(), "RA: 00h 00m 00.0s   Dec: - 16\xB0 42' 58.0\"");
}
