#pragma once
// The host's frame as the component sees it: the frame window, the shared palette, the
// frame's colours and metrics, the launch of a command or article address, and the help file.
//
// The host installs its frame with SetHostFrameAPI; without one, getHostFrameAPI() gives null
// and callers fall back to their own defaults (black backgrounds, no gaps). StandardHostFrame
// is the frame of the reference host and of headless rendering.
#include <functional>
#include <string>

#include "platform/TColor.h"

class TPalette;
class TWindow;

class HostFrameAPI
{
public:
    virtual ~HostFrameAPI() = default;
    // The frame's main window; null when the frame has none (headless rendering).
    virtual TWindow* GetFrameWindow() = 0;
    // The palette every 8-bit surface of the component uses.
    virtual const TPalette& GetPalette() = 0;
    // One of the frame's colours; black for an index the frame does not have.
    virtual TColor GetColor(int index) = 0;
    // One of the frame's metrics in pixels; 0 for an index the frame does not have.
    virtual int GetMetric(int index) = 0;
    // Opens an article address or hands on a command string; false when nothing took it.
    virtual bool Launch(const std::string& command) = 0;
    // The full path of the help file.
    virtual std::string GetHelpFile() = 0;
};

// The installed frame, or null.
HostFrameAPI* getHostFrameAPI();
// Installs a frame (null removes it); returns the one installed before. The caller keeps
// ownership and removes the frame before destroying it.
HostFrameAPI* SetHostFrameAPI(HostFrameAPI* frame);

// Metric indexes the component asks for.
constexpr int kHostMetricBezelGap = 5;
constexpr int kHostMetricBezelWidth = 14;
// Colour index of the background of the panels beside the map.
constexpr int kHostColorPanelBackground = 11;

class StandardHostFrame : public HostFrameAPI
{
public:
    // How a launched address is opened; the default runs the desktop's opener when there is a
    // desktop and writes the address to standard output otherwise.
    using Launcher = std::function<bool(const std::string&)>;

    StandardHostFrame() = default;
    explicit StandardHostFrame(Launcher launcher) : LaunchHandler(std::move(launcher)) {}

    void SetFrameWindow(TWindow* window) { pFrameWindow = window; }

    TWindow* GetFrameWindow() override { return pFrameWindow; }
    const TPalette& GetPalette() override;
    TColor GetColor(int index) override;
    int GetMetric(int index) override;
    bool Launch(const std::string& command) override;
    std::string GetHelpFile() override;

    static bool LaunchWithDesktop(const std::string& address);

private:
    TWindow* pFrameWindow = nullptr;
    Launcher LaunchHandler;
};
