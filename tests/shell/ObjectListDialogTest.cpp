// The Locate Object dialog: the catalogue rows, the named objects in name order, the choice
// that OK leaves, and the planets for a value that names no catalogue.
#include <gtest/gtest.h>

#include "DialogTesting.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/LorvString.h"
#include "host/HostStringTable.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "shell/ObjectListDialog.h"

namespace {

class ObjectListDialogs : public DialogTest
{
protected:
    static TListBox& Objects(TWindow& window)
    {
        return *dynamic_cast<TListBox*>(window.ChildWithId(ObjectListDialog::kObjectList));
    }
    static TComboBox& Catalogues(TWindow& window)
    {
        return *dynamic_cast<TComboBox*>(window.ChildWithId(ObjectListDialog::kCatalogueList));
    }
    static void ExpectNameOrder(TListBox& list)
    {
        for (int row = 1; row < list.GetCount(); ++row) {
            EXPECT_LE(CompareNoCase(list.GetString(row - 1), list.GetString(row)), 0)
                << list.GetString(row - 1) << " before " << list.GetString(row);
        }
    }

    AstroItemCollector Collector;
};

TEST_F(ObjectListDialogs, OpensOnTheCatalogueGivenWithItsObjectsInNameOrder)
{
    ObjectListDialog dialog(nullptr, Collector, AstroCatalogue::PLANETS);
    RunDialog(dialog, [&](TWindow& window) {
        EXPECT_EQ(window.GetWindowText(), getHostString(5, 0x9c4));
        EXPECT_TRUE(AllKeysReplaced(window));
        EXPECT_EQ(window.ChildWithId(IDOK)->GetWindowText(),
                  replaceHostString(5, "STID_ASTRO_BTN_LOCATE"));
        ASSERT_EQ(Catalogues(window).GetCount(), 5);
        EXPECT_EQ(Catalogues(window).GetString(0), getHostString(5, 1110));
        EXPECT_EQ(Catalogues(window).GetString(4), getHostString(5, 1150));
        EXPECT_EQ(Catalogues(window).GetSelIndex(), 1);
        TListBox& list = Objects(window);
        EXPECT_EQ(list.GetCount(), 8) << "the planets without the Earth, Sun and Moon";
        EXPECT_GE(list.FindExactString("Mars"), 0);
        ExpectNameOrder(list);
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(dialog.GetChosenObject(), nullptr);
}

TEST_F(ObjectListDialogs, AnotherRowListsItsCatalogue)
{
    ObjectListDialog dialog(nullptr, Collector, AstroCatalogue::PLANETS);
    RunDialog(dialog, [&](TWindow& window) {
        Catalogues(window).SetFocus();
        Desk().PressKey(VK_UP); // the row above the planets: constellations
        EXPECT_EQ(Catalogues(window).GetSelIndex(), 0);
        EXPECT_EQ(Objects(window).GetCount(), 88);
        ExpectNameOrder(Objects(window));
        Desk().PressKey(VK_ESCAPE);
    });
}

TEST_F(ObjectListDialogs, OkLeavesTheObjectOfTheSelectedRow)
{
    ObjectListDialog dialog(nullptr, Collector, AstroCatalogue::PLANETS);
    EXPECT_EQ(RunDialog(dialog,
                        [&](TWindow& window) {
                            Objects(window).SetSelIndex(Objects(window).FindExactString("Saturn"));
                            HeadlessBackend::PressButton(window, IDOK);
                        }),
              IDOK);
    ASSERT_NE(dialog.GetChosenObject(), nullptr);
    EXPECT_EQ(dialog.GetChosenObject()->GetListName(), "Saturn");

    ObjectListDialog none(nullptr, Collector, AstroCatalogue::COMETS);
    RunDialog(none, [](TWindow& window) { HeadlessBackend::PressButton(window, IDOK); });
    EXPECT_EQ(none.GetChosenObject(), nullptr) << "OK without a row chooses nothing";
}

TEST_F(ObjectListDialogs, AValueOfNoCatalogueOpensOnThePlanets)
{
    EXPECT_EQ(ObjectListDialog::RowOf(AstroCatalogue::AstroCatalogues(0x20)), 1);
    EXPECT_EQ(ObjectListDialog::RowOf(AstroCatalogue::AstroCatalogues(0x03)), 1);
    EXPECT_EQ(ObjectListDialog::RowOf(AstroCatalogue::MESSIER_OBJECTS), 3);
    EXPECT_EQ(ObjectListDialog::RowOf(AstroCatalogue::STARS), 2);
}

TEST_F(ObjectListDialogs, HelpOpensTheTopic)
{
    ObjectListDialog dialog(nullptr, Collector, AstroCatalogue::COMETS);
    RunDialog(dialog, [](TWindow& window) {
        HeadlessBackend::PressButton(window, 9);
        Desk().PressKey(VK_ESCAPE);
    });
    ASSERT_EQ(HelpRequests.size(), 1u);
    EXPECT_EQ(HelpRequests[0].Key, "Planetarium");
}

} // namespace
