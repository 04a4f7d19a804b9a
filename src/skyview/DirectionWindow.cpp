#include "skyview/DirectionWindow.h"

#include "host/HostFrameAPI.h"
#include "host/HostProf.h"
#include "platform/HostPalette.h"
#include "platform/TBrush.h"
#include "platform/TClientDC.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"

namespace {

constexpr const char* kSection = "Orbiscope";

// The letters' font: Arial, 15 pixels high, normal weight, the default character set.
TFont LetterFont()
{
    return TFont("Arial", 15, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET);
}

TColor ProfileColor(const char* key, HostColor fallback)
{
    return TColor(HostProfile().GetColor(kSection, key, fallback));
}

} // namespace

DirectionWindow::DirectionWindow(TWindow* parent, UINT message)
    : TWindow(parent, "Direction Window"), TextFont(LetterFont()), nMessage(message)
{
    Attr.Style = WS_CHILD | WS_VISIBLE;

    HostFrameAPI* frame = getHostFrameAPI();
    const HostColor panel =
        frame ? HostColor(frame->GetColor(kHostColorPanelBackground).Rgb()) : HostRGB(0, 0, 0);
    Background = ProfileColor("BackgroundColor", panel);
    Drawer.SetTextColor(ProfileColor("DirectionTextColor", HostRGB(0, 0, 0)));
    Drawer.SetHorizonColor(ProfileColor("DirectionHorizonColor", HostRGB(255, 0, 255)));
    Drawer.SetFieldColor(ProfileColor("DirectionFieldColor", HostRGB(0, 0, 255)));
    Drawer.SetTextBackground(Background);

    // The letters are measured once, on the screen.
    TMemoryDC screen;
    Drawer.SetTextFont(TextFont, screen);
    Drawer.ShowHorizon(true);
}

const TResponseRow* DirectionWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &DirectionWindow::EvSize>(),
        EvRow<WM_ERASEBKGND, &DirectionWindow::EvEraseBkgnd>(),
        EvRow<WM_LBUTTONDOWN, &DirectionWindow::EvLButtonDown>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

void DirectionWindow::Set(const MapWindow& map)
{
    Drawer.Set(map);
    Invalidate(true);
}

void DirectionWindow::Paint(TDC& dc, bool, TRect& rect)
{
    HostFrameAPI* frame = getHostFrameAPI();
    const TPalette& palette = frame ? frame->GetPalette() : HostPalette();
    dc.SelectObject(palette);
    dc.RealizePalette();
    dc.FillRect(rect, TBrush(Background.PalRelative()));
    Drawer.Paint(dc, rect);
    dc.RestorePalette();
}

void DirectionWindow::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    Drawer.SetRect(GetClientRect());
}

bool DirectionWindow::EvEraseBkgnd(HDC)
{
    return true;
}

void DirectionWindow::EvLButtonDown(UINT, TPoint& point)
{
    if (!GetParentO() || nMessage == 0) {
        return;
    }
    TClientDC dc(*this);
    PolarCoord direction;
    if (Drawer.ScreenToPolar(dc, point, direction)) {
        Clicked = direction;
        GetParentO()->PostMessage(nMessage, 0, 0);
    }
}
