// The coordinate grid: which meridians and parallels a view gets, and the grids that have too
// few lines to be drawn. Its pixels are checked by the whole-program pictures.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

#include "MapFixture.h"
#include "platform/TDC.h"

namespace {

using MapGridTest = HeadlessTest;

// The grid lines of an 800 by 600 view, north up, sorted by kind: the RA of each meridian half
// way along it and the Dec of each parallel, whole degrees (a point read back is good to about
// half a degree near the centre of the view).
std::pair<std::vector<double>, std::vector<double>> Shape(MapWindow& map, const PolarCoord& centre,
                                                          double radius)
{
    Surface page(800, 600, PixelFormat::Rgb32);
    TDC device(page, DeviceCaps{});
    Transformation view(device, page.Bounds(), centre, radius,
                        FixedOrientationInfo::NorthUpZenith(centre));
    map.LoadGridPoints(view);
    std::vector<double> meridians;
    std::vector<double> parallels;
    for (const std::vector<TPoint>* line : map.GetGridLines()) {
        EXPECT_EQ(line->front().x, MapWindow::kPenUpMarker) << "each line starts with a lift";
        std::vector<PolarCoord> sky;
        for (const TPoint& p : *line) {
            PolarCoord c;
            if (p.x != MapWindow::kPenUpMarker && view.ReverseTranslate(p, c)) {
                sky.push_back(c);
            }
        }
        const auto [low, high] = std::minmax_element(
            sky.begin(), sky.end(), [](const PolarCoord& a, const PolarCoord& b) {
                return a.GetDec().GetDegrees() < b.GetDec().GetDegrees();
            });
        if (high->GetDec().GetDegrees() - low->GetDec().GetDegrees() < 0.5) {
            parallels.push_back(std::round(high->GetDec().GetDegrees()));
        } else {
            meridians.push_back(std::round(sky[sky.size() / 2].GetRA().GetDegrees()));
        }
    }
    return {meridians, parallels};
}

} // namespace

TEST_F(MapGridTest, ANarrowViewGetsOnlyTheLinesThatComeIntoIt)
{
    // Centre (0, 0), radius 30 on 800 by 600: the corners lie 56.4 degrees from the centre, so
    // RA 270 to 90 and Dec -56.4 to 56.4 are in range; meridians 60 degrees or more from the
    // centre never come into view.
    MapWindow map(nullptr);
    const auto [meridians, parallels] = Shape(map, PolarCoord(0.0, 0.0), 30.0);
    EXPECT_EQ(meridians, (std::vector<double>{315, 330, 345, 0, 15, 30, 45}));
    EXPECT_EQ(parallels, (std::vector<double>{-50, -40, -30, -20, -10, 0, 10, 20, 30, 40, 50}));
}

TEST_F(MapGridTest, SevenDecLinesOrACountOfZeroGiveNoGridAtAllButEightDo)
{
    MapWindow map(nullptr);
    for (const auto& [ra, dec, expected] : std::vector<std::tuple<int, int, std::vector<double>>>{
             {24, 7, {}}, {0, 36, {}}, {24, 0, {}}, {24, 8, {-45, 0, 45}}}) {
        map.SetGridInfo(GridInfo(ra, dec, true));
        const auto [meridians, parallels] = Shape(map, PolarCoord(0.0, 0.0), 60.0);
        EXPECT_EQ(parallels, expected) << ra << " by " << dec;
        EXPECT_EQ(meridians.empty(), expected.empty()) << ra << " by " << dec;
    }
}
