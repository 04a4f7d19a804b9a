// Moving about the map and picking objects, as a user does it on the headless desktop: clicks,
// the rubber band, scrolling and blinking on their timers, and locating an object with the
// questions it brings.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "MapFixture.h"
#include "MarkedObject.h"
#include "catalogues/ConstellationSettings.h"
#include "catalogues/Star.h"
#include "projection/RotatingOrientationInfo.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// A map of 200 by 150 on Orion, north up, 30 degrees to the nearer edge, at 6h UT on 2000
// January 1; only what a test puts on the sky lies under the pointer.
class MapNavigationTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        Make(200, 150).SetConstellationSettings(ConstellationSettings(false, false, false));
        Map().SetFieldRadius(30.0);
        Map().SetTime(AstroTime(1, 1, 2000, 6.0));
    }
    void TearDown() override
    {
        MapTest::TearDown();
        Markers.clear();
        Font->Release();
    }

    // A marker that the map shows from the first draw on (the collector answers an unchanged
    // view from what it has, so objects are added before the window opens).
    MarkedObject& Mark(const PolarCoord& position, const std::string& name, bool labelled = false,
                       AstroObject::ObjectType type = AstroObject::ObjectType::Star,
                       std::uint32_t uid = 0)
    {
        Markers.push_back(
            std::make_unique<MarkedObject>(type, position, name, uid, labelled ? Font : nullptr));
        Map().GetCollector().AddObject(*Markers.back());
        return *Markers.back();
    }
    // From 40 north on the meridian of Greenwich, south at 30 degrees up, 20 to the nearer edge.
    void OpenOnTheGround()
    {
        Map().SetOrientation(RotatingOrientationInfo(Map().GetCollector().GetOrigin(),
                                                     LatLong(40.0, 0.0), PolarCoord(180.0, 60.0),
                                                     20.0, true));
        Start();
    }
    void Start()
    {
        pHost->Create();
        Pump();
    }

    PolarCoord Centre() { return Map().GetOrientation().GetCenterOfView(); }
    PolarCoord SkyAt(const TPoint& point)
    {
        PolarCoord sky;
        EXPECT_TRUE(Map().MapWindowPointToPolarCoord(point, sky));
        return sky;
    }
    // Queues the answer to the next message box and writes down what it asked.
    void Answer(int button)
    {
        Desk().AnswerNextModal([this, button](TWindow& box) {
            Asked.push_back(box.GetWindowText() + ": " + box.ChildWithId(-1)->GetWindowText());
            HeadlessBackend::PressButton(box, button);
        });
    }

    FontRef* Font = NewTestLabelFont();
    std::vector<std::unique_ptr<MarkedObject>> Markers;
    std::vector<std::string> Asked;
};

} // namespace

TEST_F(MapNavigationTest, ARubberBandShowsWhileDraggedAndZoomsToItsAreaButNeverBelowOneDegree)
{
    Start();
    const TPoint from(60, 40);
    const TPoint to(140, 100);
    const PolarCoord middle = SkyAt(TPoint(100, 70));
    const double corner = Apart(SkyAt(from), middle);
    Desk().MouseDown(Map().ClientToScreen(from));
    Desk().MouseMove(Map().ClientToScreen(TPoint(120, 70)));
    Desk().MouseMove(Map().ClientToScreen(to));
    Pump();
    // The black sky inside the band is inverted on the screen, and only there, whatever the
    // band was before.
    EXPECT_EQ(Screen()->ColorAt(80, 50), kWhite);
    EXPECT_EQ(Screen()->ColorAt(from.x - 2, from.y - 2), kBlack);
    EXPECT_EQ(Screen()->ColorAt(to.x + 1, to.y + 1), kBlack);
    Desk().MouseUp(Map().ClientToScreen(to));
    Pump();
    EXPECT_LT(Apart(Centre(), middle), 1e-9);
    EXPECT_NEAR(Map().GetOrientation().GetFieldRadius(), corner, 1e-9);
    EXPECT_EQ(Screen()->ColorAt(80, 50), kBlack) << "the new view replaces the band";

    // A band 3 pixels wide, or drawn up and to the left, does not zoom.
    Desk().Drag(Map(), TPoint(50, 20), TPoint(53, 120));
    Desk().Drag(Map(), TPoint(150, 110), TPoint(50, 40));
    Pump();
    EXPECT_NEAR(Map().GetOrientation().GetFieldRadius(), corner, 1e-9);
    Map().ZoomToArea(TRect(100, 75, 102, 77));
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), MapWindow::kMinimumZoomRadius);
}

