// The commands of the host's menu as a user gives them: each goes to the component window as
// WM_COMMAND, its dialog is answered as a user would answer it, and the map shows the result.
// The default state is written after the commands that keep their change, and only those.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "catalogues/AstroObject.h"
#include "catalogues/ConstellationSettings.h"
#include "host/HostBookmark.h"
#include "host/HostFrameAPI.h"
#include "host/HostFrameWindow.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "host/ScopedHome.h"
#include "platform/Registry.h"
#include "platform/TComboBox.h"
#include "platform/TListBox.h"
#include "platform/WindowCalls.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AnimationDialog.h"
#include "shell/AstroNoxWindow.h"
#include "shell/GridDialog.h"
#include "shell/LocationDialog.h"
#include "shell/ObjectInfoDialog.h"
#include "shell/ObjectListDialog.h"
#include "shell/TimeDialog.h"
#include "skyview/MapWindow.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetView.h"
#include "state/RegistryStateContainer.h"
#include "time/TimeZone.h"
#include "windows/HeadlessFixture.h"

namespace {

constexpr int kWidth = 300;
constexpr int kHeight = 200;

// A view of the stars round the pole, so that everything north of the equator stands up.
FixedOrientationInfo PoleView(double radius = 30.0)
{
    return FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), radius);
}

// A frame window that keeps the requests to start another module.
class RecordingFrameWindow : public HostFrameWindow
{
public:
    RecordingFrameWindow() : HostFrameWindow("Host", kWidth, kHeight) {}

    LRESULT WmuStartModule(WPARAM, LPARAM bookmark)
    {
        Started.push_back(reinterpret_cast<const HostBookmark*>(bookmark)->Command);
        return 1;
    }
    const TResponseRow* Find(const TEventInfo& event) const override
    {
        static const TResponseTable table{
            MsgRow<AstroNoxWindow::kStartModuleMessage, &RecordingFrameWindow::WmuStartModule>(),
        };
        const TResponseRow* row = table.Find(event);
        return row ? row : HostFrameWindow::Find(event);
    }

    std::vector<std::string> Started;
};

// An object with an article, as the information dialog reads it.
class LinkedObject : public AstroObject
{
public:
    LinkedObject() : AstroObject(ObjectType::Star) {}
    PolarCoord GetPosition() const override { return PolarCoord(10, 80); }
    double GetMagnitude() const override { return 2.0; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return false; }
    void Draw(TDC&, DisplayParameters&) override {}
    std::string GetLaunchString() const override { return "article=Polaris"; }
    std::string GetInfoName() const override { return "Polaris"; }

private:
    TPoint Point;
};

class AstroNoxCommands : public HeadlessTest
{
protected:
    void SetUp() override
    {
        HeadlessTest::SetUp();
        ASSERT_TRUE(HostProfile().Write("Orbiscope", "MilitaryTime", "1"));
        // No city list: the location dialog works by hand and completes no name.
        ASSERT_TRUE(HostProfile().Write("Orbiscope", "CityList", Home.File("none.txt")));
        Frame = std::make_unique<StandardHostFrame>([this](const std::string& address) {
            Launched.push_back(address);
            return true;
        });
        SetHostFrameAPI(Frame.get());
        pFrame = std::make_unique<RecordingFrameWindow>();
        ASSERT_TRUE(pFrame->Create());
        Frame->SetFrameWindow(pFrame.get());
        // The window tree owns the component.
        pWindow = new AstroNoxWindow(pFrame.get());
        ASSERT_TRUE(pWindow->Create());
        pMap = pWindow->GetMap();
        pMap->SetOrientation(PoleView());
        Pump();
    }
    void TearDown() override
    {
        pFrame->Destroy();
        pFrame.reset();
        SetHostFrameAPI(nullptr);
        CloseRegistryStore();
        HeadlessTest::TearDown();
    }

    // The command as the host's menu gives it.
    void Command(UINT id)
    {
        pWindow->SendMessage(WM_COMMAND, id, 0);
        Pump();
    }

    // Whether a default state has been written.
    bool DefaultStateKept() const
    {
        RegistryStateContainer root(pWindow->GetStateRoot());
        std::vector<std::string> names;
        root.ListKeyNames(names);
        for (const std::string& name : names) {
            if (name == pWindow->GetDefaultKey()) {
                return true;
            }
        }
        return false;
    }

    // A view from the ground at Paris, looking south, which the default state can keep.
    void StandInParis()
    {
        pMap->SetOrientation(RotatingOrientationInfo(pMap->GetCollector().GetOrigin(),
                                                     LatLong(48.85, 357.65), PolarCoord(180, 45),
                                                     40.0, true));
        pMap->SetLocationName("Paris");
    }

