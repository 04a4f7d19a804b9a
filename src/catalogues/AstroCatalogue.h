#pragma once
// The base of every catalogue: stars, constellations, Messier objects, planets, comets. It
// holds no data. Each catalogue answers a view's request through its own SatisfyRequest,
// which the collector calls by class.
#include <cstdint>
#include <memory>

#include "catalogues/AstroObject.h"
#include "catalogues/PointerVector.h"

class AstroCatalogue
{
public:
    // The catalogues as bit flags, the values a set of catalogues holds.
    enum AstroCatalogues : std::uint32_t
    {
        STARS = 0x01,
        PLANETS = 0x02,
        MESSIER_OBJECTS = 0x04,
        CONSTELLATIONS = 0x08,
        COMETS = 0x10,
    };

    AstroCatalogue() = default;
    virtual ~AstroCatalogue() = default;
    AstroCatalogue(const AstroCatalogue&) = delete;
    AstroCatalogue& operator=(const AstroCatalogue&) = delete;

    // True for catalogues whose objects move with time.
    virtual bool IsTimeDependent() const = 0;
    // The same catalogue object.
    virtual bool operator==(const AstroCatalogue& other) const { return this == &other; }
    // The objects that the finder lists by name. Whether the list owns references on them
    // (an ObjectListWithDelete) or only points to objects the catalogue keeps is the
    // catalogue's to say.
    virtual std::unique_ptr<PointerVector<AstroObject>> GetListOfNamedObjects() = 0;
};
