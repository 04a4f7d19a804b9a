#pragma once
// The host's owner-drawn list: a list box whose rows an item master (HostItemMaster) counts
// and paints, in the master's colours and font, with a scroll bar of the host's in a colour of
// the list's own when asked for one. Selecting a row from the program tells the parent
// nothing; the user's choices do, as in any list box.
#include "platform/TListBox.h"

class HostItemMaster;

class HostListBox : public TListBox
{
public:
    // A list at no place yet (its parent lays it out) with an upright scroll bar.
    HostListBox(TWindow* parent, int id);

    // The master that holds the rows; the caller keeps it alive while the list uses it. The
    // list takes the master's font.
    void setItemMaster(HostItemMaster* master);
    HostItemMaster* getItemMaster() const { return pHostMaster; }
    // Reads the rows again after they changed.
    void reset();
    int setTopIndex(int row) { return SetTopIndex(row); }
    int setSelIndex(int row) { return SetSelIndex(row); }
    int getSelIndex() const { return GetSelIndex(); }

    // Before the list is made: the host's scroll bar with this id and track colour instead of
    // the standard one.
    void UseHostScrollBar(int id, const TColor& fill);

    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    TScrollBar* MakeScrollBar(const TRect& place) override;

private:
    HostItemMaster* pHostMaster = nullptr;
    bool bHostScrollBar = false;
    int nScrollBarId = 0;
    TColor ScrollBarFill;
};
