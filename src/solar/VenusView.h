#pragma once
// Venus on the sky map, drawn as a star of its magnitude. Place 1 of the planet
// catalogue; uid offset 301.
#include "solar/PlanetView.h"
#include "solar/Venus200.h"

class VenusView : public PlanetView
{
public:
    VenusView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Venus200 Body;
};
