// The Messier catalogue: the shipped text file, loading line by line and record by
// record with what happens on bad input, the binary round trip, and requests by view.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"
#include "catalogues/MessierCatalogue.h"

namespace {

// Three lines in the form of the shipped file.
const std::string kThree = R"(1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR "Crab Nebula")"
                           "\n2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl"
                           "\n3 NGC 5272 13 42 11.23 + 28 22 31.6 6.39 GCl\n";

class MessierCatalogueTest : public ::testing::Test
{
protected:
    // The shipped text, by the logical path the profile gives by default.
    static bool LoadShippedText(MessierCatalogue& catalogue)
    {
        TextFile file;
        EXPECT_TRUE(file.OpenForReading("ed:\\messier.txt"));
        return catalogue.Load(file);
    }

    ScratchDirectory Dir;
    MessageCapture Messages;
};

} // namespace

TEST_F(MessierCatalogueTest, ShippedFileHoldsTheHundredAndTenWhereSimbadPutsThem)
{
    MessierCatalogue text;
    ASSERT_TRUE(LoadShippedText(text));
    ASSERT_EQ(text.GetCount(), 110u);
    EXPECT_EQ(Messages.Messages, "");
    // J2000 positions from SIMBAD, to 0.01 degree; M102 is taken to be NGC 5866 in Draco.
    const std::tuple<unsigned, double, double, const char*> rows[] = {
        {1, 83.633, 22.015, "M1 (Crab Nebula)"},
        {31, 10.685, 41.269, "M31 (Andromeda Galaxy)"},
        {42, 83.822, -5.391, "M42 (Orion Nebula)"},
        {102, 226.623, 55.763, "M102 (Spindle)"},
    };
    for (const auto& [n, ra, dec, name] : rows) {
        const Messier& object = *text.GetObject(n);
        EXPECT_EQ(object.GetListName(), name);
        EXPECT_NEAR((object.GetPosition().GetRA().GetDegrees() - ra) *
                        std::cos(dec * 3.14159265358979 / 180.0),
                    0.0, 0.01)
            << name;
        EXPECT_NEAR(object.GetPosition().GetDec().GetDegrees(), dec, 0.01) << name;
    }
    EXPECT_NEAR(text.GetObject(31)->GetMagnitude(), 3.4, 0.1);
    // Its uid finds its article.
    EXPECT_EQ(text.GetObject(31)->GetLaunchString(),
              "http://en.wikipedia.org/wiki/Andromeda_Galaxy");
}

TEST_F(MessierCatalogueTest, BadLineEndsTheLoadKeepingTheObjectsBeforeIt)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(*Dir.Open("three.txt", kThree)));
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 8.40);
    // A load replaces what was there, and the maximum starts again.
    EXPECT_FALSE(catalogue.Load(*Dir.Open("bad.txt", "2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 "
                                                     "GCl\n2 NGC 7089 21\n")));
    EXPECT_TRUE(Messages.Contains("Messier data at line: 2 is invalid."));
    ASSERT_EQ(catalogue.GetCount(), 1u);
    EXPECT_EQ(catalogue.GetObject(1)->GetCodeName(), "M2");
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 6.25);

    // A text that cannot be read leaves the catalogue empty.
    TextFile missing;
    EXPECT_FALSE(missing.OpenForReading(Dir.File("absent.txt").c_str()));
    EXPECT_TRUE(catalogue.Load(missing));
    EXPECT_EQ(catalogue.GetCount(), 0u);
    EXPECT_TRUE(Messages.Contains("Could not open file:"));
}

TEST_F(MessierCatalogueTest, DumpReadsBackAndBadBinaryFilesKeepWhatCouldBeRead)
{
    MessierCatalogue source;
    ASSERT_TRUE(source.Load(*Dir.Open("three.txt", kThree)));
    ASSERT_TRUE(source.Dump(Dir.File("three.bin")));
    const std::string bytes = Dir.ReadFile("three.bin");
    ASSERT_EQ(bytes.size(), 4 + 3 * Messier::kRecordSize);
    EXPECT_FALSE(MessierCatalogue().Dump(Dir.File("none.bin"))); // nothing to write

    // A count, then the records; the name given becomes the file that an empty name reads.
    const std::tuple<const char*, std::string, bool, std::size_t> rows[] = {
        {"whole", bytes, true, 3},
        {"cut inside the third record", bytes.substr(0, bytes.size() - 1), false, 2},
        {"a count far beyond the records", "\xFF\xFF\xFF\x7F" + bytes.substr(4), false, 3},
        {"a negative count", bytes.substr(0, 3) + "\x80" + bytes.substr(4), false, 0},
        {"too short to hold a count", std::string("\1\0", 2), false, 0},
    };
    for (const auto& [name, content, whole, count] : rows) {
        SCOPED_TRACE(name);
        Dir.WriteFile("copy.bin", content);
        MessierCatalogue copy;
        EXPECT_EQ(copy.Load(Dir.File("copy.bin")), whole);
        EXPECT_EQ(copy.Load(""), whole);
        ASSERT_EQ(copy.GetCount(), count);
        for (unsigned n = 1; n <= count; ++n) {
            EXPECT_EQ(copy.GetObject(n)->GetNumber(), n);
            EXPECT_EQ(copy.GetObject(n)->GetPosition(), source.GetObject(n)->GetPosition());
        }
    }
    EXPECT_TRUE(Messages.Contains("Messier binary load failed."));
    // A file that is not there leaves the objects as they were.
    EXPECT_FALSE(source.Load(Dir.File("absent.bin")));
    EXPECT_TRUE(Messages.Contains("Could not open Messier file:"));
    EXPECT_EQ(source.GetCount(), 3u);
}

TEST_F(MessierCatalogueTest, RequestListsTheObjectsInViewWhateverTheirMagnitude)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadShippedText(catalogue));
    // Andromeda with its two companions, M32 and M110, in a field of 5 degrees, at a limit
    // that no Messier object reaches.
    const Messier& m31 = *catalogue.GetObject(31);
    EXPECT_EQ(Shown(catalogue, m31.GetPosition(), 5.0, AstroCatalogue::MESSIER_OBJECTS, -5.0),
              (std::vector<std::string>{"M31", "M32", "M110"}));
    EXPECT_EQ(m31.GetDisplayPoint(), TPoint(512, 384));
    EXPECT_LT(catalogue.GetObject(110)->GetDisplayPoint().y, 384) << "M110 stands north of M31";
    // No Messier object lies within 20 degrees of the south pole.
    EXPECT_TRUE(
        Shown(catalogue, PolarCoord(0, -90), 20.0, AstroCatalogue::MESSIER_OBJECTS).empty());
}
