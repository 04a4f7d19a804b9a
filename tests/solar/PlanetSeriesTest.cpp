// The machinery every planetary theory shares, driven through a small theory of its own:
// tables of multiples, rows with and without powers of T, and evaluation once per time.
#include <gtest/gtest.h>

#include "solar/PlanetSeries.h"
#include "solar/SeriesMath.h"

#include <array>
#include <cmath>
#include <functional>

namespace {

// A theory whose steps the test supplies. Own multiples -2..3, shared multiples -3..1.
class ProbeSeries : public PlanetSeries
{
public:
    ProbeSeries() : PlanetSeries(-2, 3, -3, 1) {}

    using PlanetSeries::AddBlock;
    using PlanetSeries::AddRows;
    using PlanetSeries::DB;
    using PlanetSeries::DL;
    using PlanetSeries::DR;
    using PlanetSeries::ExtendDisturberMultiples;
    using PlanetSeries::FormDisturberMultiples;
    using PlanetSeries::FormOwnMultiples;
    using PlanetSeries::OwnC;
    using PlanetSeries::OwnS;
    using PlanetSeries::SetDisturberMultiple;
    using PlanetSeries::SharedC;
    using PlanetSeries::SharedS;

    std::function<void(ProbeSeries&, double)> Steps;
    int Computations = 0;

protected:
    SeriesPosition Compute(double T) override
    {
        ++Computations;
        Begin();
        if (Steps) {
            Steps(*this, T);
        }
        SeriesPosition sums;
        sums.L = DL;
        sums.R = DR;
        sums.B = DB;
        return sums;
    }
};

constexpr double kOwn = 0.7;       // the body's own anomaly, radians
constexpr double kDisturber = 2.3; // a disturber's anomaly, radians

} // namespace

TEST(PlanetSeries, OwnMultiplesAreCosinesAndSinesOfWholeMultiples)
{
    ProbeSeries series;
    series.FormOwnMultiples(kOwn);
    for (int i = -2; i <= 3; ++i) {
        EXPECT_NEAR(series.OwnC[i], std::cos(i * kOwn), 1e-14) << i;
        EXPECT_NEAR(series.OwnS[i], std::sin(i * kOwn), 1e-14) << i;
    }
}

TEST(PlanetSeries, DisturberMultiplesReachAsDeepAsTheBlockNeeds)
{
    constexpr std::array<PerturbationRow, 2> rows{
        {{0, -3, 0, 0, 0, 0, 0, 0, 0}, {1, 0, 0, 0, 0, 0, 0, 0, 0}}};
    ProbeSeries series;
    series.SharedC[1] = 42.0; // a block without positive multiples leaves index 1 alone
    series.FormDisturberMultiples(MakeSeriesBlock(rows), kDisturber);
    for (int j = -3; j <= -1; ++j) {
        EXPECT_NEAR(series.SharedC[j], std::cos(j * kDisturber), 1e-14) << j;
        EXPECT_NEAR(series.SharedS[j], std::sin(j * kDisturber), 1e-14) << j;
    }
    EXPECT_EQ(series.SharedC[1], 42.0);
}

TEST(PlanetSeries, BlocksWithAPositiveDisturberMultipleGetIt)
{
    constexpr std::array<PerturbationRow, 2> rows{
        {{1, 1, 0, 0, 0, 0, 0, 0, 0}, {1, -2, 0, 0, 0, 0, 0, 0, 0}}};
    ProbeSeries series;
    series.FormDisturberMultiples(MakeSeriesBlock(rows), kDisturber);
    EXPECT_NEAR(series.SharedC[1], std::cos(kDisturber), 1e-15);
    EXPECT_NEAR(series.SharedS[1], std::sin(kDisturber), 1e-15);
    EXPECT_NEAR(series.SharedS[-2], std::sin(-2.0 * kDisturber), 1e-14);
}

TEST(PlanetSeries, ARowWeighsTheCosineAndSineOfItsArgument)
{
    // Argument 2 M - M'; every coefficient different so that a swap shows.
    static constexpr std::array<PerturbationRow, 1> rows{
        {{2, -1, 0, 1.5, -2.5, 3.5, 4.5, -5.5, 6.5}}};
    ProbeSeries series;
    series.Steps = [](ProbeSeries& s, double T) {
        s.FormOwnMultiples(kOwn);
        s.AddBlock(MakeSeriesBlock(rows), kDisturber, T);
    };
    const SeriesPosition& sums = series.Evaluate(0.3);
    const double c = std::cos(2.0 * kOwn - kDisturber);
    const double s = std::sin(2.0 * kOwn - kDisturber);
    EXPECT_NEAR(sums.L, 1.5 * c - 2.5 * s, 1e-13);
    EXPECT_NEAR(sums.R, 3.5 * c + 4.5 * s, 1e-13);
    EXPECT_NEAR(sums.B, -5.5 * c + 6.5 * s, 1e-13);
}

