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
};

struct MenuTemplate
{
    std::vector<MenuTemplateItem> Items;
};

void AddMenuResource(const TResId& id, MenuTemplate menuTemplate);
// A new popup menu built from the template of an id; null when there is none.
HMENU LoadMenuA(HINSTANCE module, const TResId& id);
