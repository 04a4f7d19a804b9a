#include "platform/TButton.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TextLayout.h"

namespace {

// The side of the box of a check box or radio button, in pixels.
constexpr int kBoxSize = 13;
constexpr int kBoxGap = 4;

} // namespace

TButton::TButton(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
                 bool isDefault, TModule* module)
    : TControl(parent, id, text, x, y, width, height, module)
{
    Attr.Style |= isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

TButton::TButton(TWindow* parent, int resourceId, TModule* module)
    : TControl(parent, resourceId, module)
{}

bool TButton::IsCheckKind() const
{
    DWORD type = ButtonType();
    return type == BS_CHECKBOX || type == BS_AUTOCHECKBOX || type == BS_3STATE ||
           type == BS_AUTO3STATE;
}

bool TButton::IsRadioKind() const
{
    DWORD type = ButtonType();
    return type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON;
}

void TButton::SetCheck(UINT check)
{
    if (check != nCheck) {
        nCheck = check;
        Invalidate();
    }
}

void TButton::SetPressed(bool pressed)
{
    if (pressed != bPressed) {
        bPressed = pressed;
        Invalidate();
    }
}

void TButton::ClearOtherRadios()
{
    TWindow* parent = GetParentO();
    if (!parent) {
        return;
    }
    const auto& siblings = parent->GetChildren();
    auto self = std::find(siblings.begin(), siblings.end(), this);
    if (self == siblings.end()) {
        return;
    }
    // The group runs back to the nearest WS_GROUP (this one included) and on to the next.
    auto first = self;
    while (first != siblings.begin() && !((*first)->GetStyle() & WS_GROUP)) {
        --first;
    }
    for (auto it = first; it != siblings.end(); ++it) {
        if (it != first && ((*it)->GetStyle() & WS_GROUP)) {
            break;
        }
        auto* button = dynamic_cast<TButton*>(*it);
        if (button && button != this && button->IsRadioKind()) {
            button->SetCheck(BST_UNCHECKED);
        }
    }
}

void TButton::Click()
{
    switch (ButtonType()) {
    case BS_AUTOCHECKBOX:
        SetCheck(nCheck == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED);
        break;
    case BS_AUTO3STATE:
        SetCheck((nCheck + 1) % 3);
        break;
    case BS_AUTORADIOBUTTON:
        SetCheck(BST_CHECKED);
        ClearOtherRadios();
        break;
    default:
        break;
    }
    Notify(BN_CLICKED);
}

LRESULT TButton::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    switch (msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SetFocus();
        SetCapture();
        bTracking = true;
        SetPressed(true);
        return 0;
    case WM_MOUSEMOVE:
        if (bTracking) {
            SetPressed(
                GetClientRect().Contains(TPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam))));
        }
        return 0;
    case WM_LBUTTONUP:
        if (bTracking) {
            bTracking = false;
            bool inside = bPressed;
            SetPressed(false);
            ReleaseCapture();
            if (inside) {
                Click();
            }
        }
        return 0;
    case WM_CAPTURECHANGED:
        if (bTracking) {
            bTracking = false;
            SetPressed(false);
        }
        return 0;
    case WM_KEYDOWN:
        if (wParam == VK_SPACE) {
            bSpaceDown = true;
            SetPressed(true);
        }
        return 0;
    case WM_KEYUP:
        if (wParam == VK_SPACE && bSpaceDown) {
            bSpaceDown = false;
            SetPressed(false);
            Click();
        }
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        bSpaceDown = false;
        Invalidate();
        return 0;
    case WM_GETDLGCODE: {
        UINT code = DLGC_BUTTON;
        if (IsRadioKind()) {
            code |= DLGC_RADIOBUTTON;
        } else if (ButtonType() == BS_DEFPUSHBUTTON) {
            code |= DLGC_DEFPUSHBUTTON;
        } else if (ButtonType() == BS_PUSHBUTTON) {
            code |= DLGC_UNDEFPUSHBUTTON;
        }
        return LRESULT(code);
    }
    case BM_CLICK:
        Click();
        return 0;
    case BM_GETCHECK:
        return LRESULT(nCheck);
    case BM_SETCHECK:
        SetCheck(UINT(wParam));
        return 0;
    case BM_GETSTATE:
        return LRESULT(nCheck | (bPressed ? BST_PUSHED : 0) | (HasFocus() ? BST_FOCUS : 0));
    case BM_SETSTATE:
        SetPressed(wParam != 0);
        return 0;
    case BM_SETSTYLE:
        Attr.Style = (Attr.Style & ~BS_TYPEMASK) | (DWORD(wParam) & BS_TYPEMASK);
        if (lParam) {
            Invalidate();
        }
        return 0;
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TButton::Paint(TDC& dc, bool, TRect&)
{
    if (IsCheckKind() || IsRadioKind()) {
        PaintCheck(dc);
    } else {
        PaintPush(dc);
    }
}

void TButton::PaintPush(TDC& dc)
{
    PrepareColors(dc, WM_CTLCOLORBTN, ParentBackground());
    TRect r = GetClientRect();
    ControlLook::DrawButtonFace(dc, r, bPressed, ButtonType() == BS_DEFPUSHBUTTON,
                                IsWindowEnabled());
    dc.SetTextColor(TextColor(dc));
    TRect text = r.InflatedBy(-3, -3);
    if (bPressed) {
        text = text.OffsetBy(1, 1);
    }
    TextLayout(dc, GetWindowText(), text.Width(), DT_CENTER | DT_VCENTER | DT_SINGLELINE)
        .Draw(dc, text);
    if (HasFocus()) {
        ControlLook::DrawFocus(dc, r.InflatedBy(-3, -3));
    }
}

void TButton::PaintCheck(TDC& dc)
{
    TColor background = PrepareColors(dc, WM_CTLCOLORSTATIC, ParentBackground());
    TRect r = GetClientRect();
    dc.FillRect(r, TBrush(background));
    int top = (r.Height() - kBoxSize) / 2;
    TRect box(0, top, kBoxSize, top + kBoxSize);
    if (IsRadioKind()) {
        ControlLook::DrawRadio(dc, box, nCheck == BST_CHECKED, IsWindowEnabled());
    } else {
        ControlLook::DrawCheckBox(dc, box, nCheck != BST_UNCHECKED, IsWindowEnabled());
    }
    dc.SetTextColor(TextColor(dc));
    TRect text(kBoxSize + kBoxGap, 0, r.right, r.bottom);
    TextLayout layout(dc, GetWindowText(), text.Width(), DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    layout.Draw(dc, text);
    if (HasFocus()) {
        int h = layout.GetLineHeight();
        int y = (r.Height() - h) / 2;
        ControlLook::DrawFocus(dc, TRect(text.left - 1, y - 1,
                                         std::min(r.right, text.left + layout.GetWidth() + 1),
                                         std::min(r.bottom, y + h + 1)));
    }
}
