// The commands of the host's menu as a user gives them: each goes to the component window as
// WM_COMMAND, its dialog is answered as a user would answer it, and the map shows the result.
// A cancelled dialog changes nothing. The default state is written after a new place and the
// display toggles, and only once the map has a place.
#include <functional>
#include <tuple>

#include "ComponentInFrame.h"
#include "platform/TListBox.h"
#include "platform/TPrinter.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AnimationDialog.h"
#include "shell/ObjectInfoDialog.h"
#include "shell/ObjectListDialog.h"
#include "skyview/AstroPrintDialog.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetView.h"

namespace {

using Window = AstroNoxWindow;
constexpr auto Press = &HeadlessBackend::PressButton;
constexpr auto Type = &HeadlessBackend::TypeInto;

class AstroNoxCommands : public ComponentInFrame
{
protected:
    void SetUp() override
    {
        ComponentInFrame::SetUp();
        // No city list: the location dialog works by hand.
        ASSERT_TRUE(HostProfile().Write("Orbiscope", "CityList", Home.File("none.txt")));
        pWindow = &Start();
        pMap = pWindow->GetMap();
    }
    // The next start of the component, with what the default state holds.
    void Restart()
    {
        pWindow->Destroy();
        pWindow = &Start();
        pMap = pWindow->GetMap();
    }
    // The command as the host's menu gives it, with `act` working the dialog it opens.
    void Command(UINT id, std::function<void(TWindow&)> act = nullptr)
    {
        if (act) {
            Desk().AnswerNextModal(act);
        }
        pWindow->SendMessage(WM_COMMAND, id, 0);
        Pump();
    }
    // A view from the ground at Paris, looking south, which the default state can keep.
    void StandInParis()
    {
        pMap->SetOrientation(RotatingOrientationInfo(pMap->GetCollector().GetOrigin(),
                                                     LatLong(48.85, 357.65), PolarCoord(180, 45),
                                                     40.0, true));
        pMap->SetLocationName("Paris");
    }

    AstroNoxWindow* pWindow = nullptr;
    MapWindow* pMap = nullptr;
};

TEST_F(AstroNoxCommands, ZoomingKeepsTheFieldBetweenATenthOfADegreeAndNinetyDegrees)
{
    const std::tuple<UINT, double, double> cases[] = {
        {Window::kCmZoomIn, 20, 15}, {Window::kCmZoomIn, 0.12, 0.1}, {Window::kCmZoomOut, 80, 90}};
    for (const auto& [command, radius, after] : cases) {
        pMap->SetOrientation(
            FixedOrientationInfo(nullptr, PolarCoord(0, 90), PolarCoord(0, 90), radius));
        Command(command);
        EXPECT_DOUBLE_EQ(pMap->GetOrientation().GetFieldRadius(), after) << radius;
        EXPECT_EQ(pMap->GetTransformation()->GetCenterOfView(), PolarCoord(0, 90));
    }
}

// The time, the grid and the pace of the time lapse come from their dialogs and are not kept;
// a new place is taken with its name and kept for the next start.
TEST_F(AstroNoxCommands, TheDialogsSetTheMapAndOnlyANewPlaceIsKept)
{
    StandInParis();
    TimeStep pace; // a different count in every unit, so that a field swapped with another shows
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        pace.SetStep(TimeStep::TIME_UNITS(unit), unit + 1);
    }
    pMap->SetAnimation(AnimationSettings(pace, 2.5));
    for (int button : {IDCANCEL, IDOK}) {
        Command(Window::kCmSetTime, [button](TWindow& dialog) {
            Type(dialog, TimeDialog::kYear, "1999");
            Press(dialog, button);
        });
        Command(Window::kCmDisplayRADecLines, [button](TWindow& dialog) {
            Type(dialog, GridDialog::kDegreesPerDecLine, "15");
            Press(dialog, button);
        });
        Command(Window::kCmSetTimeLapse, [button](TWindow& dialog) {
            std::string fields;
            for (int id :
                 {AnimationDialog::kYears, AnimationDialog::kMonths, AnimationDialog::kDays,
                  AnimationDialog::kHours, AnimationDialog::kMinutes, AnimationDialog::kSeconds,
                  AnimationDialog::kSecondsPerStep}) {
                fields += Text(dialog, id) + " ";
            }
            EXPECT_EQ(fields, "1 2 3 4 5 6 2.5 ");
            Type(dialog, AnimationDialog::kMinutes, "10");
            Press(dialog, button);
        });
        EXPECT_EQ(pMap->GetTime().GetYear() == 1999, button == IDOK);
        EXPECT_EQ(pMap->GetGridInfo().bShow, button == IDOK) << "the dialog opens wanting lines";
        EXPECT_EQ(pMap->GetAnimation().GetStep(TimeStep::MINUTES) == 10, button == IDOK);
    }
    EXPECT_EQ(pMap->GetGridInfo(), GridInfo(24, 24, true));
    EXPECT_FALSE(pWindow->RestoreDefaultState());

