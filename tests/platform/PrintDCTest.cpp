// Printing: pages drawn on a printer context become pages of a PDF file of the paper's size,
// with their pixels as a picture and their text as text; the document calls refuse steps out
// of order; the preview context scales a page into a window; and the print dialog takes the
// user's paper, copies and file, and refuses what it cannot use.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

#include "PdfText.h"
#include "platform/PrintCalls.h"
#include "platform/PrintDialog.h"
#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TFont.h"
#include "platform/TPrintDC.h"
#include "platform/TPrintPreviewDC.h"
#include "platform/TPrinter.h"
#include "platform/WindowCalls.h"
#include "windows/HeadlessFixture.h"

namespace {

namespace fs = std::filesystem;

// Page `page` of a PDF at `dpi`, rasterised by pdftoppm: the colour of each pixel.
class Raster
{
public:
    Raster(const fs::path& pdf, int page, int dpi)
    {
        const std::string stem = pdf.string() + "-page";
        Poppler("pdftoppm", pdf.string(),
                "-r " + std::to_string(dpi) + " -f " + std::to_string(page) + " -l " +
                    std::to_string(page) + " -singlefile '" + stem + "'");
        std::ifstream in(stem + ".ppm", std::ios::binary);
        std::string magic;
        int maxValue = 0;
        in >> magic >> Width >> Height >> maxValue;
        in.get();
        Pixels.resize(magic == "P6" ? std::size_t(Width) * std::size_t(Height) * 3 : 0);
        in.read(reinterpret_cast<char*>(Pixels.data()), std::streamsize(Pixels.size()));
    }
    // The colour at (x, y), to within the last bit or two that scaling a picture may change.
    bool Near(int x, int y, COLORREF expected) const
    {
        const std::size_t i = (std::size_t(y) * std::size_t(Width) + std::size_t(x)) * 3;
        return std::abs(Pixels[i] - GetRValue(expected)) +
                   std::abs(Pixels[i + 1] - GetGValue(expected)) +
                   std::abs(Pixels[i + 2] - GetBValue(expected)) <=
               6;
    }
    int Width = 0;
    int Height = 0;
    std::vector<unsigned char> Pixels;
};

class PrintTest : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        std::string pattern = (fs::temp_directory_path() / "orbiscope-print-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        Dir = pattern;
        SavedDefault = TPrinter::Default();
    }
    void TearDown() override
    {
        TPrinter::Default() = SavedDefault;
        std::error_code ignored;
        fs::remove_all(Dir, ignored);
        HeadlessTest::TearDown();
    }

    // A printer of low resolution, so that pages are small and quick.
    TPrinter Printer(TPrinter::Paper paper, int dpi = 72) const
    {
        TPrinter printer;
        printer.SetPaper(paper);
        printer.SetResolution(dpi);
        printer.SetOutputFile(Chart());
        return printer;
    }
    std::string Chart() const { return (Dir / "chart.pdf").string(); }

    fs::path Dir;
    TPrinter SavedDefault;
};

TEST_F(PrintTest, ThePrinterAnswersForItsPaperAndResolution)
{
    const std::tuple<TPrinter::Paper, int, int, int, int> cases[] = {
        {TPrinter::Paper::A4, 2480, 3508, 210, 297},
        {TPrinter::Paper::Letter, 2550, 3300, 216, 279},
    };
    for (const auto& [paper, width, height, millimetresWide, millimetresHigh] : cases) {
        TPrintDC dc(Printer(paper, 300));
        EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), 300);
        EXPECT_EQ(TSize(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES)),
                  TSize(width, height));
        EXPECT_EQ(TSize(dc.GetDeviceCaps(HORZSIZE), dc.GetDeviceCaps(VERTSIZE)),
                  TSize(millimetresWide, millimetresHigh));
        EXPECT_EQ(dc.GetSurface().Width(), width);
    }
    TPrinter printer;
    EXPECT_FALSE(printer.SetResolution(10));
    EXPECT_FALSE(printer.SetResolution(5000));
    EXPECT_EQ(printer.GetResolution(), 300);
    TPrinter::Paper paper = TPrinter::Paper::A4;
    EXPECT_TRUE(TPrinter::PaperFromName("letter", paper));
    EXPECT_FALSE(TPrinter::PaperFromName("A5", paper));
    EXPECT_EQ(paper, TPrinter::Paper::Letter);
}

