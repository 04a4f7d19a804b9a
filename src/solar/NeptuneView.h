#pragma once
// Neptune on the sky map, drawn as a star of its magnitude. Place 7 of the planet
// catalogue; uid offset 307.
#include "solar/Neptune200.h"
#include "solar/PlanetView.h"

class NeptuneView : public PlanetView
{
public:
    NeptuneView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Neptune200 Body;
};
