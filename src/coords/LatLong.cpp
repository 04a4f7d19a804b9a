#include "coords/LatLong.h"

#include <cstdlib>

#include "catalogues/StringParser.h"
#include "state/StateContainer.h"

LatLong::LatLong(double latitude, double longitude) : Latitude(latitude), Longitude(longitude)
{}

bool LatLong::Set(StringParser& parser)
{
    LorvString* token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    Latitude = std::strtod(token->c_str(), nullptr);

    token = parser.GetNextToken("N");
    if (*token == "S") {
        Latitude = -Latitude.GetDegrees();
    }

    token = parser.GetNextToken();
    if (token == nullptr) {
        return false;
    }
    double longitude = std::strtod(token->c_str(), nullptr);

    token = parser.GetNextToken("W");
    Longitude = (*token == "E") ? 360.0 - longitude : longitude;
    return true;
}

StateContainer& LatLong::operator<<(StateContainer& sc) const
{
    return sc << NewLevel << AstroKey("Lat") << Latitude << AstroKey("Long") << Longitude
              << EndLevel;
}

StateContainer& LatLong::operator>>(StateContainer& sc)
{
    return sc >> GoToLevel >> AstroKey("Lat") >> Latitude >> AstroKey("Long") >> Longitude >>
           EndLevel;
}

StateContainer& operator<<(StateContainer& sc, const LatLong& place)
{
    return place << sc;
}

StateContainer& operator>>(StateContainer& sc, LatLong& place)
{
    return place >> sc;
}
