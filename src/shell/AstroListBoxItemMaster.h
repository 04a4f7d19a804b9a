#pragma once
// The drawer of the finder's list rows: the rows are the items of the list box, one name each,
// painted on the list's own background (the selected row in the selection's colours).
#include <vector>

#include "host/HostTransparentItemMaster.h"
#include "shell/AstroListBoxItem.h"

class AstroListBoxItemMaster : public HostTransparentItemMaster
{
public:
    // The items stay the list box's; the master reads them as they change.
    explicit AstroListBoxItemMaster(const std::vector<AstroListBoxItem>& items);

    int getCount() const override;
    bool prepare(int row) const override;

private:
    const std::vector<AstroListBoxItem>& aItems;
};
