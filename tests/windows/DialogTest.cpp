// Dialogs: built from templates in dialog units, run modal while the rest of the program keeps
// its timers and paints but takes no input, answered by the test as a user would, and worked
// by the keyboard.
#include <string>

#include "HeadlessFixture.h"
#include "platform/DialogTemplate.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TDialog.h"
#include "platform/TEdit.h"
#include "platform/WindowCalls.h"

namespace {

constexpr int kYearId = 0xCF;
constexpr int kCheckId = 0xD8;
constexpr int kNowId = 0xD4;

// A template of the size and kind the time dialog has: 331 by 163 dialog units.
DialogTemplate TimeLikeTemplate()
{
    DialogTemplate t;
    t.Title = "Date and Time";
    t.Cx = 331;
    t.Cy = 163;
    t.Items = {
        DialogItemTemplate::Edit(kYearId, 50, 7, 60, 14),
        DialogItemTemplate::CheckBox("Daylight saving", kCheckId, 7, 30, 100, 10),
        DialogItemTemplate::PushButton("Now", kNowId, 120, 7, 50, 14),
        DialogItemTemplate::PushButton("OK", IDOK, 220, 142, 50, 14, true),
        DialogItemTemplate::PushButton("Cancel", IDCANCEL, 274, 142, 50, 14),
    };
    return t;
}

// A dialog that makes its own edit field for the template's and refuses OK while it is empty.
class YearDialog : public TDialog
{
public:
    explicit YearDialog(TWindow* parent) : TDialog(parent, TResId(7200))
    {
        pYear = new TEdit(this, kYearId, 4);
    }
    TEdit* pYear;
    std::string Year;
    int nAnswer = 0; // of the question OK asks, when it asks one
    bool bAsk = false;

    void SetupWindow() override
    {
        TDialog::SetupWindow();
        pYear->SetText("1999");
    }
    void CmOk() override
    {
        Year = pYear->GetText();
        nAnswer = bAsk ? MessageBox("Really?", "Question", MB_YESNO) : IDYES;
        if (!Year.empty() && nAnswer == IDYES) {
            TDialog::CmOk();
        }
    }
};

// A window that repaints itself on a timer, as the map does during a time lapse.
class Ticker : public TWindow
{
public:
    Ticker() : TWindow(nullptr, "Ticker")
    {
        Attr.W = 300;
        Attr.H = 200;
    }
    int nTicks = 0;
    int nPaints = 0;
    int nClicks = 0;
    TDialog* pClosing = nullptr; // a dialog the fifth tick ends
    void Paint(TDC& dc, bool, TRect&) override
    {
        ++nPaints;
        dc.FillRect(GetClientRect(), TBrush(TColor(0, 0, BYTE(nTicks * 10))));
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        nClicks += msg == WM_LBUTTONDOWN;
        if (msg == WM_TIMER && ++nTicks == 5 && pClosing) {
            pClosing->CloseWindow(IDABORT);
        }
        if (msg == WM_TIMER) {
            Invalidate();
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
};

class Dialogs : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        AddDialogResource(TResId(7200), TimeLikeTemplate());
    }
};

TEST_F(Dialogs, TemplateInDialogUnitsGivesPixelsOfTheDialogFont)
{
    YearDialog dialog(nullptr);
    ASSERT_TRUE(dialog.Create());
    DialogBaseUnits units = DialogBaseUnits::Of(dialog.GetWindowFont());
    // An 8-point sans-serif: letters about 5 to 7 pixels wide and a line of 12 to 14.
    EXPECT_TRUE(units.X >= 5 && units.X <= 7 && units.Y >= 12 && units.Y <= 14);
    EXPECT_EQ(dialog.GetClientRect().Size(),
              TSize((331 * units.X + 2) / 4, (163 * units.Y + 4) / 8));
    EXPECT_EQ(dialog.GetControl(IDOK)->GetRect(), dialog.MapDialogRect(TRect(220, 142, 270, 156)));
    // The class's own field takes the template's place, after the controls were made.
    EXPECT_EQ(dialog.GetControl(kYearId), dialog.pYear);
    EXPECT_EQ(dialog.GetDlgItemText(kYearId), "1999");
    EXPECT_EQ(GetFocus(), dialog.pYear->HWindow) << "the first control that takes the focus";
    dialog.Destroy();
}

TEST_F(Dialogs, ModalDialogLetsTheOwnerTickAndRepaintButTakeNoClicks)
{
    Ticker owner;
    owner.Create();
    owner.SetTimer(1, 100);
    Pump();
    YearDialog dialog(&owner);
    Desk().AnswerNextModal([&](TWindow& window) {
        const int paints = owner.nPaints;
        Desk().AdvanceTime(400);
        EXPECT_EQ(owner.nTicks, 4);
        EXPECT_EQ(owner.nPaints, paints + 4);
        Desk().Click(owner, TPoint(5, 5));
        EXPECT_EQ(owner.nClicks, 0);
        HeadlessBackend::TypeInto(window, kYearId, "2024");
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.Year, "2024");
    Desk().Click(owner, TPoint(5, 5));
    EXPECT_EQ(owner.nClicks, 1) << "the owner takes input again";
    auto picture = WindowSystem::Get().CaptureWindow(owner.HWindow);
    EXPECT_EQ(picture->ColorAt(150, 100), RGB(0, 0, 40)) << "its last frame shows its last tick";

    // A timer of the owner can end the dialog.
    owner.pClosing = &dialog;
    Desk().AnswerNextModal([](TWindow&) { Desk().AdvanceTime(100); });
    EXPECT_EQ(dialog.Execute(), IDABORT);
    owner.KillTimer(1);
}

TEST_F(Dialogs, RefusedOkKeepsTheDialogOpenAndNestedQuestionsAreAnsweredInOrder)
{
    YearDialog dialog(nullptr);
    dialog.bAsk = true;
    Desk().AnswerNextModal([&](TWindow& window) {
        HeadlessBackend::TypeInto(window, kYearId, "");
        Desk().PressKey(VK_BACK); // empty now
        Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDYES); });
        HeadlessBackend::PressButton(window, IDOK);
        EXPECT_TRUE(window.IsWindowVisible()) << "the empty year is refused";
        HeadlessBackend::TypeInto(window, kYearId, "1066");
        Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDNO); });
        HeadlessBackend::PressButton(window, IDOK);
        EXPECT_TRUE(window.IsWindowVisible()) << "the answer was no";
        Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDYES); });
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.Year, "1066");
}

