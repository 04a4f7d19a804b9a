#pragma once
// The host's scroll bar for its lists: an upright scroll bar whose track takes a colour of
// the list's own, so that it does not stand out from a coloured list.
#include "platform/TScrollBar.h"

class HostScrollBar : public TScrollBar
{
public:
    HostScrollBar(TWindow* parent, int id, const TRect& place, const TColor& fill);
};
