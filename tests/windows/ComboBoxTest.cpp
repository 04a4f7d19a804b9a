// The drop-down combo box: the list that drops below it, choosing by mouse and by key, the
// notifications, and the edit field of the drop-down kind.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"

namespace {

class ComboBoxes : public HeadlessTest
{
protected:
    void SetUp() override { HeadlessTest::SetUp(); }
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    TComboBox* Make(DWORD kind)
    {
        auto* combo = new TComboBox(&Host, 0x3EB, 10, 10, 160, 120, kind);
        Host.Create();
        for (const char* row :
             {"Constellations", "Planets", "Stars", "Messier objects", "Comets"}) {
            combo->AddString(row);
        }
        Pump();
        return combo;
    }
    ControlHost Host;
};

TEST_F(ComboBoxes, BoxIsOneLineHighAndItsHeightIsTheDroppedList)
{
    TComboBox* combo = Make(CBS_DROPDOWNLIST);
    EXPECT_EQ(combo->GetClientRect().Height(), combo->GetClosedHeight());
    EXPECT_EQ(combo->GetDropHeight(), 120);
    EXPECT_LT(combo->GetClosedHeight(), 30);
}

TEST_F(ComboBoxes, ClickDropsTheListAndAClickOnARowTakesIt)
{
    TComboBox* combo = Make(CBS_DROPDOWNLIST);
    combo->SetSelIndex(0);
    Desk().Click(*combo, TPoint(80, 8));
    ASSERT_TRUE(combo->IsListShown());
    TListBox* list = combo->GetDroppedList();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->GetWindowRect().top, combo->GetWindowRect().bottom) << "just below the box";
    EXPECT_EQ(Host.Count(0x3EB, CBN_DROPDOWN), 1);

    int row = list->GetItemHeight();
    Desk().Click(*list, TPoint(40, 1 + row * 2 + row / 2));
    EXPECT_FALSE(combo->IsListShown());
    EXPECT_EQ(combo->GetSelIndex(), 2);
    EXPECT_EQ(combo->GetText(), "Stars");
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELCHANGE), 1);
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELENDOK), 1);
    EXPECT_EQ(Host.Count(0x3EB, CBN_CLOSEUP), 1);
    EXPECT_EQ(Host.Notes.back().Code, UINT(CBN_SELCHANGE)) << "the change comes last";
}

TEST_F(ComboBoxes, ClickOutsideTheListClosesItUnchanged)
{
    TComboBox* combo = Make(CBS_DROPDOWNLIST);
    combo->SetSelIndex(1);
    Desk().Click(*combo, TPoint(80, 8));
    ASSERT_TRUE(combo->IsListShown());
    Desk().Click(Host, TPoint(390, 290));
    EXPECT_FALSE(combo->IsListShown());
    EXPECT_EQ(combo->GetSelIndex(), 1);
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELENDCANCEL), 1);
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELCHANGE), 0);
}

TEST_F(ComboBoxes, KeysStepThroughTheRowsAndWorkTheDroppedList)
{
    TComboBox* combo = Make(CBS_DROPDOWNLIST);
    combo->SetFocus();
    Desk().PressKey(VK_DOWN);
    EXPECT_EQ(combo->GetSelIndex(), 0);
    Desk().PressKey(VK_DOWN);
    EXPECT_EQ(combo->GetSelIndex(), 1);
    Desk().Type("m");
    EXPECT_EQ(combo->GetText(), "Messier objects");
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELCHANGE), 3);

    Desk().PressKey(VK_F1 + 3); // F4
    ASSERT_TRUE(combo->IsListShown());
    Desk().PressKey(VK_DOWN);
    Desk().PressKey(VK_RETURN);
    EXPECT_FALSE(combo->IsListShown());
    EXPECT_EQ(combo->GetText(), "Comets");
    EXPECT_EQ(combo->FindString("PLAN"), 1);
    EXPECT_EQ(combo->FindExactString("planets"), 1);
}

TEST_F(ComboBoxes, DropDownKindTakesTypingInItsField)
{
    TComboBox* combo = Make(CBS_DROPDOWN);
    combo->SetFocus();
    Desk().Type("Pl");
    EXPECT_EQ(combo->GetText(), "Pl");
    EXPECT_EQ(Host.Count(0x3EB, CBN_EDITCHANGE), 2);
    combo->SetSelIndex(4);
    EXPECT_EQ(combo->GetText(), "Comets");
    EXPECT_EQ(Host.Count(0x3EB, CBN_EDITCHANGE), 2) << "the program's change is no edit";
}

} // namespace
