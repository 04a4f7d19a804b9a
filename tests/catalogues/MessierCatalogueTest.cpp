// The Messier objects from their lines to the view: each line read with its names and class,
// bad lines and bad binary files, the shipped text file at SIMBAD's places, and requests.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"
#include "catalogues/MessierCatalogue.h"

namespace {

const std::string kAndromeda = R"(31 NGC 224 00 42 44.35 + 41 16 08.6 3.44 Gal "Andromeda Galaxy")";

// Three lines in the form of the shipped file.
const std::string kThree = R"(1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR "Crab Nebula")"
                           "\n2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl"
                           "\n3 NGC 5272 13 42 11.23 + 28 22 31.6 6.39 GCl\n";

// The degrees of a sexagesimal angle.
double Degrees(double whole, double minutes, double seconds)
{
    return whole + minutes / 60.0 + seconds / 3600.0;
}

} // namespace

TEST(Messier, LineGivesPositionMagnitudeClassAndNames)
{
    // Line, list name, words of the class (from the shipped profile), declination.
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
        EXPECT_EQ(object.GetInfoName(), listName);
        EXPECT_EQ(object.GetTypeName(), typeName);
        EXPECT_NEAR(object.GetPosition().GetDec().GetDegrees(), dec, 1e-6);
    }
}

TEST(Messier, BadLinesLeaveTheObjectAndEndTheLoadKeepingTheObjectsBeforeThem)
{
    Messier object;
    ASSERT_TRUE(object.Initialize(LorvString(kAndromeda)));
    // Empty; no declination; no class code; 25 hours; 91 degrees.
    for (const char* line : {"", "31 NGC 224 00", "31 NGC 224 00 42 44.35 + 41 16 08.6 3.44",
                             "31 NGC 224 25 42 44.35 + 41 16 08.6 3.44 Gal",
                             "31 NGC 224 00 42 44.35 + 91 16 08.6 3.44 Gal"}) {
        EXPECT_FALSE(object.Initialize(LorvString(line))) << line;
        EXPECT_EQ(object.GetInfoName(), "M31 (Andromeda Galaxy)") << line;
    }

    ScratchDirectory dir;
    MessageCapture messages;
    MessierCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(*dir.Open("three.txt", kThree)));
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 8.40);
    // A load replaces what was there, and the maximum starts again.
    EXPECT_FALSE(catalogue.Load(*dir.Open("bad.txt", "2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 "
                                                     "GCl\n2 NGC 7089 21\n")));
    EXPECT_TRUE(messages.Contains("Messier data at line: 2 is invalid."));
    ASSERT_EQ(catalogue.GetCount(), 1u);
    EXPECT_EQ(catalogue.GetObject(1)->GetCodeName(), "M2");
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 6.25);
    // A text that cannot be read leaves the catalogue empty.
    TextFile missing;
    EXPECT_FALSE(missing.OpenForReading(dir.File("absent.txt").c_str()));
    EXPECT_TRUE(catalogue.Load(missing));
    EXPECT_EQ(catalogue.GetCount(), 0u);
}

TEST(MessierCatalogue, DumpReadsBackAndABadBinaryFileKeepsWhatCouldBeRead)
{
    ScratchDirectory dir;
    MessierCatalogue source;
    ASSERT_TRUE(source.Load(*dir.Open("three.txt", kThree)));
    ASSERT_TRUE(source.Dump(dir.File("three.bin")));
    // A count, then the records: whole, cut inside the third record, or a negative count.
    const std::string bytes = dir.ReadFile("three.bin");
    const std::tuple<std::string, bool, std::size_t> rows[] = {
        {bytes, true, 3},
        {bytes.substr(0, bytes.size() - 1), false, 2},
        {bytes.substr(0, 3) + "\x80" + bytes.substr(4), false, 0},
    };
    for (const auto& [content, whole, count] : rows) {
        dir.WriteFile("copy.bin", content);
        MessierCatalogue copy;
        EXPECT_EQ(copy.Load(dir.File("copy.bin")), whole) << count;
        ASSERT_EQ(copy.GetCount(), count);
        for (unsigned n = 1; n <= count; ++n) {
            EXPECT_EQ(copy.GetObject(n)->GetPosition(), source.GetObject(n)->GetPosition()) << n;
        }
    }
}

TEST(MessierCatalogue, ShippedFileHoldsTheHundredAndTenWhereSimbadPutsThem)
{
    MessageCapture messages;
    TextFile file;
    ASSERT_TRUE(file.OpenForReading("ed:\\messier.txt"));
    MessierCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(file));
    ASSERT_EQ(catalogue.GetCount(), 110u);
    EXPECT_EQ(messages.Messages, "");
    // J2000 positions from SIMBAD, to 0.01 degree; M102 is taken to be NGC 5866 in Draco.
    const std::tuple<unsigned, double, double, const char*> rows[] = {
        {1, 83.633, 22.015, "M1 (Crab Nebula)"},
        {31, 10.685, 41.269, "M31 (Andromeda Galaxy)"},
        {42, 83.822, -5.391, "M42 (Orion Nebula)"},
        {102, 226.623, 55.763, "M102 (Spindle)"},
    };
    for (const auto& [n, ra, dec, name] : rows) {
        const PolarCoord position = catalogue.GetObject(n)->GetPosition();
        EXPECT_EQ(catalogue.GetObject(n)->GetListName(), name);
        EXPECT_NEAR((position.GetRA().GetDegrees() - ra) * std::cos(dec * 3.14159265 / 180.0), 0.0,
                    0.01)
            << name;
        EXPECT_NEAR(position.GetDec().GetDegrees(), dec, 0.01) << name;
    }
    // Its uid finds its article.
    EXPECT_EQ(catalogue.GetObject(31)->GetLaunchString(),
              "http://en.wikipedia.org/wiki/Andromeda_Galaxy");

    // A view lists the objects in it, in order of number, whatever the limit: Andromeda with
    // its two companions in a field of 5 degrees; none within 20 degrees of the south pole.
    const Messier& m31 = *catalogue.GetObject(31);
    EXPECT_EQ(Shown(catalogue, m31.GetPosition(), 5.0, AstroCatalogue::MESSIER_OBJECTS, -5.0),
              (std::vector<std::string>{"M31", "M32", "M110"}));
    EXPECT_EQ(m31.GetDisplayPoint(), TPoint(512, 384));
    EXPECT_LT(catalogue.GetObject(110)->GetDisplayPoint().y, 384) << "M110 stands north of M31";
    EXPECT_TRUE(
        Shown(catalogue, PolarCoord(0, -90), 20.0, AstroCatalogue::MESSIER_OBJECTS).empty());
}
