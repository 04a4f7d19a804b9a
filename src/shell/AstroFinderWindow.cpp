#include "shell/AstroFinderWindow.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "catalogues/AstroItemCollector.h"
#include "catalogues/ConstellationSettings.h"
#include "host/HostAnimButtonGadget.h"
#include "host/HostEdit.h"
#include "host/HostFonts.h"
#include "host/HostFrameAPI.h"
#include "host/HostLabelStatic.h"
#include "host/HostProf.h"
#include "host/HostStackableControlBar.h"
#include "host/HostStringTable.h"
#include "platform/ControlLook.h"
#include "platform/TComboBox.h"
#include "platform/TDC.h"
#include "platform/TMemoryDC.h"
#include "shell/AstroListBox.h"
#include "shell/AstroNoxWindow.h"
#include "shell/ObjectListDialog.h"
#include "skyview/DirectionWindow.h"
#include "skyview/MapWindow.h"

namespace {

// Texts of the planetarium's string table: the labels, and the catalogues from 1110 on in
// steps of 10.
constexpr short kStringTable = 5;
constexpr short kListTypeLabelText = 1220;
constexpr short kNameLabelText = 1210;
constexpr short kFirstListTypeText = 1110;
constexpr short kListTypeTextStep = 10;

// The finder's text: the host's font 5.
constexpr int kTextFont = 5;
// The catalogue drop-down: a drop-down list of up to 100 characters.
constexpr DWORD kListTypeStyle = CBS_DROPDOWNLIST;
constexpr UINT kListTypeTextLimit = 100;
// The name field holds at most as much.
constexpr UINT kNameTextLimit = 100;
// The buttons' pictures are strips of three frames: at rest, under the mouse, pressed.
constexpr int kButtonFrames = 3;
// The search's pause, in milliseconds, when the profile gives none.
constexpr long kDefaultSearchDelay = 500;
// The colour static controls are painted on.
constexpr COLORREF kStaticBrushColor = RGB(205, 206, 207);

// Room beside the drop-down's longest name, in pixels: its frame and the finder's margins.
constexpr int kWidthSlack = 25;
// Pixels between the children and round the edges.
constexpr int kGap = 3;
constexpr int kRowGap = 4;

int FrameMetric(int metric)
{
    HostFrameAPI* frame = getHostFrameAPI();
    return frame ? frame->GetMetric(metric) : 0;
}

TColor PanelBackground()
{
    HostFrameAPI* frame = getHostFrameAPI();
    const HostColor panel =
        frame ? HostColor(frame->GetColor(kHostColorPanelBackground).Rgb()) : HostRGB(0, 0, 0);
    return TColor(HostProfile().GetColor("Orbiscope", "BackgroundColor", panel));
}

TLayoutMetrics PixelMetrics()
{
    TLayoutMetrics metrics;
    metrics.SetMeasurementUnits(lmPixels);
    return metrics;
}

int TextHeight(const TFont& font)
{
    TMemoryDC dc;
    dc.SelectObject(font);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    return metrics.tmHeight;
}

} // namespace

AstroFinderWindow::AstroFinderWindow(TWindow* parent, AstroNoxWindow* owner,
                                     AstroItemCollector* collector, UINT selectedMessage)
    : TLayoutWindow(parent), nSelectedMessage(selectedMessage),
      ListTypeText(getHostString(kStringTable, kListTypeLabelText)),
      nSearchDelay(int(
          std::clamp(HostProfile().GetInt("Global Config", "AutoSearchDelay", kDefaultSearchDelay),
                     1L, long(std::numeric_limits<int>::max())))),
      NameText(getHostString(kStringTable, kNameLabelText)), BackgroundColor(PanelBackground()),
      pCollector(collector), pTextFont(getHostFont(APP_FONTS, kTextFont)), pOwner(owner)
{
    ModifyStyle(0, WS_CLIPCHILDREN);
    // The panel shows its parent's colour: the component window's background is the same.
    SetBkgndColor(BackgroundColor);

    // Children: the window tree owns them.
    pDirection = new DirectionWindow(this, kDirectionMessage);
    pListTypeBox =
        new TComboBox(this, kListTypeBox, 0, 0, 0, 0, kListTypeStyle, kListTypeTextLimit);
    pListTypeBox->ModifyStyle(CBS_SORT, 0);
    pListTypeLabel = new HostLabelStatic(this, -1, ListTypeText, BackgroundColor);
    pNameEdit = new HostEdit(this, kNameEdit, kNameTextLimit);
    pNameLabel = new HostLabelStatic(this, -1, NameText, BackgroundColor);
    pButtonBar = new HostStackableControlBar(this, BackgroundColor);
    pObjectList =
        new AstroListBox(this, kObjectList, collector ? collector->GetStarCatalogue() : nullptr);
    pListTypeLabel->SetWindowFont(*pTextFont, false);
    pNameLabel->SetWindowFont(*pTextFont, false);
}

