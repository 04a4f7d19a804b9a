// The list box: rows in order or sorted, the selection by click and by key, the top row,
// finding a row by its beginning as LB_FINDSTRING does, and rows drawn by an item master.
#include <string>
#include <vector>

#include "ControlHost.h"
#include "HeadlessFixture.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TDialog.h"
#include "platform/TEdit.h"
#include "platform/TListBox.h"
#include "platform/TListBoxItemMaster.h"
#include "platform/WindowCalls.h"

namespace {

const std::vector<std::string> kCities = {"Sydney, Australia", "Aberdeen, Scotland", "Tokyo, Japan",
                                          "Syracuse, United States", "Adelaide, Australia"};

class ListBoxes : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        pList = new TListBox(&Host, 20, 10, 10, 200, 100);
        Host.Create();
        Pump();
    }
    void TearDown() override
    {
        Host.Destroy();
        HeadlessTest::TearDown();
    }
    void AddCities()
    {
        for (const std::string& city : kCities) {
            pList->AddString(city);
        }
    }
    ControlHost Host;
    TListBox* pList = nullptr;
};

TEST_F(ListBoxes, SortedListKeepsRowsInOrderOfTheirText)
{
    AddCities();
    EXPECT_EQ(pList->GetCount(), 5);
    EXPECT_EQ(pList->GetString(0), "Aberdeen, Scotland");
    EXPECT_EQ(pList->GetString(4), "Tokyo, Japan");
    pList->ModifyStyle(LBS_SORT, 0);
    EXPECT_EQ(pList->AddString("Aachen, Germany"), 5) << "unsorted rows go at the end";
    EXPECT_EQ(pList->InsertString("Zagreb, Croatia", 0), 0);
    EXPECT_EQ(pList->DeleteString(9), LB_ERR);
    EXPECT_EQ(pList->DeleteString(0), 6);
}

TEST_F(ListBoxes, FindStringLooksAfterTheStartRowAndWrapsRound)
{
    AddCities(); // Aberdeen, Adelaide, Sydney, Syracuse, Tokyo
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, WPARAM(-1), LPARAM("sy")), 2);
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, 2, LPARAM("SY")), 3) << "after row 2 first";
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, 3, LPARAM("sY")), 2) << "then round again";
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, 0, LPARAM("aberdeen")), 0)
        << "the start row itself comes last";
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, 0, LPARAM("Perth")), LB_ERR);
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, 99, LPARAM("a")), 0)
        << "a start beyond the rows searches from the top";
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRINGEXACT, WPARAM(-1), LPARAM("tokyo, japan")), 4);
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRINGEXACT, WPARAM(-1), LPARAM("tokyo")), LB_ERR);
    EXPECT_EQ(pList->SendMessage(LB_SELECTSTRING, WPARAM(-1), LPARAM("ad")), 1);
    EXPECT_EQ(pList->GetSelIndex(), 1);

    pList->ClearList();
    EXPECT_EQ(pList->SendMessage(LB_FINDSTRING, WPARAM(-1), LPARAM("")), LB_ERR);
}

TEST_F(ListBoxes, UserSelectionTellsTheParentProgramSelectionDoesNot)
{
    AddCities();
    pList->SetSelIndex(2);
    EXPECT_EQ(Host.Count(20, LBN_SELCHANGE), 0);
    int rowHeight = pList->GetItemHeight();
    Desk().Click(*pList, TPoint(30, 1 + rowHeight * 3 + rowHeight / 2));
    EXPECT_EQ(pList->GetSelIndex(), 3);
    EXPECT_EQ(Host.Count(20, LBN_SELCHANGE), 1);
    Desk().PressKey(VK_DOWN);
    EXPECT_EQ(pList->GetSelIndex(), 4);
    Desk().PressKey(VK_DOWN);
    EXPECT_EQ(pList->GetSelIndex(), 4) << "no row after the last";
    EXPECT_EQ(Host.Count(20, LBN_SELCHANGE), 2) << "staying put is no change";
    Desk().PressKey(VK_HOME);
    EXPECT_EQ(pList->GetSelIndex(), 0);
    Desk().Type("t");
    EXPECT_EQ(pList->GetString(pList->GetSelIndex()), "Tokyo, Japan");
    Desk().DoubleClick(*pList, TPoint(30, 1 + rowHeight / 2));
    EXPECT_EQ(Host.Count(20, LBN_DBLCLK), 1);
    EXPECT_EQ(pList->GetSelIndex(), 0);
    EXPECT_EQ(pList->SetSelIndex(9), LB_ERR);
    EXPECT_EQ(pList->GetSelIndex(), -1);
}

TEST_F(ListBoxes, SelectionScrollsIntoViewAndTheTopRowStaysInRange)
{
    pList->ModifyStyle(LBS_SORT, 0);
    for (int i = 0; i < 40; ++i) {
        pList->AddString("Star " + std::to_string(i));
    }
    int visible = pList->GetVisibleRows();
    ASSERT_LT(visible, 40);
    pList->SetSelIndex(30);
    EXPECT_EQ(pList->GetTopIndex(), 30 - visible + 1);
    pList->SetSelIndex(3);
    EXPECT_EQ(pList->GetTopIndex(), 3);
    EXPECT_EQ(pList->SetTopIndex(39), LB_OKAY);
    EXPECT_EQ(pList->GetTopIndex(), 40 - visible) << "the last page stays full";
    Desk().Wheel(pList->ClientToScreen(TPoint(10, 10)), WHEEL_DELTA);
    EXPECT_EQ(pList->GetTopIndex(), 40 - visible) << "the wheel goes to the focused window";
    pList->SetFocus();
    Desk().Wheel(pList->ClientToScreen(TPoint(10, 10)), WHEEL_DELTA);
    EXPECT_EQ(pList->GetTopIndex(), 40 - visible - 3);
    pList->SetItemData(5, 12345);
    EXPECT_EQ(pList->GetItemData(5), 12345);
    EXPECT_EQ(pList->GetItemData(40), LB_ERR);
}

