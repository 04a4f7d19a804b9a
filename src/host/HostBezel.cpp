#include "host/HostBezel.h"

#include "host/HostFrameAPI.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TWindow.h"

namespace {

// The four colours of a sunken edge, outer ring first.
const TColor kShadow(128, 128, 128);
const TColor kHighlight(255, 255, 255);
const TColor kDarkShadow(0, 0, 0);
const TColor kLight(192, 192, 192);

constexpr int kBezelWithoutFrame = 2;

// One ring of the edge, one pixel wide, just outside `inner`.
void Ring(TDC& dc, const TRect& inner, const TColor& upperLeft, const TColor& lowerRight)
{
    const TRect outer = inner.InflatedBy(1, 1);
    const TBrush dark(upperLeft);
    const TBrush light(lowerRight);
    dc.FillRect(TRect(outer.left, outer.top, outer.right, inner.top), dark);
    dc.FillRect(TRect(outer.left, inner.top, inner.left, outer.bottom), dark);
    dc.FillRect(TRect(inner.left, inner.bottom, outer.right, outer.bottom), light);
    dc.FillRect(TRect(inner.right, inner.top, outer.right, inner.bottom), light);
}

} // namespace

void DrawHostInnieBezel(TDC& dc, TWindow* child)
{
    if (!child || !child->HWindow) {
        return;
    }
    HostFrameAPI* frame = getHostFrameAPI();
    const int width = frame ? frame->GetMetric(kHostMetricBezelWidth) : kBezelWithoutFrame;
    TRect inner = child->GetRect();
    for (int ring = 0; ring < width; ++ring) {
        const bool outerRing = ring == width - 1;
        Ring(dc, inner, outerRing ? kShadow : kDarkShadow, outerRing ? kHighlight : kLight);
        inner = inner.InflatedBy(1, 1);
    }
}
