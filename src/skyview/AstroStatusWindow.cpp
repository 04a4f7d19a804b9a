#include "skyview/AstroStatusWindow.h"

#include "skyview/AstroStatusItem.h"

AstroStatusWindow::AstroStatusWindow(TWindow* parent, const TFont* font)
    : TGadgetWindow(parent, Vertical, font)
{
    // The panel takes the size its parent's layout gives it.
    SetShrinkWrap(false, false);
}

void AstroStatusWindow::Insert(AstroStatusItem& item)
{
    // The gadget window lays the blocks out again and repaints once it has a handle.
    TGadgetWindow::Insert(item, After, nullptr);
}
