// The list box: rows in order or sorted, finding a row by its beginning as LB_FINDSTRING does,
// the selection by click and by key with what the parent hears, and the top row and its scroll
// bar.
#include <string>
#include <tuple>

#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TListBox.h"

namespace {

class ListBoxes : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        pList = new TListBox(&Host, 20, 10, 10, 200, 100);
        Host.Create();
        Pump();
        for (const char* city : {"Sydney, Australia", "Aberdeen, Scotland", "Tokyo, Japan",
                                 "Syracuse, United States", "Adelaide, Australia"}) {
            pList->AddString(city);
        }
    }
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    LRESULT Find(UINT message, int start, const char* text)
    {
        return pList->SendMessage(message, WPARAM(start), LPARAM(text));
    }
    ControlHost Host;
    TListBox* pList = nullptr;
};

TEST_F(ListBoxes, SortedRowsAreFoundByTheirBeginningFromTheRowAfterTheStartRoundAgain)
{
    // Aberdeen, Adelaide, Sydney, Syracuse, Tokyo
    const std::tuple<UINT, int, const char*, LRESULT> cases[] = {
        {LB_FINDSTRING, -1, "sy", 2},
        {LB_FINDSTRING, 2, "SY", 3},
        {LB_FINDSTRING, 3, "sY", 2},
        {LB_FINDSTRING, 0, "aberdeen", 0}, // the start row itself comes last
        {LB_FINDSTRING, 0, "Perth", LB_ERR},
        {LB_FINDSTRING, 99, "a", 0}, // beyond the rows: from the top
        {LB_FINDSTRINGEXACT, -1, "tokyo, japan", 4},
        {LB_FINDSTRINGEXACT, -1, "tokyo", LB_ERR},
        {LB_SELECTSTRING, -1, "ad", 1},
    };
    for (const auto& [message, start, text, row] : cases) {
        EXPECT_EQ(Find(message, start, text), row) << text << " after " << start;
    }
    EXPECT_EQ(pList->GetSelIndex(), 1);
}

TEST_F(ListBoxes, UserSelectionTellsTheParentProgramSelectionDoesNot)
{
    pList->SetSelIndex(2);
    EXPECT_EQ(Host.Count(20, LBN_SELCHANGE), 0);
    const int row = pList->GetItemHeight();
    Desk().Click(*pList, TPoint(30, 1 + row * 3 + row / 2));
    EXPECT_EQ(pList->GetSelIndex(), 3);
    Desk().PressKey(VK_DOWN);
    Desk().PressKey(VK_DOWN);
    EXPECT_EQ(pList->GetSelIndex(), 4) << "no row after the last";
    EXPECT_EQ(Host.Count(20, LBN_SELCHANGE), 2) << "staying put is no change";
    Desk().PressKey(VK_HOME);
    Desk().Type("t");
    EXPECT_EQ(pList->GetSelIndex(), 4) << "a letter goes to the row it begins";
    EXPECT_EQ(pList->SetSelIndex(9), LB_ERR);
    EXPECT_EQ(pList->GetSelIndex(), -1);
}

TEST_F(ListBoxes, SelectionScrollsIntoViewAndTheTopRowStaysInRange)
{
    for (int i = 5; i < 40; ++i) {
        pList->AddString("Star " + std::to_string(i));
    }
    const int visible = pList->GetVisibleRows();
    ASSERT_LT(visible, 40);
    pList->SetSelIndex(30);
    EXPECT_EQ(pList->GetTopIndex(), 30 - visible + 1);
    pList->SetSelIndex(3);
    EXPECT_EQ(pList->GetTopIndex(), 3);
    pList->SetTopIndex(39);
    EXPECT_EQ(pList->GetTopIndex(), 40 - visible) << "the last page stays full";
    // The bar at the right: its arrow steps one row.
    Desk().Click(*pList, TPoint(200 - 8, 6));
    EXPECT_EQ(pList->GetTopIndex(), 39 - visible);
}

} // namespace
