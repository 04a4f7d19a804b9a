// What the solar system costs a frame of the sky map: the Moon's picture drawn at an unchanged
// scale (one copy) and at a new scale (a stretch first), a picture turned, and a time step of
// the eleven planet views with their places.
#include <benchmark/benchmark.h>

#include <memory>

#include "SkyBitmap.h"
#include "catalogues/AstroBitmap.h"
#include "platform/ModuleResources.h"
#include "platform/TDib.h"
#include "projection/Transformation.h"
#include "solar/MoonView.h"
#include "solar/PlanetCatalogue.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

AstroTime AtCenturies(double T)
{
    return AstroTime(51544.5 + T * 36525.0, false);
}

// The Moon in a field of `radius` degrees centred on it; 5 degrees makes it some 38 pixels.
void DrawMoon(benchmark::State& state, bool newScaleEachFrame)
{
    SkyBitmap map(kWidth, kHeight);
    map.Parameters.SetDrawRect(TRect(0, 0, kWidth, kHeight));
    PlanetCatalogue planets;
    planets.SetTime(AtCenturies(0.0));
    auto* moon = static_cast<MoonView*>(planets.GetView(PlanetCatalogue::kMoonPlace));
    const PolarCoord place = moon->GetPosition();
    Transformation narrow(*map.Dc, TRect(0, 0, kWidth, kHeight), place, 5.0, PolarCoord(0.0, 90.0));
    Transformation wide(*map.Dc, TRect(0, 0, kWidth, kHeight), place, 5.5, PolarCoord(0.0, 90.0));
    TPoint point;
    narrow.Translate(place, point);
    moon->SetDisplayPoint(point);
    bool useWide = false;
    for (auto _ : state) {
        map.Parameters.pTransformation = newScaleEachFrame && useWide ? &wide : &narrow;
        useWide = !useWide;
        moon->Draw(*map.Dc, map.Parameters);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_MoonDrawSameScale(benchmark::State& state)
{
    DrawMoon(state, false);
}
BENCHMARK(BM_MoonDrawSameScale);

void BM_MoonDrawNewScale(benchmark::State& state)
{
    DrawMoon(state, true);
}
BENCHMARK(BM_MoonDrawNewScale);

void BM_RotatePicture(benchmark::State& state)
{
    const TDib moon(GetModuleInstance(), TResId("MOON3"));
    double angle = 1.0;
    for (auto _ : state) {
        auto turned = AstroBitmap::Rotate(moon, DegreeAngle(angle));
        benchmark::DoNotOptimize(turned.get());
        angle += 1.0;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_RotatePicture);

// One step of a time lapse: every view gets the new time and is asked for its place, as a
// request does.
void BM_PlanetTimeStep(benchmark::State& state)
{
    PlanetCatalogue planets;
    double T = 0.0;
    for (auto _ : state) {
        T += 1.0 / 36525.0;
        planets.SetTime(AtCenturies(T));
        for (unsigned i = 0; i < planets.GetCount(); ++i) {
            PlanetView* view = planets.GetView(i);
            if (view->IsVisible()) {
                benchmark::DoNotOptimize(view->GetPosition());
            }
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_PlanetTimeStep);

} // namespace
