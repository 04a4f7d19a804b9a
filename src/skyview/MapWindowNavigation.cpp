// MapWindow: how the user moves about the map and picks objects, and how time runs by itself.
// Clicks, the rubber-band zoom, the time lapse, continuous scrolling, bringing a named object
// into view with its questions, blinking, the pointer over objects, and the messages that
// tell the parent.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "catalogues/AstroObject.h"
#include "catalogues/Constellation.h"
#include "catalogues/ConstellationCatalogue.h"
#include "catalogues/Messier.h"
#include "catalogues/Star.h"
#include "host/HostCursor.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "host/HostStringTable.h"
#include "platform/DebugStream.h"
#include "platform/TClientDC.h"
#include "platform/TPen.h"
#include "platform/WindowCalls.h"
#include "projection/PerspectiveModifier.h"
#include "projection/RotatingOrientationInfo.h"
#include "shell/ObjectInfoDialog.h"
#include "skyview/Label.h"
#include "skyview/MapWindow.h"
#include "skyview/MouseDragger.h"
#include "skyview/StarDisplayParameters.h"
#include "solar/PlanetView.h"
#include "solar/SolarSystemObject.h"

namespace {

// The planetarium's string table, and the questions of ShowObject.
constexpr short kStringTable = 5;
constexpr short kThisObjectText = 0x113A;
constexpr short kRisesQuestion = 0x1144;
constexpr short kRisesCaption = 0x1130;
constexpr short kNeverRisesQuestion = 0x11A8;
constexpr short kBelowHorizonQuestion = 0x119E;
constexpr short kBelowHorizonCaption = 0x1194;
constexpr short kNoConstellationText = 0x10D6;
constexpr short kConstellationLinesCaption = 0x10CC;

// Offsets of the uids above AstroObject::kUidBase, by kind of object.
constexpr std::uint32_t kFirstConstellationUid = 1;
constexpr std::uint32_t kLastConstellationUid = 89;
constexpr std::uint32_t kFirstMessierUid = 101;
constexpr std::uint32_t kLastMessierUid = 210;
constexpr std::uint32_t kMessierUidOffset = 100;
constexpr std::uint32_t kFirstPlanetUid = 300;
constexpr std::uint32_t kLastPlanetUid = 309;
constexpr std::uint32_t kMoonUid = 310;
constexpr std::uint32_t kSunUid = 311;
constexpr std::uint32_t kStarUidOffset = 1000;
constexpr std::uint32_t kFirstStarUid = 1001;
constexpr std::uint32_t kLastStarUid = 259997;

// A star located by name gets a label when its magnitude is within this of the label limit.
constexpr double kLabelMagnitudeMargin = 0.1;

// The mark round the object under the pointer: half its width and height in pixels.
constexpr int kHiliteHalfWidth = 5;
constexpr int kHiliteHalfHeight = 3;

// The figure file gives RA and Dec in degrees to five places.
constexpr int kNodeDecimals = 5;

} // namespace

// Mouse.

bool MapWindow::MapWindowPointToPolarCoord(const TPoint& point, PolarCoord& coord) const
{
    return pTransformation && pTransformation->ReverseTranslate(point, coord);
}

void MapWindow::EvLButtonDown(UINT, TPoint& point)
{
    // With the mouse disabled a press is still followed to its release when the parent takes
    // the clicks.
    if (bMouseDisabled && nSingleClickMessage == 0) {
        return;
    }
    SetCapture();
    DragStart = point;
}

