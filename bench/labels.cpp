// The cost of the labels of a crowded view on the map's 1024 by 768 off-screen bitmap: laying
// out 500 star labels (the frame after the view changed), and drawing them where they were
// placed (every other frame). Layout finds what a place collides with through a grid of cells,
// so it grows with the number of labels, not its square; the range shows it.
#include <benchmark/benchmark.h>

#include "SkyBitmap.h"

#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "catalogues/AstroList.h"
#include "catalogues/Star.h"
#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "skyview/DisplayParameters.h"
#include "skyview/Label.h"
#include "skyview/LabelManager.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

// Named stars spread evenly over the bitmap, with names of 4 to 12 letters as star names have.
std::vector<std::unique_ptr<Star>> MakeNamedStars(int count)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> x(0, kWidth - 1);
    std::uniform_int_distribution<int> y(0, kHeight - 1);
    std::uniform_int_distribution<int> length(4, 12);
    std::uniform_int_distribution<int> letter('a', 'z');
    std::vector<std::unique_ptr<Star>> stars;
    for (int i = 0; i < count; ++i) {
        std::string name(1, char('A' + i % 26));
        for (int n = length(random); n > 1; --n) {
            name += char(letter(random));
        }
        stars.push_back(
            std::make_unique<Star>(std::uint32_t(i + 1), 1.0, PolarCoord(0.0, 0.0), name));
        stars.back()->SetDisplayPoint(TPoint(x(random), y(random)));
    }
    return stars;
}

struct LabelledSky
{
    explicit LabelledSky(int count)
        : Sky(kWidth, kHeight), Stars(MakeNamedStars(count)), Objects(500, 1000)
    {
        Sky.Parameters.SetDrawRect(TRect(0, 0, kWidth, kHeight));
        Sky.Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
        Sky.Parameters.SetLimitingMagnitudeLabels(6.0);
        for (const auto& star : Stars) {
            Objects.Add(star.get());
        }
    }

    SkyBitmap Sky;
    std::vector<std::unique_ptr<Star>> Stars;
    AstroList Objects;
    LabelManager Labels;
};

// The labels step of a frame after the view changed, status text in the lower left corner.
void BM_LayOutLabels(benchmark::State& state)
{
    LabelledSky sky(int(state.range(0)));
    const TRect status(0, kHeight - 20, 400, kHeight);
    std::size_t shown = 0;
    for (auto _ : state) {
        sky.Labels.SetAvoidRect(status);
        sky.Labels.Flush();
        sky.Labels.LoadLabels(sky.Sky.Parameters, sky.Objects);
        sky.Labels.Arrange(sky.Sky.Parameters);
        benchmark::DoNotOptimize(sky.Labels.data());
    }
    for (const Label* label : sky.Labels) {
        shown += label->IsHidden() ? 0 : 1;
    }
    state.counters["shown"] = double(shown);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_LayOutLabels)
    ->Arg(100)
    ->Arg(250)
    ->Arg(500)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);

// Every frame draws the labels where they were placed.
void BM_DrawPlacedLabels(benchmark::State& state)
{
    LabelledSky sky(500);
    sky.Labels.LoadLabels(sky.Sky.Parameters, sky.Objects);
    sky.Labels.Arrange(sky.Sky.Parameters);
    for (auto _ : state) {
        sky.Sky.Clear();
        sky.Labels.Draw(*sky.Sky.Dc);
    }
    state.SetItemsProcessed(state.iterations() * 500);
}
BENCHMARK(BM_DrawPlacedLabels)->Unit(benchmark::kMillisecond);

} // namespace
