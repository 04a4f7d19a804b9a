#include "skyview/MapWindow.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <optional>

#include "catalogues/AstroObject.h"
#include "coords/AngleMath.h"
#include "coords/PositiveDegreeAngle.h"
#include "coords/StellarCoord.h"
#include "host/HostFile.h"
#include "host/HostProf.h"
#include "platform/DebugStream.h"
#include "platform/Gdi.h"
#include "platform/TBitmap.h"
#include "platform/TBrush.h"
#include "platform/TDib.h"
#include "platform/TFont.h"
#include "platform/TMemoryDC.h"
#include "platform/TPalette.h"
#include "platform/TPen.h"
#include "platform/WindowCalls.h"
#include "projection/FixedOrientationInfo.h"
#include "projection/PerspectiveModifier.h"
#include "projection/RotatingOrientationInfo.h"
#include "skyview/AstroStatusWindow.h"
#include "skyview/DrawTimeLimit.h"
#include "skyview/HorizonGround.h"
#include "skyview/MouseDragger.h"
#include "skyview/StarDisplayParameters.h"
#include "solar/Moon.h"
#include "solar/PlanetCatalogue.h"
#include "solar/PlanetView.h"
#include "solar/SolarSystemObject.h"
#include "state/StateContainer.h"

namespace {

// The view a new map opens on: from San Francisco (longitude positive west), east at an
// altitude of 30 degrees (azimuth 270, zenith distance 60), 20 degrees to the nearer edge.
const LatLong kDefaultLocation(37.8, 122.4);
const PolarCoord kDefaultZenithOffset(270.0, 60.0);
constexpr double kDefaultFieldRadius = 20.0;

// The horizon: a magenta line through this many points, drawn once the field comes within
// the margin (degrees) of it.
constexpr int kHorizonPoints = 200;
constexpr double kHorizonMargin = 15.0;
// Degrees behind the rim of a view's hemisphere to which the horizon is still followed: so
// little that those points land on the rim itself.
constexpr double kHorizonRimMargin = 1.0;
const TColor kHorizonColor(255, 0, 255);

// The raster operation that clears the foreground where the mask is white: destination AND
// NOT source.
constexpr DWORD kDestinationAndNotSource = 0x00220326;

// Points along a meridian, and along a parallel, of the grid.
constexpr double kMeridianStepFraction = 0.02;   // 50 steps over the Dec span
constexpr double kParallelStepFraction = 0.0125; // 80 steps over the RA span
constexpr int kParallelPoints = 81;

// The status line: red, in a fixed-pitch face.
const TColor kStatusTextColor(255, 0, 0);

const TFont& StatusFont()
{
    static const TFont font("Courier", 10, 10, 0, 0, FW_NORMAL, 0, false, false, false,
                            DEFAULT_CHARSET, 0, 0, 0);
    return font;
}

} // namespace

bool MapWindow::sbPainting = false;

MapWindow::MapWindow(TWindow* parent)
    : TWindow(parent), Zone(TimeZone::GetSystemTimeZone()), Time(AstroTime::GetTickCount())
{
    aGridLines.OwnsElements(true);
    SetBkgndColor(TColor(0, 0, 0));
    if (!pOrientation) {
        pOrientation = std::make_unique<RotatingOrientationInfo>(
            Collector.GetOrigin(), kDefaultLocation, kDefaultZenithOffset, kDefaultFieldRadius,
            true);
    }
    bMilitaryTime = HostProfile().GetBool("Orbiscope", "MilitaryTime", false);
}

MapWindow::~MapWindow()
{
    if (pStartingObject) {
        pStartingObject->ReleaseReference();
        pStartingObject = nullptr;
    }
    pTransformation.reset();
    pOrientation.reset();
    pMemoryDC.reset();
    FreeDrawBitmap();
    pCurrentConstellation = nullptr;
    pHorizonOrientation.reset();
    pDragger.reset();
    DeleteForegroundBitmap();
    pPendingCenter.reset();
}

const TResponseRow* MapWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &MapWindow::EvSize>(),
        EvRow<WM_TIMER, &MapWindow::EvTimer>(),
        EvRow<WM_LBUTTONDOWN, &MapWindow::EvLButtonDown>(),
        EvRow<WM_LBUTTONUP, &MapWindow::EvLButtonUp>(),
        EvRow<WM_RBUTTONDOWN, &MapWindow::EvRButtonDown>(),
        EvRow<WM_MOUSEMOVE, &MapWindow::EvMouseMove>(),
        EvRow<WM_CHAR, &MapWindow::EvChar>(),
        EvRow<WM_ERASEBKGND, &MapWindow::EvEraseBkgnd>(),
        MsgRow<kShowStartingObjectMessage, &MapWindow::EvShowStartingObject>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

// The draw cycle.

