#include "platform/DeviceCaps.h"

#include <cstdlib>

#include "platform/WinTypes.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;

int SizeInMillimetres(int pixels, int perInch)
{
    if (perInch <= 0) {
        return 0;
    }
    return int(pixels * kMillimetresPerInch / perInch + 0.5);
}

DeviceCaps& Screen()
{
    static DeviceCaps caps = [] {
        DeviceCaps c;
        if (const char* text = std::getenv("ORBISCOPE_SCREEN_DPI")) {
            int dpi = std::atoi(text);
            if (dpi >= 48 && dpi <= 480) {
                c.LogPixelsX = c.LogPixelsY = dpi;
            }
        }
        return c;
    }();
    return caps;
}

} // namespace

int DeviceCaps::HorzSizeMM() const
{
    return SizeInMillimetres(HorzRes, LogPixelsX);
}

int DeviceCaps::VertSizeMM() const
{
    return SizeInMillimetres(VertRes, LogPixelsY);
}

int DeviceCaps::Get(int index) const
{
    switch (index) {
    case LOGPIXELSX:
        return LogPixelsX;
    case LOGPIXELSY:
        return LogPixelsY;
    case HORZRES:
        return HorzRes;
    case VERTRES:
        return VertRes;
    case HORZSIZE:
        return HorzSizeMM();
    case VERTSIZE:
        return VertSizeMM();
    case BITSPIXEL:
        return BitsPixel;
    case PLANES:
        return 1;
    case NUMCOLORS:
        return BitsPixel <= 8 ? 1 << BitsPixel : -1;
    case SIZEPALETTE:
        return BitsPixel <= 8 ? 1 << BitsPixel : 0;
    default:
        return 0;
    }
}

const DeviceCaps& ScreenDeviceCaps()
{
    return Screen();
}

void SetScreenDeviceCaps(const DeviceCaps& caps)
{
    Screen() = caps;
}
