#include "platform/TGadget.h"

#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindow.h"

TGadget::TGadget(int id, TBorderStyle style) : nId(id), BorderStyle(None)
{
    SetBorderStyle(style);
}

TGadget::~TGadget()
{
    if (pWindow) {
        pWindow->Remove(*this);
    }
}

void TGadget::SetBorderStyle(TBorderStyle style)
{
    BorderStyle = style;
    int width = style == None ? 0 : (style == Embossed ? 2 : 1);
    Borders = TBorders{width, width, width, width};
}

void TGadget::SetBounds(const TRect& bounds)
{
    if (bounds != Bounds) {
        Invalidate();
        Bounds = bounds;
        Invalidate();
    }
}

TRect TGadget::GetInnerRect() const
{
    return TRect(Bounds.left + Borders.Left + Margins.Left, Bounds.top + Borders.Top + Margins.Top,
                 Bounds.right - Borders.Right - Margins.Right,
                 Bounds.bottom - Borders.Bottom - Margins.Bottom);
}

void TGadget::GetDesiredSize(TSize& size)
{
    size = TSize(Borders.Left + Borders.Right + Margins.Left + Margins.Right,
                 Borders.Top + Borders.Bottom + Margins.Top + Margins.Bottom);
}

void TGadget::SetShrinkWrap(bool width, bool height)
{
    bShrinkWrapWidth = width;
    bShrinkWrapHeight = height;
}

void TGadget::SetEnabled(bool enabled)
{
    if (enabled != bEnabled) {
        bEnabled = enabled;
        Invalidate();
    }
}

void TGadget::SetVisible(bool visible)
{
    if (visible != bVisible) {
        bVisible = visible;
        if (pWindow) {
            pWindow->LayoutSession();
        }
    }
}

void TGadget::Invalidate(bool erase)
{
    InvalidateRect(TRect(0, 0, Bounds.Width(), Bounds.Height()), erase);
}

void TGadget::InvalidateRect(const TRect& rect, bool erase)
{
    if (pWindow && pWindow->HWindow) {
        pWindow->InvalidateRect(rect.OffsetBy(Bounds.left, Bounds.top), erase);
    }
}

void TGadget::Update()
{
    if (pWindow && pWindow->HWindow) {
        pWindow->UpdateWindow();
    }
}

void TGadget::Paint(TDC& dc)
{
    PaintBorder(dc);
}

void TGadget::PaintBorder(TDC& dc)
{
    if (BorderStyle == None || Bounds.IsEmpty()) {
        return;
    }
    COLORREF light = ControlLook::GetColor(COLOR_BTNHIGHLIGHT);
    COLORREF dark = ControlLook::GetColor(COLOR_BTNSHADOW);
    const TRect& r = Bounds;
    auto edges = [&](const TRect& box, COLORREF topLeft, COLORREF bottomRight) {
        dc.FillRect(TRect(box.left, box.top, box.right, box.top + 1), TBrush(topLeft));
        dc.FillRect(TRect(box.left, box.top, box.left + 1, box.bottom), TBrush(topLeft));
        dc.FillRect(TRect(box.left, box.bottom - 1, box.right, box.bottom), TBrush(bottomRight));
        dc.FillRect(TRect(box.right - 1, box.top, box.right, box.bottom), TBrush(bottomRight));
    };
    switch (BorderStyle) {
    case Plain:
        ControlLook::DrawBorder(dc, r, ControlLook::GetColor(COLOR_WINDOWFRAME));
        break;
    case Raised:
        edges(r, light, dark);
        break;
    case Recessed:
        edges(r, dark, light);
        break;
    case Embossed:
        edges(r, dark, light);
        edges(r.InflatedBy(-1, -1), light, dark);
        break;
    default:
        break;
    }
}

void TGadget::MouseEnter(UINT, const TPoint&)
{}

void TGadget::MouseMove(UINT, const TPoint&)
{}

void TGadget::MouseLeave(UINT, const TPoint&)
{}

void TGadget::LButtonDown(UINT, const TPoint&)
{}

void TGadget::LButtonUp(UINT, const TPoint&)
{}