void MapWindow::Paint(TDC& dc, bool, TRect& rect)
{
    if (Display.IsPrinting() || sbPainting) {
        return;
    }
    sbPainting = true;

    TRect client = GetClientRect();
    if (client.IsEmpty()) {
        // Nothing to draw on until the window has a size.
        sbPainting = false;
        return;
    }
    const bool forceBackground = !Display.bPaletteForeground;
    if (!pMemoryDC) {
        pMemoryDC = std::make_unique<TMemoryDC>(dc);
        pMemoryDC->SelectObject(*Display.GetPalette(), forceBackground);
        pMemoryDC->RealizePalette();
        FreeDrawBitmap();
        AllocateDrawBitmap(*pMemoryDC, client.Size());
        TBitmap bitmap(hDrawBitmap, NoAutoDelete);
        pMemoryDC->SelectObject(bitmap);
    }
    if (IsAnythingDirty()) {
        Display.SetDC(pMemoryDC.get());
        Display.SetDrawRect(client);
        DrawAll();
        Display.pDC = nullptr;
    }
    if (pMemoryDC) {
        dc.SelectObject(*Display.GetPalette(), forceBackground);
        dc.RealizePalette();
        if (bUseForeground) {
            MergeForeground(*pMemoryDC, rect);
        }
        dc.BitBlt(rect, *pMemoryDC, rect.TopLeft(), SRCCOPY);
    }
    if (pStartingObject) {
        PostMessage(kShowStartingObjectMessage, 0, 0);
    }
    sbPainting = false;
}

void MapWindow::AllocateDrawBitmap(TDC& dc, const TSize& size)
{
    const int width = (size.cx + 7) / 8 * 8;
    const int height = size.cy;

    hDrawBitmap = CreatePaletteDIBSection(dc, width, height);
    GiveDisplayTheBits();
}

void MapWindow::FreeDrawBitmap()
{
    if (hDrawBitmap) {
        Display.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
        DeleteObject(hDrawBitmap);
        hDrawBitmap = nullptr;
    }
}

void MapWindow::GiveDisplayTheBits()
{
    DIBSECTION section{};
    if (hDrawBitmap && GetObjectA(hDrawBitmap, sizeof section, &section) != 0) {
        Display.SetFastDrawBitmapBits(section.dsBm.bmBits, section.dsBmih);
    } else {
        Display.SetFastDrawBitmapBits(nullptr, BITMAPINFOHEADER{});
    }
}

void MapWindow::DrawAll()
{
    if (!Display.pDC) {
        return;
    }
    TDC& dc = *Display.pDC;
    const TRect rect = Display.DrawRect;

    // A scrolling frame must be done before the scroll timer fires again.
    DrawTimeLimit limit;
    if (bScrolling) {
        limit.Start(DrawTimeLimit::ForScrollInterval(ScrollInfo.GetInterval()));
    }

    // A map that was given no time opens at the nearest dark time after the present moment.
    // The bodies, the Earth among them, take the present moment first: the Sun's place and
    // the zenith are asked at that time.
    if (bNearestDarkPending) {
        MakeTimeCurrent();
        Collector.GetPlanetCatalogue().SetTime(Time);
        Time = GetNearestDarkTime();
        bNearestDarkPending = false;
        bTimeDirty = true;
        bStatusDirty = true;
        Labels.SetDirty();
    }

    bFirstDrawPending = false;

    // The time update.
    const bool timeChanged = bTimeDirty;
    if (timeChanged) {
        if (SolarSystemObject* origin = Collector.GetOrigin()) {
            origin->SetTime(Time);
        }
        // A view on the ground turns with the sky: new time, new projection.
        if (pOrientation->GetType() == OrientationInfo::ROTATING) {
            bTransformationDirty = true;
            bGridDirty = true;
            OrientationItem.Set(*pOrientation);
        }
        TimeItem.Set(Time - Zone);
        bTimeDirty = false;
    }

    // A centre that waited for the time update. The projection follows it: only a view that
    // turns with the time would have asked for a new one already.
    if (pPendingCenter) {
        pOrientation->SetCenterOfView(*pPendingCenter);
        pPendingCenter.reset();
        bTransformationDirty = true;
        bGridDirty = true;
        OrientationItem.Set(*pOrientation);
    }

    // A new projection, and the parent hears of it.
    if (bTransformationDirty || !pTransformation) {
        pTransformation = std::make_unique<Transformation>(
            dc, rect, pOrientation->GetCenterOfView(), pOrientation->GetFieldRadius(),
            pOrientation->GetZenith());
        if (GetParentO() && nFieldChangeMessage != 0) {
            GetParentO()->PostMessage(nFieldChangeMessage, 0, 0);
        }
        bTransformationDirty = false;
    }

    Display.pTransformation = pTransformation.get();

    // The objects the view can show; a new list needs new labels.
    if (LoadVisibleObjects(*pTransformation) > 0) {
        Labels.SetDirty();
    }

    // The sky, in the day's colour while the Sun is up over a view from the ground. A printed
    // page keeps its white paper, and the screen its colour.
    if (!Display.IsPrinting()) {
        Display.SetDaytime(GetRotatingOrientation() != nullptr && SunIsUp());
        dc.FillRect(rect, TBrush(Display.BackgroundColor));
    }

    if (Grid.bShow) {
        DrawGrid(dc, rect, *pTransformation);
    }

    if (limit.IsExpired()) {
        return;
    }

    if (timeChanged) {
        TellMoonItem();
    }

    // Stars go straight into the bitmap's bits: nothing may still be queued for them.
    GdiFlush();

    // The objects: a blinking object is left out in one phase; otherwise the draw
    // may stop after every 16th object.
    const std::size_t count = aVisibleObjects.GetCount();
    if (!pBlinkObject) {
        for (std::size_t i = 0; i < count; ++i) {
            aVisibleObjects[i]->Draw(dc, Display);
            if ((i & 15) == 0 && limit.IsExpired()) {
                return;
            }
        }
    } else {
        for (std::size_t i = 0; i < count; ++i) {
            AstroObject* object = aVisibleObjects[i];
            if (!bBlinkPhase && object->IsSameObject(*pBlinkObject)) {
                continue;
            }
            object->Draw(dc, Display);
        }
    }

    // A view that may not sink below the horizon shows no sky there: the ground covers what
    // was drawn below it, and those objects have no labels.
    std::optional<HorizonGround> below;
    if (IsClippedAtHorizon()) {
        below.emplace(*pTransformation);
        below->Fill(dc, rect, TBrush(Display.GetGroundColor()));
    }

    // The labels are laid out again only when something changed, clear of the status line,
    // whose place is known before they are: from the first frame on, and again when the line
    // grows or shrinks.
    const TRect statusRect = MeasureStatus(dc);
    if (statusRect != Labels.GetAvoidRect()) {
        Labels.SetDirty();
    }
    if (Labels.IsDirty()) {
        Labels.SetAvoidRect(statusRect);
        Labels.Flush();
        Labels.LoadLabels(Display, aVisibleObjects);
        if (below) {
            Labels.LeaveOut([&below](const TPoint& point) { return below->Covers(point); });
        }
        Labels.Arrange(Display);
    }
    Labels.Draw(dc);

    if (limit.IsExpired()) {
        return;
    }
    if (RotatingOrientationInfo* view = GetRotatingOrientation(); view && Display.bShowHorizon) {
        DrawHorizon(dc, *view, *pTransformation, rect);
    }
    if (limit.IsExpired()) {
        return;
    }
    DisplayStatus(dc, rect);
}

