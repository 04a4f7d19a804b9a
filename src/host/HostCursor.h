#pragma once
// The host's cursors by number, as the component asks for them with GetHostCursor.
#include "platform/WinTypes.h"

enum APP_CURSOR
{
    HOST_CURSOR_ARROW = 0,
    HOST_CURSOR_WAIT = 1,
    HOST_CURSOR_TEXT = 2,
    HOST_CURSOR_CROSS = 3,
    // Over something that leads to an article: the pointing hand.
    HOST_CURSOR_LINK = 4,
    // Over the sky map where nothing leads anywhere: the cross hair of a sky chart.
    HOST_CURSOR_MAP = 5,
};

// The cursor of a number; the arrow for a number the host does not know.
HCURSOR GetHostCursor(int cursor);
