#pragma once
// The Earth: its heliocentric place from the theory of the Sun's apparent motion, and what
// only an observer on the Earth has: the turn from the ecliptic to the equator of date,
// nutation, and sidereal time.
#include "solar/EarthSeries.h"
#include "solar/Planet.h"

class Earth200 : public Planet
{
public:
    Earth200();

    double GetBaseMagnitude() override { return -3.86; }
    // The body's name from the host's string table, fetched at construction.
    std::string GetName() override { return name; }

    // The zenith of a place at the Earth's time: right ascension the local sidereal time,
    // declination the latitude.
    PolarCoord GetZenith(const LatLong& location) override;
    // Local sidereal time at a place (longitude positive west) at the Earth's time, and at the
    // midnight (0h UT) that begins its day; the hours as an angle, 15 degrees an hour.
    DegreeAngle GetLocalSiderealTime(const LatLong& location) override;
    DegreeAngle GetMidnightSiderealTime(const LatLong& location) override;

    // Local mean sidereal time in hours, 0 to 24, at a Modified Julian Date and a longitude in
    // degrees positive west.
    static double SiderealHours(double mjd, double westLongitude);

protected:
    bool Compute() override;
    // Rotates about the x axis by the mean obliquity of the Earth's date.
    RectCoord EclipticToEquatorial(const RectCoord& rect) override;
    // Adds the nutation in longitude and obliquity (the five largest terms) of the Earth's date
    // to an equatorial vector of the mean equinox, giving the true equinox.
    bool ApplyNutation(RectCoord& rect) override;

private:
    const std::string name;
    EarthSeries Series;
};
