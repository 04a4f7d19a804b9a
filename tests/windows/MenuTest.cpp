// Popup menus: check marks, separators, greyed items and submenus, chosen by mouse and by key,
// and the command that reaches the owner.
#include "HeadlessFixture.h"
#include "platform/MenuTemplate.h"
#include "platform/ModuleResources.h"
#include "platform/PopupMenuWindow.h"
#include "platform/TPopupMenu.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"

namespace {

class Owner : public TWindow
{
public:
    Owner() : TWindow(nullptr, "Owner") {}
    std::vector<int> Commands;
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == WM_COMMAND) {
            Commands.push_back(LOWORD(wParam));
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
};

class Menus : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        AddMenuResource(
            TResId(102),
            MenuTemplate{{
                MenuTemplateItem::Command("&Constellations", 25009),
                MenuTemplateItem::Command("Planet labels", 25010, MF_CHECKED),
                MenuTemplateItem::Separator(),
                MenuTemplateItem::Command("Grid", 25012, MF_GRAYED),
                MenuTemplateItem::SubMenu("Locate", {MenuTemplateItem::Command("Sun", 25027),
                                                     MenuTemplateItem::Command("Moon", 25028)}),
            }});
        owner.Create();
        Pump();
    }
    void TearDown() override
    {
        owner.Destroy();
        HeadlessTest::TearDown();
    }
    Owner owner;
};

TEST_F(Menus, LoadedMenuHoldsItsItemsAndTheirStates)
{
    TMenu menu(GetModuleInstance(), TResId(102));
    ASSERT_TRUE(menu.IsOK());
    EXPECT_EQ(menu.GetMenuItemCount(), 5);
    EXPECT_EQ(menu.GetMenuItemID(0), 25009u);
    EXPECT_EQ(menu.GetMenuItemID(4), 0xFFFFFFFFu) << "a popup has no id";
    EXPECT_TRUE(menu.GetMenuState(25010, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.GetMenuState(2, MF_BYPOSITION) & MF_SEPARATOR);
    EXPECT_EQ(menu.GetMenuString(25028, MF_BYCOMMAND), "Moon") << "found inside the popup";
    EXPECT_EQ(menu.CheckMenuItem(25010, MF_UNCHECKED), UINT(MF_CHECKED));
    EXPECT_FALSE(menu.GetMenuState(25010, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.ModifyMenu(25009, MF_BYCOMMAND | MF_STRING, 25009, "Figures"));
    EXPECT_EQ(menu.GetMenuString(0, MF_BYPOSITION), "Figures");
    EXPECT_TRUE(menu.DeleteMenu(25012, MF_BYCOMMAND));
    EXPECT_EQ(menu.GetMenuItemCount(), 4);
    EXPECT_FALSE(menu.DeleteMenu(25012, MF_BYCOMMAND));
    EXPECT_EQ(TMenu(GetModuleInstance(), TResId(999)).IsOK(), false);
}

TEST_F(Menus, ChosenItemReachesTheOwnerAsACommand)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal([](TWindow& window) { HeadlessBackend::ChooseMenuItem(window, 25010); });
    EXPECT_TRUE(menu.TrackPopupMenu(TPM_LEFTALIGN, 100, 100, 0, owner.HWindow));
    EXPECT_TRUE(owner.Commands.empty()) << "posted, so it comes after the menu has gone";
    Pump();
    EXPECT_EQ(owner.Commands, std::vector<int>{25010});
}

TEST_F(Menus, SubmenuOpensOnTheWayToItsItem)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal([](TWindow& window) { HeadlessBackend::ChooseMenuItem(window, 25028); });
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 100, 100, 0, owner.HWindow), 25028);
    Pump();
    EXPECT_TRUE(owner.Commands.empty()) << "TPM_RETURNCMD only returns it";
}

TEST_F(Menus, GreyedItemsAndSeparatorsCannotBeChosenAndEscapeLeaves)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal([](TWindow& window) {
        auto& popup = dynamic_cast<PopupMenuWindow&>(window);
        for (int position : {2, 3}) {
            TRect r = popup.GetItemRect(position);
            Desk().Click(popup, TPoint(r.left + 30, r.top + r.Height() / 2));
            EXPECT_TRUE(popup.IsWindowVisible());
        }
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 100, 100, 0, owner.HWindow), 0);
}

TEST_F(Menus, KeysMoveTheHighlightPastSeparatorsAndGreyedItems)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal([](TWindow& window) {
        auto& popup = dynamic_cast<PopupMenuWindow&>(window);
        Desk().PressKey(VK_DOWN);
        EXPECT_EQ(popup.GetHighlight(), 0);
        Desk().PressKey(VK_DOWN);
        Desk().PressKey(VK_DOWN);
        EXPECT_EQ(popup.GetHighlight(), 4) << "the separator and the greyed item are skipped";
        Desk().PressKey(VK_RIGHT);
        ASSERT_NE(popup.GetOpenSubMenu(), nullptr);
        EXPECT_EQ(popup.GetOpenSubMenu()->GetHighlight(), 0);
        Desk().PressKey(VK_DOWN);
        Desk().PressKey(VK_RETURN);
    });
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 100, 100, 0, owner.HWindow), 25028);
}

TEST_F(Menus, ClickOutsideLeavesTheMenuAndMnemonicsChoose)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal(
        [](TWindow&) { Desk().Click(*GetWindowPtr(GetActiveWindow()), TPoint(-50, -50)); });
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 300, 300, 0, owner.HWindow), 0);
    Desk().AnswerNextModal([](TWindow&) { Desk().Type("c"); });
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 300, 300, 0, owner.HWindow), 25009);
}

TEST_F(Menus, MenuStaysOnTheScreenAndShowsItsCheckMark)
{
    TPopupMenu menu(LoadMenuA(GetModuleInstance(), TResId(102)), AutoDelete);
    Desk().AnswerNextModal([](TWindow& window) {
        auto& popup = dynamic_cast<PopupMenuWindow&>(window);
        TRect screen = popup.GetWindowRect();
        EXPECT_LE(screen.right, 1024);
        EXPECT_LE(screen.bottom, 768);
        EXPECT_GT(screen.top, 600) << "pushed up, not cut off";
        auto picture = WindowSystem::Get().CaptureWindow(popup.HWindow);
        auto darkIn = [&](const TRect& r) {
            int dark = 0;
            for (int y = r.top; y < r.bottom; ++y) {
                for (int x = r.left; x < r.right; ++x) {
                    dark += GetRValue(picture->ColorAt(x, y)) < 100;
                }
            }
            return dark;
        };
        TRect checked = popup.GetItemRect(1);
        TRect plain = popup.GetItemRect(0);
        EXPECT_GT(darkIn(TRect(checked.left, checked.top, checked.left + 20, checked.bottom)), 4);
        EXPECT_EQ(darkIn(TRect(plain.left, plain.top, plain.left + 20, plain.bottom)), 0);
        Desk().PressKey(VK_ESCAPE);
    });
    menu.TrackPopupMenu(TPM_RETURNCMD, 1000, 760, 0, owner.HWindow);
}

} // namespace
