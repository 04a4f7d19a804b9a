// The coordinate grid: which meridians and parallels the view gets, where they stop short of
// the poles, the pen lifts where a line leaves the view, and the drawn pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "MapFixture.h"
#include "platform/DeviceCaps.h"
#include "platform/TDC.h"
#include "projection/FixedOrientationInfo.h"

namespace {

// A 96-dpi device to project on; the grid is only computed, not drawn.
class GridView
{
public:
    GridView(const PolarCoord& centre, double radius, int width = 800, int height = 600)
        : Pixels(1, 1, PixelFormat::Rgb32), Device(Pixels, DeviceCaps{}),
          Projection(Device, TRect(0, 0, width, height), centre, radius,
                     FixedOrientationInfo::NorthUpZenith(centre))
    {}

    Transformation& GetTransformation() { return Projection; }

    // The sky directions of a polyline's points, markers left out.
    std::vector<PolarCoord> Directions(const std::vector<TPoint>& line) const
    {
        std::vector<PolarCoord> out;
        for (const TPoint& p : line) {
            PolarCoord c;
            if (p.x != MapWindow::kPenUpMarker && Projection.ReverseTranslate(p, c)) {
                out.push_back(c);
            }
        }
        return out;
    }

private:
    Surface Pixels;
    TDC Device;
    Transformation Projection;
};

int Markers(const std::vector<TPoint>& line)
{
    return int(std::count_if(line.begin(), line.end(),
                             [](const TPoint& p) { return p.x == MapWindow::kPenUpMarker; }));
}

struct DecSpan
{
    double Lowest = 1000.0;
    double Highest = -1000.0;
};

DecSpan SpanOf(const std::vector<PolarCoord>& directions)
{
    DecSpan span;
    for (const PolarCoord& c : directions) {
        span.Lowest = std::min(span.Lowest, c.GetDec().GetDegrees());
        span.Highest = std::max(span.Highest, c.GetDec().GetDegrees());
    }
    return span;
}

// Pixels come from truncated coordinates: a point read back is good to about this much near
// the centre of an 800 by 600 view; towards the rim of the hemisphere a pixel spans degrees.
constexpr double kDecTolerance = 0.5;

} // namespace

class MapGridTest : public HeadlessTest
{
protected:
    MapGridTest() : Map(nullptr) {}

    const ReferenceArray<std::vector<TPoint>>& Load(GridView& view)
    {
        Map.LoadGridPoints(view.GetTransformation());
        return Map.GetGridLines();
    }

    MapWindow Map;
};

namespace {

// Distances in pixels of a polyline's points from the middle of an 800 by 600 view, markers
// left out. Round a pole every parallel is a circle there, of radius scale * cos(Dec).
std::vector<double> Radii(const std::vector<TPoint>& line)
{
    std::vector<double> out;
    for (const TPoint& p : line) {
        if (p.x != MapWindow::kPenUpMarker) {
            out.push_back(std::hypot(p.x - 400.0, p.y - 300.0));
        }
    }
    return out;
}

double RadiusOfParallel(double dec)
{
    // A field radius of 90 on a 600 pixel high view: the hemisphere's radius is 300 pixels.
    return 300.0 * std::cos(dec * 3.14159265358979323846 / 180.0);
}

} // namespace

TEST_F(MapGridTest, TheDefaultGridAroundThePoleHasParallelsEveryTenDegreesUpToEighty)
{
    GridView view(PolarCoord(0.0, 90.0), 90.0);
    const auto& lines = Load(view);

    // 24 meridians from the equator (the rim of the hemisphere) up to 80; 9 parallels, 0 to
    // 80, each all round: a marker and 81 points.
    ASSERT_EQ(lines.GetCount(), 24u + 9u);
    for (std::size_t i = 0; i < 24; ++i) {
        const std::vector<double> radii = Radii(*lines[i]);
        EXPECT_NEAR(*std::min_element(radii.begin(), radii.end()), RadiusOfParallel(80.0), 1.5);
        EXPECT_NEAR(*std::max_element(radii.begin(), radii.end()), RadiusOfParallel(0.0), 1.5);
    }
    for (std::size_t k = 0; k < 9; ++k) {
        const std::vector<TPoint>& parallel = *lines[24 + k];
        EXPECT_EQ(parallel.size(), 82u);
        for (double r : Radii(parallel)) {
            ASSERT_NEAR(r, RadiusOfParallel(10.0 * double(k)), 1.5) << "parallel at " << 10 * k;
        }
    }
}

