#pragma once
// The status block of the map's time, as local time: the date on the first line and the time
// of day on the second, on the 12-hour clock with "am" or "pm" unless the profile's
// "MilitaryTime" (section "Orbiscope") asks for the 24-hour clock.
#include "skyview/TextStatusItem.h"

class AstroTime;

class TimeStatusItem : public TextStatusItem
{
public:
    static constexpr int kId = 2;

    // Reads the clock setting from the profile.
    TimeStatusItem();

    int GetCharacterCount() const override { return 30; }
    bool IsMilitaryTime() const { return bMilitaryTime; }

    // `local` is the time to show, already in the map's zone.
    void Set(const AstroTime& local);

private:
    bool bMilitaryTime;
};
