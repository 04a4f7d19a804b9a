#pragma once
// The machinery shared by the analytic planetary theories: running sums, the tables of
// multiples of the anomalies, and the evaluation of perturbation rows.
//
// A theory sums rows of the form (I, J, IT: dlc, dls, drc, drs, dbc, dbs). With M the body's own
// anomaly and M' a disturber's, a row's argument is I M + J M'; its cosine U and sine V come
// from the tables of multiples by one use of the addition theorem, so that a change of time
// costs sine and cosine only for the anomalies and a few direct terms. A row with IT > 0 keeps
// the argument of the row before and multiplies U, V by T once more. The sums DL (arcseconds),
// DR (1e-6 or 1e-5 AU, by theory) and DB (arcseconds) are then turned into heliocentric
// ecliptic longitude, latitude and radius of the mean equinox of date by each theory.
//
// T is Julian centuries from 2000 January 1.5; no difference between universal and dynamical
// time is made. Results are in radians and astronomical units; rates are in 1e-4 radian per day
// and 1e-4 AU per day.
#include "solar/FlexIndexArray.h"
#include "solar/SeriesRows.h"

#include <span>

// Heliocentric ecliptic place of the mean equinox of date from a planetary theory.
struct SeriesPosition
{
    double L = 0.0;  // longitude, radians
    double B = 0.0;  // latitude, radians
    double R = 0.0;  // distance from the Sun, AU
    double dL = 0.0; // rate of longitude, 1e-4 radian per day
    double dB = 0.0; // rate of latitude, 1e-4 radian per day
    double dR = 0.0; // rate of distance, 1e-4 AU per day
};

// One block of rows, all with the same disturber, and the range of disturber multiples J that
// its rows use. Made at compile time from a table by MakeSeriesBlock.
struct SeriesBlock
{
    std::span<const PerturbationRow> Rows;
    int LowestI;
    int HighestI;
    int LowestJ;
    int HighestJ;
};

constexpr SeriesBlock MakeSeriesBlock(std::span<const PerturbationRow> rows)
{
    SeriesBlock block{rows, 0, 0, 0, 0};
    if (!rows.empty()) {
        block = {rows, rows[0].I, rows[0].I, rows[0].J, rows[0].J};
    }
    for (const PerturbationRow& row : rows) {
        block.LowestI = row.I < block.LowestI ? row.I : block.LowestI;
        block.HighestI = row.I > block.HighestI ? row.I : block.HighestI;
        block.LowestJ = row.J < block.LowestJ ? row.J : block.LowestJ;
        block.HighestJ = row.J > block.HighestJ ? row.J : block.HighestJ;
    }
    return block;
}

// True when every row of the block stays within the given ranges of own and disturber multiples.
constexpr bool FitsRanges(const SeriesBlock& block, int ownLowest, int ownHighest, int sharedLowest,
                          int sharedHighest)
{
    return block.LowestI >= ownLowest && block.HighestI <= ownHighest &&
           block.LowestJ >= sharedLowest && block.HighestJ <= sharedHighest;
}

class PlanetSeries
{
public:
    virtual ~PlanetSeries() = default;

    // The place at T. A second call with the same T returns the stored result without
    // evaluating the series again.
    const SeriesPosition& Evaluate(double T);

protected:
    // The own arrays hold multiples ownLowest..ownHighest of the body's anomaly; the shared
    // ones sharedLowest..sharedHighest of a disturber's, and must contain index 0.
    PlanetSeries(int ownLowest, int ownHighest, int sharedLowest, int sharedHighest);

    // The theory proper: sums the rows and direct terms and applies the finishing formulas.
    virtual SeriesPosition Compute(double T) = 0;

    // Clears the sums and sets the shared multiple 0, before the first block.
    void Begin();
    // Fills the own arrays with cos(i M), sin(i M) over their whole range.
    void FormOwnMultiples(double M);
    // Fills the shared arrays with the multiples of a disturber's anomaly that the block uses:
    // index -1 down to its lowest J, and +1 when it uses that.
    void FormDisturberMultiples(const SeriesBlock& block, double disturber);
    // Sets one shared multiple to the cosine and sine of the given angle.
    void SetDisturberMultiple(int j, double angle);
    // Continues the shared multiples below index `from` down to `lowest`, each one step of
    // the multiple at -1.
    void ExtendDisturberMultiples(int from, int lowest);
    // Adds the block's rows to the sums with the multiples as they stand.
    void AddRows(const SeriesBlock& block, double T);
    // Both of the above: the usual block.
    void AddBlock(const SeriesBlock& block, double disturber, double T);

    // Running sums: longitude and latitude in arcseconds, radius in the theory's unit.
    double DL = 0.0;
    double DR = 0.0;
    double DB = 0.0;
    // Cosine and sine of the present row's argument (times a power of T).
    double U = 0.0;
    double V = 0.0;
    // Multiples of the body's own anomaly and of the present disturber's.
    FlexIndexArray OwnC;
    FlexIndexArray OwnS;
    FlexIndexArray SharedC;
    FlexIndexArray SharedS;

private:
    bool bEvaluated = false;
    double EvaluatedT = 0.0;
    SeriesPosition Result;
};
