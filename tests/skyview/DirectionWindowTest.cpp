// The direction window on the headless desktop: it takes the map's view, paints the disc in
// the profile's colours, follows its size, and a click on the disc tells the parent a direction
// that turns the main view there.
#include <gtest/gtest.h>

#include <cmath>

#include "MapFixture.h"
#include "coords/AngleMath.h"
#include "host/HostProf.h"
#include "host/ScopedHome.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/DirectionWindow.h"

namespace {

constexpr UINT kPickMessage = 0x07F0;

double Apart(const PolarCoord& a, const PolarCoord& b)
{
    const double c = std::sin(a.GetDec().GetRadians()) * std::sin(b.GetDec().GetRadians()) +
                     std::cos(a.GetDec().GetRadians()) * std::cos(b.GetDec().GetRadians()) *
                         std::cos(a.GetRA().GetRadians() - b.GetRA().GetRadians());
    return RadiansToDegrees(std::acos(std::fmax(-1.0, std::fmin(1.0, c))));
}

TPoint CentreOf(const TRect& r)
{
    return TPoint(r.left + r.Width() / 2, r.top + r.Height() / 2);
}

// A panel, as the finder is, with the direction window in it; it notes the directions picked.
class Panel : public TWindow
{
public:
    explicit Panel(UINT message = kPickMessage) : TWindow(nullptr, "Panel")
    {
        Attr.X = 500;
        Attr.Y = 10;
        Attr.W = kWidth;
        Attr.H = kHeight;
        pDirection = new DirectionWindow(this, message);
        pDirection->Attr.W = kWidth;
        pDirection->Attr.H = kHeight;
    }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kPickMessage) {
            ++nPicks;
            Picked = pDirection->GetClickedDirection();
            if (pMap) {
                pMap->ChangeCenterOfView(Picked);
            }
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }

    static constexpr int kWidth = 180;
    static constexpr int kHeight = 180;
    DirectionWindow* pDirection = nullptr;
    // The map the picks turn, when set.
    MapWindow* pMap = nullptr;
    int nPicks = 0;
    PolarCoord Picked;
};

class DirectionWindowTest : public MapTest
{
protected:
    void TearDown() override
    {
        if (pPanel) {
            pPanel->Destroy();
            pPanel.reset();
        }
        MapTest::TearDown();
    }

    Panel& OpenPanel(UINT message = kPickMessage)
    {
        pPanel = std::make_unique<Panel>(message);
        pPanel->Create();
        Pump();
        return *pPanel;
    }

    DirectionWindow& Direction() { return *pPanel->pDirection; }

    // A point of the direction window's client area as the user clicks it.
    void ClickAt(const TPoint& client) { Desk().Click(Direction(), client); }

    std::unique_ptr<Panel> pPanel;
};

TEST_F(DirectionWindowTest, IsAChildWithItsCaptionAndTheProfilesColours)
{
    ScopedHome home;
    home.WriteFile("orbiscope.ini", "[Orbiscope]\n"
                                    "BackgroundColor = 0, 0, 96\n"
                                    "DirectionHorizonColor = 255, 255, 0\n"
                                    "DirectionFieldColor = 0, 255, 0\n");
    Panel& panel = OpenPanel();
    DirectionWindow& window = *panel.pDirection;
    EXPECT_EQ(window.GetWindowText(), "Direction Window");
    EXPECT_TRUE(window.GetStyle() & WS_CHILD);
    EXPECT_EQ(window.GetBackground(), TColor(0, 0, 96));
    EXPECT_TRUE(window.GetDrawer().IsShowingHorizon());
    // The letters were measured in the 15-pixel font.
    EXPECT_GT(window.GetDrawer().GetTextHeight(), 12);

    auto picture = WindowSystem::Get().CaptureWindow(window.HWindow);
    const TRect circle = window.GetDrawer().GetCircleRect();
    EXPECT_EQ(picture->ColorAt(1, 1), RGB(0, 0, 96));
    EXPECT_EQ(picture->ColorAt(CentreOf(circle).x, circle.top), RGB(255, 255, 0));
    EXPECT_EQ(picture->ColorAt(CentreOf(circle).x, CentreOf(circle).y), RGB(255, 255, 0));
}

TEST_F(DirectionWindowTest, FollowsItsSizeAndWaitsForTheMapsFirstDraw)
{
    OpenPanel();
    EXPECT_EQ(Direction().GetDrawer().GetRect(), TRect(0, 0, Panel::kWidth, Panel::kHeight));
    Direction().MoveWindow(0, 0, 120, 90);
    EXPECT_EQ(Direction().GetDrawer().GetRect(), TRect(0, 0, 120, 90));

    // A map that has not drawn yet has no view to give.
    MapHost unpainted(64, 40);
    Direction().Set(*unpainted.pMap);
    EXPECT_TRUE(Direction().GetDrawer().GetField().empty());
}

