#pragma once
// The preview context of a printed star chart: the platform's preview, which can also clip
// to a rectangle given in the printer's units, turned into the window's device pixels.
#include "platform/TPrintPreviewDC.h"

class HostPrintPreviewDC : public TPrintPreviewDC
{
public:
    using TPrintPreviewDC::TPrintPreviewDC;

    // Clips drawing to `printerRect` (printer units) as it lands on the screen.
    void ClipTo(const TRect& printerRect);
};
