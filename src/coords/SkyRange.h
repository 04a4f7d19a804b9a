#pragma once
// A part of the sky as a pair of DegreeRanges: RA first, Dec second.
#include "coords/DegreeRange.h"

class PolarCoord;

class SkyRange
{
public:
    // Both ranges full when `all`, else both empty.
    explicit SkyRange(bool all = false);
    SkyRange(const DegreeRange& ra, const DegreeRange& dec);

    DegreeRange& GetRA() { return RA; }
    DegreeRange& GetDec() { return Dec; }
    const DegreeRange& GetRA() const { return RA; }
    const DegreeRange& GetDec() const { return Dec; }

    // True when the RA range holds the RA and the Dec range the Dec.
    bool Contains(const PolarCoord& coord) const;
    // True when the two RA ranges meet and the two Dec ranges meet.
    bool Intersects(const SkyRange& other) const;
    // Widens both ranges to hold the point; the point itself is not changed.
    void Enclose(const PolarCoord& coord);

private:
    DegreeRange RA;
    DegreeRange Dec;
};
