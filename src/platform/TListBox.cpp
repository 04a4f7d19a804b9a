#include "platform/TListBox.h"

#include <algorithm>
#include <cstring>

#include "catalogues/LorvString.h"
#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TListBoxItemMaster.h"
#include "platform/TMemoryDC.h"
#include "platform/TScrollBar.h"
#include "platform/TextLayout.h"
#include "platform/WindowSystem.h"

namespace {

// Rows one turn of the wheel scrolls.
constexpr int kWheelRows = 3;
// The id of the list's own scroll bar among its children.
constexpr int kScrollBarId = -2;

} // namespace

TListBox::TListBox(TWindow* parent, int id, int x, int y, int width, int height, TModule* module)
    : TControl(parent, id, nullptr, x, y, width, height, module)
{
    Attr.Style |= LBS_STANDARD;
}

TListBox::TListBox(TWindow* parent, int resourceId, TModule* module)
    : TControl(parent, resourceId, module)
{}

TListBox::~TListBox() = default;

void TListBox::SetupWindow()
{
    TControl::SetupWindow();
    if ((Attr.Style & WS_VSCROLL) && !pScrollBar) {
        int width = ControlLook::GetMetric(SM_CXVSCROLL);
        pScrollBar = MakeScrollBar(TRect(Attr.W - 1 - width, 1, Attr.W - 1, Attr.H - 1));
        pScrollBar->Create();
    }
    UpdateScrollBar();
}

TScrollBar* TListBox::MakeScrollBar(const TRect& place)
{
    // A child: the window tree owns it.
    return new TScrollBar(this, kScrollBarId, place.left, place.top, place.Width(), place.Height(),
                          false);
}

int TListBox::GetCount() const
{
    return pMaster ? nMasterCount : int(aItems.size());
}

int TListBox::GetItemHeight() const
{
    if (nItemHeight > 0) {
        return nItemHeight;
    }
    const LOGFONT& font = GetWindowFont().GetLogFont();
    if (nMeasuredHeight == 0 || std::memcmp(&font, &MeasuredFont, sizeof(LOGFONT)) != 0) {
        MeasuredFont = font;
        TMemoryDC dc;
        dc.SelectObject(GetWindowFont());
        if (pMaster) {
            nMeasuredHeight = std::max(1, pMaster->GetItemHeight(dc));
        } else {
            TEXTMETRIC metrics{};
            dc.GetTextMetrics(metrics);
            nMeasuredHeight = metrics.tmHeight + 2;
        }
    }
    return nMeasuredHeight;
}

void TListBox::SetItemHeight(int height)
{
    nItemHeight = std::max(height, 0);
    UpdateScrollBar();
    Invalidate();
}

TRect TListBox::RowsRect() const
{
    TRect r = GetClientRect().InflatedBy(-1, -1);
    if (pScrollBar && (pScrollBar->GetStyle() & WS_VISIBLE)) {
        r.right = pScrollBar->Attr.X;
    }
    return r;
}

int TListBox::GetVisibleRows() const
{
    return std::max(1, (Attr.H - 2) / GetItemHeight());
}

int TListBox::RowAt(TPoint point) const
{
    TRect rows = RowsRect();
    if (!rows.Contains(point)) {
        return -1;
    }
    int row = nTop + (point.y - rows.top) / GetItemHeight();
    return row < GetCount() ? row : -1;
}

void TListBox::UpdateScrollBar()
{
    int highestTop = std::max(0, GetCount() - GetVisibleRows());
    nTop = std::clamp(nTop, 0, highestTop);
    if (!pScrollBar) {
        return;
    }
    bool needed = GetCount() > GetVisibleRows() || (Attr.Style & LBS_DISABLENOSCROLL);
    int width = ControlLook::GetMetric(SM_CXVSCROLL);
    pScrollBar->MoveWindow(Attr.W - 1 - width, 1, width, std::max(0, Attr.H - 2), false);
    SCROLLINFO info{sizeof(SCROLLINFO),
                    SIF_RANGE | SIF_PAGE | SIF_POS,
                    0,
                    std::max(0, GetCount() - 1),
                    UINT(GetVisibleRows()),
                    nTop,
                    0};
    pScrollBar->SetScrollInfo(info, true);
    if (needed != bool(pScrollBar->GetStyle() & WS_VISIBLE)) {
        pScrollBar->Show(needed ? SW_SHOWNA : SW_HIDE);
        Invalidate();
    }
}

