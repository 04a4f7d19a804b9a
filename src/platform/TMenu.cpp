#include "platform/TMenu.h"

#include <cstring>
#include <unordered_map>

#include "platform/MenuData.h"
#include "platform/MenuTemplate.h"
#include "platform/PopupMenuWindow.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"

namespace {

std::unordered_map<std::uintptr_t, std::unique_ptr<MenuData>>& Menus()
{
    static std::unordered_map<std::uintptr_t, std::unique_ptr<MenuData>> menus;
    return menus;
}

std::uintptr_t NextMenuNumber()
{
    static std::uintptr_t next = 0x200;
    return next++;
}

MenuItem MakeItem(UINT flags, UINT_PTR idOrPopup, const char* text)
{
    MenuItem item;
    item.Flags = flags & ~MF_BYPOSITION;
    item.Text = text ? text : "";
    if (flags & MF_POPUP) {
        item.Popup = reinterpret_cast<HMENU>(idOrPopup);
    } else {
        item.Id = UINT(idOrPopup);
    }
    return item;
}

} // namespace

bool MenuItem::OpensSubMenu() const
{
    const MenuData* sub = IsPopup() ? MenuData::Find(Popup) : nullptr;
    return sub && !sub->Items.empty();
}

HMENU MenuData::Create(bool popup)
{
    std::uintptr_t number = NextMenuNumber();
    auto data = std::make_unique<MenuData>();
    data->bPopup = popup;
    Menus()[number] = std::move(data);
    return reinterpret_cast<HMENU>(number);
}

MenuData* MenuData::Find(HMENU menu)
{
    auto found = Menus().find(reinterpret_cast<std::uintptr_t>(menu));
    return found == Menus().end() ? nullptr : found->second.get();
}

bool MenuData::Destroy(HMENU menu)
{
    auto found = Menus().find(reinterpret_cast<std::uintptr_t>(menu));
    if (found == Menus().end()) {
        return false;
    }
    std::unique_ptr<MenuData> data = std::move(found->second);
    Menus().erase(found);
    for (const MenuItem& item : data->Items) {
        if (item.IsPopup()) {
            Destroy(item.Popup);
        }
    }
    return true;
}

bool MenuData::Locate(HMENU menu, UINT item, UINT flags, MenuData*& owner, std::size_t& index)
{
    MenuData* data = Find(menu);
    if (!data) {
        return false;
    }
    if (flags & MF_BYPOSITION) {
        if (item >= data->Items.size()) {
            return false;
        }
        owner = data;
        index = item;
        return true;
    }
    for (std::size_t i = 0; i < data->Items.size(); ++i) {
        const MenuItem& entry = data->Items[i];
        if (!entry.IsPopup() && !entry.IsSeparator() && entry.Id == item) {
            owner = data;
            index = i;
            return true;
        }
    }
    for (const MenuItem& entry : data->Items) {
        if (entry.IsPopup() && Locate(entry.Popup, item, flags, owner, index)) {
            return true;
        }
    }
    return false;
}

HMENU CreateMenu()
{
    return MenuData::Create(false);
}

HMENU CreatePopupMenu()
{
    return MenuData::Create(true);
}

BOOL DestroyMenu(HMENU menu)
{
    return MenuData::Destroy(menu);
}

BOOL IsMenu(HMENU menu)
{
    return MenuData::Find(menu) != nullptr;
}

BOOL AppendMenuA(HMENU menu, UINT flags, UINT_PTR idOrPopup, const char* text)
{
    MenuData* data = MenuData::Find(menu);
    if (!data) {
        return FALSE;
    }
    data->Items.push_back(MakeItem(flags, idOrPopup, text));
    return TRUE;
}

BOOL InsertMenuA(HMENU menu, UINT item, UINT flags, UINT_PTR idOrPopup, const char* text)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        // An item that is not there appends, as on Windows.
        return AppendMenuA(menu, flags, idOrPopup, text);
    }
    owner->Items.insert(owner->Items.begin() + std::ptrdiff_t(index),
                        MakeItem(flags, idOrPopup, text));
    return TRUE;
}

BOOL ModifyMenuA(HMENU menu, UINT item, UINT flags, UINT_PTR idOrPopup, const char* text)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        return FALSE;
    }
    MenuItem changed = MakeItem(flags, idOrPopup, text);
    const MenuItem& before = owner->Items[index];
    if (changed.IsPopup() && before.IsPopup() && changed.Popup == before.Popup) {
        changed.Id = before.Id;
    }
    owner->Items[index] = changed;
    return TRUE;
}

BOOL DeleteMenu(HMENU menu, UINT item, UINT flags)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        return FALSE;
    }
    MenuItem removed = owner->Items[index];
    owner->Items.erase(owner->Items.begin() + std::ptrdiff_t(index));
    if (removed.IsPopup()) {
        MenuData::Destroy(removed.Popup);
    }
    return TRUE;
}

BOOL RemoveMenu(HMENU menu, UINT item, UINT flags)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        return FALSE;
    }
    owner->Items.erase(owner->Items.begin() + std::ptrdiff_t(index));
    return TRUE;
}

DWORD CheckMenuItem(HMENU menu, UINT item, UINT check)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, check & MF_BYPOSITION, owner, index)) {
        return 0xFFFFFFFF;
    }
    MenuItem& entry = owner->Items[index];
    DWORD previous = entry.Flags & MF_CHECKED;
    entry.Flags = (entry.Flags & ~MF_CHECKED) | (check & MF_CHECKED);
    return previous;
}

