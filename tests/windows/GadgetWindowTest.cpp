// Gadget windows: gadgets tiled in a column or a row, sizes that shrink-wrap, painting, and a
// bar of picture buttons that sends its commands.
#include <string>
#include <vector>

#include "HeadlessFixture.h"
#include "platform/TBrush.h"
#include "platform/TButtonGadget.h"
#include "platform/TControlBar.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindow.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TSeparatorGadget.h"

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

// A frame that keeps the commands its bar sends.
class Frame : public TWindow
{
public:
    Frame() : TWindow(nullptr, "Frame")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = 300;
        Attr.H = 200;
    }
    std::vector<int> Commands;
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == WM_COMMAND) {
            Commands.push_back(LOWORD(wParam));
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
};

// A small picture of one colour, in the form of a 24-bit BMP.
TDib Swatch(int size, TColor color)
{
    TDib dib(size, size, 0);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            BYTE* row =
                static_cast<BYTE*>(dib.GetBits()) + std::size_t(dib.Pitch()) * std::size_t(y);
            row[x * 3] = color.Blue();
            row[x * 3 + 1] = color.Green();
            row[x * 3 + 2] = color.Red();
        }
    }
    return dib;
}

using Gadgets = HeadlessTest;

TEST_F(Gadgets, VerticalTilingStacksGadgetsAsWideAsTheWindow)
{
    Frame frame;
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
    EXPECT_EQ(time.GetInnerRect(), TRect(3, 3, 117, 33));
    auto picture = WindowSystem::Get().CaptureWindow(window->HWindow);
    EXPECT_EQ(picture->ColorAt(60, 20), RGB(255, 0, 0));
    EXPECT_EQ(picture->ColorAt(60, 45), RGB(0, 0, 255));

    // A gadget put before another moves it down; one that goes leaves its place.
    Block position(1, TSize(10, 10), TColor(0, 255, 0));
    window->Insert(position, TGadgetWindow::Before, &time);
    EXPECT_EQ(window->FirstGadget(), &position);
    EXPECT_EQ(time.GetBounds().top, 2 + 12);
    window->Remove(position);
    EXPECT_EQ(time.GetBounds().top, 2);
    EXPECT_EQ(window->GadgetWithId(4), &moon);
    EXPECT_EQ(window->GadgetFromPoint(TPoint(60, 40)), &moon);

    // Invalidating one gadget paints that one alone.
    Pump();
    int timePaints = time.nPaints;
    int moonPaints = moon.nPaints;
    moon.Invalidate();
    Pump();
    EXPECT_EQ(time.nPaints, timePaints);
    EXPECT_EQ(moon.nPaints, moonPaints + 1);
    frame.Destroy();
}

TEST_F(Gadgets, GadgetThatGoesLeavesItsWindow)
{
    TGadgetWindow window(nullptr, TGadgetWindow::Horizontal);
    window.Attr.W = 200;
    window.Attr.H = 40;
    window.Create();
    {
        Block temporary(9, TSize(20, 20), TColor::Black);
        window.Insert(temporary);
        EXPECT_EQ(window.GadgetCount(), 1);
    }
    EXPECT_EQ(window.GadgetCount(), 0);
    window.Insert(std::make_unique<Block>(10, TSize(20, 20), TColor::Black));
    EXPECT_EQ(window.GadgetCount(), 1) << "an owned gadget goes with the window";
    window.Destroy();
}

TEST_F(Gadgets, WideGadgetTakesWhatTheOthersLeave)
{
    TGadgetWindow window(nullptr, TGadgetWindow::Horizontal);
    window.Attr.W = 200;
    window.Attr.H = 30;
    Block left(1, TSize(20, 10), TColor::Black);
    Block wide(2, TSize(0, 10), TColor::Black);
    TSeparatorGadget gap(8);
    Block right(3, TSize(30, 10), TColor::Black);
    wide.WideAsPossible = true;
    window.Insert(left);
    window.Insert(wide);
    window.Insert(gap);
    window.Insert(right);
    window.Create();
    EXPECT_EQ(left.GetBounds(), TRect(2, 2, 24, 28));
    EXPECT_EQ(wide.GetBounds(), TRect(24, 2, 24 + 196 - 22 - 8 - 32, 28));
    EXPECT_EQ(right.GetBounds().right, 198);
    window.Destroy();
}

