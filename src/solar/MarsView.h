#pragma once
// Mars on the sky map, drawn as a star of its magnitude. Place 3 of the planet
// catalogue; uid offset 303.
#include "solar/Mars200.h"
#include "solar/PlanetView.h"

class MarsView : public PlanetView
{
public:
    MarsView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Mars200 Body;
};
