#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>

#include "StarIndexTesting.h"
#include "catalogues/AstroList.h"
#include "catalogues/CatalogueSet.h"
#include "catalogues/Request.h"
#include "catalogues/Star.h"
#include "catalogues/StarCatalogue.h"
#include "time/AstroTime.h"

namespace {

// Five stars in three segments: one in zone 1 (segment 2), three in zone 3 (segment 20), one
// in zone 6 (segment 61). In the file the records of segment 2 start at 2828, those of
// segment 20 at 2860 (after one record of 32 bytes), and those of segment 61 at 2950.
const std::vector<std::string> kLines = {
    StarLine(100, 1.0, 10.0, 10.0),   StarLine(101, 2.0, 12.0, 12.0, "Bee"),
    StarLine(102, 3.0, 14.0, 5.0),    StarLine(200, 4.0, 100.0, 60.0, "Dee"),
    StarLine(300, 8.5, 250.0, -60.0),
};
constexpr long kSegment20 = 2860;
constexpr long kSegment61 = 2950;
constexpr long kFileSize = 2979;

void PutInt32(std::vector<unsigned char>& bytes, std::size_t at, std::int32_t value)
{
    for (int i = 0; i < 4; ++i) {
        bytes[at + std::size_t(i)] = static_cast<unsigned char>(std::uint32_t(value) >> (8 * i));
    }
}

// Where a segment's header fields lie in a file of 64 segments.
std::size_t HeaderField(int segment, int field)
{
    return 12 + 44 * std::size_t(segment) + 32 + 4 * std::size_t(field);
}

class StarCatalogueTest : public ::testing::Test
{
protected:
    void SetUp() override { Path = StarFile(Dir, kLines, "five.bin"); }

    // The SAO numbers that a view shows, in list order.
    std::vector<std::uint32_t> Shown(StarCatalogue& catalogue, const PolarCoord& centre,
                                     double radius, double limit = 20.0)
    {
        Request request(Screen.View(centre, radius), CatalogueSet(AstroCatalogue::STARS),
                        AstroTime(1, 1, 2000, 0.0), limit);
        AstroList list(500, 1000);
        catalogue.SatisfyRequest(request, list);
        std::vector<std::uint32_t> numbers;
        for (AstroObject* object : list) {
            numbers.push_back(static_cast<Star*>(object)->GetSAONumber());
        }
        return numbers;
    }

    // The file with some bytes changed, loaded into `catalogue`.
    void LoadChanged(StarCatalogue& catalogue, std::vector<unsigned char> bytes)
    {
        Dir.WriteBytes("changed.bin", bytes);
        ASSERT_TRUE(catalogue.Load(Dir.File("changed.bin")));
    }

    ScratchDirectory Dir;
    TestScreen Screen;
    std::string Path;
};

} // namespace

TEST_F(StarCatalogueTest, DumpedFileHoldsHeadersAndRecordsInTableOrder)
{
    std::vector<unsigned char> bytes = Dir.ReadBytes("five.bin");
    ASSERT_EQ(long(bytes.size()), kFileSize);

    StarCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(Path));
    EXPECT_EQ(catalogue.GetMaxMagnitude(), 8.5);
    const SegmentTable& segments = catalogue.GetSegments();
    ASSERT_EQ(segments.size(), 64u);
    EXPECT_EQ(segments[0].GetFileOffset(), 2828);
    EXPECT_EQ(segments[2].GetFileOffset(), 2828);
    EXPECT_EQ(segments[2].GetStarCount(), 1);
    EXPECT_EQ(segments[2].GetByteSize(), 32);
    EXPECT_EQ(segments[20].GetFileOffset(), kSegment20);
    EXPECT_EQ(segments[20].GetStarCount(), 3);
    EXPECT_EQ(segments[20].GetByteSize(), 29 + 32 + 29);
    EXPECT_EQ(segments[61].GetFileOffset(), kSegment61);
    EXPECT_EQ(segments[63].GetFileOffset(), kFileSize);
    // Only the headers were read.
    EXPECT_TRUE(Resident(segments).empty());

    // Each star comes back exactly as the text catalogue held it.
    auto text = TextCatalogue(Dir, kLines, "again.txt");
    for (std::uint32_t sao : {100u, 101u, 102u, 200u, 300u}) {
        std::unique_ptr<Star> fromFile(catalogue.GetStarFromSAONumber(sao));
        std::unique_ptr<Star> fromText(text->GetStarFromSAONumber(sao));
        ASSERT_TRUE(fromFile && fromText) << sao;
        EXPECT_EQ(fromFile->GetMagnitude(), fromText->GetMagnitude());
        EXPECT_EQ(fromFile->GetPosition(), fromText->GetPosition());
        EXPECT_EQ(fromFile->GetListName(), fromText->GetListName());
    }
}

