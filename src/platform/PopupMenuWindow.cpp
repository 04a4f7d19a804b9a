#include "platform/PopupMenuWindow.h"

#include <algorithm>
#include <cctype>

#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"
#include "platform/TPen.h"
#include "platform/TextLayout.h"
#include "platform/WindowSystem.h"

namespace {

constexpr int kCheckColumn = 22;
constexpr int kArrowColumn = 18;
constexpr int kShortcutGap = 24;
constexpr int kSeparatorHeight = 7;
constexpr int kPadding = 2;

const std::vector<MenuItem>& NoItems()
{
    static const std::vector<MenuItem> none;
    return none;
}

// The text before a tab, and the shortcut after it.
std::string Label(const std::string& text)
{
    return text.substr(0, text.find('\t'));
}

std::string Shortcut(const std::string& text)
{
    std::size_t tab = text.find('\t');
    return tab == std::string::npos ? std::string() : text.substr(tab + 1);
}

// The letter marked with "&", in small letters; 0 when there is none.
char Mnemonic(const std::string& text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == '&') {
            if (text[i + 1] == '&') {
                ++i;
                continue;
            }
            return char(std::tolower(static_cast<unsigned char>(text[i + 1])));
        }
    }
    return 0;
}

} // namespace

PopupMenuWindow::PopupMenuWindow(TWindow* owner, HMENU menu, TPoint at, UINT flags,
                                 PopupMenuWindow* parentMenu)
    : TWindow(owner, nullptr), hMenu(menu), pParentMenu(parentMenu)
{
    Attr.Style = WS_POPUP | WS_BORDER;
    SetBkgndColor(TColor(ControlLook::GetColor(COLOR_MENU)));
    Measure(at, flags);
}

PopupMenuWindow::~PopupMenuWindow()
{
    pSub.reset();
}

const std::vector<MenuItem>& PopupMenuWindow::Items() const
{
    MenuData* data = MenuData::Find(hMenu);
    return data ? data->Items : NoItems();
}

void PopupMenuWindow::Measure(TPoint at, UINT flags)
{
    TMemoryDC dc;
    dc.SelectObject(GetWindowFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    int rowHeight = metrics.tmHeight + 8;
    int labels = 0;
    int shortcuts = 0;
    int y = 1 + kPadding;
    aRows.clear();
    for (const MenuItem& item : Items()) {
        int height = item.IsSeparator() ? kSeparatorHeight : rowHeight;
        aRows.push_back(TRect(1, y, 0, y + height));
        y += height;
        if (!item.IsSeparator()) {
            labels =
                std::max(labels, dc.GetTextExtent(TextLayout::StripPrefix(Label(item.Text))).cx);
            std::string shortcut = Shortcut(item.Text);
            if (!shortcut.empty()) {
                shortcuts = std::max(shortcuts, dc.GetTextExtent(shortcut).cx);
            }
        }
    }
    int width =
        2 + kCheckColumn + labels + (shortcuts ? kShortcutGap + shortcuts : 0) + kArrowColumn;
    width = std::max(width, 80);
    for (TRect& r : aRows) {
        r.right = width - 1;
    }
    Attr.W = width;
    Attr.H = y + kPadding + 1;

    // Placed as asked, then moved so that it stays on the screen.
    int x = at.x;
    int top = at.y;
    if (flags & TPM_RIGHTALIGN) {
        x -= Attr.W;
    } else if (flags & TPM_CENTERALIGN) {
        x -= Attr.W / 2;
    }
    if (flags & TPM_BOTTOMALIGN) {
        top -= Attr.H;
    } else if (flags & TPM_VCENTERALIGN) {
        top -= Attr.H / 2;
    }
    TSize screen = WindowSystem::Get().GetBackend().GetScreenSize();
    Attr.X = std::clamp(x, 0, std::max(0, screen.cx - Attr.W));
    Attr.Y = std::clamp(top, 0, std::max(0, screen.cy - Attr.H));
}

UINT PopupMenuWindow::Run()
{
    Attr.Style &= ~WS_VISIBLE;
    if (!Create()) {
        return 0;
    }
    Show(SW_SHOW);
    SetCapture();
    WindowSystem::Get().RunModal(*this);
    CloseSub();
    if (HasCapture()) {
        ReleaseCapture();
    }
    Destroy();
    return nChosen;
}

TRect PopupMenuWindow::GetItemRect(int position) const
{
    if (position < 0 || position >= int(aRows.size())) {
        return TRect();
    }
    return aRows[std::size_t(position)];
}

int PopupMenuWindow::GetItemAt(TPoint client) const
{
    for (std::size_t i = 0; i < aRows.size(); ++i) {
        if (aRows[i].Contains(client)) {
            return int(i);
        }
    }
    return -1;
}

int PopupMenuWindow::FindPath(UINT command) const
{
    const auto& items = Items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!items[i].IsPopup() && !items[i].IsSeparator() && items[i].Id == command) {
            return int(i);
        }
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
        MenuData* sub = items[i].IsPopup() ? MenuData::Find(items[i].Popup) : nullptr;
        if (!sub) {
            continue;
        }
        MenuData* owner = nullptr;
        std::size_t index = 0;
        if (MenuData::Locate(items[i].Popup, command, MF_BYCOMMAND, owner, index)) {
            return int(i);
        }
    }
    return -1;
}

