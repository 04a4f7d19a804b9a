#pragma once
// A device context on a bitmap in memory. It starts on a bitmap of 1 by 1 pixel in the format of
// the context it is made compatible with (RGB for the screen); SelectObject(TBitmap&) puts it on
// a real one.
#include "platform/TDC.h"

class TMemoryDC : public TDC
{
public:
    // Compatible with the screen.
    TMemoryDC();
    // Compatible with `dc`: the same device and surface format.
    explicit TMemoryDC(const TDC& dc);
};
