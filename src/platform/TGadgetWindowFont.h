#pragma once
// The font of a gadget window: sans-serif (Arial) or, fixed, Courier New, at a size in points,
// bold or not.
#include "platform/TFont.h"

class TGadgetWindowFont : public TFont
{
public:
    explicit TGadgetWindowFont(int pointSize = 8, bool bold = false, bool fixed = false);
};
