// The printed star chart: what is on the page, and the preview, scaled into its window and drawn
// anew at each repaint. The heading's text in the written file is checked by the whole-program
// print test, the preview in the print dialog by the component window's print test.
#include <gtest/gtest.h>

#include <memory>

#include "MapFixture.h"
#include "host/ScopedHome.h"
#include "platform/TPrintDC.h"
#include "skyview/PrintPreviewWindow.h"

namespace {

// Orion with its stars and the grid, and an A4 printer at a low resolution, so that pages are
// quick, writing a PDF file into the test's folder.
class PrintPreviewTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        Make(200, 150, true).SetGridInfo(GridInfo(24, 36, true));
        pHost->Create();
        Pump();
    }
    std::unique_ptr<TPrintDC> Printer(int dpi)
    {
        TPrinter printer;
        EXPECT_TRUE(printer.SetResolution(dpi));
        printer.SetOutputFile(Dir.File("chart.pdf"));
        return printer.MakeDC();
    }

    ScopedHome Dir;
};

// Pixels of the page's rectangle that are the colour, or with `dark` dark greys.
int Count(const Surface& page, const TRect& area, COLORREF colour, bool dark = false)
{
    int n = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const COLORREF c = page.ColorAt(x, y);
            const bool grey = GetRValue(c) == GetGValue(c) && GetGValue(c) == GetBValue(c);
            n += dark ? grey && GetRValue(c) < 160 : c == colour;
        }
    }
    return n;
}

} // namespace

TEST_F(PrintPreviewTest, APageHasTheSkyDarkOnWhiteInAFrameAndTheCompassBelow)
{
    PrintPreviewWindow preview(nullptr, &Map(), Printer(100), 1);
    TPrintDC& dc = *preview.GetPrintDC();
    ASSERT_GT(dc.StartDoc(PrintPreviewWindow::kDocumentName), 0);
    ASSERT_GT(dc.StartPage(), 0);
    preview.DrawPage(dc);
    const Surface& page = dc.GetSurface();
    const TRect sky = preview.GetLayout().GetSkyRect();
    const TRect inside(sky.left + 1, sky.top + 1, sky.right - 1, sky.bottom - 1);
    EXPECT_EQ(page.ColorAt(sky.left, sky.top + 50), RGB(0, 0, 0));
    EXPECT_EQ(page.ColorAt(sky.right - 1, sky.top + 50), RGB(0, 0, 0));
    EXPECT_EQ(page.ColorAt(sky.left + 3, sky.bottom - 3), RGB(255, 255, 255));
    EXPECT_GT(Count(page, inside, RGB(0, 0, 255)), 500) << "the grid";
    EXPECT_GT(Count(page, inside, 0, true), 50) << "Orion's stars";
    EXPECT_EQ(Count(page, inside, RGB(255, 0, 0)), 0) << "no status line";
    EXPECT_GT(Count(page, preview.GetLayout().GetCompassRect(), RGB(255, 0, 255)), 100);
    EXPECT_GT(dc.EndPage(), 0);
    EXPECT_GT(dc.EndDoc(), 0);
    // The map is itself again.
    EXPECT_FALSE(Map().GetDisplayParameters().IsPrinting());
    EXPECT_EQ(Map().GetTransformation()->GetProjector().GetCenterPoint(), TPoint(100, 75));
}

TEST_F(PrintPreviewTest, ThePreviewKeepsThePagesShapeAndDrawsTheWholeSkyAnewAtEachRepaint)
{
    // 400 by 300 pixels at 96 dpi are 104 by 78 twenty-fifths of an inch; A4 (210 by 297) is
    // narrower, so the height stays; a tall room keeps its width instead.
    TWindow host(nullptr, "Preview host");
    // Owned by its parent window.
    auto* preview = new PrintPreviewWindow(&host, &Map(), Printer(300), 1);
    EXPECT_EQ(preview->GetPreviewSize(TSize(400, 300)), TSize(211, 299));
    EXPECT_EQ(preview->GetPreviewSize(TSize(200, 600)), TSize(199, 280));
    host.Create();
    const TSize size = preview->GetPreviewSize(TSize(380, 380));
    preview->MoveWindow(TRect(TPoint(10, 10), size));
    preview->Show(SW_SHOW);
    const int changes = pHost->nFieldChanges;
    Pump();
    // The compass in the band, 600 of 3508 printer pixels from the bottom.
    auto picture = WindowSystem::Get().CaptureWindow(preview->HWindow);
    EXPECT_GT(Count(*picture, TRect(0, 2908 * size.cy / 3508, size.cx, size.cy), RGB(255, 0, 255)),
              20);
    preview->Invalidate();
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 4) << "the page's sky and the screen's, twice";
    host.Destroy();
}