    for (int button : {IDCANCEL, IDOK}) {
        Command(Window::kCmSetLocation, [button](TWindow& dialog) {
            EXPECT_EQ(Text(dialog, LocationDialog::kCityName) + " " +
                          Text(dialog, LocationDialog::kLatitudeDegrees),
                      "Paris 48")
                << "the dialog opens on the map's place";
            Type(dialog, LocationDialog::kCityName, "Quito");
            Type(dialog, LocationDialog::kLatitudeDegrees, "0");
            Type(dialog, LocationDialog::kLatitudeMinutes, "13");
            Press(dialog, button);
        });
    }
    Restart();
    EXPECT_EQ(pMap->GetLocationName(), "Quito");
    const auto& ground = dynamic_cast<const RotatingOrientationInfo&>(pMap->GetOrientation());
    EXPECT_NEAR(ground.GetLocation().GetLatitude().GetDegrees(), 13.0 / 60.0, 1e-6);
}

// The start button runs the lapse behind the stop dialog, whose modal loop keeps the map's
// timer ticking; closing it leaves the map at the time reached.
TEST_F(AstroNoxCommands, TheTimeLapseRunsWhileTheStopDialogStandsAndEndsWhenItCloses)
{
    const double start = pMap->GetTime().GetMJD();
    double reached = 0.0;
    Desk().AnswerNextModal([](TWindow& dialog) {
        Type(dialog, AnimationDialog::kMinutes, "20");
        Type(dialog, AnimationDialog::kSecondsPerStep, "0.5");
        Press(dialog, AnimationDialog::kStart);
    });
    Command(Window::kCmSetTimeLapse, [&](TWindow& stop) {
        Desk().AdvanceTime(1600); // three steps of half a second
        reached = pMap->GetTime().GetMJD();
        Press(stop, IDOK);
    });
    EXPECT_NEAR((reached - start) * 24 * 60, 60.0, 1e-3) << "three steps of 20 minutes";
    Desk().AdvanceTime(5000);
    EXPECT_DOUBLE_EQ(pMap->GetTime().GetMJD(), reached) << "no tick after the dialog closed";
}

// Each toggle flips its setting and, once the map has a place, keeps it for the next start.
TEST_F(AstroNoxCommands, TheDisplayTogglesFlipWhatTheMapShowsAndKeepIt)
{
    const std::vector<std::pair<UINT, std::function<bool(MapWindow&)>>> toggles = {
        {Window::kCmDisplayConstellationFigures,
         [](MapWindow& m) { return m.GetConstellationSettings().bShowFigures; }},
        {Window::kCmDisplayConstellationLabels,
         [](MapWindow& m) { return m.GetConstellationSettings().bShowLabels; }},
        {Window::kCmDisplayConstellationBoundaries,
         [](MapWindow& m) { return m.GetConstellationSettings().bShowBoundaries; }},
        {Window::kCmDisplayPlanets,
         [](MapWindow& m) {
             return m.GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels;
         }},
        {Window::kCmDisplayComets, [](MapWindow& m) { return m.IsShowingComets(); }},
        {Window::kCmDisplayMessierLabels, [](MapWindow& m) { return m.IsShowingMessier(); }},
    };
    std::vector<bool> before;
    for (const auto& [command, shown] : toggles) {
        before.push_back(shown(*pMap));
        Command(command);
        EXPECT_NE(shown(*pMap), before.back()) << command;
    }
    StandInParis();
    // Each toggle keeps the state by itself: flipped back, it comes back so at the next start.
    pWindow->SaveAsDefaultState();
    for (std::size_t i = 0; i < toggles.size(); ++i) {
        Command(toggles[i].first);
        Restart();
        EXPECT_EQ(toggles[i].second(*pMap), before[i]) << toggles[i].first;
    }
}

