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
#include "host/HostFlyMenu.h"
#include "host/HostFrameAPI.h"
#include "host/HostIcons.h"
#include "host/HostMessages.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "host/HostTitleBar.h"
#include "host/HostWindowStrings.h"
#include "host/UserConfigDirectory.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TMenu.h"
#include "platform/TPalette.h"
#include "platform/WindowCalls.h"
#include "projection/OrientationInfo.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/AnimationDialog.h"
#include "shell/AstroFinderWindow.h"
#include "shell/AstroMenuTemplates.h"
#include "shell/GridDialog.h"
#include "shell/LocationDialog.h"
#include "shell/ObjectListDialog.h"
#include "shell/StarDisplayDialog.h"
#include "shell/StopAnimationDialog.h"
#include "shell/TimeDialog.h"
#include "skyview/AstroPrintDialog.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/DirectionWindow.h"
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

// The title bar's font height in pixels, and the text of the host's table that the
// full-screen entry shows in full-screen mode.
constexpr int kTitleFontHeight = 13;
constexpr short kHostStringTable = 1;
constexpr short kExitFullScreenString = 0x0C82;

// A check mark of the fly-out menu.
UINT Checked(bool on)
{
    return on ? HostFlyMenu::kChecked : HostFlyMenu::kUnchecked;
}

// The status panel's font: 8 points, neither bold nor fixed.
constexpr int kStatusFontPoints = 8;
// A side panel takes this share of the window's width, in per cent; beside the status panel
// the finder reaches to twice that.
constexpr int kSidePanelPercent = 20;
constexpr int kFinderBesideStatusPercent = 40;
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
        MsgRow<kFieldChangeMessage, &AstroNoxWindow::WmuFieldChange>(),
        MsgRow<kObjectSelectedFromListMessage, &AstroNoxWindow::WmuObjectSelectedFromList>(),
        MsgRow<kNewBookmarkMessage, &AstroNoxWindow::WmuNewBookmark>(),
        MsgRow<kCreateBookmarkMessage, &AstroNoxWindow::WmuCreateBookmark>(),
        MsgRow<kCapabilityMessage, &AstroNoxWindow::WmuCapability>(),
        MsgRow<kHostLoadFlyMenu, &AstroNoxWindow::WmuLoadFlyMenu>(),
        MsgRow<kHostFlyMenuNotify, &AstroNoxWindow::WmuFlyMenuNotify>(),
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
        CmRow<kCmDisplayLocatorControls, &AstroNoxWindow::CmDisplayLocatorControls>(),
        CmRow<kCmLocateConstellations, &AstroNoxWindow::CmLocateConstellations>(),
        CmRow<kCmLocatePlanets, &AstroNoxWindow::CmLocatePlanets>(),
        CmRow<kCmLocateStars, &AstroNoxWindow::CmLocateStars>(),
        CmRow<kCmLocateComets, &AstroNoxWindow::CmLocateComets>(),
        CmRow<kCmLocateMessier, &AstroNoxWindow::CmLocateMessier>(),
        CmRow<kCmLocateSun, &AstroNoxWindow::CmLocateSun>(),
        CmRow<kCmLocateMoon, &AstroNoxWindow::CmLocateMoon>(),
        CmRow<kCmDumpTimeZoneNames, &AstroNoxWindow::CmDumpTimeZoneNames>(),
        CmRow<kCmDisplayStars, &AstroNoxWindow::CmDisplayStars>(),
        CmRow<kCmDisplayFlyout, &AstroNoxWindow::CmDisplayFlyout>(),
        CmRow<kCmLocateFlyout, &AstroNoxWindow::CmLocateFlyout>(),
        CmRow<kCmConstellationFlyout, &AstroNoxWindow::CmConstellationFlyout>(),
        CmRow<kCmDevelopmentFlyout, &AstroNoxWindow::CmDevelopmentFlyout>(),
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
    // The map is set in by the bezel on every side; side windows stand at the left, and the
    // map begins a gap and the bezel right of the last of them.
    const int gap = FrameMetric(kHostMetricBezelGap);
    const int bezel = FrameMetric(kHostMetricBezelWidth);
    const int margin = size.cx / kSideMarginDivisor;
    auto placeSide = [this](TWindow& side, TWindow* leftOf, int leftMargin, TEdge widthEdge,
                            TRelationship relation, int widthValue) {
        TLayoutMetrics metrics;
        GetChildLayoutMetrics(side, metrics);
        metrics.SetMeasurementUnits(lmPixels);
        metrics.X.Set(lmLeft, lmRightOf, leftOf, leftOf ? lmRight : lmLeft, leftMargin);
        metrics.Y.Set(lmTop, lmSameAs, lmParent, lmTop, 0);
        metrics.Width.Set(widthEdge, relation, lmParent, relation == lmAbsolute ? lmWidth : lmRight,
                          widthValue);
        metrics.Height.Set(lmBottom, lmSameAs, lmParent, lmBottom, 0);
        SetChildLayoutMetrics(side, metrics);
    };
    TWindow* side = nullptr;
    if (pStatus && pFinder) {
        placeSide(*pStatus, lmParent, 0, lmRight, lmPercentOf, kSidePanelPercent);
        placeSide(*pFinder, pStatus, 0, lmRight, lmPercentOf, kFinderBesideStatusPercent);
        side = pFinder;
    } else if (pStatus || pFinder) {
        side = pStatus ? static_cast<TWindow*>(pStatus) : pFinder;
        // The finder is never narrower than its catalogue names need.
        const int desired = pFinder ? AstroFinderWindow::GetDesiredWidth() : 0;
        if (desired * 100 > size.cx * kSidePanelPercent) {
            placeSide(*side, lmParent, margin, lmWidth, lmAbsolute, desired);
        } else {
            placeSide(*side, lmParent, margin, lmWidth, lmPercentOf, kSidePanelPercent);
        }
    }
    TLayoutMetrics map;
    GetChildLayoutMetrics(*pMap, map);
    map.SetMeasurementUnits(lmPixels);
    if (side) {
        map.X.Set(lmLeft, lmRightOf, side, lmRight, gap + bezel);
    } else {
        map.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, bezel);
    }
    map.Y.Set(lmTop, lmBelow, lmParent, lmTop, bezel);
    map.Width.Set(lmRight, lmLeftOf, lmParent, lmRight, bezel);
    map.Height.Set(lmBottom, lmAbove, lmParent, lmBottom, bezel);
    SetChildLayoutMetrics(*pMap, map);
}

