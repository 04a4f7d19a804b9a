#pragma once
// Everything that can appear on the sky map: stars, constellations, planets, the Sun and the
// Moon, comets, Messier objects and pictures. One interface gives the draw cycle, the labels,
// the finder and the information dialog what they need: position (degrees, equatorial),
// magnitude, display point (device pixels), names, a numeric uid and a link into the host's
// articles.
//
// Objects are counted by hand. The creator holds the first reference; whoever keeps an object
// across a redraw adds one and releases it later. The last release deletes the object, so
// counted objects live on the heap.
#include <cstdint>
#include <string>

#include "coords/PolarCoord.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"

class AstroTime;
class DisplayParameters;
class Label;
class TDC;

class AstroObject
{
public:
    // The kind of an object; the value indexes the table of type names.
    enum class ObjectType : std::int32_t
    {
        Star = 0,
        Planet = 1,
        Galaxy = 2,
        Nebula = 3,
        Asteroid = 4,
        Comet = 5,
        Satellite = 6,
        Constellation = 7,
        Moon = 8,
        OtherObject = 9,
    };

    // Every uid but a comet's is this base plus an offset that tells the kind of object.
    static constexpr std::uint32_t kUidBase = 0x70000000;

    explicit AstroObject(ObjectType type) : Type(type) {}
    virtual ~AstroObject() = default;
    AstroObject& operator=(const AstroObject&) = delete;

    // Reference counting. A new object has a count of 1.
    int AddReference() { return ++nReferenceCount; }
    int GetReferenceCount() const { return nReferenceCount; }
    // Deletes the object when this was the last reference; returns the count left, 0 when
    // the object is gone.
    int ReleaseReference();

    ObjectType GetType() const { return Type; }

    // "Star", "Planet", ..., "-" for other objects.
    virtual std::string GetTypeName() const;
    virtual bool IsVisible() const { return true; }
    // RA and Dec in degrees.
    virtual PolarCoord GetPosition() const = 0;
    virtual double GetMagnitude() const { return 99.99; }
    // Where the object was put on the surface for the present frame.
    virtual const TPoint& GetDisplayPoint() const = 0;
    virtual void SetTime(const AstroTime& time);
    virtual bool IsTimeDependent() const = 0;
    virtual bool IsLabeled(const DisplayParameters& parameters) const;
    // The label that the object keeps for itself; none at this level.
    virtual Label* GetLabel(DisplayParameters& parameters);
    // 0: the object has no uid and no links.
    virtual std::uint32_t GetUid() const { return 0; }
    virtual bool HasDisplayRect() const { return false; }
    // The pixels that a picture-drawn object covers; all zero at this level.
    virtual TRect GetDisplayRect(DisplayParameters& parameters) const;
    virtual void SetDisplayPoint(const TPoint& point) = 0;
    virtual void Draw(TDC& dc, DisplayParameters& parameters) = 0;
    // Forgets what was worked out from the display parameters.
    virtual void FlushDisplayCache() {}
    // The command of the object's first article link, or the empty text when it has none.
    virtual std::string GetLaunchString() const;
    virtual bool HasListName() const { return false; }
    // The name shown in lists.
    virtual std::string GetListName() const { return std::string(); }
    virtual bool HasInfoName() const { return false; }
    // The heading of the information dialog.
    virtual std::string GetInfoName() const { return std::string(); }
    // The name by which a reference from an article finds the object.
    virtual std::string GetRefName() const { return std::string(); }
    virtual bool IsSameObject(const AstroObject& other) const { return this == &other; }
    // List order; at this level the order of the addresses.
    virtual bool IsLessThan(const AstroObject& other) const;
    // Whether a list of such objects is in name order, so that it may be searched by halves.
    virtual bool IsListSorted() const { return true; }

protected:
    // A copy is a new object of the same type with a count of its own.
    AstroObject(const AstroObject& other) : Type(other.Type) {}

private:
    ObjectType Type;
    std::int32_t nReferenceCount = 1;
};

// The text of a type; "-" for OtherObject and for values outside the table.
const char* GetObjectTypeName(AstroObject::ObjectType type);
