// The map's draw cycle and its state: what a paint draws and what it only copies, the grids it
// draws, printing, a centre chosen while the time waits, labels clear of the status line, and
// the state saved and restored.
#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "MapFixture.h"
#include "catalogues/Constellation.h"
#include "catalogues/ConstellationSettings.h"
#include "host/HostCmdLine.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "projection/RotatingOrientationInfo.h"
#include "solar/PlanetOptions.h"
#include "state/CmdLineStateContainer.h"
#include "time/AnimationSettings.h"
#include "time/TimeStep.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

std::string FullState(const MapWindow& map)
{
    CmdLineStateContainer out;
    out << AstroKey("MapWindow") << map;
    return out.GetCmdLine().GetRawText();
}

void Restore(MapWindow& map, const std::string& text)
{
    CmdLineStateContainer in{HostCmdLine(text)};
    in >> AstroKey("MapWindow") >> map;
}

using MapWindowTest = MapTest;

} // namespace

TEST_F(MapWindowTest, APaintCopiesItsRectangleOfTheBitmapAndDrawsOnlyWhileSomethingIsDirty)
{
    // Only drawing the grid clears its flag, and only writing the status line clears its own.
    for (const auto& [grid, status, draws] : std::vector<std::tuple<bool, bool, bool>>{
             {true, true, false}, {false, true, true}, {true, false, true}}) {
        SCOPED_TRACE(testing::Message() << "grid " << grid << ", status " << status);
        RecordingMap& map = Make(101, 40);
        map.SetGridInfo(GridInfo(24, 36, grid));
        DisplayParameters display = map.GetDisplayParameters();
        display.bShowStatus = status;
        map.SetDisplayParameters(display);
        pHost->Create();
        Pump();
        // A width of 101 gives an 8-bit bitmap 104 wide, for the stars to write into.
        EXPECT_EQ(Bitmap().Width(), 104);

        Bitmap().SetValue(30, 20, kHostPaletteWhite);
        Bitmap().SetValue(100, 20, kHostPaletteWhite);
        map.InvalidateRect(TRect(0, 0, 50, 40), false);
        Pump();
        EXPECT_EQ(Screen()->ColorAt(30, 20) != kWhite, draws);
        EXPECT_NE(Screen()->ColorAt(100, 20), kWhite) << "outside the paint rectangle";
        map.InvalidateRect(TRect(90, 0, 101, 40), false);
        Pump();
        EXPECT_EQ(Screen()->ColorAt(100, 20) != kWhite, draws);
        pHost->Destroy();
    }
}

TEST_F(MapWindowTest, SevenDecLinesOrACountOfZeroGiveNoGridAtAllButEightDo)
{
    // Eight lines are a step of 45 degrees, the widest there is. The grid stays blue whatever
    // colour is asked for, and 500 lines are refused. Its lines are checked by the
    // whole-program pictures.
    RecordingMap& map = Open(200, 150);
    for (const auto& [ra, dec, drawn] : std::vector<std::tuple<unsigned, unsigned, bool>>{
             {24, 7, false}, {0, 36, false}, {24, 0, false}, {24, 8, true}, {500, 36, true}}) {
        GridInfo red(ra, dec, true);
        red.Color = TColor(255, 0, 0);
        map.SetGridInfo(red);
        Pump();
        EXPECT_EQ(CountValue(Bitmap(), IndexOf(TColor(0, 0, 255))) > 100, drawn)
            << ra << "/" << dec;
    }
    EXPECT_EQ(map.GetGridInfo(), GridInfo(24, 8, true)) << "500 lines are refused";
}

TEST_F(MapWindowTest, APaintWhilePrintingDoesNothingAndTheEndOfPrintingRedraws)
{
    RecordingMap& map = Open(120, 80);
    map.SetGridInfo(GridInfo(24, 36, true));
    Pump();
    const COLORREF before = Screen()->ColorAt(30, 20);
    Surface page(200, 150, PixelFormat::Rgb32);
    TDC pageDc(page);
    pageDc.FillRect(page.Bounds(), TBrush(TColor::White));
    DisplayParameters printing = map.GetDisplayParameters();
    printing.SetPrinting(true);
    printing.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    printing.SetDC(&pageDc);
    printing.SetDrawRect(page.Bounds());
    map.StartPrinting(printing);
    // The page was drawn at once: the grid on paper left white.
    EXPECT_GT(CountValue(page, Surface::RgbToValue(RGB(0, 0, 255))), 100);

    Bitmap().SetValue(30, 20, kHostPaletteWhite);
    map.Invalidate();
    Pump();
    EXPECT_EQ(Screen()->ColorAt(30, 20), before) << "neither drawn nor copied";
    map.StopPrinting();
    EXPECT_EQ(Bitmap().ValueAt(30, 20), 0u) << "drawn again at once";
    EXPECT_EQ(map.GetTransformation()->GetProjector().GetCenterPoint(), TPoint(60, 40));
    EXPECT_EQ(map.GetDisplayParameters().pFastTopRow, Bitmap().Row(0));
}

TEST_F(MapWindowTest, OnlyTheLastCentreChosenWhileTheTimeIsDirtyIsAppliedAtTheNewTime)
{
    RecordingMap& map = Open(160, 120);
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(), LatLong(50.0, 10.0),
                                               PolarCoord(180.0, 60.0), 20.0, true));
    map.SetTime(AstroTime(1, 1, 2000, 0.0));
    Pump();
    // A direction 49 degrees up in the south-west at the new time: the offset must be worked
    // out against the sky of that time, not of the old one.
    map.SetTime(AstroTime(1, 1, 2000, 5.0));
    map.ChangeCenterOfView(PolarCoord(10.0, 20.0));
    map.ChangeCenterOfView(PolarCoord(130.0, 20.0));
    Pump();
    EXPECT_LT(Apart(map.GetTransformation()->GetCenterOfView(), PolarCoord(130.0, 20.0)), 1e-6);

    // A view fixed on the stars has no clip switch.
    map.SetOrientation(NorthUp(Orion(), 30.0));
    map.ClipAtHorizon(true);
    EXPECT_FALSE(map.IsClippedAtHorizon());
}

