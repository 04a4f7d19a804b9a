#pragma once
// What the projection tests share: a device of a chosen resolution, points that print as
// points when a comparison fails, and directions on the sphere.
#include <algorithm>
#include <cmath>
#include <ostream>
#include <random>

#include "coords/AngleMath.h"
#include "coords/PolarCoord.h"
#include "platform/DebugStream.h"
#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TPoint.h"
#include "solar/SolarSystemObject.h"

inline void PrintTo(const TPoint& point, std::ostream* out)
{
    *out << "(" << point.x << ", " << point.y << ")";
}

// The projection reads only LOGPIXELSX and LOGPIXELSY from its device and never draws.
class TestDevice
{
public:
    explicit TestDevice(int logPixelsX = 96, int logPixelsY = 96)
        : Pixels(1, 1, PixelFormat::Rgb32), Context(Pixels, DeviceCaps{logPixelsX, logPixelsY})
    {}

    TDC& DC() { return Context; }

private:
    Surface Pixels;
    TDC Context;
};

// The angle between two directions in degrees, by the cosine rule of spherical trigonometry.
inline double Separation(const PolarCoord& a, const PolarCoord& b)
{
    const double d1 = a.GetDec().GetRadians(), d2 = b.GetDec().GetRadians();
    const double c =
        std::sin(d1) * std::sin(d2) +
        std::cos(d1) * std::cos(d2) * std::cos(a.GetRA().GetRadians() - b.GetRA().GetRadians());
    return RadiansToDegrees(std::acos(std::clamp(c, -1.0, 1.0))); // not a number stays one
}

// A direction drawn evenly over the sphere.
inline PolarCoord RandomDirection(std::mt19937& random)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    return PolarCoord(360.0 * unit(random), RadiansToDegrees(std::asin(2.0 * unit(random) - 1)));
}

// Drops, while it lives, the reports the rotations make of rounding they clamp near a pole.
class QuietDebug
{
public:
    QuietDebug() : Previous(SetDebugSink([](const char*) {})) {}
    ~QuietDebug() { SetDebugSink(Previous); }

private:
    DebugSink Previous;
};

// A body whose zenith is right ascension the sidereal time and declination the latitude, as on
// the Earth, but with a sidereal time, in degrees, that moves only when told.
class StillBody : public SolarSystemObject
{
public:
    PolarCoord GetZenith(const LatLong& place) override
    {
        return PolarCoord(Sidereal, place.GetLatitude().GetDegrees());
    }
    std::string GetName() override { return "Still"; }

    double Sidereal = 100.0;
};
