#include "solar/PlanetView.h"

#include <cmath>

#include "catalogues/LorvString.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/DisplayParameters.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"
#include "skyview/StarDrawing.h"
#include "solar/SeriesMath.h"
#include "solar/SolarSystemObject.h"

namespace {

// Height of planet labels in inches.
constexpr double kLabelHeightInches = 0.16;

} // namespace

FontRef* PlanetView::psLabelFontRef = nullptr;
int PlanetView::nLabelFontResolution = 0;

PlanetView::PlanetView(ObjectType type, std::uint32_t uidOffset)
    : AstroObject(type), nUidOffset(uidOffset)
{}

PlanetView::~PlanetView() = default;

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

Label* PlanetView::GetLabel(DisplayParameters& parameters)
{
    if (parameters.pDC == nullptr) {
        return nullptr;
    }
    FontRef::ForResolution(psLabelFontRef, nLabelFontResolution, *parameters.pDC, "Times New Roman",
                           kLabelHeightInches);
    const TColor color = parameters.GetTextColor(TColor::White);
    if (pLabel && (pLabel->GetFontRef() != psLabelFontRef || pLabel->GetColor() != color)) {
        pLabel.reset();
    }
    if (!pLabel) {
        pLabel = std::make_unique<Label>(GetListName(), *this, *psLabelFontRef, color);
    }
    return pLabel.get();
}

void PlanetView::SetDisplayPoint(const TPoint& point)
{
    displayPoint = point;
    if (pLabel) {
        pLabel->UpdateObjectPoint();
    }
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
