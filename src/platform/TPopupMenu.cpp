#include "platform/TPopupMenu.h"

#include "platform/TRect.h"

TPopupMenu::TPopupMenu() : TMenu(CreatePopupMenu(), AutoDelete)
{}

TPopupMenu::TPopupMenu(HMENU handle, TAutoDelete autoDelete) : TMenu(handle, autoDelete)
{}

int TPopupMenu::TrackPopupMenu(UINT flags, int x, int y, int reserved, HWND owner,
                               const TRect* rect)
{
    return ::TrackPopupMenu(Handle, flags, x, y, reserved, owner, rect);
}
