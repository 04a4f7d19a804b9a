// One Messier object: read from a text line, named by its number and popular name, with the
// words of its class from the profile and a yellow label of its code name.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"
#include "catalogues/Messier.h"
#include "host/HostFile.h"
#include "skyview/Label.h"
#include "skyview/SkyCanvas.h"

namespace {

const std::string kAndromeda = R"(31 NGC 224 00 42 44.35 + 41 16 08.6 3.44 Gal "Andromeda Galaxy")";

// The degrees of a sexagesimal angle.
double Degrees(double whole, double minutes, double seconds)
{
    return whole + minutes / 60.0 + seconds / 3600.0;
}

} // namespace

TEST(MessierTest, LineGivesNumberPositionMagnitudeClassAndNames)
{
    // Line, list name, words of the class, declination.
    const std::tuple<std::string, const char*, const char*, double> rows[] = {
        {kAndromeda, "M31 (Andromeda Galaxy)", "Galaxy", Degrees(41, 16, 8.6)},
        // No popular name: quotes holding blanks only, or no rest of the line.
        {R"(32 NGC 221 00 42 41.83 + 40 51 55.0 8.13 Gal "   ")", "M32", "Galaxy",
         Degrees(40, 51, 55)},
        // Blanks inside the quotes go; what follows the closing quote is not read.
        {R"(1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR "  Crab Nebula  " x "y")",
         "M1 (Crab Nebula)", "Supernova Remnant", Degrees(22, 0, 52.1)},
        // The sign stands alone, or is left out for plus.
        {"2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl", "M2", "Globular Cluster",
         -Degrees(0, 49, 23.9)},
        {"1 NGC 1952 05 34 31.97 22 00 52.1 8.40 SNR", "M1", "Supernova Remnant",
         Degrees(22, 0, 52.1)},
        // A number above a byte keeps its low eight bits: 300 is 0x12C.
        {"300 - - 08 40 22.2 + 19 40 19 3.1 OCl", "M44", "Open Cluster", Degrees(19, 40, 19)},
        // Class codes ignore case; an unknown code has no words.
        {"5 - - 1 2 3 + 4 5 6 7.0 c/n", "M5", "Cluster with Nebula", Degrees(4, 5, 6)},
        {"57 - - 1 2 3 + 4 5 6 7.0 PLN", "M57", "Planetary Nebula", Degrees(4, 5, 6)},
        {"40 M 40 12 22 16.1 + 58 05 04 8.00 Dbl", "M40", "", Degrees(58, 5, 4)},
    };
    for (const auto& [line, listName, typeName, dec] : rows) {
        SCOPED_TRACE(line);
        Messier object;
        ASSERT_TRUE(object.Initialize(LorvString(line)));
        EXPECT_EQ(object.GetListName(), listName);
        EXPECT_EQ(object.GetInfoName(), listName);
        EXPECT_EQ(object.GetTypeName(), typeName);
        EXPECT_NEAR(object.GetPosition().GetDec().GetDegrees(), dec, 1e-6);
    }
    Messier m31;
    ASSERT_TRUE(m31.Initialize(LorvString(kAndromeda)));
    EXPECT_NEAR(m31.GetPosition().GetRA().GetDegrees(), 15.0 * Degrees(0, 42, 44.35), 1e-9);
    EXPECT_DOUBLE_EQ(m31.GetMagnitude(), 3.44);
    EXPECT_EQ(m31.GetRefName(), "M31");
    EXPECT_EQ(m31.GetUid(), 0x70000000u + 131u);
}

TEST(MessierTest, ShortOrRefusedLinesLeaveTheObjectAsItWas)
{
    Messier object;
    ASSERT_TRUE(object.Initialize(LorvString(kAndromeda)));
    for (const char* line : {
             "", "   ",
             "31 NGC 224 00",                                // no declination
             "31 NGC 224 00 42 44.35 + 41 16 08.6",          // no magnitude
             "31 NGC 224 00 42 44.35 + 41 16 08.6 3.44",     // no class code
             "31 NGC 224 25 42 44.35 + 41 16 08.6 3.44 Gal", // 25 hours
             "31 NGC 224 00 42 44.35 + 91 16 08.6 3.44 Gal", // 91 degrees
         }) {
        EXPECT_FALSE(object.Initialize(LorvString(line))) << line;
        EXPECT_EQ(object.GetListName(), "M31 (Andromeda Galaxy)") << line;
        EXPECT_DOUBLE_EQ(object.GetMagnitude(), 3.44) << line;
    }
}

TEST(MessierTest, ObjectsSortByNumberAndAreLabelledWithTheCodeNameInYellow)
{
    Messier m2, m10;
    ASSERT_TRUE(m2.Initialize(LorvString("2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl")));
    ASSERT_TRUE(m10.Initialize(LorvString("10 NGC 6254 16 57 08.99 - 04 05 57.6 4.98 GCl")));
    // By text "M10" would come first.
    EXPECT_TRUE(m2.IsLessThan(m10));
    EXPECT_FALSE(m10.IsLessThan(m2));

    SkyCanvas canvas(64, 32);
    Label* label = m10.GetLabel(canvas.Parameters);
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->GetText(), "M10");
    EXPECT_EQ(label->GetColor(), TColor::LtYellow);
}
