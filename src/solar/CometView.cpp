#include "solar/CometView.h"

#include "catalogues/CrossMark.h"
#include "solar/CometList.h"

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

void CometView::Draw(TDC& dc, DisplayParameters& parameters)
{
    CrossMark::Draw(dc, displayPoint, parameters);
}
