// Message boxes: their buttons, the answers they return, Escape and the default button.
#include <string>

#include "HeadlessFixture.h"
#include "platform/MessageBox.h"
#include "platform/MessageBoxDialog.h"
#include "platform/TButton.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"

namespace {

using MessageBoxes = HeadlessTest;

TEST_F(MessageBoxes, YesNoBoxIsAnsweredBothWays)
{
    TWindow owner(nullptr, "Owner");
    owner.Create();
    std::string seenCaption;
    Desk().AnswerNextModal([&](TWindow& box) {
        seenCaption = box.GetWindowText();
        EXPECT_NE(box.ChildWithId(IDYES), nullptr);
        EXPECT_NE(box.ChildWithId(IDNO), nullptr);
        EXPECT_EQ(box.ChildWithId(IDOK), nullptr);
        EXPECT_EQ(box.ChildWithId(IDCANCEL), nullptr);
        HeadlessBackend::PressButton(box, IDYES);
    });
    EXPECT_EQ(owner.MessageBox("Show the star rising?", "Planetarium", MB_YESNO), IDYES);
    EXPECT_EQ(seenCaption, "Planetarium");

    Desk().AnswerNextModal([](TWindow& box) { HeadlessBackend::PressButton(box, IDNO); });
    EXPECT_EQ(MessageBoxA(owner.HWindow, "Show the star rising?", "Planetarium", MB_YESNO), IDNO);
    owner.Destroy();
}

TEST_F(MessageBoxes, EscapeAnswersCancelOrTheOnlyButtonAndNothingInYesNo)
{
    Desk().AnswerNextModal([](TWindow&) { Desk().PressKey(VK_ESCAPE); });
    EXPECT_EQ(MessageBoxA(nullptr, "Done.", "Note", MB_OK), IDOK);

    Desk().AnswerNextModal([](TWindow&) { Desk().PressKey(VK_ESCAPE); });
    EXPECT_EQ(MessageBoxA(nullptr, "Save?", "Note", MB_YESNOCANCEL), IDCANCEL);

    Desk().AnswerNextModal([](TWindow& box) {
        Desk().PressKey(VK_ESCAPE);
        EXPECT_TRUE(box.IsWindowVisible()) << "a yes-no question has to be answered";
        HeadlessBackend::PressButton(box, IDYES);
    });
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO), IDYES);
}

TEST_F(MessageBoxes, EnterPressesTheDefaultButtonThatTheFlagsChoose)
{
    Desk().AnswerNextModal([](TWindow&) { Desk().PressKey(VK_RETURN); });
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO), IDYES);
    Desk().AnswerNextModal([](TWindow&) { Desk().PressKey(VK_RETURN); });
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO | MB_DEFBUTTON2), IDNO);
}

TEST_F(MessageBoxes, UnansweredYesNoBoxAnswersNo)
{
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Note", MB_YESNO | MB_ICONQUESTION), IDNO);
    nUnansweredBefore = Desk().GetUnansweredCount();
}

TEST_F(MessageBoxes, LongTextWrapsAndTheBoxGrowsWithIt)
{
    MessageBoxDialog shortBox(nullptr, "Short.", "Note", MB_OK);
    std::string text;
    for (int i = 0; i < 40; ++i) {
        text += "A rather long sentence. ";
    }
    MessageBoxDialog longBox(nullptr, text, "Note", MB_OK | MB_ICONHAND);
    EXPECT_GT(longBox.Attr.H, shortBox.Attr.H + 40);
    EXPECT_LT(longBox.Attr.W, 480) << "lines wrap instead of widening the box";
    EXPECT_EQ(shortBox.GetButtons(), std::vector<int>{IDOK});
    EXPECT_EQ(longBox.GetEscapeAnswer(), IDOK);
}

TEST_F(MessageBoxes, BoxIsDrawnWithItsSignAndButtons)
{
    Desk().AnswerNextModal([](TWindow& box) {
        auto picture = WindowSystem::Get().CaptureWindow(box.HWindow);
        ASSERT_TRUE(picture);
        // The sign of an error is red, in the top left corner.
        EXPECT_EQ(picture->ColorAt(16, 12 + 16), RGB(196, 43, 28));
        TWindow* ok = box.ChildWithId(IDOK);
        TRect r = ok->GetRect();
        COLORREF face = picture->ColorAt(r.left + 4, r.top + r.Height() / 2);
        EXPECT_NE(face, picture->ColorAt(r.left - 4, r.top + r.Height() / 2))
            << "the button stands out from the box";
        HeadlessBackend::PressButton(box, IDOK);
    });
    EXPECT_EQ(MessageBoxA(nullptr, "It failed.", "Error", MB_OK | MB_ICONHAND), IDOK);
}

} // namespace
