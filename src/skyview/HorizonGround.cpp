#include "skyview/HorizonGround.h"

#include <algorithm>
#include <cmath>

#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "projection/Transformation.h"

namespace {

// Off the disc, what lies beyond a rim less than a degree above the horizon counts as ground
// (the sine of a degree): a view of the zenith stands wholly in its frame.
constexpr double kRimTolerance = 0.0174524;

} // namespace

HorizonGround::HorizonGround(const Transformation& t)
    : CenterPoint(t.GetProjector().GetCenterPoint()),
      XScale(t.GetProjector().GetScale() * t.GetProjector().GetXAspect()),
      YScale(t.GetProjector().GetScale() * t.GetProjector().GetYAspect())
{
    PolarCoord zenith;
    t.GetModifier().ChangePerspective(t.GetZenith(), zenith);
    Zenith = Transformation::GetRectCoord(zenith);
}

bool HorizonGround::Covers(const TPoint& point) const
{
    // The offset from the centre on the unit sphere, y up.
    const double x = (point.x - CenterPoint.x) / XScale;
    const double y = (CenterPoint.y - point.y) / YScale;
    const double rim = x * x + y * y;
    if (!(rim < 1.0)) {
        // Off the disc: ground where the rim straight out from the centre is.
        return (Zenith.GetX() * x + Zenith.GetY() * y) / std::sqrt(rim) < kRimTolerance;
    }
    const double height =
        Zenith.GetX() * x + Zenith.GetY() * y + Zenith.GetZ() * std::sqrt(1.0 - rim);
    return height < 0.0;
}

void HorizonGround::FindSky(int y, const TRect& area, int& left, int& right) const
{
    // The height above the horizon along the row is a x + c sqrt(w^2 - x^2) + b y, highest
    // where x / w = a / sqrt(a^2 + c^2); with the centre above the horizon (c > 0) it falls
    // on both sides of that column, and off the disc the rim's sinks further, so the sky is
    // one run round it.
    const double a = Zenith.GetX();
    const double c = Zenith.GetZ();
    const double norm = std::hypot(a, c);
    const double dy = (CenterPoint.y - y) / YScale;
    const double half = std::sqrt(std::max(0.0, 1.0 - dy * dy));
    const double best = norm > 0.0 ? CenterPoint.x + a / norm * half * XScale : CenterPoint.x;
    const int peak = std::clamp(int(std::floor(best)), int(area.left), int(area.right) - 1);
    int top = peak;
    if (Covers(TPoint(top, y)) && (top + 1 >= area.right || Covers(TPoint(++top, y)))) {
        left = right = area.left;
        return;
    }
    // The first sky column from the left, and the first ground column after the run.
    int low = area.left;
    int high = top;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (Covers(TPoint(middle, y))) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    left = low;
    low = top + 1;
    high = area.right;
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (Covers(TPoint(middle, y))) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    right = low;
}

void HorizonGround::Fill(TDC& dc, const TRect& rect, const TBrush& brush) const
{
    if (rect.IsEmpty()) {
        return;
    }
    for (int y = rect.top; y < rect.bottom; ++y) {
        if (Zenith.GetZ() < 0.0) {
            // A centre of view below the horizon, which a view kept above it never has: the
            // sky of a row may then lie in two runs, and each pixel is asked.
            for (int x = rect.left; x < rect.right;) {
                const int start = x;
                while (x < rect.right && Covers(TPoint(x, y))) {
                    ++x;
                }
                dc.FillRect(TRect(start, y, x, y + 1), brush);
                while (x < rect.right && !Covers(TPoint(x, y))) {
                    ++x;
                }
            }
            continue;
        }
        int left = 0;
        int right = 0;
        FindSky(y, rect, left, right);
        if (left == right) {
            dc.FillRect(TRect(rect.left, y, rect.right, y + 1), brush);
            continue;
        }
        if (left > rect.left) {
            dc.FillRect(TRect(rect.left, y, left, y + 1), brush);
        }
        if (right < rect.right) {
            dc.FillRect(TRect(right, y, rect.right, y + 1), brush);
        }
    }
}
