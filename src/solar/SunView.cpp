#include "solar/SunView.h"

#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TPen.h"

namespace {

// Half the disc's width in pixels, and the corner ellipse of the rounded rectangle, which is
// larger than the square so that the corners round it into a disc.
constexpr int kHalfSize = 6;
constexpr int kCornerWidth = 20;
constexpr int kCornerHeight = 40;

} // namespace

SunView::SunView() : PlanetView(ObjectType::Star, 311)
{}

void SunView::Draw(TDC& dc, DisplayParameters& /*parameters*/)
{
    const TPen pen(TColor::White, 1);
    const TBrush brush(TColor::White);
    dc.SelectObject(pen);
    dc.SelectObject(brush);
    dc.RoundRect(displayPoint.x - kHalfSize, displayPoint.y - kHalfSize, displayPoint.x + kHalfSize,
                 displayPoint.y + kHalfSize, kCornerWidth, kCornerHeight);
    dc.RestoreBrush();
    dc.RestorePen();
}