TEST_F(MapGridTest, MeridiansFollowEachOtherAtTheRAStepFromTheFirstAfterTheRangeStart)
{
    Map.SetGridInfo(GridInfo(12, 36, true));
    GridView view(PolarCoord(0.0, -90.0), 90.0);
    const auto& lines = Load(view);

    ASSERT_EQ(lines.GetCount(), 12u + 9u);
    for (std::size_t i = 0; i < 12; ++i) {
        const std::vector<PolarCoord> points = view.Directions(*lines[i]);
        ASSERT_GT(points.size(), 10u);
        // Half way down the line the RA is well defined: 30, 60, ... 360 (read back as 0).
        const double ra = points[points.size() / 2].GetRA().GetDegrees();
        const double expected = std::fmod(30.0 * double(i + 1), 360.0);
        const double off = std::fabs(std::remainder(ra - expected, 360.0));
        EXPECT_LT(off, 1.0) << "meridian " << i << " at RA " << ra;
        const std::vector<double> radii = Radii(*lines[i]);
        EXPECT_NEAR(*std::min_element(radii.begin(), radii.end()), RadiusOfParallel(-80.0), 1.5);
        EXPECT_NEAR(*std::max_element(radii.begin(), radii.end()), RadiusOfParallel(0.0), 1.5);
    }
}

TEST_F(MapGridTest, ANarrowViewGetsOnlyTheLinesInItsRange)
{
    // Centre (0, 0), radius 30 on 800 by 600: the corners lie 56.4 degrees from the centre,
    // so RA 270 to 90 and Dec -56.4 to 56.4 are in range.
    GridView view(PolarCoord(0.0, 0.0), 30.0);
    const auto& lines = Load(view);
    const SkyRange range = view.GetTransformation().GetVisibleRange();
    ASSERT_FALSE(range.GetRA().IsFull());
    ASSERT_NEAR(range.GetRA().GetHalfWidth().GetDegrees(), 90.0, 1e-9);

    std::vector<double> meridians;
    std::vector<double> parallels;
    for (const std::vector<TPoint>* line : lines) {
        const std::vector<PolarCoord> points = view.Directions(*line);
        const DecSpan span = SpanOf(points);
        if (span.Highest - span.Lowest < kDecTolerance) {
            parallels.push_back(std::round(span.Highest));
        } else {
            meridians.push_back(std::round(points[points.size() / 2].GetRA().GetDegrees()));
        }
        EXPECT_EQ(line->front().x, MapWindow::kPenUpMarker) << "each line starts with a lift";
    }
    // Twelve meridians from 285 to 90 are in the RA range; those 60 degrees or more from the
    // centre never come into view and are dropped.
    EXPECT_EQ(meridians, (std::vector<double>{315, 330, 345, 0, 15, 30, 45}));
    EXPECT_EQ(parallels, (std::vector<double>{-50, -40, -30, -20, -10, 0, 10, 20, 30, 40, 50}));
}

TEST_F(MapGridTest, ALineThatLeavesAndComesBackHasAMarkerForEachEntry)
{
    // The parallel through the centre starts in view at RA 0, leaves it and comes back
    // before RA 360: two pieces.
    GridView view(PolarCoord(0.0, 60.0), 20.0);
    ASSERT_TRUE(view.GetTransformation().GetVisibleRange().GetRA().IsFull());
    const auto& lines = Load(view);

    const std::vector<TPoint>* throughCentre = nullptr;
    for (const std::vector<TPoint>* line : lines) {
        const DecSpan span = SpanOf(view.Directions(*line));
        if (std::fabs(span.Lowest - 60.0) < 0.5 && std::fabs(span.Highest - 60.0) < 0.5) {
            throughCentre = line;
        }
    }
    ASSERT_NE(throughCentre, nullptr);
    EXPECT_EQ(Markers(*throughCentre), 2);
    // Each marker is followed by a point in view, and the point before the second marker is
    // the one just out of view that lets the line run to the edge.
    const auto second =
        std::find_if(throughCentre->begin() + 1, throughCentre->end(),
                     [](const TPoint& p) { return p.x == MapWindow::kPenUpMarker; });
    ASSERT_NE(second, throughCentre->end());
    PolarCoord after;
    ASSERT_TRUE(view.GetTransformation().ReverseTranslate(*(second + 1), after));
    EXPECT_LE(DegreeRange::GetDifference(after.GetRA(), DegreeAngle(0.0)).GetDegrees(), 180.0);
    const TRect screen(0, 0, 800, 600);
    EXPECT_FALSE(screen.Contains(*(second - 1)));
}

