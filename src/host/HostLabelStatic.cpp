#include "host/HostLabelStatic.h"

#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"

namespace {

// Black on a light background, white on a dark one, by the background's brightness (the
// weights of the eye's response to red, green and blue, out of 1000).
TColor TextColorOn(const TColor& background)
{
    const int brightness =
        (299 * background.Red() + 587 * background.Green() + 114 * background.Blue()) / 1000;
    return brightness >= 128 ? TColor(0, 0, 0) : TColor(255, 255, 255);
}

} // namespace

HostLabelStatic::HostLabelStatic(TWindow* parent, int id, const std::string& text,
                                 const TColor& background)
    : TStatic(parent, id, text.c_str(), 0, 0, 0, 0), Background(background)
{
    Attr.Style = (Attr.Style & ~SS_TYPEMASK) | SS_LEFTNOWORDWRAP | SS_NOPREFIX;
}

void HostLabelStatic::SetBackground(const TColor& background)
{
    Background = background;
    Invalidate();
}

TSize HostLabelStatic::GetTextSize() const
{
    TMemoryDC dc;
    dc.SelectObject(GetWindowFont());
    return dc.GetTextExtent(GetWindowText());
}

void HostLabelStatic::Paint(TDC& dc, bool, TRect&)
{
    const TRect r = GetClientRect();
    dc.FillRect(r, TBrush(Background));
    dc.SelectObject(GetWindowFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(TextColorOn(Background));
    const std::string text = GetWindowText();
    dc.ExtTextOut(0, 0, ETO_CLIPPED, &r, text.c_str(), int(text.size()));
}