TEST_F(DirectionWindowTest, TakesTheMapsViewAndOutlinesItsField)
{
    // 45 degrees to the nearer edge of a strip twice as wide as high: the corners lie off the
    // view's hemisphere, and all stand in at the centre of view.
    MapWindow& map = Open(200, 100);
    OpenPanel();
    Direction().Set(map);
    Pump();
    const DirectionDrawer& drawer = Direction().GetDrawer();
    EXPECT_EQ(drawer.GetCenter(), map.GetOrientation().GetCenterOfView());
    EXPECT_EQ(drawer.GetZenith(), map.GetOrientation().GetZenith());
    ASSERT_EQ(drawer.GetField().size(), 4u);
    for (const PolarCoord& corner : drawer.GetField()) {
        EXPECT_LT(Apart(corner, Orion()), 1e-6);
    }

    // A narrower view keeps its own corners, one after the other round it.
    map.SetFieldRadius(20.0);
    Pump();
    Direction().Set(map);
    Pump();
    PolarCoord topLeft;
    ASSERT_TRUE(map.GetTransformation()->ReverseTranslate(TPoint(0, 0), topLeft));
    EXPECT_EQ(drawer.GetField()[0], topLeft);
    PolarCoord bottomRight;
    ASSERT_TRUE(map.GetTransformation()->ReverseTranslate(TPoint(200, 100), bottomRight));
    EXPECT_EQ(drawer.GetField()[2], bottomRight);

    auto picture = WindowSystem::Get().CaptureWindow(Direction().HWindow);
    ASSERT_EQ(drawer.GetFieldPoints().size(), 4u);
    const TPoint corner = drawer.GetFieldPoints()[1];
    EXPECT_EQ(picture->ColorAt(corner.x, corner.y), RGB(0, 0, 255));
}

TEST_F(DirectionWindowTest, AViewStraightUpIsOutlinedRoundTheMiddleOfTheDisc)
{
    MapWindow& map = Open(120, 120);
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(0.0, 0.0), 30.0, true));
    Pump();
    OpenPanel();
    Direction().Set(map);
    Pump();
    const DirectionDrawer& drawer = Direction().GetDrawer();
    ASSERT_EQ(drawer.GetFieldPoints().size(), 4u);
    const TPoint centre = CentreOf(drawer.GetCircleRect());
    int sumX = 0;
    int sumY = 0;
    for (const TPoint& p : drawer.GetFieldPoints()) {
        sumX += p.x;
        sumY += p.y;
        // 30 degrees to the sides' middles, 45 to the corners of a square orthographic view.
        const double out = std::hypot(double(p.x - centre.x), double(p.y - centre.y));
        EXPECT_NEAR(out, drawer.GetCircleRect().Width() / 2.0 * 45.0 / 90.0, 2.0);
    }
    EXPECT_NEAR(sumX / 4.0, centre.x, 1.0);
    EXPECT_NEAR(sumY / 4.0, centre.y, 1.0);
}

TEST_F(DirectionWindowTest, AClickOnTheDiscTurnsTheMainViewThere)
{
    MapWindow& map = Open(200, 100);
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 60.0), 20.0, true));
    Pump();
    Panel& panel = OpenPanel();
    panel.pMap = &map;
    Direction().Set(map);
    Pump();

    // The middle of the outline is where the map looks.
    const std::vector<TPoint>& outline = Direction().GetDrawer().GetFieldPoints();
    ASSERT_EQ(outline.size(), 4u);
    TPoint middle((outline[0].x + outline[2].x) / 2, (outline[0].y + outline[2].y) / 2);
    ClickAt(middle);
    Pump();
    EXPECT_EQ(panel.nPicks, 1);
    EXPECT_LT(Apart(panel.Picked, map.GetOrientation().GetCenterOfView()), 3.0);

    // The cross is the zenith: the view turns up, as far as the map lets it.
    const PolarCoord zenith = map.GetOrientation().GetZenith();
    ClickAt(CentreOf(Direction().GetDrawer().GetCircleRect()));
    Pump();
    EXPECT_EQ(panel.nPicks, 2);
    EXPECT_LT(Apart(panel.Picked, zenith), 1.0);
    EXPECT_LT(Apart(map.GetOrientation().GetCenterOfView(), zenith), 1.0);
}

TEST_F(DirectionWindowTest, ClicksOffTheDiscOrWithoutAMessagePostNothing)
{
    MapWindow& map = Open(200, 100);
    Panel& panel = OpenPanel();
    Direction().Set(map);
    Pump();
    const PolarCoord before = Direction().GetClickedDirection();
    ClickAt(TPoint(1, 1));
    ClickAt(TPoint(Panel::kWidth - 2, Panel::kHeight - 2));
    Pump();
    EXPECT_EQ(panel.nPicks, 0);
    EXPECT_EQ(Direction().GetClickedDirection(), before);
    pPanel->Destroy();

    OpenPanel(0);
    Direction().Set(map);
    ClickAt(CentreOf(Direction().GetDrawer().GetCircleRect()));
    Pump();
    EXPECT_EQ(pPanel->nPicks, 0);
}

} // namespace
