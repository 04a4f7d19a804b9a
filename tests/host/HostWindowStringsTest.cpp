// The window side of the host services: the "STID_" names of dialogs and menus replaced by
// words, windows made modal by hand, and the host's cursors.
#include <gtest/gtest.h>

#include "host/HostCursor.h"
#include "host/HostModalMaker.h"
#include "host/HostStringTable.h"
#include "host/HostWindowStrings.h"
#include "platform/DialogTemplate.h"
#include "platform/MenuTemplate.h"
#include "platform/ModuleResources.h"
#include "platform/TDialog.h"
#include "platform/TMenu.h"
#include "platform/WindowCalls.h"
#include "platform/WindowSystem.h"
#include "platform/headless/HeadlessBackend.h"

namespace {

DialogTemplate TimeTemplate()
{
    DialogTemplate t;
    t.Title = "STID_ASTRO_TITLE_DATE_TIME";
    t.Cx = 331;
    t.Cy = 163;
    t.Items = {
        DialogItemTemplate::PushButton("STID_ASTRO_BTN_NOW", 0xD4, 7, 7, 50, 14),
        DialogItemTemplate::RadioButton("stid_astro_rbtn_am", 0xD1, 7, 30, 40, 10, true),
        DialogItemTemplate::PushButton("@STID_BTN_OK", IDOK, 220, 142, 50, 14, true),
        DialogItemTemplate::Label("Plain words", -1, 7, 60, 60, 8),
        DialogItemTemplate::Label("STID_NO_SUCH_NAME_ANYWHERE", -1, 7, 80, 60, 8),
    };
    return t;
}

class HostWindows : public ::testing::Test
{
protected:
    void SetUp() override { Headless(); }
    void TearDown() override
    {
        WindowSystem::Get().ProcessAll();
        EXPECT_TRUE(WindowSystem::Get().GetTopLevels().empty());
    }
};

TEST_F(HostWindows, ChildWindowNamesBecomeTheWordsOfTheTable)
{
    TDialog dialog(nullptr, TimeTemplate());
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(replaceHostChildWindowStrings(5, dialog.HWindow), 3);
    EXPECT_EQ(dialog.GetDlgItemText(0xD4),
              *HostStringTable::Shared().Find(5, "STID_ASTRO_BTN_NOW"));
    EXPECT_EQ(dialog.GetDlgItemText(0xD1), *HostStringTable::Shared().Find(5, "STID_ASTRO_RBTN_AM"))
        << "names ignore case";
    EXPECT_EQ(dialog.GetDlgItemText(IDOK), *HostStringTable::Shared().Find(1, "STID_BTN_OK"))
        << "an @ reads the host's table";
    EXPECT_EQ(dialog.GetWindowText(), "STID_ASTRO_TITLE_DATE_TIME")
        << "the caption is the dialog's to set";
    bool plainKept = false;
    bool unknownKept = false;
    for (TWindow* child : dialog.GetChildren()) {
        plainKept = plainKept || child->GetWindowText() == "Plain words";
        unknownKept = unknownKept || child->GetWindowText() == "STID_NO_SUCH_NAME_ANYWHERE";
    }
    EXPECT_TRUE(plainKept);
    EXPECT_TRUE(unknownKept) << "a missing name shows itself rather than nothing";
    EXPECT_EQ(replaceHostChildWindowStrings(5, dialog.HWindow), 0) << "nothing left to replace";
    EXPECT_EQ(replaceHostChildWindowStrings(5, nullptr), 0);
    dialog.Destroy();
}

TEST_F(HostWindows, MenuNamesBecomeWordsAndItemsKeepTheirState)
{
    AddMenuResource(TResId(101),
                    MenuTemplate{{
                        MenuTemplateItem::Command("@STID_MENU_GOTO_FULL_SCREEN", 7532),
                        MenuTemplateItem::Separator(),
                        MenuTemplateItem::Command("STID_ASTRO_MENU_ZOOM_IN", 25021, MF_CHECKED),
                        MenuTemplateItem::SubMenu(
                            "STID_ASTRO_MENU_DISPLAY",
                            {MenuTemplateItem::Command("STID_ASTRO_MENU_PLANET_LABELS", 25010)}),
                    }});
    TMenu menu(GetModuleInstance(), TResId(101));
    EXPECT_EQ(replaceHostMenuStrings(5, menu), 4);
    EXPECT_EQ(menu.GetMenuString(7532, MF_BYCOMMAND),
              *HostStringTable::Shared().Find(1, "STID_MENU_GOTO_FULL_SCREEN"));
    EXPECT_EQ(menu.GetMenuString(25021, MF_BYCOMMAND),
              *HostStringTable::Shared().Find(5, "STID_ASTRO_MENU_ZOOM_IN"));
    EXPECT_TRUE(menu.GetMenuState(25021, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_EQ(menu.GetMenuString(25010, MF_BYCOMMAND),
              *HostStringTable::Shared().Find(5, "STID_ASTRO_MENU_PLANET_LABELS"))
        << "inside the popup too";
    HMENU display = menu.GetSubMenu(3);
    ASSERT_NE(display, nullptr) << "the popup is still there";
    EXPECT_EQ(menu.GetMenuString(3, MF_BYPOSITION),
              *HostStringTable::Shared().Find(5, "STID_ASTRO_MENU_DISPLAY"));
}

TEST_F(HostWindows, ModalMakerDisablesTheOthersAndEnablesThemAgain)
{
    TWindow frame(nullptr, "frame");
    TWindow other(nullptr, "other");
    TWindow hidden(nullptr, "hidden");
    hidden.Attr.Style &= ~WS_VISIBLE;
    TWindow dialog(&frame, "modal");
    dialog.Attr.Style = WS_POPUP | WS_VISIBLE;
    frame.Create();
    other.Create();
    hidden.Create();
    dialog.Create();
    other.EnableWindow(false);
    {
        HostModalMaker maker;
        EXPECT_EQ(maker.CountWindows(dialog.HWindow), 1) << "the frame alone";
        EXPECT_EQ(maker.DisableWindows(dialog.HWindow), 1);
        EXPECT_FALSE(frame.IsWindowEnabled());
        EXPECT_TRUE(dialog.IsWindowEnabled());
        EXPECT_EQ(maker.CountWindows(dialog.HWindow), 0);
        maker.EnableWindows();
        EXPECT_TRUE(frame.IsWindowEnabled());
        EXPECT_FALSE(other.IsWindowEnabled()) << "disabled before, disabled after";
        maker.DisableWindows(dialog.HWindow);
    }
    EXPECT_TRUE(frame.IsWindowEnabled()) << "the maker enables what it disabled when it goes";
    dialog.Destroy();
    hidden.Destroy();
    other.Destroy();
    frame.Destroy();
}

TEST_F(HostWindows, HostCursorsAreSystemCursors)
{
    EXPECT_EQ(GetHostCursor(HOST_CURSOR_LINK), LoadCursorA(nullptr, IDC_HAND));
    EXPECT_EQ(GetHostCursor(HOST_CURSOR_MAP), LoadCursorA(nullptr, IDC_CROSS));
    EXPECT_EQ(GetHostCursor(HOST_CURSOR_WAIT), LoadCursorA(nullptr, IDC_WAIT));
    EXPECT_EQ(GetHostCursor(99), LoadCursorA(nullptr, IDC_ARROW));
    SetCursor(GetHostCursor(HOST_CURSOR_LINK));
    EXPECT_EQ(Headless().GetCursorShape(), IDC_HAND);
    SetCursor(GetHostCursor(HOST_CURSOR_ARROW));
}

} // namespace
