#include "platform/TEdit.h"

#include <algorithm>
#include <cctype>

#include "platform/ControlLook.h"
#include "platform/FontInstance.h"
#include "platform/TDC.h"
#include "platform/TRegion.h"
#include "platform/WindowSystem.h"

namespace {

// The most a field holds when no limit is set.
constexpr UINT kNoLimit = 0x7FFFFFFE;
// The text's distance from the border.
constexpr int kPadding = 2;

// What Ctrl+C and Ctrl+X put aside for Ctrl+V: one clipboard for the whole program.
std::string& Clipboard()
{
    static std::string text;
    return text;
}

bool IsWordChar(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

} // namespace

TEdit::TEdit(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
             UINT textLimit, bool multiline, TModule* module)
    : TControl(parent, id, text, x, y, width, height, module), Text(text ? text : ""),
      nLimit(textLimit ? textLimit : kNoLimit)
{
    Attr.Style |= ES_LEFT | ES_AUTOHSCROLL | WS_BORDER;
    if (multiline) {
        Attr.Style |= ES_MULTILINE;
    }
}

TEdit::TEdit(TWindow* parent, int resourceId, UINT textLimit, TModule* module)
    : TControl(parent, resourceId, module), nLimit(textLimit ? textLimit : kNoLimit)
{}

void TEdit::GetSelection(int& start, int& end) const
{
    start = std::min(nAnchor, nCaret);
    end = std::max(nAnchor, nCaret);
}

void TEdit::SetSelection(int start, int end)
{
    int length = int(Text.size());
    if (start < 0) {
        nAnchor = nCaret;
    } else {
        if (end < 0 || end > length) {
            end = length;
        }
        nAnchor = std::min(start, length);
        nCaret = end;
    }
    KeepCaretVisible();
    Invalidate();
}

void TEdit::SetTextLimit(UINT limit)
{
    nLimit = limit ? limit : kNoLimit;
}

std::string TEdit::Shown() const
{
    return (Attr.Style & ES_PASSWORD) ? std::string(Text.size(), '*') : Text;
}

TRect TEdit::TextRect() const
{
    return GetClientRect().InflatedBy(-(1 + kPadding), -1);
}

int TEdit::WidthTo(int count) const
{
    const auto& font = GetWindowFont().GetInstance();
    if (!font) {
        return 0;
    }
    bool password = Attr.Style & ES_PASSWORD;
    int width = 0;
    for (int i = 0; i < count && i < int(Text.size()); ++i) {
        width += font->Advance(BYTE(password ? '*' : Text[std::size_t(i)]));
    }
    return width;
}

int TEdit::HitTest(int x) const
{
    int target = x - TextRect().left + nScroll;
    int best = 0;
    int bestDistance = std::abs(target);
    for (int i = 1; i <= int(Text.size()); ++i) {
        int distance = std::abs(WidthTo(i) - target);
        if (distance < bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    return best;
}

void TEdit::KeepCaretVisible()
{
    int width = TextRect().Width();
    int caret = WidthTo(nCaret);
    int total = WidthTo(int(Text.size()));
    if (caret - nScroll > width - 1) {
        nScroll = caret - width + 1;
    }
    if (caret < nScroll) {
        nScroll = caret;
    }
    nScroll = std::clamp(nScroll, 0, std::max(0, total - width + 1));
}

void TEdit::Changed()
{
    bModified = true;
    KeepCaretVisible();
    Invalidate();
    Notify(EN_UPDATE);
    Notify(EN_CHANGE);
}

void TEdit::MoveCaret(int position, bool extend)
{
    nCaret = std::clamp(position, 0, int(Text.size()));
    if (!extend) {
        nAnchor = nCaret;
    }
    KeepCaretVisible();
    Invalidate();
}

void TEdit::DeleteSelection()
{
    int start;
    int end;
    GetSelection(start, end);
    Text.erase(std::size_t(start), std::size_t(end - start));
    nAnchor = nCaret = start;
}

void TEdit::Insert(const std::string& text)
{
    std::string typed = text;
    std::erase(typed, '\r');
    std::replace(typed.begin(), typed.end(), '\n', ' ');
    int start;
    int end;
    GetSelection(start, end);
    std::size_t kept = Text.size() - std::size_t(end - start);
    std::size_t room = kept < nLimit ? nLimit - kept : 0;
    if (typed.size() > room) {
        typed.resize(room);
        Notify(EN_MAXTEXT);
        if (typed.empty()) {
            return;
        }
    }
    DeleteSelection();
    Text.insert(std::size_t(nCaret), typed);
    nCaret += int(typed.size());
    nAnchor = nCaret;
    Changed();
}

void TEdit::TypeChar(char c)
{
    if (Attr.Style & ES_READONLY) {
        return;
    }
    if ((Attr.Style & ES_NUMBER) && !std::isdigit(static_cast<unsigned char>(c))) {
        return;
    }
    if (Attr.Style & ES_UPPERCASE) {
        c = char(std::toupper(static_cast<unsigned char>(c)));
    } else if (Attr.Style & ES_LOWERCASE) {
        c = char(std::tolower(static_cast<unsigned char>(c)));
    }
    Insert(std::string(1, c));
}

LRESULT TEdit::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    bool readOnly = Attr.Style & ES_READONLY;
    bool shift = WindowSystem::Get().IsKeyDown(VK_SHIFT);
    switch (msg) {
    case WM_SETTEXT:
        Text = lParam ? reinterpret_cast<const char*>(lParam) : "";
        nAnchor = nCaret = 0;
        nScroll = 0;
        Changed();
        bModified = false;
        return TRUE;
    case WM_GETTEXT: {
        if (wParam == 0 || !lParam) {
            return 0;
        }
        std::size_t n = std::min<std::size_t>(Text.size(), wParam - 1);
        Text.copy(reinterpret_cast<char*>(lParam), n);
        reinterpret_cast<char*>(lParam)[n] = '\0';
        return LRESULT(n);
    }
    case WM_GETTEXTLENGTH:
        return LRESULT(Text.size());
    case WM_CHAR: {
        char c = char(wParam);
        switch (c) {
        case 0x01: // Ctrl+A
            SelectAll();
            break;
        case 0x03: // Ctrl+C
        case 0x18: // Ctrl+X
            if (HasSelection() && !(Attr.Style & ES_PASSWORD)) {
                int start;
                int end;
                GetSelection(start, end);
                Clipboard() = Text.substr(std::size_t(start), std::size_t(end - start));
                if (c == 0x18 && !readOnly) {
                    DeleteSelection();
                    Changed();
                }
            }
            break;
        case 0x16: // Ctrl+V
            if (!readOnly) {
                Insert(Clipboard());
            }
            break;
        case '\b':
            if (readOnly) {
                break;
            }
            if (!HasSelection() && nCaret > 0) {
                nAnchor = nCaret - 1;
            }
            if (HasSelection()) {
                DeleteSelection();
                Changed();
            }
            break;
        case '\r':
            if (TWindow* parent = GetParentO()) {
                parent->SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, 0), 0);
            }
            break;
        default:
            if (BYTE(c) >= 0x20 && c != 0x7F) {
                TypeChar(c);
            }
            break;
        }
        return 0;
    }
    case WM_KEYDOWN:
        switch (wParam) {
        case VK_LEFT:
            if (!shift && HasSelection()) {
                MoveCaret(std::min(nAnchor, nCaret), false);
            } else {
                MoveCaret(nCaret - 1, shift);
            }
            break;
        case VK_RIGHT:
            if (!shift && HasSelection()) {
                MoveCaret(std::max(nAnchor, nCaret), false);
            } else {
                MoveCaret(nCaret + 1, shift);
            }
            break;
        case VK_HOME:
            MoveCaret(0, shift);
            break;
        case VK_END:
            MoveCaret(int(Text.size()), shift);
            break;
        case VK_DELETE:
            if (readOnly) {
                break;
            }
            if (!HasSelection() && nCaret < int(Text.size())) {
                nAnchor = nCaret + 1;
            }
            if (HasSelection()) {
                DeleteSelection();
                Changed();
            }
            break;
        default:
            break;
        }
        return 0;
    case WM_LBUTTONDOWN:
        SetFocus();
        MoveCaret(HitTest(GET_X_LPARAM(lParam)), shift);
        SetCapture();
        bTracking = true;
        return 0;
    case WM_MOUSEMOVE:
        if (bTracking) {
            MoveCaret(HitTest(GET_X_LPARAM(lParam)), true);
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
        // A double click selects the word under the pointer.
        int at = HitTest(GET_X_LPARAM(lParam));
        int start = at;
        int end = at;
        while (start > 0 && IsWordChar(Text[std::size_t(start - 1)])) {
            --start;
        }
        while (end < int(Text.size()) && IsWordChar(Text[std::size_t(end)])) {
            ++end;
        }
        SetSelection(start, end);
        return 0;
    }
    case WM_SETFOCUS:
        Invalidate();
        Notify(EN_SETFOCUS);
        return 0;
    case WM_KILLFOCUS:
        Invalidate();
        Notify(EN_KILLFOCUS);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;
    case EM_GETSEL: {
        int start;
        int end;
        GetSelection(start, end);
        if (wParam) {
            *reinterpret_cast<DWORD*>(wParam) = DWORD(start);
        }
        if (lParam) {
            *reinterpret_cast<DWORD*>(lParam) = DWORD(end);
        }
        return MAKELPARAM(start, end);
    }
    case EM_SETSEL:
        SetSelection(int(std::intptr_t(wParam)), int(lParam));
        return 0;
    case EM_REPLACESEL:
        Insert(lParam ? reinterpret_cast<const char*>(lParam) : "");
        return 0;
    case EM_LIMITTEXT:
        SetTextLimit(UINT(wParam));
        return 0;
    case EM_GETLIMITTEXT:
        return LRESULT(nLimit);
    case EM_SETREADONLY:
        ModifyStyle(wParam ? 0 : ES_READONLY, wParam ? ES_READONLY : 0);
        return TRUE;
    case EM_GETMODIFY:
        return bModified;
    case EM_SETMODIFY:
        bModified = wParam != 0;
        return 0;
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TEdit::Paint(TDC& dc, bool, TRect&)
{
    bool active = IsWindowEnabled() && !(Attr.Style & ES_READONLY);
    TColor background =
        active ? PrepareColors(dc, WM_CTLCOLOREDIT, TColor(ControlLook::GetColor(COLOR_WINDOW)))
               : PrepareColors(dc, WM_CTLCOLORSTATIC, ParentBackground());
    TRect r = GetClientRect();
    dc.FillRect(r, TBrush(background));
    bool focused = HasFocus();
    ControlLook::DrawBorder(dc, r,
                            focused ? ControlLook::GetColor(COLOR_HIGHLIGHT) : RGB(122, 122, 122));

    TRect area = TextRect();
    dc.SelectClipRgn(TRegion(area));
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    int y = area.top + (area.Height() - metrics.tmHeight) / 2;
    int x = area.left - nScroll;
    std::string shown = Shown();
    dc.SetTextColor(TextColor(dc));
    dc.TextOut(x, y, shown);
    int start;
    int end;
    GetSelection(start, end);
    if (focused && start != end) {
        int left = x + WidthTo(start);
        int right = x + WidthTo(end);
        dc.FillRect(TRect(left, y, right, y + metrics.tmHeight),
                    TBrush(ControlLook::GetColor(COLOR_HIGHLIGHT)));
        dc.SetTextColor(TColor(ControlLook::GetColor(COLOR_HIGHLIGHTTEXT)));
        dc.TextOut(left, y, shown.c_str() + start, end - start);
    }
    if (focused) {
        int caret = x + WidthTo(nCaret);
        dc.FillRect(TRect(caret, y, caret + 1, y + metrics.tmHeight),
                    TBrush(ControlLook::GetColor(COLOR_WINDOWTEXT)));
    }
    dc.SelectClipRgn(nullptr);
}
