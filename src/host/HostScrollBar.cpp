#include "host/HostScrollBar.h"

HostScrollBar::HostScrollBar(TWindow* parent, int id, const TRect& place, const TColor& fill)
    : TScrollBar(parent, id, place.left, place.top, place.Width(), place.Height(), false)
{
    SetTrackColor(fill);
}