TEST_F(StarCatalogueTest, ViewShowsStarsWithinItsRangeDownToTheLimit)
{
    StarCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(Path));
    EXPECT_EQ(Shown(catalogue, PolarCoord(12, 10), 20.0, 2.0),
              (std::vector<std::uint32_t>{100, 101}));
    EXPECT_TRUE(catalogue.GetSegments()[20].IsLoaded());
    EXPECT_FALSE(catalogue.GetSegments()[61].IsLoaded());

    // Each star stands where the transformation puts it, and loses any vector of a scroll.
    Transformation view = Screen.View(PolarCoord(12, 10), 20.0);
    Request request(view, CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 20.0);
    AstroList list(500, 1000);
    catalogue.GetSegments()[20].FindStar(102)->SetScrollCache(RectCoord(1, 0, 0));
    catalogue.SatisfyRequest(request, list);
    ASSERT_EQ(list.GetCount(), 3u);
    for (AstroObject* object : list) {
        TPoint expected;
        view.Translate(object->GetPosition(), expected);
        EXPECT_EQ(object->GetDisplayPoint(), expected);
        EXPECT_FALSE(static_cast<Star*>(object)->HasScrollCache());
    }

    // Moving away gives the segments up; the stars of the new view come in.
    EXPECT_EQ(Shown(catalogue, PolarCoord(250, -60), 10.0), (std::vector<std::uint32_t>{300}));
    EXPECT_TRUE(catalogue.GetSegments()[61].IsLoaded());
    EXPECT_FALSE(catalogue.GetSegments()[20].IsLoaded());
}

TEST_F(StarCatalogueTest, ShortFileOrBadRecordStopsAtTheLastWholeRecord)
{
    MessageCapture messages;
    std::vector<unsigned char> bytes = Dir.ReadBytes("five.bin");
    // Cut inside the second record of segment 20: its first record and nothing more is there.
    std::vector<unsigned char> cut(bytes.begin(), bytes.begin() + kSegment20 + 29 + 10);
    StarCatalogue catalogue;
    LoadChanged(catalogue, cut);
    EXPECT_EQ(Shown(catalogue, PolarCoord(12, 10), 20.0), (std::vector<std::uint32_t>{100}));
    EXPECT_TRUE(messages.Contains("gave 1 of its 3 stars"));
    EXPECT_EQ(catalogue.GetSegments()[20].GetStars()->GetStarCount(), 1);
    // A segment wholly past the end is resident and empty; one before the cut is whole.
    EXPECT_TRUE(Shown(catalogue, PolarCoord(250, -60), 10.0).empty());
    EXPECT_TRUE(catalogue.GetSegments()[61].IsLoaded());
    EXPECT_EQ(Shown(catalogue, PolarCoord(100, 60), 10.0), (std::vector<std::uint32_t>{200}));

    // A length byte below the fixed fields ends the segment in the same way.
    bytes[std::size_t(kSegment20 + 29)] = 5;
    StarCatalogue malformed;
    LoadChanged(malformed, bytes);
    EXPECT_EQ(Shown(malformed, PolarCoord(12, 10), 20.0), (std::vector<std::uint32_t>{100}));
}

