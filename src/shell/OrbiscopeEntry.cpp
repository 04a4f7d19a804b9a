#include "shell/OrbiscopeEntry.h"

#include <cstdint>
#include <string>

#include "platform/TWindow.h"
#include "shell/AstroNoxWindow.h"

extern "C" std::uint32_t orbiscope(HWND parent, const char* command)
{
    TWindow* host = GetWindowPtr(parent);
    if (!host || !host->HWindow) {
        return 0;
    }
    // The host's window owns its new child from here on.
    auto* window = new AstroNoxWindow(host);
    if (!window->Create()) {
        delete window;
        return 0;
    }
    if (command && *command) {
        window->HandleCommandString(std::string(command));
    }
    // Window handles are small numbers, so a handle fits the entry's 32-bit result.
    return std::uint32_t(reinterpret_cast<std::uintptr_t>(window->HWindow));
}
