#pragma once
// The rubber band of a zoom: the rectangle from the point where the left button went down to
// the pointer, shown by inverting the pixels of the window, so that drawing the same rectangle
// again takes it away. It draws straight onto the window, not into the map's bitmap; a repaint
// of the map wipes it.
//
// The rectangle is not ordered: a band drawn up or to the left has a negative width or height,
// shows nothing and never zooms.
#include "platform/TPoint.h"
#include "platform/TRect.h"

class MapWindow;

class MouseDragger
{
public:
    explicit MouseDragger(MapWindow& window) : pWindow(&window) {}

    // Both corners at the point.
    void SetStart(const TPoint& point) { Start = End = point; }
    void SetEnd(const TPoint& point) { End = point; }
    // The start as top left and the end as bottom right, in window pixels.
    TRect GetRect() const { return TRect(Start.x, Start.y, End.x, End.y); }
    // Takes the band last drawn away and draws the present one.
    void Draw();

    const TRect& GetLastRect() const { return LastRect; }

private:
    TPoint Start;
    TPoint End;
    TRect LastRect;
    MapWindow* pWindow;
};
