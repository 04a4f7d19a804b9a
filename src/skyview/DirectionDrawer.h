#pragma once
// The small overview map of where the main view looks: the whole sky above the observer as a
// disc, zenith in the middle, horizon on the rim and north at the top, with the compass
// letters round the rim and the outline of the main view's field inside. West stands to the
// right and east to the left, because the disc shows the sky as seen from below.
//
// The disc is an azimuthal equidistant map (FlatTransformation, field radius 90 degrees), so
// distances from the zenith stay true out to the horizon. The drawer knows no window: it draws
// on any device context into the rectangle it is given, which makes it serve both the direction
// window and the printed page. Angles are degrees in the sky frame of the map (equatorial).
#include <memory>
#include <vector>

#include "coords/PolarCoord.h"
#include "platform/TColor.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "projection/FlatTransformation.h"

class MapWindow;
class TDC;
class TFont;
class Transformation;

class DirectionDrawer
{
public:
    DirectionDrawer();
    ~DirectionDrawer();
    DirectionDrawer(const DirectionDrawer&) = delete;
    DirectionDrawer& operator=(const DirectionDrawer&) = delete;

    // The letters' font, which the caller keeps alive; measures "W" in it on `dc`.
    void SetTextFont(const TFont& font, TDC& dc);
    // The size that gives a round disc on `dc` for a given width or height, with room for the
    // letters when the horizon is shown.
    int GetDesiredHeight(unsigned width, const TDC& dc) const;
    int GetDesiredWidth(unsigned height, const TDC& dc) const;

    void SetCenter(const PolarCoord& centre);
    void SetZenith(const PolarCoord& zenith);
    // The sky directions of the main view's corners, in order round the view.
    void SetField(const std::vector<PolarCoord>& field);
    void SetRect(const TRect& rect);
    const TRect& GetRect() const { return Rect; }

    void SetTextColor(const TColor& color) { TextColor = color; }
    void SetTextBackground(const TColor& color) { TextBackground = color; }
    void SetFieldColor(const TColor& color) { FieldColor = color; }
    void SetHorizonColor(const TColor& color) { HorizonColor = color; }
    // TRANSPARENT (1) or OPAQUE (2), for the letters.
    void SetBackgroundMode(int mode) { nBackgroundMode = mode; }
    // Draws the rim and the letters and keeps room for the letters round the disc.
    void ShowHorizon(bool show);

    // Takes centre, zenith and the corners of the field from the map's last draw; nothing
    // before the map has drawn.
    void Set(const MapWindow& map);

    // Rebuilds the disc's projection and the points when something changed.
    void UpdateAll(const TDC& dc);
    void UpdateFlatTransformation(const TDC& dc);
    void LoadFieldPoints(const TDC& dc);

    // The square of the rectangle (round on the screen) that the disc fills.
    TRect GetCircleRect() const;
    // The sky direction of one corner of a view: the corner's own, or, when the corner lies
    // off the hemisphere of the view, `fallback` (in the view's frame) turned into the sky.
    static PolarCoord GetCornerPoint(const Transformation& t, const TPoint& corner,
                                     const PolarCoord& fallback);
    // The sky direction of a direction in the frame of the disc (RA round the zenith from
    // north, Dec up from the horizon).
    static PolarCoord GetAbsCoord(const FlatTransformation& t, const PolarCoord& discCoord);
    // The sky direction of a point of the device; false outside the disc.
    bool ScreenToPolar(const TDC& dc, const TPoint& point, PolarCoord& coord);

    // Draws the rim, the letters, the outline of the field and a cross at the zenith.
    void Paint(TDC& dc, const TRect& rect);
    // Lines are one pixel wide unless a page asks for wider ones.
    void SetLineWidth(int width) { nLineWidth = width; }

    // What the drawer holds, for those who place things on the disc.
    const PolarCoord& GetCenter() const { return Center; }
    const PolarCoord& GetZenith() const { return Zenith; }
    const std::vector<PolarCoord>& GetField() const { return Field; }
    // Points of the field's corners on the disc; empty when none of them could be placed.
    const std::vector<TPoint>& GetFieldPoints() const { return FieldPoints; }
    // Top-left corners of the letters N, W, S and E.
    const TPoint& GetNorthPoint() const { return NorthPoint; }
    const TPoint& GetWestPoint() const { return WestPoint; }
    const TPoint& GetSouthPoint() const { return SouthPoint; }
    const TPoint& GetEastPoint() const { return EastPoint; }
    int GetTextHeight() const { return nTextHeight; }
    int GetTextWidth() const { return nTextWidth; }
    bool IsShowingHorizon() const { return bShowHorizon; }
    bool IsDirty() const { return bDirty; }
    // The disc's projection; null until the first update.
    const FlatTransformation* GetTransformation() const { return pTransformation.get(); }

private:
    TRect Rect;
    const TFont* pTextFont = nullptr;
    TColor TextColor{0, 0, 0};
    TColor TextBackground{255, 255, 255};
    TColor FieldColor{0, 0, 255};
    TColor HorizonColor{255, 0, 255};
    int nBackgroundMode = 1;
    int nLineWidth = 1;
    std::unique_ptr<FlatTransformation> pTransformation;
    PolarCoord Zenith;
    PolarCoord Center;
    bool bDirty = true;
    int nTextHeight = 0;
    int nTextWidth = 0;
    bool bShowHorizon = true;
    TPoint NorthPoint;
    TPoint WestPoint;
    TPoint SouthPoint;
    TPoint EastPoint;
    std::vector<PolarCoord> Field;
    std::vector<TPoint> FieldPoints;
};
