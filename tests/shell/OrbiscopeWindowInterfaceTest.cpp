// A bare map embedded through OrbiscopeWindowInterface in a window of the caller's, driven as
// another module of the host drives it: scrolling, the live time, clicks taken by the parent,
// objects added and removed, and a handle without a parent.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/DebugStream.h"
#include "shell/OrbiscopeWindowInterface.h"
#include "skyview/MapFixture.h"
#include "skyview/MarkedObject.h"
#include "windows/HeadlessFixture.h"

namespace {

constexpr UINT kClick = WM_USER + 7;
constexpr COLORREF kWhite = RGB(255, 255, 255);

// The caller's window, 200 by 150, which writes down the clicks the map hands it.
class EmbeddingHost : public TWindow
{
public:
    EmbeddingHost() : TWindow(nullptr, "Embedding host")
    {
        Attr.W = 200;
        Attr.H = 150;
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kClick) {
            Clicks.push_back(*reinterpret_cast<const PolarCoord*>(lParam));
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }
    std::vector<PolarCoord> Clicks;
};

// The map on the host's screen at 6h UT on 2000 January 1, as it first looks (from the ground,
// east, 30 degrees up), with nothing on the sky but what a test puts there.
class OrbiscopeWindowInterfaceTest : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        ASSERT_TRUE(Host.Create());
        Sky = OrbiscopeWindowInterface(&Host);
        ASSERT_NE(Sky.GetWindow(), nullptr);
        Sky.SetTime(AstroTime(1, 1, 2000, 6.0));
        Sky.ShowPlanets(false);
        Sky.SetConstellationSettings(ConstellationSettings(false, false, false));
        DisplayParameters none = Sky.GetDisplayParameters();
        none.SetLimitingMagnitude(-30.0);
        Sky.SetDisplayParameters(none);
        Pump();
        Previous = SetDebugSink([this](const char* text) { Told.push_back(text); });
    }
    void TearDown() override
    {
        SetDebugSink(Previous);
        Host.Destroy();
        HeadlessTest::TearDown();
    }

    MapWindow& Map() { return dynamic_cast<MapWindow&>(*Sky.GetWindow()); }
    PolarCoord SkyAt(const TPoint& point)
    {
        PolarCoord sky;
        EXPECT_TRUE(Map().MapWindowPointToPolarCoord(point, sky));
        return sky;
    }
    bool WhiteAt(const TPoint& point)
    {
        return WindowSystem::Get().CaptureWindow(Map().HWindow)->ColorAt(point.x, point.y) ==
               kWhite;
    }

    EmbeddingHost Host;
    OrbiscopeWindowInterface Sky{nullptr};
    DebugSink Previous;
    std::vector<std::string> Told;
};

} // namespace

TEST_F(OrbiscopeWindowInterfaceTest, ScrollingLastsUntilTheViewCannotMoveOnOrIsStopped)
{
    // From 60 degrees off the zenith, 25 a step: 35, 10, 0.4, and then the view refuses.
    Sky.Scroll(AstroScrollInfo(AstroScrollInfo::TOWARDS_ZENITH, 100, DegreeAngle(25.0)));
    EXPECT_TRUE(Sky.IsScrolling());
    Desk().AdvanceTime(250);
    EXPECT_TRUE(Sky.IsScrolling());
    Desk().AdvanceTime(100);
    EXPECT_FALSE(Sky.IsScrolling()) << "the step beyond the zenith is refused";
    EXPECT_LT(Apart(Sky.GetCenterOfView(), Sky.GetZenith()), 0.5);

    Sky.Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_UP, 100, DegreeAngle(2.0)));
    Desk().AdvanceTime(350);
    EXPECT_TRUE(Sky.IsScrolling());
    Sky.StopScrolling();
    EXPECT_FALSE(Sky.IsScrolling());
    const PolarCoord stopped = Sky.GetCenterOfView();
    Desk().AdvanceTime(1000);
    EXPECT_EQ(Sky.GetCenterOfView(), stopped);
}

TEST_F(OrbiscopeWindowInterfaceTest, TheTimeGivenIsTheMapsOwnAndWritingThroughItRaisesNoFlag)
{
    const std::string shown = Map().GetStatusText();
    AstroTime& live = Sky.GetTime();
    live = AstroTime(1, 1, 2000, 18.0);
    EXPECT_EQ(Map().GetTime().GetMJD(), AstroTime(1, 1, 2000, 18.0).GetMJD());
    // A repaint of the same view keeps the time it drew, on the status line too.
    Map().Invalidate();
    Pump();
    EXPECT_EQ(Map().GetStatusText(), shown);
    // SetTime raises the flags, and the status line follows.
    Sky.SetTime(Sky.GetTime());
    Pump();
    EXPECT_NE(Map().GetStatusText(), shown);
}

