// The Messier catalogue: the shipped text and binary files, loading line by line and record by
// record with what happens on bad input, the binary round trip, lookups by number, requests
// by view, and the collector that loads it when it is made and lists its objects.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "StarIndexTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/MessierCatalogue.h"
#include "catalogues/Request.h"
#include "catalogues/TextFile.h"
#include "coords/AngleMath.h"
#include "host/HostProf.h"

namespace {

const AstroTime kNoon(1, 1, 2000, 12.0);

// Three lines in the form of the shipped file.
const std::vector<std::string> kThree = {
    R"(1 NGC 1952 05 34 31.97 + 22 00 52.1 8.40 SNR "Crab Nebula")",
    "2 NGC 7089 21 33 27.01 - 00 49 23.9 6.25 GCl",
    "3 NGC 5272 13 42 11.23 + 28 22 31.6 6.39 GCl",
};

class MessierCatalogueTest : public ::testing::Test
{
protected:
    // A test that names files in its own profile leaves the shared profile without them.
    void TearDown() override
    {
        Dir.WriteText("orbiscope.ini", "");
        HostProfile().Reload();
    }

    // Writes the lines as a text file in the scratch directory and loads it.
    bool LoadLines(MessierCatalogue& catalogue, const std::vector<std::string>& lines)
    {
        std::string text;
        for (const std::string& line : lines) {
            text += line + "\n";
        }
        Dir.WriteText("messier.txt", text);
        TextFile file;
        EXPECT_TRUE(file.OpenForReading(Dir.File("messier.txt").c_str()));
        return catalogue.Load(file);
    }
    static bool LoadShippedText(MessierCatalogue& catalogue)
    {
        TextFile file;
        EXPECT_TRUE(file.OpenForReading("ed:\\messier.txt"));
        return catalogue.Load(file);
    }
    // The numbers of the Messier objects in the list, in order.
    std::vector<int> Numbers() const
    {
        std::vector<int> numbers;
        for (AstroObject* object : List) {
            if (auto* messier = dynamic_cast<Messier*>(object)) {
                numbers.push_back(messier->GetNumber());
            }
        }
        return numbers;
    }

    ScratchDirectory Dir;
    MessageCapture Messages;
    TestScreen Screen;
    AstroList List{50, 100};
};

// The great-circle distance in degrees between a position and an RA and Dec.
double Separation(const PolarCoord& position, double ra, double dec)
{
    const double a1 = DegreesToRadians(position.GetRA().GetDegrees());
    const double d1 = DegreesToRadians(position.GetDec().GetDegrees());
    const double a2 = DegreesToRadians(ra);
    const double d2 = DegreesToRadians(dec);
    const double c = std::sin(d1) * std::sin(d2) + std::cos(d1) * std::cos(d2) * std::cos(a1 - a2);
    return RadiansToDegrees(std::acos(std::clamp(c, -1.0, 1.0)));
}

} // namespace

TEST_F(MessierCatalogueTest, TheShippedTextHoldsAllHundredAndTenInOrderOfNumber)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadShippedText(catalogue));
    ASSERT_EQ(catalogue.GetCount(), 110u);
    std::size_t named = 0;
    double faintest = -20.0;
    for (unsigned n = 1; n <= 110; ++n) {
        const Messier* object = catalogue.GetObject(n);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->GetNumber(), n);
        EXPECT_EQ(object->GetCodeName(), "M" + std::to_string(n));
        EXPECT_FALSE(object->GetTypeName().empty()) << n;
        // Every Messier object is within reach of binoculars or a small telescope.
        EXPECT_GT(object->GetMagnitude(), 1.0) << n;
        EXPECT_LT(object->GetMagnitude(), 11.5) << n;
        named += object->GetCommonName().empty() ? 0 : 1;
        faintest = std::max(faintest, object->GetMagnitude());
        // Its uid finds its article.
        EXPECT_NE(object->GetLaunchString(), "") << n;
    }
    EXPECT_GE(named, 29u);
    EXPECT_EQ(catalogue.GetMaxMagnitude(), faintest);
    EXPECT_TRUE(Messages.Messages.empty());

    // Reference positions (J2000) and V magnitudes from SIMBAD, to 0.01 degree and 0.1.
    const Messier& crab = *catalogue.GetObject(1);
    EXPECT_LT(Separation(crab.GetPosition(), 83.633, 22.015), 0.01);
    EXPECT_EQ(crab.GetListName(), "M1 (Crab Nebula)");
    EXPECT_EQ(crab.GetTypeName(), "Supernova Remnant");
    const Messier& andromeda = *catalogue.GetObject(31);
    EXPECT_NEAR(andromeda.GetMagnitude(), 3.4, 0.1);
    EXPECT_LT(Separation(andromeda.GetPosition(), 10.685, 41.269), 0.01);
    EXPECT_EQ(andromeda.GetTypeName(), "Galaxy");
    EXPECT_EQ(andromeda.GetLaunchString(), "http://en.wikipedia.org/wiki/Andromeda_Galaxy");
    // M102 is taken to be NGC 5866 in Draco.
    const Messier& m102 = *catalogue.GetObject(102);
    EXPECT_LT(Separation(m102.GetPosition(), 226.623, 55.763), 0.01);
    const Messier& orion = *catalogue.GetObject(42);
    EXPECT_LT(Separation(orion.GetPosition(), 83.822, -5.391), 0.01);
    EXPECT_EQ(orion.GetTypeName(), "Cluster with Nebula");
    EXPECT_EQ(catalogue.GetObject(45)->GetListName(), "M45 (Pleiades)");
    EXPECT_EQ(catalogue.GetObject(57)->GetTypeName(), "Planetary Nebula");
}

