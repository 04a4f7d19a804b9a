// A star catalogue over its star file: what a view shows and which segments it keeps in
// memory, its named stars, and damaged files.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"

namespace {

// Five stars in three segments: one in zone 1 (segment 2), three in zone 3 (segment 20), one
// in zone 6 (segment 61). After the magnitude, the count and 64 headers of 44 bytes, the
// records of segment 2 start at 2828, those of segment 20 at 2860 and those of segment 61 at
// 2950.
const std::string kLines = StarLine(100, 1.0, 10.0, 10.0) + StarLine(101, 2.0, 12.0, 12.0, "Bee") +
                           StarLine(102, 3.0, 14.0, 5.0) + StarLine(200, 4.0, 100.0, 60.0, "Dee") +
                           StarLine(300, 8.5, 250.0, -60.0);
constexpr std::size_t kSegment20 = 2860;
constexpr std::size_t kFileSize = 2979;
using Listed = std::vector<std::string>;

// The bytes with a little-endian 32-bit value put at a segment's offset (field 0), star
// count (1) or byte size (2).
std::string WithHeader(std::string bytes, int segment, int field, std::int32_t value)
{
    const std::uint32_t v = std::uint32_t(value);
    const char le[4] = {char(v), char(v >> 8), char(v >> 16), char(v >> 24)};
    return bytes.replace(12 + 44 * std::size_t(segment) + 32 + 4 * std::size_t(field), 4, le, 4);
}

class StarCatalogueTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(Catalogue.Load(StarFile(Dir, kLines, "five.bin"))); }

    ScratchDirectory Dir;
    StarCatalogue Catalogue;
};

} // namespace

TEST_F(StarCatalogueTest, ViewShowsStarsWithinItsRangeDownToTheLimitAndGivesUpTheRest)
{
    ASSERT_EQ(Dir.ReadFile("five.bin").size(), kFileSize);
    EXPECT_EQ(Catalogue.GetMaxMagnitude(), 8.5);
    EXPECT_EQ(Catalogue.GetSegments().GetLoadedCount(), 0); // only the headers were read
    EXPECT_EQ(Shown(Catalogue, PolarCoord(12, 10), 20.0, AstroCatalogue::STARS, 2.0),
              (Listed{"SAO100", "Bee"}));

    // Each star stands where the transformation puts it, and loses any vector of a scroll.
    const Transformation view = ScreenView(PolarCoord(12, 10), 20.0);
    AstroList list(500, 1000);
    Catalogue.GetSegments()[20].FindStar(102)->SetScrollCache(RectCoord(1, 0, 0));
    Catalogue.SatisfyRequest(
        Request(view, CatalogueSet(AstroCatalogue::STARS), AstroTime(1, 1, 2000, 0.0), 20.0), list);
    ASSERT_EQ(list.GetCount(), 3u);
    for (AstroObject* object : list) {
        TPoint expected;
        view.Translate(object->GetPosition(), expected);
        EXPECT_EQ(object->GetDisplayPoint(), expected);
        EXPECT_FALSE(static_cast<Star*>(object)->HasScrollCache());
    }
    // The finder's list of named stars holds copies, in table order, and reads no segment.
    const auto named = Catalogue.GetListOfNamedObjects();
    AstroList namedList(10, 10);
    for (AstroObject* object : *named) {
        namedList.Add(object);
    }
    EXPECT_EQ(Names(namedList), (Listed{"Dee", "Bee"}));
    EXPECT_NE(namedList[1], Catalogue.GetSegments()[20].FindStar(101));
    EXPECT_FALSE(Catalogue.GetSegments()[2].IsLoaded());
    // Moving away gives the segments up; the stars of the new view come in.
    EXPECT_EQ(Shown(Catalogue, PolarCoord(250, -60), 10.0, AstroCatalogue::STARS),
              (Listed{"SAO300"}));
    EXPECT_TRUE(Catalogue.GetSegments()[61].IsLoaded());
    EXPECT_FALSE(Catalogue.GetSegments()[20].IsLoaded());
}

TEST_F(StarCatalogueTest, DamagedFileShowsTheStarsItHoldsAndSaysWhatIsMissing)
{
    const std::string good = Dir.ReadFile("five.bin");
    const std::string cut = good.substr(0, kSegment20 + 29 + 10); // in the second record
    std::string shortLength = good;
    shortLength[kSegment20 + 29] = 5; // a length byte below the fixed fields
    const std::tuple<const char*, std::string, PolarCoord, Listed, const char*> rows[] = {
        {"cut inside a record", cut, PolarCoord(12, 10), {"SAO100"}, "gave 1 of its 3 stars"},
        {"a segment past the end", cut, PolarCoord(250, -60), {}, "gave 0 of its 1 stars"},
        {"short length byte", shortLength, PolarCoord(12, 10), {"SAO100"}, "gave 1 of its 3"},
        // Segment 20 claims every record to the end and far more: it reads on into the
        // record of segment 61, which its view does not show.
        {"more than the file holds",
         WithHeader(WithHeader(good, 20, 1, 0x7FFFFFFF), 20, 2, 0x7FFFFFFF),
         PolarCoord(12, 10),
         {"SAO100", "Bee", "SAO102"},
         "gave 4 of its 2147483647 stars"},
        {"an offset before the file",
         WithHeader(good, 2, 0, -5),
         PolarCoord(100, 60),
         {},
         "offset -5"},
        {"an offset far past the end",
         WithHeader(WithHeader(good, 62, 0, 0x40000000), 62, 1, 1000),
         PolarCoord(290, -60),
         {},
         "gave 0 of its 1000 stars"},
    };
    for (const auto& [name, bytes, centre, shown, message] : rows) {
        Dir.WriteFile("damaged.bin", bytes);
        MessageCapture messages;
        StarCatalogue damaged;
        ASSERT_TRUE(damaged.Load(Dir.File("damaged.bin"))) << name;
        EXPECT_EQ(Shown(damaged, centre, 10.0, AstroCatalogue::STARS), shown) << name;
        EXPECT_TRUE(messages.Contains(message)) << name << ": " << messages.Messages;
    }
}

TEST_F(StarCatalogueTest, MissingOrCutHeadersLeaveACatalogueWithoutStars)
{
    MessageCapture messages;
    StarCatalogue missing;
    EXPECT_FALSE(missing.Load(Dir.File("none.bin")));
    EXPECT_TRUE(messages.Contains("Could not open star file:"));
    EXPECT_TRUE(Shown(missing, PolarCoord(12, 10), 20.0, AstroCatalogue::STARS).empty());
    EXPECT_EQ(missing.GetStarFromSAONumber(100), nullptr);
    EXPECT_TRUE(missing.GetListOfNamedObjects()->empty());

    Dir.WriteFile("cut.bin", Dir.ReadFile("five.bin").substr(0, 500));
    StarCatalogue cut;
    EXPECT_FALSE(cut.Load(Dir.File("cut.bin")));
    EXPECT_TRUE(messages.Contains("ends inside its segment table; 11 segments read"));
}
