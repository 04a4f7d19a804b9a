#include "platform/TPrintPreviewDC.h"

#include "platform/TPalette.h"
#include "platform/TPrintDC.h"

TPrintPreviewDC::TPrintPreviewDC(TDC& screen, const TPrintDC& printer, const TRect& client,
                                 const TRect& clip)
    : TDC(screen.GetSurface(), printer.GetCaps()), PreviewRect(client)
{
    TakeDeviceArea(screen);
    LimitDeviceArea(client & clip);
    if (screen.GetPalette()) {
        // The window's palette, for colours given by palette index.
        SelectObject(TPalette(screen.GetPalette().get()));
    }
    SetMapMode(MM_ANISOTROPIC);
    SetWindowExt(TSize(printer.GetDeviceCaps(HORZRES), printer.GetDeviceCaps(VERTRES)));
    SetViewportExt(client.Size());
    SetViewportOrg(client.TopLeft());
}
