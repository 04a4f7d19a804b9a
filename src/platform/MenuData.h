#pragma once
// What a menu handle stands for: its items. The menu calls and the popup window share it.
#include <memory>
#include <string>
#include <vector>

#include "platform/WinTypes.h"

// A popup item may carry a command id too: the command of a fly-out entry whose sub-menu is
// filled when it opens (see MenuTemplateItem::FlyOut).
struct MenuItem
{
    UINT Flags = MF_STRING;
    UINT Id = 0;
    std::string Text;
    HMENU Popup = nullptr;

    bool IsSeparator() const { return (Flags & MF_SEPARATOR) != 0; }
    bool IsPopup() const { return (Flags & MF_POPUP) != 0; }
    bool IsEnabled() const { return !(Flags & (MF_GRAYED | MF_DISABLED)); }
    bool IsChecked() const { return (Flags & MF_CHECKED) != 0; }
    // A popup item with items to show; an empty one acts as its command.
    bool OpensSubMenu() const;
};

class MenuData
{
public:
    std::vector<MenuItem> Items;
    bool bPopup = false;

    static HMENU Create(bool popup);
    static MenuData* Find(HMENU menu);
    // Destroys the menu and the popups of its items.
    static bool Destroy(HMENU menu);

    // The menu and position of an item named as the flags say; false when there is none.
    static bool Locate(HMENU menu, UINT item, UINT flags, MenuData*& owner, std::size_t& index);
};
