#include "shell/AstroNoxWindow.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/AstroItemCollector.h"
#include "catalogues/ConstellationSettings.h"
#include "catalogues/LorvString.h"
#include "catalogues/StringParser.h"
#include "catalogues/TextFile.h"
#include "host/HostBezel.h"
#include "host/HostBookmark.h"
#include "host/HostCmdLine.h"
#include "host/HostFile.h"
#include "host/HostFrameAPI.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "host/UserConfigDirectory.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TPalette.h"
#include "platform/WindowCalls.h"
#include "projection/OrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AnimationDialog.h"
#include "shell/GridDialog.h"
#include "shell/LocationDialog.h"
#include "shell/ObjectListDialog.h"
#include "shell/StarDisplayDialog.h"
#include "shell/StopAnimationDialog.h"
#include "shell/TimeDialog.h"
#include "skyview/AstroPrintDialog.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/MapWindow.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetOptions.h"
#include "state/CmdLineStateContainer.h"
#include "state/RegistryStateContainer.h"

namespace {

// The title of the component: string 1000 of the planetarium's table.
constexpr short kStringTable = 5;
constexpr short kTitleString = 1000;
// The title of the print dialog.
constexpr short kPrintTitleString = 0x0B54;

// The caption of the dialog that stands while a time lapse runs.
constexpr short kLapseCaptionString = 0x0B18;

// Zooming in takes three quarters of the field's radius, zooming out four thirds, within the
// narrowest and the widest field the map draws, in degrees.
constexpr double kZoomInFactor = 0.75;
constexpr double kZoomOutFactor = 4.0 / 3.0;
constexpr double kNarrowestField = 0.1;
constexpr double kWidestField = 90.0;

// The status panel's font: 8 points, neither bold nor fixed.
constexpr int kStatusFontPoints = 8;
// A side panel takes this share of the window's width, in per cent.
constexpr int kSidePanelPercent = 20;
// The gap at the left of a lone side panel is this fraction of the window's width.
constexpr int kSideMarginDivisor = 60;

// A metric of the frame (the bezel round the map, the gap beside it), 0 without a frame.
int FrameMetric(int metric)
{
    HostFrameAPI* frame = getHostFrameAPI();
    return frame ? frame->GetMetric(metric) : 0;
}

std::string MakeStateRoot()
{
    const HostProf& profile = HostProfile();
    return "SOFTWARE\\" + profile.Get("Version", "ProductGroup") + "\\" +
           profile.Get("Version", "Name") + "\\" + profile.Get("Version", "Version") +
           "\\orbiscope";
}

} // namespace

AstroNoxWindow::AstroNoxWindow(TWindow* parent)
    : TLayoutWindow(parent, getHostString(kStringTable, kTitleString).c_str()),
      StateRoot(MakeStateRoot())
{
    ModifyStyle(0, WS_CLIPCHILDREN);
    // The map is a child: the window tree owns it.
    pMap = new MapWindow(this);
    pMap->SetReferenceMessage(kReferenceMessage);
    pMap->SetFieldChangeMessage(kFieldChangeMessage);

    if (!RestoreDefaultState()) {
        MakeDefaultState();
    }

    // The map's palette is realised in the background, as the host's own windows come first.
    DisplayParameters display = pMap->GetDisplayParameters();
    display.bPaletteForeground = false;
    pMap->SetDisplayParameters(display);

    HostFrameAPI* frame = getHostFrameAPI();
    const HostColor fallback =
        frame ? HostColor(frame->GetColor(kHostColorPanelBackground).Rgb()) : HostRGB(0, 0, 0);
    SetBkgndColor(TColor(HostProfile().GetColor("Orbiscope", "BackgroundColor", fallback)));
}

