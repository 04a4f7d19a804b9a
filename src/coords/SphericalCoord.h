#pragma once
// A vector as longitude (0 to two pi), latitude (minus to plus a quarter turn), both in
// radians, and radius in the unit of the vector it came from.
#include <string>

class RectCoord;

class SphericalCoord
{
public:
    SphericalCoord() = default;
    SphericalCoord(double longitudeRadians, double latitudeRadians, double radius)
        : Longitude(longitudeRadians), Latitude(latitudeRadians), Radius(radius)
    {}
    // Longitude by atan2(y, x) brought into 0 to two pi, latitude by atan2(z, sqrt(x² + y²)).
    // A vector along the z axis gives longitude 0 and the pole of the sign of z; the zero
    // vector gives all three 0.
    explicit SphericalCoord(const RectCoord& vector);

    // Radians.
    double GetLongitude() const { return Longitude; }
    // Radians.
    double GetLatitude() const { return Latitude; }
    double GetRadius() const { return Radius; }

    // "Longitude: <l> Latitude: <b> Radius: <r>", radians, numbers in the default stream form.
    std::string Describe() const;

private:
    double Longitude = 0.0;
    double Latitude = 0.0;
    double Radius = 0.0;
};