TEST_F(MessierCatalogueTest, TheShippedBinaryFileHoldsTheSameObjectsWithoutNames)
{
    MessierCatalogue text;
    ASSERT_TRUE(LoadShippedText(text));
    MessierCatalogue binary;
    ASSERT_TRUE(binary.Load("ed:\\messier.bin"));
    ASSERT_EQ(binary.GetCount(), text.GetCount());
    for (unsigned n = 1; n <= text.GetCount(); ++n) {
        const Messier& a = *text.GetObject(n);
        const Messier& b = *binary.GetObject(n);
        EXPECT_EQ(b.GetNumber(), a.GetNumber());
        EXPECT_EQ(b.GetMagnitude(), a.GetMagnitude());
        EXPECT_EQ(b.GetPosition(), a.GetPosition());
        EXPECT_EQ(b.GetUid(), a.GetUid());
        EXPECT_EQ(b.GetCodeName(), "");
        EXPECT_EQ(b.GetTypeName(), "");
    }
    EXPECT_EQ(binary.GetMaxMagnitude(), text.GetMaxMagnitude());
}

TEST_F(MessierCatalogueTest, ADumpReadsBackRecordForRecordAndAnEmptyOneWritesNothing)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadLines(catalogue, kThree));
    ASSERT_TRUE(catalogue.Dump(Dir.File("three.bin")));
    EXPECT_EQ(Dir.ReadBytes("three.bin").size(), 4 + 3 * Messier::kRecordSize);

    MessierCatalogue copy;
    ASSERT_TRUE(copy.Load(Dir.File("three.bin")));
    // The name given becomes the catalogue's file, which an empty name reads again.
    EXPECT_EQ(copy.GetFileName(), Dir.File("three.bin"));
    ASSERT_TRUE(copy.Load(""));
    ASSERT_EQ(copy.GetCount(), 3u);
    for (unsigned n = 1; n <= 3; ++n) {
        EXPECT_EQ(copy.GetObject(n)->GetNumber(), n);
        EXPECT_EQ(copy.GetObject(n)->GetMagnitude(), catalogue.GetObject(n)->GetMagnitude());
        EXPECT_EQ(copy.GetObject(n)->GetPosition(), catalogue.GetObject(n)->GetPosition());
    }
    EXPECT_EQ(copy.GetMaxMagnitude(), 8.40);

    MessierCatalogue empty;
    EXPECT_EQ(empty.GetMaxMagnitude(), -20.0);
    EXPECT_FALSE(empty.Dump(Dir.File("none.bin")));
    EXPECT_FALSE(std::filesystem::exists(Dir.File("none.bin")));
}

TEST_F(MessierCatalogueTest, ABadLineEndsTheLoadKeepingTheObjectsBeforeIt)
{
    MessierCatalogue catalogue;
    // Four fields: the position is missing.
    ASSERT_FALSE(LoadLines(catalogue, {kThree[0], "2 NGC 7089 21", kThree[2]}));
    EXPECT_TRUE(Messages.Contains("Messier data at line: 2 is invalid."));
    ASSERT_EQ(catalogue.GetCount(), 1u);
    EXPECT_EQ(catalogue.GetObject(1)->GetCodeName(), "M1");
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 8.40);
}

TEST_F(MessierCatalogueTest, ALoadReplacesWhatWasThere)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadLines(catalogue, kThree));
    ASSERT_TRUE(catalogue.Dump(Dir.File("three.bin")));
    ASSERT_TRUE(LoadLines(catalogue, {kThree[1]}));
    ASSERT_EQ(catalogue.GetCount(), 1u);
    EXPECT_EQ(catalogue.GetObject(1)->GetNumber(), 2);
    // The maximum starts again: only M2 counts now.
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 6.25);
    // A binary file replaces the text's objects too.
    ASSERT_TRUE(catalogue.Load(Dir.File("three.bin")));
    EXPECT_EQ(catalogue.GetCount(), 3u);
}

