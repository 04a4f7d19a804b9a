#include "host/HostWindowStrings.h"

#include <string>

#include "host/HostStringTable.h"
#include "platform/TMenu.h"
#include "platform/TWindow.h"

namespace {

int ReplaceInChildren(short table, TWindow& window)
{
    int replaced = 0;
    for (TWindow* child : std::vector<TWindow*>(window.GetChildren())) {
        // Owned popups (a dropped list, a dialog of the window) are windows of their own.
        if (!child->HWindow || child->IsTopLevel()) {
            continue;
        }
        std::string text = child->GetWindowText();
        std::string words = replaceHostString(table, text);
        if (words != text) {
            child->SetWindowText(words);
            ++replaced;
        }
        replaced += ReplaceInChildren(table, *child);
    }
    return replaced;
}

} // namespace

int replaceHostChildWindowStrings(short table, HWND window)
{
    TWindow* w = GetWindowPtr(window);
    return w ? ReplaceInChildren(table, *w) : 0;
}

int replaceHostMenuStrings(short table, HMENU menu)
{
    int count = GetMenuItemCount(menu);
    int replaced = 0;
    for (int position = 0; position < count; ++position) {
        UINT state = GetMenuState(menu, UINT(position), MF_BYPOSITION);
        if (state & MF_SEPARATOR) {
            continue;
        }
        int length = GetMenuStringA(menu, UINT(position), nullptr, 0, MF_BYPOSITION);
        std::string text(std::size_t(length) + 1, '\0');
        text.resize(std::size_t(
            GetMenuStringA(menu, UINT(position), text.data(), length + 1, MF_BYPOSITION)));
        std::string words = replaceHostString(table, text);
        HMENU popup = GetSubMenu(menu, position);
        if (words != text) {
            UINT flags =
                (state & (MF_CHECKED | MF_GRAYED | MF_DISABLED | MF_POPUP)) | MF_BYPOSITION;
            UINT_PTR idOrPopup =
                popup ? reinterpret_cast<UINT_PTR>(popup) : UINT_PTR(GetMenuItemID(menu, position));
            ModifyMenuA(menu, UINT(position), flags, idOrPopup, words.c_str());
            ++replaced;
        }
        if (popup) {
            replaced += replaceHostMenuStrings(table, popup);
        }
    }
    return replaced;
}
