#include "platform/TGroupBox.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TextLayout.h"

TGroupBox::TGroupBox(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
                     TModule* module)
    : TControl(parent, id, text, x, y, width, height, module)
{
    Attr.Style = (Attr.Style & ~WS_TABSTOP) | BS_GROUPBOX;
}

TGroupBox::TGroupBox(TWindow* parent, int resourceId, TModule* module)
    : TControl(parent, resourceId, module)
{
    Attr.Style |= BS_GROUPBOX;
}

void TGroupBox::Paint(TDC& dc, bool, TRect&)
{
    TColor background = PrepareColors(dc, WM_CTLCOLORSTATIC, ParentBackground());
    TRect r = GetClientRect();
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    int half = metrics.tmHeight / 2;
    ControlLook::DrawBorder(dc, TRect(r.left, r.top + half, r.right, r.bottom),
                            ControlLook::GetColor(COLOR_BTNSHADOW));
    std::string text = TextLayout::StripPrefix(GetWindowText());
    if (!text.empty()) {
        TSize extent = dc.GetTextExtent(text);
        TRect caption(8, 0, std::min(r.right - 2, 8 + extent.cx + 4), metrics.tmHeight);
        dc.FillRect(caption, TBrush(background));
        dc.SetTextColor(TextColor(dc));
        dc.ExtTextOut(10, 0, ETO_CLIPPED, &caption, text.c_str(), int(text.size()));
    }
}
