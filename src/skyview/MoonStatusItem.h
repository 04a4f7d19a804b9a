#pragma once
// The status block of the Moon: its phase, the elongation from the Sun in degrees (0 new, 180
// full).
#include "skyview/TextStatusItem.h"

class Moon;

class MoonStatusItem : public TextStatusItem
{
public:
    static constexpr int kId = 4;

    MoonStatusItem();

    int GetCharacterCount() const override { return 30; }

    // "Phase: <degrees>" for the Moon at the time it was last set to.
    void Set(Moon& moon);
};
