// Cost of the solar system for one time: every planetary theory and the lunar theory, each
// theory alone, and a whole step of a time lapse from a new time to the apparent places of
// every body seen from the Earth. The time moves on at every iteration, so that no evaluation
// is answered from the last one.
#include <benchmark/benchmark.h>

#include "solar/Earth200.h"
#include "solar/EarthSeries.h"
#include "solar/Jupiter200.h"
#include "solar/JupiterSeries.h"
#include "solar/LunarSeries.h"
#include "solar/Mars200.h"
#include "solar/MarsSeries.h"
#include "solar/Mercury200.h"
#include "solar/MercurySeries.h"
#include "solar/Moon.h"
#include "solar/Neptune200.h"
#include "solar/NeptuneSeries.h"
#include "solar/Pluto200.h"
#include "solar/PlutoSeries.h"
#include "solar/Saturn200.h"
#include "solar/SaturnSeries.h"
#include "solar/Sun200.h"
#include "solar/Uranus200.h"
#include "solar/UranusSeries.h"
#include "solar/Venus200.h"
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

// One step of a time lapse: a new time on every body, the Earth first and the Moon last, then
// the apparent place of each of the ten others as seen from the Earth.
void BM_TimeStepToApparentPlaces(benchmark::State& state)
{
    Sun200 sun;
    Mercury200 mercury;
    Venus200 venus;
    Earth200 earth;
    Mars200 mars;
    Jupiter200 jupiter;
    Saturn200 saturn(sun);
    Uranus200 uranus;
    Neptune200 neptune;
    Pluto200 pluto;
    Moon moon(earth, sun);
    SolarSystemObject* const bodies[] = {&earth,  &sun,    &mercury, &venus, &mars, &jupiter,
                                         &saturn, &uranus, &neptune, &pluto, &moon};
    double mjd = 51544.5;
    for (auto _ : state) {
        const AstroTime now(mjd, false);
        for (SolarSystemObject* body : bodies) {
            body->SetTime(now);
        }
        for (SolarSystemObject* body : bodies) {
            if (body != &earth) {
                benchmark::DoNotOptimize(earth.GetApparentPlace(*body).GetLongitude());
            }
        }
        mjd += 1.0 / 24.0;
    }
}
BENCHMARK(BM_TimeStepToApparentPlaces);

} // namespace
