#pragma once
// The catalogue of comets: one view per comet of the profile's list (section "Orbiscope",
// "NumberOfComets" and the records "Comet1", "Comet2", ...), or the two built-in comets when
// the profile names none. The profile is read once, when the catalogue is made.
//
// Comets are seen from the origin the collector gives them (the Earth) and, like the planets,
// are shown in the visible part of the sky whatever their magnitude.
#include <memory>

#include "catalogues/AstroCatalogue.h"
#include "catalogues/PointerVector.h"
#include "solar/CometView.h"

class AstroList;
class AstroTime;
class HostProf;
class Request;
class SolarSystemObject;

class CometCatalogue : public AstroCatalogue
{
public:
    // From the host's shared profile.
    CometCatalogue();
    // From a given profile.
    explicit CometCatalogue(const HostProf& profile);

    // Empties the catalogue and makes the views of the profile's list.
    void Load(const HostProf& profile);
    // Adds "Hale-Bopp" (index 0) and "Halley's" (index 1).
    void LoadDefault();

    // Every comet view in order; the list does not own them.
    std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() override;
    void SetTime(const AstroTime& time);
    void SetOrigin(SolarSystemObject& origin);
    // Sets the request's time on every comet, then adds to `list`, in order, each comet that
    // lies in the view's visible range and within the visible radius, with its display point
    // set. Comets are never held to the limiting magnitude.
    void SatisfyRequest(const Request& request, AstroList& list);
    bool IsTimeDependent() const override { return true; }

    std::size_t GetCount() const { return Comets.size(); }
    CometView* GetView(std::size_t position) const
    {
        return position < Comets.size() ? Comets[position] : nullptr;
    }

private:
    PointerVector<CometView> Comets{true};
};
