#include "skyview/PrintPageLayout.h"

#include "platform/TDC.h"
#include "skyview/DirectionDrawer.h"

namespace {

// Inches, turned into device units by the page's resolution.
constexpr double kCompassLetterInches = 0.14;
constexpr double kBandInches = 2.0;
constexpr double kGapInches = 0.2;
// The heading's letters are a sixth of an inch high.
constexpr int kHeadingPerInch = 6;
// The heading has this many lines.
constexpr int kHeadingLines = 5;

TFont ArialOfHeight(int height)
{
    return TFont("Arial", height, 0, 0, 0, FW_NORMAL, 0, false, false, false, DEFAULT_CHARSET);
}

} // namespace

void PrintPageLayout::LayOut(TDC& dc, DirectionDrawer& compass)
{
    const int pageWidth = dc.GetDeviceCaps(HORZRES);
    const int pageHeight = dc.GetDeviceCaps(VERTRES);
    const int dx = dc.GetDeviceCaps(LOGPIXELSX);
    const int dy = dc.GetDeviceCaps(LOGPIXELSY);

    PageRect = TRect(0, 0, pageWidth, pageHeight);

    CompassFont.emplace(ArialOfHeight(int(dy * kCompassLetterInches)));
    compass.SetTextFont(*CompassFont, dc);

    // Two inches, or a third of a small page.
    nBandHeight = int(dy * kBandInches);
    if (nBandHeight > pageHeight / 3) {
        nBandHeight = pageHeight / 3;
    }
    const int compassWidth = compass.GetDesiredWidth(unsigned(nBandHeight), dc);

    const int gap = int(dy * kGapInches);
    SkyRect = TRect(PageRect.left, PageRect.top, PageRect.right,
                    PageRect.top + pageHeight - nBandHeight - gap);
    CompassRect = TRect(PageRect.left, PageRect.bottom - nBandHeight, PageRect.left + compassWidth,
                        PageRect.bottom);
    const int gapX = int(dx * kGapInches);
    TextRect = TRect(CompassRect.right + gapX, CompassRect.top, PageRect.right, CompassRect.bottom);
    nHeadingHeight = dy / kHeadingPerInch;
}

std::vector<TPoint> PrintPageLayout::DrawHeading(TDC& dc,
                                                 const std::vector<std::string>& lines) const
{
    std::vector<TPoint> placed;
    if (lines.empty()) {
        return placed;
    }
    dc.SelectObject(ArialOfHeight(nHeadingHeight));
    dc.SetTextColor(TColor::Black);
    dc.SetBkColor(TColor::White);

    const int lineHeight = dc.GetTextExtent(lines.front()).cy;
    const int spare = TextRect.Height() - kHeadingLines * lineHeight;
    int y = spare > 0 ? TextRect.top + spare / 2 : TextRect.top;
    for (const std::string& line : lines) {
        const TSize extent = dc.GetTextExtent(line);
        const int x = TextRect.left + (TextRect.Width() - extent.cx) / 2;
        dc.TextOut(x, y, line);
        placed.emplace_back(x, y);
        y += extent.cy;
    }
    dc.RestoreFont();
    return placed;
}
