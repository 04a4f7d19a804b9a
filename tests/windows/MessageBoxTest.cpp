// Message boxes: the answers their buttons and keys give, and the question that must be
// answered.
#include <string>

#include "HeadlessFixture.h"
#include "platform/MessageBox.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"

namespace {

using MessageBoxes = HeadlessTest;

TEST_F(MessageBoxes, KeysAndButtonsGiveTheirAnswers)
{
    const struct
    {
        UINT Flags;
        UINT Key; // 0: the button of the answer is pressed
        int Answer;
    } cases[] = {
        {MB_YESNO, 0, IDYES},         {MB_YESNO, 0, IDNO},
        {MB_OK, VK_ESCAPE, IDOK},     {MB_YESNOCANCEL, VK_ESCAPE, IDCANCEL},
        {MB_YESNO, VK_RETURN, IDYES}, {MB_YESNO | MB_DEFBUTTON2, VK_RETURN, IDNO},
    };
    for (const auto& c : cases) {
        std::string caption;
        Desk().AnswerNextModal([&](TWindow& box) {
            caption = box.GetWindowText();
            c.Key ? Desk().PressKey(c.Key) : HeadlessBackend::PressButton(box, c.Answer);
        });
        EXPECT_EQ(MessageBoxA(nullptr, "Show the star rising?", "Planetarium", c.Flags), c.Answer)
            << c.Flags << " " << c.Key;
        EXPECT_EQ(caption, "Planetarium");
    }
}

TEST_F(MessageBoxes, AYesNoQuestionHasToBeAnsweredAndUnansweredIsNo)
{
    Desk().AnswerNextModal([](TWindow& box) {
        EXPECT_EQ(box.ChildWithId(IDCANCEL), nullptr);
        Desk().PressKey(VK_ESCAPE);
        EXPECT_TRUE(box.IsWindowVisible()) << "Escape does not answer it";
        HeadlessBackend::PressButton(box, IDYES);
    });
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO), IDYES);
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO | MB_ICONQUESTION), IDNO);
    nUnansweredBefore = Desk().GetUnansweredCount();
}

} // namespace
