#pragma once
// A place on Earth: latitude positive north, longitude positive west running 0 to 360, so an
// east longitude e is held as 360 - e. Both in degrees.
#include "coords/DegreeAngle.h"

class StateContainer;
class StringParser;

class LatLong
{
public:
    LatLong() = default;
    // Both values normalise as DegreeAngles.
    LatLong(double latitude, double longitude);
    LatLong(const LatLong&) = default;
    LatLong& operator=(const LatLong&) = default;
    virtual ~LatLong() = default;

    const DegreeAngle& GetLatitude() const { return Latitude; }
    const DegreeAngle& GetLongitude() const { return Longitude; }
    void SetLatitude(const DegreeAngle& latitude) { Latitude = latitude; }
    void SetLongitude(const DegreeAngle& longitude) { Longitude = longitude; }

    bool operator==(const LatLong& other) const
    {
        return Latitude == other.Latitude && Longitude == other.Longitude;
    }

    // Reads "latitude [N|S] longitude [W|E]" in decimal degrees, e.g. "33.9 S 151.2 E".
    // A missing letter counts as N or W; only the whole token S (or E) turns the value round.
    // False when a number is missing; the latitude stays changed when only the longitude was.
    bool Set(StringParser& parser);

    // A level at the caller's key holding "Lat" and "Long".
    virtual StateContainer& operator<<(StateContainer& sc) const;
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    DegreeAngle Latitude;
    DegreeAngle Longitude;
};

StateContainer& operator<<(StateContainer& sc, const LatLong& place);
StateContainer& operator>>(StateContainer& sc, LatLong& place);
