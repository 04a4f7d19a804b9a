#include "platform/TComboBox.h"

#include <algorithm>
#include <cstring>

#include "catalogues/LorvString.h"
#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TEdit.h"
#include "platform/TListBox.h"
#include "platform/TextLayout.h"
#include "platform/WindowSystem.h"

namespace {

// The id of the field inside a drop-down combo box, as on Windows.
constexpr int kEditId = 1001;
constexpr int kDroppedListId = 1000;

// The field of a drop-down combo box: the keys that work the list go to the box.
class ComboEdit : public TEdit
{
public:
    ComboEdit(TComboBox* combo, int x, int y, int width, int height)
        : TEdit(combo, kEditId, "", x, y, width, height), Combo(*combo)
    {
        Attr.Style &= ~(WS_BORDER | WS_TABSTOP);
    }

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        bool listKey = wParam == VK_UP || wParam == VK_DOWN || wParam == VK_F1 + 3;
        bool dropped = Combo.IsListShown();
        if (msg == WM_KEYDOWN &&
            (listKey || (dropped && (wParam == VK_RETURN || wParam == VK_ESCAPE)))) {
            return Combo.SendMessage(msg, wParam, lParam);
        }
        if (msg == WM_CHAR && dropped && (wParam == '\r' || wParam == 0x1B)) {
            return 0;
        }
        if (msg == WM_GETDLGCODE && dropped) {
            return DLGC_WANTALLKEYS;
        }
        return TEdit::DefWindowProc(msg, wParam, lParam);
    }

    void Paint(TDC& dc, bool erase, TRect& rect) override
    {
        // Drawn without the border: the box around it is the combo box's.
        TEdit::Paint(dc, erase, rect);
        TRect r = GetClientRect();
        TBrush face(IsWindowEnabled() ? ControlLook::GetColor(COLOR_WINDOW)
                                      : ControlLook::GetColor(COLOR_BTNFACE));
        dc.FrameRect(r, face);
    }

private:
    TComboBox& Combo;
};

// The list that drops down: a popup list box that holds the mouse while it is shown.
class DroppedList : public TListBox
{
public:
    DroppedList(TComboBox* combo) : TListBox(combo, kDroppedListId, 0, 0, 0, 0), Combo(*combo)
    {
        Attr.Style = WS_POPUP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY;
        // The focus stays with the box while the list is used.
        Attr.ExStyle |= WS_EX_NOACTIVATE;
    }

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        TPoint p(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        switch (msg) {
        case WM_MOUSEMOVE: {
            int row = RowAt(p);
            if (row >= 0) {
                SetSelIndex(row);
            }
            return 0;
        }
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (!GetClientRect().Contains(p)) {
                Combo.CloseList(false);
            } else if (RowAt(p) < 0) {
                // The scroll bar: a page up or down by the half that was pressed.
                int page = GetVisibleRows();
                SetTopIndex(std::max(0, GetTopIndex() + (p.y < Attr.H / 2 ? -page : page)));
            }
            return 0;
        case WM_LBUTTONUP:
            if (RowAt(p) >= 0) {
                SetSelIndex(RowAt(p));
                Combo.CloseList(true);
            }
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != HWindow && Combo.IsListShown()) {
                Combo.CloseList(false);
            }
            return 0;
        default:
            return TListBox::DefWindowProc(msg, wParam, lParam);
        }
    }

private:
    TComboBox& Combo;
};

} // namespace

TComboBox::TComboBox(TWindow* parent, int id, int x, int y, int width, int height, DWORD style,
                     UINT textLimit, TModule* module)
    : TControl(parent, id, nullptr, x, y, width, height, module), nTextLimit(textLimit)
{
    Attr.Style |= style | WS_VSCROLL;
}

TComboBox::TComboBox(TWindow* parent, int resourceId, UINT textLimit, TModule* module)
    : TControl(parent, resourceId, module), nTextLimit(textLimit)
{}

TComboBox::~TComboBox()
{
    // The dropped list is a child of this window: it goes first, by its owner.
    pList.reset();
}

int TComboBox::GetClosedHeight() const
{
    const auto& font = GetWindowFont().GetInstance();
    int line = font ? font->GetMetrics().tmHeight : 13;
    return line + 8;
}

void TComboBox::SetupWindow()
{
    nDropHeight = std::max(Attr.H, GetClosedHeight());
    if (Attr.H != GetClosedHeight()) {
        Attr.H = GetClosedHeight();
    }
    TControl::SetupWindow();
    if (HasEdit() && !pEdit) {
        int button = ControlLook::GetMetric(SM_CXVSCROLL);
        pEdit = new ComboEdit(this, 1, 1, std::max(0, Attr.W - button - 2), Attr.H - 2);
        pEdit->SetTextLimit(nTextLimit);
        pEdit->Create();
    }
}

