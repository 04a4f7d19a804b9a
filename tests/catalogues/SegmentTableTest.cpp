// The star index: which of the 64 segments a star goes to, which segments a view makes
// resident (across RA 0 and over the poles), and a text catalogue read into it.
#include <gtest/gtest.h>

#include <tuple>

#include "StarIndexTesting.h"
#include "catalogues/SegmentTable.h"
#include "host/HostFile.h"

namespace {

// The segment that holds a star, or -1.
int SegmentOf(const SegmentTable& table, std::uint32_t sao)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].FindStar(sao) != nullptr) {
            return int(i);
        }
    }
    return -1;
}

} // namespace

TEST(SegmentTableTest, StarGoesToTheFirstSegmentThatHoldsIt)
{
    // Zones north to south from Dec 90, 50, 20, 0, -20, -50 to -90; slices of 45 degrees in
    // the polar zones and 30 in the others, from RA 0. A star on a border goes to the earlier.
    const std::tuple<double, double, int> rows[] = {
        {100.0, 50.0, 2},   // zones 1 and 2 both hold it: zone 1, slice 90 - 135
        {30.0, 35.0, 8},    // between the first two slices of zone 2
        {0.0, 35.0, 8},     // the seam, from either side
        {360.0, 35.0, 8},   //
        {60.0, -20.0, 33},  // corner of four segments: zone 4, slice 30 - 60
        {45.0, -90.0, 56},  // the south pole
        {359.999, 90.0, 7}, // just short of the seam: the last slice
        {10.0, 95.0, -1},   // off the sphere: left out
    };
    SegmentTable table;
    table.BuildEmptySegments();
    ASSERT_EQ(table.size(), 64u);
    std::uint32_t sao = 1;
    for (const auto& [ra, dec, segment] : rows) {
        EXPECT_EQ(table.AddStar(std::make_unique<Star>(sao, 5.0, PolarCoord(ra, dec))),
                  segment >= 0);
        EXPECT_EQ(SegmentOf(table, sao++), segment) << ra << ", " << dec;
    }
}

TEST(SegmentTableTest, ViewMakesResidentTheSegmentsItTouches)
{
    DegreeRange ra, dec;
    ra.Set(DegreeAngle(10.0), DegreeAngle(15.0)); // RA -5 to 25, across 0
    dec.Set(DegreeAngle(10.0), DegreeAngle(15.0));
    DegreeRange touchingRA, touchingDec;
    touchingRA.Set(DegreeAngle(200.0), DegreeAngle(10.0));
    touchingDec.Set(DegreeAngle(35.0), DegreeAngle(15.0));
    const PolarCoord east(0.0, 0.0); // the zenith of a view centred on a pole
    const std::tuple<const char*, SkyRange, std::vector<int>> rows[] = {
        // Slices 0 - 30 and 330 - 360 of zones 2, 3 and 4.
        {"across RA 0", SkyRange(ra, dec), {8, 19, 20, 31, 32, 43}},
        // Ranges that only touch meet: Dec 20 to 50 touches both neighbouring zones, and RA
        // 190 to 210 the slice from 210 on.
        {"touching", SkyRange(touchingRA, touchingDec), {4, 14, 15, 26, 27}},
        // Radius 20 on the map's screen sees 35 degrees from the pole: zone 1 all round;
        // radius 30 reaches 56 degrees, into zone 2.
        {"north pole",
         ScreenView(PolarCoord(0, 90), 20.0, east).GetVisibleRange(),
         {0, 1, 2, 3, 4, 5, 6, 7}},
        {"wider",
         ScreenView(PolarCoord(0, 90), 30.0, east).GetVisibleRange(),
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
        {"south pole",
         ScreenView(PolarCoord(0, -90), 20.0, east).GetVisibleRange(),
         {56, 57, 58, 59, 60, 61, 62, 63}},
    };
    SegmentTable table;
    table.BuildEmptySegments();
    HostFile none;
    for (const auto& [name, visible, resident] : rows) {
        table.Update(none, visible);
        std::vector<int> loaded;
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (table[i].IsLoaded()) {
                loaded.push_back(int(i));
            }
        }
        EXPECT_EQ(loaded, resident) << name;
    }
}

TEST(SegmentTableTest, TextLoadStopsAtTheFirstLineThatIsNotAStar)
{
    ScratchDirectory dir;
    MessageCapture messages;
    // Blank lines are passed over; line 6 is a number alone.
    SegmentTable table;
    double maxMagnitude = 0.0;
    EXPECT_FALSE(table.Load(*dir.Open("bad.txt", "1,5.0,7,0,0,+,50,0,0\n\n   \n"
                                                 "2,4.5,7,0,0,-,20,0,0\n3,5.0,2,0,0,+,35,0,0\n"
                                                 "12345\n" +
                                                     StarLine(4, 9.0, 30.0, 10.0)),
                            maxMagnitude));
    EXPECT_TRUE(messages.Contains("Star data at line: 6 is invalid."));
    EXPECT_EQ(SegmentOf(table, 1), 2);  // zone 1, 90 - 135
    EXPECT_EQ(SegmentOf(table, 2), 35); // zone 4, 90 - 120
    EXPECT_EQ(SegmentOf(table, 3), 8);  // zone 2, 0 - 30
    EXPECT_EQ(SegmentOf(table, 4), -1); // after the bad line
    EXPECT_EQ(maxMagnitude, 5.0);
    // Those stars have no file to come back from: a view elsewhere keeps them.
    HostFile none;
    table.Update(none, ScreenView(PolarCoord(300, -80), 10.0).GetVisibleRange());
    EXPECT_EQ(SegmentOf(table, 1), 2);
}
