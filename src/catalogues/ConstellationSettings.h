#pragma once
// What the map shows of the constellations: boundaries, figures, names, and the colour of the
// names. The catalogue keeps one and every constellation reads it when it draws.
//
// The names are drawn in "Arial Italic", 0.18 inch high on the device at hand, from one font
// that all constellation labels share.
#include "platform/TColor.h"

class FontRef;
class StateContainer;
class TDC;

class ConstellationSettings
{
public:
    // The catalogue's own defaults: names shown, figures and boundaries not.
    explicit ConstellationSettings(bool showFigures = false, bool showBoundaries = false,
                                   bool showLabels = true)
        : bShowBoundaries(showBoundaries), bShowFigures(showFigures), bShowLabels(showLabels)
    {}

    // All members, the colour too.
    bool operator==(const ConstellationSettings& other) const = default;
    void Copy(const ConstellationSettings& other) { *this = other; }

    // Whether anything of the constellations is shown at all.
    bool ShowsAnything() const { return bShowBoundaries || bShowFigures || bShowLabels; }

    // The font of constellation names for the vertical resolution of `dc`. One FontRef serves
    // until a surface of another resolution asks; the old one lives on in the labels that
    // hold it, which compare this pointer with their own to know whether they are current.
    static FontRef* GetLabelFontRef(const TDC& dc);

    bool bShowBoundaries;
    bool bShowFigures;
    bool bShowLabels;
    // Not part of the saved state.
    TColor LabelColor = TColor(255, 128, 0);

private:
    // The shared label font and the vertical resolution it was made for; null and 0 at first.
    static FontRef* psLabelFontRef;
    static int nDCScaleForCurrentFont;
};

// State: a level at the caller's key with "Show Figures", "Show Boundaries" and
// "Show Labels". A key that is missing reads as false.
StateContainer& operator<<(StateContainer& sc, const ConstellationSettings& settings);
StateContainer& operator>>(StateContainer& sc, ConstellationSettings& settings);
