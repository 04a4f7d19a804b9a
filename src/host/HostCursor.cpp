#include "host/HostCursor.h"

#include "platform/WindowCalls.h"

HCURSOR GetHostCursor(int cursor)
{
    switch (cursor) {
    case HOST_CURSOR_WAIT:
        return LoadCursorA(nullptr, IDC_WAIT);
    case HOST_CURSOR_TEXT:
        return LoadCursorA(nullptr, IDC_IBEAM);
    case HOST_CURSOR_CROSS:
    case HOST_CURSOR_MAP:
        return LoadCursorA(nullptr, IDC_CROSS);
    case HOST_CURSOR_LINK:
        return LoadCursorA(nullptr, IDC_HAND);
    default:
        return LoadCursorA(nullptr, IDC_ARROW);
    }
}
