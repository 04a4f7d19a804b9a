#pragma once
// The main window of the reference host: a top-level window that gives its whole client area
// to the component window inside it, now and at every change of size, and ends the program's
// message loop when it is closed.
#include "platform/TWindow.h"

class HostFrameWindow : public TWindow
{
public:
    // A top-level window whose client area is `width` by `height` pixels.
    HostFrameWindow(const char* title, int width, int height);

    void EvSize(UINT sizeType, TSize& size);
    const TResponseRow* Find(const TEventInfo& event) const override;
};