bool AstroNoxWindow::IsFullScreen()
{
    TWindow* parent = GetParentO();
    return parent && parent->HWindow && parent->SendMessage(kFullScreenQuery, 0, 0) == 1;
}

void AstroNoxWindow::EvSize(UINT sizeType, TSize& size)
{
    // The host's change of mode arrives as a change of size: the finder follows it.
    if (GetParentO()) {
        SetFinderWindowState(IsFullScreen());
    }
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

    AstroCatalogue* catalogue = CatalogueOfWord(pMap->GetCollector(), word);
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

AstroCatalogue* AstroNoxWindow::CatalogueOfWord(AstroItemCollector& collector,
                                                const std::string& word)
{
    if (EqualNoCase(word, "Constellation")) {
        return &collector.GetConstellationCatalogue();
    }
    if (EqualNoCase(word, "Star")) {
        return collector.GetStarCatalogue();
    }
    if (EqualNoCase(word, "Planet")) {
        return &collector.GetPlanetCatalogue();
    }
    if (EqualNoCase(word, "Messier")) {
        return &collector.GetMessierCatalogue();
    }
    return nullptr;
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

LRESULT AstroNoxWindow::WmuFieldChange(WPARAM, LPARAM)
{
    UpdateDirectionWindow();
    return 0;
}

LRESULT AstroNoxWindow::WmuObjectSelectedFromList(WPARAM, LPARAM object)
{
    if (object) {
        pMap->ShowObject(*reinterpret_cast<AstroObject*>(object));
    }
    return 0;
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
    return sc << NewLevel << AstroKey("MapWindow") << *pMap << AstroKey("DisplayStatusWindow")
              << (pStatus != nullptr) << AstroKey("DisplayFinderWindow") << (pFinder != nullptr)
              << EndLevel;
}

StateContainer& AstroNoxWindow::operator>>(StateContainer& sc)
{
    bool status = false;
    bool finder = false;
    sc >> GoToLevel >> AstroKey("MapWindow") >> *pMap >> AstroKey("DisplayStatusWindow") >>
        status >> AstroKey("DisplayFinderWindow") >> finder >> EndLevel;
    SetMessierObjectsDisplay(pMap->IsShowingMessier());
    SetStatusWindowState(status);
    // The finder exists only in the host's full-screen mode.
    if (GetParentO() && !IsFullScreen()) {
        finder = false;
    }
    SetFinderWindowState(finder);
    if (HWindow) {
        LayoutWindows(GetClientRect().Size());
        Layout();
    }
    pMap->Invalidate();
    return sc;
}

// The default state.

bool AstroNoxWindow::HasDefaultState(const std::string& root, const std::string& key)
{
    RegistryStateContainer state(root);
    std::vector<std::string> names;
    state.ListKeyNames(names);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return EqualNoCase(name, key); });
}

