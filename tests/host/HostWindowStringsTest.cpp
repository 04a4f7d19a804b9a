// The window side of the host services: the "STID_" names of dialogs and menus replaced by words,
// windows made modal by hand, and the host's cursors.
#include <gtest/gtest.h>

#include "host/HostCursor.h"
#include "host/HostModalMaker.h"
#include "host/HostWindowStrings.h"
#include "platform/DialogTemplate.h"
#include "platform/MenuTemplate.h"
#include "platform/ModuleResources.h"
#include "platform/TDialog.h"
#include "platform/TMenu.h"
#include "platform/WindowCalls.h"
#include "windows/HeadlessFixture.h"

using HostWindows = HeadlessTest;

TEST_F(HostWindows, NamesInDialogsAndMenusBecomeTheWordsOfTheTable)
{
    DialogTemplate t;
    t.Cx = 331;
    t.Cy = 163;
    t.Items = {DialogItemTemplate::PushButton("stid_astro_btn_now", 0xD4, 7, 7, 50, 14),
               DialogItemTemplate::PushButton("@STID_BTN_OK", IDOK, 220, 142, 50, 14, true),
               DialogItemTemplate::Label("STID_NO_SUCH_NAME", 0xD5, 7, 80, 60, 8)};
    TDialog dialog(nullptr, t);
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(replaceHostChildWindowStrings(5, dialog.HWindow), 2);
    EXPECT_EQ(dialog.GetDlgItemText(0xD4), "Now");
    EXPECT_EQ(dialog.GetDlgItemText(IDOK), "OK") << "an @ reads the host's table";
    EXPECT_EQ(dialog.GetDlgItemText(0xD5), "STID_NO_SUCH_NAME") << "shows itself, not nothing";
    dialog.Destroy();

    AddMenuResource(TResId(101),
                    MenuTemplate{{MenuTemplateItem::SubMenu(
                        "STID_ASTRO_BTN_NOW", {MenuTemplateItem::Command("@STID_BTN_OK", 7)})}});
    TMenu menu(GetModuleInstance(), TResId(101));
    EXPECT_EQ(replaceHostMenuStrings(5, menu), 2);
    EXPECT_EQ(menu.GetMenuString(0, MF_BYPOSITION), "Now");
    EXPECT_EQ(menu.GetMenuString(7, MF_BYCOMMAND), "OK") << "inside the popup too";
}

TEST_F(HostWindows, TheModalMakerEnablesAgainOnlyWhatItDisabled)
{
    TWindow frame(nullptr, "frame"), other(nullptr, "other");
    TWindow dialog(&frame, "modal");
    dialog.Attr.Style = WS_POPUP | WS_VISIBLE;
    ASSERT_TRUE(frame.Create() && other.Create() && dialog.Create());
    other.EnableWindow(false);
    {
        HostModalMaker maker;
        EXPECT_EQ(maker.DisableWindows(dialog.HWindow), 1);
        EXPECT_FALSE(frame.IsWindowEnabled());
    }
    EXPECT_TRUE(frame.IsWindowEnabled());
    EXPECT_FALSE(other.IsWindowEnabled()) << "disabled before, disabled after";
    EXPECT_EQ(GetHostCursor(HOST_CURSOR_LINK), LoadCursorA(nullptr, IDC_HAND));
    dialog.Destroy();
    other.Destroy();
    frame.Destroy();
}