AstroFinderWindow::~AstroFinderWindow() = default;

const TResponseRow* AstroFinderWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &AstroFinderWindow::EvSize>(),
        EvRow<WM_TIMER, &AstroFinderWindow::EvTimer>(),
        EvRow<WM_CTLCOLORSTATIC, &AstroFinderWindow::EvCtlColor>(),
        NotifyRow<kNameEdit, EN_SETFOCUS, &AstroFinderWindow::EnNameFocus>(),
        NotifyRow<kNameEdit, EN_CHANGE, &AstroFinderWindow::EnNameChange>(),
        NotifyRow<kListTypeBox, CBN_SELCHANGE, &AstroFinderWindow::CbnListTypeChange>(),
        CmRow<IDOK, &AstroFinderWindow::CmEnter>(),
        NotifyRow<kObjectList, LBN_DBLCLK, &AstroFinderWindow::LbnObjectChosen>(),
        NotifyRow<kObjectList, LBN_SELCHANGE, &AstroFinderWindow::LbnObjectSelected>(),
        CmRow<kZoomInButton, &AstroFinderWindow::CmZoomIn>(),
        CmRow<kZoomOutButton, &AstroFinderWindow::CmZoomOut>(),
        CmRow<kSkyhuntButton, &AstroFinderWindow::CmSkyhuntGame>(),
        CmRow<kOutlineButton, &AstroFinderWindow::CmOutline>(),
        MsgRow<kDirectionMessage, &AstroFinderWindow::WmDirectionClicked>(),
        MsgRow<kSelectNameMessage, &AstroFinderWindow::WmSelectName>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TLayoutWindow::Find(event);
}

int AstroFinderWindow::GetDesiredWidth()
{
    static const int width = [] {
        TMemoryDC dc;
        dc.SelectObject(*getHostFont(APP_FONTS, kTextFont));
        const std::string widest =
            getHostString(kStringTable, kListTypeLabelText) + " Constellation";
        return dc.GetTextExtent(widest).cx + GetSystemMetrics(SM_CXHSCROLL) + kWidthSlack;
    }();
    return width;
}

std::string AstroFinderWindow::OutlineBitmap() const
{
    MapWindow* map = pOwner ? pOwner->GetMap() : nullptr;
    return map && map->GetConstellationSettings().bShowFigures ? "hideoutl.bmp" : "showoutl.bmp";
}

void AstroFinderWindow::SetupWindow()
{
    auto button = [](const char* file, int id) {
        return std::make_unique<HostAnimButtonGadget>(file, id, kButtonFrames, true, false);
    };
    pButtonBar->Insert(button("pbzoomin.bmp", kZoomInButton));
    pButtonBar->Insert(button("pbzoomot.bmp", kZoomOutButton));
    auto outline = button(OutlineBitmap().c_str(), kOutlineButton);
    pOutlineButton = outline.get();
    pButtonBar->Insert(std::move(outline));
    if (HostProfile().GetBool("Orbiscope", "SkyhuntEnabled", false)) {
        pButtonBar->Insert(button("goskyhnt.bmp", kSkyhuntButton));
    }

    // The object list fills from the star catalogue here.
    TLayoutWindow::SetupWindow();
    pNameEdit->SetWindowFont(*pTextFont);
    pNameEdit->SetFocus();
    pListTypeBox->SetWindowFont(*pTextFont);
    for (int row = 0; row < kListTypeCount; ++row) {
        pListTypeBox->AddString(
            getHostString(kStringTable, short(kFirstListTypeText + row * kListTypeTextStep)));
    }
    pListTypeBox->SetSelIndex(0);
    CbnListTypeChange();
}

void AstroFinderWindow::UpdateOutlineButton()
{
    if (pOutlineButton) {
        pOutlineButton->SetBitmap(OutlineBitmap());
    }
}

AstroObject* AstroFinderWindow::GetSelectedObject() const
{
    return pObjectList->GetObject(pObjectList->getSelIndex());
}

// Layout.

