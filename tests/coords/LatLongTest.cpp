#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/LatLong.h"
#include "state/CmdLineStateContainer.h"

namespace {

// Runs LatLong::Set over a line of blank-separated tokens.
bool SetFrom(LatLong& place, const char* text)
{
    StringParser parser(text, " ", true);
    return place.Set(parser);
}

} // namespace

TEST(LatLong, SetReadsHemisphereAndSideLetters)
{
    LatLong place;
    ASSERT_TRUE(SetFrom(place, "37.8 N 122.4 W"));
    EXPECT_DOUBLE_EQ(place.GetLatitude().GetDegrees(), 37.8);
    EXPECT_DOUBLE_EQ(place.GetLongitude().GetDegrees(), 122.4);

    ASSERT_TRUE(SetFrom(place, "33.9 S 151.2 E"));
    EXPECT_DOUBLE_EQ(place.GetLatitude().GetDegrees(), -33.9);
    EXPECT_DOUBLE_EQ(place.GetLongitude().GetDegrees(), 208.8);
}

TEST(LatLong, LettersIgnoreCaseButMustBeTheWholeToken)
{
    LatLong place;
    ASSERT_TRUE(SetFrom(place, "33.9 s 151.2 e"));
    EXPECT_DOUBLE_EQ(place.GetLatitude().GetDegrees(), -33.9);
    EXPECT_DOUBLE_EQ(place.GetLongitude().GetDegrees(), 208.8);

    ASSERT_TRUE(SetFrom(place, "33.9 South 151.2 East"));
    EXPECT_DOUBLE_EQ(place.GetLatitude().GetDegrees(), 33.9);
    EXPECT_DOUBLE_EQ(place.GetLongitude().GetDegrees(), 151.2);
}

TEST(LatLong, AMissingSideLetterMeansWest)
{
    LatLong place;
    ASSERT_TRUE(SetFrom(place, "10 N 20"));
    EXPECT_EQ(place.GetLatitude().GetDegrees(), 10.0);
    EXPECT_EQ(place.GetLongitude().GetDegrees(), 20.0);
}

TEST(LatLong, TwoBareNumbersFailBecauseTheSecondIsTakenAsTheLetter)
{
    LatLong place(1.0, 2.0);
    EXPECT_FALSE(SetFrom(place, "10 20"));
    EXPECT_EQ(place.GetLatitude().GetDegrees(), 10.0);
    EXPECT_EQ(place.GetLongitude().GetDegrees(), 2.0);
}

TEST(LatLong, NothingToReadFailsWithoutChange)
{
    LatLong place(1.0, 2.0);
    EXPECT_FALSE(SetFrom(place, "   "));
    EXPECT_TRUE(place == LatLong(1.0, 2.0));
}

TEST(LatLong, SetStoresWithoutNormalising)
{
    LatLong place;
    ASSERT_TRUE(SetFrom(place, "10 N 400 E"));
    EXPECT_EQ(place.GetLongitude().GetDegrees(), -40.0);
    ASSERT_TRUE(SetFrom(place, "10 N 400 W"));
    EXPECT_EQ(place.GetLongitude().GetDegrees(), 400.0);
}

TEST(LatLong, StreamsALevelWithLatAndLong)
{
    CmdLineStateContainer writer;
    writer << AstroKey("Location") << LatLong(-33.9, 208.8);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Location=<Lat=-33.9 Long=208.8>");

    CmdLineStateContainer reader(writer.GetCmdLine());
    LatLong place, missing(5.0, 6.0);
    reader >> AstroKey("Location") >> place >> AstroKey("Home") >> missing;
    EXPECT_TRUE(place == LatLong(-33.9, 208.8));
    EXPECT_TRUE(missing == LatLong(0.0, 0.0));
}
