#pragma once
// Jupiter on the sky map, drawn as a star of its magnitude. Place 4 of the planet
// catalogue; uid offset 304.
#include "solar/Jupiter200.h"
#include "solar/PlanetView.h"

class JupiterView : public PlanetView
{
public:
    JupiterView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Jupiter200 Body;
};
