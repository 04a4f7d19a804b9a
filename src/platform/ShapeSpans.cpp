#include "platform/ShapeSpans.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

// Floor and ceiling of a / 2 for any sign.
std::int64_t FloorHalf(std::int64_t a)
{
    return a >= 0 ? a / 2 : -((-a + 1) / 2);
}

std::int64_t CeilHalf(std::int64_t a)
{
    return -FloorHalf(-a);
}

} // namespace

ShapeSpans::ShapeSpans(Kind kind, const TRect& box, int cornerWidth, int cornerHeight)
    : ShapeKind(kind), Box(box.Normalized()), nCornerWidth(cornerWidth), nCornerHeight(cornerHeight)
{
    if (Box.IsEmpty()) {
        Box = TRect();
        return;
    }
    aRows.resize(std::size_t(Box.Height()));
    for (int y = Box.top; y < Box.bottom; ++y) {
        Run& run = aRows[std::size_t(y - Box.top)];
        switch (ShapeKind) {
        case Kind::Rectangle:
            run = Run{Box.left, Box.right};
            break;
        case Kind::Ellipse:
            run = EllipseRun(Box, y);
            break;
        case Kind::RoundRect: {
            int cw = nCornerWidth, ch = nCornerHeight;
            bool topZone = y < Box.top + ch / 2;
            bool bottomZone = y >= Box.bottom - ch / 2;
            if (!topZone && !bottomZone) {
                run = Run{Box.left, Box.right};
                break;
            }
            int cornerTop = topZone ? Box.top : Box.bottom - ch;
            Run left = EllipseRun(TRect(Box.left, cornerTop, Box.left + cw, cornerTop + ch), y);
            Run right = EllipseRun(TRect(Box.right - cw, cornerTop, Box.right, cornerTop + ch), y);
            run = left.IsEmpty() || right.IsEmpty() ? Run{} : Run{left.Left, right.Right};
            break;
        }
        }
    }
}

ShapeSpans ShapeSpans::Rectangle(const TRect& box)
{
    return ShapeSpans(Kind::Rectangle, box, 0, 0);
}

ShapeSpans ShapeSpans::Ellipse(const TRect& box)
{
    return ShapeSpans(Kind::Ellipse, box, 0, 0);
}

ShapeSpans ShapeSpans::RoundRect(const TRect& box, int cornerWidth, int cornerHeight)
{
    TRect b = box.Normalized();
    int cw = std::min(std::abs(cornerWidth), b.Width());
    int ch = std::min(std::abs(cornerHeight), b.Height());
    if (cw == 0 || ch == 0) {
        return Rectangle(b);
    }
    if (cw == b.Width() && ch == b.Height()) {
        return Ellipse(b);
    }
    return ShapeSpans(Kind::RoundRect, b, cw, ch);
}

ShapeSpans::Run ShapeSpans::At(int y) const
{
    if (y < Box.top || y >= Box.bottom) {
        return Run{};
    }
    return aRows[std::size_t(y - Box.top)];
}

ShapeSpans ShapeSpans::Inset(int d) const
{
    TRect inner(Box.left + d, Box.top + d, Box.right - d, Box.bottom - d);
    if (inner.IsEmpty()) {
        return Rectangle(TRect());
    }
    switch (ShapeKind) {
    case Kind::Rectangle:
        return Rectangle(inner);
    case Kind::Ellipse:
        return Ellipse(inner);
    case Kind::RoundRect:
        break;
    }
    return RoundRect(inner, std::max(nCornerWidth - 2 * d, 0), std::max(nCornerHeight - 2 * d, 0));
}

// The pixels x of row y whose centre (x + 0.5, y + 0.5) satisfies, with the box's centre c and
// half sizes a and b: ((x + 0.5 - cx) / a)^2 + ((y + 0.5 - cy) / b)^2 <= 1. In doubled
// coordinates every quantity is an integer, so the test is exact.
ShapeSpans::Run ShapeSpans::EllipseRun(const TRect& box, int y)
{
    std::int64_t w = box.Width(), h = box.Height();
    if (w <= 0 || h <= 0 || y < box.top || y >= box.bottom) {
        return Run{};
    }
    std::int64_t v = 2 * std::int64_t(y) + 1 - (std::int64_t(box.top) + box.bottom);
    std::int64_t limit = w * w * (h * h - v * v);
    if (limit < 0) {
        return Run{};
    }
    // The largest u with u^2 h^2 <= limit.
    auto fits = [&](std::int64_t u) { return u * u * h * h <= limit; };
    std::int64_t u = std::int64_t(std::sqrt(double(limit)) / double(h));
    while (u > 0 && !fits(u)) {
        --u;
    }
    while (fits(u + 1)) {
        ++u;
    }
    std::int64_t sum = std::int64_t(box.left) + box.right;
    std::int64_t first = CeilHalf(sum - 1 - u);
    std::int64_t last = FloorHalf(sum - 1 + u);
    if (first > last) {
        return Run{};
    }
    return Run{int(first), int(last + 1)};
}
