// The edit field: typing at the caret, the keys that move, select and delete, the text limit,
// the clipboard, the mouse, and the notifications its parent hears.
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
    void Control(const char* key)
    {
        Desk().KeyDown(VK_CONTROL);
        Desk().Type(key);
        Desk().KeyUp(VK_CONTROL);
    }

    ControlHost Host;
    TEdit* pEdit = nullptr;
};

TEST_F(Edits, TypingInsertsAtTheCaretAndKeysMoveSelectAndDelete)
{
    Desk().Type("Vega");
    EXPECT_EQ(Host.Count(10, EN_CHANGE), 4) << "the parent hears each change";
    Desk().PressKey(VK_HOME);
    Desk().PressKey(VK_RIGHT);
    Desk().Type("-");
    Desk().PressKey(VK_BACK);
    Desk().PressKey(VK_DELETE);
    EXPECT_EQ(pEdit->GetText(), "Vga");

    // Shift with the arrows selects; what is typed replaces the selection.
    pEdit->SetText("Betelgeuse");
    Desk().PressKey(VK_END);
    Desk().KeyDown(VK_SHIFT);
    for (int i = 0; i < 5; ++i) {
        Desk().PressKey(VK_LEFT);
    }
    Desk().KeyUp(VK_SHIFT);
    EXPECT_EQ(Selection(), (std::pair<int, int>{5, 10}));
    Desk().Type("x");
    EXPECT_EQ(pEdit->GetText(), "Betelx");
    // Ctrl+A selects all, Ctrl+C and Ctrl+V copy and paste.
    Control("a");
    Control("c");
    Desk().PressKey(VK_END);
    Control("v");
    EXPECT_EQ(pEdit->GetText(), "BetelxBetelx");
}

TEST_F(Edits, TheLimitRefusesWhatDoesNotFitAndSaysSo)
{
    pEdit->SetTextLimit(4);
    Desk().Type("123456");
    EXPECT_EQ(pEdit->GetText(), "1234");
    EXPECT_EQ(Host.Count(10, EN_MAXTEXT), 2);
    pEdit->SetSelection(1, 3);
    Desk().Type("ab");
    EXPECT_EQ(pEdit->GetText(), "1ab4") << "a selection makes room";
}

} // namespace
