// How fast the sky map builds and draws its coordinate grid, and what a whole frame costs: a
// draw of everything into the off-screen bitmap with its copy to the screen, and a paint with
// nothing to draw, which is the copy alone. All on a 1024 by 768 view of the headless desktop.
#include <benchmark/benchmark.h>

#include <memory>

#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "projection/FixedOrientationInfo.h"
#include "skyview/MapWindow.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

struct View
{
    double RA;
    double Dec;
    double Radius;
};

// The views of the golden pictures: the equator, the north pole and a hemisphere at -45.
constexpr View kViews[] = {{0.0, 0.0, 30.0}, {0.0, 90.0, 60.0}, {0.0, -45.0, 90.0}};

// An 8-bit surface as the map draws on, and the projection of a view onto it.
class GridCanvas
{
public:
    explicit GridCanvas(const View& view)
        : Pixels(kWidth, kHeight, PixelFormat::Indexed8, true), Dc(Pixels),
          Projection(Dc, TRect(0, 0, kWidth, kHeight), PolarCoord(view.RA, view.Dec), view.Radius,
                     FixedOrientationInfo::NorthUpZenith(PolarCoord(view.RA, view.Dec))),
          Map(nullptr)
    {
        Map.SetGridInfo(GridInfo(24, 36, true));
    }

    Surface Pixels;
    TDC Dc;
    Transformation Projection;
    MapWindow Map;
};

void BM_LoadGridPoints(benchmark::State& state)
{
    GridCanvas canvas(kViews[state.range(0)]);
    for (auto _ : state) {
        canvas.Map.LoadGridPoints(canvas.Projection);
        benchmark::DoNotOptimize(canvas.Map.GetGridLines().GetCount());
    }
    state.counters["lines"] = double(canvas.Map.GetGridLines().GetCount());
}
BENCHMARK(BM_LoadGridPoints)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// Building the polylines and drawing them, as a draw does after the view changed.
void BM_LoadAndDrawGrid(benchmark::State& state)
{
    GridCanvas canvas(kViews[state.range(0)]);
    const TRect rect(0, 0, kWidth, kHeight);
    const GridInfo grid(24, 36, true);
    for (auto _ : state) {
        canvas.Map.SetGridInfo(grid); // raises the grid's flag
        canvas.Map.DrawGrid(canvas.Dc, rect, canvas.Projection);
    }
}
BENCHMARK(BM_LoadAndDrawGrid)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// Drawing the polylines of an unchanged view.
void BM_DrawGridOnly(benchmark::State& state)
{
    GridCanvas canvas(kViews[state.range(0)]);
    const TRect rect(0, 0, kWidth, kHeight);
    canvas.Map.DrawGrid(canvas.Dc, rect, canvas.Projection);
    for (auto _ : state) {
        canvas.Map.DrawGrid(canvas.Dc, rect, canvas.Projection);
    }
}
BENCHMARK(BM_DrawGridOnly)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);

// A map on the headless desktop, sized 1024 by 768, with the grid shown; stars down to the
// magnitude given (-30: none).
class ScreenMap
{
public:
    ScreenMap(const View& view, double limitingMagnitude) : Frame(nullptr, "Bench")
    {
        Headless();
        Frame.Attr.W = kWidth;
        Frame.Attr.H = kHeight;
        pMap = new MapWindow(&Frame);
        pMap->Attr.W = kWidth;
        pMap->Attr.H = kHeight;
        pMap->SetTime(AstroTime(1, 1, 2000, 0.0));
        const PolarCoord centre(view.RA, view.Dec);
        pMap->SetOrientation(FixedOrientationInfo(
            nullptr, centre, FixedOrientationInfo::NorthUpZenith(centre), view.Radius));
        pMap->SetGridInfo(GridInfo(24, 36, true));
        StarDisplayParameters stars = pMap->GetDisplayParameters();
        stars.SetLimitingMagnitude(limitingMagnitude);
        pMap->SetStarDisplayParameters(stars);
        Frame.Create();
        WindowSystem::Get().ProcessAll();
    }
    ~ScreenMap() { Frame.Destroy(); }

    TWindow Frame;
    MapWindow* pMap;
};

// Everything drawn again, as after a change of the view, and copied to the screen.
void BM_DrawAllWithGrid(benchmark::State& state)
{
    ScreenMap screen(kViews[state.range(0)], double(state.range(1)));
    for (auto _ : state) {
        screen.pMap->MarkAllDirty();
        screen.pMap->Invalidate();
        screen.pMap->UpdateWindow();
    }
    state.counters["objects"] = double(screen.pMap->GetVisibleObjects().GetCount());
}
BENCHMARK(BM_DrawAllWithGrid)
    ->ArgsProduct({{0, 1, 2}, {-30, 6}})
    ->ArgNames({"view", "limit"})
    ->Unit(benchmark::kMicrosecond);

// A paint with nothing dirty: the copy of the bitmap alone.
void BM_PaintUnchanged(benchmark::State& state)
{
    ScreenMap screen(kViews[0], -30.0);
    for (auto _ : state) {
        screen.pMap->Invalidate();
        screen.pMap->UpdateWindow();
    }
}
BENCHMARK(BM_PaintUnchanged)->Unit(benchmark::kMicrosecond);

} // namespace
