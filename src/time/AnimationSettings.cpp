#include "time/AnimationSettings.h"

#include "state/StateContainer.h"

namespace {

// The lapse a new map starts with: four minutes of sky time every two real seconds.
constexpr int DefaultStepMinutes = 4;
constexpr double DefaultSecondsPerStep = 2.0;

} // namespace

AnimationSettings::AnimationSettings()
    : TimeStep(MINUTES, DefaultStepMinutes), SecondsPerStep(DefaultSecondsPerStep)
{}

AnimationSettings::AnimationSettings(const TimeStep& step, double secondsPerStep)
    : TimeStep(step), SecondsPerStep(secondsPerStep)
{}

void AnimationSettings::Copy(const AnimationSettings& other)
{
    TimeStep::Copy(other);
    SecondsPerStep = other.SecondsPerStep;
}

StateContainer& operator<<(StateContainer& sc, const AnimationSettings& settings)
{
    return sc << NewLevel << AstroKey("Time Step") << settings.GetTimeStep()
              << AstroKey("Seconds Per Step") << settings.GetSecondsPerStep() << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, AnimationSettings& settings)
{
    TimeStep step;
    double secondsPerStep = 0.0;
    sc >> GoToLevel >> AstroKey("Time Step") >> step >> AstroKey("Seconds Per Step") >>
        secondsPerStep >> EndLevel;
    settings.SetTimeStep(step);
    settings.SetSecondsPerStep(secondsPerStep);
    return sc;
}