// Each locate command opens the object list on its catalogue, and the object chosen there is
// brought into view. Picked on the map, a planet shows its information with its distance; OK
// closes it, and the article button opens the planet's first article in the host.
TEST_F(AstroNoxCommands, AnObjectLocatedFromItsListOrPickedLeadsToItsArticle)
{
    pMap->SetOrientation(FixedOrientationInfo(nullptr, PolarCoord(0, 0), PolarCoord(0, 90), 30));
    const UINT commands[] = {Window::kCmLocateConstellations, Window::kCmLocatePlanets,
                             Window::kCmLocateStars, Window::kCmLocateMessier,
                             Window::kCmLocateComets};
    for (int row = 0; row < 5; ++row) {
        Command(commands[row], [row](TWindow& dialog) {
            auto* rows =
                dynamic_cast<TComboBox*>(dialog.ChildWithId(ObjectListDialog::kCatalogueList));
            EXPECT_EQ(rows->GetSelIndex(), row);
            auto* list = dynamic_cast<TListBox*>(dialog.ChildWithId(ObjectListDialog::kObjectList));
            list->SetSelIndex(list->FindExactString("Mars"));
            Press(dialog, IDOK);
        });
    }
    EXPECT_EQ(pMap->GetLastTargetName(), "Mars");

    for (int button : {IDOK, int(ObjectInfoDialog::kArticle)}) {
        Desk().AnswerNextModal([button](TWindow& dialog) {
            EXPECT_EQ(Text(dialog, ObjectInfoDialog::kName) + " " +
                          Text(dialog, ObjectInfoDialog::kType),
                      "Mars Planet");
            EXPECT_TRUE(dialog.ChildWithId(ObjectInfoDialog::kDistanceLabel)->IsWindowVisible());
            Press(dialog, button);
        });
        pMap->HandleObjectSelection(
            *pMap->GetCollector().GetPlanetCatalogue().GetObjectByName("Mars"));
    }
    EXPECT_EQ(Launched, std::vector<std::string>{"http://en.wikipedia.org/wiki/Mars_(planet)"});
}

// The print command opens the platform's print dialog, then the chart's dialog with its
// preview, whose Print button writes the chart and says so. A cancelled print dialog, from
// the host's own command too, ends it all at once.
TEST_F(AstroNoxCommands, ThePrintCommandShowsThePreviewAndPrintsTheChart)
{
    const TPrinter saved = TPrinter::Default();
    ASSERT_TRUE(TPrinter::Default().SetResolution(72)); // small pages are quick
    TPrinter::Default().SetOutputFile(Home.File("chart.pdf"));
    Command(Window::kHostPrintCommand, [](TWindow& printDialog) { Press(printDialog, IDCANCEL); });
    EXPECT_EQ(Home.ReadFile("chart.pdf"), "");
    Desk().AnswerNextModal([](TWindow& printDialog) { Press(printDialog, IDOK); }); // A4
    Command(Window::kPrintCommand, [&](TWindow& window) {
        AnswerMessage(IDOK);
        Press(window, AstroPrintDialog::kPrintId);
        Press(window, AstroPrintDialog::kCloseId);
    });
    TPrinter::Default() = saved;
    EXPECT_FALSE(pWindow->IsBusy());
    EXPECT_EQ(Messages, std::vector<std::string>{"The star chart has been sent to the printer."});
    EXPECT_EQ(Home.ReadFile("chart.pdf").substr(0, 5), "%PDF-");
    EXPECT_FALSE(pMap->GetDisplayParameters().IsPrinting()) << "the map shows its own view again";
}

} // namespace
