// Moving about the map and picking objects, as a user does it on the headless desktop: clicks,
// the rubber band, the pointer over objects, scrolling and blinking on their timers, locating
// an object with the questions it brings, and the messages the parent hears.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "MarkedObject.h"
#include "catalogues/Constellation.h"
#include "catalogues/ConstellationSettings.h"
#include "catalogues/Star.h"
#include "coords/AngleMath.h"
#include "host/ScopedHome.h"
#include "platform/Surface.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"
#include "platform/TWindow.h"
#include "platform/WindowCalls.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/MapWindow.h"
#include "skyview/MouseDragger.h"
#include "skyview/OrientationStatusItem.h"
#include "solar/PlanetCatalogue.h"
#include "time/AnimationSettings.h"
#include "time/TimeStep.h"
#include "windows/HeadlessFixture.h"

namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 150;
constexpr UINT kReference = 0x07E8;
constexpr UINT kSingleClick = 0x0471;

// The angle between two directions, degrees; from the vectors' cross and dot products, which
// keep their digits for directions close together.
double Apart(const PolarCoord& a, const PolarCoord& b)
{
    auto vector = [](const PolarCoord& p) {
        const double ra = p.GetRA().GetRadians();
        const double dec = p.GetDec().GetRadians();
        return std::array<double, 3>{std::cos(dec) * std::cos(ra), std::cos(dec) * std::sin(ra),
                                     std::sin(dec)};
    };
    const std::array<double, 3> u = vector(a);
    const std::array<double, 3> v = vector(b);
    const double cx = u[1] * v[2] - u[2] * v[1];
    const double cy = u[2] * v[0] - u[0] * v[2];
    const double cz = u[0] * v[1] - u[1] * v[0];
    const double dot = u[0] * v[0] + u[1] * v[1] + u[2] * v[2];
    return RadiansToDegrees(std::atan2(std::sqrt(cx * cx + cy * cy + cz * cz), dot));
}

// An object put on the sky by the test: shown whatever the limiting magnitude, drawn as one
// white pixel, with a name, a uid and, when given a font, a label of its own.
class SkyMarker : public AstroObject
{
public:
    SkyMarker(ObjectType type, const PolarCoord& position, const std::string& name = "",
              std::uint32_t uid = 0, FontRef* font = nullptr)
        : AstroObject(type), Position(position), Name(name), nUid(uid)
    {
        if (font) {
            pOwn = std::make_unique<Label>(name, *this, *font, TColor::White);
        }
    }

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return -50.0; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override
    {
        Point = point;
        if (pOwn) {
            pOwn->UpdateObjectPoint();
        }
    }
    bool IsTimeDependent() const override { return false; }
    bool IsLabeled(const DisplayParameters&) const override { return pOwn != nullptr; }
    Label* GetLabel(DisplayParameters&) override { return pOwn.get(); }
    std::uint32_t GetUid() const override { return nUid; }
    void Draw(TDC& dc, DisplayParameters&) override { dc.SetPixel(Point, TColor::White); }
    bool HasListName() const override { return !Name.empty(); }
    std::string GetListName() const override { return Name; }
    std::string GetRefName() const override { return Name; }

private:
    PolarCoord Position;
    std::string Name;
    std::uint32_t nUid;
    TPoint Point;
    std::unique_ptr<Label> pOwn;
};

// The map, with the information dialog replaced by a record of what it was asked to show.
class RecordingMap : public MapWindow
{
public:
    using MapWindow::MapWindow;
    void DisplayObjectInfo(AstroObject& o) override { Informed.push_back(&o); }
    std::vector<AstroObject*> Informed;
};

// The parent: writes down the references, clicks and status texts the map sends it.
class NavigationHost : public TWindow
{
public:
    NavigationHost() : TWindow(nullptr, "Navigation host")
    {
        Attr.X = 10;
        Attr.Y = 10;
        Attr.W = kWidth;
        Attr.H = kHeight;
        pMap = new RecordingMap(this);
        pMap->Attr.W = kWidth;
        pMap->Attr.H = kHeight;
        pMap->SetReferenceMessage(kReference);
    }

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override
    {
        if (msg == kReference) {
            References.push_back(*reinterpret_cast<const std::string*>(lParam));
        } else if (msg == kSingleClick) {
            Clicks.push_back(*reinterpret_cast<const PolarCoord*>(lParam));
        } else if (msg == MapWindow::kStatusTextMessage) {
            Statuses.emplace_back(reinterpret_cast<const char*>(lParam));
        }
        return TWindow::WindowProc(msg, wParam, lParam);
    }

    RecordingMap* pMap = nullptr;
    std::vector<std::string> References;
    std::vector<PolarCoord> Clicks;
    std::vector<std::string> Statuses;
};

// What a message box said and what the test answered.
struct Question
{
    std::string Caption;
    std::string Text;
};