TEST(PlanetSeries, PowerRowsMultiplyThePreviousArgumentByTOnceMore)
{
    // The same argument with T^0, T^1, T^2 and T^3, then a new argument with T^0.
    static constexpr std::array<PerturbationRow, 5> rows{{
        {1, -1, 0, 1.0, 0, 0, 0, 0, 0},
        {1, -1, 1, 10.0, 0, 0, 0, 0, 0},
        {1, -1, 2, 100.0, 0, 0, 0, 0, 0},
        {1, -1, 3, 1000.0, 0, 0, 0, 0, 0},
        {0, -2, 0, 0, 0, 0, 0, 0, 7.0},
    }};
    ProbeSeries series;
    series.Steps = [](ProbeSeries& s, double T) {
        s.FormOwnMultiples(kOwn);
        s.AddBlock(MakeSeriesBlock(rows), kDisturber, T);
    };
    const double c = std::cos(kOwn - kDisturber);
    for (double T : {0.0, 0.5, -1.5}) {
        const SeriesPosition sums = series.Evaluate(T);
        EXPECT_NEAR(sums.L, c * (1.0 + 10.0 * T + 100.0 * T * T + 1000.0 * T * T * T), 1e-11) << T;
        // The row after the powers starts afresh and is not multiplied by T.
        EXPECT_NEAR(sums.B, 7.0 * std::sin(-2.0 * kDisturber), 1e-13) << T;
    }
}

TEST(PlanetSeries, AtTimeZeroPowerRowsAddNothing)
{
    static constexpr std::array<PerturbationRow, 3> rows{{
        {1, 0, 0, 0, 2.0, 0, 0, 0, 0},
        {1, 0, 1, 0, 500.0, 0, 0, 0, 0},
        {1, 0, 2, 0, 900.0, 0, 0, 0, 0},
    }};
    ProbeSeries series;
    series.Steps = [](ProbeSeries& s, double T) {
        s.FormOwnMultiples(kOwn);
        s.AddBlock(MakeSeriesBlock(rows), kDisturber, T);
    };
    EXPECT_NEAR(series.Evaluate(0.0).L, 2.0 * std::sin(kOwn), 1e-14);
}

TEST(PlanetSeries, MultiplesSetDirectlyAndExtendedFromThere)
{
    // A combined argument 2 M5 + J M6 held at J = -2 and continued to J = -3 by steps of -M6.
    const double m5 = 0.4, m6 = 1.9;
    ProbeSeries series;
    series.SetDisturberMultiple(-1, -m6);
    series.SetDisturberMultiple(-2, 2.0 * m5 - 2.0 * m6);
    series.ExtendDisturberMultiples(-2, -3);
    EXPECT_NEAR(series.SharedC[-3], std::cos(2.0 * m5 - 3.0 * m6), 1e-14);
    EXPECT_NEAR(series.SharedS[-3], std::sin(2.0 * m5 - 3.0 * m6), 1e-14);
}

TEST(PlanetSeries, EvaluatesOncePerTime)
{
    ProbeSeries series;
    series.Evaluate(0.1);
    series.Evaluate(0.1);
    EXPECT_EQ(series.Computations, 1);
    series.Evaluate(0.2);
    EXPECT_EQ(series.Computations, 2);
    series.Evaluate(0.1);
    EXPECT_EQ(series.Computations, 3);
}

TEST(PlanetSeries, SumsStartAfreshAtEachTime)
{
    static constexpr std::array<PerturbationRow, 1> rows{{{1, 0, 0, 1.0, 0, 2.0, 0, 3.0, 0}}};
    ProbeSeries series;
    series.Steps = [](ProbeSeries& s, double T) {
        s.FormOwnMultiples(kOwn);
        s.AddBlock(MakeSeriesBlock(rows), kDisturber, T);
    };
    const SeriesPosition first = series.Evaluate(0.1);
    const SeriesPosition second = series.Evaluate(0.2);
    EXPECT_DOUBLE_EQ(second.L, first.L);
    EXPECT_DOUBLE_EQ(second.R, first.R);
    EXPECT_DOUBLE_EQ(second.B, first.B);
}
