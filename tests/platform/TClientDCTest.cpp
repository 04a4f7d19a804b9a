// A client context on a part of a surface, as a window's context is: drawing counts from the
// part's corner and never leaves it, whatever clip region is chosen.
#include <gtest/gtest.h>

#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TClientDC.h"
#include "platform/TMemoryDC.h"
#include "platform/TRegion.h"

namespace {

// A target that is the part (10, 10) to (30, 25) of a larger surface, with its corner at
// (10, 10); the part below y = 20 is hidden, as a parent's edge would hide it.
class Part : public DrawingTarget
{
public:
    Surface Pixels{40, 40, PixelFormat::Rgb32};
    int nDone = 0;
    Surface& GetDrawingSurface() override { return Pixels; }
    std::optional<DrawingArea> GetDrawingArea() const override
    {
        return DrawingArea{TPoint(10, 10), TRect(10, 10, 30, 20)};
    }
    void DrawingDone() override { ++nDone; }
};

const COLORREF kRed = RGB(255, 0, 0);

TEST(ClientArea, DrawingCountsFromTheCornerAndStaysInside)
{
    Part part;
    {
        TClientDC dc(part);
        dc.SetPixel(0, 0, TColor(kRed));
        EXPECT_EQ(dc.GetPixel(0, 0), TColor(kRed));
        dc.FillRect(TRect(-100, -100, 100, 100), TBrush(TColor(0, 0, 255)));
    }
    EXPECT_EQ(part.nDone, 1) << "the target hears that the drawing is done";
    EXPECT_EQ(part.Pixels.ColorAt(10, 10), RGB(0, 0, 255));
    EXPECT_EQ(part.Pixels.ColorAt(29, 19), RGB(0, 0, 255));
    EXPECT_EQ(part.Pixels.ColorAt(9, 10), RGB(0, 0, 0)) << "left of the part";
    EXPECT_EQ(part.Pixels.ColorAt(30, 15), RGB(0, 0, 0)) << "right of the part";
    EXPECT_EQ(part.Pixels.ColorAt(15, 20), RGB(0, 0, 0)) << "the hidden lower part";
}

TEST(ClientArea, ClipRegionsAreInTheContextsCoordinatesAndCannotWidenIt)
{
    Part part;
    TClientDC dc(part);
    EXPECT_EQ(dc.GetClipBox(), TRect(0, 0, 20, 10));
    dc.SelectClipRgn(TRegion(TRect(2, 2, 6, 6)));
    EXPECT_EQ(dc.GetClipBox(), TRect(2, 2, 6, 6));
    dc.FillRect(TRect(0, 0, 20, 20), TBrush(TColor(kRed)));
    EXPECT_EQ(part.Pixels.ColorAt(12, 12), kRed);
    EXPECT_EQ(part.Pixels.ColorAt(11, 11), RGB(0, 0, 0));
    EXPECT_EQ(part.Pixels.ColorAt(16, 16), RGB(0, 0, 0));

    // Taking the clip region away leaves the part's own edge.
    dc.SelectClipRgn(nullptr);
    dc.FillRect(TRect(-50, -50, 50, 50), TBrush(TColor(0, 255, 0)));
    EXPECT_EQ(part.Pixels.ColorAt(9, 9), RGB(0, 0, 0));
    EXPECT_EQ(part.Pixels.ColorAt(29, 19), RGB(0, 255, 0));
    EXPECT_EQ(dc.SelectClipRgn(TRegion(TRect(100, 100, 110, 110))), NULLREGION);
}

} // namespace
