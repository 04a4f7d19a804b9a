#pragma once
// A popup menu, shown at a point with TrackPopupMenu.
#include "platform/TMenu.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"

class TPopupMenu : public TMenu
{
public:
    // A new, empty popup menu, owned.
    TPopupMenu();
    TPopupMenu(HMENU handle, TAutoDelete autoDelete = NoAutoDelete);

    // See ::TrackPopupMenu.
    int TrackPopupMenu(UINT flags, int x, int y, int reserved, HWND owner,
                       const TRect* rect = nullptr);
    int TrackPopupMenu(UINT flags, const TPoint& point, int reserved, HWND owner,
                       const TRect* rect = nullptr)
    {
        return TrackPopupMenu(flags, point.x, point.y, reserved, owner, rect);
    }
};
