// Dialogs centred on the window they belong to, and kept on the screen.
#include <gtest/gtest.h>

#include "host/HostCenterDialog.h"
#include "platform/DialogTemplate.h"
#include "platform/WindowSystem.h"
#include "windows/HeadlessFixture.h"

using HostCenterDialogs = HeadlessTest;

TEST_F(HostCenterDialogs, OpenOnTheCentreOfTheirParentNotOfItsFrameAndStayOnTheScreen)
{
    DialogTemplate t;
    t.Cx = 120;
    t.Cy = 60;
    t.Items = {DialogItemTemplate::PushButton("OK", IDOK, 35, 40, 50, 14, true)};
    AddDialogResource(TResId(7301), t);
    const TSize screen = WindowSystem::Get().GetBackend().GetScreenSize();
    TWindow frame(nullptr, "Frame"), corner(nullptr, "Corner");
    frame.Attr = {frame.Attr.Style, 0, 0, 0, 800, 600};
    corner.Attr = {corner.Attr.Style, 0, screen.cx - 40, screen.cy - 30, 40, 30};
    TWindow* map = new TWindow(&frame, "Map");
    map->Attr = {WS_CHILD | WS_VISIBLE, 0, 400, 300, 400, 300};
    ASSERT_TRUE(frame.Create() && map->Create() && corner.Create());
    // The middle of the map, and the bottom right corner of the screen the dialog is moved to.
    for (const auto& [parent, expected] :
         {std::pair(map, TPoint(600, 450)), {&corner, TPoint(screen.cx, screen.cy)}}) {
        HostCenterDialog dialog(parent, TResId(7301));
        Desk().AnswerNextModal([&, expected = expected, parent = parent](TWindow& window) {
            const TRect r = window.GetWindowRect();
            const TPoint seen = parent == map
                                    ? TPoint((r.left + r.right) / 2, (r.top + r.bottom) / 2)
                                    : TPoint(r.right, r.bottom);
            EXPECT_LE(std::max(std::abs(seen.x - expected.x), std::abs(seen.y - expected.y)), 1);
            Desk().PressKey(VK_RETURN);
        });
        EXPECT_EQ(dialog.Execute(), IDOK);
    }
    corner.Destroy();
    frame.Destroy();
}
