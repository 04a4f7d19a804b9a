#pragma once
// The catalogue of the Sun, the Moon and the planets: eleven views in fixed places that other
// parts of the map rely on:
//
//   Mercury 0, Venus 1, Earth 2, Mars 3, Jupiter 4, Saturn 5, Uranus 6, Neptune 7, Pluto 8,
//   Sun 9, Moon 10.
//
// It owns the views, sets their time in that order (the Moon last, since it is computed from
// the Earth's place) and gives them all the same origin, the Earth, from which places are
// seen. A request is answered with every body in the visible part of the sky, whatever its
// magnitude: planets are not held to the limiting magnitude of the stars.
#include <cstddef>
#include <memory>
#include <string>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/ReferenceArray.h"
#include "solar/PlanetOptions.h"
#include "solar/PlanetView.h"

class AstroList;
class AstroTime;
class Request;
class SolarSystemObject;
class StateContainer;

class PlanetCatalogue : public AstroCatalogue
{
public:
    // The places of the bodies that other classes look up.
    static constexpr unsigned kEarthPlace = 2;
    static constexpr unsigned kSunPlace = 9;
    static constexpr unsigned kMoonPlace = 10;
    static constexpr unsigned kViewCount = 11;

    // Makes the eleven views, with the Earth as their origin.
    PlanetCatalogue();
    ~PlanetCatalogue() override;

    // Makes the views anew, in their fixed order.
    void Load();
    void AddPlanet(std::unique_ptr<PlanetView> view);

    // The planets a user looks for by name, in catalogue order: all views but the Sun, the
    // Moon and the Earth. The list does not own them.
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override;
    // The first view, in catalogue order, whose reference name is `name` without regard to
    // case; null for an unknown name. The Sun, the Moon and the Earth are found too.
    PlanetView* GetObjectByName(const std::string& name) const;

    // Gives every view the body places are seen from.
    void SetOrigin(SolarSystemObject& origin);
    SolarSystemObject* GetOrigin() const { return pOrigin; }
    // Sets the time on every view, in catalogue order.
    void SetTime(const AstroTime& time);

    void SetOptions(const PlanetOptions& options);
    const PlanetOptions& GetOptions() const { return Options; }
    // Hands the label option down to every view.
    void UpdatePlanetOptions();
    // Reads the options from state, then hands them down.
    void ReadOptions(StateContainer& sc);

    // Sets the request's time on every view (all of them first, so that the origin has it
    // before any place is worked out), then adds to `list`, in catalogue order, each visible
    // body that lies in the view's visible range and within the visible radius, with its
    // display point set.
    void SatisfyRequest(const Request& request, AstroList& list);
    bool IsTimeDependent() const override { return true; }

    // The body of the view at a place; null beyond the last place.
    SolarSystemObject* GetSolarSystemObject(unsigned place) const;
    // The view at a place; null beyond the last place.
    PlanetView* GetView(unsigned place) const;
    std::size_t GetCount() const { return Views.GetCount(); }

private:
    ReferenceArray<PlanetView> Views;
    PlanetOptions Options;
    SolarSystemObject* pOrigin = nullptr;
};

// State: the options, as a level at the caller's key (see PlanetOptions). Reading hands them
// down to the views.
StateContainer& operator<<(StateContainer& sc, const PlanetCatalogue& catalogue);
StateContainer& operator>>(StateContainer& sc, PlanetCatalogue& catalogue);
