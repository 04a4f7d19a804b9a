#pragma once
// Something a client device context can draw on: it hands out its surface and hears when a
// context has finished with it. A window gives its client area this way; a plain surface is a
// drawing target of its own.
#include "platform/DeviceCaps.h"

class Surface;

class DrawingTarget
{
public:
    virtual ~DrawingTarget() = default;
    virtual Surface& GetDrawingSurface() = 0;
    // The device the surface stands for: the screen unless the target says otherwise.
    virtual const DeviceCaps& GetDrawingCaps() const { return ScreenDeviceCaps(); }
    // Called when a context that drew on the surface ends, so that the target can show it.
    virtual void DrawingDone() {}
};
