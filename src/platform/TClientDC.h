#pragma once
// A device context on the surface of a drawing target, such as the client area of a window.
// When it ends it tells the target, which may then show what was drawn.
#include "platform/DrawingTarget.h"
#include "platform/TDC.h"

class TClientDC : public TDC
{
public:
    explicit TClientDC(DrawingTarget& target);
    // The client area of the window of a handle; a handle of no window draws nowhere.
    explicit TClientDC(HWND window);
    ~TClientDC() override;

private:
    DrawingTarget& Target;
};
