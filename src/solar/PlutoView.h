#pragma once
// Pluto on the sky map, drawn as a star of its magnitude. Place 8 of the planet
// catalogue; uid offset 308.
#include "solar/PlanetView.h"
#include "solar/Pluto200.h"

class PlutoView : public PlanetView
{
public:
    PlutoView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Pluto200 Body;
};
