#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/DegreeAngle.h"
#include "coords/HoursMinutesSeconds.h"

TEST(HoursMinutesSeconds, TextsCarryWhatWouldShowAsSixtyAndWrapTheDay)
{
    const std::tuple<HoursMinutesSeconds, const char*, const char*> rows[] = {
        {HoursMinutesSeconds(1.5, 45.0, 90.0), "02h 16m 30.0s", "02h 16m"},
        {{7, 30, 30.0}, "07h 30m 30.0s", "07h 30m"},
        {{3, 10, 59.94}, "03h 10m 59.9s", "03h 11m"},
        {{3, 10, 59.95}, "03h 11m 00.0s", "03h 11m"},
        {{3, 59, 59.96}, "04h 00m 00.0s", "04h 00m"},
        {{23, 59, 59.96}, "00h 00m 00.0s", "00h 00m"},
        {{23, 59, 31.0}, "23h 59m 31.0s", "00h 00m"},
        // Fields far beyond the circle stop at the top of int instead of overflowing the carry.
        {{2147483647, 2147483647, 59.99}, "00h 00m 00.0s", "00h 00m"},
    };
    for (const auto& [time, first, second] : rows) {
        EXPECT_EQ(time.GetDescription1(), first);
        EXPECT_EQ(time.GetDescription2(), second) << first;
    }
    EXPECT_EQ(HoursMinutesSeconds(1e300, 0.0, 0.0).GetHours(), 2147483647);
    // A negative angle gives negative fields; nothing wraps it.
    const HoursMinutesSeconds west(DegreeAngle(-22.5));
    EXPECT_EQ(west.GetHours(), -1);
    EXPECT_EQ(west.GetMinutes(), -30);
    EXPECT_NEAR(west.GetDegreeAngle().GetDegrees(), -22.5, 1e-12);
}

TEST(HoursMinutesSeconds, SetReadsOneToThreeFieldsAndRefusesAFullHourMinuteOrSecond)
{
    HoursMinutesSeconds time;
    StringParser full("23 59 59.9 + 4", " ", true);
    ASSERT_TRUE(time.Set(full));
    EXPECT_EQ(time.GetDescription1(), "23h 59m 59.9s");
    EXPECT_EQ(*full.GetNextToken(), "+") << "only its three tokens are taken";

    for (const char* text : {"24", "25 0 0", "7 60", "7 0 60", "", "   ", "nan", "-inf", "7 nan",
                             "-24", "7 -60", "1e300"}) {
        HoursMinutesSeconds untouched(1, 2, 3.0);
        StringParser parser(text, " ", true);
        EXPECT_FALSE(untouched.Set(parser)) << text;
        EXPECT_EQ(untouched.GetDescription1(), "01h 02m 03.0s") << text;
    }
}