TEST_F(StarCatalogueTest, HeadersThatPromiseTooMuchReadOnlyWhatTheFileHolds)
{
    MessageCapture messages;
    std::vector<unsigned char> bytes = Dir.ReadBytes("five.bin");
    // Segment 20 claims every record to the end of the file and far more.
    PutInt32(bytes, HeaderField(20, 1), 0x7FFFFFFF);
    PutInt32(bytes, HeaderField(20, 2), 0x7FFFFFFF);
    // Segment 2 starts before the file, segment 61 has a negative size, segment 62 starts
    // far past the end with a size to match.
    PutInt32(bytes, HeaderField(2, 0), -5);
    PutInt32(bytes, HeaderField(61, 2), -29);
    PutInt32(bytes, HeaderField(62, 0), 0x40000000);
    PutInt32(bytes, HeaderField(62, 1), 1000);
    PutInt32(bytes, HeaderField(62, 2), 0x7FFFFFFF);
    StarCatalogue catalogue;
    LoadChanged(catalogue, bytes);

    // Segment 20 reads on into the record of segment 61, then meets the end.
    EXPECT_EQ(Shown(catalogue, PolarCoord(12, 10), 20.0),
              (std::vector<std::uint32_t>{100, 101, 102}));
    const StarArray* stars = catalogue.GetSegments()[20].GetStars();
    ASSERT_NE(stars, nullptr);
    EXPECT_EQ(stars->size(), 4u);
    EXPECT_TRUE(Shown(catalogue, PolarCoord(100, 60), 10.0).empty());
    EXPECT_TRUE(Shown(catalogue, PolarCoord(250, -60), 10.0).empty());
    EXPECT_TRUE(Shown(catalogue, PolarCoord(290, -60), 10.0).empty());
    EXPECT_TRUE(catalogue.GetSegments()[62].IsLoaded());
    EXPECT_TRUE(messages.Contains("offset -5"));
    EXPECT_TRUE(messages.Contains("gave 0 of its 1000 stars"));
}

TEST_F(StarCatalogueTest, FileWithOneSegmentServesAsWellAsSixtyFour)
{
    // A whole-sky segment holding the records of segment 20, built byte by byte.
    std::vector<unsigned char> five = Dir.ReadBytes("five.bin");
    std::vector<unsigned char> bytes(12 + 44);
    std::memcpy(bytes.data(), five.data(), 8);
    PutInt32(bytes, 8, 1);
    const double header[4] = {0.0, 360.0, 0.0, 360.0};
    std::memcpy(bytes.data() + 12, header, sizeof header); // little-endian machine
    PutInt32(bytes, 12 + 32, 56);
    PutInt32(bytes, 12 + 36, 3);
    PutInt32(bytes, 12 + 40, 90);
    bytes.insert(bytes.end(), five.begin() + kSegment20, five.begin() + kSegment20 + 90);

    StarCatalogue catalogue;
    LoadChanged(catalogue, bytes);
    ASSERT_EQ(catalogue.GetSegments().size(), 1u);
    EXPECT_TRUE(catalogue.GetSegments()[0].GetRange().GetRA().IsFull());
    EXPECT_EQ(Shown(catalogue, PolarCoord(12, 10), 20.0),
              (std::vector<std::uint32_t>{100, 101, 102}));
    EXPECT_TRUE(Shown(catalogue, PolarCoord(200, -10), 20.0).empty());
    EXPECT_TRUE(catalogue.GetSegments()[0].IsLoaded());
}

TEST_F(StarCatalogueTest, MissingOrCutHeadersLeaveACatalogueWithoutStars)
{
    MessageCapture messages;
    StarCatalogue missing;
    EXPECT_FALSE(missing.Load(Dir.File("none.bin")));
    EXPECT_TRUE(messages.Contains("Could not open star file:"));
    EXPECT_FALSE(missing.HasStars());
    EXPECT_TRUE(Shown(missing, PolarCoord(12, 10), 20.0).empty());
    EXPECT_EQ(missing.GetStarFromSAONumber(100), nullptr);
    EXPECT_TRUE(missing.GetListOfNamedObjects()->empty());

    std::vector<unsigned char> bytes = Dir.ReadBytes("five.bin");
    bytes.resize(500);
    Dir.WriteBytes("cut.bin", bytes);
    StarCatalogue cut;
    EXPECT_FALSE(cut.Load(Dir.File("cut.bin")));
    EXPECT_TRUE(messages.Contains("ends inside its segment table; 11 segments read"));
    EXPECT_EQ(cut.GetSegments().size(), 11u);
}