class MapNavigationTest : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        Font = NewTestLabelFont();
        pHost = std::make_unique<NavigationHost>();
        Map().SetTimeZone(TimeZone());
        // Only what a test puts on the sky lies under the pointer.
        Map().SetConstellationSettings(ConstellationSettings(false, false, false));
    }

    void TearDown() override
    {
        pHost->Destroy();
        pHost.reset();
        Markers.clear();
        Font->Release();
        HeadlessTest::TearDown();
    }

    RecordingMap& Map() { return *pHost->pMap; }

    // A marker that the map shows from the first draw on (the collector answers an unchanged
    // view from what it has, so objects are added before the window opens).
    SkyMarker& Mark(AstroObject::ObjectType type, const PolarCoord& position,
                    const std::string& name = "", std::uint32_t uid = 0, bool labelled = false)
    {
        Markers.push_back(
            std::make_unique<SkyMarker>(type, position, name, uid, labelled ? Font : nullptr));
        Map().GetCollector().AddObject(*Markers.back());
        return *Markers.back();
    }

    // Orion, north up, 30 degrees to the nearer edge, no catalogue star bright enough to show.
    void OpenOnOrion()
    {
        const PolarCoord centre(84.0, 0.0);
        Map().SetOrientation(FixedOrientationInfo(Map().GetCollector().GetOrigin(), centre,
                                                  FixedOrientationInfo::NorthUpZenith(centre),
                                                  30.0));
        Map().SetTime(AstroTime(1, 1, 2000, 0.0));
        HideCatalogueStars();
        pHost->Create();
        Pump();
    }

    // From 40 north on the meridian of Greenwich, south at 30 degrees up, at 6h UT on
    // 2000 January 1.
    void OpenOnTheGround()
    {
        Map().SetOrientation(RotatingOrientationInfo(Map().GetCollector().GetOrigin(),
                                                     LatLong(40.0, 0.0), PolarCoord(180.0, 60.0),
                                                     20.0, true));
        Map().SetTime(AstroTime(1, 1, 2000, 6.0));
        HideCatalogueStars();
        pHost->Create();
        Pump();
    }

    void HideCatalogueStars()
    {
        StarDisplayParameters none = Map().GetDisplayParameters();
        none.SetLimitingMagnitude(-30.0);
        Map().SetStarDisplayParameters(none);
    }

    // All lines of the status panel's orientation block, one after another.
    std::string OrientationText()
    {
        const OrientationStatusItem& item = Map().GetOrientationItem();
        std::string text;
        for (std::size_t i = 0; i < item.GetLineCount(); ++i) {
            text += item.GetLine(i) + "\n";
        }
        return text;
    }

    PolarCoord SkyAt(const TPoint& point)
    {
        PolarCoord sky;
        EXPECT_TRUE(Map().MapWindowPointToPolarCoord(point, sky));
        return sky;
    }

    const RotatingOrientationInfo& Ground()
    {
        return dynamic_cast<const RotatingOrientationInfo&>(Map().GetOrientation());
    }

    // Queues the answer to the next message box and writes down what it asked.
    void Answer(int button)
    {
        Desk().AnswerNextModal([this, button](TWindow& box) {
            const TWindow* text = box.ChildWithId(-1);
            Asked.push_back({box.GetWindowText(), text ? text->GetWindowText() : ""});
            HeadlessBackend::PressButton(box, button);
        });
    }

    std::unique_ptr<Surface> Screen() { return WindowSystem::Get().CaptureWindow(Map().HWindow); }
    Surface& Bitmap() { return Map().GetMemoryDC()->GetSurface(); }

    FontRef* Font = nullptr;
    std::unique_ptr<NavigationHost> pHost;
    std::vector<std::unique_ptr<SkyMarker>> Markers;
    std::vector<Question> Asked;
};

} // namespace

// Clicks.

TEST_F(MapNavigationTest, AClickOnEmptySkyCentresTheViewThere)
{
    OpenOnOrion();
    const TPoint point(150, 40);
    const PolarCoord target = SkyAt(point);
    Desk().Click(Map(), point);
    Pump();
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), target), 1e-9);
    EXPECT_EQ(Map().GetTransformation()->GetProjector().GetCenterPoint(), TPoint(100, 75));
    EXPECT_TRUE(Map().Informed.empty());
    EXPECT_FALSE(Map().HasCapture()) << "the release gives the mouse back";
}

TEST_F(MapNavigationTest, ASlipOfFourPixelsIsStillAClickWhereTheButtonComesUp)
{
    OpenOnOrion();
    const double radius = Map().GetOrientation().GetFieldRadius();
    // |dx| + |dy| = 3 + 1 is not above 4.
    const PolarCoord target = SkyAt(TPoint(53, 41));
    Desk().Drag(Map(), TPoint(50, 40), TPoint(53, 41), 2);
    Pump();
    EXPECT_EQ(Map().GetDragger(), nullptr);
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), target), 1e-9);
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), radius) << "no zoom";
}