const TResponseRow* AstroNoxWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &AstroNoxWindow::EvSize>(),
        EvRow<WM_ERASEBKGND, &AstroNoxWindow::EvEraseBkgnd>(),
        MsgRow<kReferenceMessage, &AstroNoxWindow::WmuObjectSelected>(),
        MsgRow<kNewBookmarkMessage, &AstroNoxWindow::WmuNewBookmark>(),
        MsgRow<kCreateBookmarkMessage, &AstroNoxWindow::WmuCreateBookmark>(),
        MsgRow<kCapabilityMessage, &AstroNoxWindow::WmuCapability>(),
        CmRow<kPrintCommand, &AstroNoxWindow::CmPrint>(),
        CmRow<kHostPrintCommand, &AstroNoxWindow::CmPrint>(),
        CmRow<kCmZoomIn, &AstroNoxWindow::CmZoomIn>(),
        CmRow<kCmZoomOut, &AstroNoxWindow::CmZoomOut>(),
        CmRow<kCmSetLocation, &AstroNoxWindow::CmSetLocation>(),
        CmRow<kCmSetTime, &AstroNoxWindow::CmSetTime>(),
        CmRow<kCmSetTimeLapse, &AstroNoxWindow::CmSetTimeLapse>(),
        CmRow<kCmStartTimeLapse, &AstroNoxWindow::CmStartTimeLapse>(),
        CmRow<kCmSkyhuntGame, &AstroNoxWindow::CmSkyhuntGame>(),
        CmRow<kCmDisplayConstellationFigures, &AstroNoxWindow::CmDisplayConstellationFigures>(),
        CmRow<kCmDisplayConstellationLabels, &AstroNoxWindow::CmDisplayConstellationLabels>(),
        CmRow<kCmDisplayConstellationBoundaries,
              &AstroNoxWindow::CmDisplayConstellationBoundaries>(),
        CmRow<kCmDisplayPlanets, &AstroNoxWindow::CmDisplayPlanets>(),
        CmRow<kCmDisplayComets, &AstroNoxWindow::CmDisplayComets>(),
        CmRow<kCmDisplayRADecLines, &AstroNoxWindow::CmDisplayRADecLines>(),
        CmRow<kCmDisplayMessierLabels, &AstroNoxWindow::CmDisplayMessierLabels>(),
        CmRow<kCmDisplayBelowHorizon, &AstroNoxWindow::CmDisplayBelowHorizon>(),
        CmRow<kCmLocateConstellations, &AstroNoxWindow::CmLocateConstellations>(),
        CmRow<kCmLocatePlanets, &AstroNoxWindow::CmLocatePlanets>(),
        CmRow<kCmLocateStars, &AstroNoxWindow::CmLocateStars>(),
        CmRow<kCmLocateComets, &AstroNoxWindow::CmLocateComets>(),
        CmRow<kCmLocateMessier, &AstroNoxWindow::CmLocateMessier>(),
        CmRow<kCmLocateSun, &AstroNoxWindow::CmLocateSun>(),
        CmRow<kCmLocateMoon, &AstroNoxWindow::CmLocateMoon>(),
        CmRow<kCmDumpTimeZoneNames, &AstroNoxWindow::CmDumpTimeZoneNames>(),
        CmRow<kCmDisplayStars, &AstroNoxWindow::CmDisplayStars>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TLayoutWindow::Find(event);
}

void AstroNoxWindow::SetupWindow()
{
    TLayoutWindow::SetupWindow();
    if (TWindow* parent = GetParentO()) {
        const TRect client = parent->GetClientRect();
        SetWindowPos(nullptr, client, SWP_NOZORDER);
    }
    LayoutWindows(GetClientRect().Size());
    Layout();
}

void AstroNoxWindow::Paint(TDC& dc, bool, TRect& rect)
{
    HostFrameAPI* frame = getHostFrameAPI();
    const TPalette& palette =
        frame ? frame->GetPalette() : *pMap->GetDisplayParameters().GetPalette();
    dc.SelectObject(palette, true);
    dc.RealizePalette();
    dc.FillRect(rect, TBrush(GetBkgndColor().PalRelative()));
    dc.RestorePalette();
    DrawHostInnieBezel(dc, pMap);
}

