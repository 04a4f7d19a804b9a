#pragma once
// The menu resources of the component, as data: each item's text is a "STID_" name that
// replaceHostMenuStrings turns into words ("@STID_" from the host's table), with its command.
//
//   100 the component's commands for a host that shows them in a menu of its own: zoom,
//       place, time, time lapse and print, without the host's entries
//   101 the main fly-out: full screen, zoom, Display and Locate (fly-outs), place, time,
//       time lapse, print, bookmark and the time zone dump of the developer's mode
//   102 Display: Constellations (a fly-out), the toggles, the grid dialog, the finder
//   103 Locate: the object lists of each catalogue, the Sun and the Moon
//   104 the developer's fly-out: the time zone dump; its texts are words, as its strings are
//       not replaced
//   105 Constellations: names, figures, boundaries
//
// Register adds them to the module's resources under their ids, once; the window calls it
// before it first loads one.
#include "platform/MenuTemplate.h"

class AstroMenuTemplates
{
public:
    static constexpr int kCommandMenu = 100;
    static constexpr int kMainMenu = 101;
    static constexpr int kDisplayMenu = 102;
    static constexpr int kLocateMenu = 103;
    static constexpr int kDevelopmentMenu = 104;
    static constexpr int kConstellationMenu = 105;

    static MenuTemplate CommandMenu();
    static MenuTemplate MainMenu();
    static MenuTemplate DisplayMenu();
    static MenuTemplate LocateMenu();
    static MenuTemplate DevelopmentMenu();
    static MenuTemplate ConstellationMenu();

    // Adds all of them to the module's resources; later calls do nothing.
    static void Register();
};
