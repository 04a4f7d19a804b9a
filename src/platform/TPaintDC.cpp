#include "platform/TPaintDC.h"

#include "platform/TWindow.h"

TPaintDC::TPaintDC(TWindow& window)
    : TDC(window.GetDrawingSurface(), window.GetDrawingCaps())
{
    if (std::optional<DrawingArea> area = window.GetDrawingArea()) {
        SetDeviceArea(area->Origin, area->Visible);
    }
    LimitDeviceArea(window.GetPaintRect());
}

TPaintDC::~TPaintDC() = default;
