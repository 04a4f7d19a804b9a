#include "shell/AstroNoxWindow.h"

#include <memory>

#include "catalogues/LorvString.h"
#include "host/HostBezel.h"
#include "host/HostBookmark.h"
#include "host/HostCmdLine.h"
#include "host/HostFrameAPI.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TPalette.h"
#include "skyview/AstroPrintDialog.h"
#include "skyview/MapWindow.h"
#include "state/CmdLineStateContainer.h"
#include "state/RegistryStateContainer.h"

namespace {

// The title of the component: string 1000 of the planetarium's table.
constexpr short kStringTable = 5;
constexpr short kTitleString = 1000;
// The title of the print dialog.
constexpr short kPrintTitleString = 0x0B54;

// The frame's metric of the bezel round the map, and what it is without a frame.
int BezelWidth()
{
    HostFrameAPI* frame = getHostFrameAPI();
    return frame ? frame->GetMetric(kHostMetricBezelWidth) : 0;
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

void AstroNoxWindow::LayoutWindows(const TSize&)
{
    // Without the side panels the map fills the window, set in by the bezel on every side.
    const int bezel = BezelWidth();
    TLayoutMetrics map;
    GetChildLayoutMetrics(*pMap, map);
    map.SetMeasurementUnits(lmPixels);
    map.X.Set(lmLeft, lmRightOf, lmParent, lmLeft, bezel);
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
    // Neither side panel is part of this window yet.
    return sc << NewLevel << AstroKey("MapWindow") << *pMap << AstroKey("DisplayStatusWindow")
              << false << AstroKey("DisplayFinderWindow") << false << EndLevel;
}

StateContainer& AstroNoxWindow::operator>>(StateContainer& sc)
{
    bool status = false;
    bool finder = false;
    sc >> GoToLevel >> AstroKey("MapWindow") >> *pMap >> AstroKey("DisplayStatusWindow") >>
        status >> AstroKey("DisplayFinderWindow") >> finder >> EndLevel;
    SetMessierObjectsDisplay(pMap->IsShowingMessier());
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

void AstroNoxWindow::SetMessierObjectsDisplay(bool show)
{
    pMap->ShowMessierObjects(show);
    SaveAsDefaultState();
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
    bBusy = true;
    UpdateCursor();
    {
        AstroPrintDialog dialog(this, pMap);
        dialog.SetCaption(getHostString(kStringTable, kPrintTitleString));
        if (dialog.HasPrinter()) {
            dialog.Execute();
        }
    }
    bBusy = false;
    UpdateCursor();
}

void AstroNoxWindow::UpdateCursor()
{
    SetCursor(nullptr, TResId(bBusy ? IDC_WAIT : IDC_ARROW));
}