int TListBox::SetTopIndex(int index)
{
    if (index < 0 || index >= std::max(GetCount(), 1)) {
        return LB_ERR;
    }
    int highestTop = std::max(0, GetCount() - GetVisibleRows());
    int top = std::clamp(index, 0, highestTop);
    if (top != nTop) {
        nTop = top;
        Invalidate();
    }
    UpdateScrollBar();
    return LB_OKAY;
}

void TListBox::KeepInView(int index)
{
    if (index < 0) {
        return;
    }
    if (index < nTop) {
        SetTopIndex(index);
    } else if (index >= nTop + GetVisibleRows()) {
        SetTopIndex(index - GetVisibleRows() + 1);
    }
}

int TListBox::AddString(const std::string& text)
{
    if (pMaster) {
        return LB_ERR;
    }
    int index = int(aItems.size());
    if (Attr.Style & LBS_SORT) {
        auto at = std::upper_bound(
            aItems.begin(), aItems.end(), text,
            [](const std::string& t, const Item& item) { return CompareNoCase(t, item.Text) < 0; });
        index = int(at - aItems.begin());
    }
    return InsertString(text, index);
}

int TListBox::InsertString(const std::string& text, int index)
{
    if (pMaster || index > int(aItems.size())) {
        return LB_ERR;
    }
    if (index < 0) {
        index = int(aItems.size());
    }
    aItems.insert(aItems.begin() + index, Item{text, 0});
    if (nSelection >= index) {
        ++nSelection;
    }
    UpdateScrollBar();
    Invalidate();
    return index;
}

int TListBox::DeleteString(int index)
{
    if (pMaster || index < 0 || index >= int(aItems.size())) {
        return LB_ERR;
    }
    aItems.erase(aItems.begin() + index);
    if (nSelection == index) {
        nSelection = -1;
    } else if (nSelection > index) {
        --nSelection;
    }
    UpdateScrollBar();
    Invalidate();
    return int(aItems.size());
}

void TListBox::ClearList()
{
    aItems.clear();
    nSelection = -1;
    nTop = 0;
    UpdateScrollBar();
    Invalidate();
}

int TListBox::SetSelIndex(int index)
{
    if (index < -1 || index >= GetCount()) {
        if (nSelection != -1) {
            nSelection = -1;
            Invalidate();
        }
        return LB_ERR;
    }
    if (index != nSelection) {
        nSelection = index;
        Invalidate();
    }
    KeepInView(index);
    return index;
}

void TListBox::UserSelect(int index)
{
    if (GetCount() == 0) {
        return;
    }
    index = std::clamp(index, 0, GetCount() - 1);
    bool changed = index != nSelection;
    SetSelIndex(index);
    if (changed) {
        Notify(LBN_SELCHANGE);
    }
}

std::string TListBox::GetString(int index) const
{
    if (index < 0 || index >= GetCount()) {
        return std::string();
    }
    return pMaster ? pMaster->GetItemText(index) : aItems[std::size_t(index)].Text;
}

bool TListBox::Matches(int index, const std::string& text, bool exact) const
{
    std::string row = GetString(index);
    if (exact) {
        return EqualNoCase(row, text);
    }
    return row.size() >= text.size() &&
           EqualNoCase(std::string_view(row).substr(0, text.size()), text);
}

int TListBox::FindItem(const std::string& text, int startAfter, bool exact) const
{
    int count = GetCount();
    if (count == 0) {
        return LB_ERR;
    }
    if (startAfter < -1 || startAfter >= count) {
        startAfter = -1;
    }
    // From the row after the one given round to that row itself.
    for (int step = 1; step <= count; ++step) {
        int index = (startAfter + step) % count;
        if (Matches(index, text, exact)) {
            return index;
        }
    }
    return LB_ERR;
}

int TListBox::FindString(const std::string& prefix, int startAfter) const
{
    return FindItem(prefix, startAfter, false);
}

int TListBox::FindExactString(const std::string& text, int startAfter) const
{
    return FindItem(text, startAfter, true);
}

int TListBox::SetSelString(const std::string& prefix, int startAfter)
{
    int index = FindString(prefix, startAfter);
    if (index != LB_ERR) {
        SetSelIndex(index);
    }
    return index;
}

