// The cost of one time step of the solar system against ERFA doing the same work, in one run.
//
// Orbiscope: a new time on the Sun, the Earth, the eight other planets and the Moon (and, in
// the second case, two comets), then the apparent place of every body but the Earth as seen from
// the Earth: right ascension and declination of the true equator and equinox of date, with light
// time and aberration.
//
// ERFA: the same apparent places from its own theories: the Earth from eraEpv00, the planets
// Mercury to Neptune (ERFA has no Pluto) from eraPlan94, the Moon from eraMoon98, the matrix of
// bias, precession and nutation from eraPnm06a; then per body one step of light time with the
// body's velocity, stellar aberration (eraAb) and the turn to the equator of date.
//
// Each case reports the time per position (the counter "per_position"). The single ERFA
// routines are measured alone too, each for one position, as the cheapest possible reference.
// The time moves on by an hour at every iteration, so that no result is reused.
#include <benchmark/benchmark.h>

#include <erfa.h>
#include <erfam.h>

#include "solar/Comet.h"
#include "solar/CometList.h"
#include "solar/Earth200.h"
#include "solar/Jupiter200.h"
#include "solar/Mars200.h"
#include "solar/Mercury200.h"
#include "solar/Moon.h"
#include "solar/Neptune200.h"
#include "solar/Pluto200.h"
#include "solar/Saturn200.h"
#include "solar/Sun200.h"
#include "solar/Uranus200.h"
#include "solar/Venus200.h"

#include <cmath>
#include <iterator>
#include <memory>
#include <vector>

