#include "platform/WindowCalls.h"

#include <cstdlib>
#include <cstring>

#include "platform/TWindow.h"
#include "platform/WindowSystem.h"

namespace {

TWindow* W(HWND window)
{
    return WindowSystem::Get().FindWindow(window);
}

WinHelpHandler& HelpHandler()
{
    static WinHelpHandler handler;
    return handler;
}

TWindow* Item(HWND parent, int id)
{
    TWindow* p = W(parent);
    return p ? p->ChildWithId(id) : nullptr;
}

} // namespace

LRESULT SendMessageA(HWND window, UINT msg, WPARAM wParam, LPARAM lParam)
{
    return WindowSystem::Get().SendMessage(window, msg, wParam, lParam);
}

BOOL PostMessageA(HWND window, UINT msg, WPARAM wParam, LPARAM lParam)
{
    return WindowSystem::Get().PostMessage(window, msg, wParam, lParam);
}

void PostQuitMessage(int exitCode)
{
    WindowSystem::Get().PostQuitMessage(exitCode);
}

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase)
{
    TWindow* w = W(window);
    if (!w) {
        return FALSE;
    }
    if (rect) {
        w->InvalidateRect(TRect(*rect), erase);
    } else {
        w->Invalidate(erase);
    }
    return TRUE;
}

BOOL UpdateWindow(HWND window)
{
    TWindow* w = W(window);
    if (!w) {
        return FALSE;
    }
    w->UpdateWindow();
    return TRUE;
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT elapse, void*)
{
    return WindowSystem::Get().SetTimer(window, id, elapse);
}

BOOL KillTimer(HWND window, UINT_PTR id)
{
    return WindowSystem::Get().KillTimer(window, id);
}

HWND SetCapture(HWND window)
{
    return WindowSystem::Get().SetCapture(window);
}

BOOL ReleaseCapture()
{
    return WindowSystem::Get().ReleaseCapture();
}

HWND GetCapture()
{
    return WindowSystem::Get().GetCapture();
}

HWND SetFocus(HWND window)
{
    return WindowSystem::Get().SetFocus(window);
}

HWND GetFocus()
{
    return WindowSystem::Get().GetFocus();
}

HWND GetActiveWindow()
{
    return WindowSystem::Get().GetActiveWindow();
}

BOOL IsWindow(HWND window)
{
    return W(window) != nullptr;
}

BOOL ShowWindow(HWND window, int command)
{
    TWindow* w = W(window);
    return w && w->Show(command);
}

BOOL IsWindowVisible(HWND window)
{
    TWindow* w = W(window);
    return w && w->IsWindowVisible();
}

BOOL EnableWindow(HWND window, BOOL enable)
{
    TWindow* w = W(window);
    return w && w->EnableWindow(enable != FALSE);
}

BOOL IsWindowEnabled(HWND window)
{
    TWindow* w = W(window);
    return w && w->IsWindowEnabled();
}

BOOL DestroyWindow(HWND window)
{
    TWindow* w = W(window);
    if (!w) {
        return FALSE;
    }
    w->Destroy();
    return TRUE;
}

HWND GetParent(HWND window)
{
    TWindow* w = W(window);
    return w ? w->GetParent() : nullptr;
}

BOOL GetClientRect(HWND window, RECT* rect)
{
    TWindow* w = W(window);
    if (!w || !rect) {
        return FALSE;
    }
    *rect = w->GetClientRect();
    return TRUE;
}

BOOL GetWindowRect(HWND window, RECT* rect)
{
    TWindow* w = W(window);
    if (!w || !rect) {
        return FALSE;
    }
    *rect = w->GetWindowRect();
    return TRUE;
}

BOOL ClientToScreen(HWND window, POINT* point)
{
    TWindow* w = W(window);
    if (!w || !point) {
        return FALSE;
    }
    *point = w->ClientToScreen(TPoint(*point));
    return TRUE;
}

BOOL ScreenToClient(HWND window, POINT* point)
{
    TWindow* w = W(window);
    if (!w || !point) {
        return FALSE;
    }
    *point = w->ScreenToClient(TPoint(*point));
    return TRUE;
}

BOOL SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags)
{
    TWindow* w = W(window);
    return w && w->SetWindowPos(after, x, y, width, height, flags);
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    TWindow* w = W(window);
    return w && w->MoveWindow(x, y, width, height, repaint != FALSE);
}

BOOL SetWindowTextA(HWND window, const char* text)
{
    TWindow* w = W(window);
    if (!w) {
        return FALSE;
    }
    w->SetWindowText(text);
    return TRUE;
}