void AstroNoxWindow::LayoutWindows(const TSize& size)
{
    // The map is set in by the bezel on every side; a side panel stands at the left, a fifth
    // of the width, and the map begins a gap and the bezel right of it.
    const int gap = FrameMetric(kHostMetricBezelGap);
    const int bezel = FrameMetric(kHostMetricBezelWidth);
    const int margin = size.cx / kSideMarginDivisor;
    if (pStatus) {
        TLayoutMetrics side;
        GetChildLayoutMetrics(*pStatus, side);
        side.SetMeasurementUnits(lmPixels);
        side.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, margin);
        side.Y.Set(lmTop, lmSameAs, lmParent, lmTop, 0);
        side.Width.Set(lmWidth, lmPercentOf, lmParent, lmRight, kSidePanelPercent);
        side.Height.Set(lmBottom, lmSameAs, lmParent, lmBottom, 0);
        SetChildLayoutMetrics(*pStatus, side);
    }
    TLayoutMetrics map;
    GetChildLayoutMetrics(*pMap, map);
    map.SetMeasurementUnits(lmPixels);
    if (pStatus) {
        map.X.Set(lmLeft, lmRightOf, pStatus, lmRight, gap + bezel);
    } else {
        map.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, bezel);
    }
    map.Y.Set(lmTop, lmBelow, lmParent, lmTop, bezel);
    map.Width.Set(lmRight, lmLeftOf, lmParent, lmRight, bezel);
    map.Height.Set(lmBottom, lmAbove, lmParent, lmBottom, bezel);
    SetChildLayoutMetrics(*pMap, map);
}

void AstroNoxWindow::EvSize(UINT sizeType, TSize& size)
{
    LayoutWindows(size);
    TLayoutWindow::EvSize(sizeType, size);
    Invalidate();
}

bool AstroNoxWindow::EvEraseBkgnd(HDC)
{
    return true;
}

// Command strings and bookmarks.

void AstroNoxWindow::HandleCommandString(const std::string& command)
{
    if (command.empty()) {
        return;
    }
    HostCmdLine line(command);
    std::string value;
    if (line.GetValue("FullState", value)) {
        CmdLineStateContainer sc(line);
        sc >> AstroKey("AstroNoxWindow") >> *this;
    } else if (line.GetValue("stringref", value)) {
        HandleNameRef(value);
    } else if (line.GetValue("uid", value)) {
        HandleUidRef(value);
    }
}

void AstroNoxWindow::HandleNameRef(const std::string& value)
{
    if (!pMap || value.empty()) {
        return;
    }
    StringParser parser(value, ",", true);
    const LorvString* token = parser.GetNextToken();
    if (!token) {
        return;
    }
    // The parser holds one token at a time.
    const std::string word = *token;
    token = parser.GetNextToken();
    if (!token || token->empty()) {
        return;
    }
    const std::string name = *token;

    AstroItemCollector& collector = pMap->GetCollector();
    AstroCatalogue* catalogue = nullptr;
    if (EqualNoCase(word, "Constellation")) {
        catalogue = &collector.GetConstellationCatalogue();
    } else if (EqualNoCase(word, "Star")) {
        catalogue = collector.GetStarCatalogue();
    } else if (EqualNoCase(word, "Planet")) {
        catalogue = &collector.GetPlanetCatalogue();
    } else if (EqualNoCase(word, "Messier")) {
        catalogue = &collector.GetMessierCatalogue();
    }
    if (!catalogue) {
        return;
    }
    const std::unique_ptr<PointerVector<AstroObject>> objects = catalogue->GetListOfNamedObjects();
    if (!objects) {
        return;
    }
    for (AstroObject* object : *objects) {
        if (object && EqualNoCase(object->GetRefName(), name)) {
            pMap->ShowObject(*object);
        }
    }
}

void AstroNoxWindow::HandleUidRef(const std::string& value)
{
    if (!pMap) {
        return;
    }
    const long uid = hostStringToLong(value);
    if (uid < 0 || uid > long(std::numeric_limits<std::uint32_t>::max())) {
        return;
    }
    if (AstroObject* object = pMap->GetObjectFromUid(std::uint32_t(uid))) {
        pMap->ShowObject(*object);
        object->ReleaseReference();
    }
}

LRESULT AstroNoxWindow::WmuCapability(WPARAM which, LPARAM)
{
    return which == 0 || which == 1 ? 1 : 0;
}

LRESULT AstroNoxWindow::WmuNewBookmark(WPARAM, LPARAM bookmark)
{
    if (bookmark) {
        HandleCommandString(reinterpret_cast<const HostBookmark*>(bookmark)->Command);
    }
    return 1;
}

