#include "solar/OrbitMatrix.h"

#include <cassert>

OrbitMatrix::OrbitMatrix() : aCells{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}
{}

double& OrbitMatrix::operator()(int row, int column)
{
    assert(row >= 1 && row <= 3 && column >= 1 && column <= 3);
    return aCells[row - 1][column - 1];
}

double OrbitMatrix::operator()(int row, int column) const
{
    assert(row >= 1 && row <= 3 && column >= 1 && column <= 3);
    return aCells[row - 1][column - 1];
}