void MapWindow::MarkAllDirty()
{
    bTransformationDirty = true;
    bGridDirty = true;
    bTimeDirty = true;
    bStatusDirty = true;
    Labels.SetDirty();
}

bool MapWindow::IsAnythingDirty() const
{
    return bTransformationDirty || bTimeDirty || bGridDirty || Labels.IsDirty() || bStatusDirty;
}

std::int32_t MapWindow::LoadVisibleObjects(Transformation& t)
{
    // The old list goes, and with it the object under the mouse.
    pHilitedObject = nullptr;

    CatalogueSet catalogues;
    catalogues.Add(AstroCatalogue::STARS);
    if (GetConstellationSettings().ShowsAnything()) {
        catalogues.Add(AstroCatalogue::CONSTELLATIONS);
    }
    if (bShowPlanets) {
        catalogues.Add(AstroCatalogue::PLANETS);
    }
    if (bShowMessier) {
        catalogues.Add(AstroCatalogue::MESSIER_OBJECTS);
    }
    if (bShowComets) {
        catalogues.Add(AstroCatalogue::COMETS);
    }

    Request request(t, catalogues, Time, Display.GetLimitingMagnitude());
    request.SetScrolling(bScrolling);
    if (bScrolling) {
        request.SetScrollInfo(ScrollInfo);
    }
    request.SetForceReload(bForceReload);
    bForceReload = false;
    return Collector.SatisfyRequest(request, aVisibleObjects) ? 1 : 0;
}

void MapWindow::DrawGrid(TDC& dc, const TRect&, Transformation& t)
{
    if (bGridDirty) {
        LoadGridPoints(t);
        bGridDirty = false;
    }
    dc.SelectObject(TPen(Grid.Color, Display.GetLineWidth(), PS_SOLID));
    for (const std::vector<TPoint>* line : aGridLines) {
        bool penUp = true;
        for (const TPoint& p : *line) {
            if (p.x == kPenUpMarker) {
                penUp = true;
                continue;
            }
            if (penUp) {
                dc.MoveTo(p);
            } else {
                dc.LineTo(p);
            }
            penUp = false;
        }
    }
    dc.RestorePen();
}