TEST_F(MapNavigationTest, ARubberBandShowsWhileDraggedAndZoomsToItsArea)
{
    OpenOnOrion();
    const TPoint from(60, 40);
    const TPoint to(140, 100);
    const PolarCoord middle = SkyAt(TPoint(100, 70));
    const double corner = Apart(SkyAt(from), middle);

    Desk().MouseDown(Map().ClientToScreen(from));
    Desk().MouseMove(Map().ClientToScreen(TPoint(100, 70)));
    Desk().MouseMove(Map().ClientToScreen(to));
    Pump();
    ASSERT_NE(Map().GetDragger(), nullptr);
    EXPECT_EQ(Map().GetDragger()->GetLastRect(), TRect(from.x, from.y, to.x, to.y));
    // The black sky inside the band is inverted on the screen, and only there.
    auto during = Screen();
    EXPECT_EQ(during->ColorAt(80, 50), RGB(255, 255, 255));
    EXPECT_EQ(during->ColorAt(from.x - 2, from.y - 2), RGB(0, 0, 0));
    EXPECT_EQ(during->ColorAt(to.x + 1, to.y + 1), RGB(0, 0, 0));
    // A band taken back to a smaller one leaves nothing of the larger behind.
    Desk().MouseMove(Map().ClientToScreen(TPoint(120, 70)));
    Desk().MouseMove(Map().ClientToScreen(to));
    Pump();
    EXPECT_EQ(Screen()->ColorAt(130, 90), RGB(255, 255, 255));
    EXPECT_EQ(Screen()->ColorAt(to.x + 1, to.y + 1), RGB(0, 0, 0));

    const std::string shownBefore = OrientationText();
    Desk().MouseUp(Map().ClientToScreen(to));
    Pump();
    EXPECT_EQ(Map().GetDragger(), nullptr);
    EXPECT_NE(OrientationText(), shownBefore) << "the status block tells the new field";
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), middle), 1e-9);
    EXPECT_NEAR(Map().GetOrientation().GetFieldRadius(), corner, 1e-9);
    EXPECT_EQ(Screen()->ColorAt(80, 50), RGB(0, 0, 0)) << "the new view replaces the band";
}

TEST_F(MapNavigationTest, ANarrowOrBackwardBandRepaintsWithoutZooming)
{
    OpenOnOrion();
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();
    const double radius = Map().GetOrientation().GetFieldRadius();

    // 3 pixels wide and 100 high.
    Desk().Drag(Map(), TPoint(50, 20), TPoint(53, 120));
    Pump();
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), radius);
    EXPECT_EQ(Screen()->ColorAt(51, 60), RGB(0, 0, 0)) << "the band is painted away";

    // Drawn up and to the left: a negative size shows nothing and never zooms.
    Desk().MouseDown(Map().ClientToScreen(TPoint(150, 110)));
    Desk().MouseMove(Map().ClientToScreen(TPoint(50, 40)));
    Pump();
    EXPECT_EQ(Screen()->ColorAt(100, 75), RGB(0, 0, 0));
    Desk().MouseUp(Map().ClientToScreen(TPoint(50, 40)));
    Pump();
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), radius);
}

TEST_F(MapNavigationTest, ZoomingIntoATinyAreaStopsAtOneDegree)
{
    OpenOnOrion();
    Map().ZoomToArea(TRect(100, 75, 102, 77));
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), MapWindow::kMinimumZoomRadius);
    EXPECT_TRUE(Map().IsTransformationDirty());
    // An empty rectangle changes nothing.
    Map().ZoomToArea(TRect(10, 10, 10, 60));
    EXPECT_EQ(Map().GetOrientation().GetFieldRadius(), MapWindow::kMinimumZoomRadius);
}

TEST_F(MapNavigationTest, AClickOnAnObjectOpensItsInformationAndARightClickOnlyCentres)
{
    SkyMarker& star = Mark(AstroObject::ObjectType::Star, PolarCoord(90.0, 10.0), "Marker");
    OpenOnOrion();
    const TPoint point = star.GetDisplayPoint();
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();

    // Within the pick radius of the object.
    Desk().Click(Map(), point + TPoint(3, -2));
    Pump();
    ASSERT_EQ(Map().Informed.size(), 1u);
    EXPECT_EQ(Map().Informed[0], &star);
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);

    Desk().Click(Map(), point, MK_RBUTTON);
    Pump();
    EXPECT_EQ(Map().Informed.size(), 1u);
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), star.GetPosition()), 0.5);
}

TEST_F(MapNavigationTest, AClickOnAConstellationOrItsLabelGoesStraightToItsArticle)
{
    // Andromeda's uid, whose first link in the shipped table is its Wikipedia page.
    SkyMarker& andromeda = Mark(AstroObject::ObjectType::Constellation, PolarCoord(80.0, -10.0),
                                "Andromeda", AstroObject::kUidBase + 1, true);
    OpenOnOrion();
    Desk().Click(Map(), andromeda.GetDisplayPoint());
    Pump();
    ASSERT_EQ(pHost->References.size(), 1u);
    EXPECT_EQ(pHost->References[0], "https://en.wikipedia.org/wiki/Andromeda_(constellation)");
    EXPECT_TRUE(Map().Informed.empty());

    // The label stands beside the object, further than the pick radius from it.
    const Label* label = nullptr;
    for (const Label* l : Map().GetLabels()) {
        if (l->GetObject() == &andromeda) {
            label = l;
        }
    }
    ASSERT_NE(label, nullptr);
    const TRect rect = label->GetDisplayRect();
    const TPoint onLabel(rect.right - 2, (rect.top + rect.bottom) / 2);
    ASSERT_GT(std::abs(onLabel.x - andromeda.GetDisplayPoint().x), MapWindow::kPickRadius);
    EXPECT_EQ(Map().GetLinkObject(onLabel), &andromeda);
    Desk().Click(Map(), onLabel);
    Pump();
    EXPECT_EQ(pHost->References.size(), 2u);
}