void AstroFinderWindow::LayoutChildren(const TSize& size)
{
    // The direction window: as wide as the panel within the frame's bezel, or as high as a
    // fifth of it, whichever gives the smaller round disc; centred, just below the top.
    const int bezel = FrameMetric(kHostMetricBezelWidth);
    const int widthLimit = size.cx - kGap - 2 * bezel;
    const int heightLimit = size.cy / 5;
    if (widthLimit < 0 || heightLimit < 0) {
        return;
    }
    const TMemoryDC screen;
    const DirectionDrawer& drawer = pDirection->GetDrawer();
    int width = widthLimit;
    int height = drawer.GetDesiredHeight(unsigned(widthLimit), screen);
    if (height > heightLimit) {
        height = heightLimit;
        width = std::min(drawer.GetDesiredWidth(unsigned(heightLimit), screen), widthLimit);
    }
    TLayoutMetrics direction = PixelMetrics();
    direction.X.Set(lmCenter, lmSameAs, lmParent, lmCenter);
    direction.Width.Absolute(width);
    direction.Y.Set(lmTop, lmBelow, lmParent, lmTop, kRowGap);
    direction.Height.Absolute(height);
    SetChildLayoutMetrics(*pDirection, direction);

    // Rows of a line and a half of text; the labels stand in the middle of theirs.
    const int textHeight = TextHeight(*pTextFont);
    const int row = 3 * textHeight / 2;
    const int labelInRow = (row - textHeight) / 2;

    TLayoutMetrics listType = PixelMetrics();
    listType.X.Set(lmLeft, lmSameAs, lmParent, lmLeft);
    listType.Width.Absolute(pListTypeLabel->GetTextSize().cx);
    listType.Y.Set(lmTop, lmSameAs, pListTypeBox, lmTop, labelInRow);
    listType.Height.Absolute(textHeight);
    SetChildLayoutMetrics(*pListTypeLabel, listType);

    // The drop-down's height is that of its open list.
    TLayoutMetrics box = PixelMetrics();
    box.X.Set(lmLeft, lmRightOf, pListTypeLabel, lmRight, kGap);
    box.Width.Set(lmRight, lmLeftOf, lmParent, lmRight, kGap);
    box.Y.Set(lmTop, lmBelow, pDirection, lmBottom, size.cy / 30);
    box.Height.Absolute(5 * row);
    SetChildLayoutMetrics(*pListTypeBox, box);

    TLayoutMetrics name = PixelMetrics();
    name.X.Set(lmLeft, lmSameAs, pListTypeLabel, lmLeft);
    name.Width.Absolute(pNameLabel->GetTextSize().cx);
    name.Y.Set(lmTop, lmBelow, pListTypeLabel, lmBottom, kRowGap + labelInRow);
    name.Height.Absolute(textHeight);
    SetChildLayoutMetrics(*pNameLabel, name);

    TLayoutMetrics edit = PixelMetrics();
    edit.X.Set(lmLeft, lmRightOf, pNameLabel, lmRight, kGap);
    edit.Width.Set(lmRight, lmSameAs, pListTypeBox, lmRight);
    edit.Y.Set(lmTop, lmBelow, pListTypeLabel, lmBottom, kRowGap);
    edit.Height.Absolute(row);
    SetChildLayoutMetrics(*pNameEdit, edit);

    TLayoutMetrics list = PixelMetrics();
    list.X.Set(lmLeft, lmSameAs, pListTypeLabel, lmLeft);
    list.Width.Set(lmRight, lmSameAs, pListTypeBox, lmRight);
    list.Y.Set(lmTop, lmBelow, pNameLabel, lmBottom, kRowGap);
    list.Height.Set(lmBottom, lmAbove, pButtonBar, lmTop, kRowGap);
    SetChildLayoutMetrics(*pObjectList, list);

    TSize bar;
    pButtonBar->GetDesiredSize(bar);
    TLayoutMetrics buttons = PixelMetrics();
    buttons.X.Set(lmCenter, lmSameAs, lmParent, lmCenter);
    buttons.Width.Absolute(bar.cx);
    buttons.Y.Set(lmBottom, lmAbove, lmParent, lmBottom, kRowGap);
    buttons.Height.Absolute(bar.cy);
    SetChildLayoutMetrics(*pButtonBar, buttons);
}

void AstroFinderWindow::EvSize(UINT sizeType, TSize& size)
{
    LayoutChildren(size);
    TLayoutWindow::EvSize(sizeType, size);
    Invalidate();
}

HBRUSH AstroFinderWindow::EvCtlColor(HDC dc, HWND, UINT)
{
    // Plain static controls stand on a light grey, their text cells in the panel's colour; the
    // host's labels paint themselves and do not ask.
    dc->SetBkColor(BackgroundColor);
    dc->SetBkMode(OPAQUE);
    if (!pBackgroundBrush) {
        pBackgroundBrush = std::make_unique<TBrush>(TColor(kStaticBrushColor));
    }
    return pBackgroundBrush.get();
}

// The search.

void AstroFinderWindow::EnNameFocus()
{
    PostMessage(kSelectNameMessage);
}

