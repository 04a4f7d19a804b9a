#include "shell/SingleStarWindow.h"

#include "platform/TBrush.h"
#include "platform/TClientDC.h"
#include "skyview/StarDrawing.h"

SingleStarWindow::SingleStarWindow(TWindow* parent) : TWindow(parent, "Single Star Window")
{}

void SingleStarWindow::SetParameters(const StarDisplayParameters& parameters)
{
    if (!HWindow) {
        // Not on the screen yet: the screen's resolution is the one the window will have.
        Display.SetStarDisplayParams(parameters);
        return;
    }
    TClientDC dc(HWindow);
    Display.pDC = &dc;
    Display.SetStarDisplayParams(parameters);
    Display.pDC = nullptr;
}

bool SingleStarWindow::EvEraseBkgnd(HDC)
{
    return true;
}

void SingleStarWindow::Paint(TDC& dc, bool, TRect&)
{
    const TRect client = GetClientRect();
    dc.FillRect(client, TBrush(Display.IsPrinting() ? TColor::White : TColor::Black));

    // A window's surface has no bits to write into: every star goes through the surface.
    Display.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    Display.pDC = &dc;
    Display.SetDrawRect(client);
    const TPoint middle(client.Width() / 2, client.Height() / 2);
    TColor color;
    unsigned index = 0;
    Display.GetColorFromIntensity(Display.GetIntensityFromMagnitude(Magnitude), color, index);
    if (Display.GetShape() == StarDisplayParameters::kRayShape) {
        DrawRayStar(Display, middle.x, middle.y, Magnitude, color, index);
    } else {
        DrawRoundStar(Display, middle, Magnitude, color);
    }
    Display.pDC = nullptr;
}

const TResponseRow* SingleStarWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_ERASEBKGND, &SingleStarWindow::EvEraseBkgnd>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}