BOOL EnableMenuItem(HMENU menu, UINT item, UINT enable)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, enable & MF_BYPOSITION, owner, index)) {
        return -1;
    }
    MenuItem& entry = owner->Items[index];
    BOOL previous = BOOL(entry.Flags & (MF_GRAYED | MF_DISABLED));
    entry.Flags = (entry.Flags & ~(MF_GRAYED | MF_DISABLED)) | (enable & (MF_GRAYED | MF_DISABLED));
    return previous;
}

int GetMenuItemCount(HMENU menu)
{
    MenuData* data = MenuData::Find(menu);
    return data ? int(data->Items.size()) : -1;
}

UINT GetMenuItemID(HMENU menu, int position)
{
    MenuData* data = MenuData::Find(menu);
    if (!data || position < 0 || position >= int(data->Items.size()) ||
        data->Items[std::size_t(position)].IsPopup()) {
        return 0xFFFFFFFF;
    }
    return data->Items[std::size_t(position)].Id;
}

UINT GetMenuState(HMENU menu, UINT item, UINT flags)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        return 0xFFFFFFFF;
    }
    return owner->Items[index].Flags;
}

int GetMenuStringA(HMENU menu, UINT item, char* buffer, int size, UINT flags)
{
    MenuData* owner = nullptr;
    std::size_t index = 0;
    if (!MenuData::Locate(menu, item, flags, owner, index)) {
        return 0;
    }
    const std::string& text = owner->Items[index].Text;
    if (!buffer || size <= 0) {
        return int(text.size());
    }
    std::size_t n = std::min(text.size(), std::size_t(size - 1));
    std::memcpy(buffer, text.data(), n);
    buffer[n] = '\0';
    return int(n);
}

HMENU GetSubMenu(HMENU menu, int position)
{
    MenuData* data = MenuData::Find(menu);
    if (!data || position < 0 || position >= int(data->Items.size())) {
        return nullptr;
    }
    const MenuItem& item = data->Items[std::size_t(position)];
    return item.IsPopup() ? item.Popup : nullptr;
}

HMENU DuplicateMenu(HMENU menu)
{
    const MenuData* data = MenuData::Find(menu);
    if (!data) {
        return nullptr;
    }
    HMENU copy = MenuData::Create(data->bPopup);
    for (MenuItem item : data->Items) {
        if (item.IsPopup()) {
            item.Popup = DuplicateMenu(item.Popup);
        }
        MenuData::Find(copy)->Items.push_back(item);
    }
    return copy;
}

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*)
{
    if (!MenuData::Find(menu)) {
        return FALSE;
    }
    PopupMenuWindow window(GetWindowPtr(owner), menu, TPoint(x, y), flags);
    UINT chosen = window.Run();
    if (flags & TPM_RETURNCMD) {
        return BOOL(chosen);
    }
    if (chosen && owner) {
        PostMessageA(owner, WM_COMMAND, MAKEWPARAM(int(chosen), 0), 0);
    }
    return chosen != 0;
}

// TMenu.

TMenu::TMenu() : Handle(CreateMenu()), bAutoDelete(true)
{}

TMenu::TMenu(HMENU handle, TAutoDelete autoDelete)
    : Handle(handle), bAutoDelete(autoDelete == AutoDelete)
{}

TMenu::TMenu(TModule* module, const TResId& resId)
    : Handle(LoadMenuA(module, resId)), bAutoDelete(true)
{}

TMenu::~TMenu()
{
    if (bAutoDelete && Handle) {
        DestroyMenu(Handle);
    }
}

bool TMenu::IsOK() const
{
    return IsMenu(Handle);
}

int TMenu::GetMenuItemCount() const
{
    return ::GetMenuItemCount(Handle);
}

UINT TMenu::GetMenuItemID(int position) const
{
    return ::GetMenuItemID(Handle, position);
}

UINT TMenu::GetMenuState(UINT item, UINT flags) const
{
    return ::GetMenuState(Handle, item, flags);
}

std::string TMenu::GetMenuString(UINT item, UINT flags) const
{
    int length = GetMenuStringA(Handle, item, nullptr, 0, flags);
    std::string text(std::size_t(length) + 1, '\0');
    int got = GetMenuStringA(Handle, item, text.data(), length + 1, flags);
    text.resize(std::size_t(got));
    return text;
}

HMENU TMenu::GetSubMenu(int position) const
{
    return ::GetSubMenu(Handle, position);
}

bool TMenu::AppendMenu(UINT flags, UINT_PTR idOrPopup, const char* text)
{
    return AppendMenuA(Handle, flags, idOrPopup, text);
}

bool TMenu::InsertMenu(UINT item, UINT flags, UINT_PTR idOrPopup, const char* text)
{
    return InsertMenuA(Handle, item, flags, idOrPopup, text);
}

bool TMenu::ModifyMenu(UINT item, UINT flags, UINT_PTR idOrPopup, const char* text)
{
    return ModifyMenuA(Handle, item, flags, idOrPopup, text);
}

bool TMenu::DeleteMenu(UINT item, UINT flags)
{
    return ::DeleteMenu(Handle, item, flags);
}

bool TMenu::RemoveMenu(UINT item, UINT flags)
{
    return ::RemoveMenu(Handle, item, flags);
}

UINT TMenu::CheckMenuItem(UINT item, UINT check)
{
    return ::CheckMenuItem(Handle, item, check);
}

UINT TMenu::EnableMenuItem(UINT item, UINT enable)
{
    return UINT(::EnableMenuItem(Handle, item, enable));
}
