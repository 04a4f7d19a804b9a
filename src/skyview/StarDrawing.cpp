#include "skyview/StarDrawing.h"

#include <cstddef>

#include "platform/Gdi.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TPen.h"
#include "skyview/DisplayParameters.h"

namespace {

// The largest star written straight into the bits; larger ones need the uneven shape.
constexpr unsigned kLargestFastStar = 6;
// From this size on a ray star is uneven.
constexpr unsigned kSmallestUnevenStar = 8;
// A star of this size is two pixels side by side.
constexpr unsigned kPairStar = 2;

// Length of each of the eight rays of a star of `size` pixels.
int ArmOf(unsigned size)
{
    return int((size + 0.5) * 0.5);
}

// The fast path keeps the star's whole extent clear of the four edges. A negative coordinate
// and a bitmap smaller than the star fail the test.
bool TakesFastPath(const DisplayParameters& parameters, int x, int y, unsigned size)
{
    if (parameters.pFastBits == nullptr || parameters.pFastTopRow == nullptr ||
        size > kLargestFastStar) {
        return false;
    }
    const long long s = size;
    const long long width = parameters.FastHeader.biWidth;
    const long long height = parameters.FastHeader.biHeight;
    return x > s && y > s && x < width - s && y < height - s;
}

void DrawFast(const DisplayParameters& parameters, int x, int y, unsigned size,
              unsigned paletteIndex)
{
    const std::ptrdiff_t w = parameters.FastHeader.biWidth;
    BYTE* p = parameters.pFastTopRow - std::ptrdiff_t(y) * w + x;
    const BYTE index = BYTE(paletteIndex);
    if (size == kPairStar) {
        // A faint star does not cover what is already drawn.
        const BYTE sky = BYTE(parameters.nBackgroundIndex);
        if (p[0] == sky) {
            p[0] = index;
        }
        if (p[1] == sky) {
            p[1] = index;
        }
        return;
    }
    // Rows lie w bytes apart, the bottom row first: -w is one row down the picture.
    const int arm = ArmOf(size);
    for (std::ptrdiff_t d = 1; d <= arm; ++d) {
        p[-d] = index;
        p[-d * w - d] = index;
        p[-d * w] = index;
        p[-d * w + d] = index;
        p[d] = index;
        p[d * w + d] = index;
        p[d * w] = index;
        p[d * w - d] = index;
    }
}

void DrawSlowEven(HDC dc, int x, int y, int arm, COLORREF color)
{
    for (int d = 1; d <= arm; ++d) {
        SetPixel(dc, x - d, y, color);
        SetPixel(dc, x - d, y - d, color);
        SetPixel(dc, x, y - d, color);
        SetPixel(dc, x + d, y - d, color);
        SetPixel(dc, x + d, y, color);
        SetPixel(dc, x + d, y + d, color);
        SetPixel(dc, x, y + d, color);
        SetPixel(dc, x - d, y + d, color);
    }
}

// Large stars: long lower diagonals, shorter upper diagonals, shortest straight rays.
void DrawSlowUneven(HDC dc, int x, int y, int arm, COLORREF color)
{
    const int straight = int(arm * 2 / 3.0);
    const int upper = int(arm * 3 * 0.25);
    for (int d = 1; d <= arm; ++d) {
        SetPixel(dc, x + d, y + d, color);
        SetPixel(dc, x - d, y + d, color);
    }
    for (int d = 1; d <= straight; ++d) {
        SetPixel(dc, x, y + d, color);
    }
    for (int d = 1; d <= upper; ++d) {
        SetPixel(dc, x - d, y - d, color);
        SetPixel(dc, x + d, y - d, color);
    }
    for (int d = 1; d <= straight; ++d) {
        SetPixel(dc, x - d, y, color);
        SetPixel(dc, x + d, y, color);
        SetPixel(dc, x, y - d, color);
    }
}

} // namespace

void DrawRayStar(DisplayParameters& parameters, int x, int y, double magnitude, TColor color,
                 unsigned paletteIndex)
{
    const unsigned size = parameters.GetSizeFromMagnitude(magnitude);
    if (TakesFastPath(parameters, x, y, size)) {
        DrawFast(parameters, x, y, size, paletteIndex);
        return;
    }
    HDC dc = parameters.pDC;
    if (dc == nullptr) {
        return;
    }
    if (size == kPairStar) {
        SetPixel(dc, x, y, color);
        SetPixel(dc, x + 1, y, color);
    } else if (size < kSmallestUnevenStar) {
        DrawSlowEven(dc, x, y, ArmOf(size), color);
    } else {
        DrawSlowUneven(dc, x, y, ArmOf(size), color);
    }
}

void DrawRoundStar(DisplayParameters& parameters, const TPoint& point, double magnitude,
                   TColor color)
{
    TDC* dc = parameters.pDC;
    if (dc == nullptr) {
        return;
    }
    const unsigned size = parameters.GetSizeFromMagnitude(magnitude);
    const int x = point.x;
    const int y = point.y;
    if (size < kPairStar) {
        return;
    }
    if (size == kPairStar) {
        SetPixel(*dc, x, y, color);
        SetPixel(*dc, x + 1, y, color);
        return;
    }
    if (size == 3) {
        for (int row = y - 1; row <= y + 1; ++row) {
            for (int column = x - 1; column <= x + 1; ++column) {
                SetPixel(*dc, column, row, color);
            }
        }
        return;
    }
    const int r = int(size / 2);
    dc->SelectObject(TPen(color, 1, PS_SOLID));
    dc->SelectObject(TBrush(color));
    // Both radial points at the origin make the pie a whole ellipse.
    Pie(*dc, x - r, y - r, x + r, y + r, 0, 0, 0, 0);
    dc->RestoreBrush();
    dc->RestorePen();
}
