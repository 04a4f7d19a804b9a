#include "solar/PlanetSeries.h"

#include "solar/SeriesMath.h"

#include <cmath>

PlanetSeries::PlanetSeries(int ownLowest, int ownHighest, int sharedLowest, int sharedHighest)
    : OwnC(ownLowest, ownHighest), OwnS(ownLowest, ownHighest),
      SharedC(sharedLowest, sharedHighest), SharedS(sharedLowest, sharedHighest)
{}

const SeriesPosition& PlanetSeries::Evaluate(double T)
{
    if (!bEvaluated || T != EvaluatedT) {
        Result = Compute(T);
        EvaluatedT = T;
        bEvaluated = true;
    }
    return Result;
}

void PlanetSeries::Begin()
{
    DL = 0.0;
    DR = 0.0;
    DB = 0.0;
    U = 0.0;
    V = 0.0;
    SharedC[0] = 1.0;
    SharedS[0] = 0.0;
}

void PlanetSeries::FormOwnMultiples(double M)
{
    OwnC[0] = 1.0;
    OwnS[0] = 0.0;
    OwnC[1] = std::cos(M);
    OwnS[1] = std::sin(M);
    for (int i = 2; i <= OwnC.GetHighest(); ++i) {
        AddAngles(OwnC[i - 1], OwnS[i - 1], OwnC[1], OwnS[1], OwnC[i], OwnS[i]);
    }
    for (int i = 1; - i >= OwnC.GetLowest(); ++i) {
        OwnC[-i] = OwnC[i];
        OwnS[-i] = -OwnS[i];
    }
}

void PlanetSeries::FormDisturberMultiples(const SeriesBlock& block, double disturber)
{
    const double c = std::cos(disturber);
    const double s = std::sin(disturber);
    if (block.HighestJ >= 1) {
        SharedC[1] = c;
        SharedS[1] = s;
    }
    SharedC[-1] = c;
    SharedS[-1] = -s;
    ExtendDisturberMultiples(-1, block.LowestJ);
}

void PlanetSeries::SetDisturberMultiple(int j, double angle)
{
    SharedC[j] = std::cos(angle);
    SharedS[j] = std::sin(angle);
}

void PlanetSeries::ExtendDisturberMultiples(int from, int lowest)
{
    for (int j = from; j > lowest; --j) {
        AddAngles(SharedC[j], SharedS[j], SharedC[-1], SharedS[-1], SharedC[j - 1], SharedS[j - 1]);
    }
}

void PlanetSeries::AddRows(const SeriesBlock& block, double T)
{
    for (const PerturbationRow& row : block.Rows) {
        if (row.IT == 0) {
            AddAngles(OwnC[row.I], OwnS[row.I], SharedC[row.J], SharedS[row.J], U, V);
        } else {
            U *= T;
            V *= T;
        }
        DL += row.dlc * U + row.dls * V;
        DR += row.drc * U + row.drs * V;
        DB += row.dbc * U + row.dbs * V;
    }
}

void PlanetSeries::AddBlock(const SeriesBlock& block, double disturber, double T)
{
    FormDisturberMultiples(block, disturber);
    AddRows(block, T);
}