PopupMenuWindow& PopupMenuWindow::Root()
{
    PopupMenuWindow* m = this;
    while (m->pParentMenu) {
        m = m->pParentMenu;
    }
    return *m;
}

PopupMenuWindow& PopupMenuWindow::Deepest()
{
    PopupMenuWindow* m = this;
    while (m->pSub && m->pSub->HWindow) {
        m = m->pSub.get();
    }
    return *m;
}

PopupMenuWindow* PopupMenuWindow::MenuAt(TPoint screen)
{
    for (PopupMenuWindow* m = &Deepest(); m; m = m->pParentMenu) {
        if (m->HWindow && m->GetWindowRect().Contains(screen)) {
            return m;
        }
    }
    return nullptr;
}

void PopupMenuWindow::SetHighlight(int position)
{
    if (position != nHighlight) {
        nHighlight = position;
        Invalidate(false);
    }
}

void PopupMenuWindow::StepHighlight(int direction)
{
    const auto& items = Items();
    int count = int(items.size());
    int at = nHighlight;
    for (int step = 0; step < count; ++step) {
        at = at < 0 ? (direction > 0 ? 0 : count - 1) : (at + direction + count) % count;
        const MenuItem& item = items[std::size_t(at)];
        if (!item.IsSeparator() && item.IsEnabled()) {
            SetHighlight(at);
            return;
        }
    }
}

void PopupMenuWindow::OpenSub(int position)
{
    if (nSubPosition == position && pSub && pSub->HWindow) {
        return;
    }
    CloseSub();
    const auto& items = Items();
    if (position < 0 || position >= int(items.size()) ||
        !items[std::size_t(position)].OpensSubMenu() || !items[std::size_t(position)].IsEnabled()) {
        return;
    }
    TRect row = GetItemRect(position);
    TPoint at = ClientToScreen(TPoint(row.right - 2, row.top - 1 - kPadding));
    pSub = std::make_unique<PopupMenuWindow>(this, items[std::size_t(position)].Popup, at,
                                             TPM_LEFTALIGN, this);
    pSub->Attr.Style &= ~WS_VISIBLE;
    pSub->Create();
    pSub->Show(SW_SHOWNA);
    nSubPosition = position;
}

void PopupMenuWindow::CloseSub()
{
    if (pSub) {
        pSub->CloseSub();
        pSub.reset();
    }
    nSubPosition = -1;
}

void PopupMenuWindow::Choose(UINT id)
{
    PopupMenuWindow& root = Root();
    root.nChosen = id;
    root.CloseSub();
    WindowSystem::Get().EndModal(root, int(id));
}

