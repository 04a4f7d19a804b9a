// Cost of the solar-system series: every planetary theory and the lunar theory for one time,
// and each theory alone. The time moves on at every iteration, as in a time lapse, so that no
// evaluation is answered from the last one.
#include <benchmark/benchmark.h>

#include "solar/EarthSeries.h"
#include "solar/JupiterSeries.h"
#include "solar/LunarSeries.h"
#include "solar/MarsSeries.h"
#include "solar/MercurySeries.h"
#include "solar/NeptuneSeries.h"
#include "solar/PlutoSeries.h"
#include "solar/SaturnSeries.h"
#include "solar/UranusSeries.h"
#include "solar/VenusSeries.h"

#include <memory>
#include <vector>

namespace {

constexpr double kStep = 1.0 / 36525.0 / 24.0; // one hour, in centuries

std::vector<std::unique_ptr<PlanetSeries>> AllPlanets()
{
    std::vector<std::unique_ptr<PlanetSeries>> planets;
    planets.push_back(std::make_unique<MercurySeries>());
    planets.push_back(std::make_unique<VenusSeries>());
    planets.push_back(std::make_unique<EarthSeries>());
    planets.push_back(std::make_unique<MarsSeries>());
    planets.push_back(std::make_unique<JupiterSeries>());
    planets.push_back(std::make_unique<SaturnSeries>());
    planets.push_back(std::make_unique<UranusSeries>());
    planets.push_back(std::make_unique<NeptuneSeries>());
    planets.push_back(std::make_unique<PlutoSeries>());
    return planets;
}

void BM_AllSeriesForOneTime(benchmark::State& state)
{
    auto planets = AllPlanets();
    LunarSeries moon;
    double T = 0.0;
    for (auto _ : state) {
        for (auto& planet : planets) {
            benchmark::DoNotOptimize(planet->Evaluate(T).L);
        }
        benchmark::DoNotOptimize(moon.Evaluate(T).Longitude);
        T += kStep;
    }
}
BENCHMARK(BM_AllSeriesForOneTime);

template <typename Series>
void BM_PlanetSeries(benchmark::State& state)
{
    Series series;
    double T = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(series.Evaluate(T).L);
        T += kStep;
    }
}
BENCHMARK(BM_PlanetSeries<MercurySeries>);
BENCHMARK(BM_PlanetSeries<VenusSeries>);
BENCHMARK(BM_PlanetSeries<EarthSeries>);
BENCHMARK(BM_PlanetSeries<MarsSeries>);
BENCHMARK(BM_PlanetSeries<JupiterSeries>);
BENCHMARK(BM_PlanetSeries<SaturnSeries>);
BENCHMARK(BM_PlanetSeries<UranusSeries>);
BENCHMARK(BM_PlanetSeries<NeptuneSeries>);
BENCHMARK(BM_PlanetSeries<PlutoSeries>);

void BM_LunarSeries(benchmark::State& state)
{
    LunarSeries moon;
    double T = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(moon.Evaluate(T).Longitude);
        T += kStep;
    }
}
BENCHMARK(BM_LunarSeries);

} // namespace