    // Answers the object list dialog by choosing the row of `name`.
    void ChooseFromList(const std::string& name)
    {
        Desk().AnswerNextModal([name](TWindow& window) {
            auto* list = dynamic_cast<TListBox*>(window.ChildWithId(ObjectListDialog::kObjectList));
            ASSERT_NE(list, nullptr);
            list->SetSelIndex(list->FindExactString(name));
            HeadlessBackend::PressButton(window, IDOK);
        });
    }

    ScopedHome Home;
    std::unique_ptr<StandardHostFrame> Frame;
    std::unique_ptr<RecordingFrameWindow> pFrame;
    AstroNoxWindow* pWindow = nullptr;
    MapWindow* pMap = nullptr;
    std::vector<std::string> Launched;
};

TEST_F(AstroNoxCommands, ZoomingKeepsTheFieldBetweenATenthOfADegreeAndNinetyDegrees)
{
    pMap->SetOrientation(PoleView(20.0));
    Command(AstroNoxWindow::kCmZoomIn);
    EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), 15.0);
    Command(AstroNoxWindow::kCmZoomOut);
    EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), 20.0);

    pMap->SetOrientation(PoleView(0.12));
    Command(AstroNoxWindow::kCmZoomIn);
    EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), 0.1) << "not 0.09";
    pMap->SetOrientation(PoleView(80.0));
    Command(AstroNoxWindow::kCmZoomOut);
    EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), 90.0);
    EXPECT_EQ(pMap->GetTransformation()->GetCenterOfView(), PolarCoord(0, 90))
        << "the view was drawn anew, with its centre kept";

    // The kind of view stays as it was.
    StandInParis();
    Command(AstroNoxWindow::kCmZoomIn);
    EXPECT_EQ(pMap->GetOrientation().GetType(), OrientationInfo::ROTATING);
    EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), 30.0);
}

TEST_F(AstroNoxCommands, TheTimeDialogSetsTheMapsTimeAndCancelLeavesIt)
{
    const AstroTime before = pMap->GetTime();
    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, TimeDialog::kYear, "1850");
        HeadlessBackend::PressButton(window, IDCANCEL);
    });
    Command(AstroNoxWindow::kCmSetTime);
    EXPECT_EQ(pMap->GetTime(), before);

    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, TimeDialog::kYear, "1999");
        HeadlessBackend::TypeInto(window, TimeDialog::kDay, "15");
        HeadlessBackend::TypeInto(window, TimeDialog::kHour, "12");
        HeadlessBackend::PressButton(window, IDOK);
    });
    Command(AstroNoxWindow::kCmSetTime);
    EXPECT_EQ(pMap->GetTime().GetYear(), 1999);
    EXPECT_EQ(pMap->GetTime().GetMonth(), before.GetMonth());
    EXPECT_FALSE(pMap->IsTimeDirty()) << "drawn at the new time";
    EXPECT_FALSE(DefaultStateKept()) << "the time is never part of the default";
}

TEST_F(AstroNoxCommands, ANewPlaceIsTakenWithItsNameAndKeptAsTheDefault)
{
    StandInParis();
    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, LocationDialog::kCityName, "Nowhere");
        HeadlessBackend::PressButton(window, IDCANCEL);
    });
    Command(AstroNoxWindow::kCmSetLocation);
    EXPECT_EQ(pMap->GetLocationName(), "Paris");
    EXPECT_FALSE(DefaultStateKept()) << "a cancelled dialog changes nothing";

    const TimeZone zone = pMap->GetTimeZone();
    Desk().AnswerNextModal([](TWindow& window) {
        EXPECT_EQ(window.ChildWithId(LocationDialog::kCityName)->GetWindowText(), "Paris")
            << "the dialog opens on the map's place";
        EXPECT_EQ(window.ChildWithId(LocationDialog::kLatitudeDegrees)->GetWindowText(), "48");
        HeadlessBackend::TypeInto(window, LocationDialog::kCityName, "Quito");
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeDegrees, "0");
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeMinutes, "13");
        HeadlessBackend::TypeInto(window, LocationDialog::kLatitudeSeconds, "0");
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeDegrees, "78");
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeMinutes, "30");
        HeadlessBackend::TypeInto(window, LocationDialog::kLongitudeSeconds, "0");
        HeadlessBackend::PressButton(window, IDOK);
    });
    Command(AstroNoxWindow::kCmSetLocation);
    EXPECT_EQ(pMap->GetLocationName(), "Quito");
    const auto& ground = dynamic_cast<const RotatingOrientationInfo&>(pMap->GetOrientation());
    EXPECT_NEAR(ground.GetLocation().GetLatitude().GetDegrees(), 13.0 / 60.0, 1e-9);
    EXPECT_EQ(pMap->GetTimeZone().GetDisplayName(), zone.GetDisplayName());
    ASSERT_TRUE(DefaultStateKept());

    // The next start comes back to Quito.
    pWindow->Destroy();
    pWindow = new AstroNoxWindow(pFrame.get());
    ASSERT_TRUE(pWindow->Create());
    EXPECT_EQ(pWindow->GetMap()->GetLocationName(), "Quito");
}

