// The cost of drawing a full sky of stars into the map's 1024 by 768 off-screen bitmap: straight
// into its 8-bit bits, through SetPixel (as when printing), and with every star working out its
// grey again (the first frame after the settings changed).
#include <benchmark/benchmark.h>

#include "SkyBitmap.h"

#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "catalogues/Star.h"
#include "platform/Gdi.h"
#include "platform/HostPalette.h"
#include "platform/Surface.h"
#include "platform/TBitmap.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "skyview/DisplayParameters.h"

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;
constexpr int kStarCount = 100000;

// Stars spread over the bitmap and a little beyond its edges, with magnitudes as the sky has
// them: about three times as many stars in each magnitude as in the one before, down to 8.
std::vector<std::unique_ptr<Star>> MakeStars()
{
    std::mt19937 random(1991);
    std::uniform_int_distribution<int> x(-10, kWidth + 10);
    std::uniform_int_distribution<int> y(-10, kHeight + 10);
    std::uniform_real_distribution<double> u(1e-9, 1.0);
    std::vector<std::unique_ptr<Star>> stars;
    stars.reserve(kStarCount);
    for (int i = 0; i < kStarCount; ++i) {
        double magnitude = std::max(-1.5, 8.0 + std::log10(u(random)) / 0.48);
        auto star = std::make_unique<Star>(std::uint32_t(i + 1), magnitude, PolarCoord());
        star->SetDisplayPoint(TPoint(x(random), y(random)));
        stars.push_back(std::move(star));
    }
    return stars;
}

void DrawAll(benchmark::State& state, bool fast, bool flushColours)
{
    SkyBitmap sky(kWidth, kHeight);
    if (!fast) {
        sky.Parameters.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    }
    std::vector<std::unique_ptr<Star>> stars = MakeStars();
    for (auto _ : state) {
        state.PauseTiming();
        sky.Clear();
        if (flushColours) {
            for (auto& star : stars) {
                star->FlushDisplayCache();
            }
        }
        state.ResumeTiming();
        for (auto& star : stars) {
            star->Draw(*sky.Dc, sky.Parameters);
        }
    }
    state.SetItemsProcessed(state.iterations() * kStarCount);
}

void DrawStarsIntoTheBits(benchmark::State& state)
{
    DrawAll(state, true, false);
}
BENCHMARK(DrawStarsIntoTheBits)->Unit(benchmark::kMillisecond);

void DrawStarsThroughSetPixel(benchmark::State& state)
{
    DrawAll(state, false, false);
}
BENCHMARK(DrawStarsThroughSetPixel)->Unit(benchmark::kMillisecond);

void DrawStarsWorkingOutTheirGrey(benchmark::State& state)
{
    DrawAll(state, true, true);
}
BENCHMARK(DrawStarsWorkingOutTheirGrey)->Unit(benchmark::kMillisecond);

} // namespace