TEST_F(Gadgets, ControlBarOfPictureButtonsSendsItsCommands)
{
    Frame frame;
    auto* bar = new TControlBar(&frame);
    TButtonGadget zoomIn(Swatch(16, TColor(255, 0, 0)), 0x3EC);
    TButtonGadget zoomOut(Swatch(16, TColor(0, 255, 0)), 0x3ED);
    TButtonGadget outline(Swatch(16, TColor(0, 0, 255)), 0x3EE, TButtonGadget::NonExclusive);
    bar->Insert(zoomIn);
    bar->Insert(zoomOut);
    bar->Insert(outline);
    frame.Create();
    Pump();
    // Shrink-wrapped: three buttons of a 16-pixel picture, 2 of margin and 1 of border each.
    EXPECT_EQ(bar->GetClientRect().Size(), TSize(2 + 3 * 22 + 2, 2 + 22 + 2));
    auto picture = WindowSystem::Get().CaptureWindow(bar->HWindow);
    EXPECT_EQ(picture->ColorAt(2 + 11, 2 + 11), RGB(255, 0, 0));
    EXPECT_EQ(picture->ColorAt(2 + 22 + 11, 2 + 11), RGB(0, 255, 0));

    Desk().Click(*bar, TPoint(2 + 11, 13));
    Desk().Click(*bar, TPoint(2 + 44 + 11, 13));
    EXPECT_EQ(frame.Commands, (std::vector<int>{0x3EC, 0x3EE}));
    EXPECT_EQ(outline.GetButtonState(), TButtonGadget::Down);

    // A press that leaves the button before the release does nothing.
    Desk().MouseDown(bar->ClientToScreen(TPoint(2 + 22 + 11, 13)));
    EXPECT_TRUE(zoomOut.IsPressed());
    Desk().MouseMove(bar->ClientToScreen(TPoint(250, 150)));
    EXPECT_FALSE(zoomOut.IsPressed());
    Desk().MouseUp(bar->ClientToScreen(TPoint(250, 150)));
    EXPECT_EQ(frame.Commands.size(), 2u);

    // A disabled button takes no clicks, and a new picture shows.
    zoomIn.SetEnabled(false);
    Desk().Click(*bar, TPoint(2 + 11, 13));
    EXPECT_EQ(frame.Commands.size(), 2u);
    outline.SetGlyph(Swatch(16, TColor(255, 255, 0)));
    Pump();
    picture = WindowSystem::Get().CaptureWindow(bar->HWindow);
    EXPECT_EQ(picture->ColorAt(2 + 44 + 12, 2 + 12), RGB(255, 255, 0));
    frame.Destroy();
}

TEST_F(Gadgets, WindowFontSetsTheLineHeight)
{
    TGadgetWindowFont eight(8, false, false);
    TGadgetWindowFont twelveBold(12, true, false);
    TGadgetWindowFont fixed(8, false, true);
    EXPECT_EQ(eight.GetHeight(), -11);
    EXPECT_EQ(twelveBold.GetHeight(), -16);
    EXPECT_EQ(twelveBold.GetLogFont().lfWeight, FW_BOLD);
    EXPECT_EQ(fixed.GetFaceName(), "Courier New");
    TGadgetWindow window(nullptr, TGadgetWindow::Vertical, &twelveBold);
    TGadgetWindow small(nullptr, TGadgetWindow::Vertical, &eight);
    EXPECT_GT(window.GetFontHeight(), small.GetFontHeight());
}

} // namespace
