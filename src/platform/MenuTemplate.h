#pragma once
// A menu as a resource describes it: items with their texts, ids and flags, and popups with
// items of their own. The code that defines a menu adds its template under the menu's resource
// id; LoadMenuA builds a menu from it.
#include <string>
#include <vector>

#include "platform/TResId.h"
#include "platform/WinTypes.h"

struct MenuTemplateItem
{
    std::string Text;
    UINT Id = 0;
    UINT Flags = MF_STRING;
    std::vector<MenuTemplateItem> Popup;

    static MenuTemplateItem Command(const std::string& text, UINT id, UINT flags = MF_STRING);
    static MenuTemplateItem Separator();
    static MenuTemplateItem SubMenu(const std::string& text, std::vector<MenuTemplateItem> items);
    // An item that opens a sub-menu which its command fills when it is about to show: a popup
    // item with no items of its own that carries the command id, as an extended menu resource
    // gives a popup an id. A menu that nobody fills shows it as a plain command.
    static MenuTemplateItem FlyOut(const std::string& text, UINT id);
};

struct MenuTemplate
{
    std::vector<MenuTemplateItem> Items;
};

void AddMenuResource(const TResId& id, MenuTemplate menuTemplate);
// A new popup menu built from the template of an id; null when there is none.
HMENU LoadMenuA(HINSTANCE module, const TResId& id);
