#include "platform/TControl.h"

#include "platform/ControlLook.h"
#include "platform/TDC.h"

TControl::TControl(TWindow* parent, int id, const char* title, int x, int y, int width, int height,
                   TModule* module)
    : TWindow(parent, title, module), bFromResource(false)
{
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP;
    Attr.Id = id;
    Attr.X = x;
    Attr.Y = y;
    Attr.W = width;
    Attr.H = height;
    // A control paints all of itself.
    SetBkgndColor(TColor::None);
}

TControl::TControl(TWindow* parent, int resourceId, TModule* module)
    : TWindow(parent, nullptr, module), bFromResource(true)
{
    Attr.Style = WS_CHILD | WS_VISIBLE;
    Attr.Id = resourceId;
    SetBkgndColor(TColor::None);
}

void TControl::Notify(UINT code)
{
    if (TWindow* parent = GetParentO()) {
        parent->SendMessage(WM_COMMAND, MAKEWPARAM(GetId(), int(code)),
                            reinterpret_cast<LPARAM>(HWindow));
    }
}

TColor TControl::ParentBackground() const
{
    TWindow* parent = GetParentO();
    if (parent && parent->GetBkgndColor() != TColor::None) {
        return parent->GetBkgndColor();
    }
    return TColor(ControlLook::GetColor(COLOR_BTNFACE));
}

TColor TControl::PrepareColors(TDC& dc, UINT ctlColorMessage, TColor fallback)
{
    dc.SelectObject(GetWindowFont());
    dc.SetTextColor(TColor(ControlLook::GetColor(COLOR_BTNTEXT)));
    dc.SetBkMode(TRANSPARENT);
    TWindow* parent = GetParentO();
    TColor background = fallback;
    dc.SetBkColor(background);
    if (parent && parent->HWindow) {
        LRESULT brush = parent->SendMessage(ctlColorMessage, reinterpret_cast<WPARAM>(dc.GetHDC()),
                                            reinterpret_cast<LPARAM>(HWindow));
        if (brush) {
            background = reinterpret_cast<HBRUSH>(brush)->GetColor();
        }
    }
    return background;
}

TColor TControl::TextColor(TDC& dc) const
{
    return IsWindowEnabled() ? dc.GetTextColor() : TColor(ControlLook::GetColor(COLOR_GRAYTEXT));
}
