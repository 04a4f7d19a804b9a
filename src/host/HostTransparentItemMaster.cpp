#include "host/HostTransparentItemMaster.h"

#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"

void HostTransparentItemMaster::paint(TDC& dc, const TRect& rect, bool selected, bool focused) const
{
    if (selected) {
        dc.FillRect(rect, TBrush(BackgroundHiliteColor));
    }
    PaintText(dc, rect, selected);
    if (focused) {
        ControlLook::DrawFocus(dc, rect);
    }
}
