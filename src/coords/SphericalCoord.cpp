#include "coords/SphericalCoord.h"

#include <cmath>
#include <locale>
#include <sstream>

#include "coords/AngleMath.h"
#include "coords/RectCoord.h"

SphericalCoord::SphericalCoord(const RectCoord& vector)
{
    double x = vector.GetX(), y = vector.GetY(), z = vector.GetZ();
    double rho2 = x * x + y * y;
    Radius = std::sqrt(rho2 + z * z);
    // atan2 of two zeros is 0 and atan2(z, 0) is the pole, which is what a vector along the
    // z axis should give.
    Longitude = std::atan2(y, x);
    if (Longitude < 0.0) {
        Longitude += twoPi;
    }
    Latitude = std::atan2(z, std::sqrt(rho2));
}

std::string SphericalCoord::Describe() const
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "Longitude: " << Longitude << " Latitude: " << Latitude << " Radius: " << Radius;
    return text.str();
}
