#include "skyview/MouseDragger.h"

#include "platform/TClientDC.h"
#include "skyview/MapWindow.h"

void MouseDragger::Draw()
{
    TClientDC dc(*pWindow);
    if (LastRect.Width() != 0) {
        dc.InvertRect(LastRect);
    }
    LastRect = GetRect();
    dc.InvertRect(LastRect);
}
