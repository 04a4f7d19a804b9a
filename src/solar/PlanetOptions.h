#pragma once
// What the user chooses about the planets: whether they carry labels. Part of a view's state.
class StateContainer;

class PlanetOptions
{
public:
    bool bShowLabels = true;

    bool operator==(const PlanetOptions& other) const { return bShowLabels == other.bShowLabels; }
};

// State: a level at the caller's key holding "Show Labels". A missing key reads as false.
StateContainer& operator<<(StateContainer& sc, const PlanetOptions& options);
StateContainer& operator>>(StateContainer& sc, PlanetOptions& options);
