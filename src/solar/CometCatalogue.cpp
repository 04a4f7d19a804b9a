#include "solar/CometCatalogue.h"

#include "catalogues/AstroList.h"
#include "catalogues/Request.h"
#include "host/HostProf.h"
#include "solar/CometList.h"

CometCatalogue::CometCatalogue() : CometCatalogue(HostProfile())
{}

CometCatalogue::CometCatalogue(const HostProf& profile)
{
    Load(profile);
}

void CometCatalogue::Load(const HostProf& profile)
{
    Comets.Flush();
    for (const ListedComet& comet : LoadCometList(profile)) {
        Comets.push_back(new CometView(comet));
    }
}

void CometCatalogue::LoadDefault()
{
    for (const ListedComet& comet : BuiltInComets()) {
        Comets.push_back(new CometView(comet));
    }
}

std::unique_ptr<PointerVector<AstroObject>> CometCatalogue::GetListOfNamedObjects()
{
    auto list = std::make_unique<PointerVector<AstroObject>>(false);
    list->assign(Comets.begin(), Comets.end());
    return list;
}

void CometCatalogue::SetTime(const AstroTime& time)
{
    for (CometView* comet : Comets) {
        comet->SetTime(time);
    }
}

void CometCatalogue::SetOrigin(SolarSystemObject& origin)
{
    for (CometView* comet : Comets) {
        comet->SetOrigin(origin);
    }
}

void CometCatalogue::SatisfyRequest(const Request& request, AstroList& list)
{
    const Transformation& view = request.GetView();
    const SkyRange range = view.GetVisibleRange();
    for (CometView* comet : Comets) {
        comet->SetTime(request.GetTime());
        const PolarCoord position = comet->GetPosition();
        if (!range.Contains(position)) {
            continue;
        }
        TPoint point;
        if (view.Translate(position, point)) {
            comet->SetDisplayPoint(point);
            list.Add(comet);
        }
    }
}