TEST_F(MapNavigationTest, ThePointerShowsAHandOverAnObjectAndTheCrossElsewhere)
{
    SkyMarker& star = Mark(AstroObject::ObjectType::Star, PolarCoord(90.0, 10.0), "Marker");
    OpenOnOrion();
    Desk().MouseMove(Map().ClientToScreen(star.GetDisplayPoint()));
    Pump();
    EXPECT_EQ(Desk().GetCursorShape(), IDC_HAND);
    Desk().MouseMove(Map().ClientToScreen(TPoint(20, 130)));
    Pump();
    EXPECT_EQ(Desk().GetCursorShape(), IDC_CROSS);

    // While the map is busy the hourglass stays.
    Map().ShowWaitCursor();
    Desk().MouseMove(Map().ClientToScreen(star.GetDisplayPoint()));
    Pump();
    EXPECT_EQ(Desk().GetCursorShape(), IDC_WAIT);
    Map().RestoreCursor();
}

TEST_F(MapNavigationTest, WithTheMouseDisabledOnlyTheParentsClickMessageGoesOut)
{
    OpenOnOrion();
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();
    Map().DisableMouse(true);
    Desk().Click(Map(), TPoint(150, 40));
    Desk().Drag(Map(), TPoint(40, 40), TPoint(140, 110));
    Desk().Click(Map(), TPoint(150, 40), MK_RBUTTON);
    Pump();
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    EXPECT_EQ(Map().GetDragger(), nullptr);

    Map().SetSingleClickMessage(kSingleClick);
    const PolarCoord clicked = SkyAt(TPoint(150, 40));
    Desk().Click(Map(), TPoint(150, 40));
    Pump();
    ASSERT_EQ(pHost->Clicks.size(), 1u);
    EXPECT_EQ(pHost->Clicks[0], clicked);
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);

    // With the mouse on again the parent still takes the clicks in place of the map.
    Map().DisableMouse(false);
    Desk().Click(Map(), TPoint(30, 30));
    Pump();
    EXPECT_EQ(pHost->Clicks.size(), 2u);
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    // Off the projected sphere nothing is sent.
    Map().SetFieldRadius(80.0);
    Pump();
    Desk().Click(Map(), TPoint(1, 1));
    Pump();
    EXPECT_EQ(pHost->Clicks.size(), 2u);
}

// Scrolling and blinking.

TEST_F(MapNavigationTest, ScrollingStepsAtOnceAndOnEveryTickUntilStopped)
{
    OpenOnTheGround();
    const std::string shownBefore = OrientationText();
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_UP, 100, DegreeAngle(2.0)));
    EXPECT_TRUE(Map().IsScrolling());
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 182.0);
    EXPECT_FALSE(Map().IsTransformationDirty()) << "each step is painted at once";
    EXPECT_NE(OrientationText(), shownBefore) << "the status block follows each step";

    Desk().AdvanceTime(100);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 184.0);
    Desk().AdvanceTime(250);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 188.0);

    // A second scroll restarts the timer with its own pace: a step at once, and the next one
    // 300 ms later, not at the old timer's next tick.
    Desk().AdvanceTime(20);
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::AZIMUTH_DOWN, 300, DegreeAngle(1.0)));
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 187.0);
    Desk().AdvanceTime(299);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 187.0);
    Desk().AdvanceTime(1);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 186.0);

    Map().StopScrolling();
    EXPECT_FALSE(Map().IsScrolling());
    Desk().AdvanceTime(1000);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetRA().GetDegrees(), 186.0);
}

TEST_F(MapNavigationTest, ScrollingStopsByItselfWhereTheViewCannotMoveOn)
{
    OpenOnTheGround();
    // Towards the zenith from a zenith distance of 60, 25 degrees a step: 35, 10, then 0.4,
    // and then no further.
    Map().Scroll(AstroScrollInfo(AstroScrollInfo::TOWARDS_ZENITH, 100, DegreeAngle(25.0)));
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetDec().GetDegrees(), 35.0);
    Desk().AdvanceTime(200);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetDec().GetDegrees(), 0.4);
    EXPECT_TRUE(Map().IsScrolling());
    Desk().AdvanceTime(100);
    EXPECT_FALSE(Map().IsScrolling());
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetDec().GetDegrees(), 0.4);
    Desk().AdvanceTime(500);
    EXPECT_DOUBLE_EQ(Ground().GetZenithOffset().GetDec().GetDegrees(), 0.4);
}

TEST_F(MapNavigationTest, ABlinkingObjectIsLeftOutEveryOtherHalfSecond)
{
    SkyMarker& star = Mark(AstroObject::ObjectType::Star, PolarCoord(90.0, 10.0), "Marker");
    OpenOnOrion();
    // With the grid and the status line shown nothing stays dirty after a draw, and a blink
    // step must still draw.
    Map().SetGridInfo(GridInfo(24, 36, true));
    Pump();
    ASSERT_FALSE(Map().IsAnythingDirty());
    const TPoint p = star.GetDisplayPoint();
    const unsigned white = 255;
    ASSERT_EQ(Bitmap().ValueAt(p.x, p.y), white);

    Map().BlinkObject(star);
    EXPECT_TRUE(Map().GetBlinkPhase());
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    EXPECT_FALSE(Map().GetBlinkPhase());
    EXPECT_NE(Bitmap().ValueAt(p.x, p.y), white);
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    EXPECT_EQ(Bitmap().ValueAt(p.x, p.y), white);
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    EXPECT_NE(Bitmap().ValueAt(p.x, p.y), white);

    // Stopped in the dark phase the object comes back at once, and stays.
    Map().StopBlinking();
    EXPECT_EQ(Map().GetBlinkObject(), nullptr);
    EXPECT_EQ(Bitmap().ValueAt(p.x, p.y), white);
    Desk().AdvanceTime(3 * MapWindow::kBlinkInterval);
    EXPECT_EQ(Bitmap().ValueAt(p.x, p.y), white);
}

