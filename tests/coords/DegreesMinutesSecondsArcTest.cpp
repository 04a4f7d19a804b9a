#include <gtest/gtest.h>

#include <sstream>

#include "catalogues/StringParser.h"
#include "coords/DegreeAngle.h"
#include "coords/DegreesMinutesSecondsArc.h"
#include "state/CmdLineStateContainer.h"

namespace {

bool SetFrom(DegreesMinutesSecondsArc& arc, const char* text)
{
    StringParser parser(text, " ", true);
    return arc.Set(parser);
}

void ExpectFields(const DegreesMinutesSecondsArc& arc, int sign, int degrees, int minutes,
                  double seconds)
{
    EXPECT_EQ(arc.GetSign(), sign);
    EXPECT_EQ(arc.GetDegrees(), degrees);
    EXPECT_EQ(arc.GetMinutes(), minutes);
    EXPECT_NEAR(arc.GetSeconds(), seconds, 1e-9);
}

} // namespace

TEST(DegreesMinutesSecondsArc, InitSplitsMagnitudeAndSign)
{
    DegreesMinutesSecondsArc arc;
    double value = -(12.0 + 30.0 / 60.0 + 15.5 / 3600.0);
    arc.Init(value);
    ExpectFields(arc, -1, 12, 30, 15.5);
    EXPECT_NEAR(arc.GetValue(), value, 1e-12);

    arc.Init(0.0);
    ExpectFields(arc, 1, 0, 0, 0.0);
    arc.Init(-0.5);
    ExpectFields(arc, -1, 0, 30, 0.0);
}

TEST(DegreesMinutesSecondsArc, FourValueConstructorGoesThroughInit)
{
    // 75 minutes carry into a degree; the sign multiplies the whole.
    ExpectFields(DegreesMinutesSecondsArc(10.0, 75.0, 0.0, -1), -1, 11, 15, 0.0);
    ExpectFields(DegreesMinutesSecondsArc(DegreeAngle(38.7837)), 1, 38, 47, 1.32);
    // Stored as they are when given as whole fields.
    ExpectFields(DegreesMinutesSecondsArc(10, 75, 61.0, -1), -1, 10, 75, 61.0);
}

TEST(DegreesMinutesSecondsArc, MinusZeroDegreesKeepsItsSign)
{
    DegreesMinutesSecondsArc arc(0, 30, 0.0, -1);
    EXPECT_EQ(arc.GetValue(), -0.5);
    EXPECT_EQ(arc.GetDegreeAngle().GetDegrees(), -0.5);
    EXPECT_EQ(arc.GetDescription2(), "- 00\xB0 30'");
}

TEST(DegreesMinutesSecondsArc, DescriptionTemplatesUseTheLatin1DegreeMark)
{
    EXPECT_EQ(DegreesMinutesSecondsArc(12, 30, 15.5, 1).GetDescription1(), "+ 12\xB0 30' 15.5\"");
    EXPECT_EQ(DegreesMinutesSecondsArc(5, 3, 2.0, -1).GetDescription1(), "- 05\xB0 03' 02.0\"");
    EXPECT_EQ(DegreesMinutesSecondsArc(12, 30, 15.5, 1).GetDescription2(), "+ 12\xB0 30'");
    EXPECT_EQ(DegreesMinutesSecondsArc(5, 3, 45.0, -1).GetDescription2(), "- 05\xB0 04'");
    EXPECT_EQ(DegreesMinutesSecondsArc(5, 3, 30.0, -1).GetDescription2(), "- 05\xB0 03'");
    // One byte of 0xB0, not a two-byte UTF-8 sequence.
    EXPECT_EQ(DegreesMinutesSecondsArc(1, 2, 3.0, 1).GetDescription2().size(), 9u);
}

TEST(DegreesMinutesSecondsArc, DescriptionCarriesButDegreesNeverWrap)
{
    EXPECT_EQ(DegreesMinutesSecondsArc(89, 59, 59.96, 1).GetDescription1(), "+ 90\xB0 00' 00.0\"");
    EXPECT_EQ(DegreesMinutesSecondsArc(359, 59, 59.96, 1).GetDescription1(),
              "+ 360\xB0 00' 00.0\"");
    EXPECT_EQ(DegreesMinutesSecondsArc(89, 59, 31.0, -1).GetDescription2(), "- 90\xB0 00'");
    EXPECT_EQ(DegreesMinutesSecondsArc(1, 2, 59.94, 1).GetDescription1(), "+ 01\xB0 02' 59.9\"");
}

