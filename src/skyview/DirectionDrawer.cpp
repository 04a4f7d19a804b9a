#include "skyview/DirectionDrawer.h"

#include "platform/DeviceCaps.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "platform/TPen.h"
#include "projection/Transformation.h"
#include "skyview/MapWindow.h"

namespace {

// The disc reaches from the zenith to the horizon.
constexpr double kDiscRadius = 90.0;

// Above this Dec the zenith is so near the pole that "one degree north of it" would pass over
// the pole; the pole itself then gives north.
constexpr double kHighestZenithForOffset = 89.0;

// The corners of the main view, in order round it, with the directions that stand in for a
// corner off the view's hemisphere. Dec 90 in the view's frame is the centre of view.
struct CornerFallback
{
    double RA;
    double Dec;
};
constexpr CornerFallback kCornerFallbacks[4] = {
    {315.0, 90.0}, // top left
    {45.0, 90.0},  // top right
    {135.0, 90.0}, // bottom right
    {225.0, 90.0}, // bottom left
};

// Directions on the rim in the frame of the disc: north up, west right, south down, east left.
const PolarCoord kNorthOnRim(0.0, 0.0);
const PolarCoord kWestOnRim(90.0, 0.0);
const PolarCoord kSouthOnRim(180.0, 0.0);
const PolarCoord kEastOnRim(270.0, 0.0);

// Letters stand this many pixels off the rim.
constexpr int kLetterGap = 2;
constexpr int kWestLetterGap = 3;

// The zenith's cross spans a twelfth of the disc.
constexpr int kCrossFraction = 12;

} // namespace

DirectionDrawer::DirectionDrawer()
{
    FieldPoints.reserve(4);
}

DirectionDrawer::~DirectionDrawer() = default;

void DirectionDrawer::SetTextFont(const TFont& font, TDC& dc)
{
    pTextFont = &font;
    dc.SelectObject(font);
    const TSize extent = dc.GetTextExtent("W");
    dc.RestoreFont();
    nTextHeight = extent.cy;
    nTextWidth = extent.cx;
    bDirty = true;
}

int DirectionDrawer::GetDesiredHeight(unsigned width, const TDC& dc) const
{
    const int logX = dc.GetDeviceCaps(LOGPIXELSX);
    if (logX <= 0) {
        return 0;
    }
    int height = int(long(width) * dc.GetDeviceCaps(LOGPIXELSY) / logX);
    if (bShowHorizon) {
        height += 2 * nTextHeight;
    }
    return height;
}

int DirectionDrawer::GetDesiredWidth(unsigned height, const TDC& dc) const
{
    const int logY = dc.GetDeviceCaps(LOGPIXELSY);
    if (logY <= 0) {
        return 0;
    }
    int width = int(long(height) * dc.GetDeviceCaps(LOGPIXELSX) / logY);
    if (bShowHorizon) {
        width += 2 * nTextWidth;
    }
    return width;
}

void DirectionDrawer::SetCenter(const PolarCoord& centre)
{
    Center = centre;
    bDirty = true;
}

void DirectionDrawer::SetZenith(const PolarCoord& zenith)
{
    Zenith = zenith;
    bDirty = true;
}

void DirectionDrawer::SetField(const std::vector<PolarCoord>& field)
{
    Field = field;
    bDirty = true;
}

void DirectionDrawer::SetRect(const TRect& rect)
{
    Rect = rect;
    bDirty = true;
}

void DirectionDrawer::ShowHorizon(bool show)
{
    bShowHorizon = show;
    bDirty = true;
}

void DirectionDrawer::Set(const MapWindow& map)
{
    const Transformation* t = map.GetTransformation();
    if (!t) {
        return;
    }
    SetCenter(map.GetOrientation().GetCenterOfView());
    SetZenith(map.GetOrientation().GetZenith());

    const TRect& drawn = map.GetDisplayParameters().DrawRect;
    const TPoint corners[4] = {
        TPoint(drawn.left, drawn.top),
        TPoint(drawn.right, drawn.top),
        TPoint(drawn.right, drawn.bottom),
        TPoint(drawn.left, drawn.bottom),
    };
    std::vector<PolarCoord> field;
    field.reserve(4);
    for (int i = 0; i < 4; ++i) {
        const PolarCoord fallback(kCornerFallbacks[i].RA, kCornerFallbacks[i].Dec);
        field.push_back(GetCornerPoint(*t, corners[i], fallback));
    }
    SetField(field);
}

void DirectionDrawer::UpdateAll(const TDC& dc)
{
    if (!bDirty) {
        return;
    }
    UpdateFlatTransformation(dc);
    LoadFieldPoints(dc);
    bDirty = false;
}

void DirectionDrawer::UpdateFlatTransformation(const TDC& dc)
{
    pTransformation.reset();
    const double zenithDec = Zenith.GetDec().GetDegrees();
    const double ra = Zenith.GetRA().GetDegrees();
    // A direction a degree north of the zenith puts north at the top of the disc.
    const PolarCoord up = zenithDec <= kHighestZenithForOffset ? PolarCoord(ra, zenithDec + 1.0)
                                                               : PolarCoord(ra, 90.0);
    pTransformation =
        std::make_unique<FlatTransformation>(dc, GetCircleRect(), Zenith, kDiscRadius, up);
}

