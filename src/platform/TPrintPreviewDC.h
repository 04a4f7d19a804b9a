#pragma once
// A device context that shows in a window what a printer would print: drawing calls take the
// printer's device pixels as logical units and land scaled into a rectangle of the window's
// context, and GetDeviceCaps answers for the printer. So the same routine draws a page and its
// preview; LPtoDP turns a printer position into the window's device pixels (for clipping,
// which is in device pixels).
#include "platform/TDC.h"

class TPrintDC;

class TPrintPreviewDC : public TDC
{
public:
    // The page of `printer` fills `client` (device pixels of `screen`); only the part of it
    // inside `clip` is drawn on.
    TPrintPreviewDC(TDC& screen, const TPrintDC& printer, const TRect& client, const TRect& clip);

    const TRect& GetPreviewRect() const { return PreviewRect; }

private:
    TRect PreviewRect;
};