void MapWindow::LoadGridPoints(Transformation& t)
{
    aGridLines.Flush();
    if (Grid.nRALines == 0 || Grid.nDecLines == 0) {
        return;
    }
    const double decStep = 360.0 / double(Grid.nDecLines);
    const double raStep = 360.0 / double(Grid.nRALines);
    // Fewer than 8 parallels to the turn would leave the sky nearly bare: no grid at all.
    if (decStep > 45.0) {
        return;
    }

    const SkyRange range = t.GetVisibleRange();
    double decMin = -90.0;
    double decMax = 90.0;
    if (!range.GetDec().IsFull()) {
        const double centre = range.GetDec().GetCenter().GetDegrees();
        const double half = range.GetDec().GetHalfWidth().GetDegrees();
        decMin = centre - half;
        if (decMin < -90.0) {
            decMin = -90.0;
        }
        decMax = centre + half;
        if (decMax > 90.0) {
            decMax = 90.0;
        }
    }

    // No line of constant RA reaches a pole, and no parallel lies nearer to one than a step,
    // where the meridians would crowd together.
    double top = std::trunc(90.0 / decStep) * decStep;
    if (90.0 - top < decStep) {
        top -= decStep;
    }
    const double bottom = -top;

    double raStart = 0.0;
    double raSpan = 360.0;
    if (!range.GetRA().IsFull()) {
        const double centre = range.GetRA().GetCenter().GetDegrees();
        const double half = range.GetRA().GetHalfWidth().GetDegrees();
        raSpan = 2.0 * half;
        raStart = centre - half;
        if (raStart < 0.0) {
            raStart += 360.0;
        }
    }

    // A point out of view is kept once after a visible one, so that the line runs to the edge;
    // a marker lifts the pen where the line comes back into view.
    TPoint p;
    auto follow = [&](std::vector<TPoint>& line, bool visible, bool wasVisible) {
        if (visible || wasVisible) {
            if (!wasVisible) {
                line.push_back(TPoint(kPenUpMarker, kPenUpMarker));
            }
            line.push_back(p);
        }
    };
    auto keep = [&](std::unique_ptr<std::vector<TPoint>> line) {
        if (line->size() >= 2) {
            aGridLines.Add(line.release());
        }
    };

    // Meridians.
    const double decInc = kMeridianStepFraction * (decMax - decMin);
    const long meridians = long(std::trunc(raSpan / raStep));
    const double lineStart = std::max(decMin, bottom);
    const double lineEnd = std::min(decMax, top);
    double ra = (std::trunc(raStart / raStep) + 1.0) * raStep;
    for (long i = 0; i < meridians; ++i) {
        if (ra > 360.0) {
            ra -= 360.0;
        }
        auto line = std::make_unique<std::vector<TPoint>>();
        bool wasVisible = false;
        for (double dec = lineStart; dec < lineEnd; dec += decInc) {
            const bool visible = t.Translate(PolarCoord(ra, dec), p);
            follow(*line, visible, wasVisible);
            wasVisible = visible;
        }
        if (wasVisible && t.Translate(PolarCoord(ra, lineEnd), p)) {
            line->push_back(p);
        }
        keep(std::move(line));
        ra += raStep;
    }

    // Parallels.
    const double raInc = kParallelStepFraction * raSpan;
    double dec = std::trunc(decMin / decStep) * decStep;
    if (dec < bottom) {
        dec = bottom;
    }
    long last = long(std::trunc(std::trunc(decMax / decStep) * decStep));
    if (double(last) > top) {
        last = long(std::trunc(top));
    }
    while (dec <= double(last)) {
        auto line = std::make_unique<std::vector<TPoint>>();
        bool wasVisible = false;
        ra = raStart;
        for (int k = 0; k < kParallelPoints; ++k) {
            const bool visible = t.Translate(PolarCoord(ra, dec), p);
            follow(*line, visible, wasVisible);
            wasVisible = visible;
            ra += raInc;
            if (ra >= 360.0) {
                ra -= 360.0;
            }
        }
        keep(std::move(line));
        dec += decStep;
    }
}

void MapWindow::Erase(TDC& dc, const TRect& rect)
{
    dc.FillRect(rect, TBrush(GetBkgndColor()));
}

TRect MapWindow::MeasureStatus(TDC& dc)
{
    if (!Display.bShowStatus) {
        return TRect();
    }
    if (bStatusDirty) {
        AstroTime local = Time - Zone;
        local.SetMode(bMilitaryTime ? AstroTime::Clock24 : AstroTime::Clock12);
        StatusText = local.GetDescription3(); // am or pm on the 12-hour clock
        StatusText.append(" ").append(local.GetDescription2()).append("  ").append(LocationName);
        dc.SelectObject(StatusFont());
        const TSize extent = dc.GetTextExtent(StatusText);
        dc.RestoreFont();
        StatusRect = TRect(0, 0, extent.cx, extent.cy);
    }
    return StatusRect;
}

void MapWindow::DisplayStatus(TDC& dc, const TRect&)
{
    if (!Display.bShowStatus) {
        return;
    }
    // The text and its place were made by MeasureStatus earlier in the same draw.
    bStatusDirty = false;
    dc.SelectObject(StatusFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kStatusTextColor);
    dc.TextOut(0, 0, StatusText);
    dc.RestoreFont();
}

// The status panel.

void MapWindow::AttachStatusWindow(AstroStatusWindow& window)
{
    pStatusWindow = &window;
    window.Insert(PointerItem);
    window.Insert(TimeItem);
    window.Insert(OrientationItem);
    window.Insert(MoonItem);
    // A panel that comes after the last change would otherwise stay empty until the next.
    RefreshAllStatus();
}

void MapWindow::RefreshAllStatus()
{
    if (!pStatusWindow) {
        return;
    }
    // A view on the ground needs the Earth at the map's time for its centre and zenith.
    if (SolarSystemObject* origin = Collector.GetOrigin()) {
        origin->SetTime(Time);
    }
    TimeItem.Set(Time - Zone);
    OrientationItem.Set(*pOrientation);
    TellMoonItem();
}

void MapWindow::BringEarthAndSunToTime()
{
    // The planets' request does this only while the planets are shown.
    PlanetCatalogue& planets = Collector.GetPlanetCatalogue();
    for (unsigned place : {PlanetCatalogue::kEarthPlace, PlanetCatalogue::kSunPlace}) {
        if (SolarSystemObject* body = planets.GetSolarSystemObject(place)) {
            body->SetTime(Time);
        }
    }
}

bool MapWindow::SunIsUp()
{
    const PlanetView* sun = Collector.GetPlanetCatalogue().GetView(PlanetCatalogue::kSunPlace);
    if (!sun) {
        return false;
    }
    BringEarthAndSunToTime();
    return ObjectIsUp(*sun);
}

void MapWindow::TellMoonItem()
{
    PlanetCatalogue& planets = Collector.GetPlanetCatalogue();
    auto* moon = dynamic_cast<Moon*>(planets.GetSolarSystemObject(PlanetCatalogue::kMoonPlace));
    if (!moon) {
        return;
    }
    // The Moon's place, and with it its phase, is worked out from the Earth's and the Sun's.
    BringEarthAndSunToTime();
    moon->SetTime(Time);
    MoonItem.Set(*moon);
}

