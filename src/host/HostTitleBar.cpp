#include "host/HostTitleBar.h"

#include "catalogues/StringParser.h"
#include "host/HostFrameAPI.h"
#include "host/HostStringTable.h"
#include "platform/ControlLook.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TDib.h"
#include "platform/TFont.h"
#include "platform/TextLayout.h"

namespace {

// The frame's colours of the strip: the panels' background and text.
constexpr int kBackgroundColor = kHostColorPanelBackground;
constexpr int kTextColor = 12;
// The icon's side on the strip, the margins round it and the menu button's width.
constexpr int kIconSide = 24;
constexpr int kMargin = 3;
constexpr int kButtonWidth = 70;
// How long a note stands, in milliseconds, and the timer that takes it away.
constexpr UINT kNoteTime = 4000;
constexpr UINT_PTR kNoteTimer = 1;

TColor FrameColor(int index, COLORREF fallback)
{
    HostFrameAPI* frame = getHostFrameAPI();
    return frame ? frame->GetColor(index) : TColor(fallback);
}

} // namespace

HostTitleBar::HostTitleBar(TWindow* parent) : TWindow(parent)
{
    Attr.H = kHeight;
    SetBkgndColor(FrameColor(kBackgroundColor, RGB(0, 0, 0)));
}

void HostTitleBar::Initialize(const TDib* icon, const std::string& title, int fontHeight, int)
{
    pIcon = icon;
    Title = StripBlanks(title);
    nFontHeight = fontHeight > 0 ? fontHeight : 13;
    Invalidate();
}

void HostTitleBar::ShowNote(const std::string& note)
{
    Note = note;
    if (HWindow) {
        SetTimer(kNoteTimer, kNoteTime);
        Invalidate();
    }
}

TRect HostTitleBar::GetMenuButtonRect() const
{
    const TRect client = GetClientRect();
    return TRect(client.right - kButtonWidth - kMargin, kMargin, client.right - kMargin,
                 client.bottom - kMargin);
}

TPoint HostTitleBar::GetMenuPoint() const
{
    const TRect button = GetMenuButtonRect();
    return ClientToScreen(TPoint(button.right, GetClientRect().bottom));
}

void HostTitleBar::Paint(TDC& dc, bool, TRect&)
{
    const TRect client = GetClientRect();
    int x = kMargin;
    if (pIcon && pIcon->IsOK()) {
        const int top = (client.Height() - kIconSide) / 2;
        dc.StretchDIBits(TRect(x, top, x + kIconSide, top + kIconSide),
                         TRect(TPoint(0, 0), pIcon->Size()), *pIcon);
        x += kIconSide + 2 * kMargin;
    }
    const TRect button = GetMenuButtonRect();
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(FrameColor(kTextColor, RGB(255, 255, 255)));
    dc.SelectObject(TFont("Arial", -nFontHeight, 0, 0, 0, FW_BOLD));
    const UINT line = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;
    const TRect title(x, 0, button.left - kMargin, client.bottom);
    const TextLayout titleLayout(dc, Title, title.Width(), line);
    titleLayout.Draw(dc, title);
    if (!Note.empty()) {
        const int after = x + titleLayout.GetWidth() + 6 * kMargin;
        dc.SelectObject(TFont("Arial", -nFontHeight));
        const TRect note(after, 0, button.left - kMargin, client.bottom);
        TextLayout(dc, Note, note.Width(), line).Draw(dc, note);
    }

    ControlLook::DrawButtonFace(dc, button, false, false, true);
    dc.SetTextColor(TColor(ControlLook::GetColor(COLOR_BTNTEXT)));
    dc.SelectObject(ControlLook::GetFont());
    const TRect label(button.left + 6, button.top, button.right - 16, button.bottom);
    TextLayout(dc, replaceHostString(1, "STID_TITLE_MENU_BUTTON"), label.Width(), line)
        .Draw(dc, label);
    const int middle = (button.top + button.bottom) / 2;
    ControlLook::DrawArrow(dc, TRect(button.right - 16, middle - 4, button.right - 6, middle + 4),
                           false, ControlLook::GetColor(COLOR_BTNTEXT));
}

void HostTitleBar::EvLButtonDown(UINT, TPoint& point)
{
    if (GetMenuButtonRect().Contains(point) && OpenMenu) {
        OpenMenu(GetMenuPoint(), true);
    }
}

void HostTitleBar::EvRButtonUp(UINT, TPoint& point)
{
    if (OpenMenu) {
        OpenMenu(ClientToScreen(point), false);
    }
}

void HostTitleBar::EvTimer(UINT id)
{
    if (id == kNoteTimer) {
        KillTimer(kNoteTimer);
        Note.clear();
        Invalidate();
    }
}

const TResponseRow* HostTitleBar::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_LBUTTONDOWN, &HostTitleBar::EvLButtonDown>(),
        EvRow<WM_RBUTTONUP, &HostTitleBar::EvRButtonUp>(),
        EvRow<WM_TIMER, &HostTitleBar::EvTimer>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}
