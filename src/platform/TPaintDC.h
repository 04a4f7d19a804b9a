#pragma once
// The device context of a paint: on the window's client area, limited to the part that is being
// painted. TWindow's WM_PAINT handler makes one and hands it to Paint.
#include "platform/TDC.h"

class TWindow;

class TPaintDC : public TDC
{
public:
    explicit TPaintDC(TWindow& window);
    ~TPaintDC() override;
};
