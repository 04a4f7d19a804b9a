#pragma once
// The main window of the reference host: a top-level window that gives its whole client area
// to the component window inside it, now and at every change of size, and ends the program's
// message loop when it is closed.
//
// A module's request to start another one (message 0x061A, the LPARAM a HostBookmark* whose
// command names it, "skyhunt" for the sky game) goes to the module starter; until one is set
// the frame notes the request on dbstream and does nothing.
#include <functional>

#include "platform/TWindow.h"

class HostBookmark;

class HostFrameWindow : public TWindow
{
public:
    // A top-level window whose client area is `width` by `height` pixels.
    HostFrameWindow(const char* title, int width, int height);

    using ModuleStarter = std::function<void(const HostBookmark& request)>;
    void SetModuleStarter(ModuleStarter starter) { StartModule = std::move(starter); }

    void EvSize(UINT sizeType, TSize& size);
    // Returns 1 when a starter took the request.
    LRESULT WmuStartModule(WPARAM, LPARAM request);
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    ModuleStarter StartModule;
};