TEST_F(MapNavigationTest, ABlinkingLabelIsHiddenInTheDarkPhase)
{
    SkyMarker& star =
        Mark(AstroObject::ObjectType::Star, PolarCoord(90.0, 10.0), "Marker", 0, true);
    OpenOnOrion();
    Map().BlinkLabelForObject(star);
    EXPECT_EQ(Map().GetLabels().GetHiddenObject(), nullptr);
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    EXPECT_EQ(Map().GetLabels().GetHiddenObject(), &star);
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    EXPECT_EQ(Map().GetLabels().GetHiddenObject(), nullptr);
    Desk().AdvanceTime(MapWindow::kBlinkInterval);
    Map().StopBlinking();
    EXPECT_EQ(Map().GetLabels().GetHiddenObject(), nullptr);
    EXPECT_EQ(Map().GetBlinkLabelObject(), nullptr);
}

TEST_F(MapNavigationTest, TheMarkOfAnObjectIsARedFrameThatTheNextMarkWipes)
{
    SkyMarker& first = Mark(AstroObject::ObjectType::Star, PolarCoord(90.0, 10.0), "First");
    SkyMarker& second = Mark(AstroObject::ObjectType::Star, PolarCoord(78.0, -10.0), "Second");
    OpenOnOrion();
    const COLORREF red = TColor::LtRed.GetValue();
    const TPoint a = first.GetDisplayPoint();
    const TPoint b = second.GetDisplayPoint();

    Map().SetHilitedObject(first);
    EXPECT_EQ(Map().GetHilitedObject(), &first);
    EXPECT_EQ(Screen()->ColorAt(a.x - 5, a.y - 3), red);
    EXPECT_EQ(Screen()->ColorAt(a.x + 5, a.y + 3), red);
    EXPECT_EQ(Screen()->ColorAt(a.x, a.y + 3), red);
    EXPECT_NE(Screen()->ColorAt(a.x, a.y + 1), red) << "only the outline";

    Map().SetHilitedObject(second);
    EXPECT_NE(Screen()->ColorAt(a.x - 5, a.y - 3), red);
    EXPECT_EQ(Screen()->ColorAt(b.x + 5, b.y - 3), red);
}

// Locating objects.

TEST_F(MapNavigationTest, AnObjectNamedBeforeTheFirstPaintWaitsForIt)
{
    // A view fixed on the stars shows whatever is named, without questions.
    auto* first = new Star(1, 1.0, PolarCoord(30.0, 20.0), "First");
    auto* second = new Star(2, 1.0, PolarCoord(200.0, -40.0), "Second");
    Map().ShowObject(*first);
    Map().ShowObject(*second);
    EXPECT_EQ(first->GetReferenceCount(), 1) << "the second replaced the first";
    EXPECT_EQ(second->GetReferenceCount(), 2);
    first->ReleaseReference();
    second->ReleaseReference();

    OpenOnOrion();
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), PolarCoord(200.0, -40.0)), 1e-9);
    EXPECT_EQ(Map().GetLastTargetName(), "Second");
}

TEST_F(MapNavigationTest, AStarAboveTheHorizonIsCentredAndLabelled)
{
    OpenOnTheGround();
    // Overhead, and fainter than the label limit of 2.
    Star star(1, 4.5, Map().GetOrientation().GetZenith(), "Faint");
    Map().ShowObject(star);
    EXPECT_TRUE(Asked.empty());
    EXPECT_EQ(Map().GetLastTargetName(), "Faint");
    const StarDisplayParameters& stars = Map().GetDisplayParameters();
    EXPECT_EQ(stars.GetLabelType(), StarDisplayParameters::kPopularNameLabels);
    EXPECT_DOUBLE_EQ(stars.GetLimitingMagnitudeLabels(), 4.6);
    Pump();
    // The view turned up towards it as far as the horizon limit lets it go... to the zenith.
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), star.GetPosition()), 1e-6);

    // Moving the view by hand forgets the name.
    Desk().Click(Map(), TPoint(20, 20));
    Pump();
    EXPECT_NE(Map().GetLastTargetName(), "Faint");
}

TEST_F(MapNavigationTest, AStarThatNeverRisesIsShownBelowTheHorizonOnlyIfTheUserSaysSo)
{
    OpenOnTheGround();
    Star southern(1, 1.0, PolarCoord(100.0, -60.0), "Southern");
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();

    Answer(IDNO);
    Map().ShowObject(southern);
    ASSERT_EQ(Asked.size(), 1u);
    EXPECT_EQ(Asked[0].Caption, "Object Below the Horizon");
    EXPECT_EQ(Asked[0].Text, "Southern never rises at this location.\n"
                             "Do you want to see where it is, below the horizon?");
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    EXPECT_TRUE(Map().IsClippedAtHorizon());
    EXPECT_NE(Map().GetLastTargetName(), "Southern");

    Answer(IDYES);
    Map().ShowObject(southern);
    EXPECT_EQ(Asked.size(), 2u) << "one question each time";
    EXPECT_FALSE(Map().IsClippedAtHorizon());
    Pump();
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), southern.GetPosition()), 1e-6);
    EXPECT_EQ(Map().GetLastTargetName(), "Southern");
}

