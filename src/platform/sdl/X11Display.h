#pragma once
// What the SDL backend sets up on an X display before its first window. Kept apart from the
// backend, as Xlib's macros clash with our names.
//
// - SDL asks an X server without a window manager to treat a window that it wants decorated
//   as a dialog of the root window, unless the server knows the atom of the Motif hints, which
//   window managers make. Making the atom first keeps every window a plain, decorated one.
// - Xlib's own handler of protocol errors ends the program. An error about a window that is
//   already gone (a menu or a dialog just closed, which SDL may still address) is no reason to
//   lose the user's session: the handler installed here notes the error on dbstream instead.

// Does both on the display that DISPLAY names; nothing when it cannot be reached.
void PrepareX11Display();
