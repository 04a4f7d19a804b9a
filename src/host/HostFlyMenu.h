#pragma once
// The host's fly-out menu: the menu a module hands its host, which the host shows from the
// menu button of its title bar as a popup menu with check marks, separators and sub-menus.
//
// The module fills it with InitEntries from a menu of its own, then sets check marks and
// deletes or changes entries. An entry that opens a fly-out of its own is a popup item that
// carries a command (MenuTemplateItem::FlyOut): its command makes the module create a
// sub-menu at a level (1 below the main one, 2 below that), fill it the same way and Display
// it. The host fills every fly-out before it shows the menu (MakePopup), so that resting on
// an entry opens its sub-menu as a user expects, with the marks of the moment.
//
// The main menu owns its sub-menus; a sub-menu made anew at a level takes the place of the
// one there and of those below it.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/TMenu.h"
#include "platform/TPoint.h"

class HostFlyMenu
{
public:
    // Check-mark states of SetCheckMark.
    static constexpr UINT kChecked = MF_CHECKED;
    static constexpr UINT kUnchecked = 0;
    // Levels deeper than this are refused.
    static constexpr int kDeepestLevel = 4;
    // The point Display is given for "beside the entry that opened it".
    static constexpr int kBesideEntry = -9999;

    HostFlyMenu();
    ~HostFlyMenu();
    HostFlyMenu(const HostFlyMenu&) = delete;
    HostFlyMenu& operator=(const HostFlyMenu&) = delete;

    // A new, empty sub-menu at `level` (1 to kDeepestLevel); null for another level.
    HostFlyMenu* CreateSubMenu(int level);
    // Takes a copy of the items of `menu`, in place of those held. The two numbers are a
    // position and flags that the host does not use.
    void InitEntries(const TMenu& menu, int position, int flags);
    // Checks (kChecked) or clears (kUnchecked) the entry of a command.
    void SetCheckMark(UINT command, UINT state);
    // Deletes the entry of a command (flags MF_BYCOMMAND, 0) or at a position (MF_BYPOSITION);
    // false when there is none.
    bool Delete(UINT item, UINT flags);
    // Gives an entry a new command and text; false when there is none.
    bool Change(UINT item, UINT flags, UINT newCommand, const std::string& text);
    // Shows this menu: beside the entry that opened it while the host fills its popup, else
    // at `at` on the screen (at the pointer for kBesideEntry).
    void Display(TPoint at);

    // The host's side.
    // The entries as they stand; owned by this menu.
    HMENU GetEntries() const { return pEntries->GetHandle(); }
    // A new popup menu, owned by the caller, of the entries with every fly-out filled: for
    // each fly-out entry `open` is called with its command and is to make the module show
    // the sub-menu. An entry whose command shows none becomes a plain command.
    HMENU MakePopup(const std::function<void(UINT command)>& open);
    // What Display does outside MakePopup; nothing until it is set.
    using Shower = std::function<void(HostFlyMenu& menu, TPoint at)>;
    void SetShower(Shower shower) { ShowHandler = std::move(shower); }

private:
    HostFlyMenu(HostFlyMenu* root, int level);
    void Fill(HMENU menu, const std::function<void(UINT)>& open, int depth);

    HostFlyMenu* pRoot;
    int nLevel;
    std::unique_ptr<TMenu> pEntries;
    // The main menu's: its sub-menus by level (index 0 is level 1), the one Display was
    // called on while a popup is filled, and what Display does otherwise.
    std::vector<std::unique_ptr<HostFlyMenu>> aSubMenus;
    HostFlyMenu* pDisplayed = nullptr;
    bool bFilling = false;
    Shower ShowHandler;
};
