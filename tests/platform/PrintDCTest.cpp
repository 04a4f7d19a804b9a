// Printing: pages drawn on a printer context become pages of a PDF file of the paper's size,
// with their pixels as a picture and their text as text; the document calls refuse steps out
// of order; the preview context scales a page into a window; and the print dialog takes the
// user's paper, copies and file.
//
// The PDF files are read back with poppler's pdfinfo, pdftotext and pdftoppm.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Gdi.h"
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

// What a command writes to its standard output.
std::string Output(const std::string& command)
{
    std::string text;
    if (FILE* pipe = ::popen((command + " 2>/dev/null").c_str(), "r")) {
        char buffer[4096];
        std::size_t n;
        while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
            text.append(buffer, n);
        }
        ::pclose(pipe);
    }
    return text;
}

std::string Quoted(const fs::path& path)
{
    std::string quoted(1, '\'');
    quoted.append(path.string()).push_back('\'');
    return quoted;
}

// A PDF page rasterised by pdftoppm into RGB pixels.
struct Raster
{
    int Width = 0;
    int Height = 0;
    std::vector<unsigned char> Pixels;

    COLORREF At(int x, int y) const
    {
        const std::size_t i = (std::size_t(y) * std::size_t(Width) + std::size_t(x)) * 3;
        return RGB(Pixels[i], Pixels[i + 1], Pixels[i + 2]);
    }
};

// Page `page` of the file at `dpi` as a binary PPM, read back.
Raster Rasterise(const fs::path& pdf, int page, int dpi, const fs::path& dir)
{
    const fs::path stem = dir / "page";
    Output("pdftoppm -r " + std::to_string(dpi) + " -f " + std::to_string(page) + " -l " +
           std::to_string(page) + " -singlefile " + Quoted(pdf) + " " + Quoted(stem));
    Raster raster;
    std::ifstream in(stem.string() + ".ppm", std::ios::binary);
    std::string magic;
    int maxValue = 0;
    in >> magic >> raster.Width >> raster.Height >> maxValue;
    in.get();
    if (magic != "P6" || maxValue != 255) {
        return Raster();
    }
    raster.Pixels.resize(std::size_t(raster.Width) * std::size_t(raster.Height) * 3);
    in.read(reinterpret_cast<char*>(raster.Pixels.data()), std::streamsize(raster.Pixels.size()));
    return raster;
}

// Colours the same but for the last bit or two that scaling a picture down may change.
::testing::AssertionResult Near(COLORREF actual, COLORREF expected)
{
    const int off = std::abs(GetRValue(actual) - GetRValue(expected)) +
                    std::abs(GetGValue(actual) - GetGValue(expected)) +
                    std::abs(GetBValue(actual) - GetBValue(expected));
    if (off <= 6) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "RGB(" << int(GetRValue(actual)) << ", " << int(GetGValue(actual)) << ", "
           << int(GetBValue(actual)) << ")";
}

// The value of a "Name: value" line of pdfinfo.
std::string InfoLine(const std::string& info, const std::string& name)
{
    std::istringstream lines(info);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind(name + ":", 0) == 0) {
            const std::size_t start = line.find_first_not_of(' ', name.size() + 1);
            return start == std::string::npos ? std::string() : line.substr(start);
        }
    }
    return std::string();
}

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
    TPrinter Printer(TPrinter::Paper paper, int dpi = 100) const
    {
        TPrinter printer;
        printer.SetPaper(paper);
        printer.SetResolution(dpi);
        printer.SetOutputFile((Dir / "chart.pdf").string());
        return printer;
    }

    fs::path Dir;
    TPrinter SavedDefault;
};

TEST_F(PrintTest, ThePrinterAnswersForItsPaperAndResolution)
{
    TPrintDC a4(Printer(TPrinter::Paper::A4, 300));
    EXPECT_EQ(a4.GetDeviceCaps(LOGPIXELSX), 300);
    EXPECT_EQ(a4.GetDeviceCaps(LOGPIXELSY), 300);
    EXPECT_EQ(a4.GetDeviceCaps(HORZRES), 2480);
    EXPECT_EQ(a4.GetDeviceCaps(VERTRES), 3508);
    EXPECT_EQ(a4.GetDeviceCaps(HORZSIZE), 210);
    EXPECT_EQ(a4.GetDeviceCaps(VERTSIZE), 297);
    EXPECT_EQ(a4.GetSurface().Width(), 2480);
    EXPECT_FALSE(a4.GetSurface().IsIndexed());

    TPrintDC letter(Printer(TPrinter::Paper::Letter, 300));
    EXPECT_EQ(letter.GetDeviceCaps(HORZRES), 2550);
    EXPECT_EQ(letter.GetDeviceCaps(VERTRES), 3300);
    EXPECT_EQ(letter.GetDeviceCaps(HORZSIZE), 216);
    EXPECT_EQ(letter.GetDeviceCaps(VERTSIZE), 279);

    TPrinter printer;
    EXPECT_FALSE(printer.SetResolution(10));
    EXPECT_FALSE(printer.SetResolution(5000));
    EXPECT_EQ(printer.GetResolution(), 300);
    TPrinter::Paper paper = TPrinter::Paper::A4;
    EXPECT_TRUE(TPrinter::PaperFromName("letter", paper));
    EXPECT_EQ(paper, TPrinter::Paper::Letter);
    EXPECT_FALSE(TPrinter::PaperFromName("A5", paper));
    EXPECT_EQ(paper, TPrinter::Paper::Letter);
}

