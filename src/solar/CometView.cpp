#include "solar/CometView.h"

#include "platform/TDC.h"
#include "platform/TFont.h"
#include "solar/CometList.h"

namespace {

constexpr const char* kMark = "X";

// One font for all comets, and the offset from the top left of the letter to its middle,
// measured at the first draw and kept for all later ones.
struct CometMark
{
    TFont Font{
        "Arial",        10, 0, 0, 0, FW_NORMAL, DEFAULT_PITCH | FF_DONTCARE, false, false, false,
        DEFAULT_CHARSET};
    bool bMeasured = false;
    TPoint Offset;
};

CometMark& SharedMark()
{
    static CometMark mark;
    return mark;
}

} // namespace

CometView::CometView() : PlanetView(ObjectType::Comet, 0)
{}

CometView::CometView(unsigned index, const std::string& name, const AstroTime& perihelion, double q,
                     double e, double inclination, double node, double argument)
    : PlanetView(ObjectType::Comet, 0), Body(name, perihelion, q, e, inclination, node, argument),
      nIndex(index)
{}

CometView::CometView(const ListedComet& comet)
    : PlanetView(ObjectType::Comet, 0), Body(comet.Elements), nIndex(comet.Index)
{}

bool CometView::Initialize(unsigned index, StringParser& parser)
{
    if (!Body.Initialize(index, parser)) {
        return false;
    }
    nIndex = index;
    return true;
}

bool CometView::IsLabeled(const DisplayParameters& /*parameters*/) const
{
    return true;
}

void CometView::Draw(TDC& dc, DisplayParameters& /*parameters*/)
{
    CometMark& mark = SharedMark();
    dc.SelectObject(mark.Font);
    if (!mark.bMeasured) {
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(metrics);
        const TSize extent = dc.GetTextExtent(kMark);
        mark.Offset = TPoint((extent.cx - int(metrics.tmInternalLeading)) / 2,
                             (extent.cy - int(metrics.tmDescent)) / 2);
        mark.bMeasured = true;
    }
    dc.SetTextColor(TColor::LtYellow);
    dc.SetBkMode(TRANSPARENT);
    dc.TextOut(displayPoint - mark.Offset, kMark);
    dc.RestoreFont();
}