void MapWindow::EvMouseMove(UINT keys, TPoint& point)
{
    if (bMouseDisabled) {
        return;
    }
    if (HasCapture()) {
        if ((keys & MK_LBUTTON) == 0) {
            return;
        }
        if (!pDragger) {
            // A small slip of the hand is still a click.
            const int moved = std::abs(point.x - DragStart.x) + std::abs(point.y - DragStart.y);
            if (moved > kDragThreshold) {
                pDragger = std::make_unique<MouseDragger>(*this);
                pDragger->SetStart(DragStart);
                pDragger->SetEnd(point);
            }
        } else {
            pDragger->SetEnd(point);
        }
        if (pDragger) {
            pDragger->Draw();
        }
        return;
    }
    if (nWaitCursors == 0) {
        ::SetCursor(GetHostCursor(GetLinkObject(point) ? HOST_CURSOR_LINK : HOST_CURSOR_MAP));
    }
    ShowPointerPosition(point);
}

void MapWindow::EvLButtonUp(UINT, TPoint& point)
{
    if (!HasCapture()) {
        return;
    }
    ReleaseCapture();

    if (pDragger) {
        const TRect band = pDragger->GetRect();
        pDragger.reset();
        // A band drawn up or to the left has a negative side and so never zooms; the repaint
        // takes it off the screen.
        if (band.Width() < kMinimumZoomSide || band.Height() < kMinimumZoomSide) {
            InvalidateView();
        } else {
            ZoomToArea(band);
        }
        return;
    }

    PolarCoord clicked;
    if (!MapWindowPointToPolarCoord(point, clicked)) {
        return;
    }
    // The parent that takes the clicks takes them all, even while the map's own mouse
    // handling is off.
    if (nSingleClickMessage != 0) {
        if (TWindow* parent = GetParentO()) {
            parent->SendMessage(nSingleClickMessage, 0, reinterpret_cast<LPARAM>(&clicked));
        }
        return;
    }
    if (bMouseDisabled) {
        return;
    }
    if (AstroObject* object = GetLinkObject(point)) {
        HandleObjectSelection(*object);
    } else {
        ChangeCenterOfView(clicked);
    }
}

void MapWindow::EvChar(UINT key, UINT, UINT)
{
    if (key == VK_ESCAPE && nNodeLogMode == 1) {
        EraseLastConstellationLine();
    }
    DefaultProcessing();
}

void MapWindow::EvRButtonDown(UINT, TPoint& point)
{
    if (bMouseDisabled) {
        return;
    }
    PolarCoord clicked;
    if (MapWindowPointToPolarCoord(point, clicked)) {
        ChangeCenterOfView(clicked);
    }
}

void MapWindow::ZoomToArea(const TRect& rect)
{
    if (!pOrientation || rect.Width() == 0 || rect.Height() == 0) {
        return;
    }
    // A corner or middle off the sphere stays at (0, 0).
    PolarCoord corner;
    PolarCoord middle;
    MapWindowPointToPolarCoord(rect.TopLeft(), corner);
    MapWindowPointToPolarCoord(TPoint(rect.left + rect.Width() / 2, rect.top + rect.Height() / 2),
                               middle);

    // With the middle as the pole, 90 less the corner's Dec is the corner's angle from the
    // middle: the field that reaches the corners.
    const PerspectiveModifier fromMiddle(middle, corner);
    PolarCoord seen;
    fromMiddle.ChangePerspective(corner, seen);
    const double radius =
        std::clamp(90.0 - seen.GetDec().GetDegrees(), kMinimumZoomRadius, kMaximumFieldRadius);

    pOrientation->SetFieldRadius(radius);
    pOrientation->SetCenterOfView(middle);
    OrientationItem.Set(*pOrientation);
    // The view moved freely: a bookmark is titled by its coordinates.
    LastTargetName.clear();
    MarkAllDirty();
    InvalidateView();
}

// Scrolling.

void MapWindow::Scroll(const AstroScrollInfo& info)
{
    ScrollInfo = info;
    if (bScrolling) {
        KillTimer(kScrollTimer);
    }
    bScrolling = true;
    SetTimer(kScrollTimer, UINT(std::max(1, ScrollInfo.GetInterval())));
    ContinueScrolling();
}

