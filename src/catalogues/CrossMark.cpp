#include "catalogues/CrossMark.h"

#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/DisplayParameters.h"

namespace {

constexpr const char* kMark = "X";

// One font for every mark, and the offset from the top left of the letter to its middle,
// measured at the first draw and kept for all later ones.
struct SharedMark
{
    TFont Font{
        "Arial",        10, 0, 0, 0, FW_NORMAL, DEFAULT_PITCH | FF_DONTCARE, false, false, false,
        DEFAULT_CHARSET};
    bool bMeasured = false;
    TPoint Offset;
};

SharedMark& Mark()
{
    static SharedMark mark;
    return mark;
}

} // namespace

void CrossMark::Draw(TDC& dc, const TPoint& centre, const DisplayParameters& parameters)
{
    SharedMark& mark = Mark();
    dc.SelectObject(mark.Font);
    if (!mark.bMeasured) {
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(metrics);
        const TSize extent = dc.GetTextExtent(kMark);
        mark.Offset = TPoint((extent.cx - int(metrics.tmInternalLeading)) / 2,
                             (extent.cy - int(metrics.tmDescent)) / 2);
        mark.bMeasured = true;
    }
    dc.SetTextColor(parameters.GetTextColor(TColor::LtYellow));
    dc.SetBkMode(TRANSPARENT);
    dc.TextOut(centre - mark.Offset, kMark);
    dc.RestoreFont();
}
