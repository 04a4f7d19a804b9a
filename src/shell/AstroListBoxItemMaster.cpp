#include "shell/AstroListBoxItemMaster.h"

AstroListBoxItemMaster::AstroListBoxItemMaster(const std::vector<AstroListBoxItem>& items)
    : aItems(items)
{}

int AstroListBoxItemMaster::getCount() const
{
    return int(aItems.size());
}

bool AstroListBoxItemMaster::prepare(int row) const
{
    if (row < 0 || row >= getCount()) {
        return false;
    }
    if (row != GetPrepared()) {
        SetPrepared(row, aItems[std::size_t(row)].GetName());
    }
    return true;
}