TEST_F(MapNavigationTest, AStarBelowTheHorizonCanBeSeenRising)
{
    OpenOnTheGround();
    // Set since 1h UT; it rises near noon.
    Star star(1, 1.0, PolarCoord(18.0, 10.0), "Riser");
    const AstroTime rise = Map().GetRiseTime(star);

    Answer(IDYES);
    Map().ShowObject(star);
    ASSERT_EQ(Asked.size(), 1u);
    EXPECT_EQ(Asked[0].Caption, "Object Below the Horizon");
    AstroTime local = rise - TimeZone();
    local.SetMode(Map().IsMilitaryTime() ? AstroTime::Clock24 : AstroTime::Clock12);
    EXPECT_EQ(Asked[0].Text, "Riser is below the horizon now. It rises at " +
                                 local.GetDescription3() + ".\nDo you want to see it rise?");
    EXPECT_NEAR(Map().GetTime().GetMJD() - rise.GetMJD(), 10.0 / 1440.0, 1.0 / 86400.0);
    Pump();
    EXPECT_TRUE(Map().ObjectIsUp(star));
    TPoint point;
    EXPECT_TRUE(Map().GetTransformation()->Translate(star.GetPosition(), point));
    EXPECT_EQ(Map().GetLastTargetName(), "Riser");
}

TEST_F(MapNavigationTest, SayingNoToTheRisingAsksAgainOnlyWhenTheViewMaySinkBelowTheHorizon)
{
    OpenOnTheGround();
    Star star(1, 1.0, PolarCoord(18.0, 10.0), "Riser");
    const AstroTime time = Map().GetTime();
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();

    Answer(IDNO);
    Map().ShowObject(star);
    EXPECT_EQ(Asked.size(), 1u);
    EXPECT_EQ(Map().GetTime(), time);
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);

    Map().ClipAtHorizon(false);
    Answer(IDNO);
    Answer(IDYES);
    Map().ShowObject(star);
    ASSERT_EQ(Asked.size(), 3u);
    EXPECT_EQ(Asked[2].Text, "Do you want to see where it is now, below the horizon?");
    EXPECT_EQ(Map().GetTime(), time);
    Pump();
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), star.GetPosition()), 1e-6);
    EXPECT_FALSE(Map().ObjectIsUp(star));
}

TEST_F(MapNavigationTest, LocatingABodyOfTheSolarSystemTurnsOnThePlanetsAndTheirLabels)
{
    Map().ShowPlanets(false);
    PlanetOptions quiet;
    quiet.bShowLabels = false;
    Map().SetPlanetOptions(quiet);
    OpenOnOrion();
    AstroObject* mars = Map().GetObjectFromUid(AstroObject::kUidBase + 303);
    ASSERT_NE(mars, nullptr);
    Map().ShowObject(*mars);
    EXPECT_TRUE(Map().IsShowingPlanets());
    EXPECT_TRUE(Map().GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels);
    EXPECT_EQ(Map().GetLastTargetName(), "Mars");
    mars->ReleaseReference();
}

TEST_F(MapNavigationTest, AUidFindsThePlanetsTheSunTheMoonAndTheStars)
{
    OpenOnOrion();
    PlanetCatalogue& planets = Map().GetCollector().GetPlanetCatalogue();
    const std::uint32_t base = AstroObject::kUidBase;

    AstroObject* sun = Map().GetObjectFromUid(base + 311);
    EXPECT_EQ(sun, planets.GetView(PlanetCatalogue::kSunPlace));
    AstroObject* moon = Map().GetObjectFromUid(base + 310);
    EXPECT_EQ(moon, planets.GetView(PlanetCatalogue::kMoonPlace));
    AstroObject* jupiter = Map().GetObjectFromUid(base + 304);
    ASSERT_EQ(jupiter, planets.GetView(4));
    EXPECT_EQ(jupiter->GetReferenceCount(), 2) << "one for the caller";
    for (AstroObject* o : {sun, moon, jupiter}) {
        o->ReleaseReference();
    }
    EXPECT_EQ(jupiter->GetReferenceCount(), 1);

    // Sirius, SAO 151881, from the star files.
    AstroObject* sirius = Map().GetObjectFromUid(base + 1000 + 151881);
    ASSERT_NE(sirius, nullptr);
    EXPECT_EQ(sirius->GetListName(), "Sirius");
    EXPECT_NEAR(sirius->GetPosition().GetRA().GetDegrees(), 101.29, 0.05);
    sirius->ReleaseReference();

    // A constellation by its place in the table of names, a Messier object by its number.
    AstroObject* aquila = Map().GetObjectFromUid(base + 5);
    ASSERT_NE(aquila, nullptr);
    EXPECT_EQ(aquila->GetListName(), "Aquila");
    AstroObject* m31 = Map().GetObjectFromUid(base + 131);
    ASSERT_NE(m31, nullptr);
    EXPECT_EQ(m31->GetUid(), base + 131);
    AstroObject* m110 = Map().GetObjectFromUid(base + 210);
    ASSERT_NE(m110, nullptr);
    for (AstroObject* o : {aquila, m31, m110}) {
        EXPECT_EQ(o->GetReferenceCount(), 2);
        o->ReleaseReference();
    }

    // Below the base, the Earth we stand on, offsets of no kind of object or beyond the
    // catalogues, and a star no file has.
    for (std::uint32_t uid : {base - 1, base + 302, base + 0, base + 89, base + 100, base + 250,
                              base + 1000, base + 259998, base + 1000 + 259996}) {
        EXPECT_EQ(Map().GetObjectFromUid(uid), nullptr) << uid - base;
    }
}

