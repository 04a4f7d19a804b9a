// The printed star chart: the chart's own parameters, the page the map draws for it, the
// heading, printing all copies, what happens without a printer or with one that refuses, and
// the preview, scaled into its window and drawn anew at each repaint.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>

#include "MapFixture.h"
#include "platform/PrintDialog.h"
#include "platform/TPrintDC.h"
#include "skyview/PrintPreviewWindow.h"

namespace {

namespace fs = std::filesystem;

// The status line's red.
constexpr COLORREF kStatusRed = RGB(255, 0, 0);

// A top-level window that holds a preview.
class PreviewHost : public TWindow
{
public:
    PreviewHost() : TWindow(nullptr, "Preview host")
    {
        Attr.X = 300;
        Attr.Y = 10;
        Attr.W = 400;
        Attr.H = 400;
    }
};

class PrintPreviewTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        std::string pattern = (fs::temp_directory_path() / "orbiscope-chart-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        Dir = pattern;
        SavedDefault = TPrinter::Default();
    }
    void TearDown() override
    {
        pPreview.reset();
        if (pPreviewHost) {
            pPreviewHost->Destroy();
            pPreviewHost.reset();
        }
        TPrinter::Default() = SavedDefault;
        std::error_code ignored;
        fs::remove_all(Dir, ignored);
        MapTest::TearDown();
    }

    // A4 at a low resolution, so that pages are quick.
    std::unique_ptr<TPrintDC> Printer(int dpi = 100, const std::string& file = "chart.pdf")
    {
        TPrinter printer;
        EXPECT_TRUE(printer.SetResolution(dpi));
        printer.SetOutputFile((Dir / file).string());
        return printer.MakeDC();
    }

    // The map's view of Orion at a fixed moment, seen from a named place.
    MapWindow& OpenMap(bool withStars = false)
    {
        MapWindow& map = Open(200, 150, withStars);
        map.SetTime(AstroTime(3, 3, 1999, 21.5));
        map.SetLocationName("Tucson");
        Pump();
        return map;
    }

    PrintPreviewWindow& MakePreview(std::unique_ptr<TPrintDC> printer, int copies = 1)
    {
        pPreview =
            std::make_unique<PrintPreviewWindow>(nullptr, &Map(), std::move(printer), copies);
        return *pPreview;
    }

    fs::path Dir;
    TPrinter SavedDefault;
    std::unique_ptr<PrintPreviewWindow> pPreview;
    std::unique_ptr<PreviewHost> pPreviewHost;
};

TEST_F(PrintPreviewTest, TheChartHasItsOwnParametersForPaper)
{
    MapWindow& map = OpenMap();
    PrintPreviewWindow& preview = MakePreview(Printer());
    const DisplayParameters& chart = preview.GetDisplayParameters();
    EXPECT_TRUE(chart.IsPrinting());
    EXPECT_FALSE(chart.bShowStatus);
    EXPECT_EQ(chart.pFastBits, nullptr);
    EXPECT_EQ(chart.GetShape(), StarDisplayParameters::kRoundShape);
    EXPECT_EQ(preview.GetWindowText(), "Print Window");

    // Star settings changed for the chart stay off the map.
    StarDisplayParameters brighter = chart;
    brighter.SetLimitingMagnitude(3.0);
    preview.SetStarDisplayParameters(brighter);
    EXPECT_EQ(preview.GetDisplayParameters().GetLimitingMagnitude(), 3.0);
    EXPECT_EQ(map.GetDisplayParameters().GetLimitingMagnitude(), -30.0);
    EXPECT_FALSE(map.GetDisplayParameters().IsPrinting());
    EXPECT_EQ(map.GetDisplayParameters().GetShape(), StarDisplayParameters::kRayShape);
}

TEST_F(PrintPreviewTest, TheHeadingTellsTimePlaceFieldAndCentre)
{
    OpenMap();
    PrintPreviewWindow& preview = MakePreview(Printer());
    // Orion at RA 84, Dec 0, 45 degrees to the nearer edge, at 21:30 UT with no zone.
    const std::vector<std::string> heading = preview.MakeHeading();
    ASSERT_EQ(heading.size(), 5u);
    EXPECT_EQ(heading[0], "9:30:00pm March 3, 1999");
    EXPECT_EQ(heading[1], "Tucson");
    EXPECT_EQ(heading[2], "Minimum field Of View: 45\xB0");
    EXPECT_EQ(heading[3], "Center RA: 05h 36m 00.0s");
    EXPECT_EQ(heading[4], "Center Dec: + 00\xB0 00' 00.0\"");

    Map().SetFieldRadius(12.5);
    EXPECT_EQ(preview.MakeHeading()[2], "Minimum field Of View: 12.5\xB0");
}