LRESULT AstroNoxWindow::WmuCreateBookmark(WPARAM, LPARAM)
{
    if (!pMap) {
        return 0;
    }
    CmdLineStateContainer sc;
    sc << AstroKey("AstroNoxWindow") << *this;
    const std::string title = getHostString(kStringTable, kTitleString) + pMap->GetLastTargetName();
    const std::string command = "orbiscope FullState=1 " + sc.GetCmdLine().GetRawText();
    // The caller owns the record.
    return reinterpret_cast<LRESULT>(new HostBookmark(kBookmarkType, title, command));
}

LRESULT AstroNoxWindow::WmuObjectSelected(WPARAM, LPARAM reference)
{
    HostFrameAPI* frame = getHostFrameAPI();
    if (reference && frame) {
        frame->Launch(*reinterpret_cast<const std::string*>(reference));
    }
    return 0;
}

StateContainer& AstroNoxWindow::operator<<(StateContainer& sc) const
{
    // The finder is not part of this window yet.
    return sc << NewLevel << AstroKey("MapWindow") << *pMap << AstroKey("DisplayStatusWindow")
              << (pStatus != nullptr) << AstroKey("DisplayFinderWindow") << false << EndLevel;
}

StateContainer& AstroNoxWindow::operator>>(StateContainer& sc)
{
    bool status = false;
    bool finder = false;
    sc >> GoToLevel >> AstroKey("MapWindow") >> *pMap >> AstroKey("DisplayStatusWindow") >>
        status >> AstroKey("DisplayFinderWindow") >> finder >> EndLevel;
    SetMessierObjectsDisplay(pMap->IsShowingMessier());
    SetStatusWindowState(status);
    if (HWindow) {
        LayoutWindows(GetClientRect().Size());
        Layout();
    }
    pMap->Invalidate();
    return sc;
}

// The default state.

bool AstroNoxWindow::RestoreDefaultState()
{
    RegistryStateContainer root(StateRoot);
    std::vector<std::string> names;
    root.ListKeyNames(names);
    bool found = false;
    for (const std::string& name : names) {
        found = found || EqualNoCase(name, DefaultKey);
    }
    if (!found) {
        return false;
    }
    RegistryStateContainer state(StateRoot + "\\" + DefaultKey);
    pMap->RestoreDefaultState(state);
    return true;
}

void AstroNoxWindow::SaveAsDefaultState()
{
    if (pMap->GetLocationName().empty()) {
        return;
    }
    RegistryStateContainer state(StateRoot + "\\" + DefaultKey);
    pMap->SaveDefaultState(state);
}

void AstroNoxWindow::MakeDefaultState()
{
    // A first start has no place yet. Without a location name nothing is written, so the
    // next start begins anew as well.
    SaveAsDefaultState();
}

// The side panels.

void AstroNoxWindow::SetStatusWindowState(bool on)
{
    if (on == (pStatus != nullptr)) {
        return;
    }
    if (on) {
        CreateStatusWindow();
    } else {
        // The map lets go of the panel before it goes; its blocks leave the panel with it.
        pMap->DetachStatusWindow();
        AstroStatusWindow* going = pStatus;
        pStatus = nullptr;
        going->Destroy();
        delete going;
    }
    if (HWindow) {
        LayoutWindows(GetClientRect().Size());
        Layout();
        Invalidate();
    }
}

void AstroNoxWindow::CreateStatusWindow()
{
    const TGadgetWindowFont font(kStatusFontPoints, false, false);
    // A child: the window tree owns it.
    pStatus = new AstroStatusWindow(this, &font);
    pMap->AttachStatusWindow(*pStatus);
    if (HWindow) {
        pStatus->Create();
    }
}

void AstroNoxWindow::SetMessierObjectsDisplay(bool show)
{
    pMap->ShowMessierObjects(show);
    SaveAsDefaultState();
}

// Commands of the host's menu.

namespace {

// The place the map looks from; a view of the stars alone has none and gives 0, 0.
LatLong MapLocation(const MapWindow& map)
{
    const auto* ground = dynamic_cast<const RotatingOrientationInfo*>(&map.GetOrientation());
    return ground ? ground->GetLocation() : LatLong();
}

// A copy of the orientation with the field's radius scaled and kept within the map's bounds.
void ScaleField(MapWindow& map, double factor)
{
    std::unique_ptr<OrientationInfo> o = map.GetOrientation().Clone();
    const double radius = o->GetFieldRadius() * factor;
    o->SetFieldRadius(std::clamp(radius, kNarrowestField, kWidestField));
    map.SetOrientation(*o);
}

} // namespace

