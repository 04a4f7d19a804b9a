#pragma once
// A bar of buttons: a gadget window in a row that is as large as its gadgets.
#include "platform/TGadgetWindow.h"

class TControlBar : public TGadgetWindow
{
public:
    explicit TControlBar(TWindow* parent = nullptr, TTileDirection direction = Horizontal,
                         const TFont* font = nullptr, TModule* module = nullptr);
};
