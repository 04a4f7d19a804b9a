#pragma once
// The window calls in their plain form, on handles, for code written against them. Each does
// what the TWindow member of the same name does; a handle of no window makes them fail (false,
// 0 or null) and do nothing.
#include <functional>
#include <string>

#include "platform/TRect.h"
#include "platform/WinTypes.h"

class TWindow;

LRESULT SendMessageA(HWND window, UINT msg, WPARAM wParam, LPARAM lParam);
BOOL PostMessageA(HWND window, UINT msg, WPARAM wParam, LPARAM lParam);
// Ends the message loop with `exitCode` once the messages before it are handled.
void PostQuitMessage(int exitCode);

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL UpdateWindow(HWND window);
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT elapse, void* timerProc);
BOOL KillTimer(HWND window, UINT_PTR id);
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
HWND SetFocus(HWND window);
HWND GetFocus();
HWND GetActiveWindow();

BOOL IsWindow(HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL IsWindowVisible(HWND window);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsWindowEnabled(HWND window);
BOOL DestroyWindow(HWND window);
HWND GetParent(HWND window);
BOOL GetClientRect(HWND window, RECT* rect);
BOOL GetWindowRect(HWND window, RECT* rect);
BOOL ClientToScreen(HWND window, POINT* point);
BOOL ScreenToClient(HWND window, POINT* point);
BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowTextA(HWND window, const char* text);
int GetWindowTextA(HWND window, char* buffer, int size);
int GetWindowTextLengthA(HWND window);

// Controls of a dialog or any parent, by id.
HWND GetDlgItem(HWND parent, int id);
int GetDlgCtrlID(HWND control);
LRESULT SendDlgItemMessageA(HWND parent, int id, UINT msg, WPARAM wParam, LPARAM lParam);
BOOL SetDlgItemTextA(HWND parent, int id, const char* text);
UINT GetDlgItemTextA(HWND parent, int id, char* buffer, int size);
// The number in a control's text: leading blanks, a sign when `isSigned`, digits; 0 and
// `*translated` false when the text is not a number.
UINT GetDlgItemInt(HWND parent, int id, BOOL* translated, BOOL isSigned);
BOOL SetDlgItemInt(HWND parent, int id, UINT value, BOOL isSigned);
BOOL CheckDlgButton(HWND parent, int id, UINT check);
UINT IsDlgButtonChecked(HWND parent, int id);
// Checks one radio button of the ids first to last and clears the others.
BOOL CheckRadioButton(HWND parent, int first, int last, int check);

// A scroll bar control (SB_CTL); returns the position.
int SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw);
BOOL GetScrollInfo(HWND window, int bar, SCROLLINFO* info);

// Cursors: the system cursors by id (IDC_...); a module's own cursor resources are the arrow.
HCURSOR LoadCursorA(HINSTANCE module, int id);
HCURSOR SetCursor(HCURSOR cursor);
HCURSOR GetCursor();
BOOL GetCursorPos(POINT* point);

// Whether a key is down: the high bit of the result.
short GetKeyState(int virtualKey);
// Milliseconds on the window system's clock (virtual time on the headless desktop).
DWORD GetTickCount();

// Help: the host shows its help file. WinHelpA hands the request to the handler the host has
// installed (the file, the command HELP_KEY, HELP_CONTEXT or HELP_QUIT, and the key as text
// or the context number written out) and returns what it says; FALSE without a handler.
using WinHelpHandler =
    std::function<bool(HWND window, const std::string& file, UINT command, const std::string& key)>;
// Installs a handler; returns the one before. An empty function removes it.
WinHelpHandler SetWinHelpHandler(WinHelpHandler handler);
BOOL WinHelpA(HWND window, const char* helpFile, UINT command, UINT_PTR data);
