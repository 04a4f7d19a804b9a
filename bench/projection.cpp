// Costs of the sky-to-surface mapping: Translate runs once per star and grid point of every
// draw, and every draw builds one Transformation.
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "coords/AngleMath.h"
#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "projection/Transformation.h"

namespace {

// A screen of 96 pixels per inch; the mapping reads nothing else from it.
struct Screen
{
    Surface Pixels{1, 1, PixelFormat::Rgb32};
    TDC DC{Pixels, DeviceCaps()};
};

const TRect kRect(0, 0, 1024, 768);
const PolarCoord kCentre(83.6, 22.0); // Orion, from mid-northern latitudes
const PolarCoord kZenith(40.0, 51.5);

Transformation MakeView(Screen& screen, double radius = 30.0)
{
    return Transformation(screen.DC, kRect, kCentre, radius, kZenith);
}

// Directions spread evenly over the sphere.
std::vector<PolarCoord> WholeSky(std::size_t count)
{
    std::mt19937 random(17);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    std::vector<PolarCoord> sky;
    for (std::size_t i = 0; i < count; ++i) {
        sky.emplace_back(360.0 * unit(random),
                         RadiansToDegrees(std::asin(2.0 * unit(random) - 1.0)));
    }
    return sky;
}

// The points of a grid of whole degrees around the centre: lines of equal RA through the
// centre and directions exactly on a pixel boundary are where the mapping is most careful.
std::vector<PolarCoord> GridAroundCentre()
{
    std::vector<PolarCoord> grid;
    for (int ra = 40; ra <= 130; ++ra) {
        for (int dec = -10; dec <= 55; ++dec) {
            grid.emplace_back(double(ra), double(dec));
        }
    }
    return grid;
}

void Run(benchmark::State& state, const Transformation& view,
         const std::vector<PolarCoord>& directions)
{
    // The rotations report clamped rounding; the cost of the report is not the mapping's.
    DebugSink previous = SetDebugSink([](const char*) {});
    TPoint point;
    for (auto _ : state) {
        for (const PolarCoord& direction : directions) {
            benchmark::DoNotOptimize(view.Translate(direction, point));
        }
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t(directions.size()));
    SetDebugSink(previous);
}

void TranslateWholeSky(benchmark::State& state)
{
    Screen screen;
    Run(state, MakeView(screen), WholeSky(4096));
}
BENCHMARK(TranslateWholeSky);

void TranslateGridPoints(benchmark::State& state)
{
    Screen screen;
    Run(state, MakeView(screen), GridAroundCentre());
}
BENCHMARK(TranslateGridPoints);

// The three rotations and the projection one after the other, as Translate answers.
void RotateThenProject(benchmark::State& state)
{
    Screen screen;
    Transformation view = MakeView(screen);
    std::vector<PolarCoord> sky = WholeSky(4096);
    DebugSink previous = SetDebugSink([](const char*) {});
    PolarCoord turned;
    TPoint point;
    for (auto _ : state) {
        for (const PolarCoord& direction : sky) {
            view.GetModifier().ChangePerspective(direction, turned);
            benchmark::DoNotOptimize(view.GetProjector().Project(turned, point));
        }
    }
    state.SetItemsProcessed(state.iterations() * std::int64_t(sky.size()));
    SetDebugSink(previous);
}
BENCHMARK(RotateThenProject);

void ReverseTranslatePixels(benchmark::State& state)
{
    Screen screen;
    Transformation view = MakeView(screen);
    PolarCoord direction;
    std::int64_t count = 0;
    for (auto _ : state) {
        for (int y = 0; y < 768; y += 16) {
            for (int x = 0; x < 1024; x += 16) {
                benchmark::DoNotOptimize(view.ReverseTranslate(TPoint(x, y), direction));
                ++count;
            }
        }
    }
    state.SetItemsProcessed(count);
}
BENCHMARK(ReverseTranslatePixels);

// What a draw pays before its first star: the transformation and its visible range.
void BuildTransformation(benchmark::State& state)
{
    Screen screen;
    DebugSink previous = SetDebugSink([](const char*) {});
    for (auto _ : state) {
        Transformation view = MakeView(screen);
        benchmark::DoNotOptimize(view.GetVisibleRange());
    }
    SetDebugSink(previous);
}
BENCHMARK(BuildTransformation);

} // namespace