LPARAM TListBox::GetItemData(int index) const
{
    if (pMaster || index < 0 || index >= int(aItems.size())) {
        return LB_ERR;
    }
    return aItems[std::size_t(index)].Data;
}

int TListBox::SetItemData(int index, LPARAM data)
{
    if (pMaster || index < 0 || index >= int(aItems.size())) {
        return LB_ERR;
    }
    aItems[std::size_t(index)].Data = data;
    return LB_OKAY;
}

void TListBox::SetItemMaster(TListBoxItemMaster* master)
{
    pMaster = master;
    nMeasuredHeight = 0;
    Reset();
}

void TListBox::Reset()
{
    nMasterCount = pMaster ? std::max(0, pMaster->GetItemCount()) : 0;
    if (nSelection >= GetCount()) {
        nSelection = -1;
    }
    UpdateScrollBar();
    Invalidate();
}

LRESULT TListBox::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    auto text = [&] { return lParam ? std::string(reinterpret_cast<const char*>(lParam)) : ""; };
    switch (msg) {
    case LB_ADDSTRING:
        return AddString(text());
    case LB_INSERTSTRING:
        return InsertString(text(), int(std::intptr_t(wParam)));
    case LB_DELETESTRING:
        return DeleteString(int(wParam));
    case LB_RESETCONTENT:
        ClearList();
        return 0;
    case LB_SETCURSEL:
        return SetSelIndex(int(std::intptr_t(wParam)));
    case LB_GETCURSEL:
        return nSelection;
    case LB_GETSEL:
        return int(wParam) == nSelection && nSelection >= 0 ? 1 : 0;
    case LB_GETCOUNT:
        return GetCount();
    case LB_GETTEXT: {
        if (int(wParam) < 0 || int(wParam) >= GetCount() || !lParam) {
            return LB_ERR;
        }
        std::string row = GetString(int(wParam));
        std::memcpy(reinterpret_cast<char*>(lParam), row.c_str(), row.size() + 1);
        return LRESULT(row.size());
    }
    case LB_GETTEXTLEN:
        return int(wParam) < 0 || int(wParam) >= GetCount() ? LB_ERR : GetStringLen(int(wParam));
    case LB_FINDSTRING:
        return FindString(text(), int(std::intptr_t(wParam)));
    case LB_FINDSTRINGEXACT:
        return FindExactString(text(), int(std::intptr_t(wParam)));
    case LB_SELECTSTRING:
        return SetSelString(text(), int(std::intptr_t(wParam)));
    case LB_GETTOPINDEX:
        return nTop;
    case LB_SETTOPINDEX:
        return SetTopIndex(int(wParam));
    case LB_GETITEMDATA:
        return GetItemData(int(wParam));
    case LB_SETITEMDATA:
        return SetItemData(int(wParam), lParam);
    case LB_GETITEMHEIGHT:
        return GetItemHeight();
    case LB_SETITEMHEIGHT:
        SetItemHeight(int(lParam));
        return 0;
    case LB_GETITEMRECT: {
        int index = int(wParam);
        if (index < 0 || index >= GetCount() || !lParam) {
            return LB_ERR;
        }
        TRect rows = RowsRect();
        int top = rows.top + (index - nTop) * GetItemHeight();
        *reinterpret_cast<RECT*>(lParam) = TRect(rows.left, top, rows.right, top + GetItemHeight());
        return 0;
    }
    case LB_ITEMFROMPOINT: {
        int row = RowAt(TPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return row < 0 ? MAKELPARAM(0, 1) : row;
    }
    case WM_SIZE:
        UpdateScrollBar();
        return 0;
    case WM_SETFONT:
        nMeasuredHeight = 0;
        TControl::DefWindowProc(msg, wParam, lParam);
        UpdateScrollBar();
        return 0;
    case WM_LBUTTONDOWN: {
        SetFocus();
        int row = RowAt(TPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        if (row >= 0) {
            UserSelect(row);
        }
        SetCapture();
        bTracking = true;
        return 0;
    }
    case WM_MOUSEMOVE:
        if (bTracking) {
            TPoint p(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            TRect rows = RowsRect();
            int row =
                nTop + (std::clamp(p.y, rows.top, rows.bottom - 1) - rows.top) / GetItemHeight();
            if (p.y < rows.top) {
                row = nTop - 1;
            }
            if (GetCount() > 0) {
                UserSelect(std::clamp(row, 0, GetCount() - 1));
            }
        }
        return 0;
    case WM_LBUTTONUP:
        if (bTracking) {
            bTracking = false;
            ReleaseCapture();
        }
        return 0;
    case WM_CAPTURECHANGED:
        bTracking = false;
        return 0;
    case WM_LBUTTONDBLCLK: {
        int row = RowAt(TPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        if (row >= 0) {
            UserSelect(row);
            Notify(LBN_DBLCLK);
        }
        return 0;
    }
    case WM_MOUSEWHEEL: {
        int delta = int(short(HIWORD(wParam)));
        SetTopIndex(std::max(0, nTop - delta / WHEEL_DELTA * kWheelRows));
        return 0;
    }
    case WM_VSCROLL: {
        int page = GetVisibleRows();
        switch (LOWORD(wParam)) {
        case SB_LINEUP:
            SetTopIndex(std::max(0, nTop - 1));
            break;
        case SB_LINEDOWN:
            SetTopIndex(nTop + 1);
            break;
        case SB_PAGEUP:
            SetTopIndex(std::max(0, nTop - page));
            break;
        case SB_PAGEDOWN:
            SetTopIndex(nTop + page);
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            SetTopIndex(int(short(HIWORD(wParam))));
            break;
        default:
            break;
        }
        return 0;
    }
    case WM_KEYDOWN: {
        int page = GetVisibleRows();
        int current = nSelection < 0 ? -1 : nSelection;
        switch (wParam) {
        case VK_UP:
            UserSelect(current < 0 ? 0 : current - 1);
            break;
        case VK_DOWN:
            UserSelect(current + 1);
            break;
        case VK_PRIOR:
            UserSelect(current - (page - 1));
            break;
        case VK_NEXT:
            UserSelect(current < 0 ? page - 1 : current + page - 1);
            break;
        case VK_HOME:
            UserSelect(0);
            break;
        case VK_END:
            UserSelect(GetCount() - 1);
            break;
        default:
            break;
        }
        return 0;
    }
    case WM_CHAR: {
        char c = char(wParam);
        if (BYTE(c) >= 0x20) {
            int row = FindString(std::string(1, c), nSelection);
            if (row != LB_ERR) {
                UserSelect(row);
            }
        }
        return 0;
    }
    case WM_SETFOCUS:
        Invalidate();
        Notify(LBN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        Invalidate();
        Notify(LBN_KILLFOCUS);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TListBox::Paint(TDC& dc, bool, TRect&)
{
    TColor background =
        PrepareColors(dc, WM_CTLCOLORLISTBOX, TColor(ControlLook::GetColor(COLOR_WINDOW)));
    if (pMaster) {
        background = pMaster->GetListBackground(background);
    }
    TRect client = GetClientRect();
    dc.FillRect(client, TBrush(background));
    if (Attr.Style & WS_BORDER) {
        ControlLook::DrawBorder(dc, client, RGB(130, 135, 144));
    }
    TRect rows = RowsRect();
    int height = GetItemHeight();
    bool focused = HasFocus();
    TColor text = TextColor(dc);
    for (int row = nTop; row < GetCount(); ++row) {
        int top = rows.top + (row - nTop) * height;
        if (top >= rows.bottom) {
            break;
        }
        TRect r(rows.left, top, rows.right, std::min(top + height, rows.bottom));
        bool selected = row == nSelection;
        if (pMaster) {
            pMaster->PaintItem(dc, row, r, selected, focused && selected);
            continue;
        }
        if (selected) {
            dc.FillRect(r, TBrush(ControlLook::GetColor(COLOR_HIGHLIGHT)));
            dc.SetTextColor(TColor(ControlLook::GetColor(COLOR_HIGHLIGHTTEXT)));
        } else {
            dc.SetTextColor(text);
        }
        const std::string& s = aItems[std::size_t(row)].Text;
        dc.ExtTextOut(r.left + 2, r.top + 1, ETO_CLIPPED, &r, s.c_str(), int(s.size()));
        if (selected && focused) {
            ControlLook::DrawFocus(dc, r);
        }
    }
}