bool MapWindow::ShowPointerPosition(const TPoint& point)
{
    PolarCoord sky;
    if (!pTransformation || !pTransformation->ReverseTranslate(point, sky)) {
        PointerItem.Clear();
        return false;
    }
    const StellarCoord position(PolarCoord(PositiveDegreeAngle(sky.GetRA()), sky.GetDec()));
    if (!GetRotatingOrientation()) {
        PointerItem.Set(position);
        return true;
    }
    // Altitude and azimuth in the frame of the projection's zenith, whose RA runs from north
    // through west: the azimuth shown runs from north through east, as a compass reads.
    const PerspectiveModifier local(
        RotatingOrientationInfo::KeepOffPole(pTransformation->GetZenith()), PolarCoord(0.0, 90.0));
    PolarCoord horizontal;
    local.ChangePerspective(sky, horizontal);
    PointerItem.Set(position, PositiveDegreeAngle(360.0 - horizontal.GetRA().GetDegrees()),
                    horizontal.GetDec());
    return true;
}

// The horizon and the foreground.

void MapWindow::DrawHorizon(TDC& dc, const RotatingOrientationInfo& o, const Transformation& t,
                            const TRect& rect)
{
    const PolarCoord offset = o.GetZenithOffset();
    const double radius = t.GetProjector().GetFieldRadius();
    // The zenith distance of the view plus the radius: how far down the field reaches.
    if (offset.GetDec().GetDegrees() + radius < 90.0 - kHorizonMargin) {
        return;
    }
    const bool kept = pHorizonOrientation &&
                      pHorizonOrientation->GetFieldRadius() == o.GetFieldRadius() &&
                      pHorizonOrientation->GetZenithOffset() == offset && HorizonRect == rect;
    if (!kept) {
        // A plain copy, not a Clone: a clone would clip, and a view below the limit would
        // then never find its points kept.
        pHorizonOrientation = std::make_unique<RotatingOrientationInfo>(o);
        HorizonRect = rect;
        LoadHorizonPoints(t);
    }
    if (HorizonPoints.size() < 2) {
        return;
    }
    dc.SelectObject(TPen(kHorizonColor, Display.GetLineWidth(), PS_SOLID));
    dc.MoveTo(HorizonPoints.front());
    for (std::size_t i = 1; i < HorizonPoints.size(); ++i) {
        dc.LineTo(HorizonPoints[i]);
    }
    dc.RestorePen();
}

void MapWindow::LoadHorizonPoints(const Transformation& t)
{
    HorizonPoints.clear();
    // The horizon is altitude 0 in the local frame of the projection's zenith, in which the
    // centre of view stands at its azimuth and at a distance from the zenith.
    const PerspectiveModifier local(RotatingOrientationInfo::KeepOffPole(t.GetZenith()),
                                    PolarCoord(0.0, 90.0));
    PolarCoord centre;
    local.ChangePerspective(t.GetCenterOfView(), centre);
    const double reach = HorizonReach(90.0 - centre.GetDec().GetDegrees(), t.GetVisibleRadius());
    if (reach < 0.0) {
        return;
    }
    // As many points per degree as 200 over twice the field radius; both ends of the span
    // are points, and a whole circle closes on its first.
    const double radius = t.GetProjector().GetFieldRadius();
    const int count =
        std::max(2, int(std::ceil(2.0 * reach * kHorizonPoints / (2.0 * radius))) + 1);
    const double step = 2.0 * reach / (count - 1);
    const double first = centre.GetRA().GetDegrees() - reach;
    HorizonPoints.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        PolarCoord sky;
        local.ReversePerspective(
            PolarCoord(PositiveDegreeAngle(first + i * step), DegreeAngle(0.0)), sky);
        TPoint p;
        t.Translate(sky, p);
        HorizonPoints.push_back(p);
    }
}

double MapWindow::HorizonReach(double fromZenith, double visibleRadius)
{
    // A view that shows its whole hemisphere shows the horizon to its rim; the points just
    // behind the rim land on it, and a view of the zenith then closes the circle.
    const double radius = visibleRadius < 90.0 ? visibleRadius : 90.0 + kHorizonRimMargin;
    // A point of the horizon d degrees of azimuth from the centre's stands c from the
    // centre, where cos c = sin(fromZenith) cos d: in view while c is at most the radius.
    const double sine = std::sin(DegreesToRadians(fromZenith));
    const double cosine = std::cos(DegreesToRadians(radius));
    if (sine <= 0.0 || cosine <= -sine) {
        return cosine <= 0.0 ? 180.0 : -1.0;
    }
    if (cosine >= sine) {
        return -1.0;
    }
    return RadiansToDegrees(std::acos(cosine / sine));
}

void MapWindow::SetForegroundBitmap(const std::string& foreground, const std::string& mask)
{
    ForegroundFile = foreground;
    MaskFile = mask;
    bUseForeground = true;
    bForegroundProblemTold = false;
    DeleteForegroundBitmap();
}

void MapWindow::SetMaskBitmap(const std::string& mask)
{
    MaskFile = mask;
    bUseForeground = true;
    bForegroundProblemTold = false;
    DeleteForegroundBitmap();
}

void MapWindow::DeleteForegroundBitmap()
{
    pForegroundBitmap.reset();
    pMaskBitmap.reset();
}