TEST_F(PrintTest, APageOnA4BecomesAPdfPageWithItsPictureAndText)
{
    const fs::path file = Dir / "chart.pdf";
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
        const TextRun& run = dc.GetTextRuns().front();
        EXPECT_EQ(run.PenX.front(), 300);
        EXPECT_EQ(run.Baseline, 2500 + run.pFont->GetMetrics().tmAscent);
        for (int x = 300; x < 1500; x += 3) {
            ASSERT_EQ(dc.GetPixel(x, 2560), TColor(255, 255, 255)) << x;
        }
        ASSERT_GT(dc.EndPage(), 0);
        EXPECT_TRUE(dc.GetTextRuns().empty()) << "the text went with its page";
        ASSERT_GT(dc.EndDoc(), 0);
        EXPECT_EQ(dc.GetPageCount(), 1);
    }
    ASSERT_TRUE(fs::exists(file));

    const std::string info = Output("pdfinfo " + Quoted(file));
    EXPECT_EQ(InfoLine(info, "Pages"), "1");
    EXPECT_EQ(InfoLine(info, "Page size"), "595.276 x 841.89 pts (A4)");
    EXPECT_EQ(InfoLine(info, "Title"), "NOX Planetarium");

    const std::string text = Output("pdftotext " + Quoted(file) + " -");
    EXPECT_NE(text.find("Center Dec: +7\xC2\xB0 24' 25\""), std::string::npos) << text;

    // At 30 dpi the page is a tenth of the printer's 2480 by 3508 pixels (pdftoppm rounds
    // the paper's 248.03 by 350.79 up).
    const Raster page = Rasterise(file, 1, 30, Dir);
    ASSERT_EQ(page.Width, 249);
    ASSERT_EQ(page.Height, 351);
    EXPECT_TRUE(Near(page.At(60, 80), RGB(255, 0, 0)));
    EXPECT_TRUE(Near(page.At(5, 5), RGB(255, 255, 255))) << "white paper";
    EXPECT_TRUE(Near(page.At(200, 300), RGB(255, 255, 255)));
    // The text darkens its row of the page, and only that.
    auto dark = [&](int top, int bottom) {
        int n = 0;
        for (int x = 30; x < 240; ++x) {
            for (int y = top; y < bottom; ++y) {
                n += GetRValue(page.At(x, y)) < 200;
            }
        }
        return n;
    };
    EXPECT_GT(dark(250, 262), 40);
    EXPECT_EQ(dark(265, 280), 0);
}

TEST_F(PrintTest, EveryPageStartsWhiteAndLetterPaperHasItsOwnSize)
{
    const fs::path file = Dir / "two.pdf";
    TPrintDC dc(Printer(TPrinter::Paper::Letter, 72));
    ASSERT_GT(dc.StartDoc("Two pages", file.c_str()), 0);
    EXPECT_EQ(dc.GetOutputFile(), file.string());
    ASSERT_GT(dc.StartPage(), 0);
    dc.FillRect(TRect(0, 0, 612, 396), TBrush(TColor(0, 0, 255)));
    ASSERT_GT(dc.EndPage(), 0);
    ASSERT_GT(dc.StartPage(), 0);
    EXPECT_EQ(dc.GetPixel(10, 10), TColor(255, 255, 255));
    dc.FillRect(TRect(0, 396, 612, 792), TBrush(TColor(0, 128, 0)));
    ASSERT_GT(dc.EndPage(), 0);
    ASSERT_GT(dc.EndDoc(), 0);

    const std::string info = Output("pdfinfo " + Quoted(file));
    EXPECT_EQ(InfoLine(info, "Pages"), "2");
    EXPECT_EQ(InfoLine(info, "Page size"), "612 x 792 pts (letter)");
    const Raster first = Rasterise(file, 1, 18, Dir);
    const Raster second = Rasterise(file, 2, 18, Dir);
    ASSERT_EQ(first.Width, 153);
    ASSERT_EQ(second.Height, 198);
    EXPECT_EQ(first.At(70, 40), RGB(0, 0, 255));
    EXPECT_EQ(first.At(70, 150), RGB(255, 255, 255));
    EXPECT_EQ(second.At(70, 40), RGB(255, 255, 255));
    EXPECT_EQ(second.At(70, 150), RGB(0, 128, 0));
}