// The pace goes from the dialog to the map; the start button runs the lapse behind the stop
// dialog, whose modal loop keeps the map's timer ticking, and closing it leaves the map at
// the time reached.
TEST_F(AstroNoxCommands, TheTimeLapseRunsWhileTheStopDialogStandsAndEndsWhenItCloses)
{
    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, AnimationDialog::kMinutes, "10");
        HeadlessBackend::PressButton(window, IDCANCEL);
    });
    Command(AstroNoxWindow::kCmSetTimeLapse);
    EXPECT_EQ(pMap->GetAnimation(), AnimationSettings()) << "cancelled";

    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, AnimationDialog::kMinutes, "10");
        HeadlessBackend::TypeInto(window, AnimationDialog::kSecondsPerStep, "0.5");
        HeadlessBackend::PressButton(window, IDOK);
    });
    Command(AstroNoxWindow::kCmSetTimeLapse);
    EXPECT_EQ(pMap->GetAnimation().GetStep(TimeStep::MINUTES), 10);
    EXPECT_DOUBLE_EQ(pMap->GetAnimation().GetSecondsPerStep(), 0.5);
    EXPECT_FALSE(pMap->IsAnimating()) << "OK keeps the pace without starting";

    const double start = pMap->GetTime().GetMJD();
    double duringLapse = 0.0;
    bool animating = false;
    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, AnimationDialog::kMinutes, "20");
        HeadlessBackend::PressButton(window, AnimationDialog::kStart);
    });
    Desk().AnswerNextModal([&](TWindow& window) {
        animating = pMap->IsAnimating();
        Desk().AdvanceTime(1600); // three steps of half a second
        duringLapse = pMap->GetTime().GetMJD();
        HeadlessBackend::PressButton(window, IDOK);
    });
    Command(AstroNoxWindow::kCmSetTimeLapse);
    EXPECT_TRUE(animating);
    EXPECT_NEAR((duringLapse - start) * 24 * 60, 60.0, 1e-3) << "three steps of 20 minutes";
    EXPECT_FALSE(pMap->IsAnimating());
    const AstroTime stopped = pMap->GetTime();
    EXPECT_DOUBLE_EQ(stopped.GetMJD(), duringLapse) << "the time reached stays";
    Desk().AdvanceTime(5000);
    EXPECT_EQ(pMap->GetTime(), stopped) << "no tick after the dialog closed";
    EXPECT_EQ(pMap->GetAnimation().GetStep(TimeStep::MINUTES), 20);
}

TEST_F(AstroNoxCommands, StartingALapseWithoutAPaceOpensTheStopDialogAndMovesNothing)
{
    pMap->SetAnimation(AnimationSettings(TimeStep(), 0.0));
    const AstroTime before = pMap->GetTime();
    std::string caption;
    Desk().AnswerNextModal([&](TWindow& window) {
        caption = window.GetWindowText();
        Desk().AdvanceTime(3000);
        Desk().PressKey(VK_ESCAPE);
    });
    Command(AstroNoxWindow::kCmStartTimeLapse);
    EXPECT_EQ(caption, getHostString(5, 0x0B18));
    EXPECT_EQ(pMap->GetTime(), before);
    EXPECT_FALSE(pMap->IsAnimating());
}

