#pragma once
// Where a view looks: the abstract state from which each draw builds its Transformation.
// The base holds what every orientation has: its kind, the body the observer stands on and
// the field radius in degrees. The kinds say how the centre of view and the zenith are kept
// (fixed on the stars, or fixed against the horizon of a turning body).
//
// Orientations live on the heap with one owner; replacing one stores a Clone.
#include <memory>

#include "coords/PolarCoord.h"

class AstroScrollInfo;
class SolarSystemObject;
class StateContainer;

class OrientationInfo
{
public:
    enum Type
    {
        FIXED = 0,
        ROTATING = 1,
    };

    virtual ~OrientationInfo() = default;

    // The radius: a level at the caller's key (the kinds use "Base") holding "Radius". A
    // missing key reads as radius 0.
    virtual StateContainer& operator<<(StateContainer& sc) const;
    virtual StateContainer& operator>>(StateContainer& sc);

    // Degrees, in the frame of the sky (equatorial for the map).
    virtual void SetCenterOfView(const PolarCoord& centre) = 0;
    virtual PolarCoord GetCenterOfView() const = 0;
    virtual PolarCoord GetZenith() const = 0;
    // A new orientation of the same kind and state, owned by the caller.
    virtual std::unique_ptr<OrientationInfo> Clone() const = 0;
    // One step of a continuous movement of the view. Only the kind that stands on the ground
    // steps; here nothing happens and the answer is false.
    virtual bool Scroll(AstroScrollInfo& info);

    int GetType() const { return nType; }
    // "Fixed" for type 0, "Rotating" for any other.
    const char* GetTypeName() const;

    // The field radius in degrees, stored and returned without any test; Projector says what
    // a drawing does with a value out of range.
    double GetFieldRadius() const { return Radius; }
    void SetFieldRadius(double radius) { Radius = radius; }

    // Not owned.
    SolarSystemObject* GetOrigin() const { return pOrigin; }

protected:
    OrientationInfo(int type, SolarSystemObject* origin, double radius)
        : nType(type), pOrigin(origin), Radius(radius)
    {}
    // For the kinds' own copies (Clone); a copy through the base would lose the kind.
    OrientationInfo(const OrientationInfo&) = default;
    OrientationInfo& operator=(const OrientationInfo&) = default;

private:
    int nType;
    SolarSystemObject* pOrigin;
    double Radius;
};

// `sc << AstroKey("Orientation") << orientation` and the reverse, through the virtual operators.
StateContainer& operator<<(StateContainer& sc, const OrientationInfo& orientation);
StateContainer& operator>>(StateContainer& sc, OrientationInfo& orientation);
