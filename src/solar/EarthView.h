#pragma once
// Earth on the sky map, drawn as a star of its magnitude. Place 2 of the planet
// catalogue; uid offset 302.
#include "solar/Earth200.h"
#include "solar/PlanetView.h"

class EarthView : public PlanetView
{
public:
    EarthView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Earth200 Body;
};
