#pragma once
// Mercury on the sky map, drawn as a star of its magnitude. Place 0 of the planet
// catalogue; uid offset 300.
#include "solar/Mercury200.h"
#include "solar/PlanetView.h"

class MercuryView : public PlanetView
{
public:
    MercuryView();

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Mercury200 Body;
};
