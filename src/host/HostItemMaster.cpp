#include "host/HostItemMaster.h"

#include "host/HostFonts.h"
#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TFont.h"

namespace {

// The host's font for the text of lists.
constexpr int kListFont = 5;
// Pixels between the text and the row's left edge, and above and below the text.
constexpr int kTextMarginX = 2;
constexpr int kTextMarginY = 1;

} // namespace

HostItemMaster::HostItemMaster()
    : BackgroundListColor(ControlLook::GetColor(COLOR_WINDOW)),
      BackgroundHiliteColor(ControlLook::GetColor(COLOR_HIGHLIGHT)),
      TextColor(ControlLook::GetColor(COLOR_WINDOWTEXT)),
      TextHiliteColor(ControlLook::GetColor(COLOR_HIGHLIGHTTEXT)),
      TextGrayColor(ControlLook::GetColor(COLOR_GRAYTEXT))
{}

void HostItemMaster::reset()
{
    nPrepared = -1;
    Text.clear();
    nWidth = 0;
    bReady = false;
}

void HostItemMaster::SetPrepared(int row, const std::string& text) const
{
    nPrepared = row;
    Text = text;
    nWidth = 0;
    bReady = true;
}

const TFont& HostItemMaster::getFont() const
{
    return *getHostFont(APP_FONTS, kListFont);
}

TSize HostItemMaster::getSize(const TDC& dc) const
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    if (bReady && nWidth == 0 && !Text.empty()) {
        nWidth = dc.GetTextExtent(Text).cx;
    }
    return TSize((bReady ? nWidth : 0) + 2 * kTextMarginX, metrics.tmHeight + 2 * kTextMarginY);
}

void HostItemMaster::PaintText(TDC& dc, const TRect& rect, bool selected) const
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(!bEnabled ? TextGrayColor : selected ? TextHiliteColor : TextColor);
    dc.ExtTextOut(rect.left + kTextMarginX, rect.top + kTextMarginY, ETO_CLIPPED, &rect,
                  Text.c_str(), int(Text.size()));
}

void HostItemMaster::paint(TDC& dc, const TRect& rect, bool selected, bool focused) const
{
    dc.FillRect(rect, TBrush(selected ? BackgroundHiliteColor : BackgroundListColor));
    PaintText(dc, rect, selected);
    if (focused) {
        ControlLook::DrawFocus(dc, rect);
    }
}

std::string HostItemMaster::GetItemText(int row) const
{
    return prepare(row) ? Text : std::string();
}

int HostItemMaster::GetItemHeight(const TDC& dc) const
{
    return getSize(dc).cy;
}

void HostItemMaster::PaintItem(TDC& dc, int row, const TRect& rect, bool selected, bool focused)
{
    if (prepare(row)) {
        dc.SelectObject(getFont());
        paint(dc, rect, selected, focused);
    }
}
