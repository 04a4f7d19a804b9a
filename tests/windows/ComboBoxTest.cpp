// The drop-down list combo box: the list that drops below it, choosing by mouse, and the
// notifications in their order.
#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"

namespace {

class ComboBoxes : public HeadlessTest
{
protected:
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    TComboBox& Make(DWORD kind)
    {
        auto* combo = new TComboBox(&Host, 0x3EB, 10, 10, 160, 120, kind);
        Host.Create();
        for (const char* row :
             {"Constellations", "Planets", "Stars", "Messier objects", "Comets"}) {
            combo->AddString(row);
        }
        Pump();
        return *combo;
    }
    ControlHost Host;
};

TEST_F(ComboBoxes, ClickDropsTheListBelowAndAClickOnARowOrOutsideClosesIt)
{
    TComboBox& combo = Make(CBS_DROPDOWNLIST);
    combo.SetSelIndex(0);
    Desk().Click(combo, TPoint(80, 8));
    ASSERT_TRUE(combo.IsListShown());
    TListBox& list = *combo.GetDroppedList();
    EXPECT_EQ(list.GetWindowRect().top, combo.GetWindowRect().bottom) << "just below the box";
    const int row = list.GetItemHeight();
    Desk().Click(list, TPoint(40, 1 + row * 2 + row / 2));
    EXPECT_FALSE(combo.IsListShown());
    EXPECT_EQ(combo.GetText(), "Stars");
    const std::vector<ControlHost::Notification> notes = {{0x3EB, CBN_SETFOCUS},
                                                          {0x3EB, CBN_DROPDOWN},
                                                          {0x3EB, CBN_SELENDOK},
                                                          {0x3EB, CBN_CLOSEUP},
                                                          {0x3EB, CBN_SELCHANGE}};
    EXPECT_EQ(Host.Notes, notes) << "the change comes last";

    Host.Notes.clear();
    Desk().Click(combo, TPoint(80, 8));
    Desk().Click(Host, TPoint(390, 290));
    EXPECT_FALSE(combo.IsListShown());
    EXPECT_EQ(combo.GetSelIndex(), 2);
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELENDCANCEL), 1);
    EXPECT_EQ(Host.Count(0x3EB, CBN_SELCHANGE), 0);
}

} // namespace
