#include "solar/PlanetView.h"

#include "catalogues/LorvString.h"
#include "skyview/DisplayParameters.h"
#include "skyview/StarDrawing.h"
#include "solar/SeriesMath.h"
#include "solar/SolarSystemObject.h"

bool PlanetView::IsVisible() const
{
    return &GetSolarSystemObject() != origin;
}

PolarCoord PlanetView::GetPosition() const
{
    if (origin == nullptr) {
        return PolarCoord();
    }
    const SphericalCoord place = origin->GetApparentPlace(GetSolarSystemObject());
    return PolarCoord(place.GetLongitude() * kDegreesPerRadian,
                      place.GetLatitude() * kDegreesPerRadian);
}

double PlanetView::GetMagnitude() const
{
    return origin ? origin->GetMagnitudeOf(GetSolarSystemObject()) : 99.0;
}

void PlanetView::SetTime(const AstroTime& time)
{
    GetSolarSystemObject().SetTime(time);
}

bool PlanetView::IsLabeled(const DisplayParameters& /*parameters*/) const
{
    return bShowLabel;
}

void PlanetView::Draw(TDC& /*dc*/, DisplayParameters& parameters)
{
    const double magnitude = GetMagnitude();
    TColor color;
    unsigned index = 0;
    parameters.GetColorFromIntensity(parameters.GetIntensityFromMagnitude(magnitude), color, index);
    DrawRayStar(parameters, displayPoint.x, displayPoint.y, magnitude, color, index);
}

std::string PlanetView::GetListName() const
{
    return GetSolarSystemObject().GetName();
}

std::string PlanetView::GetInfoName() const
{
    return GetSolarSystemObject().GetName();
}

std::string PlanetView::GetRefName() const
{
    return GetSolarSystemObject().GetName();
}

bool PlanetView::IsLessThan(const AstroObject& other) const
{
    return CompareNoCase(GetListName(), other.GetListName()) < 0;
}

double PlanetView::GetDistance() const
{
    return origin ? origin->GetDistanceTo(GetSolarSystemObject()) : 0.0;
}
