// Dialogs centred on the window they belong to, and kept on the screen.
#include <gtest/gtest.h>

#include "host/HostCenterDialog.h"
#include "platform/DialogTemplate.h"
#include "platform/WindowSystem.h"
#include "windows/HeadlessFixture.h"

namespace {

constexpr int kTemplateId = 7301;

class HostCenterDialogs : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        DialogTemplate t;
        t.Title = "Centred";
        t.Cx = 120;
        t.Cy = 60;
        t.Items = {DialogItemTemplate::PushButton("OK", IDOK, 35, 40, 50, 14, true)};
        AddDialogResource(TResId(kTemplateId), t);
    }

    static TPoint Centre(const TRect& r)
    {
        return TPoint((r.left + r.right) / 2, (r.top + r.bottom) / 2);
    }
};

TEST_F(HostCenterDialogs, OpensOnTheCentreOfItsParentNotOfTheParentsFrame)
{
    TWindow frame(nullptr, "Frame");
    frame.Attr.X = 0;
    frame.Attr.Y = 0;
    frame.Attr.W = 800;
    frame.Attr.H = 600;
    ASSERT_TRUE(frame.Create());
    TWindow* map = new TWindow(&frame, "Map");
    map->Attr.Style = WS_CHILD | WS_VISIBLE;
    map->Attr.X = 400;
    map->Attr.Y = 300;
    map->Attr.W = 400;
    map->Attr.H = 300;
    ASSERT_TRUE(map->Create());

    HostCenterDialog dialog(map, TResId(kTemplateId));
    Desk().AnswerNextModal([&](TWindow& window) {
        TPoint dialogCentre = Centre(window.GetWindowRect());
        TPoint mapCentre = Centre(map->GetWindowRect());
        EXPECT_LE(std::abs(dialogCentre.x - mapCentre.x), 1);
        EXPECT_LE(std::abs(dialogCentre.y - mapCentre.y), 1);
        Desk().PressKey(VK_RETURN);
    });
    EXPECT_EQ(dialog.Execute(), IDOK);
    frame.Destroy();
}

TEST_F(HostCenterDialogs, StaysOnTheScreenNearItsEdgeAndCentresThereWithoutParent)
{
    TSize screen = WindowSystem::Get().GetBackend().GetScreenSize();
    TWindow corner(nullptr, "Corner");
    corner.Attr.X = screen.cx - 40;
    corner.Attr.Y = screen.cy - 30;
    corner.Attr.W = 40;
    corner.Attr.H = 30;
    ASSERT_TRUE(corner.Create());

    HostCenterDialog nearEdge(&corner, TResId(kTemplateId));
    Desk().AnswerNextModal([&](TWindow& window) {
        TRect r = window.GetWindowRect();
        EXPECT_EQ(r.right, screen.cx) << "moved in just far enough";
        EXPECT_EQ(r.bottom, screen.cy);
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(nearEdge.Execute(), IDCANCEL);
    corner.Destroy();

    HostCenterDialog alone(nullptr, TResId(kTemplateId));
    Desk().AnswerNextModal([&](TWindow& window) {
        TPoint c = Centre(window.GetWindowRect());
        EXPECT_LE(std::abs(c.x - screen.cx / 2), 1);
        EXPECT_LE(std::abs(c.y - screen.cy / 2), 1);
        Desk().PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(alone.Execute(), IDCANCEL);
}

} // namespace
