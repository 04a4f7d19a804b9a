#pragma once
// A 3 by 3 rotation matrix of doubles indexed from 1 in both dimensions, M(row, column). It
// turns a vector of a body's orbital or rotational frame into the frame of its node; see
// SolarSystemObject::BuildOrbitMatrix.
class OrbitMatrix
{
public:
    // The identity.
    OrbitMatrix();

    // Rows and columns 1 to 3; other indices are not checked in release builds.
    double& operator()(int row, int column);
    double operator()(int row, int column) const;

private:
    double aCells[3][3];
};