TEST_F(StarCatalogueTest, LookupsHandOutCopiesAndLeaveResidencyAlone)
{
    StarCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(Path));
    Shown(catalogue, PolarCoord(12, 10), 20.0);
    const std::vector<int> before = Resident(catalogue.GetSegments());

    EXPECT_EQ(catalogue.GetStarFromSAONumber(999), nullptr);
    Star* faraway = catalogue.GetStarFromSAONumber(300);
    ASSERT_NE(faraway, nullptr);
    EXPECT_EQ(faraway->GetMagnitude(), 8.5);
    EXPECT_EQ(faraway->GetReferenceCount(), 1);
    faraway->ReleaseReference();
    // A star of a resident segment is copied, not lent.
    std::unique_ptr<Star> near(catalogue.GetStarFromSAONumber(101));
    ASSERT_NE(near, nullptr);
    EXPECT_NE(near.get(), catalogue.GetSegments()[20].FindStar(101));

    auto named = catalogue.GetListOfNamedObjects();
    ASSERT_EQ(named->size(), 2u);
    std::set<std::string> names;
    for (AstroObject* object : *named) {
        names.insert(object->GetListName());
        EXPECT_NE(object, catalogue.GetSegments()[20].FindStar(101));
    }
    EXPECT_EQ(names, (std::set<std::string>{"Bee", "Dee"}));
    EXPECT_EQ(Resident(catalogue.GetSegments()), before);
}

TEST_F(StarCatalogueTest, DumpWritesTheWholeCatalogueWhateverIsResident)
{
    StarCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(Path));
    Shown(catalogue, PolarCoord(250, -60), 10.0);
    const std::vector<int> before = Resident(catalogue.GetSegments());
    ASSERT_TRUE(catalogue.Dump(Dir.File("copy.bin")));
    EXPECT_EQ(Dir.ReadBytes("copy.bin"), Dir.ReadBytes("five.bin"));
    EXPECT_EQ(Resident(catalogue.GetSegments()), before);
    EXPECT_EQ(Shown(catalogue, PolarCoord(12, 10), 20.0),
              (std::vector<std::uint32_t>{100, 101, 102}));

    // Onto its own file: a file whose segment 20 lost its last star closes the gap, and the
    // catalogue reads the new offsets.
    std::vector<unsigned char> bytes = Dir.ReadBytes("five.bin");
    PutInt32(bytes, HeaderField(20, 1), 2);
    PutInt32(bytes, HeaderField(20, 2), 29 + 32);
    StarCatalogue own;
    LoadChanged(own, bytes);
    ASSERT_TRUE(own.Dump());
    EXPECT_EQ(long(Dir.ReadBytes("changed.bin").size()), kFileSize - 29);
    EXPECT_EQ(own.GetSegments()[61].GetFileOffset(), kSegment61 - 29);
    EXPECT_EQ(Shown(own, PolarCoord(12, 10), 20.0), (std::vector<std::uint32_t>{100, 101}));
    EXPECT_EQ(Shown(own, PolarCoord(250, -60), 10.0), (std::vector<std::uint32_t>{300}));
}

TEST_F(StarCatalogueTest, TextDumpReadsBackButForTheNames)
{
    StarCatalogue catalogue;
    ASSERT_TRUE(catalogue.Load(Path));
    ASSERT_TRUE(catalogue.DumpText(Dir.File("dump.txt")));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(Dir.File("dump.txt").c_str()));
    StarCatalogue again;
    ASSERT_TRUE(again.LoadStars(text));
    EXPECT_EQ(again.GetMaxMagnitude(), 8.5);
    for (std::uint32_t sao : {100u, 101u, 102u, 200u, 300u}) {
        std::unique_ptr<Star> a(catalogue.GetStarFromSAONumber(sao));
        std::unique_ptr<Star> b(again.GetStarFromSAONumber(sao));
        ASSERT_TRUE(a && b) << sao;
        EXPECT_EQ(a->GetMagnitude(), b->GetMagnitude());
        EXPECT_NEAR(a->GetPosition().GetRA().GetDegrees(), b->GetPosition().GetRA().GetDegrees(),
                    1e-4);
        EXPECT_NEAR(a->GetPosition().GetDec().GetDegrees(), b->GetPosition().GetDec().GetDegrees(),
                    1e-4);
        EXPECT_FALSE(b->HasName());
    }

    // A text catalogue keeps every star in memory whatever the view, and has no file of its
    // own to be written to.
    MessageCapture messages;
    EXPECT_EQ(Shown(again, PolarCoord(250, -60), 10.0), (std::vector<std::uint32_t>{300}));
    EXPECT_NE(again.GetSegments()[20].FindStar(100), nullptr);
    EXPECT_FALSE(again.Dump());
    EXPECT_TRUE(messages.Contains("no file"));
}
