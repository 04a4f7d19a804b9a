#pragma once
// The host's drawer of rows for lists on a coloured panel: rows that are not selected are not
// filled, so the list's own background shows behind their text; the selected row is filled
// with the selection's colour.
#include "host/HostItemMaster.h"

class HostTransparentItemMaster : public HostItemMaster
{
public:
    void paint(TDC& dc, const TRect& rect, bool selected, bool focused) const override;
};
