#pragma once
// The main window of the reference host: a top-level window that gives its whole client area
// to the component window inside it, now and at every change of size, and ends the program's
// message loop when it is closed. It starts the host's other modules when the component asks
// (message 0x061A with a HostBookmark* naming the module): "skyhunt" is the sky game.
#include "host/HostMessages.h"
#include "platform/TWindow.h"

class HostFrameWindow : public TWindow
{
public:
    // The component's request to start another module of the host.
    static constexpr UINT kStartModuleMessage = kHostStartModule;

    // A top-level window whose client area is `width` by `height` pixels.
    HostFrameWindow(const char* title, int width, int height);

    void EvSize(UINT sizeType, TSize& size);
    // 1 when the module named was started, 0 for a module the host does not have.
    LRESULT WmuStartModule(WPARAM, LPARAM bookmark);
    const TResponseRow* Find(const TEventInfo& event) const override;
};
