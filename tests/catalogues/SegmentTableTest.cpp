#include <gtest/gtest.h>

#include <memory>

#include "StarIndexTesting.h"
#include "catalogues/SegmentTable.h"
#include "catalogues/Star.h"
#include "host/HostFile.h"

namespace {

// The segment that received a star, or -1.
int SegmentOf(const SegmentTable& table, std::uint32_t sao)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].FindStar(sao) != nullptr) {
            return int(i);
        }
    }
    return -1;
}

SkyRange Range(double raCentre, double raHalf, double decCentre, double decHalf)
{
    DegreeRange ra, dec;
    ra.Set(DegreeAngle(raCentre), DegreeAngle(raHalf));
    dec.Set(DegreeAngle(decCentre), DegreeAngle(decHalf));
    return SkyRange(ra, dec);
}

} // namespace

TEST(SegmentTableTest, SixtyFourSegmentsNorthToSouthEachZoneFromRightAscensionZero)
{
    SegmentTable table;
    table.BuildEmptySegments();
    ASSERT_EQ(table.size(), 64u);

    const SkyRange& first = table[0].GetRange();
    EXPECT_EQ(first.GetRA().GetCenter().GetDegrees(), 22.5);
    EXPECT_EQ(first.GetRA().GetHalfWidth().GetDegrees(), 22.5);
    EXPECT_EQ(first.GetDec().GetCenter().GetDegrees(), 70.0);
    EXPECT_EQ(first.GetDec().GetHalfWidth().GetDegrees(), 20.0);

    // Where each zone starts, its declinations, and the last slice ending at exactly 360.
    struct Zone
    {
        int First, Slices;
        double DecCentre, DecHalf;
    };
    const Zone zones[] = {{0, 8, 70, 20},    {8, 12, 35, 15},   {20, 12, 10, 10},
                          {32, 12, -10, 10}, {44, 12, -35, 15}, {56, 8, -70, 20}};
    for (const Zone& zone : zones) {
        for (int slice = 0; slice < zone.Slices; ++slice) {
            const SkyRange& range = table[std::size_t(zone.First + slice)].GetRange();
            EXPECT_EQ(range.GetDec().GetCenter().GetDegrees(), zone.DecCentre);
            EXPECT_EQ(range.GetDec().GetHalfWidth().GetDegrees(), zone.DecHalf);
            double width = 360.0 / zone.Slices;
            EXPECT_EQ(range.GetRA().GetHalfWidth().GetDegrees(), width / 2);
            EXPECT_EQ(range.GetRA().GetCenter().GetDegrees(), (slice + 0.5) * width);
        }
        const SkyRange& last = table[std::size_t(zone.First + zone.Slices - 1)].GetRange();
        EXPECT_EQ(last.GetRA().GetCenter().GetDegrees() + last.GetRA().GetHalfWidth().GetDegrees(),
                  360.0);
        EXPECT_EQ(table[std::size_t(zone.First)].GetStarCount(), 0);
        EXPECT_EQ(table[std::size_t(zone.First)].GetByteSize(), 0);
    }
}

TEST(SegmentTableTest, StarOnABorderGoesToTheEarlierSegment)
{
    SegmentTable table;
    table.BuildEmptySegments();
    // Declination 50: zones 1 and 2 both hold it; zone 1 comes first.
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(1, 5.0, PolarCoord(100.0, 50.0))));
    // Right ascension 30 between the first two slices of zone 2, and 0, 360 at the seam.
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(2, 5.0, PolarCoord(30.0, 35.0))));
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(3, 5.0, PolarCoord(0.0, 35.0))));
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(4, 5.0, PolarCoord(360.0, 35.0))));
    // Both corners of four segments at once.
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(5, 5.0, PolarCoord(60.0, -20.0))));
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(6, 5.0, PolarCoord(45.0, -90.0))));
    EXPECT_TRUE(table.AddStar(std::make_unique<Star>(7, 5.0, PolarCoord(359.999, 90.0))));

    EXPECT_EQ(SegmentOf(table, 1), 2); // zone 1, slice 90 - 135
    EXPECT_EQ(SegmentOf(table, 2), 8); // zone 2, slice 0 - 30
    EXPECT_EQ(SegmentOf(table, 3), 8);
    EXPECT_EQ(SegmentOf(table, 4), 8);
    EXPECT_EQ(SegmentOf(table, 5), 33); // zone 4, slice 30 - 60
    EXPECT_EQ(SegmentOf(table, 6), 56); // zone 6, slice 0 - 45
    EXPECT_EQ(SegmentOf(table, 7), 7);  // just short of the seam: the last slice

    // A star no segment holds is left out (and deleted).
    EXPECT_FALSE(table.AddStar(std::make_unique<Star>(9, 1.0, PolarCoord(10.0, 95.0))));
    EXPECT_EQ(SegmentOf(table, 9), -1);

    // The byte size grows by each record; the file's count is left to the dump.
    EXPECT_EQ(table[8].GetByteSize(), 3 * 29);
    EXPECT_EQ(table[8].GetStarCount(), 0);
}