TWindow* AstroNoxWindow::DialogParent()
{
    // The first start asks for the place from the constructor, before this window is shown.
    return HWindow ? this : GetParentO();
}

void AstroNoxWindow::CmZoomIn()
{
    ScaleField(*pMap, kZoomInFactor);
}

void AstroNoxWindow::CmZoomOut()
{
    ScaleField(*pMap, kZoomOutFactor);
}

void AstroNoxWindow::CmSetLocation()
{
    const std::string name = pMap->GetLocationName();
    std::unique_ptr<LocationDialog> dialog;
    if (name.empty()) {
        dialog = std::make_unique<LocationDialog>(DialogParent());
    } else {
        dialog = std::make_unique<LocationDialog>(DialogParent(), name, MapLocation(*pMap),
                                                  pMap->GetTimeZone());
    }
    if (dialog->Execute() != IDOK) {
        return;
    }
    pMap->SetLocation(dialog->GetLocation());
    pMap->SetLocationName(dialog->GetLocationName());
    pMap->SetTimeZone(dialog->GetTimeZone());
    SaveAsDefaultState();
}

void AstroNoxWindow::CmSetTime()
{
    TimeDialog dialog(DialogParent(), pMap->GetTime(), pMap->GetTimeZone(), pMap->GetLocationName(),
                      MapLocation(*pMap));
    if (dialog.Execute() != IDOK) {
        return;
    }
    pMap->SetTimeZone(dialog.GetTimeZone());
    pMap->SetTime(dialog.GetTime());
    pMap->SetLocation(dialog.GetLocation());
    pMap->SetLocationName(dialog.GetLocationName());
}

void AstroNoxWindow::CmSetTimeLapse()
{
    AnimationDialog dialog(DialogParent(), pMap->GetAnimation());
    const int result = dialog.Execute();
    if (result == IDCANCEL) {
        return;
    }
    pMap->SetAnimation(dialog.GetAnimationSettings());
    if (result == AnimationDialog::kStart) {
        StartTimeLapse();
    }
}

void AstroNoxWindow::CmStartTimeLapse()
{
    StartTimeLapse();
}

void AstroNoxWindow::StartTimeLapse()
{
    pMap->Animate();
    // The dialog's modal loop goes on dispatching, so the map's lapse timer ticks and the
    // map repaints behind it for as long as it stands.
    StopAnimationDialog dialog(DialogParent(), getHostString(kStringTable, kLapseCaptionString));
    dialog.Execute();
    pMap->StopAnimating();
}

void AstroNoxWindow::CmSkyhuntGame()
{
    HostFrameAPI* frame = getHostFrameAPI();
    TWindow* frameWindow = frame ? frame->GetFrameWindow() : nullptr;
    if (!frameWindow || !frameWindow->HWindow) {
        return;
    }
    HostBookmark game("skyhunt");
    frameWindow->SendMessage(kStartModuleMessage, 0, reinterpret_cast<LPARAM>(&game));
}

void AstroNoxWindow::CmDisplayRADecLines()
{
    GridDialog dialog(DialogParent(), pMap->GetGridInfo());
    if (dialog.Execute() == IDOK) {
        pMap->SetGridInfo(dialog.GetGridInfo());
    }
}

void AstroNoxWindow::CmGridToggle()
{
    GridInfo grid = pMap->GetGridInfo();
    grid.bShow = !grid.bShow;
    pMap->SetGridInfo(grid);
}

void AstroNoxWindow::CmDisplayConstellationFigures()
{
    ConstellationSettings settings = pMap->GetConstellationSettings();
    settings.bShowFigures = !settings.bShowFigures;
    pMap->SetConstellationSettings(settings);
    SaveAsDefaultState();
}

void AstroNoxWindow::CmDisplayConstellationLabels()
{
    ConstellationSettings settings = pMap->GetConstellationSettings();
    settings.bShowLabels = !settings.bShowLabels;
    pMap->SetConstellationSettings(settings);
    SaveAsDefaultState();
}

