#pragma once
// A direction on the sphere as two DegreeAngles: RA, a longitude in degrees (not hours), and
// Dec. The same type serves every frame: equatorial, the rotated frame of a view, and offsets
// in azimuth and altitude.
#include <string>

#include "coords/DegreeAngle.h"

class HostFile;
class StateContainer;
class StellarCoord;
class StringParser;

class PolarCoord
{
public:
    PolarCoord() = default;
    // Both values normalise as DegreeAngles.
    PolarCoord(double ra, double dec);
    PolarCoord(const DegreeAngle& ra, const DegreeAngle& dec);
    // RA from its hours through radians, Dec from its sexagesimal value.
    explicit PolarCoord(const StellarCoord& coord);
    PolarCoord(const PolarCoord&) = default;
    PolarCoord& operator=(const PolarCoord&) = default;
    virtual ~PolarCoord() = default;

    const DegreeAngle& GetRA() const { return RA; }
    const DegreeAngle& GetDec() const { return Dec; }
    void SetRA(const DegreeAngle& ra) { RA = ra; }
    void SetDec(const DegreeAngle& dec) { Dec = dec; }

    // Both fields exactly equal.
    bool operator==(const PolarCoord& other) const { return RA == other.RA && Dec == other.Dec; }

    // "RA = <degrees> Dec = <degrees>", numbers in the default stream form.
    std::string GetDescription() const;

    // Reads RA then Dec as decimal degrees, stored without normalising. False when either
    // token is missing; RA stays changed when only Dec was missing.
    bool Set(StringParser& parser);

    // RA then Dec, 8 bytes each; false when either write falls short.
    bool Dump(HostFile& file) const;

    // A level at the caller's key holding "RA" and "Dec".
    virtual StateContainer& operator<<(StateContainer& sc) const;
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    DegreeAngle RA;
    DegreeAngle Dec;
};

StateContainer& operator<<(StateContainer& sc, const PolarCoord& coord);
StateContainer& operator>>(StateContainer& sc, PolarCoord& coord);
