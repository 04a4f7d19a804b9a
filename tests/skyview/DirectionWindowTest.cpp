// The direction window on the headless desktop: a disc of the sky seen from the map's place with
// north up and west on the right, the map's field outlined on it, and a click on the disc that
// tells the parent a direction, which turns the main view there.
#include <gtest/gtest.h>

#include "MapFixture.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/DirectionWindow.h"

namespace {

constexpr UINT kPick = 0x07F0;

// A panel, as the finder is, with the direction window in it; a direction picked turns the map.
class Panel : public TWindow
{
public:
    explicit Panel(MapWindow& map) : TWindow(nullptr, "Panel"), Map(map)
    {
        Attr.X = 500;
        Attr.W = Attr.H = 180;
        pDirection = new DirectionWindow(this, kPick);
        pDirection->Attr.W = pDirection->Attr.H = 180;
    }
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kPick) {
            Picked.push_back(pDirection->GetClickedDirection());
            Map.ChangeCenterOfView(Picked.back());
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }

    MapWindow& Map;
    // Owned by this window.
    DirectionWindow* pDirection = nullptr;
    std::vector<PolarCoord> Picked;
};

class DirectionWindowTest : public MapTest
{
protected:
    void TearDown() override
    {
        if (pPanel) {
            pPanel->Destroy();
        }
        MapTest::TearDown();
    }

    std::unique_ptr<Panel> pPanel;
};

} // namespace

TEST_F(DirectionWindowTest, AClickOnTheDiscTurnsTheMainViewToThatDirection)
{
    // From 50 N, south at 30 degrees up, 20 to the nearer edge of a 200 by 100 strip.
    RecordingMap& map = Open(200, 100);
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 0.0),
                                               PolarCoord(180.0, 60.0), 20.0, true));
    Pump();
    pPanel = std::make_unique<Panel>(map);
    pPanel->Create();
    Panel& panel = *pPanel;
    DirectionWindow& window = *panel.pDirection;
    window.Set(map);
    Pump();
    const TRect disc = window.GetDrawer().GetCircleRect();
    const TPoint middle(disc.left + disc.Width() / 2, disc.top + disc.Height() / 2);
    const PolarCoord zenith = map.GetOrientation().GetZenith();
    const double lst = zenith.GetRA().GetDegrees();
    // The field's outline, in blue, lies below the zenith: the view looks south.
    auto picture = WindowSystem::Get().CaptureWindow(window.HWindow);
    const std::vector<TPoint>& outline = window.GetDrawer().GetFieldPoints();
    ASSERT_EQ(outline.size(), 4u);
    EXPECT_GT(CountValue(*picture, Surface::RgbToValue(RGB(0, 0, 255))), 20);
    EXPECT_GT(outline[0].y, middle.y);

    // Just inside the rim at the top, the north point of the horizon, Dec 40 on the meridian
    // opposite; at the right, the west point, on the equator a quarter turn west of the
    // meridian; in the middle, the zenith, where the view turns up as far as the map lets it.
    for (const TPoint& point :
         {TPoint(middle.x, disc.top + 1), TPoint(disc.right - 1, middle.y), middle}) {
        Desk().Click(window, point);
        Pump();
    }
    ASSERT_EQ(panel.Picked.size(), 3u);
    EXPECT_LT(Apart(panel.Picked[0], PolarCoord(lst + 180.0, 40.0)), 2.5);
    EXPECT_LT(Apart(panel.Picked[1], PolarCoord(lst - 90.0, 0.0)), 2.5);
    EXPECT_LT(Apart(panel.Picked[2], zenith), 1.0);
    EXPECT_LT(Apart(map.GetOrientation().GetCenterOfView(), zenith), 1.0);

    // Off the disc nothing is told.
    Desk().Click(window, TPoint(1, 1));
    Desk().Click(window, TPoint(178, 178));
    Pump();
    EXPECT_EQ(panel.Picked.size(), 3u);
}
