#pragma once
// Where the parts of a printed star chart go on a page, and the chart's heading.
//
// The sky fills the page but for a band at the bottom, two inches high (or a third of the page
// when that is less), set off by a gap of a fifth of an inch. In the band the compass (the
// direction map) stands on the left, as wide as its disc needs, and the heading's lines are
// centred in the rest, a fifth of an inch to its right. All lengths are device units of the
// page; the same layout serves the printer and, through the preview context, the screen.
#include <optional>
#include <string>
#include <vector>

#include "platform/TFont.h"
#include "platform/TRect.h"

class DirectionDrawer;
class TDC;

class PrintPageLayout
{
public:
    PrintPageLayout() = default;
    // The compass keeps a pointer to the font this layout holds.
    PrintPageLayout(const PrintPageLayout&) = delete;
    PrintPageLayout& operator=(const PrintPageLayout&) = delete;

    // Lays out the page of `dc` (its HORZRES, VERTRES and resolution); gives `compass` its
    // letters' font, 0.14 inch high, and takes its width from it.
    void LayOut(TDC& dc, DirectionDrawer& compass);

    // The heading's lines in "Arial" a sixth of an inch high, black on white, each centred
    // across TextRect. When all of them fit the rest of the height is split above and below
    // them; otherwise they start at the top and what does not fit is cut off by the caller's
    // clipping. Returns where each line was drawn.
    std::vector<TPoint> DrawHeading(TDC& dc, const std::vector<std::string>& lines) const;

    const TRect& GetPageRect() const { return PageRect; }
    const TRect& GetSkyRect() const { return SkyRect; }
    const TRect& GetCompassRect() const { return CompassRect; }
    const TRect& GetTextRect() const { return TextRect; }
    // The height of the band below the sky.
    int GetBandHeight() const { return nBandHeight; }

private:
    TRect PageRect;
    TRect SkyRect;
    TRect CompassRect;
    TRect TextRect;
    int nBandHeight = 0;
    int nHeadingHeight = 0;
    std::optional<TFont> CompassFont;
};