TEST_F(MapWindowTest, ARestoredViewThatAsksForItOpensAtThePresentMomentUnlessATimeIsSet)
{
    // A time set before the first draw wins over the start at the present moment.
    const AstroTime past(1, 1, 2000, 12.0);
    RecordingMap& map = Open(64, 40);
    map.SetTime(past);
    std::string asking = FullState(map);
    const std::string key = "Show_Nearest_Dark_Time_At_Startup=";
    const std::size_t at = asking.find(key + "0");
    ASSERT_NE(at, std::string::npos) << asking;
    asking[at + key.size()] = '1';
    for (bool setTime : {false, true}) {
        Restore(map, asking);
        if (setTime) {
            map.SetTime(past);
        }
        Pump();
        EXPECT_EQ(map.GetTime().GetYear() > 2000, !setTime);
    }
}

TEST_F(MapWindowTest, AStateSavedRestoredAndSavedAgainIsTheSameString)
{
    RecordingMap& map = Open(64, 40);
    map.SetOrientation(RotatingOrientationInfo(map.GetCollector().GetOrigin(),
                                               LatLong(-33.9, 208.8), PolarCoord(90.0, 45.0), 15.0,
                                               false));
    map.SetTime(AstroTime(4, 7, 2021, 22.25));
    const TimeZone* zone = TimeZone::GetTimeZone("America/New_York");
    ASSERT_NE(zone, nullptr);
    map.SetTimeZone(*zone);
    map.SetGridInfo(GridInfo(12, 18, true));
    map.SetConstellationSettings(ConstellationSettings(true, false, true));
    PlanetOptions planets;
    planets.bShowLabels = false;
    map.SetPlanetOptions(planets);
    map.SetAnimation(AnimationSettings(TimeStep(TimeStep::DAYS, 3), 0.5));
    map.SetLocationName("Cape Town");
    map.ShowMessierObjects(true);
    map.ShowComets(true);
    StarDisplayParameters stars = map.GetDisplayParameters();
    stars.SetLimitingMagnitude(5.25);
    stars.SetShape(StarDisplayParameters::kRoundShape);
    map.SetStarDisplayParameters(stars);

    const std::string saved = FullState(map);
    MapWindow copy(nullptr);
    ASSERT_NE(FullState(copy), saved);
    Restore(copy, saved);
    EXPECT_EQ(FullState(copy), saved);
    const auto& ground = dynamic_cast<const RotatingOrientationInfo&>(copy.GetOrientation());
    EXPECT_EQ(ground.GetOrigin(), copy.GetCollector().GetOrigin()) << "the copy's own Earth";

    // The settings a restart keeps: the same without the time.
    CmdLineStateContainer defaults;
    map.SaveDefaultState(defaults);
    const std::string settings = defaults.GetCmdLine().GetRawText();
    EXPECT_EQ(settings.find("2021"), std::string::npos) << settings;
    MapWindow restarted(nullptr);
    const AstroTime own = restarted.GetTime();
    CmdLineStateContainer in{HostCmdLine(settings)};
    restarted.RestoreDefaultState(in);
    CmdLineStateContainer again;
    restarted.SaveDefaultState(again);
    EXPECT_EQ(again.GetCmdLine().GetRawText(), settings);
    EXPECT_EQ(restarted.GetTime(), own);

    // Any orientation type but 0 is a view on the ground; a negative count of grid lines reads
    // as a huge one, which is refused.
    Restore(copy, "MapWindow=<Orientation_Type=7 Grid=<Show=1 NumberOfRALines=-5 "
                  "NumberOfDecLines=36> Orientation=<Base=<Radius=15> Location=<Lat=-33.9 "
                  "Long=208.8> Zenith_Offset=<RA=90 Dec=45>>>");
    EXPECT_NE(dynamic_cast<const RotatingOrientationInfo*>(&copy.GetOrientation()), nullptr);
    EXPECT_EQ(copy.GetGridInfo(), GridInfo(12, 18, true));
}

TEST_F(MapWindowTest, LabelsKeepClearOfTheStatusLineFromTheFirstFrameAndWhenItGrows)
{
    // Orion's name stands centred in a strip 24 pixels high, with the status line's text on
    // its left, ten pixels a letter: in a narrow strip the name is under the text from the
    // first frame on and is hidden; in a wide one it shows until a long place name makes the
    // line reach it.
    for (const auto& [width, place, shown] : std::vector<std::tuple<int, std::string, bool>>{
             {400, "", false}, {800, "", true}, {800, "Somewhere far away by the sea", false}}) {
        RecordingMap& map = Make(width, 24);
        map.SetTime(AstroTime(1, 1, 2000, 0.0));
        const Constellation* orion =
            map.GetCollector().GetConstellationCatalogue().GetConstellation("Orion", false);
        ASSERT_NE(orion, nullptr);
        map.SetOrientation(NorthUp(orion->GetLabelPosition(), 10.0));
        pHost->Create();
        Pump();
        if (!place.empty()) {
            map.SetLocationName(place);
            Pump();
        }
        EXPECT_EQ(CountValue(Bitmap(), IndexOf(TColor(255, 128, 0))) > 0, shown)
            << width << " " << place;
        pHost->Destroy();
    }
}
