#pragma once
// Saturn on the sky map, drawn as a star of its magnitude. Place 5 of the planet
// catalogue; uid offset 305.
#include "solar/PlanetView.h"
#include "solar/Saturn200.h"

class SaturnView : public PlanetView
{
public:
    // The Sun is needed for the tilt of the rings, which sets the magnitude.
    explicit SaturnView(Sun200& sun);

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Saturn200 Body;
};
