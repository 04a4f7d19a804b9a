#pragma once
// Menus: lists of items, each a command with an id and a text, a separator, or a popup that
// opens another menu, with check marks and greyed items. A menu lives behind its handle
// until DestroyMenu (which takes its popups with it); TMenu wraps a handle and may own it.
//
// Item texts may hold "&" before the letter to underline and a tab before a shortcut's text,
// as menu resources write them. Items are named by command id (MF_BYCOMMAND, searched in
// popups too) or by position (MF_BYPOSITION).
#include <string>

#include "platform/TAutoDelete.h"
#include "platform/TResId.h"
#include "platform/WinTypes.h"

class TMenu
{
public:
    // A new, empty menu bar, owned.
    TMenu();
    TMenu(HMENU handle, TAutoDelete autoDelete = NoAutoDelete);
    // A menu of the module's resources, owned; not OK when there is none of that id.
    TMenu(TModule* module, const TResId& resId);
    virtual ~TMenu();

    TMenu(const TMenu&) = delete;
    TMenu& operator=(const TMenu&) = delete;

    HMENU GetHandle() const { return Handle; }
    operator HMENU() const { return Handle; }
    bool IsOK() const;

    int GetMenuItemCount() const;
    // The id at a position; 0xFFFFFFFF for a popup or a position that does not exist.
    UINT GetMenuItemID(int position) const;
    UINT GetMenuState(UINT item, UINT flags) const;
    std::string GetMenuString(UINT item, UINT flags) const;
    HMENU GetSubMenu(int position) const;
    bool AppendMenu(UINT flags, UINT_PTR idOrPopup = 0, const char* text = nullptr);
    bool InsertMenu(UINT item, UINT flags, UINT_PTR idOrPopup = 0, const char* text = nullptr);
    bool ModifyMenu(UINT item, UINT flags, UINT_PTR idOrPopup = 0, const char* text = nullptr);
    bool DeleteMenu(UINT item, UINT flags);
    bool RemoveMenu(UINT item, UINT flags);
    UINT CheckMenuItem(UINT item, UINT check);
    UINT EnableMenuItem(UINT item, UINT enable);

protected:
    HMENU Handle;
    bool bAutoDelete;
};

// The plain calls.
HMENU CreateMenu();
HMENU CreatePopupMenu();
BOOL DestroyMenu(HMENU menu);
BOOL IsMenu(HMENU menu);
BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR idOrPopup, const char* text);
BOOL InsertMenuA(HMENU menu, UINT item, UINT flags, UINT_PTR idOrPopup, const char* text);
BOOL ModifyMenuA(HMENU menu, UINT item, UINT flags, UINT_PTR idOrPopup, const char* text);
// Deletes an item, destroying its popup; RemoveMenu keeps the popup alive.
BOOL DeleteMenu(HMENU menu, UINT item, UINT flags);
BOOL RemoveMenu(HMENU menu, UINT item, UINT flags);
// Returns the previous state (MF_CHECKED or 0), 0xFFFFFFFF for an item that does not exist.
DWORD CheckMenuItem(HMENU menu, UINT item, UINT check);
BOOL EnableMenuItem(HMENU menu, UINT item, UINT enable);
int GetMenuItemCount(HMENU menu);
UINT GetMenuItemID(HMENU menu, int position);
UINT GetMenuState(HMENU menu, UINT item, UINT flags);
int GetMenuStringA(HMENU menu, UINT item, char* buffer, int size, UINT flags);
HMENU GetSubMenu(HMENU menu, int position);
// A new menu with copies of the items of `menu` and of its popups; null for no menu.
HMENU DuplicateMenu(HMENU menu);
// Shows a popup menu at a point of the screen until an item is chosen or the menu is left.
// With TPM_RETURNCMD it returns the chosen id (0 for none); otherwise it posts WM_COMMAND with
// the id to `owner` and returns whether one was chosen.
BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int reserved, HWND owner,
                    const RECT* rect);