TEST_F(MapGridTest, SevenDecLinesOrACountOfZeroGiveNoGridAtAll)
{
    GridView view(PolarCoord(0.0, 0.0), 60.0);
    Map.SetGridInfo(GridInfo(24, 7, true));
    EXPECT_EQ(Load(view).GetCount(), 0u) << "meridians included";
    Map.SetGridInfo(GridInfo(0, 36, true));
    EXPECT_EQ(Load(view).GetCount(), 0u);
    Map.SetGridInfo(GridInfo(24, 0, true));
    EXPECT_EQ(Load(view).GetCount(), 0u);

    // Eight lines, a step of exactly 45 degrees, still make a grid: the equator and both
    // parallels at 45 fall in this view.
    Map.SetGridInfo(GridInfo(24, 8, true));
    const auto& lines = Load(view);
    EXPECT_GT(lines.GetCount(), 3u);
    std::vector<double> parallels;
    for (const std::vector<TPoint>* line : lines) {
        const DecSpan span = SpanOf(view.Directions(*line));
        if (span.Highest - span.Lowest < kDecTolerance) {
            parallels.push_back(std::round(span.Highest));
        }
    }
    EXPECT_EQ(parallels, (std::vector<double>{-45, 0, 45}));
}

TEST_F(MapGridTest, ANewGridIsLoadedOnlyWhenItsFlagStands)
{
    GridView wide(PolarCoord(0.0, 90.0), 90.0);
    GridView narrow(PolarCoord(0.0, 0.0), 10.0);
    Surface page(800, 600, PixelFormat::Rgb32);
    TDC dc(page);

    ASSERT_TRUE(Map.IsGridDirty());
    Map.DrawGrid(dc, page.Bounds(), wide.GetTransformation());
    EXPECT_FALSE(Map.IsGridDirty());
    const std::size_t wideLines = Map.GetGridLines().GetCount();
    EXPECT_EQ(wideLines, 33u);

    // With the flag down the old lines are drawn again, whatever the projection.
    Map.DrawGrid(dc, page.Bounds(), narrow.GetTransformation());
    EXPECT_EQ(Map.GetGridLines().GetCount(), wideLines);
    Map.SetGridInfo(GridInfo(24, 36, true));
    EXPECT_TRUE(Map.IsGridDirty());
    Map.DrawGrid(dc, page.Bounds(), narrow.GetTransformation());
    EXPECT_LT(Map.GetGridLines().GetCount(), wideLines);
}

TEST_F(MapGridTest, TheDrawnGridStaysOnTheHemisphereAndLiftsThePenAtMarkers)
{
    // The whole northern sky on a 800 by 600 page: a disc of radius 300 round the middle.
    GridView view(PolarCoord(0.0, 90.0), 90.0);
    Surface page(800, 600, PixelFormat::Rgb32);
    TDC dc(page);
    Map.DrawGrid(dc, page.Bounds(), view.GetTransformation());

    int onDisc = 0;
    int offDisc = 0;
    for (int y = 0; y < 600; ++y) {
        for (int x = 0; x < 800; ++x) {
            if (page.ColorAt(x, y) == RGB(0, 0, 255)) {
                const double r = std::hypot(x - 400.0, y - 300.0);
                (r <= 302.0 ? onDisc : offDisc)++;
            }
        }
    }
    EXPECT_GT(onDisc, 2000);
    EXPECT_EQ(offDisc, 0) << "a marker was drawn to as a point";
    // The pole itself stays clear: no line comes nearer than 10 degrees, 52 pixels.
    for (int y = 300 - 45; y <= 300 + 45; ++y) {
        for (int x = 400 - 45; x <= 400 + 45; ++x) {
            if (std::hypot(x - 400.0, y - 300.0) < 45.0) {
                ASSERT_NE(page.ColorAt(x, y), RGB(0, 0, 255)) << x << ", " << y;
            }
        }
    }
}