TEST_F(MessierCatalogueTest, AMissingTextFileLeavesTheCatalogueEmpty)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadLines(catalogue, kThree));
    TextFile missing;
    EXPECT_FALSE(missing.OpenForReading(Dir.File("absent.txt").c_str()));
    EXPECT_TRUE(catalogue.Load(missing));
    EXPECT_EQ(catalogue.GetCount(), 0u);
    EXPECT_EQ(catalogue.GetMaxMagnitude(), -20.0);
    EXPECT_TRUE(Messages.Contains("Could not open file:"));
}

TEST_F(MessierCatalogueTest, BadBinaryFilesAreReportedAndKeepWhatCouldBeRead)
{
    MessierCatalogue source;
    ASSERT_TRUE(LoadLines(source, kThree));
    ASSERT_TRUE(source.Dump(Dir.File("three.bin")));
    std::vector<unsigned char> bytes = Dir.ReadBytes("three.bin");

    // Cut inside the third record: the first two stay.
    Dir.WriteBytes("cut.bin", std::vector<unsigned char>(bytes.begin(), bytes.end() - 1));
    MessierCatalogue cut;
    EXPECT_FALSE(cut.Load(Dir.File("cut.bin")));
    EXPECT_TRUE(Messages.Contains("Messier binary load failed."));
    EXPECT_EQ(cut.GetCount(), 2u);
    EXPECT_EQ(cut.GetMaxMagnitude(), 8.40);

    // A count far beyond the records: as many as there are, and a failure.
    std::vector<unsigned char> huge = bytes;
    huge[0] = 0xFF;
    huge[1] = 0xFF;
    huge[2] = 0xFF;
    huge[3] = 0x7F;
    Dir.WriteBytes("huge.bin", huge);
    MessierCatalogue many;
    EXPECT_FALSE(many.Load(Dir.File("huge.bin")));
    EXPECT_EQ(many.GetCount(), 3u);

    // A negative count, and a file too short to hold a count: nothing.
    std::vector<unsigned char> negative = bytes;
    negative[3] = 0x80;
    Dir.WriteBytes("negative.bin", negative);
    Dir.WriteBytes("tiny.bin", {1, 0});
    for (const char* name : {"negative.bin", "tiny.bin"}) {
        MessierCatalogue bad;
        EXPECT_FALSE(bad.Load(Dir.File(name))) << name;
        EXPECT_EQ(bad.GetCount(), 0u) << name;
    }

    // A file that is not there leaves the objects as they were.
    Messages.Messages.clear();
    EXPECT_FALSE(source.Load(Dir.File("absent.bin")));
    EXPECT_TRUE(Messages.Contains("Could not open Messier file:"));
    EXPECT_EQ(source.GetCount(), 3u);
}

TEST_F(MessierCatalogueTest, TheBinaryFileComesFromTheProfile)
{
    EXPECT_EQ(MessierCatalogue().GetFileName(), "ed:\\messier.bin");

    Dir.WriteText("orbiscope.ini", "[Orbiscope]\nMessierFile = " + Dir.File("own.bin") + "\n");
    HostProfile().Reload();
    MessierCatalogue catalogue;
    EXPECT_EQ(catalogue.GetFileName(), Dir.File("own.bin"));
    ASSERT_TRUE(LoadLines(catalogue, kThree));
    ASSERT_TRUE(catalogue.Dump());
    EXPECT_EQ(Dir.ReadBytes("own.bin").size(), 4 + 3 * Messier::kRecordSize);
}

TEST_F(MessierCatalogueTest, ObjectsAreFoundByNumberAndListedInFileOrder)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadLines(catalogue, kThree));
    EXPECT_EQ(catalogue.GetObject(0), nullptr);
    EXPECT_EQ(catalogue.GetObject(4), nullptr);
    EXPECT_EQ(catalogue.GetObject(1)->GetRefName(), "M1");
    EXPECT_EQ(catalogue.GetObject(3)->GetRefName(), "M3");
    EXPECT_FALSE(catalogue.IsTimeDependent());

    // The list holds the catalogue's own objects and does not delete them.
    {
        auto named = catalogue.GetListOfNamedObjects();
        ASSERT_EQ(named->size(), 3u);
        EXPECT_FALSE(named->OwnsElements());
        for (unsigned n = 1; n <= 3; ++n) {
            EXPECT_EQ((*named)[n - 1], catalogue.GetObject(n));
        }
        EXPECT_FALSE((*named)[0]->IsListSorted());
    }
    EXPECT_EQ(catalogue.GetObject(2)->GetListName(), "M2");
}