TEST_F(PrintTest, APageOnA4BecomesAPdfPageWithItsPictureAndText)
{
    {
        TPrintDC dc(Printer(TPrinter::Paper::A4, 300));
        ASSERT_GT(dc.StartDoc("NOX Planetarium"), 0);
        ASSERT_GT(dc.StartPage(), 0);
        // A red block in the top left quarter and a line of text in the bottom half.
        dc.FillRect(TRect(100, 100, 1200, 1700), TBrush(TColor(255, 0, 0)));
        dc.SelectObject(
            TFont("Arial", -100, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET));
        dc.SetBkMode(TRANSPARENT);
        dc.TextOut(300, 2500, std::string("Center Dec: +7\xB0 24' 25\""));
        dc.RestoreFont();
        // The text is kept as words, not drawn into the page's pixels.
        ASSERT_EQ(dc.GetTextRuns().size(), 1u);
        EXPECT_EQ(dc.GetTextRuns().front().PenX.front(), 300);
        for (int x = 300; x < 1500; x += 3) {
            ASSERT_EQ(dc.GetPixel(x, 2560), TColor(255, 255, 255)) << x;
        }
        ASSERT_GT(dc.EndPage(), 0);
        ASSERT_GT(dc.EndDoc(), 0);
    }
    EXPECT_EQ(PdfInfo(Chart(), "Pages"), "1");
    EXPECT_EQ(PdfInfo(Chart(), "Page size"), "595.276 x 841.89 pts (A4)");
    EXPECT_EQ(PdfInfo(Chart(), "Title"), "NOX Planetarium");
    const std::string text = Poppler("pdftotext", Chart(), "-");
    EXPECT_NE(text.find("Center Dec: +7\xC2\xB0 24' 25\""), std::string::npos) << text;

    // At 30 dpi the page is a tenth of the printer's 2480 by 3508 pixels (pdftoppm rounds
    // the paper's 248.03 by 350.79 up).
    const Raster page(Chart(), 1, 30);
    ASSERT_EQ(TSize(page.Width, page.Height), TSize(249, 351));
    EXPECT_TRUE(page.Near(60, 80, RGB(255, 0, 0)));
    EXPECT_TRUE(page.Near(5, 5, RGB(255, 255, 255))) << "white paper";
    // The text darkens its row of the page, and only that.
    auto dark = [&](int top, int bottom) {
        int n = 0;
        for (int x = 30; x < 240; ++x) {
            for (int y = top; y < bottom; ++y) {
                n += page.Pixels[(std::size_t(y) * std::size_t(page.Width) + x) * 3] < 200;
            }
        }
        return n;
    };
    EXPECT_GT(dark(250, 262), 40);
    EXPECT_EQ(dark(265, 280), 0);
}

TEST_F(PrintTest, StepsOutOfOrderAreRefusedAndAnAbortedDocumentLeavesNoFile)
{
    TPrintDC dc(Printer(TPrinter::Paper::A4));
    EXPECT_EQ(dc.StartPage(), SP_ERROR) << "no document yet";
    EXPECT_EQ(dc.EndDoc(), SP_ERROR);
    EXPECT_EQ(dc.StartDoc("Nowhere", (Dir / "missing" / "chart.pdf").c_str()), SP_ERROR);
    ASSERT_GT(dc.StartDoc("Once"), 0);
    EXPECT_EQ(dc.StartDoc("Twice"), SP_ERROR);
    EXPECT_EQ(dc.EndPage(), SP_ERROR) << "no page yet";
    ASSERT_GT(dc.StartPage(), 0);
    EXPECT_EQ(dc.StartPage(), SP_ERROR);
    EXPECT_GT(dc.AbortDoc(), 0);
    EXPECT_FALSE(fs::exists(Chart()));
    EXPECT_EQ(dc.AbortDoc(), SP_ERROR);
    // EndDoc ends an open page, and a document left open ends with its last context.
    {
        TPrintDC open(Printer(TPrinter::Paper::A4));
        ASSERT_GT(open.StartDoc("Left open"), 0);
        ASSERT_GT(open.StartPage(), 0);
    }
    EXPECT_EQ(PdfInfo(Chart(), "Pages"), "1");
}

