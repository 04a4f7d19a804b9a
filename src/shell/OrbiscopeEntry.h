#pragma once
// The entry of the component, exported from liborbiscope.so with plain C linkage, which the
// host looks up by name after loading the library.
//
// orbiscope(parent, command) makes the component's window as a child of the host's window
// `parent`, creates it on the screen and hands it the command string (see AstroNoxWindow);
// it returns the new window's handle as a 32-bit number, which the host keeps to talk to the
// component by messages. The window tree owns the component from then on. A `parent` that is
// no window, or one without a handle, gives 0 and makes nothing. A null or empty command does
// nothing beyond the window.
#include <cstdint>

#include "platform/WinTypes.h"

extern "C" {

std::uint32_t orbiscope(HWND parent, const char* command);

// The type of the entry, for hosts that look it up.
using OrbiscopeEntry = std::uint32_t (*)(HWND parent, const char* command);
}
