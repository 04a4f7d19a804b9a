// Dialogs: built from templates in dialog units, run modal while the rest of the program keeps
// its timers and paints, answered by the test as a user would, and worked by the keyboard.
#include <string>
#include <vector>

#include "HeadlessFixture.h"
#include "platform/DialogTemplate.h"
#include "platform/TBrush.h"
#include "platform/TButton.h"
#include "platform/TCheckBox.h"
#include "platform/TComboBox.h"
#include "platform/TDC.h"
#include "platform/TDialog.h"
#include "platform/TEdit.h"
#include "platform/TStatic.h"
#include "platform/WindowCalls.h"

namespace {

constexpr int kNameId = 0xCF;
constexpr int kCheckId = 0xD8;
constexpr int kNowId = 0xD4;
constexpr int kLabelId = 0x65;

// A template of the size and kind the time dialog has: 331 by 163 dialog units.
DialogTemplate TimeLikeTemplate()
{
    DialogTemplate t;
    t.Title = "Date and Time";
    t.Cx = 331;
    t.Cy = 163;
    t.Items = {
        DialogItemTemplate::Label("Year:", kLabelId, 7, 9, 40, 8),
        DialogItemTemplate::Edit(kNameId, 50, 7, 60, 14),
        DialogItemTemplate::CheckBox("Daylight saving", kCheckId, 7, 30, 100, 10),
        DialogItemTemplate::PushButton("Now", kNowId, 120, 7, 50, 14),
        DialogItemTemplate::PushButton("OK", IDOK, 220, 142, 50, 14, true),
        DialogItemTemplate::PushButton("Cancel", IDCANCEL, 274, 142, 50, 14),
    };
    return t;
}

// A dialog that keeps its own pointer to the edit field and reads it on OK.
class YearDialog : public TDialog
{
public:
    explicit YearDialog(TWindow* parent) : TDialog(parent, TResId(7200))
    {
        pYear = new TEdit(this, kNameId, 4);
    }

    TEdit* pYear;
    std::string Year;
    int nNowPresses = 0;