namespace {

// A picture file's path with the host's logical prefixes resolved, and whether it is there.
bool FindPicture(const std::string& file, std::string& path)
{
    path = file;
    HostFile::ResolvePath(path, true, false);
    std::error_code error;
    return !file.empty() && std::filesystem::is_regular_file(path, error);
}

// Stretches `picture` over the whole of `bitmap`, in the host palette.
void StretchInto(TDC& model, TBitmap& bitmap, const TDib& picture, const TPalette& palette)
{
    TMemoryDC memory(model);
    memory.SelectObject(palette, true);
    memory.SelectObject(bitmap);
    memory.RealizePalette();
    memory.StretchDIBits(TRect(0, 0, bitmap.Width(), bitmap.Height()),
                         TRect(0, 0, picture.Width(), picture.Height()), picture, SRCCOPY);
}

} // namespace

void MapWindow::LoadForegroundBitmap(TDC& dc)
{
    if (ForegroundFile.empty()) {
        bUseForeground = false;
        return;
    }
    DeleteForegroundBitmap();

    // Told once per setting, so that a file looked for at every paint says so once.
    auto tell = [this](const char* what, const std::string& file) {
        if (!bForegroundProblemTold) {
            dbstream << "Foreground: " << what << " " << file << dbendl;
            bForegroundProblemTold = true;
        }
    };

    std::string path;
    if (!FindPicture(ForegroundFile, path)) {
        tell("no picture file", ForegroundFile);
        return;
    }
    const TDib picture(path);
    if (!picture.IsOK()) {
        tell("cannot read the picture", path);
        bUseForeground = false;
        return;
    }
    const TRect client = GetClientRect();
    if (client.IsEmpty()) {
        return;
    }
    const TPalette& palette = *Display.GetPalette();
    pForegroundBitmap = std::make_unique<TBitmap>(dc, client.Width(), client.Height());
    StretchInto(dc, *pForegroundBitmap, picture, palette);

    // The mask goes pixel for pixel over the foreground, so it takes the window's size too.
    // Without a mask the picture would hide the whole sky: no overlay, as for a picture that
    // cannot be read, but a missing file is looked for again.
    std::string maskPath;
    if (!FindPicture(MaskFile, maskPath)) {
        tell("no mask file", MaskFile);
        DeleteForegroundBitmap();
        if (MaskFile.empty()) {
            bUseForeground = false;
        }
        return;
    }
    const TDib mask(maskPath);
    if (!mask.IsOK()) {
        tell("cannot read the mask", maskPath);
        DeleteForegroundBitmap();
        bUseForeground = false;
        return;
    }
    pMaskBitmap = std::make_unique<TBitmap>(dc, client.Width(), client.Height());
    StretchInto(dc, *pMaskBitmap, mask, palette);

    // Where the mask is white the foreground becomes black, ready to be ORed over the sky.
    TMemoryDC maskDC(dc);
    maskDC.SelectObject(*pMaskBitmap);
    TMemoryDC foregroundDC(dc);
    foregroundDC.SelectObject(*pForegroundBitmap);
    foregroundDC.BitBlt(TRect(0, 0, client.Width(), client.Height()), maskDC, TPoint(0, 0),
                        kDestinationAndNotSource);
}

void MapWindow::MergeForeground(TDC& dc, const TRect& rect)
{
    if (!pForegroundBitmap) {
        LoadForegroundBitmap(dc);
    }
    if (!pForegroundBitmap || !pMaskBitmap) {
        return;
    }
    // The sky stays where the mask is white (index 255) and turns black (index 0) elsewhere;
    // the colours say so for a mask of one bit.
    TMemoryDC maskDC(dc);
    maskDC.SelectObject(*pMaskBitmap);
    const TColor text = dc.SetTextColor(TColor::PaletteIndex(0));
    const TColor background = dc.SetBkColor(TColor::PaletteIndex(255));
    dc.BitBlt(rect, maskDC, rect.TopLeft(), SRCAND);
    dc.SetTextColor(text);
    dc.SetBkColor(background);

    // The foreground, black where the sky shows, fills the black part.
    TMemoryDC foregroundDC(dc);
    foregroundDC.SelectObject(*Display.GetPalette(), true);
    foregroundDC.SelectObject(*pForegroundBitmap);
    foregroundDC.RealizePalette();
    dc.BitBlt(rect, foregroundDC, rect.TopLeft(), SRCPAINT);
}

void MapWindow::ClipAtHorizon(bool clip)
{
    if (RotatingOrientationInfo* ground = GetRotatingOrientation()) {
        ground->SetClipAtHorizon(clip);
    }
}

bool MapWindow::IsClippedAtHorizon() const
{
    const RotatingOrientationInfo* ground = GetRotatingOrientation();
    return ground && ground->GetClipAtHorizon();
}

RotatingOrientationInfo* MapWindow::GetRotatingOrientation() const
{
    if (pOrientation->GetType() != OrientationInfo::ROTATING) {
        return nullptr;
    }
    return dynamic_cast<RotatingOrientationInfo*>(pOrientation.get());
}

// Message handlers.

void MapWindow::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    bTransformationDirty = true;
    bGridDirty = true;
    InvalidateView();
    pMemoryDC.reset();
    FreeDrawBitmap();
    if (bUseForeground) {
        DeleteForegroundBitmap();
    }
}

bool MapWindow::EvEraseBkgnd(HDC)
{
    return true;
}