TEST_F(Dialogs, EnterPressesTheDefaultButtonTabMovesTheFocusEscapeCancels)
{
    YearDialog dialog(nullptr);
    Desk().AnswerNextModal([&](TWindow& window) {
        HWND field = GetFocus();
        Desk().PressKey(VK_TAB);
        EXPECT_EQ(GetFocus(), window.ChildWithId(kCheckId)->HWindow);
        Desk().PressKey(VK_SPACE);
        EXPECT_EQ(IsDlgButtonChecked(window.HWindow, kCheckId), BST_CHECKED);
        Desk().KeyDown(VK_SHIFT);
        Desk().PressKey(VK_TAB);
        Desk().KeyUp(VK_SHIFT);
        EXPECT_EQ(GetFocus(), field);
        Desk().Type("7\r"); // the first character after a Tab is kept
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.Year, "7");
    Desk().AnswerNextModal([](TWindow& window) {
        Desk().PressKey(VK_ESCAPE);
        EXPECT_FALSE(window.IsWindowVisible()) << "Escape itself closed it";
    });
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
}

TEST_F(Dialogs, UnansweredOrTemplatelessDialogsEndAtOnce)
{
    YearDialog dialog(nullptr);
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
    EXPECT_EQ(Desk().GetUnansweredCount(), ++nUnansweredBefore);
    // An answer that types but never closes the dialog fails the test as much as none.
    Desk().AnswerNextModal(
        [](TWindow& window) { HeadlessBackend::TypeInto(window, kYearId, "1"); });
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
    EXPECT_EQ(Desk().GetUnansweredCount(), ++nUnansweredBefore);
    TDialog missing(nullptr, TResId(4242));
    EXPECT_EQ(missing.Execute(), -1);
    EXPECT_EQ(missing.HWindow, nullptr);
    // A quit during a modal dialog ends it, and is kept for the program's loop.
    Desk().AnswerNextModal([](TWindow&) { PostQuitMessage(3); });
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
    EXPECT_EQ(WindowSystem::Get().Run(), 3);
}

} // namespace
