#include "solar/PlanetCatalogue.h"

#include "catalogues/AstroList.h"
#include "catalogues/LorvString.h"
#include "catalogues/Request.h"
#include "solar/EarthView.h"
#include "solar/JupiterView.h"
#include "solar/MarsView.h"
#include "solar/MercuryView.h"
#include "solar/MoonView.h"
#include "solar/NeptuneView.h"
#include "solar/PlutoView.h"
#include "solar/SaturnView.h"
#include "solar/SunView.h"
#include "solar/UranusView.h"
#include "solar/VenusView.h"

namespace {

// The array grows by this many when full; it is made for all eleven views at once.
constexpr std::size_t kGrowthStep = 5;

} // namespace

PlanetCatalogue::PlanetCatalogue() : Views(kViewCount, kGrowthStep)
{
    Views.OwnsElements(true);
    Load();
    SetOrigin(*GetSolarSystemObject(kEarthPlace));
}

PlanetCatalogue::~PlanetCatalogue()
{
    pOrigin = nullptr;
    Views.Flush();
}

void PlanetCatalogue::Load()
{
    // An origin that is one of the bodies here goes with its view; the new body in its place
    // takes over.
    unsigned originPlace = kViewCount;
    for (unsigned place = 0; place < Views.GetCount(); ++place) {
        if (&Views[place]->GetSolarSystemObject() == pOrigin) {
            originPlace = place;
        }
    }
    Views.Flush();
    // Saturn and the Moon need the Sun's body, so the Sun's view is made first and added in
    // its own place later.
    auto sun = std::make_unique<SunView>();
    AddPlanet(std::make_unique<MercuryView>());
    AddPlanet(std::make_unique<VenusView>());
    auto earth = std::make_unique<EarthView>();
    SolarSystemObject& earthBody = earth->GetSolarSystemObject();
    AddPlanet(std::move(earth));
    AddPlanet(std::make_unique<MarsView>());
    AddPlanet(std::make_unique<JupiterView>());
    AddPlanet(std::make_unique<SaturnView>(sun->GetSun()));
    AddPlanet(std::make_unique<UranusView>());
    AddPlanet(std::make_unique<NeptuneView>());
    AddPlanet(std::make_unique<PlutoView>());
    Sun200& sunBody = sun->GetSun();
    AddPlanet(std::move(sun));
    // Last, so that SetTime reaches the Earth before the Moon computes from it.
    AddPlanet(std::make_unique<MoonView>(earthBody, sunBody));
    if (originPlace < kViewCount) {
        pOrigin = GetSolarSystemObject(originPlace);
    }
    if (pOrigin != nullptr) {
        SetOrigin(*pOrigin);
    }
    UpdatePlanetOptions();
}

void PlanetCatalogue::AddPlanet(std::unique_ptr<PlanetView> view)
{
    if (view) {
        Views.Add(view.release());
    }
}

std::unique_ptr<PointerVector<AstroObject>> PlanetCatalogue::GetListOfNamedObjects()
{
    auto list = std::make_unique<PointerVector<AstroObject>>(false);
    for (PlanetView* view : Views) {
        if (dynamic_cast<SunView*>(view) || dynamic_cast<MoonView*>(view) ||
            dynamic_cast<EarthView*>(view)) {
            continue;
        }
        list->push_back(view);
    }
    return list;
}

PlanetView* PlanetCatalogue::GetObjectByName(const std::string& name) const
{
    for (PlanetView* view : Views) {
        if (EqualNoCase(view->GetRefName(), name)) {
            return view;
        }
    }
    return nullptr;
}

void PlanetCatalogue::SetOrigin(SolarSystemObject& origin)
{
    pOrigin = &origin;
    for (PlanetView* view : Views) {
        view->SetOrigin(origin);
    }
}

void PlanetCatalogue::SetTime(const AstroTime& time)
{
    for (PlanetView* view : Views) {
        view->SetTime(time);
    }
}

void PlanetCatalogue::SetOptions(const PlanetOptions& options)
{
    Options.bShowLabels = options.bShowLabels;
    UpdatePlanetOptions();
}

void PlanetCatalogue::UpdatePlanetOptions()
{
    for (PlanetView* view : Views) {
        view->SetShowLabel(Options.bShowLabels);
    }
}

void PlanetCatalogue::ReadOptions(StateContainer& sc)
{
    sc >> Options;
    UpdatePlanetOptions();
}

void PlanetCatalogue::SatisfyRequest(const Request& request, AstroList& list)
{
    // Every body takes the time before any place is asked for: places are seen from the Earth,
    // which must not lag behind the bodies before it in the list.
    SetTime(request.GetTime());
    const Transformation& view = request.GetView();
    const SkyRange range = view.GetVisibleRange();
    for (PlanetView* planet : Views) {
        if (!planet->IsVisible()) {
            continue;
        }
        // The cheap range test first, so that bodies out of view are not projected.
        const PolarCoord position = planet->GetPosition();
        if (!range.Contains(position)) {
            continue;
        }
        TPoint point;
        if (view.Translate(position, point)) {
            planet->SetDisplayPoint(point);
            list.Add(planet);
        }
    }
}

SolarSystemObject* PlanetCatalogue::GetSolarSystemObject(unsigned place) const
{
    PlanetView* view = GetView(place);
    return view ? &view->GetSolarSystemObject() : nullptr;
}

PlanetView* PlanetCatalogue::GetView(unsigned place) const
{
    return place < Views.GetCount() ? Views[place] : nullptr;
}

StateContainer& operator<<(StateContainer& sc, const PlanetCatalogue& catalogue)
{
    return sc << catalogue.GetOptions();
}

StateContainer& operator>>(StateContainer& sc, PlanetCatalogue& catalogue)
{
    catalogue.ReadOptions(sc);
    return sc;
}
