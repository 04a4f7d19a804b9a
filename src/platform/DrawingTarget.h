#pragma once
// Something a client device context can draw on: it hands out its surface and hears when a
// context has finished with it. A window gives its client area this way; a plain surface is a
// drawing target of its own.
#include <optional>

#include "platform/DeviceCaps.h"
#include "platform/TRect.h"

class Surface;

// Where a target lies on its surface: the surface pixel of device (0, 0), and the part of the
// surface that may be drawn on.
struct DrawingArea
{
    TPoint Origin;
    TRect Visible;
};

class DrawingTarget
{
public:
    virtual ~DrawingTarget() = default;
    virtual Surface& GetDrawingSurface() = 0;
    // The device the surface stands for: the screen unless the target says otherwise.
    virtual const DeviceCaps& GetDrawingCaps() const { return ScreenDeviceCaps(); }
    // The part of the surface that belongs to the target; none for the whole surface.
    virtual std::optional<DrawingArea> GetDrawingArea() const { return std::nullopt; }
    // Called when a context that drew on the surface ends, so that the target can show it.
    virtual void DrawingDone() {}
};
