#pragma once
// A vector in three dimensions, in whatever unit and frame its maker uses (astronomical
// units in the ecliptic frame for the solar system series).
class RectCoord
{
public:
    RectCoord() = default;
    RectCoord(double x, double y, double z) : X(x), Y(y), Z(z) {}

    double GetX() const { return X; }
    double GetY() const { return Y; }
    double GetZ() const { return Z; }

private:
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
};
