#include "skyview/HostPrintPreviewDC.h"

void HostPrintPreviewDC::ClipTo(const TRect& printerRect)
{
    TPoint corners[2] = {printerRect.TopLeft(), printerRect.BottomRight()};
    LPtoDP(corners, 2);
    SelectClipRgn(TRegion(TRect(corners[0], corners[1])));
}
