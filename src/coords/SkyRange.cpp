#include "coords/SkyRange.h"

#include "coords/PolarCoord.h"

SkyRange::SkyRange(bool all) : RA(all), Dec(all)
{}

SkyRange::SkyRange(const DegreeRange& ra, const DegreeRange& dec) : RA(ra), Dec(dec)
{}

bool SkyRange::Contains(const PolarCoord& coord) const
{
    return RA.Contains(coord.GetRA()) && Dec.Contains(coord.GetDec());
}

bool SkyRange::Intersects(const SkyRange& other) const
{
    return RA.Intersects(other.RA) && Dec.Intersects(other.Dec);
}

void SkyRange::Enclose(const PolarCoord& coord)
{
    DegreeAngle ra = coord.GetRA();
    DegreeAngle dec = coord.GetDec();
    RA.Enclose(ra);
    Dec.Enclose(dec);
}
