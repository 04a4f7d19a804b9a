#include <gtest/gtest.h>

#include <limits>

#include "catalogues/StringParser.h"
#include "coords/DegreeAngle.h"
#include "coords/DegreesMinutesSecondsArc.h"

TEST(DegreesMinutesSecondsArc, TextsCarryWhatWouldShowAsSixtyButDegreesNeverWrap)
{
    const std::tuple<DegreesMinutesSecondsArc, const char*, const char*> rows[] = {
        {DegreesMinutesSecondsArc(DegreeAngle(-12.5043055556)), "- 12\xB0 30' 15.5\"",
         "- 12\xB0 30'"},
        // 75 minutes carry into a degree; the sign multiplies the whole.
        {DegreesMinutesSecondsArc(10.0, 75.0, 0.0, -1), "- 11\xB0 15' 00.0\"", "- 11\xB0 15'"},
        {{0, 30, 0.0, -1}, "- 00\xB0 30' 00.0\"", "- 00\xB0 30'"},
        {{5, 3, 30.0, -1}, "- 05\xB0 03' 30.0\"", "- 05\xB0 03'"},
        {{1, 2, 59.94, 1}, "+ 01\xB0 02' 59.9\"", "+ 01\xB0 03'"},
        {{89, 59, 59.96, 1}, "+ 90\xB0 00' 00.0\"", "+ 90\xB0 00'"},
        {{359, 59, 59.96, 1}, "+ 360\xB0 00' 00.0\"", "+ 360\xB0 00'"},
    };
    for (const auto& [arc, first, second] : rows) {
        EXPECT_EQ(arc.GetDescription1(), first);
        EXPECT_EQ(arc.GetDescription2(), second) << first;
    }
    EXPECT_EQ(DegreesMinutesSecondsArc(0, 30, 0.0, -1).GetValue(), -0.5);
    // Rounding to whole seconds, as the location dialog shows a place, carries the same way.
    DegreesMinutesSecondsArc up(12, 59, 59.7, 1), down(12, 30, 15.4, -1);
    up.Roundoff();
    down.Roundoff();
    EXPECT_EQ(up.GetDescription1(), "+ 13\xB0 00' 00.0\"");
    EXPECT_EQ(down.GetDescription1(), "- 12\xB0 30' 15.0\"");
    // Values far outside any circle, or none at all, still give bounded fields.
    up.Init(-1e300);
    up.Roundoff();
    EXPECT_EQ(up.GetDegrees(), 2147483647);
    up.Init(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(up.GetDegrees(), 0);
}

TEST(DegreesMinutesSecondsArc, SetTakesTheSignAsATokenOfItsOwnAndAcceptsSixty)
{
    const std::pair<const char*, double> read[] = {
        {"- 5 10 20", -(5 + 10 / 60.0 + 20 / 3600.0)},
        // A sign joined to the number is still only the sign: the rest of the token is lost.
        {"-5 10 20", -(10 + 20 / 60.0)},
        {"45", 45.0},
        {"90 60 60", 91 + 1 / 60.0},
        {"12.9 30.7 15.25", 12 + 30 / 60.0 + 15.25 / 3600},
    };
    for (const auto& [text, value] : read) {
        StringParser parser(text, " ", true);
        DegreesMinutesSecondsArc arc;
        EXPECT_TRUE(arc.Set(parser)) << text;
        EXPECT_NEAR(arc.GetValue(), value, 1e-12) << text;
    }
    for (const char* text : {"", "-", "+", "91", "- 91", "10 61", "10 20 60.5", "10 20 nan",
                             "10 20 -61", "10 -61", "99999999999999999999"}) {
        StringParser parser(text, " ", true);
        DegreesMinutesSecondsArc arc;
        EXPECT_FALSE(arc.Set(parser)) << text;
    }
}
