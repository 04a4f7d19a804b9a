#pragma once
// What of a view from the ground lies below the horizon, in pixels of the view's projection.
//
// The projection shows the hemisphere round the centre of view as a disc (Projector). A point
// of the disc is ground when its direction makes more than a right angle with the zenith. A
// point off the disc shows no direction at all; it takes the side of the rim straight out from
// the centre, so the corners of a wide view are ground below and sky above, and a view of the
// zenith, whose rim is the horizon, stands round in a frame of ground.
//
// While the centre of view is above the horizon the sky of a row is one run of pixels round
// the column where the directions stand highest, and its ends are found by halving: a row
// costs a few dozen tests, not one per pixel.
#include "coords/RectCoord.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"

class TBrush;
class TDC;
class Transformation;

class HorizonGround
{
public:
    // The ground of `t`, whose zenith is the observer's.
    explicit HorizonGround(const Transformation& t);

    // Whether the point is ground.
    bool Covers(const TPoint& point) const;
    // Paints the ground within `rect` with the brush.
    void Fill(TDC& dc, const TRect& rect, const TBrush& brush) const;

private:
    // The columns [left, right) of row `y` within `area` that show sky; left == right when
    // none does.
    void FindSky(int y, const TRect& area, int& left, int& right) const;

    TPoint CenterPoint;
    // Device pixels per unit offset on the sphere, across and down.
    double XScale = 1.0;
    double YScale = 1.0;
    // The zenith in the frame of the view: x right, y up, z towards the viewer.
    RectCoord Zenith;
};