TEST_F(PrintTest, ThePreviewScalesThePrintersPageIntoTheWindow)
{
    // A window's surface, with a page of 100 by 141 pixels in it at (10, 20).
    Surface window(150, 200, PixelFormat::Rgb32);
    TDC screen(window);
    screen.FillRect(window.Bounds(), TBrush(TColor(128, 128, 128)));
    TPrintDC printer(Printer(TPrinter::Paper::A4, 300));
    const TRect client(10, 20, 110, 161);
    TPrintPreviewDC preview(screen, printer, client, window.Bounds());
    EXPECT_EQ(preview.GetDeviceCaps(HORZRES), 2480) << "the printer's answers";
    TPoint corners[2] = {TPoint(0, 0), TPoint(2480, 3508)};
    preview.LPtoDP(corners, 2);
    EXPECT_EQ(corners[0], client.TopLeft());
    EXPECT_EQ(corners[1], client.BottomRight());
    // The printer's top left quarter is the window's.
    preview.FillRect(TRect(0, 0, 1240, 1754), TBrush(TColor(0, 0, 0)));
    EXPECT_EQ(window.ColorAt(10, 20), RGB(0, 0, 0));
    EXPECT_EQ(window.ColorAt(59, 89), RGB(0, 0, 0));
    EXPECT_EQ(window.ColorAt(61, 89), RGB(128, 128, 128));
    EXPECT_EQ(window.ColorAt(9, 20), RGB(128, 128, 128));
    // Nothing lands outside the clip rectangle.
    TPrintPreviewDC part(screen, printer, client, TRect(0, 0, 150, 50));
    part.FillRect(TRect(0, 0, 2480, 3508), TBrush(TColor(255, 255, 255)));
    EXPECT_EQ(window.ColorAt(80, 49), RGB(255, 255, 255));
    EXPECT_EQ(window.ColorAt(80, 50), RGB(128, 128, 128));
}

TEST_F(PrintTest, ThePrintDialogTakesPaperCopiesAndFile)
{
    TPrinter::Default() = Printer(TPrinter::Paper::A4);
    const std::string chosen = (Dir / "mine.pdf").string();
    Desk().AnswerNextModal([&](TWindow& dialog) {
        EXPECT_EQ(IsDlgButtonChecked(dialog.HWindow, PrintDialog::kPaperA4Id), BST_CHECKED);
        EXPECT_EQ(GetDlgItemInt(dialog.HWindow, PrintDialog::kCopiesId, nullptr, FALSE), 2u);
        HeadlessBackend::PressButton(dialog, PrintDialog::kPaperLetterId);
        HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, "3");
        HeadlessBackend::TypeInto(dialog, PrintDialog::kFileId, chosen);
        HeadlessBackend::PressButton(dialog, IDOK);
    });
    PRINTDLGA pd{};
    pd.lStructSize = sizeof pd;
    pd.Flags = PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION;
    pd.nCopies = 2;
    ASSERT_TRUE(PrintDlgA(&pd));
    EXPECT_EQ(pd.nCopies, 3);
    ASSERT_NE(pd.hDC, nullptr);
    TPrintDC dc(pd.hDC, AutoDelete);
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), 612) << "letter at 72 dots per inch";
    EXPECT_EQ(dc.GetPrinter().GetOutputFile(), chosen);
    // The next print starts from these choices.
    EXPECT_EQ(TPrinter::Default().GetPaper(), TPrinter::Paper::Letter);
    EXPECT_EQ(TPrinter::Default().GetOutputFile(), chosen);
}

TEST_F(PrintTest, ThePrintDialogRefusesBadCopiesAndMissingFoldersUntilMended)
{
    TPrinter::Default() = Printer(TPrinter::Paper::A4);
    std::vector<std::string> messages;
    Desk().AnswerNextModal([&](TWindow& dialog) {
        for (const auto& [copies, file] : {std::pair{"0", Chart()},
                                           {"1", (Dir / "no" / "x.pdf").string()},
                                           {"1", std::string("  ")}}) {
            Desk().AnswerNextModal([&](TWindow& box) {
                messages.push_back(box.GetWindowText());
                HeadlessBackend::PressButton(box, IDOK);
            });
            HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, copies);
            HeadlessBackend::TypeInto(dialog, PrintDialog::kFileId, file);
            HeadlessBackend::PressButton(dialog, IDOK);
            EXPECT_TRUE(dialog.IsWindowVisible()) << copies << " copies into " << file;
        }
        HeadlessBackend::PressButton(dialog, IDCANCEL);
    });
    PRINTDLGA pd{};
    pd.lStructSize = sizeof pd;
    pd.Flags = PD_RETURNDC;
    EXPECT_FALSE(PrintDlgA(&pd));
    EXPECT_EQ(pd.hDC, nullptr);
    EXPECT_EQ(messages, std::vector<std::string>(3, "Print"));
    EXPECT_EQ(TPrinter::Default().GetOutputFile(), Chart()) << "a cancelled dialog changes nothing";
    EXPECT_FALSE(PrintDlgA(nullptr));
}

} // namespace