TEST_F(MessierCatalogueTest, ARequestListsTheObjectsInViewWhateverTheirMagnitude)
{
    MessierCatalogue catalogue;
    ASSERT_TRUE(LoadShippedText(catalogue));
    // Andromeda with its two companions, M32 and M110, in a field of 5 degrees.
    const Messier& m31 = *catalogue.GetObject(31);
    Request request(Screen.View(m31.GetPosition(), 5.0),
                    CatalogueSet(AstroCatalogue::MESSIER_OBJECTS), kNoon, -5.0);
    catalogue.SatisfyRequest(request, List);
    EXPECT_EQ(Numbers(), (std::vector<int>{31, 32, 110}));
    // The centre of the 1024 by 768 screen.
    EXPECT_EQ(m31.GetDisplayPoint(), TPoint(512, 384));
    const TPoint m110 = catalogue.GetObject(110)->GetDisplayPoint();
    EXPECT_GE(m110.x, 0);
    EXPECT_LT(m110.x, 1024);
    EXPECT_LT(m110.y, 384) << "M110 stands north of M31, up on the screen";

    // The south celestial pole, 20 degrees round: no Messier object is that far south.
    List.Flush();
    Request south(Screen.View(PolarCoord(0, -90), 20.0),
                  CatalogueSet(AstroCatalogue::MESSIER_OBJECTS), kNoon, 6.0);
    catalogue.SatisfyRequest(south, List);
    EXPECT_TRUE(List.IsEmpty());

    // The Virgo cluster, 15 degrees round: its galaxies, in order of number.
    List.Flush();
    Request virgo(Screen.View(PolarCoord(187.0, 12.5), 15.0),
                  CatalogueSet(AstroCatalogue::MESSIER_OBJECTS), kNoon, 6.0);
    catalogue.SatisfyRequest(virgo, List);
    const std::vector<int> numbers = Numbers();
    EXPECT_GE(numbers.size(), 15u);
    EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end()));
}

TEST_F(MessierCatalogueTest, TheCollectorLoadsTheTextAndListsTheObjectsAfterThePlanets)
{
    AstroItemCollector collector;
    MessierCatalogue& messier = collector.GetMessierCatalogue();
    ASSERT_EQ(messier.GetCount(), 110u);
    EXPECT_EQ(messier.GetObject(1)->GetListName(), "M1 (Crab Nebula)");

    // Orion's sword: M42, M43 and M78, with whatever planets stand there.
    const PolarCoord sword = messier.GetObject(42)->GetPosition();
    const std::uint32_t everything =
        AstroCatalogue::PLANETS | AstroCatalogue::MESSIER_OBJECTS | AstroCatalogue::COMETS;
    Request request(Screen.View(sword, 10.0), CatalogueSet(everything), kNoon, 6.0);
    ASSERT_TRUE(collector.SatisfyRequest(request, List));
    EXPECT_EQ(Numbers(), (std::vector<int>{42, 43, 78}));
    bool messierSeen = false;
    for (AstroObject* object : List) {
        if (dynamic_cast<Messier*>(object) != nullptr) {
            messierSeen = true;
        } else if (object->GetType() == AstroObject::ObjectType::Comet) {
            EXPECT_TRUE(messierSeen) << "a comet before the Messier objects";
        } else {
            EXPECT_FALSE(messierSeen) << "a planet after the Messier objects";
        }
    }

    // A new time: the Messier objects stay in the list once each, and no second time.
    Request later(Screen.View(sword, 10.0), CatalogueSet(everything), AstroTime(1, 1, 2000, 13.0),
                  6.0);
    ASSERT_TRUE(collector.SatisfyRequest(later, List));
    EXPECT_EQ(Numbers(), (std::vector<int>{42, 43, 78}));

    // Without the flag, the same view shows none.
    Request without(Screen.View(sword, 10.0), CatalogueSet(AstroCatalogue::PLANETS), kNoon, 6.0);
    ASSERT_TRUE(collector.SatisfyRequest(without, List));
    EXPECT_TRUE(Numbers().empty());
}

TEST_F(MessierCatalogueTest, ACollectorWithoutItsTextFileHasNoMessierObjects)
{
    Dir.WriteText("orbiscope.ini", "[Orbiscope]\nMessierFile = " + Dir.File("absent.txt") + "\n");
    HostProfile().Reload();
    AstroItemCollector collector;
    EXPECT_EQ(collector.GetMessierCatalogue().GetCount(), 0u);
    EXPECT_TRUE(Messages.Contains("Could not open file:"));
    Request request(Screen.View(PolarCoord(83.8, -5.4), 10.0),
                    CatalogueSet(AstroCatalogue::MESSIER_OBJECTS), kNoon, 6.0);
    EXPECT_TRUE(collector.SatisfyRequest(request, List));
    EXPECT_TRUE(List.IsEmpty());
}
