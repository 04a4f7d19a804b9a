#include "host/HostListBox.h"

#include "host/HostItemMaster.h"
#include "host/HostScrollBar.h"

HostListBox::HostListBox(TWindow* parent, int id) : TListBox(parent, id, 0, 0, 0, 0)
{
    // The rows are the master's: there is nothing to sort.
    Attr.Style = (Attr.Style & ~LBS_SORT) | WS_VSCROLL;
}

void HostListBox::setItemMaster(HostItemMaster* master)
{
    pHostMaster = master;
    if (master) {
        SetWindowFont(master->getFont(), false);
    }
    SetItemMaster(master);
}

void HostListBox::reset()
{
    Reset();
}

void HostListBox::UseHostScrollBar(int id, const TColor& fill)
{
    bHostScrollBar = true;
    nScrollBarId = id;
    ScrollBarFill = fill;
}

TScrollBar* HostListBox::MakeScrollBar(const TRect& place)
{
    if (!bHostScrollBar) {
        return TListBox::MakeScrollBar(place);
    }
    // A child: the window tree owns it.
    return new HostScrollBar(this, nScrollBarId, place, ScrollBarFill);
}

void HostListBox::Paint(TDC& dc, bool erase, TRect& rect)
{
    if (pHostMaster) {
        pHostMaster->SetEnabled(IsWindowEnabled());
    }
    TListBox::Paint(dc, erase, rect);
}