TEST_F(MapNavigationTest, LocatingAConstellationOrAMessierObjectTurnsOnTheirLabelsAndMarks)
{
    OpenOnOrion();
    AstroObject* orion = Map().GetObjectFromUid(AstroObject::kUidBase + 0x3C);
    ASSERT_NE(orion, nullptr);
    ASSERT_EQ(orion->GetListName(), "Orion");
    Map().ShowObject(*orion);
    EXPECT_TRUE(Map().GetConstellationSettings().bShowLabels);
    EXPECT_FALSE(Map().GetConstellationSettings().bShowFigures);
    EXPECT_EQ(Map().GetCurrentConstellation(), nullptr) << "only the logging mode 2 keeps it";
    Map().SetNodeLogMode(2);
    Map().ShowObject(*orion);
    EXPECT_EQ(Map().GetCurrentConstellation(), orion);
    orion->ReleaseReference();

    AstroObject* m42 = Map().GetObjectFromUid(AstroObject::kUidBase + 142);
    ASSERT_NE(m42, nullptr);
    Map().ShowObject(*m42);
    EXPECT_TRUE(Map().IsShowingMessier());
    Pump();
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(), m42->GetPosition()), 1e-9);
    m42->ReleaseReference();
}

// Constellations and their figure lines.

TEST_F(MapNavigationTest, AConstellationIsShownByItsNameWhateverTheCase)
{
    OpenOnOrion();
    const PolarCoord centre = Map().GetOrientation().GetCenterOfView();
    Map().ShowConstellation("NO SUCH CONSTELLATION");
    EXPECT_EQ(Map().GetOrientation().GetCenterOfView(), centre);
    EXPECT_EQ(Map().GetCurrentConstellation(), nullptr);

    Map().ShowConstellation("ursa major");
    ASSERT_NE(Map().GetCurrentConstellation(), nullptr);
    EXPECT_EQ(Map().GetCurrentConstellation()->GetName(), "Ursa Major");
    EXPECT_LT(Apart(Map().GetOrientation().GetCenterOfView(),
                    Map().GetCurrentConstellation()->GetCenter()),
              1e-9);
}