TEST_F(AstroNoxCommands, TheGridDialogSetsTheGridWithoutKeepingIt)
{
    StandInParis();
    Desk().AnswerNextModal([](TWindow& window) { HeadlessBackend::PressButton(window, IDCANCEL); });
    Command(AstroNoxWindow::kCmDisplayRADecLines);
    EXPECT_FALSE(pMap->GetGridInfo().bShow);

    Desk().AnswerNextModal([](TWindow& window) {
        HeadlessBackend::TypeInto(window, GridDialog::kDegreesPerDecLine, "15");
        HeadlessBackend::PressButton(window, IDOK);
    });
    Command(AstroNoxWindow::kCmDisplayRADecLines);
    EXPECT_TRUE(pMap->GetGridInfo().bShow) << "the dialog opens wanting the lines";
    EXPECT_EQ(pMap->GetGridInfo().nDecLines, 24u);
    EXPECT_FALSE(pMap->GetGridLines().IsEmpty()) << "drawn";
    EXPECT_FALSE(DefaultStateKept());

    pWindow->CmGridToggle();
    EXPECT_FALSE(pMap->GetGridInfo().bShow);
    EXPECT_EQ(pMap->GetGridInfo().nDecLines, 24u) << "the toggle keeps the spacing";
}

// Each toggle flips its setting, and all but the horizon clipping keep it as the default.
TEST_F(AstroNoxCommands, TheDisplayTogglesFlipWhatTheMapShowsAndKeepIt)
{
    StandInParis();
    const ConstellationSettings constellations = pMap->GetConstellationSettings();
    const bool planetLabels = pMap->GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels;
    const bool comets = pMap->IsShowingComets();
    const bool messier = pMap->IsShowingMessier();
    const bool clipped = pMap->IsClippedAtHorizon();

    Command(AstroNoxWindow::kCmDisplayBelowHorizon);
    EXPECT_NE(pMap->IsClippedAtHorizon(), clipped);
    EXPECT_FALSE(DefaultStateKept()) << "the clipping is not kept";

    Command(AstroNoxWindow::kCmDisplayConstellationFigures);
    EXPECT_NE(pMap->GetConstellationSettings().bShowFigures, constellations.bShowFigures);
    EXPECT_TRUE(DefaultStateKept());
    Command(AstroNoxWindow::kCmDisplayConstellationLabels);
    EXPECT_NE(pMap->GetConstellationSettings().bShowLabels, constellations.bShowLabels);
    Command(AstroNoxWindow::kCmDisplayConstellationBoundaries);
    EXPECT_NE(pMap->GetConstellationSettings().bShowBoundaries, constellations.bShowBoundaries);
    Command(AstroNoxWindow::kCmDisplayPlanets);
    EXPECT_NE(pMap->GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels, planetLabels);
    Command(AstroNoxWindow::kCmDisplayComets);
    EXPECT_NE(pMap->IsShowingComets(), comets);
    Command(AstroNoxWindow::kCmDisplayMessierLabels);
    EXPECT_NE(pMap->IsShowingMessier(), messier);

    // The next start shows the same, with the horizon clipping as the default has it.
    pWindow->Destroy();
    pWindow = new AstroNoxWindow(pFrame.get());
    ASSERT_TRUE(pWindow->Create());
    MapWindow& next = *pWindow->GetMap();
    EXPECT_NE(next.GetConstellationSettings().bShowFigures, constellations.bShowFigures);
    EXPECT_NE(next.GetConstellationSettings().bShowLabels, constellations.bShowLabels);
    EXPECT_NE(next.GetConstellationSettings().bShowBoundaries, constellations.bShowBoundaries);
    EXPECT_NE(next.GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels, planetLabels);
    EXPECT_NE(next.IsShowingComets(), comets);
    EXPECT_NE(next.IsShowingMessier(), messier);

    // A second toggle brings each back.
    pMap = &next;
    Command(AstroNoxWindow::kCmDisplayComets);
    EXPECT_EQ(next.IsShowingComets(), comets);
}

TEST_F(AstroNoxCommands, AChangedSettingWithoutAPlaceNameIsNotKept)
{
    ASSERT_TRUE(pMap->GetLocationName().empty());
    Command(AstroNoxWindow::kCmDisplayComets);
    Command(AstroNoxWindow::kCmDisplayConstellationFigures);
    Command(AstroNoxWindow::kCmDisplayPlanets);
    EXPECT_FALSE(DefaultStateKept());
}

