#include "coords/PolarCoord.h"

#include <cstdlib>
#include <locale>
#include <sstream>

#include "catalogues/StringParser.h"
#include "coords/RadianAngle.h"
#include "coords/StellarCoord.h"
#include "state/StateContainer.h"

PolarCoord::PolarCoord(double ra, double dec) : RA(ra), Dec(dec)
{}

PolarCoord::PolarCoord(const DegreeAngle& ra, const DegreeAngle& dec) : RA(ra), Dec(dec)
{}

PolarCoord::PolarCoord(const StellarCoord& coord)
    : RA(coord.GetRA().GetRadianAngle()), Dec(coord.GetDec().GetDegreeAngle())
{}

std::string PolarCoord::GetDescription() const
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "RA = " << RA.GetDegrees() << " Dec = " << Dec.GetDegrees();
    return text.str();
}

bool PolarCoord::Set(StringParser& parser)
{
    LorvString* token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    RA = std::strtod(token->c_str(), nullptr);
    token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    Dec = std::strtod(token->c_str(), nullptr);
    return true;
}

bool PolarCoord::Dump(HostFile& file) const
{
    bool raWritten = RA.Dump(file);
    bool decWritten = Dec.Dump(file);
    return raWritten && decWritten;
}

StateContainer& PolarCoord::operator<<(StateContainer& sc) const
{
    return sc << NewLevel << AstroKey("RA") << RA << AstroKey("Dec") << Dec << EndLevel;
}

StateContainer& PolarCoord::operator>>(StateContainer& sc)
{
    return sc >> GoToLevel >> AstroKey("RA") >> RA >> AstroKey("Dec") >> Dec >> EndLevel;
}

StateContainer& operator<<(StateContainer& sc, const PolarCoord& coord)
{
    return coord << sc;
}

StateContainer& operator>>(StateContainer& sc, PolarCoord& coord)
{
    return coord >> sc;
}
