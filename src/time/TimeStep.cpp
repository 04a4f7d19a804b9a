#include "time/TimeStep.h"

#include <cstdio>

#include "state/StateContainer.h"

TimeStep::TimeStep(TIME_UNITS unit, int count)
{
    ZeroAllSteps();
    SetStep(unit, count);
}

void TimeStep::ZeroAllSteps()
{
    for (int& count : aSteps) {
        count = 0;
    }
}

void TimeStep::Copy(const TimeStep& other)
{
    for (int i = 0; i < UnitCount; ++i) {
        aSteps[i] = other.aSteps[i];
    }
}

int TimeStep::GetStep(TIME_UNITS unit) const
{
    return IsUnit(unit) ? aSteps[unit] : 0;
}

void TimeStep::SetStep(TIME_UNITS unit, int count)
{
    if (IsUnit(unit)) {
        aSteps[unit] = count;
    }
}

std::string TimeStep::GetStepAsString(TIME_UNITS unit) const
{
    return std::to_string(GetStep(unit));
}

AstroTime operator+(const AstroTime& time, const TimeStep& step)
{
    AstroTime moved(time);
    moved += step;
    return moved;
}

AstroTime operator-(const AstroTime& time, const TimeStep& step)
{
    AstroTime moved(time);
    moved -= step;
    return moved;
}

namespace {

// The key of one unit's count: "step0" for years to "step5" for seconds.
AstroKey UnitKey(int unit)
{
    char name[16];
    std::snprintf(name, sizeof name, "step%d", unit);
    return AstroKey(name);
}

} // namespace

StateContainer& operator<<(StateContainer& sc, const TimeStep& step)
{
    sc << NewLevel;
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        sc << UnitKey(unit) << step.GetStep(static_cast<TimeStep::TIME_UNITS>(unit));
    }
    return sc << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, TimeStep& step)
{
    sc >> GoToLevel;
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        int count = 0;
        sc >> UnitKey(unit) >> count;
        step.SetStep(static_cast<TimeStep::TIME_UNITS>(unit), count);
    }
    return sc >> EndLevel;
}
