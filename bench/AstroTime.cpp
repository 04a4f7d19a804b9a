// Costs of the time conversions that every draw and every body of the solar system pays.
#include <benchmark/benchmark.h>

#include "time/AstroTime.h"
#include "time/TimeStep.h"

namespace {

void CalendarToMjd(benchmark::State& state)
{
    AstroTime time(3, 3, 1999, 17.125);
    for (auto _ : state) {
        benchmark::DoNotOptimize(time.GetMJD());
    }
}
BENCHMARK(CalendarToMjd);

void MjdToCalendar(benchmark::State& state)
{
    double mjd = 51544.5;
    for (auto _ : state) {
        AstroTime time(mjd, true);
        benchmark::DoNotOptimize(time);
        mjd += 0.37;
    }
}
BENCHMARK(MjdToCalendar);

// Eleven bodies asking for the same moment: one computation, ten cache hits.
void CenturiesForElevenBodies(benchmark::State& state)
{
    for (auto _ : state) {
        AstroTime time(3, 3, 1999, 17.125);
        for (int body = 0; body < 11; ++body) {
            benchmark::DoNotOptimize(time.GetCenturiesSince2000());
        }
    }
}
BENCHMARK(CenturiesForElevenBodies);

// One frame of the default time lapse.
void StepFourMinutes(benchmark::State& state)
{
    AstroTime time(3, 3, 1999, 17.125);
    TimeStep step(TimeStep::MINUTES, 4);
    for (auto _ : state) {
        time += step;
        benchmark::DoNotOptimize(time);
    }
}
BENCHMARK(StepFourMinutes);

void StatusText(benchmark::State& state)
{
    AstroTime time(3, 3, 1999, 17.125);
    time.SetMode(AstroTime::Clock12);
    for (auto _ : state) {
        std::string text = time.GetDescription3() + " " + time.GetDescription2();
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(StatusText);

} // namespace