    void SetupWindow() override
    {
        TDialog::SetupWindow();
        pYear->SetText("1999");
    }
    void CmOk() override
    {
        Year = pYear->GetText();
        if (Year.empty()) {
            return; // stays open, as a dialog that refuses its input does
        }
        TDialog::CmOk();
    }
    void CmNow() { ++nNowPresses; }

    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{CmRow<kNowId, &YearDialog::CmNow>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : TDialog::Find(event);
    }
};

// A window that repaints itself on a timer, as the map does during a time lapse.
class Ticker : public TWindow
{
public:
    Ticker() : TWindow(nullptr, "Ticker")
    {
        Attr.X = 0;
        Attr.Y = 0;
        Attr.W = 300;
        Attr.H = 200;
    }
    int nTicks = 0;
    int nPaints = 0;
    int nClicks = 0;
    void Paint(TDC& dc, bool, TRect&) override
    {
        ++nPaints;
        dc.FillRect(GetClientRect(), TBrush(TColor(0, 0, BYTE(nTicks * 10))));
    }
    void EvTimer(UINT)
    {
        ++nTicks;
        Invalidate();
    }
    void EvLButtonDown(UINT, TPoint&) { ++nClicks; }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{EvRow<WM_TIMER, &Ticker::EvTimer>(),
                                          EvRow<WM_LBUTTONDOWN, &Ticker::EvLButtonDown>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : TWindow::Find(event);
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
    TDialog dialog(nullptr, TResId(7200));
    ASSERT_TRUE(dialog.Create());
    DialogBaseUnits units = DialogBaseUnits::Of(dialog.GetWindowFont());
    // An 8-point sans-serif: letters about 5 to 7 pixels wide and a line of 12 to 14.
    EXPECT_GE(units.X, 5);
    EXPECT_LE(units.X, 7);
    EXPECT_GE(units.Y, 12);
    EXPECT_LE(units.Y, 14);
    EXPECT_EQ(dialog.GetClientRect().Width(), (331 * units.X + 2) / 4);
    EXPECT_EQ(dialog.GetClientRect().Height(), (163 * units.Y + 4) / 8);

    TWindow* ok = dialog.GetControl(IDOK);
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->GetRect(), dialog.MapDialogRect(TRect(220, 142, 270, 156)));
    EXPECT_EQ(ok->GetWindowText(), "OK");
    EXPECT_EQ(dialog.GetDlgItemText(kLabelId), "Year:");
    EXPECT_NE(dynamic_cast<TStatic*>(dialog.GetControl(kLabelId)), nullptr);
    EXPECT_NE(dynamic_cast<TCheckBox*>(dialog.GetControl(kCheckId)), nullptr)
        << "the style makes a button a check box";
    EXPECT_EQ(dialog.GetWindowText(), "Date and Time");
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.Destroy();
}

TEST_F(Dialogs, ControlMadeByTheClassTakesTheTemplatesPlace)
{
    YearDialog dialog(nullptr);
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(dialog.GetControl(kNameId), dialog.pYear) << "no second field for the same id";
    EXPECT_EQ(dialog.pYear->GetRect(), dialog.MapDialogRect(TRect(50, 7, 110, 21)));
    EXPECT_EQ(dialog.GetDlgItemText(kNameId), "1999") << "SetupWindow ran after the controls";
    EXPECT_EQ(GetFocus(), dialog.pYear->HWindow) << "the first control that takes the focus";
    int start;
    int end;
    dialog.pYear->GetSelection(start, end);
    EXPECT_EQ(end - start, 4) << "its text selected, ready to be typed over";
    dialog.Destroy();

    // A dialog can be made again: the controls of the template are not doubled.
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(dialog.GetChildren().size(), TimeLikeTemplate().Items.size());
    dialog.Destroy();
}

TEST_F(Dialogs, ModalDialogLetsTheOwnersTimerRepaintAndIsAnsweredByTheTest)
{
    Ticker owner;
    owner.Create();
    owner.SetTimer(1, 100);
    Pump();
    int ticks = 0;
    int paints = 0;

    YearDialog dialog(&owner);
    Desk().AnswerNextModal([&](TWindow& window) {
        EXPECT_EQ(&window, &dialog);
        ticks = owner.nTicks;
        paints = owner.nPaints;
        Desk().AdvanceTime(1000);
        // The owner ticks and repaints behind the dialog, but takes no clicks.
        EXPECT_EQ(owner.nTicks, ticks + 10);
        EXPECT_EQ(owner.nPaints, paints + 10);
        Desk().Click(owner, TPoint(5, 5));
        EXPECT_EQ(owner.nClicks, 0);
        HeadlessBackend::TypeInto(window, kNameId, "2024");
        HeadlessBackend::PressButton(window, kNowId);
        HeadlessBackend::PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.Year, "2024");
    EXPECT_EQ(dialog.nNowPresses, 1);
    EXPECT_EQ(dialog.HWindow, nullptr) << "the window goes when Execute returns";
    EXPECT_TRUE(owner.IsWindowEnabled()) << "the owner takes input again";
    Desk().Click(owner, TPoint(5, 5));
    EXPECT_EQ(owner.nClicks, 1);

    // The last frame the owner painted during the dialog shows its last tick.
    auto picture = WindowSystem::Get().CaptureWindow(owner.HWindow);
    EXPECT_EQ(picture->ColorAt(150, 100), RGB(0, 0, BYTE(owner.nTicks * 10)));
    owner.KillTimer(1);
}

TEST_F(Dialogs, RefusedOkKeepsTheDialogOpenUntilCancel)
{
    YearDialog dialog(nullptr);
    Desk().AnswerNextModal([&](TWindow& window) {
        HeadlessBackend::TypeInto(window, kNameId, "");
        Desk().PressKey(VK_BACK); // empty now
        HeadlessBackend::PressButton(window, IDOK);
        EXPECT_TRUE(window.IsWindowVisible()) << "CmOk refused the empty year";
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
}

TEST_F(Dialogs, EnterPressesTheDefaultButtonAndTabMovesTheFocus)
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
        Desk().Type("\r");
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.Year, "1999");
}

TEST_F(Dialogs, UnansweredDialogIsClosedAsCancelled)
{
    YearDialog dialog(nullptr);
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
    EXPECT_EQ(Desk().GetUnansweredCount(), nUnansweredBefore + 1);
    nUnansweredBefore = Desk().GetUnansweredCount();
}

TEST_F(Dialogs, MissingTemplateRefusesToRun)
{
    TDialog dialog(nullptr, TResId(4242));
    EXPECT_EQ(dialog.Execute(), -1);
    EXPECT_EQ(dialog.HWindow, nullptr);
}

TEST_F(Dialogs, NestedModalWindowsAreAnsweredInTheOrderTheyOpen)
{
    class Asking : public YearDialog
    {
    public:
        using YearDialog::YearDialog;
        int nAnswer = 0;
        void CmOk() override
        {
            nAnswer = MessageBox("Really?", "Question", MB_YESNO);
            if (nAnswer == IDYES) {
                YearDialog::CmOk();
            }
        }
    };
    Asking dialog(nullptr);
    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::PressButton(window, IDOK);
        EXPECT_TRUE(window.IsWindowVisible()) << "the first answer was no";
        HeadlessBackend::PressButton(window, IDOK);
    });
    Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDNO); });
    Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDYES); });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.nAnswer, IDYES);
}

} // namespace