LRESULT MapWindow::EvShowStartingObject(WPARAM, LPARAM)
{
    // Taken off the member first: showing it may paint, and a paint would post it again.
    AstroObject* object = pStartingObject;
    pStartingObject = nullptr;
    if (object) {
        object->SetTime(Time);
        ShowObject(*object);
        object->ReleaseReference();
    }
    return 0;
}

// Catalogues the user loads.

bool MapWindow::LoadStars(TextFile& text)
{
    aVisibleObjects.Flush();
    bool loaded = Collector.LoadStars(text);
    MarkAllDirty();
    InvalidateView();
    return loaded;
}

bool MapWindow::LoadStarsFromBinaryFile(const std::string& name)
{
    aVisibleObjects.Flush();
    bool loaded = Collector.LoadStarsFromBinaryFile(name);
    MarkAllDirty();
    InvalidateView();
    return loaded;
}

// Changes of the view.

void MapWindow::InvalidateView()
{
    if (HWindow) {
        Invalidate(true);
    }
}

void MapWindow::MakeTimeCurrent()
{
    Time = AstroTime::GetTickCount();
}

void MapWindow::SetTime(const AstroTime& time)
{
    Time = time;
    bNearestDarkPending = false;
    bTimeDirty = true;
    bStatusDirty = true;
    Labels.SetDirty();
    InvalidateView();
}

void MapWindow::SetFieldRadius(double radius)
{
    if (radius == pOrientation->GetFieldRadius() || !(radius <= kMaximumFieldRadius)) {
        return;
    }
    pOrientation->SetFieldRadius(radius);
    bTransformationDirty = true;
    bGridDirty = true;
    InvalidateView();
    OrientationItem.Set(*pOrientation);
}

void MapWindow::SetLocation(const LatLong& location)
{
    RotatingOrientationInfo* ground = GetRotatingOrientation();
    if (!ground) {
        return;
    }
    ground->SetLocation(location);
    bTransformationDirty = true;
    bGridDirty = true;
    InvalidateView();
    OrientationItem.Set(*pOrientation);
}

void MapWindow::SetOrientation(const OrientationInfo& orientation)
{
    pOrientation = orientation.Clone();
    bTransformationDirty = true;
    bGridDirty = true;
    InvalidateView();
    OrientationItem.Set(*pOrientation);
}

void MapWindow::ChangeCenterOfView(const PolarCoord& centre)
{
    if (centre == pOrientation->GetCenterOfView()) {
        return;
    }
    LastTargetName.clear();
    if (bTimeDirty) {
        pPendingCenter = std::make_unique<PolarCoord>(centre);
    } else {
        pOrientation->SetCenterOfView(centre);
        bTransformationDirty = true;
        bGridDirty = true;
        OrientationItem.Set(*pOrientation);
    }
    InvalidateView();
}

void MapWindow::SetGridInfo(const GridInfo& grid)
{
    if (grid.nDecLines >= kMaximumGridLines || grid.nRALines >= kMaximumGridLines) {
        return;
    }
    Grid.SetFrom(grid);
    bGridDirty = true;
    InvalidateView();
}

void MapWindow::SetDisplayParameters(const DisplayParameters& parameters)
{
    // The surface, bits and projection belong to this map, not to the one copied from.
    Transformation* projection = Display.pTransformation;
    TDC* surface = Display.pDC;
    Display.Copy(parameters);
    Display.pTransformation = projection;
    Display.pDC = surface;
    GiveDisplayTheBits();
    MarkAllDirty();
    InvalidateView();
}

void MapWindow::SetStarDisplayParameters(const StarDisplayParameters& parameters)
{
    Display.SetStarDisplayParams(parameters);
    bForceReload = true;
    MarkAllDirty();
    InvalidateView();
}

void MapWindow::SetLocationName(const std::string& name)
{
    LocationName = name;
    bStatusDirty = true;
    Labels.SetDirty();
    InvalidateView();
}

void MapWindow::ShowMessierObjects(bool show)
{
    if (show != bShowMessier) {
        bShowMessier = show;
        Labels.SetDirty();
        InvalidateView();
    }
}

void MapWindow::ShowComets(bool show)
{
    if (show != bShowComets) {
        bShowComets = show;
        Labels.SetDirty();
        InvalidateView();
    }
}

void MapWindow::SetPlanetOptions(const PlanetOptions& options)
{
    Collector.GetPlanetCatalogue().SetOptions(options);
    Labels.SetDirty();
    InvalidateView();
    if (HWindow) {
        UpdateWindow();
    }
}

void MapWindow::ShowPlanets(bool show)
{
    if (show != bShowPlanets) {
        bShowPlanets = show;
        Labels.SetDirty();
        InvalidateView();
    }
}

void MapWindow::SetConstellationSettings(const ConstellationSettings& settings)
{
    ConstellationCatalogue& constellations = Collector.GetConstellationCatalogue();
    if (settings == constellations.GetSettings()) {
        return;
    }
    ShowWaitCursor();
    constellations.UseSettings(settings);
    constellations.Load();
    RestoreCursor();
    MarkAllDirty();
    InvalidateView();
}

ConstellationSettings MapWindow::GetConstellationSettings() const
{
    return Collector.GetConstellationCatalogue().GetSettings();
}

void MapWindow::Copy(MapWindow& other)
{
    SetDisplayParameters(other.Display);
    pOrientation = other.pOrientation->Clone();
    OrientationItem.Set(*pOrientation);
    SetTime(other.Time);
    SetGridInfo(other.Grid);
    SetConstellationSettings(other.GetConstellationSettings());
    MarkAllDirty();
    InvalidateView();
}