TEST_F(MapNavigationTest, FigureLinesAreLoggedInPairsDrawnAndTakenBackWithEscape)
{
    OpenOnOrion();
    Star betelgeuse(113271, 0.5, PolarCoord(88.79, 7.41), "Betelgeuse");
    Star bellatrix(112740, 1.6, PolarCoord(81.28, 6.35), "Bellatrix");
    Star rigel(131907, 0.1, PolarCoord(78.63, -8.20), "Rigel");
    Star saiph(132542, 2.1, PolarCoord(86.94, -9.67), "Saiph");
    auto log = [this](Star& star, bool newLine) {
        Map().SetHilitedObject(star);
        Map().LogConstellationNode(newLine);
    };
    auto sao = [this](std::size_t i) { return Map().GetConstellationNodes()[i].GetSAONumber(); };

    // Nothing happens in any mode while the mark is on no star.
    Map().LogConstellationNode(false);
    EXPECT_TRUE(Map().GetConstellationNodes().empty());

    log(betelgeuse, false);
    log(bellatrix, false);
    // A third star goes on from the last end: Bellatrix to Rigel.
    log(rigel, false);
    ASSERT_EQ(Map().GetConstellationNodes().size(), 4u);
    EXPECT_EQ(sao(2), 112740u);
    EXPECT_EQ(sao(3), 131907u);
    // A new line starts at Saiph; a second new line drops that lone start.
    log(saiph, true);
    EXPECT_EQ(Map().GetConstellationNodes().size(), 5u);
    log(betelgeuse, true);
    ASSERT_EQ(Map().GetConstellationNodes().size(), 5u);
    EXPECT_EQ(sao(4), 113271u);

    // The lines are red on the screen: the middle of Betelgeuse to Bellatrix.
    TPoint a;
    TPoint b;
    Map().GetTransformation()->Translate(betelgeuse.GetPosition(), a);
    Map().GetTransformation()->Translate(bellatrix.GetPosition(), b);
    const TPoint middle((a.x + b.x) / 2, (a.y + b.y) / 2);
    auto isRed = [this](const TPoint& p) {
        for (int dy = -1; dy <= 1; ++dy) {
            if (Screen()->ColorAt(p.x, p.y + dy) == TColor::LtRed.GetValue()) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(isRed(middle));

    // Escape takes back the open end and the last whole line, only in mode 1.
    Map().SetFocus();
    Desk().PressKey(VK_ESCAPE);
    Pump();
    EXPECT_EQ(Map().GetConstellationNodes().size(), 5u);
    Map().SetNodeLogMode(1);
    Desk().PressKey(VK_ESCAPE);
    Pump();
    EXPECT_EQ(Map().GetConstellationNodes().size(), 4u) << "the open end went";
    Desk().PressKey(VK_ESCAPE);
    Pump();
    EXPECT_EQ(Map().GetConstellationNodes().size(), 2u) << "both ends of the last line went";
    EXPECT_TRUE(isRed(middle)) << "the lines left are drawn again";
}

TEST_F(MapNavigationTest, FigureLinesAreAppendedToTheFigureFileOfTheCurrentConstellation)
{
    ScopedHome home;
    const std::string figures = home.File("figures.txt");
    home.WriteFile("orbiscope.ini", "[Orbiscope]\nConstNodeFile=" + figures + "\n");
    home.WriteFile("figures.txt", "Ori,1.00000,2.00000,3.00000,4.00000,1,2\n");
    OpenOnOrion();
    Star betelgeuse(113271, 0.5, PolarCoord(88.79, 7.41), "Betelgeuse");
    Star bellatrix(112740, 1.6, PolarCoord(81.28, 6.35), "Bellatrix");
    Map().SetHilitedObject(betelgeuse);
    Map().LogConstellationNode(false);
    Map().SetHilitedObject(bellatrix);
    Map().LogConstellationNode(false);

    // Without a current constellation the user is told to locate one, and nothing is lost.
    Answer(IDOK);
    Map().SaveConstellationNodeInfo();
    ASSERT_EQ(Asked.size(), 1u);
    EXPECT_EQ(Asked[0].Caption, "Constellation Lines");
    EXPECT_EQ(Asked[0].Text, "No constellation is selected. Locate a constellation first.");
    EXPECT_EQ(Map().GetConstellationNodes().size(), 2u);

    // Locating another constellation in mode 1 saves the lines of the current one first.
    Map().ShowConstellation("Orion");
    Map().SetNodeLogMode(1);
    Map().ShowConstellation("Taurus");
    EXPECT_TRUE(Map().GetConstellationNodes().empty());
    EXPECT_EQ(home.ReadFile("figures.txt"),
              "Ori,1.00000,2.00000,3.00000,4.00000,1,2\n"
              "Ori,88.79000,7.41000,81.28000,6.35000,113271,112740\n");
    // With fewer than two ends nothing is written.
    Map().SetHilitedObject(bellatrix);
    Map().LogConstellationNode(false);
    Map().SaveConstellationNodeInfo();
    EXPECT_EQ(Map().GetConstellationNodes().size(), 1u);
    const std::string written = home.ReadFile("figures.txt");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 2);
}

TEST_F(MapNavigationTest, StatusTextsGoToTheParentAndReferencesOnlyWithAMessageNumber)
{
    OpenOnOrion();
    Map().ShowStatus("Searching the catalogue");
    ASSERT_EQ(pHost->Statuses.size(), 1u);
    EXPECT_EQ(pHost->Statuses[0], "Searching the catalogue");
    Map().SetReferenceMessage(0);
    Map().GenerateReference("https://example.org/article");
    EXPECT_TRUE(pHost->References.empty());
}

TEST_F(MapNavigationTest, ATimeLapseStepsTheTimeAtItsPaceUntilStopped)
{
    OpenOnOrion();
    const double start = Map().GetTime().GetMJD();
    const double fourMinutes = 4.0 / (24.0 * 60.0);
    Map().SetAnimation(AnimationSettings(TimeStep(TimeStep::MINUTES, 4), 2.0));
    Map().Animate();
    EXPECT_TRUE(Map().IsAnimating());

    Desk().AdvanceTime(1999);
    EXPECT_DOUBLE_EQ(Map().GetTime().GetMJD(), start) << "nothing before the first 2 s";
    Desk().AdvanceTime(1);
    EXPECT_NEAR(Map().GetTime().GetMJD(), start + fourMinutes, 1e-9);
    Desk().AdvanceTime(4000);
    EXPECT_NEAR(Map().GetTime().GetMJD(), start + 3 * fourMinutes, 1e-9);
    EXPECT_FALSE(Map().IsTimeDirty()) << "each step is painted";

    // The time reached stays when the lapse ends.
    Map().StopAnimating();
    EXPECT_FALSE(Map().IsAnimating());
    Desk().AdvanceTime(10000);
    EXPECT_NEAR(Map().GetTime().GetMJD(), start + 3 * fourMinutes, 1e-9);
}

TEST_F(MapNavigationTest, ATimeLapseWithoutAPaceStartsNothing)
{
    OpenOnOrion();
    const double start = Map().GetTime().GetMJD();
    for (double pace : {0.0, -2.0, 1e300}) {
        Map().SetAnimation(AnimationSettings(TimeStep(TimeStep::DAYS, 1), pace));
        Map().Animate();
        EXPECT_FALSE(Map().IsAnimating()) << pace;
        Desk().AdvanceTime(100000);
        EXPECT_DOUBLE_EQ(Map().GetTime().GetMJD(), start) << pace;
    }
}