TEST_F(MapNavigationTest, AClickCentresTheSkyOpensAnObjectsInformationAndARightClickCentres)
{
    MarkedObject& star = Mark(PolarCoord(90.0, 10.0), "Marker");
    Start();
    // A slip of |dx| + |dy| = 3 + 1 is not above 4: a click, where the button comes up.
    const PolarCoord target = SkyAt(TPoint(153, 41));
    Desk().Drag(Map(), TPoint(150, 40), TPoint(153, 41), 2);
    Pump();
    EXPECT_LT(Apart(Centre(), target), 1e-9);
    // Within the pick radius of an object its information opens, and the view stays.
    const PolarCoord centre = Centre();
    Desk().Click(Map(), star.GetDisplayPoint() + TPoint(3, -2));
    Pump();
    EXPECT_EQ(Map().Informed, std::vector<AstroObject*>{&star});
    EXPECT_EQ(Centre(), centre);
    Desk().Click(Map(), star.GetDisplayPoint(), MK_RBUTTON);
    Pump();
    EXPECT_EQ(Map().Informed.size(), 1u);
    EXPECT_LT(Apart(Centre(), star.GetPosition()), 0.5);

    // With the mouse disabled, as while the host plays its game on the map, neither button
    // moves the view or opens anything.
    Map().DisableMouse(true);
    const PolarCoord still = Centre();
    Desk().Click(Map(), TPoint(20, 20));
    Desk().Click(Map(), TPoint(180, 130), MK_RBUTTON);
    Pump();
    EXPECT_EQ(Centre(), still);
    EXPECT_EQ(Map().Informed.size(), 1u);
}

TEST_F(MapNavigationTest, LocatingAStarFainterThanTheLabelLimitLabelsItOnTheMap)
{
    Start();
    Star faint(2, 7.4, PolarCoord(85.0, 5.0), "Faint");
    Map().ShowObject(faint);
    Pump();
    EXPECT_LT(Apart(Centre(), faint.GetPosition()), 1e-6);
    EXPECT_TRUE(faint.IsLabeled(Map().GetDisplayParameters()));
}
TEST_F(MapNavigationTest, AClickOnAConstellationOrItsLabelGoesStraightToItsArticle)
{
    // Andromeda's uid, whose first link in the shipped table is its Wikipedia page.
    MarkedObject& andromeda =
        Mark(PolarCoord(80.0, -10.0), "Andromeda", true, AstroObject::ObjectType::Constellation,
             AstroObject::kUidBase + 1);
    Start();
    Desk().Click(Map(), andromeda.GetDisplayPoint());
    // The label stands 6 pixels right of the object and reaches beyond the pick radius.
    Desk().Click(Map(), andromeda.GetDisplayPoint() + TPoint(6 + MapWindow::kPickRadius + 10, 0));
    Pump();
    EXPECT_EQ(pHost->References, std::vector<std::string>(
                                     2, "https://en.wikipedia.org/wiki/Andromeda_(constellation)"));
    EXPECT_TRUE(Map().Informed.empty());
}

TEST_F(MapNavigationTest, ScrollingStepsOnEveryTickRestartsWithANewPaceAndStopsWhereItMust)
{
    OpenOnTheGround();
    auto& ground = dynamic_cast<const RotatingOrientationInfo&>(Map().GetOrientation());
    auto offset = [&ground] { return ground.GetZenithOffset(); };
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_UP, 100, DegreeAngle(2.0)));
    EXPECT_DOUBLE_EQ(offset().GetRA().GetDegrees(), 182.0) << "a step at once";
    Desk().AdvanceTime(350);
    EXPECT_DOUBLE_EQ(offset().GetRA().GetDegrees(), 188.0);
    // A second scroll steps at once and next 300 ms later, not at the old timer's next tick.
    Desk().AdvanceTime(20);
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_DOWN, 300, DegreeAngle(1.0)));
    Desk().AdvanceTime(299);
    EXPECT_DOUBLE_EQ(offset().GetRA().GetDegrees(), 187.0);
    Desk().AdvanceTime(1);
    EXPECT_DOUBLE_EQ(offset().GetRA().GetDegrees(), 186.0);
    Map().StopScrolling();
    Desk().AdvanceTime(1000);
    EXPECT_DOUBLE_EQ(offset().GetRA().GetDegrees(), 186.0);

    // Towards the zenith from a zenith distance of 60, 25 degrees a step: 35, 10, then 0.4, and
    // then no further.
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::TOWARDS_ZENITH, 100, DegreeAngle(25.0)));
    EXPECT_DOUBLE_EQ(offset().GetDec().GetDegrees(), 35.0);
    Desk().AdvanceTime(800);
    EXPECT_DOUBLE_EQ(offset().GetDec().GetDegrees(), 0.4);
    // Stopped there: its timer goes, and nothing is left ticking.
    Desk().AdvanceTime(200);
    EXPECT_FALSE(WindowSystem::Get().NextTimerDue().has_value());
}