TEST_F(ListBoxes, ScrollBarMovesTheRows)
{
    pList->ModifyStyle(LBS_SORT, 0);
    for (int i = 0; i < 40; ++i) {
        pList->AddString("Star " + std::to_string(i));
    }
    // The bar at the right: its lower arrow steps one row down.
    Desk().Click(*pList, TPoint(200 - 8, 100 - 6));
    EXPECT_EQ(pList->GetTopIndex(), 1);
    Desk().Click(*pList, TPoint(200 - 8, 6));
    EXPECT_EQ(pList->GetTopIndex(), 0);
}

// A master that draws each row as a bar as long as its number.
class BarMaster : public TListBoxItemMaster
{
public:
    int nCount = 3;
    std::vector<int> aPainted;
    int GetItemCount() const override { return nCount; }
    std::string GetItemText(int row) const override { return "Bar " + std::to_string(row); }
    int GetItemHeight(const TDC&) const override { return 10; }
    void PaintItem(TDC& dc, int row, const TRect& rect, bool selected, bool) override
    {
        aPainted.push_back(row);
        dc.FillRect(TRect(rect.left, rect.top, rect.left + 10 * (row + 1), rect.bottom),
                    TBrush(selected ? TColor(255, 0, 0) : TColor(0, 0, 255)));
    }
};

TEST_F(ListBoxes, ItemMasterCountsAndPaintsTheRows)
{
    BarMaster master;
    pList->SetItemMaster(&master);
    EXPECT_EQ(pList->GetCount(), 3);
    EXPECT_EQ(pList->GetItemHeight(), 10);
    EXPECT_EQ(pList->AddString("ignored"), LB_ERR) << "the rows are the master's";
    pList->SetSelIndex(1);
    Pump();
    EXPECT_EQ(master.aPainted, (std::vector<int>{0, 1, 2}));
    auto picture = WindowSystem::Get().CaptureWindow(pList->HWindow);
    EXPECT_EQ(picture->ColorAt(1 + 5, 1 + 5), RGB(0, 0, 255));
    EXPECT_EQ(picture->ColorAt(1 + 15, 1 + 15), RGB(255, 0, 0)) << "row 1, selected";
    EXPECT_EQ(picture->ColorAt(1 + 15, 1 + 5), RGB(255, 255, 255)) << "row 0 is 10 long";
    EXPECT_EQ(pList->FindString("bar 2"), 2);

    master.nCount = 1;
    pList->Reset();
    EXPECT_EQ(pList->GetCount(), 1);
    EXPECT_EQ(pList->GetSelIndex(), -1) << "the selected row went";
    pList->SetItemMaster(nullptr);
}

// The search of the location dialog: typing in the field selects the first city that begins
// with the text.
class CitySearch : public TDialog
{
public:
    CitySearch() : TDialog(nullptr, "Location")
    {
        Attr.W = 300;
        Attr.H = 200;
        pName = new TEdit(this, 0x65, "", 10, 10, 200, 22);
        pCities = new TListBox(this, 0x66, 10, 40, 200, 120);
    }
    TEdit* pName;
    TListBox* pCities;

    void SetupWindow() override
    {
        TDialog::SetupWindow();
        for (const std::string& city : kCities) {
            pCities->AddString(city);
        }
    }
    void EvNameChange()
    {
        if (!pName->HasFocus()) {
            return;
        }
        std::string text = pName->GetText();
        LRESULT row =
            pCities->SendMessage(LB_FINDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        if (row != LB_ERR) {
            pCities->SendMessage(LB_SETCURSEL, WPARAM(row));
        }
    }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{NotifyRow<0x65, EN_CHANGE, &CitySearch::EvNameChange>()};
        const TResponseRow* row = table.Find(event);
        return row ? row : TDialog::Find(event);
    }
};

TEST_F(ListBoxes, TypingAPrefixSelectsTheMatchingRowInEitherCase)
{
    CitySearch dialog;
    std::vector<std::string> chosen;
    auto selected = [&] { return dialog.pCities->GetString(dialog.pCities->GetSelIndex()); };
    Desk().AnswerNextModal([&](TWindow& window) {
        HeadlessBackend::TypeInto(window, 0x65, "sy");
        chosen.push_back(selected());
        HeadlessBackend::TypeInto(window, 0x65, "SYR");
        chosen.push_back(selected());
        HeadlessBackend::TypeInto(window, 0x65, "ab");
        chosen.push_back(selected());
        HeadlessBackend::TypeInto(window, 0x65, "Perth");
        chosen.push_back(selected());
        Desk().PressKey(VK_RETURN);
    });
    EXPECT_EQ(dialog.Execute(), IDOK) << "Enter without a default button is command IDOK";
    EXPECT_EQ(chosen, (std::vector<std::string>{"Sydney, Australia", "Syracuse, United States",
                                                "Aberdeen, Scotland", "Aberdeen, Scotland"}))
        << "a text that begins no row leaves the selection where it was";
}

} // namespace
