#pragma once
// The pace of a time lapse: the step by which the map's time moves at each frame and the real
// seconds between two frames. By default four minutes every two seconds.
#include "time/TimeStep.h"

class StateContainer;

class AnimationSettings : public TimeStep
{
public:
    AnimationSettings();
    AnimationSettings(const TimeStep& step, double secondsPerStep);

    void Copy(const AnimationSettings& other);

    const TimeStep& GetTimeStep() const { return *this; }
    void SetTimeStep(const TimeStep& step) { TimeStep::Copy(step); }
    // Real seconds between two frames; 0 means the lapse does not run.
    double GetSecondsPerStep() const { return SecondsPerStep; }
    void SetSecondsPerStep(double seconds) { SecondsPerStep = seconds; }

    bool operator==(const AnimationSettings& other) const = default;

private:
    double SecondsPerStep;
};

// State: a level at the caller's key holding the step at "Time Step" and the double
// "Seconds Per Step".
StateContainer& operator<<(StateContainer& sc, const AnimationSettings& settings);
StateContainer& operator>>(StateContainer& sc, AnimationSettings& settings);