TEST_F(AstroNoxCommands, AnObjectChosenFromTheListIsBroughtIntoView)
{
    Desk().AnswerNextModal([](TWindow& window) { HeadlessBackend::PressButton(window, IDCANCEL); });
    Command(AstroNoxWindow::kCmLocateConstellations);
    EXPECT_EQ(pMap->GetOrientation().GetCenterOfView(), PolarCoord(0, 90));

    std::vector<AstroCatalogue::AstroCatalogues> opened;
    const std::pair<UINT, int> commands[] = {{AstroNoxWindow::kCmLocateConstellations, 0},
                                             {AstroNoxWindow::kCmLocatePlanets, 1},
                                             {AstroNoxWindow::kCmLocateStars, 2},
                                             {AstroNoxWindow::kCmLocateMessier, 3},
                                             {AstroNoxWindow::kCmLocateComets, 4}};
    for (const auto& [command, row] : commands) {
        int selected = -1;
        Desk().AnswerNextModal([&selected](TWindow& window) {
            selected =
                dynamic_cast<TComboBox*>(window.ChildWithId(ObjectListDialog::kCatalogueList))
                    ->GetSelIndex();
            HeadlessBackend::PressButton(window, IDOK);
        });
        Command(command);
        EXPECT_EQ(selected, row) << command;
    }
    EXPECT_EQ(pMap->GetOrientation().GetCenterOfView(), PolarCoord(0, 90))
        << "OK without a row shows nothing";

    // Cassiopeia stands high in a view round the pole: it comes into the middle, labelled.
    ChooseFromList("Cassiopeia");
    Command(AstroNoxWindow::kCmLocateConstellations);
    EXPECT_NE(pMap->GetOrientation().GetCenterOfView(), PolarCoord(0, 90));
    EXPECT_GT(pMap->GetOrientation().GetCenterOfView().GetDec().GetDegrees(), 50.0);
    EXPECT_TRUE(pMap->GetConstellationSettings().bShowLabels);
}

TEST_F(AstroNoxCommands, TheSunAndTheMoonAreLocatedWhereTheyStand)
{
    PlanetCatalogue& planets = pMap->GetCollector().GetPlanetCatalogue();
    for (const auto& [command, place] :
         {std::pair{AstroNoxWindow::kCmLocateSun, PlanetCatalogue::kSunPlace},
          std::pair{AstroNoxWindow::kCmLocateMoon, PlanetCatalogue::kMoonPlace}}) {
        PlanetView& body = *planets.GetView(place);
        body.SetTime(pMap->GetTime());
        const PolarCoord where = body.GetPosition();
        // A view whose zenith is the body itself: it stands up, so no question is asked.
        pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 0), where, 30.0));
        Command(command);
        EXPECT_EQ(pMap->GetOrientation().GetCenterOfView(), where) << command;
        EXPECT_EQ(pMap->GetLastTargetName(), body.GetListName());
    }
}

TEST_F(AstroNoxCommands, ThePickedObjectsInformationLeadsToItsArticle)
{
    LinkedObject polaris;
    std::string shown;
    Desk().AnswerNextModal([&](TWindow& window) {
        shown = window.ChildWithId(ObjectInfoDialog::kName)->GetWindowText();
        HeadlessBackend::PressButton(window, IDOK);
    });
    pMap->HandleObjectSelection(polaris);
    EXPECT_EQ(shown, "Polaris");
    EXPECT_TRUE(Launched.empty()) << "OK alone goes nowhere";

    Desk().AnswerNextModal(
        [](TWindow& window) { HeadlessBackend::PressButton(window, ObjectInfoDialog::kArticle); });
    pMap->HandleObjectSelection(polaris);
    EXPECT_EQ(Launched, std::vector<std::string>{"article=Polaris"});
}

TEST_F(AstroNoxCommands, TheSkyGameIsAskedOfTheHostsFrame)
{
    Command(AstroNoxWindow::kCmSkyhuntGame);
    EXPECT_EQ(pFrame->Started, std::vector<std::string>{"skyhunt"});
}

TEST_F(AstroNoxCommands, TheZoneNamesAreWrittenOneALine)
{
    Command(AstroNoxWindow::kCmDumpTimeZoneNames);
    std::ifstream dump(Home.File(AstroNoxWindow::kTimeZoneDumpFile));
    ASSERT_TRUE(dump.good());
    std::vector<std::string> lines;
    for (std::string line; std::getline(dump, line);) {
        lines.push_back(line);
    }
    const std::vector<TimeZone>& zones = TimeZone::GetAllTimeZones();
    ASSERT_FALSE(zones.empty());
    ASSERT_EQ(lines.size(), zones.size());
    EXPECT_EQ(lines.front(), zones.front().GetDisplayName());
    EXPECT_EQ(lines.back(), zones.back().GetDisplayName());
}

TEST_F(AstroNoxCommands, TheCursorWaitsWhileTheWindowIsBusy)
{
    pWindow->SetBusy(true);
    EXPECT_TRUE(pWindow->IsBusy());
    EXPECT_EQ(Desk().GetCursorShape(), IDC_WAIT);
    pWindow->SetBusy(false);
    EXPECT_EQ(Desk().GetCursorShape(), IDC_ARROW);
}

} // namespace