TEST(DegreesMinutesSecondsArc, RoundoffCarriesWholeSeconds)
{
    DegreesMinutesSecondsArc arc(12, 59, 59.7, 1);
    arc.Roundoff();
    ExpectFields(arc, 1, 13, 0, 0.0);

    DegreesMinutesSecondsArc down(12, 30, 15.4, -1);
    down.Roundoff();
    ExpectFields(down, -1, 12, 30, 15.0);

    DegreesMinutesSecondsArc up(12, 30, 15.5, -1);
    up.Roundoff();
    ExpectFields(up, -1, 12, 30, 16.0);

    DegreesMinutesSecondsArc minute(12, 30, 59.5, 1);
    minute.Roundoff();
    ExpectFields(minute, 1, 12, 31, 0.0);
}

TEST(DegreesMinutesSecondsArc, SignStandsAsATokenOfItsOwn)
{
    DegreesMinutesSecondsArc arc;
    ASSERT_TRUE(SetFrom(arc, "- 5 10 20"));
    ExpectFields(arc, -1, 5, 10, 20.0);

    // A sign joined to the number is still only the sign: the rest of the token is lost.
    ASSERT_TRUE(SetFrom(arc, "-5 10 20"));
    ExpectFields(arc, -1, 10, 20, 0.0);

    ASSERT_TRUE(SetFrom(arc, "+ 45 30 12.5"));
    ExpectFields(arc, 1, 45, 30, 12.5);

    ASSERT_TRUE(SetFrom(arc, "45"));
    ExpectFields(arc, 1, 45, 0, 0.0);
}

TEST(DegreesMinutesSecondsArc, SetAcceptsSixtyMinutesAndSecondsWithoutCarry)
{
    DegreesMinutesSecondsArc arc;
    ASSERT_TRUE(SetFrom(arc, "90 60 60"));
    ExpectFields(arc, 1, 90, 60, 60.0);
    // Degrees and minutes are whole numbers.
    ASSERT_TRUE(SetFrom(arc, "12.9 30.7 15.25"));
    ExpectFields(arc, 1, 12, 30, 15.25);
}

TEST(DegreesMinutesSecondsArc, SetRefusesWhatIsOutOfRange)
{
    for (const char* text : {"", "-", "+", "91", "- 91", "10 61", "10 20 60.5", "10 20 nan",
                             "10 20 -61", "10 -61", "99999999999999999999"}) {
        DegreesMinutesSecondsArc arc;
        EXPECT_FALSE(SetFrom(arc, text)) << text;
    }
}

TEST(DegreesMinutesSecondsArc, SetKeepsTheFieldsItReadBeforeARefusal)
{
    DegreesMinutesSecondsArc arc(1, 2, 3.0, 1);
    EXPECT_FALSE(SetFrom(arc, "- 45 61"));
    EXPECT_EQ(arc.GetSign(), -1);
    EXPECT_EQ(arc.GetDegrees(), 45);

    DegreesMinutesSecondsArc untouched(1, 2, 3.0, -1);
    EXPECT_FALSE(SetFrom(untouched, ""));
    ExpectFields(untouched, -1, 1, 2, 3.0);
}

TEST(DegreesMinutesSecondsArc, WritesCommaSeparatedForTheStarTextForm)
{
    std::ostringstream out;
    out << DegreesMinutesSecondsArc(12, 30, 15.5, 1) << ' '
        << DegreesMinutesSecondsArc(0, 5, 0.0, -1);
    EXPECT_EQ(out.str(), "+,12,30,15.5 -,0,5,0");
}

TEST(DegreesMinutesSecondsArc, StreamsAsOneValueAndReadsBlanksOrCommas)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Dec") << DegreesMinutesSecondsArc(12, 30, 15.5, -1);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Dec=\"- 12 30 15.5\"");

    CmdLineStateContainer reader(writer.GetCmdLine());
    DegreesMinutesSecondsArc arc, missing(1, 2, 3.0, -1);
    reader >> AstroKey("Dec") >> arc >> AstroKey("Absent") >> missing;
    ExpectFields(arc, -1, 12, 30, 15.5);
    ExpectFields(missing, 1, 0, 0, 0.0);

    CmdLineStateContainer commas(HostCmdLine("Dec=-,12,30,15.5"));
    commas >> AstroKey("Dec") >> arc;
    ExpectFields(arc, -1, 12, 30, 15.5);
}

TEST(DegreesMinutesSecondsArc, HugeValuesHoldTheFieldsWithoutOverflow)
{
    DegreesMinutesSecondsArc arc;
    arc.Init(-1e300);
    EXPECT_EQ(arc.GetSign(), -1);
    EXPECT_EQ(arc.GetDegrees(), 2147483647);
    arc.Roundoff();
    EXPECT_EQ(arc.GetDegrees(), 2147483647);
    EXPECT_FALSE(arc.GetDescription1().empty());
}
