#pragma once
// The status panel beside the map: blocks of text (AstroStatusItem) stacked from top to
// bottom, each as wide as the panel, on the button face. The panel holds the blocks only while
// they are inserted; the map owns them and fills them whether or not a panel shows them.
#include "platform/TGadgetWindow.h"

class AstroStatusItem;
class TFont;

class AstroStatusWindow : public TGadgetWindow
{
public:
    // The panel keeps a copy of `font`; without one, an 8-point sans-serif.
    AstroStatusWindow(TWindow* parent, const TFont* font);

    // Puts the block under the others.
    void Insert(AstroStatusItem& item);
};