TEST_F(PrintTest, StepsOutOfOrderAreRefused)
{
    TPrintDC dc(Printer(TPrinter::Paper::A4, 72));
    EXPECT_EQ(dc.StartPage(), SP_ERROR) << "no document yet";
    EXPECT_EQ(dc.EndPage(), SP_ERROR);
    EXPECT_EQ(dc.EndDoc(), SP_ERROR);
    EXPECT_EQ(dc.StartDoc("Nowhere", (Dir / "missing" / "chart.pdf").c_str()), SP_ERROR);
    EXPECT_FALSE(dc.IsInDocument());

    ASSERT_GT(dc.StartDoc("Once"), 0);
    EXPECT_EQ(dc.StartDoc("Twice"), SP_ERROR);
    EXPECT_EQ(dc.EndPage(), SP_ERROR) << "no page yet";
    // Text outside a page is drawn but not kept.
    dc.TextOut(10, 10, std::string("stray"));
    EXPECT_TRUE(dc.GetTextRuns().empty());
    ASSERT_GT(dc.StartPage(), 0);
    EXPECT_EQ(dc.StartPage(), SP_ERROR);
    EXPECT_TRUE(dc.IsInPage());
    // EndDoc ends the open page first.
    ASSERT_GT(dc.EndDoc(), 0);
    EXPECT_EQ(dc.GetPageCount(), 1);
    EXPECT_EQ(InfoLine(Output("pdfinfo " + Quoted(Dir / "chart.pdf")), "Pages"), "1");
}

TEST_F(PrintTest, AnAbortedDocumentLeavesNoFile)
{
    TPrintDC dc(Printer(TPrinter::Paper::A4, 72));
    ASSERT_GT(dc.StartDoc("Dropped"), 0);
    ASSERT_GT(dc.StartPage(), 0);
    EXPECT_GT(dc.AbortDoc(), 0);
    EXPECT_FALSE(dc.IsInDocument());
    EXPECT_FALSE(fs::exists(Dir / "chart.pdf"));
    EXPECT_EQ(dc.AbortDoc(), SP_ERROR);
}

TEST_F(PrintTest, ADocumentLeftOpenIsEndedWithItsLastContext)
{
    {
        TPrintDC dc(Printer(TPrinter::Paper::A4, 72));
        ASSERT_GT(dc.StartDoc("Left open"), 0);
        ASSERT_GT(dc.StartPage(), 0);
    }
    EXPECT_EQ(InfoLine(Output("pdfinfo " + Quoted(Dir / "chart.pdf")), "Pages"), "1");
}

TEST_F(PrintTest, PlainCallsWorkOnTheContextThatPrintDlgMakes)
{
    TPrinter::Default() = Printer(TPrinter::Paper::Letter, 72);
    PRINTDLGA pd{};
    pd.lStructSize = sizeof pd;
    pd.Flags = PD_RETURNDC | PD_RETURNDEFAULT;
    ASSERT_TRUE(PrintDlgA(&pd));
    ASSERT_NE(pd.hDC, nullptr);
    EXPECT_EQ(pd.nCopies, 1);
    EXPECT_EQ(GetDeviceCaps(pd.hDC, HORZRES), 612);

    // A wrapper that takes over the handle prints the same document.
    const fs::path file = Dir / "plain.pdf";
    auto wrapper = std::make_unique<TPrintDC>(pd.hDC, AutoDelete);
    DOCINFOA info{};
    info.cbSize = sizeof info;
    info.lpszDocName = "Plain";
    info.lpszOutput = file.c_str();
    ASSERT_GT(StartDoc(pd.hDC, &info), 0);
    EXPECT_TRUE(wrapper->IsInDocument());
    ASSERT_GT(wrapper->StartPage(), 0);
    EXPECT_TRUE(static_cast<TPrintDC*>(pd.hDC)->IsInPage());
    ASSERT_GT(EndPage(pd.hDC), 0);
    ASSERT_GT(EndDoc(pd.hDC), 0);
    wrapper.reset(); // deletes the handle too
    EXPECT_EQ(InfoLine(Output("pdfinfo " + Quoted(file)), "Pages"), "1");

    // Other contexts are no printers.
    Surface surface(4, 4, PixelFormat::Rgb32);
    TDC screen(surface);
    EXPECT_EQ(StartDoc(&screen, &info), SP_ERROR);
    EXPECT_EQ(StartPage(&screen), SP_ERROR);
    EXPECT_FALSE(PrintDlgA(nullptr));
    PRINTDLGA tooSmall{};
    tooSmall.lStructSize = 8;
    EXPECT_FALSE(PrintDlgA(&tooSmall));
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

    EXPECT_EQ(preview.GetDeviceCaps(LOGPIXELSY), 300) << "the printer's answers";
    EXPECT_EQ(preview.GetDeviceCaps(HORZRES), 2480);
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

    // Nothing lands outside the clip rectangle; a clip region is in the window's pixels.
    TPrintPreviewDC part(screen, printer, client, TRect(0, 0, 150, 50));
    part.FillRect(TRect(0, 0, 2480, 3508), TBrush(TColor(255, 255, 255)));
    EXPECT_EQ(window.ColorAt(80, 49), RGB(255, 255, 255));
    EXPECT_EQ(window.ColorAt(80, 50), RGB(128, 128, 128));
    TPoint strip[2] = {TPoint(0, 3000), TPoint(2480, 3508)};
    part.LPtoDP(strip, 2);
    TPrintPreviewDC lower(screen, printer, client, window.Bounds());
    lower.SelectClipRgn(TRegion(TRect(strip[0], strip[1])));
    lower.FillRect(TRect(0, 0, 2480, 3508), TBrush(TColor(0, 255, 0)));
    EXPECT_EQ(window.ColorAt(60, 160), RGB(0, 255, 0));
    EXPECT_EQ(window.ColorAt(60, 100), RGB(128, 128, 128));
}

