#pragma once
// An interval told in calendar units: years, months, days, hours, minutes and seconds, each a
// signed count applied in its own unit. One month of a step follows the calendar, so it is
// not a fixed number of days.
#include <string>

#include "time/AstroTime.h"

class StateContainer;

class TimeStep
{
public:
    enum TIME_UNITS
    {
        YEARS = 0,
        MONTHS = 1,
        DAYS = 2,
        HOURS = 3,
        MINUTES = 4,
        SECONDS = 5
    };
    static constexpr int UnitCount = 6;

    TimeStep() { ZeroAllSteps(); }
    // All counts zero but `count` in `unit`.
    TimeStep(TIME_UNITS unit, int count);

    void ZeroAllSteps();
    void Copy(const TimeStep& other);

    // A unit outside the six reads as 0 and is not written.
    int GetStep(TIME_UNITS unit) const;
    void SetStep(TIME_UNITS unit, int count);
    // The count as decimal text.
    std::string GetStepAsString(TIME_UNITS unit) const;

    bool operator==(const TimeStep& other) const = default;

private:
    static bool IsUnit(TIME_UNITS unit) { return unit >= YEARS && unit <= SECONDS; }

    int aSteps[UnitCount];
};

// The time moved by the step (see AstroTime::operator+=).
AstroTime operator+(const AstroTime& time, const TimeStep& step);
AstroTime operator-(const AstroTime& time, const TimeStep& step);

// State: a level at the caller's key holding "step0" to "step5", one integer per unit.
StateContainer& operator<<(StateContainer& sc, const TimeStep& step);
StateContainer& operator>>(StateContainer& sc, TimeStep& step);