void MapWindow::ContinueScrolling()
{
    if (pOrientation->Scroll(ScrollInfo)) {
        OrientationItem.Set(*pOrientation);
        bTransformationDirty = true;
        bGridDirty = true;
        InvalidateView();
        // Painted now, so that steps never queue behind each other.
        UpdateWindow();
    } else {
        StopScrolling();
    }
}

void MapWindow::StopScrolling()
{
    // The timer goes at its next tick. Objects were left out to keep the pace; they all come
    // back with the next draw.
    bScrolling = false;
    bForceReload = true;
    RedrawNow();
}

void MapWindow::EvTimer(UINT id)
{
    switch (id) {
    case kAnimationTimer:
        if (bAnimating) {
            AstroTime next = Time;
            next += Animation.GetTimeStep();
            SetTime(next);
        } else {
            KillTimer(kAnimationTimer);
        }
        break;
    case kScrollTimer:
        if (bScrolling) {
            ContinueScrolling();
        } else {
            KillTimer(kScrollTimer);
        }
        break;
    case kBlinkTimer:
        if (!pBlinkObject && !pBlinkLabelObject) {
            KillTimer(kBlinkTimer);
            break;
        }
        bBlinkPhase = !bBlinkPhase;
        if (pBlinkLabelObject) {
            Labels.SetHiddenObject(bBlinkPhase ? nullptr : pBlinkLabelObject);
        }
        RedrawNow();
        break;
    default:
        break;
    }
}

// The time lapse.

void MapWindow::Animate()
{
    // A pace of 0 means no lapse; a negative or absurd one from a damaged state is refused
    // the same way rather than turned into a timer.
    const double milliseconds = Animation.GetSecondsPerStep() * 1000.0;
    if (!(milliseconds > 0.0) || milliseconds > double(std::numeric_limits<int>::max())) {
        return;
    }
    bAnimating = true;
    SetTimer(kAnimationTimer, std::max(1u, UINT(milliseconds)));
}

void MapWindow::StopAnimating()
{
    bAnimating = false;
    KillTimer(kAnimationTimer);
}

void MapWindow::RedrawNow()
{
    bStatusDirty = true;
    Labels.SetDirty();
    InvalidateView();
    if (HWindow) {
        UpdateWindow();
    }
}

// Blinking and the mark.

void MapWindow::BlinkObject(AstroObject& o)
{
    pBlinkObject = &o;
    bBlinkPhase = true;
    SetTimer(kBlinkTimer, kBlinkInterval);
}

void MapWindow::BlinkLabelForObject(AstroObject& o)
{
    pBlinkLabelObject = &o;
    bBlinkPhase = true;
    SetTimer(kBlinkTimer, kBlinkInterval);
}

void MapWindow::StopBlinking()
{
    Labels.SetHiddenObject(nullptr);
    pBlinkObject = nullptr;
    pBlinkLabelObject = nullptr;
    KillTimer(kBlinkTimer);
    // An object stopped in its dark phase is drawn again.
    RedrawNow();
}

void MapWindow::SetHilitedObject(AstroObject& o)
{
    if (&o == pHilitedObject) {
        return;
    }
    // The mark lies only on the screen: a copy of the bitmap wipes it.
    if (pHilitedObject) {
        InvalidateView();
        if (HWindow) {
            UpdateWindow();
        }
    }
    pHilitedObject = &o;
    DrawHilite(o);
}

void MapWindow::DrawHilite(AstroObject& o)
{
    if (!HWindow) {
        return;
    }
    TClientDC dc(*this);
    dc.SelectObject(TPen(TColor::LtRed, 1, PS_SOLID));
    const TPoint& p = o.GetDisplayPoint();
    dc.MoveTo(p.x - kHiliteHalfWidth, p.y - kHiliteHalfHeight);
    dc.LineTo(p.x + kHiliteHalfWidth, p.y - kHiliteHalfHeight);
    dc.LineTo(p.x + kHiliteHalfWidth, p.y + kHiliteHalfHeight);
    dc.LineTo(p.x - kHiliteHalfWidth, p.y + kHiliteHalfHeight);
    dc.LineTo(p.x - kHiliteHalfWidth, p.y - kHiliteHalfHeight);
    dc.RestorePen();
}