TEST_F(PrintTest, ThePrintDialogTakesPaperCopiesAndFile)
{
    TPrinter::Default() = Printer(TPrinter::Paper::A4, 72);
    const fs::path chosen = Dir / "mine.pdf";
    Desk().AnswerNextModal([&](TWindow& dialog) {
        EXPECT_EQ(dialog.GetWindowText(), "Print");
        EXPECT_EQ(IsDlgButtonChecked(dialog.HWindow, PrintDialog::kPaperA4Id), BST_CHECKED);
        EXPECT_EQ(GetDlgItemInt(dialog.HWindow, PrintDialog::kCopiesId, nullptr, FALSE), 2u);
        HeadlessBackend::PressButton(dialog, PrintDialog::kPaperLetterId);
        HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, "3");
        HeadlessBackend::TypeInto(dialog, PrintDialog::kFileId, chosen.string());
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
    EXPECT_EQ(dc.GetPrinter().GetPaper(), TPrinter::Paper::Letter);
    EXPECT_EQ(dc.GetPrinter().GetOutputFile(), chosen.string());
    // The next print starts from these choices.
    EXPECT_EQ(TPrinter::Default().GetPaper(), TPrinter::Paper::Letter);
    EXPECT_EQ(TPrinter::Default().GetOutputFile(), chosen.string());
}

TEST_F(PrintTest, ThePrintDialogRefusesBadCopiesAndMissingFoldersUntilMended)
{
    TPrinter::Default() = Printer(TPrinter::Paper::A4, 72);
    std::vector<std::string> messages;
    Desk().AnswerNextModal([&](TWindow& dialog) {
        HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, "0");
        HeadlessBackend::PressButton(dialog, IDOK);
        EXPECT_TRUE(dialog.IsWindowVisible());
        HeadlessBackend::TypeInto(dialog, PrintDialog::kCopiesId, "1");
        HeadlessBackend::TypeInto(dialog, PrintDialog::kFileId, (Dir / "no" / "x.pdf").string());
        HeadlessBackend::PressButton(dialog, IDOK);
        EXPECT_TRUE(dialog.IsWindowVisible());
        HeadlessBackend::TypeInto(dialog, PrintDialog::kFileId, "  ");
        HeadlessBackend::PressButton(dialog, IDOK);
        EXPECT_TRUE(dialog.IsWindowVisible());
        HeadlessBackend::PressButton(dialog, IDCANCEL);
    });
    for (int i = 0; i < 3; ++i) {
        Desk().AnswerNextModal([&](TWindow& box) {
            messages.push_back(box.GetWindowText());
            HeadlessBackend::PressButton(box, IDOK);
        });
    }
    PRINTDLGA pd{};
    pd.lStructSize = sizeof pd;
    pd.Flags = PD_RETURNDC;
    EXPECT_FALSE(PrintDlgA(&pd));
    EXPECT_EQ(pd.hDC, nullptr);
    EXPECT_EQ(messages, std::vector<std::string>(3, "Print"));
    EXPECT_EQ(TPrinter::Default().GetOutputFile(), (Dir / "chart.pdf").string())
        << "a cancelled dialog changes nothing";
}

} // namespace
