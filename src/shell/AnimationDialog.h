#pragma once
// The dialog of the time lapse's pace: the step in its six calendar units, whole numbers, and
// the real seconds between two steps. OK keeps the new pace; the start button keeps it too and
// closes with kStart, which tells the caller to start the lapse at once.
#include "shell/AstroDialog.h"
#include "time/AnimationSettings.h"

class AnimationDialog : public AstroDialog
{
public:
    // Control ids: the step's fields, the seconds per step and the start button, which is
    // also the result that the start gives Execute.
    static constexpr int kYears = 0x12d;
    static constexpr int kDays = 0x12e;
    static constexpr int kHours = 0x12f;
    static constexpr int kMonths = 0x130;
    static constexpr int kSeconds = 0x131;
    static constexpr int kMinutes = 0x132;
    static constexpr int kSecondsPerStep = 0x133;
    static constexpr int kStart = 0x134;

    AnimationDialog(TWindow* parent, const AnimationSettings& settings);

    // The result, after OK or the start.
    const AnimationSettings& GetAnimationSettings() const { return Settings; }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;
    void CmStart();
    const TResponseRow* Find(const TEventInfo& event) const override;

    // The field of each unit of the step, in the order of TimeStep::TIME_UNITS.
    static const int kStepFields[TimeStep::UnitCount];

private:
    // The pace the fields show.
    AnimationSettings ReadFields() const;

    AnimationSettings Settings;
};