TRect TComboBox::ButtonRect() const
{
    int button = ControlLook::GetMetric(SM_CXVSCROLL);
    return TRect(std::max(0, Attr.W - button - 1), 1, Attr.W - 1, Attr.H - 1);
}

void TComboBox::SetTextLimit(UINT limit)
{
    nTextLimit = limit;
    if (pEdit) {
        pEdit->SetTextLimit(limit);
    }
}

int TComboBox::AddString(const std::string& text)
{
    int index = int(aItems.size());
    if (Attr.Style & CBS_SORT) {
        auto at = std::upper_bound(
            aItems.begin(), aItems.end(), text,
            [](const std::string& t, const Item& item) { return CompareNoCase(t, item.Text) < 0; });
        index = int(at - aItems.begin());
    }
    return InsertString(text, index);
}

int TComboBox::InsertString(const std::string& text, int index)
{
    if (index > int(aItems.size())) {
        return CB_ERR;
    }
    if (index < 0) {
        index = int(aItems.size());
    }
    aItems.insert(aItems.begin() + index, Item{text, 0});
    if (nSelection >= index) {
        ++nSelection;
    }
    return index;
}

int TComboBox::DeleteString(int index)
{
    if (index < 0 || index >= int(aItems.size())) {
        return CB_ERR;
    }
    aItems.erase(aItems.begin() + index);
    if (nSelection == index) {
        nSelection = -1;
        ShowSelectionText();
    } else if (nSelection > index) {
        --nSelection;
    }
    return int(aItems.size());
}

void TComboBox::ClearList()
{
    aItems.clear();
    nSelection = -1;
    ShowSelectionText();
}

