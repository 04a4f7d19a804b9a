#pragma once
// The catalogue form of a direction: RA in hours, minutes and seconds, Dec as a signed arc.
#include <string>

#include "coords/DegreesMinutesSecondsArc.h"
#include "coords/HoursMinutesSeconds.h"

class PolarCoord;
class StateContainer;
class StringParser;

class StellarCoord
{
public:
    // 0h 0m 0s and + 0 0 0.
    StellarCoord() = default;
    StellarCoord(const HoursMinutesSeconds& ra, const DegreesMinutesSecondsArc& dec);
    // RA through radians into hours; Dec split into degrees, minutes and seconds.
    explicit StellarCoord(const PolarCoord& coord);
    StellarCoord(const StellarCoord&) = default;
    StellarCoord& operator=(const StellarCoord&) = default;
    virtual ~StellarCoord() = default;

    const HoursMinutesSeconds& GetRA() const { return RA; }
    const DegreesMinutesSecondsArc& GetDec() const { return Dec; }

    // "RA: 07h 30m 12.5s   Dec: + 12° 30' 15.5\"".
    std::string GetDescription() const;

    // Reads "hours minutes seconds [+|-] degrees minutes seconds": RA first, then Dec. False
    // when either part is refused; Dec is not read when RA was.
    bool Set(StringParser& parser);

    // A level at the caller's key holding "RA" and "Dec".
    virtual StateContainer& operator<<(StateContainer& sc) const;
    virtual StateContainer& operator>>(StateContainer& sc);

private:
    HoursMinutesSeconds RA;
    DegreesMinutesSecondsArc Dec;
};

StateContainer& operator<<(StateContainer& sc, const StellarCoord& coord);
StateContainer& operator>>(StateContainer& sc, StellarCoord& coord);
