#pragma once
// Uranus on the sky map, drawn as a star of its magnitude. Place 6 of the planet
// catalogue; uid offset 306.
#include "solar/PlanetView.h"
#include "solar/Uranus200.h"

class UranusView : public PlanetView
{
public:
    UranusView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Uranus200 Body;
};