void TComboBox::ShowSelectionText()
{
    std::string text = GetString(nSelection);
    if (pEdit) {
        bSettingText = true;
        pEdit->SetText(text);
        pEdit->SelectAll();
        bSettingText = false;
    } else {
        TControl::DefWindowProc(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    Invalidate();
}

int TComboBox::SetSelIndex(int index)
{
    if (index < -1 || index >= int(aItems.size())) {
        nSelection = -1;
        ShowSelectionText();
        return CB_ERR;
    }
    nSelection = index;
    ShowSelectionText();
    return index;
}

void TComboBox::UserSelect(int index)
{
    if (aItems.empty()) {
        return;
    }
    index = std::clamp(index, 0, int(aItems.size()) - 1);
    if (index != nSelection) {
        SetSelIndex(index);
        Notify(CBN_SELCHANGE);
    }
}

std::string TComboBox::GetString(int index) const
{
    if (index < 0 || index >= int(aItems.size())) {
        return std::string();
    }
    return aItems[std::size_t(index)].Text;
}

int TComboBox::FindItem(const std::string& text, int startAfter, bool exact) const
{
    int count = int(aItems.size());
    if (count == 0) {
        return CB_ERR;
    }
    if (startAfter < -1 || startAfter >= count) {
        startAfter = -1;
    }
    for (int step = 1; step <= count; ++step) {
        int index = (startAfter + step) % count;
        const std::string& row = aItems[std::size_t(index)].Text;
        bool match = exact ? EqualNoCase(row, text)
                           : row.size() >= text.size() &&
                                 EqualNoCase(std::string_view(row).substr(0, text.size()), text);
        if (match) {
            return index;
        }
    }
    return CB_ERR;
}

int TComboBox::FindString(const std::string& prefix, int startAfter) const
{
    return FindItem(prefix, startAfter, false);
}

int TComboBox::FindExactString(const std::string& text, int startAfter) const
{
    return FindItem(text, startAfter, true);
}

int TComboBox::SetSelString(const std::string& prefix, int startAfter)
{
    int index = FindString(prefix, startAfter);
    if (index != CB_ERR) {
        SetSelIndex(index);
    }
    return index;
}

LPARAM TComboBox::GetItemData(int index) const
{
    if (index < 0 || index >= int(aItems.size())) {
        return CB_ERR;
    }
    return aItems[std::size_t(index)].Data;
}

int TComboBox::SetItemData(int index, LPARAM data)
{
    if (index < 0 || index >= int(aItems.size())) {
        return CB_ERR;
    }
    aItems[std::size_t(index)].Data = data;
    return CB_OKAY;
}

TListBox* TComboBox::GetDroppedList() const
{
    return bDropped ? pList.get() : nullptr;
}

void TComboBox::ShowList(bool show)
{
    if (show == bDropped || !HWindow) {
        return;
    }
    if (!show) {
        CloseList(false);
        return;
    }
    Notify(CBN_DROPDOWN);
    pList = std::make_unique<DroppedList>(this);
    int rowHeight = GetClosedHeight() - 6;
    int rows = std::max(1, std::min(int(aItems.size()), (nDropHeight - Attr.H - 2) / rowHeight));
    TPoint below = ClientToScreen(TPoint(0, Attr.H));
    pList->Attr.X = below.x;
    pList->Attr.Y = below.y;
    pList->Attr.W = Attr.W;
    pList->Attr.H = rows * rowHeight + 2;
    pList->SetWindowFont(GetWindowFont(), false);
    pList->SetItemHeight(rowHeight);
    for (const Item& item : aItems) {
        pList->AddString(item.Text);
    }
    pList->Create();
    pList->SetSelIndex(nSelection);
    pList->Show(SW_SHOWNA);
    bDropped = true;
    pList->SetCapture();
    Invalidate();
}

void TComboBox::CloseList(bool accept)
{
    if (!bDropped) {
        return;
    }
    bDropped = false;
    int chosen = pList ? pList->GetSelIndex() : -1;
    if (pList && pList->HasCapture()) {
        pList->ReleaseCapture();
    }
    // The list's handle goes now; the object waits for the next drop, as it may be the caller.
    if (pList) {
        pList->Destroy();
    }
    bool changed = accept && chosen >= 0 && chosen != nSelection;
    if (changed) {
        SetSelIndex(chosen);
    }
    Notify(accept ? CBN_SELENDOK : CBN_SELENDCANCEL);
    Notify(CBN_CLOSEUP);
    if (changed) {
        Notify(CBN_SELCHANGE);
    }
    Invalidate();
}

bool TComboBox::HandleListKey(UINT key)
{
    if (bDropped && pList) {
        int current = pList->GetSelIndex();
        switch (key) {
        case VK_UP:
            pList->SetSelIndex(std::max(0, current - 1));
            return true;
        case VK_DOWN:
            pList->SetSelIndex(std::min(GetCount() - 1, current + 1));
            return true;
        case VK_RETURN:
            CloseList(true);
            return true;
        case VK_ESCAPE:
        case VK_F1 + 3:
            CloseList(key == VK_F1 + 3);
            return true;
        default:
            return false;
        }
    }
    switch (key) {
    case VK_UP:
        if (WindowSystem::Get().IsKeyDown(VK_MENU)) {
            ShowList(true);
        } else {
            UserSelect(nSelection < 0 ? 0 : nSelection - 1);
        }
        return true;
    case VK_DOWN:
        if (WindowSystem::Get().IsKeyDown(VK_MENU)) {
            ShowList(true);
        } else {
            UserSelect(nSelection + 1);
        }
        return true;
    case VK_F1 + 3:
        ShowList(true);
        return true;
    default:
        return false;
    }
}

LRESULT TComboBox::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    auto text = [&] { return lParam ? std::string(reinterpret_cast<const char*>(lParam)) : ""; };
    switch (msg) {
    case CB_ADDSTRING:
        return AddString(text());
    case CB_INSERTSTRING:
        return InsertString(text(), int(std::intptr_t(wParam)));
    case CB_DELETESTRING:
        return DeleteString(int(wParam));
    case CB_RESETCONTENT:
        ClearList();
        return 0;
    case CB_GETCOUNT:
        return GetCount();
    case CB_GETCURSEL:
        return nSelection;
    case CB_SETCURSEL:
        return SetSelIndex(int(std::intptr_t(wParam)));
    case CB_GETLBTEXT: {
        if (int(wParam) < 0 || int(wParam) >= GetCount() || !lParam) {
            return CB_ERR;
        }
        std::string row = GetString(int(wParam));
        std::memcpy(reinterpret_cast<char*>(lParam), row.c_str(), row.size() + 1);
        return LRESULT(row.size());
    }
    case CB_GETLBTEXTLEN:
        return int(wParam) < 0 || int(wParam) >= GetCount()
                   ? CB_ERR
                   : LRESULT(GetString(int(wParam)).size());
    case CB_FINDSTRING:
        return FindString(text(), int(std::intptr_t(wParam)));
    case CB_FINDSTRINGEXACT:
        return FindExactString(text(), int(std::intptr_t(wParam)));
    case CB_SELECTSTRING:
        return SetSelString(text(), int(std::intptr_t(wParam)));
    case CB_GETITEMDATA:
        return GetItemData(int(wParam));
    case CB_SETITEMDATA:
        return SetItemData(int(wParam), lParam);
    case CB_SHOWDROPDOWN:
        ShowList(wParam != 0);
        return TRUE;
    case CB_GETDROPPEDSTATE:
        return bDropped;
    case CB_LIMITTEXT:
        SetTextLimit(UINT(wParam));
        return TRUE;
    case CB_GETEDITSEL:
    case CB_SETEDITSEL:
        if (!pEdit) {
            return CB_ERR;
        }
        if (msg == CB_SETEDITSEL) {
            pEdit->SetSelection(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            return TRUE;
        }
        return pEdit->SendMessage(EM_GETSEL, wParam, lParam);
    case WM_SETTEXT:
        if (pEdit) {
            pEdit->SetText(text());
            return TRUE;
        }
        return CB_ERR;
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
        if (pEdit) {
            return pEdit->SendMessage(msg, wParam, lParam);
        }
        return TControl::DefWindowProc(msg, wParam, lParam);
    case WM_SIZE:
        if (HIWORD(std::uintptr_t(lParam)) != GetClosedHeight()) {
            // The height asked for is the dropped list's; the box stays one line high.
            nDropHeight = std::max(int(HIWORD(std::uintptr_t(lParam))), GetClosedHeight());
            SetWindowPos(nullptr, 0, 0, Attr.W, GetClosedHeight(), SWP_NOMOVE | SWP_NOZORDER);
        }
        if (pEdit) {
            int button = ControlLook::GetMetric(SM_CXVSCROLL);
            pEdit->MoveWindow(1, 1, std::max(0, Attr.W - button - 2), Attr.H - 2, true);
        }
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (!pEdit) {
            SetFocus();
        }
        ShowList(!bDropped);
        return 0;
    case WM_KEYDOWN:
        HandleListKey(UINT(wParam));
        return 0;
    case WM_CHAR:
        if (!pEdit && BYTE(wParam) >= 0x20) {
            int row = FindString(std::string(1, char(wParam)), nSelection);
            if (row != CB_ERR) {
                UserSelect(row);
            }
        }
        return 0;
    case WM_SETFOCUS:
        if (pEdit) {
            pEdit->SetFocus();
            pEdit->SelectAll();
        } else {
            Invalidate();
            Notify(CBN_SETFOCUS);
        }
        return 0;
    case WM_KILLFOCUS:
        if (bDropped) {
            CloseList(false);
        }
        Invalidate();
        if (!pEdit) {
            Notify(CBN_KILLFOCUS);
        }
        return 0;
    case WM_GETDLGCODE:
        return bDropped ? DLGC_WANTALLKEYS : DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_COMMAND:
        if (pEdit && LOWORD(wParam) == kEditId &&
            lParam == reinterpret_cast<LPARAM>(pEdit->HWindow)) {
            switch (HIWORD(wParam)) {
            case EN_CHANGE:
                if (!bSettingText) {
                    Notify(CBN_EDITCHANGE);
                }
                break;
            case EN_SETFOCUS:
                Notify(CBN_SETFOCUS);
                break;
            case EN_KILLFOCUS:
                if (bDropped) {
                    CloseList(false);
                }
                Notify(CBN_KILLFOCUS);
                break;
            default:
                break;
            }
            return 0;
        }
        return TControl::DefWindowProc(msg, wParam, lParam);
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TComboBox::Paint(TDC& dc, bool, TRect&)
{
    bool enabled = IsWindowEnabled();
    TColor background =
        PrepareColors(dc, pEdit ? WM_CTLCOLOREDIT : WM_CTLCOLORLISTBOX,
                      TColor(ControlLook::GetColor(enabled ? COLOR_WINDOW : COLOR_BTNFACE)));
    TRect r = GetClientRect();
    dc.FillRect(r, TBrush(background));
    bool focused = HasFocus() || (pEdit && pEdit->HasFocus());
    ControlLook::DrawBorder(dc, r,
                            focused ? ControlLook::GetColor(COLOR_HIGHLIGHT) : RGB(122, 122, 122));
    TRect button = ButtonRect();
    dc.FillRect(button, TBrush(bDropped ? RGB(204, 228, 247) : RGB(229, 229, 229)));
    ControlLook::DrawArrow(dc, button, false, enabled ? RGB(64, 64, 64) : RGB(191, 191, 191));
    if (pEdit) {
        return;
    }
    TRect text(3, 2, button.left - 1, r.bottom - 2);
    if (HasFocus() && !bDropped) {
        dc.FillRect(text, TBrush(ControlLook::GetColor(COLOR_HIGHLIGHT)));
        dc.SetTextColor(TColor(ControlLook::GetColor(COLOR_HIGHLIGHTTEXT)));
    } else {
        dc.SetTextColor(TextColor(dc));
    }
    TextLayout(dc, GetString(nSelection), text.Width(),
               DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX)
        .Draw(dc, text.InflatedBy(-1, 0));
}