TEST_F(MapNavigationTest, ABlinkingObjectOrLabelIsLeftOutEveryOtherHalfSecondUntilStopped)
{
    MarkedObject& star = Mark(PolarCoord(90.0, 10.0), "Marker", true);
    // With the grid and the status line shown nothing stays dirty after a draw, and a blink
    // step must still draw.
    Map().SetGridInfo(GridInfo(24, 36, true));
    Start();
    const TPoint p = star.GetDisplayPoint();
    // The star's pixel on the screen, and one of its label's line, 6 pixels long to the right.
    auto shown = [&] {
        auto screen = Screen();
        return std::pair{screen->ColorAt(p.x, p.y) == kWhite,
                         screen->ColorAt(p.x + 3, p.y) == kWhite};
    };
    ASSERT_EQ(shown(), std::pair(true, true));
    Map().BlinkObject(star);
    for (bool on : {false, true, false}) {
        Desk().AdvanceTime(MapWindow::kBlinkInterval);
        EXPECT_EQ(shown(), std::pair(on, true));
    }
    // Stopped in the dark phase the object comes back at once, and stays.
    Map().StopBlinking();
    Desk().AdvanceTime(3 * MapWindow::kBlinkInterval);
    EXPECT_EQ(shown(), std::pair(true, true));
    Map().BlinkLabelForObject(star);
    for (bool on : {false, true, false}) {
        Desk().AdvanceTime(MapWindow::kBlinkInterval);
        EXPECT_EQ(shown(), std::pair(true, on));
    }
    Map().StopBlinking();
    EXPECT_EQ(shown(), std::pair(true, true));
}

TEST_F(MapNavigationTest, AStarThatNeverRisesIsShownBelowTheHorizonOnlyIfTheUserSaysSo)
{
    OpenOnTheGround();
    Star southern(1, 1.0, PolarCoord(100.0, -60.0), "Southern");
    const PolarCoord centre = Centre();
    Answer(IDNO);
    Map().ShowObject(southern);
    EXPECT_EQ(Asked, std::vector<std::string>{"Object Below the Horizon: Southern never rises at "
                                              "this location.\nDo you want to see where it is, "
                                              "below the horizon?"});
    EXPECT_EQ(Centre(), centre);
    EXPECT_TRUE(Map().IsClippedAtHorizon());
    Answer(IDYES);
    Map().ShowObject(southern);
    Pump();
    EXPECT_EQ(Asked.size(), 2u) << "one question each time";
    EXPECT_FALSE(Map().IsClippedAtHorizon());
    EXPECT_LT(Apart(Centre(), southern.GetPosition()), 1e-6);
}

TEST_F(MapNavigationTest, AStarBelowTheHorizonIsSeenRisingOrWhereItIsNowAsTheUserChooses)
{
    OpenOnTheGround();
    // Set since 1h UT; it rises near noon.
    Star star(1, 1.0, PolarCoord(18.0, 10.0), "Riser");
    const AstroTime time = Map().GetTime();
    const AstroTime rise = Map().GetRiseTime(star);
    AstroTime local = rise - TimeZone();
    local.SetMode(AstroTime::Clock12);

    // No to the rising: with the view clipped at the horizon nothing more is asked, nothing
    // moves; unclipped, a second question offers where it is now.
    Answer(IDNO);
    Map().ShowObject(star);
    EXPECT_EQ(Map().GetTime(), time);
    Map().ClipAtHorizon(false);
    Answer(IDNO);
    Answer(IDYES);
    Map().ShowObject(star);
    Pump();
    ASSERT_EQ(Asked.size(), 3u);
    EXPECT_EQ(Asked, (std::vector<std::string>{
                         "Object Below the Horizon: Riser is below the horizon now. It rises at " +
                             local.GetDescription3() + ".\nDo you want to see it rise?",
                         Asked[0],
                         "Object Below the Horizon: Do you want to see where it is now, below "
                         "the horizon?"}));
    EXPECT_EQ(Map().GetTime(), time);
    EXPECT_LT(Apart(Centre(), star.GetPosition()), 1e-6);

    // Yes to the rising: ten minutes after it, in view.
    Map().ClipAtHorizon(true);
    Answer(IDYES);
    Map().ShowObject(star);
    Pump();
    EXPECT_NEAR(Map().GetTime().GetMJD() - rise.GetMJD(), 10.0 / 1440.0, 1.0 / 86400.0);
    TPoint point;
    EXPECT_TRUE(Map().ObjectIsUp(star));
    EXPECT_TRUE(Map().GetTransformation()->Translate(star.GetPosition(), point));
}
