#include "platform/MenuTemplate.h"

#include <map>

#include "catalogues/LorvString.h"
#include "platform/MenuData.h"
#include "platform/TMenu.h"

namespace {

std::map<std::string, MenuTemplate, NoCaseLess>& Resources()
{
    static std::map<std::string, MenuTemplate, NoCaseLess> resources;
    return resources;
}

void Fill(HMENU menu, const std::vector<MenuTemplateItem>& items)
{
    for (const MenuTemplateItem& item : items) {
        if (item.Flags & MF_POPUP) {
            HMENU popup = CreatePopupMenu();
            Fill(popup, item.Popup);
            AppendMenuA(menu, item.Flags, reinterpret_cast<UINT_PTR>(popup), item.Text.c_str());
            MenuData::Find(menu)->Items.back().Id = item.Id;
        } else {
            AppendMenuA(menu, item.Flags, item.Id, item.Text.c_str());
        }
    }
}

} // namespace

MenuTemplateItem MenuTemplateItem::Command(const std::string& text, UINT id, UINT flags)
{
    return MenuTemplateItem{text, id, flags & ~MF_POPUP, {}};
}

MenuTemplateItem MenuTemplateItem::Separator()
{
    return MenuTemplateItem{"", 0, MF_SEPARATOR, {}};
}

MenuTemplateItem MenuTemplateItem::SubMenu(const std::string& text,
                                           std::vector<MenuTemplateItem> items)
{
    return MenuTemplateItem{text, 0, MF_POPUP, std::move(items)};
}

MenuTemplateItem MenuTemplateItem::FlyOut(const std::string& text, UINT id)
{
    return MenuTemplateItem{text, id, MF_POPUP, {}};
}

void AddMenuResource(const TResId& id, MenuTemplate menuTemplate)
{
    Resources()[id.GetName()] = std::move(menuTemplate);
}

HMENU LoadMenuA(HINSTANCE, const TResId& id)
{
    auto found = Resources().find(id.GetName());
    if (found == Resources().end()) {
        return nullptr;
    }
    HMENU menu = CreatePopupMenu();
    Fill(menu, found->second.Items);
    return menu;
}