LRESULT PopupMenuWindow::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    TPoint screen = ClientToScreen(TPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    switch (msg) {
    case WM_MOUSEMOVE: {
        PopupMenuWindow* menu = MenuAt(screen);
        if (!menu) {
            return 0;
        }
        int position = menu->GetItemAt(menu->ScreenToClient(screen));
        const auto& items = menu->Items();
        bool usable = position >= 0 && !items[std::size_t(position)].IsSeparator() &&
                      items[std::size_t(position)].IsEnabled();
        menu->SetHighlight(usable ? position : -1);
        if (usable && items[std::size_t(position)].OpensSubMenu()) {
            menu->OpenSub(position);
        } else if (position >= 0 && position != menu->nSubPosition) {
            menu->CloseSub();
        }
        return 0;
    }
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        if (!MenuAt(screen)) {
            Choose(0);
        }
        return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP: {
        PopupMenuWindow* menu = MenuAt(screen);
        if (!menu) {
            return 0;
        }
        int position = menu->GetItemAt(menu->ScreenToClient(screen));
        if (position < 0) {
            return 0;
        }
        const MenuItem& item = menu->Items()[std::size_t(position)];
        if (item.IsSeparator() || !item.IsEnabled()) {
            return 0;
        }
        if (item.OpensSubMenu()) {
            menu->OpenSub(position);
        } else {
            Choose(item.Id);
        }
        return 0;
    }
    case WM_CAPTURECHANGED:
        if (WindowSystem::Get().IsInModalLoop(*this) && reinterpret_cast<HWND>(lParam) != HWindow) {
            Choose(0);
        }
        return 0;
    case WM_KEYDOWN: {
        PopupMenuWindow& deepest = Deepest();
        const auto& items = deepest.Items();
        int at = deepest.nHighlight;
        bool onPopup = at >= 0 && items[std::size_t(at)].OpensSubMenu();
        switch (wParam) {
        case VK_DOWN:
            deepest.StepHighlight(1);
            break;
        case VK_UP:
            deepest.StepHighlight(-1);
            break;
        case VK_RIGHT:
            if (onPopup) {
                deepest.OpenSub(at);
                if (deepest.pSub) {
                    deepest.pSub->StepHighlight(1);
                }
            }
            break;
        case VK_LEFT:
            if (deepest.pParentMenu) {
                deepest.pParentMenu->CloseSub();
            }
            break;
        case VK_RETURN:
            if (onPopup) {
                deepest.OpenSub(at);
            } else if (at >= 0) {
                Choose(items[std::size_t(at)].Id);
            }
            break;
        case VK_ESCAPE:
            if (deepest.pParentMenu) {
                deepest.pParentMenu->CloseSub();
            } else {
                Choose(0);
            }
            break;
        default:
            break;
        }
        return 0;
    }
    case WM_CHAR: {
        PopupMenuWindow& deepest = Deepest();
        const auto& items = deepest.Items();
        char c = char(std::tolower(static_cast<unsigned char>(wParam)));
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i].IsEnabled() && !items[i].IsSeparator() && Mnemonic(items[i].Text) == c) {
                if (items[i].OpensSubMenu()) {
                    deepest.SetHighlight(int(i));
                    deepest.OpenSub(int(i));
                } else {
                    Choose(items[i].Id);
                }
                break;
            }
        }
        return 0;
    }
    case WM_CLOSE:
        Choose(0);
        return 0;
    default:
        return TWindow::DefWindowProc(msg, wParam, lParam);
    }
}

void PopupMenuWindow::Paint(TDC& dc, bool, TRect&)
{
    TRect client = GetClientRect();
    dc.FillRect(client, TBrush(ControlLook::GetColor(COLOR_MENU)));
    ControlLook::DrawBorder(dc, client, RGB(151, 151, 151));
    dc.SelectObject(GetWindowFont());
    dc.SetBkMode(TRANSPARENT);
    const auto& items = Items();
    for (std::size_t i = 0; i < items.size() && i < aRows.size(); ++i) {
        const MenuItem& item = items[i];
        TRect row = aRows[i];
        if (item.IsSeparator()) {
            int y = row.top + row.Height() / 2;
            dc.FillRect(TRect(row.left + kCheckColumn, y, row.right - 2, y + 1),
                        TBrush(RGB(215, 215, 215)));
            continue;
        }
        bool highlighted = int(i) == nHighlight && item.IsEnabled();
        if (highlighted) {
            dc.FillRect(row.InflatedBy(-1, 0), TBrush(ControlLook::GetColor(COLOR_HIGHLIGHT)));
        }
        COLORREF text = !item.IsEnabled() ? ControlLook::GetColor(COLOR_GRAYTEXT)
                        : highlighted     ? ControlLook::GetColor(COLOR_HIGHLIGHTTEXT)
                                          : ControlLook::GetColor(COLOR_MENUTEXT);
        if (item.IsChecked()) {
            int side = 9;
            int top = row.top + (row.Height() - side) / 2;
            ControlLook::DrawTick(dc, TRect(row.left + 7, top, row.left + 7 + side, top + side),
                                  text);
        }
        dc.SetTextColor(TColor(text));
        TRect label(row.left + kCheckColumn, row.top, row.right - kArrowColumn, row.bottom);
        TextLayout(dc, Label(item.Text), label.Width(), DT_LEFT | DT_VCENTER | DT_SINGLELINE)
            .Draw(dc, label);
        std::string shortcut = Shortcut(item.Text);
        if (!shortcut.empty()) {
            TextLayout(dc, shortcut, label.Width(),
                       DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX)
                .Draw(dc, label);
        }
        if (item.OpensSubMenu()) {
            ControlLook::DrawRightArrow(
                dc, TRect(row.right - kArrowColumn, row.top, row.right, row.bottom), text);
        }
    }
}
