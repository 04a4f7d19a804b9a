#include "coords/StellarCoord.h"

#include "coords/PolarCoord.h"
#include "coords/RadianAngle.h"
#include "state/StateContainer.h"

StellarCoord::StellarCoord(const HoursMinutesSeconds& ra, const DegreesMinutesSecondsArc& dec)
    : RA(ra), Dec(dec)
{}

StellarCoord::StellarCoord(const PolarCoord& coord) : Dec(coord.GetDec())
{
    RA.Init(RadianAngle(coord.GetRA()));
}

std::string StellarCoord::GetDescription() const
{
    return "RA: " + RA.GetDescription1() + "   Dec: " + Dec.GetDescription1();
}

bool StellarCoord::Set(StringParser& parser)
{
    return RA.Set(parser) && Dec.Set(parser);
}

StateContainer& StellarCoord::operator<<(StateContainer& sc) const
{
    return sc << NewLevel << AstroKey("RA") << RA << AstroKey("Dec") << Dec << EndLevel;
}

StateContainer& StellarCoord::operator>>(StateContainer& sc)
{
    return sc >> GoToLevel >> AstroKey("RA") >> RA >> AstroKey("Dec") >> Dec >> EndLevel;
}

StateContainer& operator<<(StateContainer& sc, const StellarCoord& coord)
{
    return coord << sc;
}

StateContainer& operator>>(StateContainer& sc, StellarCoord& coord)
{
    return coord >> sc;
}