void DirectionDrawer::LoadFieldPoints(const TDC&)
{
    if (!pTransformation) {
        return;
    }
    if (!Field.empty()) {
        FieldPoints.clear();
        bool anyOnDisc = false;
        for (const PolarCoord& corner : Field) {
            TPoint point(0, 0);
            anyOnDisc = pTransformation->Translate(corner, point) || anyOnDisc;
            FieldPoints.push_back(point);
        }
        if (!anyOnDisc) {
            FieldPoints.clear();
        }
    }

    // The letters are placed even before there is a field, so that a disc drawn before the
    // map's first view has them round its rim rather than heaped in a corner.
    TPoint north;
    TPoint west;
    TPoint south;
    TPoint east;
    pTransformation->Translate(GetAbsCoord(*pTransformation, kNorthOnRim), north);
    pTransformation->Translate(GetAbsCoord(*pTransformation, kWestOnRim), west);
    pTransformation->Translate(GetAbsCoord(*pTransformation, kSouthOnRim), south);
    pTransformation->Translate(GetAbsCoord(*pTransformation, kEastOnRim), east);

    const int w = nTextWidth;
    const int h = nTextHeight;
    NorthPoint = TPoint(north.x - w / 2, north.y - (h + kLetterGap));
    EastPoint = TPoint(east.x - w, east.y - h / 2);
    WestPoint = TPoint(west.x + kWestLetterGap, west.y - h / 2);
    SouthPoint = TPoint(south.x - w / 2, south.y + kLetterGap);
}

TRect DirectionDrawer::GetCircleRect() const
{
    TRect r = Rect;
    if (bShowHorizon) {
        r = TRect(r.left + nTextWidth, r.top + nTextHeight, r.right - nTextWidth,
                  r.bottom - nTextHeight);
    }
    // Round on the screen, where the user sees it; on a printed page of square pixels it is
    // round as well.
    const DeviceCaps& screen = ScreenDeviceCaps();
    const double logX = screen.LogPixelsX;
    const double logY = screen.LogPixelsY;
    const double inchesWide = r.Width() / logX;
    const double inchesHigh = r.Height() / logY;
    const double ratio = logX / logY;

    TSize size = r.Size();
    if (inchesWide < inchesHigh) {
        size.cy = int(size.cx / ratio);
    } else {
        size.cx = int(size.cy * ratio);
    }
    const int left = r.left + (r.Width() - size.cx) / 2;
    const int top = r.top + (r.Height() - size.cy) / 2;
    return TRect(TPoint(left, top), size);
}

PolarCoord DirectionDrawer::GetCornerPoint(const Transformation& t, const TPoint& corner,
                                           const PolarCoord& fallback)
{
    PolarCoord result;
    if (!t.ReverseTranslate(corner, result)) {
        t.GetModifier().ReversePerspective(fallback, result);
    }
    return result;
}

PolarCoord DirectionDrawer::GetAbsCoord(const FlatTransformation& t, const PolarCoord& discCoord)
{
    PolarCoord sky;
    t.GetModifier().ReversePerspective(discCoord, sky);
    return sky;
}

bool DirectionDrawer::ScreenToPolar(const TDC& dc, const TPoint& point, PolarCoord& coord)
{
    UpdateAll(dc);
    // A drawer with no room for a disc has no directions to give.
    if (GetCircleRect().IsEmpty()) {
        return false;
    }
    return pTransformation && pTransformation->ReverseTranslate(point, coord);
}

void DirectionDrawer::Paint(TDC& dc, const TRect&)
{
    UpdateAll(dc);
    const TRect circle = GetCircleRect();

    if (bShowHorizon) {
        dc.SelectObject(TPen(HorizonColor, nLineWidth, PS_SOLID));
        // Start and end both at (0, 0): the whole ellipse.
        dc.Arc(circle, TPoint(0, 0), TPoint(0, 0));
        dc.RestorePen();
        if (pTextFont) {
            dc.SelectObject(*pTextFont);
            dc.SetTextColor(TextColor);
            dc.SetBkColor(TextBackground);
            dc.SetBkMode(nBackgroundMode);
            dc.TextOut(NorthPoint, "N");
            dc.TextOut(WestPoint, "W");
            dc.TextOut(SouthPoint, "S");
            dc.TextOut(EastPoint, "E");
            dc.RestoreFont();
        }
    }

    dc.SelectObject(TPen(FieldColor, nLineWidth, PS_SOLID));
    if (!FieldPoints.empty()) {
        dc.MoveTo(FieldPoints.front());
        for (std::size_t i = 1; i < FieldPoints.size(); ++i) {
            dc.LineTo(FieldPoints[i]);
        }
        dc.LineTo(FieldPoints.front());
    }

    // The zenith's cross.
    dc.SelectObject(TPen(HorizonColor, nLineWidth, PS_SOLID));
    const int x = circle.left + circle.Width() / 2;
    const int y = circle.top + circle.Height() / 2;
    const int a = circle.Width() / kCrossFraction;
    const int b = circle.Height() / kCrossFraction;
    dc.MoveTo(x - a / 2, y);
    dc.LineTo(x + a / 2 + 1, y);
    dc.MoveTo(x, y - b / 2);
    dc.LineTo(x, y + b / 2 + 1);
    dc.RestorePen();
}
