// Gadget windows, as the status panel is one: gadgets tiled in a column, a gadget that goes
// leaving its place, and painting one gadget alone.
#include <vector>

#include "HeadlessFixture.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindow.h"

namespace {

// A gadget of a fixed content size that fills itself with a colour.
class Block : public TGadget
{
public:
    Block(int id, TSize content, TColor color) : TGadget(id, Plain), Content(content), Color(color)
    {}
    TSize Content;
    TColor Color;
    int nPaints = 0;
    void GetDesiredSize(TSize& size) override
    {
        TGadget::GetDesiredSize(size);
        size.cx += Content.cx;
        size.cy += Content.cy;
    }
    void Paint(TDC& dc) override
    {
        ++nPaints;
        dc.FillRect(GetInnerRect(), TBrush(Color));
        PaintBorder(dc);
    }
};

using Gadgets = HeadlessTest;

TEST_F(Gadgets, VerticalTilingStacksGadgetsAsWideAsTheWindowAndPaintsOneAlone)
{
    TWindow frame(nullptr, "Frame");
    auto* window = new TGadgetWindow(&frame, TGadgetWindow::Vertical);
    window->Attr.W = 120;
    window->Attr.H = 180;
    Block time(2, TSize(50, 30), TColor(255, 0, 0));
    Block moon(4, TSize(60, 20), TColor(0, 0, 255));
    window->Insert(time);
    window->Insert(moon);
    frame.Create();
    Pump();
    EXPECT_EQ(time.GetBounds(), TRect(2, 2, 118, 2 + 32)) << "margins of 2, borders of 1";
    EXPECT_EQ(moon.GetBounds(), TRect(2, 34, 118, 34 + 22));
    auto picture = WindowSystem::Get().CaptureWindow(window->HWindow);
    EXPECT_EQ(picture->ColorAt(60, 20), RGB(255, 0, 0));
    EXPECT_EQ(picture->ColorAt(60, 45), RGB(0, 0, 255));

    // A gadget put before another moves it down; one that goes leaves its place.
    Block position(1, TSize(10, 10), TColor(0, 255, 0));
    window->Insert(position, TGadgetWindow::Before, &time);
    EXPECT_EQ(time.GetBounds().top, 2 + 12);
    window->Remove(position);
    EXPECT_EQ(time.GetBounds().top, 2);
    EXPECT_EQ(window->GadgetFromPoint(TPoint(60, 40)), &moon);
    {
        Block temporary(9, TSize(20, 20), TColor::Black);
        window->Insert(temporary);
    }
    EXPECT_EQ(window->GadgetCount(), 2) << "a gadget that goes leaves its window";
    Pump();
    const int timePaints = time.nPaints;
    const int moonPaints = moon.nPaints;
    moon.Invalidate();
    Pump();
    EXPECT_EQ(time.nPaints, timePaints);
    EXPECT_EQ(moon.nPaints, moonPaints + 1);
    frame.Destroy();
}

} // namespace
