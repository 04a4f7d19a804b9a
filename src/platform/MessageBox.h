#pragma once
// Message boxes: a modal window with a text, an optional sign and a row of buttons, built as a
// dialog. MB_OK, MB_OKCANCEL, MB_YESNO, MB_YESNOCANCEL, MB_RETRYCANCEL and
// MB_ABORTRETRYIGNORE choose the buttons, MB_ICON... the sign and MB_DEFBUTTON... the button
// that Enter presses. The result is the id of the button pressed (IDOK, IDCANCEL, IDYES, IDNO,
// ...). Escape, or closing the box, answers IDCANCEL when there is a Cancel button, IDOK for a
// box with OK alone, and otherwise the last button (IDNO for yes and no).
#include "platform/WinTypes.h"

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT type);
