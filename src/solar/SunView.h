#pragma once
// The Sun on the sky map: a filled white disc 12 pixels across, the same on paper. Place 9 of
// the planet catalogue; uid offset 311; a star by type.
#include "solar/PlanetView.h"
#include "solar/Sun200.h"

class SunView : public PlanetView
{
public:
    SunView();

    // -27, whatever the distance.
    double GetMagnitude() const override { return -27.0; }
    void Draw(TDC& dc, DisplayParameters& parameters) override;

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }
    // The body itself, which Saturn and the Moon need at their construction.
    Sun200& GetSun() const { return Body; }

private:
    // The body computes itself when asked; asking is no change of the view.
    mutable Sun200 Body;
};
