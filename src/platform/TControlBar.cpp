#include "platform/TControlBar.h"

TControlBar::TControlBar(TWindow* parent, TTileDirection direction, const TFont* font,
                         TModule* module)
    : TGadgetWindow(parent, direction, font, module)
{
    SetShrinkWrap(true, true);
}