TEST_F(PrintPreviewTest, APageHasTheSkyOnWhiteTheCompassAndTheHeading)
{
    MapWindow& map = OpenMap(true);
    map.SetGridInfo(ShownGrid());
    Pump();
    PrintPreviewWindow& preview = MakePreview(Printer(100));
    TPrintDC& dc = *preview.GetPrintDC();
    ASSERT_GT(dc.StartDoc(PrintPreviewWindow::kDocumentName), 0);
    ASSERT_GT(dc.StartPage(), 0);
    const int changes = pHost->nFieldChanges;
    preview.DrawPage(dc);
    const Surface& page = dc.GetSurface();
    const PrintPageLayout& layout = preview.GetLayout();
    const TRect sky = layout.GetSkyRect();

    // The sky was drawn for the page with a projection of its own, and the screen's was made
    // again after it: two new projections.
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 2);
    // Framed in black, on white paper, with the grid and dark stars and no status line.
    EXPECT_EQ(page.ColorAt(sky.left, sky.top + 50), RGB(0, 0, 0));
    EXPECT_EQ(page.ColorAt(sky.right - 1, sky.top + 50), RGB(0, 0, 0));
    EXPECT_EQ(page.ColorAt(sky.left + 3, sky.bottom - 3), RGB(255, 255, 255));
    int grid = 0;
    int dark = 0;
    int red = 0;
    for (int y = sky.top + 1; y < sky.bottom - 1; ++y) {
        for (int x = sky.left + 1; x < sky.right - 1; ++x) {
            const COLORREF c = page.ColorAt(x, y);
            grid += c == RGB(0, 0, 255);
            dark +=
                GetRValue(c) < 160 && GetRValue(c) == GetGValue(c) && GetGValue(c) == GetBValue(c);
            red += c == kStatusRed;
        }
    }
    EXPECT_GT(grid, 500);
    EXPECT_GT(dark, 50) << "Orion's stars, dark on the paper";
    EXPECT_EQ(red, 0) << "no status line";

    // The compass below the sky, with its rim.
    const TRect compass = layout.GetCompassRect();
    EXPECT_EQ(compass.bottom, page.Height());
    int rim = 0;
    for (int y = compass.top; y < compass.bottom; ++y) {
        for (int x = compass.left; x < compass.right; ++x) {
            rim += page.ColorAt(x, y) == RGB(255, 0, 255);
        }
    }
    EXPECT_GT(rim, 100);
    EXPECT_EQ(preview.GetDirection().GetZenith(), map.GetOrientation().GetZenith());

    // The heading and the compass's letters are kept as text for the PDF: the five lines in
    // order, one under the other, in the band right of the compass.
    const std::vector<std::string> heading = preview.MakeHeading();
    const TRect text = layout.GetTextRect();
    std::vector<const TextRun*> lines;
    std::string letters;
    for (const TextRun& run : dc.GetTextRuns()) {
        if (run.Baseline > text.top && run.PenX.front() >= text.left) {
            lines.push_back(&run);
        } else if (run.Baseline > compass.top && run.PenX.front() < compass.right) {
            letters += run.Text;
        }
    }
    ASSERT_EQ(lines.size(), 5u);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(lines[i]->Text, heading[i]);
        EXPECT_LT(lines[i]->Baseline, text.bottom);
        EXPECT_EQ(lines[i]->Color, RGB(0, 0, 0));
        if (i > 0) {
            EXPECT_GT(lines[i]->Baseline, lines[i - 1]->Baseline);
        }
    }
    EXPECT_EQ(letters, "NWSE");

    // The map is itself again.
    EXPECT_FALSE(map.GetDisplayParameters().IsPrinting());
    ASSERT_GT(dc.EndPage(), 0);
    ASSERT_GT(dc.EndDoc(), 0);
}

TEST_F(PrintPreviewTest, EachCopyDrawsTheSkyAgain)
{
    OpenMap();
    PrintPreviewWindow& preview = MakePreview(Printer(72), 3);
    const int changes = pHost->nFieldChanges;
    EXPECT_TRUE(preview.PrintCopies());
    Pump();
    // Per page the page's projection and the screen's again.
    EXPECT_EQ(pHost->nFieldChanges, changes + 2 * 3);
    EXPECT_EQ(preview.GetPrintDC()->GetPageCount(), 3);
    EXPECT_TRUE(fs::exists(Dir / "chart.pdf"));
    EXPECT_FALSE(preview.IsPrinting());
}

TEST_F(PrintPreviewTest, APrinterThatRefusesPrintsNothingButTheUserIsStillTold)
{
    OpenMap();
    PrintPreviewWindow& preview = MakePreview(Printer(72, "missing/chart.pdf"));
    std::string text;
    std::string caption;
    Desk().AnswerNextModal([&](TWindow& box) {
        caption = box.GetWindowText();
        for (TWindow* child : box.GetChildren()) {
            text += child->GetWindowText();
        }
        HeadlessBackend::PressButton(box, IDOK);
    });
    preview.Print();
    EXPECT_EQ(preview.GetPrintDC()->GetPageCount(), 0);
    EXPECT_NE(text.find("The star chart has been sent to the printer."), std::string::npos);
    EXPECT_EQ(caption, "Planetarium ");
}

