#pragma once
// What the projection tests share: a device of a chosen resolution, and points that print
// as points when a comparison fails.
#include <ostream>

#include "platform/DeviceCaps.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TPoint.h"

inline void PrintTo(const TPoint& point, std::ostream* out)
{
    *out << "(" << point.x << ", " << point.y << ")";
}

// The projection reads only LOGPIXELSX and LOGPIXELSY from its device and never draws.
class TestDevice
{
public:
    explicit TestDevice(int logPixelsX = 96, int logPixelsY = 96)
        : Pixels(1, 1, PixelFormat::Rgb32), Context(Pixels, Caps(logPixelsX, logPixelsY))
    {}

    TDC& DC() { return Context; }

private:
    static DeviceCaps Caps(int x, int y)
    {
        DeviceCaps caps;
        caps.LogPixelsX = x;
        caps.LogPixelsY = y;
        return caps;
    }

    Surface Pixels;
    TDC Context;
};