LRESULT AstroFinderWindow::WmSelectName(WPARAM, LPARAM)
{
    pNameEdit->SelectAll();
    return 0;
}

void AstroFinderWindow::EnNameChange()
{
    if (bListChangeGuard) {
        return;
    }
    bSearchPending = true;
    if (nSearchTimer == 0) {
        nSearchTimer = SetTimer(kSearchTimer, UINT(nSearchDelay));
    }
}

void AstroFinderWindow::EvTimer(UINT id)
{
    if (nSearchTimer == 0 || id != nSearchTimer) {
        KillTimer(id);
        return;
    }
    // A key since the last tick: wait a whole delay more.
    if (bSearchPending) {
        bSearchPending = false;
        return;
    }
    Search();
}

void AstroFinderWindow::Search()
{
    bListChangeGuard = true;
    const int row = pObjectList->FindPrefix(pNameEdit->GetText());
    if (row >= 0) {
        pObjectList->setTopIndex(row);
        pObjectList->setSelIndex(row);
    }
    bListChangeGuard = false;
    KillTimer(nSearchTimer);
    nSearchTimer = 0;
    bSearchPending = false;
}

void AstroFinderWindow::WriteName(const std::string& name)
{
    bListChangeGuard = true;
    pNameEdit->SetText(name);
    bListChangeGuard = false;
}

void AstroFinderWindow::LbnObjectSelected()
{
    if (bListChangeGuard) {
        return;
    }
    if (AstroObject* object = GetSelectedObject()) {
        WriteName(object->GetListName());
    }
}

void AstroFinderWindow::CbnListTypeChange()
{
    const int row = pListTypeBox->GetSelIndex();
    AstroCatalogue* catalogue = nullptr;
    if (pCollector && row >= 0 && row < kListTypeCount) {
        catalogue = pCollector->GetCatalogue(ObjectListDialog::kRowCatalogues[row]);
    }
    // A search typed for the old list has nothing to find in the new one.
    if (nSearchTimer != 0) {
        KillTimer(nSearchTimer);
        nSearchTimer = 0;
    }
    bSearchPending = false;
    pObjectList->SetCatalogue(catalogue);
    WriteName(std::string());
}

// Choosing.

void AstroFinderWindow::ChooseSelected()
{
    AstroObject* object = GetSelectedObject();
    TWindow* parent = GetParentO();
    if (object && parent) {
        parent->SendMessage(nSelectedMessage, 0, reinterpret_cast<LPARAM>(object));
    }
}

void AstroFinderWindow::CmEnter()
{
    // Return right after typing means the name typed, not the row shown before.
    if (nSearchTimer != 0) {
        Search();
    }
    ChooseSelected();
}

void AstroFinderWindow::LbnObjectChosen()
{
    ChooseSelected();
}

bool AstroFinderWindow::PreProcessMsg(MSG& msg)
{
    const bool inName = pNameEdit->HWindow && msg.hwnd == pNameEdit->HWindow;
    const bool inList = pObjectList->HWindow && msg.hwnd == pObjectList->HWindow;
    if (inName && msg.message == WM_KEYDOWN &&
        (msg.wParam == VK_UP || msg.wParam == VK_DOWN || msg.wParam == VK_PRIOR ||
         msg.wParam == VK_NEXT)) {
        // The arrows move on from the row of what was typed.
        if (nSearchTimer != 0) {
            Search();
        }
        pObjectList->SendMessage(WM_KEYDOWN, msg.wParam, msg.lParam);
        return true;
    }
    if (inList && msg.message == WM_CHAR && msg.wParam == '\r') {
        ChooseSelected();
        return true;
    }
    if (inList && msg.message == WM_CHAR && msg.wParam == 0x1B) {
        pNameEdit->Clear();
        return true;
    }
    return TLayoutWindow::PreProcessMsg(msg);
}

// The buttons and the direction window.

void AstroFinderWindow::CmZoomIn()
{
    if (pOwner) {
        pOwner->CmZoomIn();
    }
}

void AstroFinderWindow::CmZoomOut()
{
    if (pOwner) {
        pOwner->CmZoomOut();
    }
}

void AstroFinderWindow::CmSkyhuntGame()
{
    if (pOwner) {
        pOwner->CmSkyhuntGame();
    }
}

void AstroFinderWindow::CmOutline()
{
    if (pOwner) {
        pOwner->CmDisplayConstellationFigures();
    }
    UpdateOutlineButton();
}

LRESULT AstroFinderWindow::WmDirectionClicked(WPARAM, LPARAM)
{
    if (MapWindow* map = pOwner ? pOwner->GetMap() : nullptr) {
        map->ChangeCenterOfView(pDirection->GetClickedDirection());
    }
    return 0;
}