namespace {

TEST_F(Dialogs, DroppedComboTakesEnterAndEscapeBeforeTheDialog)
{
    class Chooser : public TDialog
    {
    public:
        Chooser() : TDialog(nullptr, "Chooser")
        {
            Attr.W = 260;
            Attr.H = 160;
            pCombo = new TComboBox(this, 0x65, 10, 10, 150, 120, CBS_DROPDOWNLIST);
            new TButton(this, IDOK, "OK", 170, 120, 75, 23, true);
        }
        TComboBox* pCombo;
        void SetupWindow() override
        {
            TDialog::SetupWindow();
            for (const char* row : {"Constellations", "Planets", "Stars"}) {
                pCombo->AddString(row);
            }
            pCombo->SetSelIndex(0);
        }
    };
    Chooser dialog;
    Desk().AnswerNextModal([&](TWindow& window) {
        EXPECT_EQ(GetFocus(), dialog.pCombo->HWindow);
        Desk().PressKey(VK_F1 + 3); // F4 drops the list
        ASSERT_TRUE(dialog.pCombo->IsListShown());
        Desk().PressKey(VK_DOWN);
        Desk().PressKey(VK_RETURN);
        EXPECT_TRUE(window.IsWindowVisible()) << "Enter took the row, not the dialog's OK";
        EXPECT_EQ(dialog.pCombo->GetSelIndex(), 1);
        Desk().PressKey(VK_F1 + 3);
        Desk().PressKey(VK_ESCAPE);
        EXPECT_FALSE(dialog.pCombo->IsListShown());
        EXPECT_TRUE(window.IsWindowVisible()) << "Escape closed the list only";
        Desk().PressKey(VK_RETURN);
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    EXPECT_EQ(dialog.pCombo->GetSelIndex(), 1);
}

TEST_F(Dialogs, OwnersTimerCanEndTheModalDialog)
{
    class Closer : public Ticker
    {
    public:
        TDialog* pDialog = nullptr;
        const TResponseRow* Find(const TEventInfo& event) const override
        {
            static const TResponseTable table{EvRow<WM_TIMER, &Closer::EvClose>()};
            const TResponseRow* row = table.Find(event);
            return row ? row : Ticker::Find(event);
        }
        void EvClose(UINT)
        {
            KillTimer(1);
            if (pDialog) {
                pDialog->CloseWindow(IDABORT);
            }
        }
    };
    Closer owner;
    owner.Create();
    YearDialog dialog(&owner);
    owner.pDialog = &dialog;
    owner.SetTimer(1, 500);
    Desk().AnswerNextModal([](TWindow&) { Desk().AdvanceTime(600); });
    EXPECT_EQ(dialog.Execute(), IDABORT);
}

TEST_F(Dialogs, QuitDuringAModalDialogEndsItAndThenTheLoop)
{
    YearDialog dialog(nullptr);
    Desk().AnswerNextModal([](TWindow&) { PostQuitMessage(3); });
    EXPECT_EQ(dialog.Execute(), IDCANCEL);
    EXPECT_EQ(WindowSystem::Get().Run(), 3) << "the quit is kept for the program's loop";
}

} // namespace
