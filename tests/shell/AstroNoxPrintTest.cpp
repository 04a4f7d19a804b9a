// Printing a star chart from the component window as a user does: the print command opens the
// platform's print dialog and then the chart's dialog with its preview, whose Print button
// writes the chart and says so; a cancelled print dialog ends it all at once.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "ComponentInFrame.h"
#include "platform/PrintDialog.h"
#include "platform/TPrinter.h"
#include "skyview/AstroPrintDialog.h"
#include "skyview/MapWindow.h"

namespace {

namespace fs = std::filesystem;

// The view of a bookmark: the Pleiades, narrow.
const char* const kPleiades =
    "FullState=1 AstroNoxWindow=<MapWindow=<Orientation_Type=0 Orientation=<Base=<Radius=5> "
    "CenterOfView=<RA=56.75 Dec=24.1167> Zenith=<RA=56.75 Dec=90>>>>";

class AstroNoxPrintTest : public ComponentInFrame
{
protected:
    AstroNoxPrintTest() : ComponentInFrame(320, 240) {}

    void SetUp() override
    {
        ComponentInFrame::SetUp();
        SavedPrinter = TPrinter::Default();
        // A coarse printer keeps the pages quick.
        ASSERT_TRUE(TPrinter::Default().SetResolution(72));
        Chart = fs::path(Home.Path()) / "chart.pdf";
        TPrinter::Default().SetOutputFile(Chart.string());
        pWindow = Enter(kPleiades);
        ASSERT_NE(pWindow, nullptr);
        Pump();
    }
    void TearDown() override
    {
        TPrinter::Default() = SavedPrinter;
        ComponentInFrame::TearDown();
    }

    AstroNoxWindow* pWindow = nullptr;
    TPrinter SavedPrinter;
    fs::path Chart;
};

TEST_F(AstroNoxPrintTest, ThePrintCommandShowsThePreviewAndPrintsTheChart)
{
    bool busyDuringDialog = false;
    std::string title;
    std::string told;
    std::string helpKey;
    auto previousHelp =
        SetWinHelpHandler([&](HWND, const std::string&, UINT command, const std::string& key) {
            if (command == HELP_KEY) {
                helpKey = key;
            }
            return true;
        });

    // The platform's print dialog first: A4 as it is, into the chosen file.
    Desk().AnswerNextModal([&](TWindow& dialog) {
        busyDuringDialog = pWindow->IsBusy();
        HeadlessBackend::PressButton(dialog, IDOK);
    });
    // Then the chart's dialog with the preview over its placeholder.
    Desk().AnswerNextModal([&](TWindow& window) {
        auto& dialog = dynamic_cast<AstroPrintDialog&>(window);
        title = dialog.GetWindowText();
        PrintPreviewWindow& preview = dialog.GetPreview();
        EXPECT_TRUE(preview.IsWindowVisible());
        const TWindow* placeholder = dialog.GetControl(AstroPrintDialog::kPreviewId);
        ASSERT_NE(placeholder, nullptr);
        EXPECT_FALSE(placeholder->IsWindowVisible());
        const TRect place = placeholder->GetRect();
        const TRect shown = preview.GetRect();
        EXPECT_EQ((place & shown), shown) << "the preview lies within its placeholder";
        EXPECT_EQ(shown.Size(), preview.GetPreviewSize(place.Size()));
        // Nearly filling one side: the size is worked out in twenty-fifths of an inch.
        EXPECT_GE(
            std::max(shown.Width() * 100 / place.Width(), shown.Height() * 100 / place.Height()),
            95);
        EXPECT_EQ(dialog.GetDlgItemText(AstroPrintDialog::kPrintId), "Print");
        EXPECT_EQ(dialog.GetDlgItemText(AstroPrintDialog::kModifyStarsId), "Star Display...");
        // Its page is a chart of the map's view.
        auto picture = WindowSystem::Get().CaptureWindow(preview.HWindow);
        EXPECT_EQ(picture->ColorAt(0, shown.Height() / 2), RGB(0, 0, 0));
        EXPECT_EQ(picture->ColorAt(shown.Width() / 2, 4), RGB(255, 255, 255));

        HeadlessBackend::PressButton(window, AstroPrintDialog::kHelpId);
        HeadlessBackend::PressButton(window, AstroPrintDialog::kPrintId);
        EXPECT_TRUE(window.IsWindowVisible()) << "the dialog stays open after printing";
        HeadlessBackend::PressButton(window, AstroPrintDialog::kCloseId);
    });
    // The word that the chart went to the printer.
    Desk().AnswerNextModal([&](TWindow& box) {
        for (TWindow* child : box.GetChildren()) {
            told += child->GetWindowText();
        }
        HeadlessBackend::PressButton(box, IDOK);
    });

    pWindow->SendMessage(WM_COMMAND, AstroNoxWindow::kPrintCommand, 0);
    SetWinHelpHandler(previousHelp);

    EXPECT_TRUE(busyDuringDialog);
    EXPECT_FALSE(pWindow->IsBusy());
    EXPECT_EQ(title, "Print Star Chart");
    EXPECT_EQ(helpKey, "Print Star Chart");
    EXPECT_NE(told.find("The star chart has been sent to the printer."), std::string::npos);
    ASSERT_TRUE(fs::exists(Chart));
    std::ifstream pdf(Chart, std::ios::binary);
    std::string magic(5, '\0');
    pdf.read(magic.data(), 5);
    EXPECT_EQ(magic, "%PDF-");
    // The map shows its own view again.
    EXPECT_FALSE(pWindow->GetMap()->GetDisplayParameters().IsPrinting());
}

TEST_F(AstroNoxPrintTest, CancellingThePrintDialogEndsThePrintAtOnce)
{
    Desk().AnswerNextModal([](TWindow& dialog) { HeadlessBackend::PressButton(dialog, IDCANCEL); });
    // The host's own print command does the same.
    pWindow->SendMessage(WM_COMMAND, AstroNoxWindow::kHostPrintCommand, 0);
    EXPECT_FALSE(pWindow->IsBusy());
    EXPECT_FALSE(fs::exists(Chart));
}

} // namespace