// Objects.

AstroObject* MapWindow::GetLinkObject(const TPoint& point)
{
    // A label may outlive its object by a frame cut short: only an object still in the
    // visible list is taken.
    if (const Label* label = Labels.FindLabelAt(point)) {
        AstroObject* object = label->GetObject();
        if (object && std::find(aVisibleObjects.begin(), aVisibleObjects.end(), object) !=
                          aVisibleObjects.end()) {
            return object;
        }
    }
    return aVisibleObjects.FindNearestObject(point, kPickRadius);
}

void MapWindow::HandleObjectSelection(AstroObject& o)
{
    if (o.GetType() == AstroObject::ObjectType::Constellation) {
        DereferenceObject(o);
    } else {
        DisplayObjectInfo(o);
    }
}

void MapWindow::DisplayObjectInfo(AstroObject& o)
{
    ObjectInfoDialog dialog(this, o);
    dialog.Execute();
    // The article button closes the dialog with the object's article to go to.
    if (!dialog.GetLaunchString().empty()) {
        GenerateReference(dialog.GetLaunchString());
    }
}

void MapWindow::DereferenceObject(AstroObject& o)
{
    const std::string launch = o.GetLaunchString();
    if (!launch.empty()) {
        GenerateReference(launch);
    }
}

void MapWindow::GenerateReference(const std::string& reference)
{
    TWindow* parent = GetParentO();
    if (parent && nReferenceMessage != 0) {
        // A copy that lives for the call.
        std::string text = reference;
        parent->SendMessage(nReferenceMessage, 0, reinterpret_cast<LPARAM>(&text));
    }
}