// Printing.

void MapWindow::StartPrinting(DisplayParameters& parameters)
{
    pTransformation.reset();
    Display.pTransformation = nullptr;
    SavedDisplay = Display;
    Display = parameters;
    MarkAllDirty();
    DrawAll();
}

void MapWindow::StopPrinting()
{
    Display = SavedDisplay;
    // The bitmap may have changed while the page was drawn.
    GiveDisplayTheBits();
    MarkAllDirty();
    InvalidateView();
    UpdateWindow();
}

// The wait cursor.

void MapWindow::ShowWaitCursor()
{
    if (nWaitCursors++ == 0) {
        SavedCursorModule = GetCursorModule();
        SavedCursorId = GetCursorResId();
        SetCursor(nullptr, TResId(IDC_WAIT));
    }
}

void MapWindow::RestoreCursor()
{
    if (nWaitCursors == 0) {
        return;
    }
    if (--nWaitCursors == 0) {
        SetCursor(SavedCursorModule, SavedCursorId);
    }
}

std::string MapWindow::GetLastTargetName() const
{
    if (!LastTargetName.empty()) {
        return LastTargetName;
    }
    return StellarCoord(pOrientation->GetCenterOfView()).GetDescription();
}

// State.

StateContainer& MapWindow::operator<<(StateContainer& sc) const
{
    return sc << NewLevel << AstroKey("Grid") << Grid << AstroKey("Orientation Type")
              << pOrientation->GetType() << AstroKey("Orientation") << *pOrientation
              << AstroKey("Constellations") << Collector.GetConstellationCatalogue()
              << AstroKey("Planets") << Collector.GetPlanetCatalogue() << AstroKey("Animation")
              << Animation << AstroKey("Time") << Time << AstroKey("TimeZone") << Zone
              << AstroKey("Show Nearest Dark Time At Startup") << bShowNearestDarkTime
              << AstroKey("Display") << Display << AstroKey("Messier") << bShowMessier
              << AstroKey("Comets") << bShowComets << AstroKey("Location Name") << LocationName
              << EndLevel;
}

StateContainer& MapWindow::operator>>(StateContainer& sc)
{
    GridInfo grid = Grid;
    int type = 0;
    sc >> GoToLevel >> AstroKey("Grid") >> grid >> AstroKey("Constellations") >>
        Collector.GetConstellationCatalogue() >> AstroKey("Planets") >>
        Collector.GetPlanetCatalogue() >> AstroKey("Animation") >> Animation >> AstroKey("Time") >>
        Time >> AstroKey("TimeZone") >> Zone >> AstroKey("Show Nearest Dark Time At Startup") >>
        bShowNearestDarkTime >> AstroKey("Display") >> Display >> AstroKey("Orientation Type") >>
        type >> AstroKey("Location Name") >> LocationName >> AstroKey("Messier") >> bShowMessier >>
        AstroKey("Comets") >> bShowComets;
    SetGridInfo(grid);
    ReadOrientation(sc, type);
    sc >> EndLevel;
    bNearestDarkPending = bShowNearestDarkTime;
    AfterRestore();
    return sc;
}

void MapWindow::SaveDefaultState(StateContainer& sc) const
{
    sc << AstroKey("Grid") << Grid << AstroKey("Orientation Type") << pOrientation->GetType()
       << AstroKey("Orientation") << *pOrientation << AstroKey("Constellations")
       << Collector.GetConstellationCatalogue() << AstroKey("Planets")
       << Collector.GetPlanetCatalogue() << AstroKey("Animation") << Animation
       << AstroKey("TimeZone") << Zone << AstroKey("Display") << Display << AstroKey("Messier")
       << bShowMessier << AstroKey("Comets") << bShowComets << AstroKey("Location Name")
       << LocationName;
}

void MapWindow::RestoreDefaultState(StateContainer& sc)
{
    GridInfo grid = Grid;
    int type = 0;
    sc >> AstroKey("Grid") >> grid >> AstroKey("Constellations") >>
        Collector.GetConstellationCatalogue() >> AstroKey("Planets") >>
        Collector.GetPlanetCatalogue() >> AstroKey("Animation") >> Animation >>
        AstroKey("TimeZone") >> Zone >> AstroKey("Display") >> Display >>
        AstroKey("Location Name") >> LocationName >> AstroKey("Messier") >> bShowMessier >>
        AstroKey("Comets") >> bShowComets >> AstroKey("Orientation Type") >> type;
    SetGridInfo(grid);
    ReadOrientation(sc, type);
    AfterRestore();
}

void MapWindow::ReadOrientation(StateContainer& sc, int type)
{
    // The object of the kind saved must exist before its key is read; any type but 0 is a view
    // on the ground.
    if (type == OrientationInfo::FIXED) {
        pOrientation = std::make_unique<FixedOrientationInfo>(Collector.GetOrigin());
    } else {
        pOrientation = std::make_unique<RotatingOrientationInfo>(Collector.GetOrigin());
    }
    sc >> AstroKey("Orientation") >> *pOrientation;
}

void MapWindow::AfterRestore()
{
    MarkAllDirty();
    RefreshAllStatus();
    InvalidateView();
}

StateContainer& operator<<(StateContainer& sc, const MapWindow& map)
{
    return map.operator<<(sc);
}

StateContainer& operator>>(StateContainer& sc, MapWindow& map)
{
    return map.operator>>(sc);
}
