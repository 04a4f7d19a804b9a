// embed_map: a bare sky map in a window of one's own, through the installed Orbiscope package,
// drawn once without a display and written to a PNG file.
//
//   embed_map OUT.png
//
// The program makes a window of its own on the headless desktop, puts the map into it with
// OrbiscopeWindowInterface, sets the view (Orion on a January evening, seen from Frankfurt, with
// the constellation figures), lets the message loop draw it, and saves what the window shows.
// The library finds its data beside itself in the installation; ORBISCOPE_DATA names another
// data folder, and ORBISCOPE_HOME another settings folder than ~/.config/orbiscope.
#include <cstdio>
#include <memory>

#include "catalogues/ConstellationSettings.h"
#include "platform/PngFile.h"
#include "platform/Surface.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"
#include "shell/OrbiscopeWindowInterface.h"

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;

// The window the map lives in. It could as well hold anything else of the program's own.
class SkyFrame : public TWindow
{
public:
    SkyFrame() : TWindow(nullptr, "Embedded sky")
    {
        Attr.W = kWidth;
        Attr.H = kHeight;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: embed_map OUT.png\n");
        return 2;
    }

    // The desktop in memory: windows draw, but nothing reaches a screen.
    Headless();
    SkyFrame frame;
    if (!frame.Create()) {
        std::fprintf(stderr, "embed_map: cannot make a window\n");
        return 1;
    }

    // The map fills the window, made on the screen at once since the window is there.
    OrbiscopeWindowInterface sky(&frame);
    if (!sky.GetWindow()) {
        std::fprintf(stderr, "embed_map: no map\n");
        return 1;
    }

    // 2026 January 15, 20h Universal Time, from Frankfurt (50.1 N, 8.7 E: longitudes count
    // west), looking at Orion's belt, 25 degrees to the nearer edge of the field.
    sky.SetTime(AstroTime(15, 1, 2026, 20.0));
    sky.SetLocation(LatLong(50.1, 360.0 - 8.7));
    sky.ChangeCenterOfView(PolarCoord(84.0, -1.0));
    sky.SetFieldRadius(25.0);
    sky.SetConstellationSettings(ConstellationSettings(true, false, true));

    // One turn of the loop draws the map; the window's picture is what a screen would show.
    WindowSystem::Get().ProcessAll();
    std::unique_ptr<Surface> picture = WindowSystem::Get().CaptureWindow(sky.GetWindow()->HWindow);
    const bool written = picture && SaveSurfaceAsPng(*picture, argv[1]);
    frame.Destroy();
    if (!written) {
        std::fprintf(stderr, "embed_map: cannot write %s\n", argv[1]);
        return 1;
    }
    std::printf("embed_map: wrote %s (%dx%d)\n", argv[1], kWidth, kHeight);
    return 0;
}
