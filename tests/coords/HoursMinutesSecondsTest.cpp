#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "catalogues/StringParser.h"
#include "coords/AngleMath.h"
#include "coords/DegreeAngle.h"
#include "coords/HoursMinutesSeconds.h"
#include "coords/RadianAngle.h"
#include "state/CmdLineStateContainer.h"

namespace {

bool SetFrom(HoursMinutesSeconds& time, const char* text)
{
    StringParser parser(text, " ", true);
    return time.Set(parser);
}

} // namespace

TEST(HoursMinutesSeconds, InitCarriesTheTotalIntoWholeHoursAndMinutes)
{
    HoursMinutesSeconds time(1.5, 45.0, 90.0);
    EXPECT_EQ(time.GetHours(), 2);
    EXPECT_EQ(time.GetMinutes(), 16);
    EXPECT_NEAR(time.GetSeconds(), 30.0, 1e-9);

    time.Init(0.0, 0.0, 3600.0);
    EXPECT_EQ(time.GetHours(), 1);
    EXPECT_EQ(time.GetMinutes(), 0);
    EXPECT_NEAR(time.GetSeconds(), 0.0, 1e-9);
}

TEST(HoursMinutesSeconds, WholeFieldsAreStoredAsTheyAre)
{
    HoursMinutesSeconds time(7, 75, 12.5);
    EXPECT_EQ(time.GetHours(), 7);
    EXPECT_EQ(time.GetMinutes(), 75);
    EXPECT_EQ(time.GetSeconds(), 12.5);
}

TEST(HoursMinutesSeconds, FromRadiansAndBack)
{
    HoursMinutesSeconds time;
    time.Init(RadianAngle(pi / 2));
    EXPECT_EQ(time.GetHours(), 6);
    EXPECT_EQ(time.GetMinutes(), 0);
    EXPECT_NEAR(time.GetSeconds(), 0.0, 1e-9);

    HoursMinutesSeconds fromDegrees(DegreeAngle(112.5508333333));
    EXPECT_EQ(fromDegrees.GetHours(), 7);
    EXPECT_EQ(fromDegrees.GetMinutes(), 30);
    EXPECT_NEAR(fromDegrees.GetSeconds(), 12.2, 1e-6);

    EXPECT_NEAR(HoursMinutesSeconds(7, 30, 12.2).GetRadianAngle().GetRadians(),
                (7 * 3600 + 30 * 60 + 12.2) * twoPi / 86400, 1e-15);
    EXPECT_NEAR(HoursMinutesSeconds(18, 0, 0.0).GetDegreeAngle().GetDegrees(), 270.0, 1e-12);
}

TEST(HoursMinutesSeconds, NegativeAngleGivesNegativeFields)
{
    HoursMinutesSeconds time(DegreeAngle(-22.5));
    EXPECT_EQ(time.GetHours(), -1);
    EXPECT_EQ(time.GetMinutes(), -30);
    EXPECT_NEAR(time.GetSeconds(), 0.0, 1e-9);
    EXPECT_NEAR(time.GetDegreeAngle().GetDegrees(), -22.5, 1e-12);
}

TEST(HoursMinutesSeconds, FirstDescriptionTemplate)
{
    EXPECT_EQ(HoursMinutesSeconds(7, 5, 2.3).GetDescription1(), "07h 05m 02.3s");
    EXPECT_EQ(HoursMinutesSeconds(12, 30, 45.0).GetDescription1(), "12h 30m 45.0s");
    EXPECT_EQ(HoursMinutesSeconds(0, 0, 0.0).GetDescription1(), "00h 00m 00.0s");
    EXPECT_EQ(HoursMinutesSeconds(3, 10, 59.94).GetDescription1(), "03h 10m 59.9s");
}

TEST(HoursMinutesSeconds, FirstDescriptionCarriesSecondsThatWouldShowSixty)
{
    EXPECT_EQ(HoursMinutesSeconds(3, 10, 59.95).GetDescription1(), "03h 11m 00.0s");
    EXPECT_EQ(HoursMinutesSeconds(3, 59, 59.96).GetDescription1(), "04h 00m 00.0s");
    EXPECT_EQ(HoursMinutesSeconds(23, 59, 59.96).GetDescription1(), "00h 00m 00.0s");
    // The object itself is not changed by the carry.
    HoursMinutesSeconds time(23, 59, 59.96);
    time.GetDescription1();
    EXPECT_EQ(time.GetMinutes(), 59);
    EXPECT_EQ(time.GetSeconds(), 59.96);
}

TEST(HoursMinutesSeconds, SecondDescriptionRoundsTheMinuteAboveThirtySeconds)
{
    EXPECT_EQ(HoursMinutesSeconds(7, 30, 30.0).GetDescription2(), "07h 30m");
    EXPECT_EQ(HoursMinutesSeconds(7, 30, 30.5).GetDescription2(), "07h 31m");
    EXPECT_EQ(HoursMinutesSeconds(7, 59, 31.0).GetDescription2(), "08h 00m");
    EXPECT_EQ(HoursMinutesSeconds(23, 59, 31.0).GetDescription2(), "00h 00m");
}

