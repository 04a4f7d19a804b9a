#pragma once
// The right ascension and declination grid of the map: how many meridians and parallels make
// a full turn, whether the grid is shown, and its colour.
//
// 24 RA lines make meridians 15 degrees apart (one hour); 36 Dec lines make parallels 10
// degrees apart. The colour is not part of the saved state: a restored grid keeps the colour
// it had.
#include <cstdint>

#include "platform/TColor.h"

class StateContainer;

class GridInfo
{
public:
    GridInfo() = default;
    GridInfo(std::uint32_t raLines, std::uint32_t decLines, bool show)
        : nRALines(raLines), nDecLines(decLines), bShow(show)
    {}

    // Takes the show flag and both counts of `other`, leaving the colour alone.
    void SetFrom(const GridInfo& other)
    {
        nRALines = other.nRALines;
        nDecLines = other.nDecLines;
        bShow = other.bShow;
    }

    bool operator==(const GridInfo& other) const = default;

    std::uint32_t nRALines = 24;
    std::uint32_t nDecLines = 36;
    bool bShow = false;
    TColor Color = TColor(0, 0, 255);
};

// State: a level at the caller's key with "Show", "NumberOfRALines" and "NumberOfDecLines".
StateContainer& operator<<(StateContainer& sc, const GridInfo& grid);
StateContainer& operator>>(StateContainer& sc, GridInfo& grid);
