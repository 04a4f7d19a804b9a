#include "platform/TListBoxItemMaster.h"

#include "platform/TDC.h"

std::string TListBoxItemMaster::GetItemText(int) const
{
    return std::string();
}

int TListBoxItemMaster::GetItemHeight(const TDC& dc) const
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    return metrics.tmHeight + 2;
}
