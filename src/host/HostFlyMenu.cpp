#include "host/HostFlyMenu.h"

#include "platform/MenuData.h"

namespace {

std::unique_ptr<TMenu> OwnedMenu(HMENU handle)
{
    return std::make_unique<TMenu>(handle ? handle : CreatePopupMenu(), AutoDelete);
}

} // namespace

HostFlyMenu::HostFlyMenu() : HostFlyMenu(nullptr, 0)
{}

HostFlyMenu::HostFlyMenu(HostFlyMenu* root, int level)
    : pRoot(root ? root : this), nLevel(level), pEntries(OwnedMenu(nullptr))
{}

HostFlyMenu::~HostFlyMenu() = default;

HostFlyMenu* HostFlyMenu::CreateSubMenu(int level)
{
    if (pRoot != this) {
        return pRoot->CreateSubMenu(level);
    }
    if (level < 1 || level > kDeepestLevel) {
        return nullptr;
    }
    // The one at this level and those below it go.
    aSubMenus.resize(std::size_t(level) - 1);
    aSubMenus.push_back(std::unique_ptr<HostFlyMenu>(new HostFlyMenu(this, level)));
    return aSubMenus.back().get();
}

void HostFlyMenu::InitEntries(const TMenu& menu, int, int)
{
    pEntries = OwnedMenu(DuplicateMenu(menu.GetHandle()));
}

void HostFlyMenu::SetCheckMark(UINT command, UINT state)
{
    CheckMenuItem(GetEntries(), command, MF_BYCOMMAND | (state & MF_CHECKED));
}

bool HostFlyMenu::Delete(UINT item, UINT flags)
{
    return DeleteMenu(GetEntries(), item, flags);
}

bool HostFlyMenu::Change(UINT item, UINT flags, UINT newCommand, const std::string& text)
{
    return ModifyMenuA(GetEntries(), item, (flags & MF_BYPOSITION) | MF_STRING, newCommand,
                       text.c_str());
}

void HostFlyMenu::Display(TPoint at)
{
    if (pRoot->bFilling) {
        pRoot->pDisplayed = this;
    } else if (pRoot->ShowHandler) {
        pRoot->ShowHandler(*this, at);
    }
}

HMENU HostFlyMenu::MakePopup(const std::function<void(UINT)>& open)
{
    HMENU popup = DuplicateMenu(GetEntries());
    // Filling may make a new sub-menu at this menu's level, which takes this one's place: from
    // here on only the main menu, which stays, does the work.
    HostFlyMenu* root = pRoot;
    root->Fill(popup, open, nLevel);
    return popup;
}

void HostFlyMenu::Fill(HMENU menu, const std::function<void(UINT)>& open, int depth)
{
    // Called on the main menu only.
    MenuData* data = MenuData::Find(menu);
    for (std::size_t i = 0; data && i < data->Items.size(); ++i) {
        MenuItem& item = data->Items[i];
        if (!item.IsPopup()) {
            continue;
        }
        if (item.Id == 0) {
            Fill(item.Popup, open, depth);
            continue;
        }
        // A fly-out entry: its command makes the module show the sub-menu it opens.
        HMENU sub = nullptr;
        if (depth < kDeepestLevel) {
            pDisplayed = nullptr;
            bFilling = true;
            open(item.Id);
            bFilling = false;
            if (pDisplayed) {
                sub = DuplicateMenu(pDisplayed->GetEntries());
            }
            pDisplayed = nullptr;
        }
        // The module may have changed this menu's data meanwhile; find the entry again.
        data = MenuData::Find(menu);
        if (!data || i >= data->Items.size()) {
            DestroyMenu(sub);
            return;
        }
        MenuItem& entry = data->Items[i];
        DestroyMenu(entry.Popup);
        if (sub && GetMenuItemCount(sub) > 0) {
            Fill(sub, open, depth + 1);
            entry.Popup = sub;
        } else {
            DestroyMenu(sub);
            entry.Popup = nullptr;
            entry.Flags &= ~MF_POPUP;
        }
    }
}
