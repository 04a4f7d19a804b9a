#pragma once
// The live sample of the star display dialogs: one star of a chosen magnitude drawn in the
// middle of a small window, by the same routines that draw the map's stars, so that the user
// sees at once what the settings being edited do.
//
// The star is drawn on black, or on white when the settings are those of a printed chart.
// Sizes are worked out for this window's screen, as the map's are.
#include "platform/TWindow.h"
#include "skyview/DisplayParameters.h"

class StarDisplayParameters;

class SingleStarWindow : public TWindow
{
public:
    explicit SingleStarWindow(TWindow* parent);

    // Takes the star settings, worked out for this window's surface.
    void SetParameters(const StarDisplayParameters& parameters);
    void SetMagnitude(double magnitude) { Magnitude = magnitude; }

    // Fills the whole client area, so nothing needs erasing first.
    bool EvEraseBkgnd(HDC dc);
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    DisplayParameters Display;
    double Magnitude = 0.0;
};
