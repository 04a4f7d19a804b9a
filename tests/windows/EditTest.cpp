// The edit field: typing at the caret, selection, select-all, the text limit, the keys that
// move and delete, the mouse, and the notifications its parent hears.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TEdit.h"

namespace {

class Edits : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        pEdit = new TEdit(&Host, 10, "", 10, 10, 150, 22);
        Host.Create();
        pEdit->SetFocus();
        Pump();
        Host.Notes.clear();
    }
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    std::pair<int, int> Selection() const
    {
        int start;
        int end;
        pEdit->GetSelection(start, end);
        return {start, end};
    }

    ControlHost Host;
    TEdit* pEdit = nullptr;
};

TEST_F(Edits, TypingInsertsAtTheCaretAndTellsTheParentEachChange)
{
    Desk().Type("Vega");
    EXPECT_EQ(pEdit->GetText(), "Vega");
    EXPECT_EQ(pEdit->GetCaretIndex(), 4);
    EXPECT_EQ(Host.Count(10, EN_CHANGE), 4);
    Desk().PressKey(VK_HOME);
    Desk().PressKey(VK_RIGHT);
    Desk().Type("-");
    EXPECT_EQ(pEdit->GetText(), "V-ega");
    Desk().PressKey(VK_BACK);
    Desk().PressKey(VK_DELETE);
    EXPECT_EQ(pEdit->GetText(), "Vga");
    EXPECT_TRUE(pEdit->IsModified());
}

TEST_F(Edits, SelectionIsReplacedByWhatIsTyped)
{
    pEdit->SetText("Betelgeuse");
    EXPECT_EQ(Selection(), (std::pair<int, int>{0, 0})) << "setting the text selects nothing";
    Desk().PressKey(VK_END);
    Desk().KeyDown(VK_SHIFT);
    for (int i = 0; i < 5; ++i) {
        Desk().PressKey(VK_LEFT);
    }
    Desk().KeyUp(VK_SHIFT);
    EXPECT_EQ(Selection(), (std::pair<int, int>{5, 10}));
    Desk().Type("x");
    EXPECT_EQ(pEdit->GetText(), "Betelx");

    // Ctrl+A selects all, and typing replaces everything.
    Desk().KeyDown(VK_CONTROL);
    Desk().Type("a");
    Desk().KeyUp(VK_CONTROL);
    EXPECT_EQ(Selection(), (std::pair<int, int>{0, 6}));
    Desk().Type("Rigel");
    EXPECT_EQ(pEdit->GetText(), "Rigel");

    // A left arrow with a selection goes to its start and keeps the text.
    pEdit->SetSelection(1, 3);
    Desk().PressKey(VK_LEFT);
    EXPECT_EQ(Selection(), (std::pair<int, int>{1, 1}));
    pEdit->SetSelection(2, -1);
    EXPECT_EQ(Selection(), (std::pair<int, int>{2, 5})) << "-1 means the end";
    pEdit->SetSelection(-1, 0);
    EXPECT_EQ(Selection().first, Selection().second) << "-1 as start selects nothing";
}

TEST_F(Edits, TextLimitRefusesWhatDoesNotFitAndSaysSo)
{
    pEdit->SetTextLimit(4);
    Desk().Type("123456");
    EXPECT_EQ(pEdit->GetText(), "1234");
    EXPECT_EQ(Host.Count(10, EN_MAXTEXT), 2);
    // Replacing a selection needs only the room the selection leaves.
    pEdit->SetSelection(1, 3);
    Desk().Type("ab");
    EXPECT_EQ(pEdit->GetText(), "1ab4");
    EXPECT_EQ(pEdit->SendMessage(EM_GETLIMITTEXT), 4);
}

TEST_F(Edits, SettingTheTextTellsTheParentToo)
{
    pEdit->SetText("Sirius");
    EXPECT_EQ(Host.Count(10, EN_CHANGE), 1) << "a guard in the parent is needed, as on Windows";
    EXPECT_FALSE(pEdit->IsModified());
    EXPECT_EQ(pEdit->GetWindowText(), "Sirius");
    EXPECT_EQ(pEdit->GetWindowTextLength(), 6);
}

TEST_F(Edits, StylesChangeWhatTypingGives)
{
    pEdit->ModifyStyle(0, ES_UPPERCASE);
    Desk().Type("m31");
    EXPECT_EQ(pEdit->GetText(), "M31");
    pEdit->SetText("");
    pEdit->ModifyStyle(ES_UPPERCASE, ES_NUMBER);
    Desk().Type("1a2");
    EXPECT_EQ(pEdit->GetText(), "12");
    pEdit->SendMessage(EM_SETREADONLY, TRUE);
    Desk().Type("3");
    Desk().PressKey(VK_BACK);
    EXPECT_EQ(pEdit->GetText(), "12");
}

TEST_F(Edits, CopyAndPasteGoThroughTheClipboard)
{
    Desk().Type("Altair");
    pEdit->SelectAll();
    Desk().KeyDown(VK_CONTROL);
    Desk().Type("c");
    Desk().KeyUp(VK_CONTROL);
    Desk().PressKey(VK_END);
    Desk().Type(" ");
    Desk().KeyDown(VK_CONTROL);
    Desk().Type("v");
    Desk().KeyUp(VK_CONTROL);
    EXPECT_EQ(pEdit->GetText(), "Altair Altair");
}

TEST_F(Edits, ClickPlacesTheCaretAndDragSelects)
{
    pEdit->SetText("Aldebaran");
    // The caret goes to the character boundary nearest the click.
    Desk().Click(*pEdit, TPoint(2, 11));
    EXPECT_EQ(pEdit->GetCaretIndex(), 0);
    Desk().Click(*pEdit, TPoint(140, 11));
    EXPECT_EQ(pEdit->GetCaretIndex(), 9);
    Desk().Drag(*pEdit, TPoint(2, 11), TPoint(140, 11));
    EXPECT_EQ(Selection(), (std::pair<int, int>{0, 9}));
}

TEST_F(Edits, CaretIsDrawnWhereTheTextEnds)
{
    Desk().Type("W");
    Pump();
    auto picture = WindowSystem::Get().CaptureWindow(pEdit->HWindow);
    ASSERT_TRUE(picture);
    // Find the caret: the one dark column right of the letter, the height of a line.
    int caretColumn = -1;
    for (int x = 20; x > 3; --x) {
        if (picture->ColorAt(x, 11) == RGB(0, 0, 0) && picture->ColorAt(x, 6) == RGB(0, 0, 0) &&
            picture->ColorAt(x, 15) == RGB(0, 0, 0)) {
            caretColumn = x;
            break;
        }
    }
    EXPECT_GT(caretColumn, 10) << "after the W, not at the start";
    pEdit->SetSelection(0, 0);
    Pump();
    picture = WindowSystem::Get().CaptureWindow(pEdit->HWindow);
    EXPECT_NE(picture->ColorAt(caretColumn, 6), RGB(0, 0, 0)) << "the caret moved away";
}

TEST_F(Edits, EnterAsksTheParentForOk)
{
    Desk().Type("\r");
    EXPECT_EQ(Host.Count(IDOK, 0), 1);
}

} // namespace
