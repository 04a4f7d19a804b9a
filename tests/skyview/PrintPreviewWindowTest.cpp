// The printed star chart: what is on the page (dark labels, lines a quarter millimetre wide, the
// ground light), the preview, scaled into its window and drawn anew at each repaint, and a
// chart that cannot be written. The heading's text in the written file is checked by the
// whole-program print test, the preview in the print dialog by the component window's print test.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "MapFixture.h"
#include "host/ScopedHome.h"
#include "platform/TPrintDC.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/DirectionDrawer.h"
#include "skyview/PrintPageLayout.h"
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
    std::unique_ptr<TPrintDC> Printer(int dpi, const std::string& file = "chart.pdf")
    {
        TPrinter printer;
        EXPECT_TRUE(printer.SetResolution(dpi));
        printer.SetOutputFile(Dir.File(file));
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

// The share of the runs of grid blue down the columns of a picture that are `shorter` pixels
// long or less: how many of its lines are that thin.
double ShareOfThinLines(const Surface& picture, int shorter)
{
    int runs = 0;
    int thin = 0;
    for (int x = 0; x < picture.Width(); ++x) {
        for (int y = 0, run = 0; y <= picture.Height(); ++y) {
            if (y < picture.Height() && picture.ColorAt(x, y) == RGB(0, 0, 255)) {
                ++run;
            } else if (run > 0) {
                ++runs;
                thin += run <= shorter;
                run = 0;
            }
        }
    }
    return runs > 0 ? double(thin) / runs : 1.0;
}

} // namespace

TEST_F(PrintPreviewTest, APageHasTheSkyDarkOnWhiteInAFrameAndTheCompassBelow)
{
    // From 40 N looking south, 30 degrees up at Canis Major and Orion, 30 to the nearer edge.
    Map().SetOrientation(RotatingOrientationInfo(
        Map().GetCollector().GetOrigin(), LatLong(40.0, 0.0), PolarCoord(180.0, 60.0), 30.0, true));
    Map().SetTime(AstroTime(1, 1, 2000, 0.0));
    Pump();
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
    EXPECT_EQ(page.ColorAt(sky.left + 3, sky.bottom - 3), RGB(224, 224, 224)) << "the ground";
    EXPECT_GT(Count(page, inside, RGB(0, 0, 255)), 500) << "the grid";
    EXPECT_GT(Count(page, inside, 0, true), 50) << "the stars";
    EXPECT_GT(Count(page, preview.GetLayout().GetCompassRect(), RGB(255, 0, 255)), 100);
    // On the compass, north up, the outline of the view south of the zenith is below the middle.
    const TRect disc = preview.GetDirection().GetCircleRect();
    const int middle = disc.top + disc.Height() / 2;
    EXPECT_EQ(Count(page, TRect(disc.left, disc.top, disc.right, middle), RGB(0, 0, 255)), 0);
    EXPECT_GT(Count(page, TRect(disc.left, middle, disc.right, disc.bottom), RGB(0, 0, 255)), 20);
    // The texts are laid over the page: no red status line, and the compass's letters with
    // north above south and west right of east, as the sky is seen looking up.
    std::map<std::string, const TextRun*> runs;
    for (const TextRun& run : dc.GetTextRuns()) {
        EXPECT_NE(run.Color, RGB(255, 0, 0)) << run.Text;
        runs[run.Text] = &run;
    }
    ASSERT_TRUE(runs.count("N") && runs.count("S") && runs.count("W") && runs.count("E"));
    EXPECT_LT(runs["N"]->Baseline, runs["S"]->Baseline);
    EXPECT_GT(runs["W"]->PenX.front(), runs["E"]->PenX.front());
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
    // Lines three printer dots wide are a pixel wide here, in proportion as on paper.
    EXPECT_LT(ShareOfThinLines(*picture, 2), 1.0);
    EXPECT_GT(ShareOfThinLines(*picture, 2), 0.9);
    preview->Invalidate();
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 4) << "the page's sky and the screen's, twice";
    host.Destroy();
    // Printing draws each copy anew.
    PrintPreviewWindow copies(nullptr, &Map(), Printer(72), 3);
    EXPECT_TRUE(copies.PrintCopies());
    EXPECT_EQ(copies.GetPrintDC()->GetPageCount(), 3);
}

TEST_F(PrintPreviewTest, LabelsPrintDarkAndLinesAQuarterMillimetreWideAtAnyResolution)
{
    // At the screen's own resolution the labels' fonts are the screen's: the white and light
    // yellow labels of the screen must still not be printed. At 300 dots per inch a line is 3
    // dots wide, not 1.
    StarDisplayParameters named = Map().GetDisplayParameters();
    named.SetLabelType(StarDisplayParameters::kPopularNameLabels);
    Map().SetStarDisplayParameters(named);
    Map().ShowMessierObjects(true);
    Pump();
    for (int dpi : {96, 300}) {
        PrintPreviewWindow preview(nullptr, &Map(), Printer(dpi), 1);
        TPrintDC& dc = *preview.GetPrintDC();
        ASSERT_GT(dc.StartDoc(PrintPreviewWindow::kDocumentName), 0);
        ASSERT_GT(dc.StartPage(), 0);
        preview.DrawPage(dc);
        std::map<std::string, COLORREF> colours;
        for (const TextRun& run : dc.GetTextRuns()) {
            colours[run.Text] = run.Color;
            EXPECT_LE(0.299 * GetRValue(run.Color) + 0.587 * GetGValue(run.Color) +
                          0.114 * GetBValue(run.Color),
                      80.0)
                << run.Text << " at " << dpi;
        }
        EXPECT_EQ(colours.count("Betelgeuse") + colours.count("M42"), 2u) << dpi;
        EXPECT_LT(ShareOfThinLines(dc.GetSurface(), dpi / 100 - 1), 0.02) << dpi;
        dc.EndDoc();
    }
}

TEST_F(PrintPreviewTest, AChartThatCannotBeWrittenIsReportedWithTheReason)
{
    PrintPreviewWindow preview(nullptr, &Map(), Printer(72, "no/such/folder/chart.pdf"), 1);
    std::string said;
    Desk().AnswerNextModal([&said](TWindow& box) {
        said = box.ChildWithId(-1)->GetWindowText();
        HeadlessBackend::PressButton(box, IDOK);
    });
    preview.Print();
    EXPECT_NE(said.find("could not be printed"), std::string::npos) << said;
    EXPECT_NE(said.find("No such file or directory"), std::string::npos) << said;
}

TEST(PrintPageLayout, OnASmallCardTheSkyKeepsMoreThanHalfThePage)
{
    // A card three by four inches: the band under the sky is a third of it, not two inches.
    Surface card(300, 400, PixelFormat::Rgb32);
    DeviceCaps caps;
    caps.LogPixelsX = caps.LogPixelsY = 100;
    caps.HorzRes = 300;
    caps.VertRes = 400;
    TDC dc(card, caps);
    DirectionDrawer compass;
    PrintPageLayout layout;
    layout.LayOut(dc, compass);
    EXPECT_GT(layout.GetSkyRect().Height(), 200);
    EXPECT_LE(layout.GetSkyRect().bottom, layout.GetCompassRect().top);
}
