#include <gtest/gtest.h>

#include "catalogues/StringParser.h"
#include "coords/LatLong.h"
#include "state/CmdLineStateContainer.h"

TEST(LatLong, ReadsHemisphereAndSideLettersOnlyAsWholeTokensAndStoresALevel)
{
    // Text, whether it reads, and latitude and longitude after reading into a place at (1, 2).
    const std::tuple<const char*, bool, double, double> rows[] = {
        {"37.8 N 122.4 W", true, 37.8, 122.4},
        {"33.9 s 151.2 e", true, -33.9, 208.8},
        {"33.9 South 151.2 East", true, 33.9, 151.2},
        {"10 N 20", true, 10.0, 20.0},
        {"10 N 400 E", true, 10.0, -40.0},
        // The second number is taken as the letter: no longitude follows, the latitude stays.
        {"10 20", false, 10.0, 2.0},
        {"   ", false, 1.0, 2.0},
    };
    for (const auto& [text, read, latitude, longitude] : rows) {
        LatLong place(1.0, 2.0);
        StringParser parser(text, " ", true);
        EXPECT_EQ(place.Set(parser), read) << text;
        EXPECT_TRUE(place == LatLong(latitude, longitude)) << text;
    }
    CmdLineStateContainer writer;
    writer << AstroKey("Location") << LatLong(-33.9, 208.8);
    EXPECT_EQ(writer.GetCmdLine().GetRawText(), "Location=<Lat=-33.9 Long=208.8>");
}
