#pragma once
// What the reference host program (app/, "orbiscope") takes from liborbiscope.so besides the
// entry.
//
// The program loads the library at run time and links nothing of it, so that the one window
// system in the library serves both the host's frame and the component inside it. It looks
// this table up by the name orbiscope_host_kit and calls through it: open a desktop (the
// display, or the headless one for pictures), make a frame window (the bare one for pictures,
// the main window with its title bar, menu, keys, bookmarks and help on a display), check the
// data and a command string before the component gets them, set a view on the map, save the
// map as a picture or print it as a chart, start the sky game, run the message loop. The table
// speaks plain C; window handles are the 32-bit numbers the entry returns.
#include <cstddef>
#include <cstdint>

extern "C" {

// A view to set on the map of a component; each part counts only when its flag is not 0.
struct OrbiscopeView
{
    // The moment shown, in Universal Time.
    int bTime;
    int nYear;
    int nMonth;
    int nDay;
    int nHour;
    int nMinute;
    double Second;
    // A view fixed on the stars with north up, centred on RA and Dec in degrees.
    int bCenter;
    double RA;
    double Dec;
    // The field radius in degrees: above 0, at most 90.
    int bRadius;
    double Radius;
    // Shows the RA and Dec grid.
    int bGrid;
    // The faintest magnitude shown.
    int bLimit;
    double LimitingMagnitude;
    // A view from the ground, which turns with the sky, instead of one fixed on the stars. The
    // place: latitude north and longitude east, in degrees.
    int bLocation;
    double Latitude;
    double Longitude;
    // The direction of view from there: a compass bearing (0 north, 90 east) and an altitude
    // above the horizon, in degrees. The view is raised as far as needed for its field to stay
    // above the horizon. What is not given is that of the map's present view from the ground,
    // or else the place 0, 0 and south, 30 degrees up.
    int bLook;
    double Azimuth;
    double Altitude;
};

struct OrbiscopeHostKit
{
    // kOrbiscopeHostKitVersion of the library that made the table.
    int nVersion;
    // Chooses the desktop, before any window exists: the display when `display` is not 0,
    // the headless desktop otherwise. 0, with the reason in `error`, when there is no display.
    int (*OpenDesktop)(int display, char* error, std::size_t errorSize);
    // A top-level frame window whose client area is `width` by `height`, installed as the
    // host's frame; its handle, 0 when it cannot be made.
    std::uint32_t (*CreateFrame)(const char* title, int width, int height);
    // The pixels on each side between a frame's client area and the map inside it.
    int (*GetMapInset)(void);
    // Sets the view on the map of a component window; 0 when the handle is not one.
    int (*SetView)(std::uint32_t component, const OrbiscopeView* view);
    // Lets every waiting message and paint run, then writes what the map of a component
    // window shows to a PNG file and gives the picture's size (either pointer may be null);
    // 0 when that fails.
    int (*SaveMapPicture)(std::uint32_t component, const char* path, int* width, int* height);
    // Runs the message loop until the last frame closes; the loop's exit code.
    int (*RunMessageLoop)(void);
    // Destroys a frame window made by CreateFrame and everything in it.
    void (*DestroyFrame)(std::uint32_t frame);
    // Lets go of the display, once every frame is destroyed.
    void (*CloseDesktop)(void);
    // Lets every waiting message and paint run, then prints a star chart of the map of a
    // component window into a PDF file: one page, A4 when `paper` is 0 and Letter when it is
    // 1, at 300 pixels per inch. 0 when that fails (no such window, a file that cannot be
    // written).
    int (*PrintChart)(std::uint32_t component, const char* path, int paper);
    // Opens the sky game in a window of its own (or brings it to the front); 0 when it cannot
    // be made. The game ends with its window, and with the message loop when it is the last.
    int (*StartSkyhunt)(void);
    // The host's main window on a display, with `width` by `height` pixels for the component
    // below its title bar strip, installed as the host's frame with the help handler; its
    // handle, 0 when it cannot be made.
    std::uint32_t (*CreateMainWindow)(const char* title, int width, int height);
    // Puts the component made in a main window under its title bar and asks it for its menu;
    // 0 when either handle is not what it should be.
    int (*AttachComponent)(std::uint32_t frame, std::uint32_t component);
    // 1 when the star files the planetarium needs are there; otherwise 0 with the files that
    // are missing and where they were looked for in `error`.
    int (*CheckData)(char* error, std::size_t errorSize);
    // 1 when the component can use the command string (an empty one too): a full state with
    // every key of a bookmark, an object named by "stringref" or "uid" that exists; otherwise
    // 0 with what is wrong in `error`. With a view (a picture or a chart), a full state needs
    // only the keys of where and when the map looks that the view's options do not give.
    int (*CheckCommand)(const char* command, const OrbiscopeView* view, char* error,
                        std::size_t errorSize);
    // With 0 the user's settings are only read from then on: nothing is written and no store
    // is made (pictures and charts leave the saved views alone).
    void (*KeepSettings)(int keep);
    // A message box with the text over a frame window (or on its own for 0), until the user
    // closes it.
    void (*ShowMessage)(std::uint32_t frame, const char* text);
};

inline constexpr int kOrbiscopeHostKitVersion = 5;

const OrbiscopeHostKit* orbiscope_host_kit(void);

using OrbiscopeHostKitGetter = const OrbiscopeHostKit* (*)(void);
}