TEST_F(PrintPreviewTest, WithoutAPrinterNothingIsDrawnOrPrinted)
{
    OpenMap();
    PrintPreviewWindow& preview = MakePreview(nullptr);
    EXPECT_FALSE(preview.HasPrinter());
    EXPECT_EQ(preview.GetPreviewSize(TSize(400, 300)), TSize(0, 0));
    EXPECT_FALSE(preview.PrintCopies());
    preview.Print(); // no message either: there was nothing to print
}

TEST_F(PrintPreviewTest, TheUsersPrintDialogChoosesPrinterAndCopiesOrCancels)
{
    OpenMap();
    TPrinter::Default().SetOutputFile((Dir / "chosen.pdf").string());
    ASSERT_TRUE(TPrinter::Default().SetResolution(72));
    Desk().AnswerNextModal([](TWindow& dialog) {
        HeadlessBackend::PressButton(dialog, PrintDialog::kPaperLetterId);
        HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, "2");
        HeadlessBackend::PressButton(dialog, IDOK);
    });
    PrintPreviewWindow chosen(nullptr, &Map());
    ASSERT_TRUE(chosen.HasPrinter());
    EXPECT_EQ(chosen.GetCopies(), 2);
    EXPECT_EQ(chosen.GetPrintDC()->GetDeviceCaps(HORZRES), 612) << "Letter at 72 dpi";

    Desk().AnswerNextModal([](TWindow& dialog) { HeadlessBackend::PressButton(dialog, IDCANCEL); });
    PrintPreviewWindow cancelled(nullptr, &Map());
    EXPECT_FALSE(cancelled.HasPrinter());
}

TEST_F(PrintPreviewTest, ThePreviewKeepsThePagesShapeInTheRoomItHas)
{
    OpenMap();
    PrintPreviewWindow& preview = MakePreview(Printer(100));
    // 400 by 300 pixels at 96 dpi are 104 by 78 twenty-fifths of an inch; A4 (210 by 297)
    // is narrower, so the height stays and the width is 78 * 210 / 297.
    EXPECT_EQ(preview.GetPreviewSize(TSize(400, 300)), TSize(211, 299));
    // A tall room keeps its width instead.
    EXPECT_EQ(preview.GetPreviewSize(TSize(200, 600)), TSize(199, 280));
    EXPECT_EQ(preview.GetPreviewSize(TSize(0, 300)), TSize(0, 0));
}

TEST_F(PrintPreviewTest, APreviewRepaintDrawsTheWholePageScaledIntoTheWindow)
{
    OpenMap();
    pPreviewHost = std::make_unique<PreviewHost>();
    pPreview = std::make_unique<PrintPreviewWindow>(pPreviewHost.get(), &Map(), Printer(300), 1);
    PrintPreviewWindow& preview = *pPreview;
    pPreviewHost->Create();
    const TSize size = preview.GetPreviewSize(TSize(380, 380));
    preview.MoveWindow(TRect(TPoint(10, 10), size));
    preview.Show(SW_SHOW);
    const int changes = pHost->nFieldChanges;
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 2);

    auto picture = WindowSystem::Get().CaptureWindow(preview.HWindow);
    ASSERT_EQ(picture->Width(), size.cx);
    // Framed in black, white paper inside.
    EXPECT_EQ(picture->ColorAt(0, size.cy / 2), RGB(0, 0, 0));
    EXPECT_EQ(picture->ColorAt(size.cx - 1, size.cy / 2), RGB(0, 0, 0));
    EXPECT_EQ(picture->ColorAt(size.cx / 2, 0), RGB(0, 0, 0));
    EXPECT_EQ(picture->ColorAt(10, 10), RGB(255, 255, 255));
    // The sky's frame along its bottom, 2848 of 3508 printer pixels down.
    const int skyBottom = 2848 * size.cy / 3508;
    int frame = 0;
    for (int y = skyBottom - 2; y <= skyBottom + 1; ++y) {
        frame += picture->ColorAt(size.cx / 2, y) == RGB(0, 0, 0);
    }
    EXPECT_EQ(frame, 1);
    // The page's layout in printer units, landing scaled: the band's top at 600 of 3508
    // pixels from the bottom.
    EXPECT_EQ(preview.GetLayout().GetCompassRect().top, 3508 - 600);
    const int bandTop = (3508 - 600) * size.cy / 3508;
    int magenta = 0;
    for (int y = bandTop - 1; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            magenta += picture->ColorAt(x, y) == RGB(255, 0, 255);
        }
    }
    EXPECT_GT(magenta, 20) << "the compass in the band";

    // Each repaint draws the sky again; the map keeps its own parameters.
    preview.Invalidate();
    Pump();
    EXPECT_EQ(pHost->nFieldChanges, changes + 4);
    EXPECT_FALSE(Map().GetDisplayParameters().IsPrinting());
}

} // namespace