TEST(HoursMinutesSeconds, SetReadsOneToThreeFields)
{
    HoursMinutesSeconds time;
    ASSERT_TRUE(SetFrom(time, "23 59 59.9"));
    EXPECT_EQ(time.GetHours(), 23);
    EXPECT_EQ(time.GetMinutes(), 59);
    EXPECT_NEAR(time.GetSeconds(), 59.9, 1e-9);

    ASSERT_TRUE(SetFrom(time, "7.5"));
    EXPECT_EQ(time.GetHours(), 7);
    EXPECT_EQ(time.GetMinutes(), 30);
    EXPECT_NEAR(time.GetSeconds(), 0.0, 1e-9);

    ASSERT_TRUE(SetFrom(time, "7 15"));
    EXPECT_EQ(time.GetHours(), 7);
    EXPECT_EQ(time.GetMinutes(), 15);
}

TEST(HoursMinutesSeconds, SetRefusesAFullHourMinuteOrSecondAndLeavesTheObject)
{
    for (const char* text : {"24", "25 0 0", "7 60", "7 0 60", "", "   ", "nan", "-inf", "7 nan",
                             "-24", "7 -60", "1e300"}) {
        HoursMinutesSeconds time(1, 2, 3.0);
        EXPECT_FALSE(SetFrom(time, text)) << text;
        EXPECT_EQ(time.GetHours(), 1) << text;
        EXPECT_EQ(time.GetMinutes(), 2) << text;
        EXPECT_EQ(time.GetSeconds(), 3.0) << text;
    }
}

TEST(HoursMinutesSeconds, SetTakesOnlyItsThreeTokens)
{
    StringParser parser("1 2 3 + 4 5 6", " ", true);
    HoursMinutesSeconds time;
    ASSERT_TRUE(time.Set(parser));
    EXPECT_EQ(time.GetHours(), 1);
    EXPECT_EQ(*parser.GetNextToken(), "+");
}

TEST(HoursMinutesSeconds, StreamsAsOneValueWithBlanks)
{
    CmdLineStateContainer writer;
    writer << AstroKey("RA") << HoursMinutesSeconds(7, 30, 12.5);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "RA=\"7 30 12.5\"");

    CmdLineStateContainer reader(writer.GetCmdLine());
    HoursMinutesSeconds time, missing(1, 2, 3.0);
    reader >> AstroKey("RA") >> time >> AstroKey("Absent") >> missing;
    EXPECT_EQ(time.GetHours(), 7);
    EXPECT_EQ(time.GetMinutes(), 30);
    EXPECT_NEAR(time.GetSeconds(), 12.5, 1e-9);
    EXPECT_EQ(missing.GetHours(), 0);
    EXPECT_EQ(missing.GetMinutes(), 0);
    EXPECT_EQ(missing.GetSeconds(), 0.0);
}

TEST(HoursMinutesSeconds, NegativeFieldsSurviveTheRoundTrip)
{
    CmdLineStateContainer writer;
    writer << AstroKey("RA") << HoursMinutesSeconds(-1, -30, -12.5);
    CmdLineStateContainer reader(writer.GetCmdLine());
    HoursMinutesSeconds time;
    reader >> AstroKey("RA") >> time;
    EXPECT_EQ(time.GetHours(), -1);
    EXPECT_EQ(time.GetMinutes(), -30);
    EXPECT_NEAR(time.GetSeconds(), -12.5, 1e-9);
}

TEST(HoursMinutesSeconds, SecondsThatRoundToSixtyAreWrittenAsTheNextMinute)
{
    struct Case
    {
        HoursMinutesSeconds Time;
        const char* Written;
    };
    const Case cases[] = {
        {HoursMinutesSeconds(7, 59, 59.9999997), "RA=\"8 0 0\""},
        {HoursMinutesSeconds(23, 59, 59.9999999), "RA=\"0 0 0\""},
        {HoursMinutesSeconds(-2, -59, -59.9999999), "RA=\"-3 0 0\""},
        {HoursMinutesSeconds(7, 75, 12.5), "RA=\"8 15 12.5\""},
        {HoursMinutesSeconds(24, 0, 0.0), "RA=\"0 0 0\""},
    };
    for (const Case& c : cases) {
        CmdLineStateContainer writer;
        writer << AstroKey("RA") << c.Time;
        EXPECT_EQ(writer.GetCmdLine().GetRawText(), c.Written);

        // What is written reads back as the same angle, a whole day aside.
        CmdLineStateContainer reader(writer.GetCmdLine());
        HoursMinutesSeconds time;
        reader >> AstroKey("RA") >> time;
        double day = twoPi;
        double difference = std::fmod(
            std::fabs(time.GetRadianAngle().GetRadians() - c.Time.GetRadianAngle().GetRadians()),
            day);
        EXPECT_LT(std::min(difference, day - difference), 1e-9) << c.Written;
    }
}

TEST(HoursMinutesSeconds, FieldsFarOutsideTheCircleDoNotOverflowTheCarry)
{
    HoursMinutesSeconds time(2147483647, 2147483647, 59.99);
    // The carry stops at the top of int, then the usual wraps apply.
    EXPECT_EQ(time.GetDescription1(), "00h 00m 00.0s");
    time.Init(1e300, 0.0, 0.0);
    EXPECT_EQ(time.GetHours(), 2147483647);
}