TEST(SegmentTableTest, ViewAcrossRightAscensionZeroMakesSixSegmentsResident)
{
    SegmentTable table;
    table.BuildEmptySegments();
    HostFile none;
    table.Update(none, Range(10.0, 15.0, 10.0, 15.0));
    // Slices 0 - 30 and 330 - 360 of zones 2, 3 and 4.
    EXPECT_EQ(Resident(table), (std::vector<int>{8, 19, 20, 31, 32, 43}));

    // Ranges that only touch meet: declination 20 to 50 touches both neighbouring zones, and
    // right ascension 190 to 210 the slice from 210 on.
    table.Update(none, Range(200.0, 10.0, 35.0, 15.0));
    EXPECT_EQ(Resident(table), (std::vector<int>{4, 14, 15, 26, 27}));
}

TEST(SegmentTableTest, ViewOverThePoleMakesItsWholeZoneResident)
{
    TestScreen screen;
    SegmentTable table;
    table.BuildEmptySegments();
    HostFile none;

    // Radius 20 on the map's screen sees 35 degrees from the pole: zone 1 alone.
    table.Update(none,
                 screen.View(PolarCoord(0.0, 90.0), 20.0, PolarCoord(0.0, 0.0)).GetVisibleRange());
    EXPECT_EQ(Resident(table), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}));

    // Radius 30 reaches 56 degrees from the pole, into zone 2, all round.
    table.Update(none,
                 screen.View(PolarCoord(0.0, 90.0), 30.0, PolarCoord(0.0, 0.0)).GetVisibleRange());
    std::vector<int> zones1And2;
    for (int i = 0; i < 20; ++i) {
        zones1And2.push_back(i);
    }
    EXPECT_EQ(Resident(table), zones1And2);

    // The south pole, likewise.
    table.Update(none,
                 screen.View(PolarCoord(0.0, -90.0), 20.0, PolarCoord(0.0, 0.0)).GetVisibleRange());
    EXPECT_EQ(Resident(table), (std::vector<int>{56, 57, 58, 59, 60, 61, 62, 63}));
}

TEST(SegmentTableTest, TextCatalogueKeepsEverySegmentWhenTheViewMovesAway)
{
    ScratchDirectory dir;
    SegmentTable table;
    dir.WriteText("two.txt", StarLine(1, 2.0, 10.0, 10.0) + "\n" + StarLine(2, 3.0, 200, -60));
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(dir.File("two.txt").c_str()));
    double maxMagnitude = 0.0;
    ASSERT_TRUE(table.Load(text, maxMagnitude));
    EXPECT_EQ(maxMagnitude, 3.0);
    EXPECT_FALSE(table.GetUnloadWhenOutOfView());

    HostFile none;
    table.Update(none, Range(100.0, 5.0, 40.0, 5.0));
    EXPECT_NE(SegmentOf(table, 1), -1);
    EXPECT_NE(SegmentOf(table, 2), -1);
    // Unloading tables give up what the view does not touch.
    table.SetUnloadWhenOutOfView(true);
    table.Update(none, Range(100.0, 5.0, 40.0, 5.0));
    EXPECT_EQ(SegmentOf(table, 1), -1);
    EXPECT_EQ(SegmentOf(table, 2), -1);
}

TEST(SegmentTableTest, TextLoadStopsAtTheFirstLineThatIsNotAStar)
{
    ScratchDirectory dir;
    MessageCapture messages;
    // Declination exactly 50 and -20 and right ascension exactly 2 hours through the text
    // reader, blank lines, then a line with a number alone.
    dir.WriteText("bad.txt", "1,5.0,7,0,0,+,50,0,0,0,0,0\n\n   \n2,4.5,7,0,0,-,20,0,0,0,0,0\n"
                             "3,5.0,2,0,0,+,35,0,0,0,0,0\n12345\n" +
                                 StarLine(4, 9.0, 30.0, 10.0) + "\n");
    TextFile text;
    ASSERT_TRUE(text.OpenForReading(dir.File("bad.txt").c_str()));
    SegmentTable table;
    double maxMagnitude = 0.0;
    EXPECT_FALSE(table.Load(text, maxMagnitude));
    EXPECT_TRUE(messages.Contains("Star data at line: 6 is invalid."));
    EXPECT_EQ(SegmentOf(table, 1), 2);  // zone 1, 90 - 135
    EXPECT_EQ(SegmentOf(table, 2), 35); // zone 4, 90 - 120
    EXPECT_EQ(SegmentOf(table, 3), 8);  // zone 2, 0 - 30
    EXPECT_EQ(SegmentOf(table, 4), -1); // after the bad line
    EXPECT_EQ(maxMagnitude, 5.0);
    EXPECT_FALSE(table.GetUnloadWhenOutOfView());

    // An empty text gives 64 empty segments and the magnitude of none.
    dir.WriteText("empty.txt", "");
    TextFile empty;
    ASSERT_TRUE(empty.OpenForReading(dir.File("empty.txt").c_str()));
    EXPECT_TRUE(table.Load(empty, maxMagnitude));
    EXPECT_EQ(maxMagnitude, -20.0);
    ASSERT_EQ(table.size(), 64u);
    EXPECT_TRUE(Resident(table).empty());
}