int GetWindowTextA(HWND window, char* buffer, int size)
{
    TWindow* w = W(window);
    if (!w || !buffer || size <= 0) {
        return 0;
    }
    return int(w->SendMessage(WM_GETTEXT, WPARAM(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND window)
{
    TWindow* w = W(window);
    return w ? int(w->SendMessage(WM_GETTEXTLENGTH)) : 0;
}

HWND GetDlgItem(HWND parent, int id)
{
    TWindow* item = Item(parent, id);
    return item ? item->HWindow : nullptr;
}

int GetDlgCtrlID(HWND control)
{
    TWindow* w = W(control);
    return w ? w->GetId() : 0;
}

LRESULT SendDlgItemMessageA(HWND parent, int id, UINT msg, WPARAM wParam, LPARAM lParam)
{
    TWindow* item = Item(parent, id);
    return item ? item->SendMessage(msg, wParam, lParam) : 0;
}

BOOL SetDlgItemTextA(HWND parent, int id, const char* text)
{
    TWindow* item = Item(parent, id);
    if (!item) {
        return FALSE;
    }
    item->SetWindowText(text);
    return TRUE;
}

UINT GetDlgItemTextA(HWND parent, int id, char* buffer, int size)
{
    TWindow* item = Item(parent, id);
    if (!item || !buffer || size <= 0) {
        if (buffer && size > 0) {
            buffer[0] = '\0';
        }
        return 0;
    }
    return UINT(item->SendMessage(WM_GETTEXT, WPARAM(size), reinterpret_cast<LPARAM>(buffer)));
}

UINT GetDlgItemInt(HWND parent, int id, BOOL* translated, BOOL isSigned)
{
    if (translated) {
        *translated = FALSE;
    }
    TWindow* item = Item(parent, id);
    if (!item) {
        return 0;
    }
    std::string text = item->GetWindowText();
    std::size_t i = text.find_first_not_of(" \t");
    if (i == std::string::npos) {
        return 0;
    }
    bool negative = false;
    if (isSigned && (text[i] == '-' || text[i] == '+')) {
        negative = text[i] == '-';
        ++i;
    }
    if (i >= text.size() || text[i] < '0' || text[i] > '9') {
        return 0;
    }
    long long value = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > 0xFFFFFFFFLL) {
            return 0;
        }
    }
    if (text.find_first_not_of(" \t", i) != std::string::npos) {
        return 0;
    }
    if (translated) {
        *translated = TRUE;
    }
    return negative ? UINT(-value) : UINT(value);
}

BOOL SetDlgItemInt(HWND parent, int id, UINT value, BOOL isSigned)
{
    std::string text = isSigned ? std::to_string(int(value)) : std::to_string(value);
    return SetDlgItemTextA(parent, id, text.c_str());
}

BOOL CheckDlgButton(HWND parent, int id, UINT check)
{
    TWindow* item = Item(parent, id);
    if (!item) {
        return FALSE;
    }
    item->SendMessage(BM_SETCHECK, check);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND parent, int id)
{
    TWindow* item = Item(parent, id);
    return item ? UINT(item->SendMessage(BM_GETCHECK)) : 0;
}

BOOL CheckRadioButton(HWND parent, int first, int last, int check)
{
    if (!W(parent)) {
        return FALSE;
    }
    for (int id = first; id <= last; ++id) {
        CheckDlgButton(parent, id, id == check ? BST_CHECKED : BST_UNCHECKED);
    }
    return TRUE;
}

int SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw)
{
    TWindow* w = W(window);
    if (!w || !info || bar != SB_CTL) {
        return 0;
    }
    return int(w->SendMessage(SBM_SETSCROLLINFO, WPARAM(redraw), reinterpret_cast<LPARAM>(info)));
}

BOOL GetScrollInfo(HWND window, int bar, SCROLLINFO* info)
{
    TWindow* w = W(window);
    if (!w || !info || bar != SB_CTL) {
        return FALSE;
    }
    return BOOL(w->SendMessage(SBM_GETSCROLLINFO, 0, reinterpret_cast<LPARAM>(info)));
}

HCURSOR LoadCursorA(HINSTANCE module, int id)
{
    return reinterpret_cast<HCURSOR>(std::uintptr_t(module ? IDC_ARROW : id));
}

HCURSOR SetCursor(HCURSOR cursor)
{
    return WindowSystem::Get().SetCursor(cursor);
}

HCURSOR GetCursor()
{
    return WindowSystem::Get().GetCursor();
}

BOOL GetCursorPos(POINT* point)
{
    if (!point) {
        return FALSE;
    }
    *point = WindowSystem::Get().GetCursorPos();
    return TRUE;
}

short GetKeyState(int virtualKey)
{
    return WindowSystem::Get().IsKeyDown(UINT(virtualKey)) ? short(0x8000) : 0;
}

DWORD GetTickCount()
{
    return WindowSystem::Get().Now();
}

WinHelpHandler SetWinHelpHandler(WinHelpHandler handler)
{
    WinHelpHandler before = std::move(HelpHandler());
    HelpHandler() = std::move(handler);
    return before;
}

BOOL WinHelpA(HWND window, const char* helpFile, UINT command, UINT_PTR data)
{
    if (!HelpHandler()) {
        return FALSE;
    }
    std::string key;
    if (command == HELP_KEY && data) {
        key = reinterpret_cast<const char*>(data);
    } else if (command == HELP_CONTEXT) {
        key = std::to_string(data);
    }
    return HelpHandler()(window, helpFile ? helpFile : "", command, key);
}
