#include "host/HostFrameAPI.h"

#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

#include "host/HostFile.h"
#include "platform/HostPalette.h"

extern char** environ;

namespace {

HostFrameAPI*& InstalledFrame()
{
    static HostFrameAPI* frame = nullptr;
    return frame;
}

// The frame's own colours: text, faces and edges of its controls, and the panels.
constexpr COLORREF kFrameColors[] = {
    RGB(0, 0, 0),       // 0 window text
    RGB(255, 255, 255), // 1 window
    RGB(192, 192, 192), // 2 button face
    RGB(128, 128, 128), // 3 button shadow
    RGB(255, 255, 255), // 4 button highlight
    RGB(0, 0, 128),     // 5 title bar
    RGB(255, 255, 255), // 6 title text
    RGB(224, 224, 224), // 7 menu
    RGB(0, 0, 0),       // 8 menu text
    RGB(0, 0, 128),     // 9 selection
    RGB(255, 255, 255), // 10 selected text
    RGB(0, 0, 0),       // 11 panel background beside the map
    RGB(255, 255, 255), // 12 panel text
    RGB(64, 64, 64),    // 13 bezel, dark edge
    RGB(160, 160, 160), // 14 bezel, light edge
    RGB(0, 128, 255),   // 15 link
};

bool OnPath(const char* program)
{
    const char* path = std::getenv("PATH");
    if (path == nullptr) {
        return false;
    }
    std::string_view rest(path);
    while (!rest.empty()) {
        std::size_t colon = rest.find(':');
        std::string dir(rest.substr(0, colon));
        std::string candidate = (dir.empty() ? "." : dir) + "/" + program;
        if (::access(candidate.c_str(), X_OK) == 0) {
            return true;
        }
        if (colon == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(colon + 1);
    }
    return false;
}

} // namespace

HostFrameAPI* getHostFrameAPI()
{
    return InstalledFrame();
}

HostFrameAPI* SetHostFrameAPI(HostFrameAPI* frame)
{
    HostFrameAPI* previous = InstalledFrame();
    InstalledFrame() = frame;
    return previous;
}

const TPalette& StandardHostFrame::GetPalette()
{
    return HostPalette();
}

TColor StandardHostFrame::GetColor(int index)
{
    constexpr int count = sizeof kFrameColors / sizeof kFrameColors[0];
    return (index >= 0 && index < count) ? TColor(kFrameColors[index]) : TColor(0, 0, 0);
}

int StandardHostFrame::GetMetric(int index)
{
    switch (index) {
    case kHostMetricBezelGap:
        return 4;
    case kHostMetricBezelWidth:
        return 2;
    default:
        return 0;
    }
}

bool StandardHostFrame::Launch(const std::string& command)
{
    if (command.empty()) {
        return false;
    }
    return LaunchHandler ? LaunchHandler(command) : LaunchWithDesktop(command);
}

bool StandardHostFrame::LaunchWithDesktop(const std::string& address)
{
    const bool desktop =
        std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
    if (desktop && OnPath("xdg-open")) {
        // The address goes to the opener as one argument: no shell sees it.
        std::string argument = address;
        char program[] = "xdg-open";
        char* argv[] = {program, argument.data(), nullptr};
        pid_t pid = 0;
        if (::posix_spawnp(&pid, "xdg-open", nullptr, nullptr, argv, environ) == 0) {
            int status = 0;
            ::waitpid(pid, &status, 0);
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
    }
    std::printf("%s\n", address.c_str());
    std::fflush(stdout);
    return true;
}

std::string StandardHostFrame::GetHelpFile()
{
    std::string path = "ed:\\orbiscope-help.html";
    HostFile::ResolvePath(path, true, false);
    return path;
}