namespace {

constexpr double kStartMJD = 51544.5;
constexpr double kHour = 1.0 / 24.0;        // days
constexpr double kMjdZero = 2400000.5;      // Julian Date of MJD 0
constexpr double kLightDaysPerAu = 0.00578; // light time, days per AU

// The time of one position: iterations times positions, as an inverted rate.
benchmark::Counter PerPosition(benchmark::State& state, std::size_t positions)
{
    return benchmark::Counter(static_cast<double>(state.iterations()) * positions,
                              benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void OrbiscopeStep(benchmark::State& state, bool withComets)
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
    std::vector<SolarSystemObject*> bodies = {&earth,  &sun,    &mercury, &venus, &mars, &jupiter,
                                              &saturn, &uranus, &neptune, &pluto, &moon};
    std::vector<std::unique_ptr<Comet>> comets;
    if (withComets) {
        for (const ListedComet& listed : BuiltInComets()) {
            comets.push_back(std::make_unique<Comet>(listed.Elements));
            bodies.push_back(comets.back().get());
        }
    }
    double mjd = kStartMJD;
    for (auto _ : state) {
        const AstroTime now(mjd, false);
        for (SolarSystemObject* body : bodies) {
            body->SetTime(now);
        }
        for (SolarSystemObject* body : bodies) {
            if (body != &earth) {
                const SphericalCoord place = earth.GetApparentPlace(*body);
                benchmark::DoNotOptimize(place.GetLongitude());
                benchmark::DoNotOptimize(place.GetLatitude());
            }
        }
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, bodies.size() - 1);
}

void BM_Orbiscope_TimeStep(benchmark::State& state)
{
    OrbiscopeStep(state, false);
}
BENCHMARK(BM_Orbiscope_TimeStep);

void BM_Orbiscope_TimeStepWithComets(benchmark::State& state)
{
    OrbiscopeStep(state, true);
}
BENCHMARK(BM_Orbiscope_TimeStepWithComets);

// The apparent RA and Dec of date (radians) of a body at the geocentric position p (AU) that
// moves at v (AU per day, heliocentric), seen from an Earth of barycentric velocity `earthV`:
// one step of light time, then the aberration and the turn to the equator of date.
void ErfaApparent(const double p[3], const double v[3], const double earthV[3], double rnpb[3][3],
                  double& ra, double& dec)
{
    const double tau = kLightDaysPerAu * std::sqrt(p[0] * p[0] + p[1] * p[1] + p[2] * p[2]);
    double q[3] = {p[0] - v[0] * tau, p[1] - v[1] * tau, p[2] - v[2] * tau};
    double distance = 0.0, unit[3];
    eraPn(q, &distance, unit);
    double beta[3], speed2 = 0.0;
    for (int i = 0; i < 3; ++i) {
        beta[i] = earthV[i] * ERFA_AULT / ERFA_DAYSEC; // in units of the speed of light
        speed2 += beta[i] * beta[i];
    }
    double aberrated[3], ofDate[3];
    eraAb(unit, beta, distance, std::sqrt(1.0 - speed2), aberrated);
    eraRxp(rnpb, aberrated, ofDate);
    eraC2s(ofDate, &ra, &dec);
}

// ERFA's planets: Mercury, Venus, Mars, Jupiter, Saturn, Uranus, Neptune.
constexpr int kErfaPlanets[] = {1, 2, 4, 5, 6, 7, 8};
// The Sun, the seven planets and the Moon.
constexpr std::size_t kErfaPositions = 9;

void BM_Erfa_TimeStep(benchmark::State& state)
{
    double mjd = kStartMJD;
    for (auto _ : state) {
        double pvh[2][3], pvb[2][3], rnpb[3][3], ra = 0.0, dec = 0.0;
        eraEpv00(kMjdZero, mjd, pvh, pvb);
        eraPnm06a(kMjdZero, mjd, rnpb);

        // The Sun, at rest at the heliocentre.
        const double sun[3] = {-pvh[0][0], -pvh[0][1], -pvh[0][2]};
        const double rest[3] = {0.0, 0.0, 0.0};
        ErfaApparent(sun, rest, pvb[1], rnpb, ra, dec);
        benchmark::DoNotOptimize(ra);
        benchmark::DoNotOptimize(dec);

        for (int planet : kErfaPlanets) {
            double pv[2][3];
            eraPlan94(kMjdZero, mjd, planet, pv);
            const double p[3] = {pv[0][0] - pvh[0][0], pv[0][1] - pvh[0][1], pv[0][2] - pvh[0][2]};
            ErfaApparent(p, pv[1], pvb[1], rnpb, ra, dec);
            benchmark::DoNotOptimize(ra);
            benchmark::DoNotOptimize(dec);
        }

        // The Moon: geocentric; its heliocentric velocity is its own plus the Earth's.
        double moon[2][3];
        eraMoon98(kMjdZero, mjd, moon);
        const double v[3] = {moon[1][0] + pvh[1][0], moon[1][1] + pvh[1][1],
                             moon[1][2] + pvh[1][2]};
        ErfaApparent(moon[0], v, pvb[1], rnpb, ra, dec);
        benchmark::DoNotOptimize(ra);
        benchmark::DoNotOptimize(dec);
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, kErfaPositions);
}
BENCHMARK(BM_Erfa_TimeStep);

// The single routines, each for one position (Epv00: the Earth, and so the Sun; Pnm06a: only
// the frame, which a position needs as well).
void BM_Erfa_Epv00(benchmark::State& state)
{
    double mjd = kStartMJD;
    for (auto _ : state) {
        double pvh[2][3], pvb[2][3];
        benchmark::DoNotOptimize(eraEpv00(kMjdZero, mjd, pvh, pvb));
        benchmark::DoNotOptimize(pvh[0][0]);
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, 1);
}
BENCHMARK(BM_Erfa_Epv00);

void BM_Erfa_Plan94(benchmark::State& state)
{
    double mjd = kStartMJD;
    for (auto _ : state) {
        for (int planet : kErfaPlanets) {
            double pv[2][3];
            benchmark::DoNotOptimize(eraPlan94(kMjdZero, mjd, planet, pv));
            benchmark::DoNotOptimize(pv[0][0]);
        }
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, std::size(kErfaPlanets));
}
BENCHMARK(BM_Erfa_Plan94);

void BM_Erfa_Moon98(benchmark::State& state)
{
    double mjd = kStartMJD;
    for (auto _ : state) {
        double pv[2][3];
        eraMoon98(kMjdZero, mjd, pv);
        benchmark::DoNotOptimize(pv[0][0]);
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, 1);
}
BENCHMARK(BM_Erfa_Moon98);

void BM_Erfa_Pnm06a(benchmark::State& state)
{
    double mjd = kStartMJD;
    for (auto _ : state) {
        double rnpb[3][3];
        eraPnm06a(kMjdZero, mjd, rnpb);
        benchmark::DoNotOptimize(rnpb[0][0]);
        mjd += kHour;
    }
    state.counters["per_position"] = PerPosition(state, 1);
}
BENCHMARK(BM_Erfa_Pnm06a);

} // namespace