TEST_F(OrbiscopeWindowInterfaceTest, AClickGoesToTheParentWhenAskedForAlsoWithTheMouseDisabled)
{
    struct Case
    {
        UINT Message;
        bool MouseDisabled;
        bool ParentHears;
        bool ViewMoves;
    };
    // The row that lets the map handle the click comes last, as it moves the view.
    const Case cases[] = {
        {kClick, false, true, false},
        {kClick, true, true, false},
        {0, true, false, false},
        {0, false, false, true},
    };
    const TPoint point(150, 40);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << "message " << c.Message << ", mouse disabled " << c.MouseDisabled);
        Host.Clicks.clear();
        Sky.NotifyOnSingleClick(c.Message);
        Sky.DisableMouseInput(c.MouseDisabled);
        const PolarCoord centre = Sky.GetCenterOfView();
        const PolarCoord clicked = SkyAt(point);
        Desk().Click(Map(), point);
        Pump();
        ASSERT_EQ(Host.Clicks.size(), c.ParentHears ? 1u : 0u);
        if (c.ParentHears) {
            EXPECT_LT(Apart(Host.Clicks[0], clicked), 1e-9);
        }
        EXPECT_EQ(Apart(Sky.GetCenterOfView(), centre) > 1.0, c.ViewMoves);
    }
}

TEST_F(OrbiscopeWindowInterfaceTest, AnAddedObjectShowsFromTheNextRequestAndGoesWithItsRemoval)
{
    const TPoint spot(60, 50);
    MarkedObject mark(AstroObject::ObjectType::Star, SkyAt(spot), "mark");
    Sky.AddObject(mark);
    // The same view again keeps the list of its last draw.
    Map().Invalidate();
    Pump();
    EXPECT_FALSE(WhiteAt(spot));
    Sky.RefreshObject(mark);
    ASSERT_LE(std::abs(mark.GetDisplayPoint().x - spot.x) +
                  std::abs(mark.GetDisplayPoint().y - spot.y),
              2);
    EXPECT_TRUE(WhiteAt(mark.GetDisplayPoint()));

    // Gone at the next draw, a repaint of the same view.
    Sky.RemoveAddedObject(mark);
    Map().Invalidate();
    Pump();
    EXPECT_FALSE(WhiteAt(mark.GetDisplayPoint()));
    EXPECT_TRUE(Told.empty());
    Sky.RemoveAddedObject(mark);
    EXPECT_EQ(Told.size(), 1u) << "a second removal does nothing but say so";

    // Added twice it is listed once, so that one removal takes it away.
    Sky.AddObject(mark);
    Sky.AddObject(mark);
    EXPECT_EQ(Told.size(), 2u);
    Sky.RefreshObject(mark);
    EXPECT_TRUE(WhiteAt(mark.GetDisplayPoint()));
    Sky.RemoveAddedObject(mark);
    Sky.RefreshObject(mark);
    EXPECT_FALSE(WhiteAt(mark.GetDisplayPoint()));
}

TEST_F(OrbiscopeWindowInterfaceTest, ANullParentMakesNoMapAndEveryOperationDoesNothing)
{
    OrbiscopeWindowInterface none(nullptr);
    EXPECT_EQ(none.GetWindow(), nullptr);
    MarkedObject mark(AstroObject::ObjectType::Star, PolarCoord(84.0, 0.0), "mark");
    none.SetForegroundBitmap("ed:\\none.bmp", "ed:\\none.bmp");
    none.SetMaskBitmap("ed:\\none.bmp");
    none.Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_UP, 100, DegreeAngle(2.0)));
    none.StopScrolling();
    none.SetDisplayParameters(none.GetDisplayParameters());
    none.SetGridInfo(none.GetGridInfo());
    none.SetFieldRadius(10.0);
    none.SetConstellationSettings(none.GetConstellationSettings());
    none.ShowConstellation("Orion");
    none.ChangeCenterOfView(PolarCoord(84.0, 0.0));
    none.SetLocation(LatLong(50.0, 351.0));
    none.SetTime(AstroTime(1, 1, 2000, 0.0));
    none.GetTime() = AstroTime(1, 1, 2000, 12.0);
    none.NotifyOnSingleClick(kClick);
    none.NotifyWhenFieldChanges(kClick);
    none.ShowMessierObjects(true);
    none.ClipAtHorizon(false);
    none.ShowPlanets(true);
    none.AddObject(mark);
    none.RefreshObject(mark);
    none.BlinkObject(mark);
    none.BlinkLabelForObject(mark);
    none.StopBlinking();
    none.DisableMouseInput(true);
    none.RemoveAddedObject(mark);
    EXPECT_FALSE(none.IsScrolling());
    EXPECT_EQ(none.GetFieldRadius(), 0.0);
    EXPECT_EQ(none.GetConstellation("Orion"), nullptr);
    EXPECT_FALSE(Told.empty()) << "the operations that found no map say so";
}