void AstroNoxWindow::CmDisplayConstellationBoundaries()
{
    ConstellationSettings settings = pMap->GetConstellationSettings();
    settings.bShowBoundaries = !settings.bShowBoundaries;
    pMap->SetConstellationSettings(settings);
    SaveAsDefaultState();
}

void AstroNoxWindow::CmDisplayPlanets()
{
    PlanetOptions options = pMap->GetCollector().GetPlanetCatalogue().GetOptions();
    options.bShowLabels = !options.bShowLabels;
    pMap->SetPlanetOptions(options);
    SaveAsDefaultState();
}

void AstroNoxWindow::CmDisplayComets()
{
    pMap->ShowComets(!pMap->IsShowingComets());
    SaveAsDefaultState();
}

void AstroNoxWindow::CmDisplayMessierLabels()
{
    SetMessierObjectsDisplay(!pMap->IsShowingMessier());
}

void AstroNoxWindow::CmDisplayBelowHorizon()
{
    pMap->ClipAtHorizon(!pMap->IsClippedAtHorizon());
    // What lies below the horizon comes or goes with the next draw.
    pMap->MarkAllDirty();
    pMap->Invalidate();
}

void AstroNoxWindow::CmLocateConstellations()
{
    ShowObjectListDialog(AstroCatalogue::CONSTELLATIONS);
}

void AstroNoxWindow::CmLocatePlanets()
{
    ShowObjectListDialog(AstroCatalogue::PLANETS);
}

void AstroNoxWindow::CmLocateStars()
{
    ShowObjectListDialog(AstroCatalogue::STARS);
}

void AstroNoxWindow::CmLocateComets()
{
    ShowObjectListDialog(AstroCatalogue::COMETS);
}

void AstroNoxWindow::CmLocateMessier()
{
    ShowObjectListDialog(AstroCatalogue::MESSIER_OBJECTS);
}

void AstroNoxWindow::ShowObjectListDialog(AstroCatalogue::AstroCatalogues which)
{
    ObjectListDialog dialog(DialogParent(), pMap->GetCollector(), which);
    // The chosen object lives in the dialog's list, so it is shown while the dialog lives.
    if (dialog.Execute() == IDOK && dialog.GetChosenObject()) {
        pMap->ShowObject(*dialog.GetChosenObject());
    }
}

void AstroNoxWindow::CmLocateSun()
{
    if (PlanetView* sun =
            pMap->GetCollector().GetPlanetCatalogue().GetView(PlanetCatalogue::kSunPlace)) {
        pMap->ShowObject(*sun);
    }
}

void AstroNoxWindow::CmLocateMoon()
{
    if (PlanetView* moon =
            pMap->GetCollector().GetPlanetCatalogue().GetView(PlanetCatalogue::kMoonPlace)) {
        pMap->ShowObject(*moon);
    }
}

void AstroNoxWindow::CmDumpTimeZoneNames()
{
    const std::string directory = UserConfigDirectory(true);
    if (directory.empty()) {
        return;
    }
    TextFile file;
    if (file.OpenForWriting((directory + "/" + kTimeZoneDumpFile).c_str())) {
        TimeZone::PrintAllTimeZoneNames(file);
    }
}

void AstroNoxWindow::CmDisplayStars()
{
    StarDisplayDialog dialog(DialogParent(), pMap->GetDisplayParameters());
    if (dialog.Execute() != IDOK) {
        return;
    }
    pMap->SetStarDisplayParameters(dialog.GetStarDisplayParameters());
    SaveAsDefaultState();
}

void AstroNoxWindow::SetBusy(bool busy)
{
    bBusy = busy;
    UpdateCursor();
}

void AstroNoxWindow::UpdateCursor()
{
    ::SetCursor(LoadCursorA(nullptr, bBusy ? IDC_WAIT : IDC_ARROW));
}

StateContainer& operator<<(StateContainer& sc, const AstroNoxWindow& window)
{
    return window.operator<<(sc);
}

StateContainer& operator>>(StateContainer& sc, AstroNoxWindow& window)
{
    return window.operator>>(sc);
}

void AstroNoxWindow::CmPrint()
{
    SetBusy(true);
    {
        AstroPrintDialog dialog(this, pMap);
        dialog.SetCaption(getHostString(kStringTable, kPrintTitleString));
        if (dialog.HasPrinter()) {
            dialog.Execute();
        }
    }
    SetBusy(false);
}
