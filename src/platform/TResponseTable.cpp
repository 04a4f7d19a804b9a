#include "platform/TResponseTable.h"

const TResponseRow* TResponseTable::Find(const TEventInfo& event) const
{
    for (const TResponseRow& row : aRows) {
        if (row.Msg != event.Msg) {
            continue;
        }
        if (row.Msg != WM_COMMAND || (row.Id == event.Id && row.Code == event.Code)) {
            return &row;
        }
    }
    return nullptr;
}