void MapWindow::ShowStatus(const std::string& text)
{
    if (TWindow* parent = GetParentO()) {
        parent->SendMessage(kStatusTextMessage, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

AstroObject* MapWindow::GetObjectFromUid(std::uint32_t uid)
{
    if (uid < AstroObject::kUidBase) {
        return nullptr;
    }
    const std::uint32_t offset = uid - AstroObject::kUidBase;

    AstroObject* object = nullptr;
    PlanetView* view = nullptr;
    PlanetCatalogue& planets = Collector.GetPlanetCatalogue();
    if (offset >= kFirstConstellationUid && offset <= kLastConstellationUid) {
        ConstellationCatalogue& catalogue = Collector.GetConstellationCatalogue();
        catalogue.Load();
        std::vector<Constellation*> constellations;
        catalogue.GetConstellations(constellations);
        const std::size_t index = offset - kFirstConstellationUid;
        object = index < constellations.size() ? constellations[index] : nullptr;
    } else if (offset >= kFirstMessierUid && offset <= kLastMessierUid) {
        object = Collector.GetMessierCatalogue().GetObject(offset - kMessierUidOffset);
    } else if (offset >= kFirstPlanetUid && offset <= kLastPlanetUid) {
        view = planets.GetView(offset - kFirstPlanetUid);
    } else if (offset == kSunUid) {
        view = planets.GetView(PlanetCatalogue::kSunPlace);
    } else if (offset == kMoonUid) {
        view = planets.GetView(PlanetCatalogue::kMoonPlace);
    } else if (offset >= kFirstStarUid && offset <= kLastStarUid) {
        return Collector.GetStarFromSAONumber(offset - kStarUidOffset);
    }
    // The body the observer stands on cannot be shown.
    if (view && view->IsVisible()) {
        object = view;
    }
    if (object) {
        object->AddReference();
    }
    return object;
}

void MapWindow::ShowObject(AstroObject& o)
{
    // Before the first draw there is no view to turn: the object waits for the first paint.
    if (bFirstDrawPending) {
        o.AddReference();
        if (pStartingObject) {
            pStartingObject->ReleaseReference();
        }
        pStartingObject = &o;
        return;
    }

    // The observer's body may not have been given a time set since the last draw.
    if (SolarSystemObject* origin = Collector.GetOrigin()) {
        origin->SetTime(Time);
    }
    o.SetTime(Time);
    bool shown = false;

    // A view fixed on the stars has no horizon: whatever is named is shown.
    if (!GetRotatingOrientation() || ObjectIsUp(o)) {
        ChangeCenterOfView(o.GetPosition());
        shown = true;
        if (nNodeLogMode == 2 && o.GetType() == AstroObject::ObjectType::Constellation) {
            pCurrentConstellation = dynamic_cast<Constellation*>(&o);
        }
    } else {
        const std::string name =
            o.HasListName() ? o.GetListName() : getHostString(kStringTable, kThisObjectText);
        const std::string belowCaption = getHostString(kStringTable, kBelowHorizonCaption);
        if (!ObjectCanRise(o)) {
            if (AskYesNo(formatHostString(getHostString(kStringTable, kNeverRisesQuestion), {name}),
                         belowCaption)) {
                ClipAtHorizon(false);
                ChangeCenterOfView(o.GetPosition());
                shown = true;
            }
        } else {
            AstroTime rise = GetRiseTime(o) - Zone;
            rise.SetMode(bMilitaryTime ? AstroTime::Clock24 : AstroTime::Clock12);
            const std::string question = formatHostString(
                getHostString(kStringTable, kRisesQuestion), {name, rise.GetDescription3()});
            if (AskYesNo(question, getHostString(kStringTable, kRisesCaption))) {
                ShowObjectRising(o);
                shown = true;
            } else if (!IsClippedAtHorizon() &&
                       AskYesNo(getHostString(kStringTable, kBelowHorizonQuestion), belowCaption)) {
                ChangeCenterOfView(o.GetPosition());
                shown = true;
            }
        }
    }

    // After the centre changed, which forgets the last name.
    LastTargetName = shown && o.HasListName() ? o.GetListName() : std::string();
    if (shown) {
        DisplayLabelsForObjectType(o);
    }
}

bool MapWindow::AskYesNo(const std::string& text, const std::string& caption)
{
    return MessageBox(text.c_str(), caption.c_str(), MB_YESNO) == IDYES;
}

void MapWindow::DisplayLabelsForObjectType(AstroObject& o)
{
    // Every body of the solar system carries its label through the planet options, the Sun
    // and the Moon too; comets have their own switch.
    if (o.GetType() == AstroObject::ObjectType::Comet) {
        ShowComets(true);
    } else if (dynamic_cast<PlanetView*>(&o) != nullptr) {
        ShowPlanets(true);
        PlanetOptions options = Collector.GetPlanetCatalogue().GetOptions();
        options.bShowLabels = true;
        SetPlanetOptions(options);
    } else if (o.GetType() == AstroObject::ObjectType::Constellation) {
        ConstellationSettings settings = GetConstellationSettings();
        settings.bShowLabels = true;
        SetConstellationSettings(settings);
    } else if (o.GetType() == AstroObject::ObjectType::Star) {
        StarDisplayParameters stars(Display);
        stars.SetLabelType(StarDisplayParameters::kPopularNameLabels);
        if (o.GetMagnitude() > stars.GetLimitingMagnitudeLabels()) {
            stars.SetLimitingMagnitudeLabels(o.GetMagnitude() + kLabelMagnitudeMargin);
        }
        SetStarDisplayParameters(stars);
    } else if (dynamic_cast<Messier*>(&o) != nullptr) {
        ShowMessierObjects(true);
    }
}

// Constellations.

void MapWindow::ShowConstellation(Constellation& c)
{
    // The lines logged so far belong to the constellation that was current.
    if (nNodeLogMode == 1) {
        SaveConstellationNodeInfo();
    }
    pCurrentConstellation = &c;
    ChangeCenterOfView(c.GetCenter());
}

void MapWindow::ShowConstellation(const std::string& name)
{
    if (Constellation* c = Collector.GetConstellationCatalogue().GetConstellation(name, false)) {
        ShowConstellation(*c);
    }
}

void MapWindow::LogConstellationNode(bool newLine)
{
    const Star* star = dynamic_cast<const Star*>(pHilitedObject);
    if (!star) {
        return;
    }
    // Ends go in pairs. An even count means the last line is complete: go on from its end
    // unless a new line is asked for. An odd count means a line is open: a new line drops
    // its lone start.
    const std::size_t n = ConstellationNodes.size();
    if (n > 0 && n % 2 == 0 && !newLine) {
        ConstellationNodes.push_back(Star(ConstellationNodes.back()));
    } else if (n % 2 == 1 && newLine) {
        ConstellationNodes.pop_back();
    }
    ConstellationNodes.push_back(Star(*star));
    if (HWindow) {
        TClientDC dc(*this);
        DisplayConstellationNodes(dc);
    }
}

void MapWindow::DisplayConstellationNodes(TDC& dc)
{
    // The stars are copies without display points: they are put on the present view.
    if (!pTransformation) {
        return;
    }
    dc.SelectObject(TPen(TColor::LtRed, 1, PS_SOLID));
    for (std::size_t i = 0; i + 1 < ConstellationNodes.size(); i += 2) {
        TPoint from;
        TPoint to;
        pTransformation->Translate(ConstellationNodes[i].GetPosition(), from);
        pTransformation->Translate(ConstellationNodes[i + 1].GetPosition(), to);
        dc.MoveTo(from);
        dc.LineTo(to);
    }
    dc.RestorePen();
}

void MapWindow::EraseLastConstellationLine()
{
    if (!ConstellationNodes.empty()) {
        ConstellationNodes.pop_back();
        if (ConstellationNodes.size() % 2 == 1) {
            ConstellationNodes.pop_back();
        }
    }
    // The lines are only on the screen: a copy of the bitmap takes them all away, and the
    // rest are drawn again.
    InvalidateView();
    if (HWindow) {
        UpdateWindow();
        TClientDC dc(*this);
        DisplayConstellationNodes(dc);
    }
}

void MapWindow::SaveConstellationNodeInfo()
{
    if (!pCurrentConstellation) {
        MessageBox(getHostString(kStringTable, kNoConstellationText).c_str(),
                   getHostString(kStringTable, kConstellationLinesCaption).c_str(), MB_ICONHAND);
        return;
    }
    if (ConstellationNodes.size() < 2) {
        return;
    }
    // The figure file is keyed by abbreviation, so the lines appended are read back with the
    // constellation's own.
    const std::string path =
        HostProfile().GetPath("Orbiscope", "ConstNodeFile", "ed:\\constnod.txt");
    HostFile file(path, HostFile::Append);
    if (!file.IsOpen()) {
        dbstream << "Constellation lines: cannot open " << path << dbendl;
        return;
    }
    const std::string abbreviation = pCurrentConstellation->GetAbbreviation();
    for (std::size_t i = 0; i + 1 < ConstellationNodes.size(); i += 2) {
        const Star& first = ConstellationNodes[i];
        const Star& second = ConstellationNodes[i + 1];
        char line[160];
        const int length =
            std::snprintf(line, sizeof line, "%s,%.*f,%.*f,%.*f,%.*f,%u,%u\n", abbreviation.c_str(),
                          kNodeDecimals, first.GetPosition().GetRA().GetDegrees(), kNodeDecimals,
                          first.GetPosition().GetDec().GetDegrees(), kNodeDecimals,
                          second.GetPosition().GetRA().GetDegrees(), kNodeDecimals,
                          second.GetPosition().GetDec().GetDegrees(),
                          unsigned(first.GetSAONumber()), unsigned(second.GetSAONumber()));
        if (length > 0) {
            file.Write(line, std::min(std::size_t(length), sizeof line - 1));
        }
    }
    ConstellationNodes.clear();
}