bool AstroNoxWindow::HasDefaultState()
{
    return HasDefaultState(MakeStateRoot(), "Default");
}

bool AstroNoxWindow::RestoreDefaultState()
{
    if (!HasDefaultState(StateRoot, DefaultKey)) {
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
    // The first start asks for the place. Cancelled, the map has no location name, nothing is
    // written and the next start asks again.
    CmSetLocation();
    SaveAsDefaultState();
}

void AstroNoxWindow::SaveInRegistryState(const std::string& key)
{
    RegistryStateContainer sc(key);
    sc << AstroKey("AstroNOXWindow") << *this;
}

void AstroNoxWindow::RestoreFromRegistryState(const std::string& key)
{
    RegistryStateContainer sc(key);
    sc >> AstroKey("AstroNOXWindow") >> *this;
}

// The host's fly-out menu.

LRESULT AstroNoxWindow::AskHost(UINT message)
{
    TWindow* host = GetParentO();
    return host && host->HWindow ? host->SendMessage(message) : 0;
}

LRESULT AstroNoxWindow::WmuLoadFlyMenu(WPARAM, LPARAM)
{
    if (auto* titleBar = reinterpret_cast<HostTitleBar*>(AskHost(kHostTitleBarQuery))) {
        titleBar->Initialize(GetHostIcon(kBookmarkType, 0),
                             getHostString(kStringTable, kTitleString), kTitleFontHeight, 0);
    }
    LoadFlyoutMenu();
    return 1;
}

LRESULT AstroNoxWindow::WmuFlyMenuNotify(WPARAM, LPARAM)
{
    LoadFlyoutMenu();
    return 0;
}

void AstroNoxWindow::LoadFlyoutMenu()
{
    auto* fly = reinterpret_cast<HostFlyMenu*>(AskHost(kHostFlyMenuQuery));
    if (!fly) {
        return;
    }
    AstroMenuTemplates::Register();
    TMenu menu(GetModule(), TResId(AstroMenuTemplates::kMainMenu));
    replaceHostMenuStrings(kStringTable, menu);
    fly->InitEntries(menu, 0, 0);
    if (IsFullScreen()) {
        fly->Change(kHostFullScreenCommand, 0, kHostExitFullScreenCommand,
                    getHostString(kHostStringTable, kExitFullScreenString));
    }
    if (!HostProfile().GetBool("Orbiscope", "DevMode", false)) {
        fly->Delete(kCmDumpTimeZoneNames, 0);
    }
}

HostFlyMenu* AstroNoxWindow::LoadFlyout(int level, int menuId, bool replaceStrings)
{
    auto* fly = reinterpret_cast<HostFlyMenu*>(AskHost(kHostFlyMenuQuery));
    HostFlyMenu* sub = fly ? fly->CreateSubMenu(level) : nullptr;
    if (!sub) {
        return nullptr;
    }
    AstroMenuTemplates::Register();
    TMenu menu(GetModule(), TResId(menuId));
    if (replaceStrings) {
        replaceHostMenuStrings(kStringTable, menu);
    }
    sub->InitEntries(menu, 0, 0);
    return sub;
}

void AstroNoxWindow::CmDisplayFlyout()
{
    HostFlyMenu* sub = LoadFlyout(1, AstroMenuTemplates::kDisplayMenu, true);
    if (!sub) {
        return;
    }
    sub->SetCheckMark(kCmDisplayMessierLabels, Checked(pMap->IsShowingMessier()));
    sub->SetCheckMark(kCmDisplayComets, Checked(pMap->IsShowingComets()));
    sub->SetCheckMark(kCmDisplayPlanets,
                      Checked(pMap->GetCollector().GetPlanetCatalogue().GetOptions().bShowLabels));
    sub->SetCheckMark(kCmDisplayBelowHorizon, Checked(!pMap->IsClippedAtHorizon()));
    sub->SetCheckMark(kCmDisplayLocatorControls, Checked(pFinder != nullptr));
    if (!IsFullScreen()) {
        sub->Delete(kCmDisplayLocatorControls, 0);
    }
    sub->Display(TPoint(HostFlyMenu::kBesideEntry, HostFlyMenu::kBesideEntry));
}

void AstroNoxWindow::CmLocateFlyout()
{
    if (HostFlyMenu* sub = LoadFlyout(1, AstroMenuTemplates::kLocateMenu, true)) {
        sub->Display(TPoint(HostFlyMenu::kBesideEntry, HostFlyMenu::kBesideEntry));
    }
}

void AstroNoxWindow::CmConstellationFlyout()
{
    HostFlyMenu* sub = LoadFlyout(2, AstroMenuTemplates::kConstellationMenu, true);
    if (!sub) {
        return;
    }
    const ConstellationSettings settings = pMap->GetConstellationSettings();
    sub->SetCheckMark(kCmDisplayConstellationLabels, Checked(settings.bShowLabels));
    sub->SetCheckMark(kCmDisplayConstellationFigures, Checked(settings.bShowFigures));
    sub->SetCheckMark(kCmDisplayConstellationBoundaries, Checked(settings.bShowBoundaries));
    sub->Display(TPoint(HostFlyMenu::kBesideEntry, HostFlyMenu::kBesideEntry));
}

void AstroNoxWindow::CmDevelopmentFlyout()
{
    // The developer's menu speaks in words of its own: its strings are not replaced.
    if (HostFlyMenu* sub = LoadFlyout(1, AstroMenuTemplates::kDevelopmentMenu, false)) {
        sub->Display(TPoint(HostFlyMenu::kBesideEntry, HostFlyMenu::kBesideEntry));
    }
}

void AstroNoxWindow::ScrollMap(int direction)
{
    if (direction == 0) {
        pMap->StopScrolling();
        return;
    }
    AstroScrollInfo info = pMap->GetScrollInfo();
    info.SetDirection(direction);
    pMap->Scroll(info);
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
        DeleteSideWindow(pStatus);
    }
    SideWindowsChanged();
}

template <class Side>
void AstroNoxWindow::DeleteSideWindow(Side*& side)
{
    Side* going = side;
    side = nullptr;
    going->Destroy();
    delete going;
}

void AstroNoxWindow::SideWindowsChanged()
{
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

void AstroNoxWindow::SetFinderWindowState(bool on)
{
    if (on == (pFinder != nullptr)) {
        return;
    }
    if (on) {
        CreateFinderWindow();
        UpdateDirectionWindow();
    } else {
        DeleteSideWindow(pFinder);
    }
    SideWindowsChanged();
}

void AstroNoxWindow::CreateFinderWindow()
{
    // A child: the window tree owns it.
    pFinder =
        new AstroFinderWindow(this, this, &pMap->GetCollector(), kObjectSelectedFromListMessage);
    if (HWindow) {
        pFinder->Create();
    }
}

void AstroNoxWindow::UpdateDirectionWindow()
{
    if (pFinder) {
        pFinder->GetDirectionWindow().Set(*pMap);
    }
}

void AstroNoxWindow::CmDisplayLocatorControls()
{
    SetFinderWindowState(pFinder == nullptr);
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
    if (pFinder) {
        pFinder->UpdateOutlineButton();
    }
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
