#pragma once
// The numbers a module and the host window around it speak by: the messages each sends the
// other, and the host's own commands in a module's menus.
#include "platform/WinTypes.h"

// From the module to its host window.
// The answer is 1 while the host shows the module in full-screen mode.
constexpr UINT kHostFullScreenQuery = 0x0615;
// The answer is the HostTitleBar* of the module's frame, or 0.
constexpr UINT kHostTitleBarQuery = 0x0639;
// The answer is the HostFlyMenu* of the module's frame, or 0.
constexpr UINT kHostFlyMenuQuery = 0x063A;
// To the host's frame window: start another module; the LPARAM is a HostBookmark* whose
// command names it ("skyhunt").
constexpr UINT kHostStartModule = 0x061A;

// From the host to the module.
// Load your fly-out menu and set the title bar.
constexpr UINT kHostLoadFlyMenu = 0x0638;
// An entry of the fly-out was chosen: load the menu again, as it may have changed.
constexpr UINT kHostFlyMenuNotify = 0x063B;
// Open a bookmark: the LPARAM is a HostBookmark*.
constexpr UINT kHostOpenBookmark = 0x0617;
// Make a bookmark of the present view: the answer is a new HostBookmark* for the host to own.
constexpr UINT kHostCreateBookmark = 0x061E;

// The host's commands, which a module puts into its menus.
constexpr UINT kHostFullScreenCommand = 7532;
// What the full-screen entry becomes while the host is in full-screen mode.
constexpr UINT kHostExitFullScreenCommand = 0x1E15;
constexpr UINT kHostBookmarkCommand = 7433;
