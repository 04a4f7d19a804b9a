#include "shell/AnimationDialog.h"

#include <algorithm>
#include <limits>
#include <sstream>

#include "host/HostStringTable.h"
#include "shell/AstroDialogTemplates.h"

namespace {

constexpr short kCaption = 0xaf0;

} // namespace

const int AnimationDialog::kStepFields[TimeStep::UnitCount] = {kYears, kMonths,  kDays,
                                                               kHours, kMinutes, kSeconds};

AnimationDialog::AnimationDialog(TWindow* parent, const AnimationSettings& settings)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kAnimation))
{
    Settings.Copy(settings);
}

std::string AnimationDialog::GetHelpKey() const
{
    return ProfileHelpKey("AnimationDialogHelpKey", "Time Lapse");
}

void AnimationDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        SetDlgItemText(kStepFields[unit],
                       Settings.GetStepAsString(static_cast<TimeStep::TIME_UNITS>(unit)));
    }
    std::ostringstream seconds;
    seconds << Settings.GetSecondsPerStep();
    SetDlgItemText(kSecondsPerStep, seconds.str());
}

AnimationSettings AnimationDialog::ReadFields() const
{
    TimeStep step;
    for (int unit = 0; unit < TimeStep::UnitCount; ++unit) {
        long count =
            std::clamp<long>(ReadInteger(kStepFields[unit]), std::numeric_limits<int>::min(),
                             std::numeric_limits<int>::max());
        step.SetStep(static_cast<TimeStep::TIME_UNITS>(unit), int(count));
    }
    return AnimationSettings(step, ReadNumber(kSecondsPerStep));
}

void AnimationDialog::CmOk()
{
    Settings.Copy(ReadFields());
    AstroDialog::CmOk();
}

void AnimationDialog::CmStart()
{
    Settings.Copy(ReadFields());
    CloseWindow(kStart);
}

const TResponseRow* AnimationDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        CmRow<kStart, &AnimationDialog::CmStart>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
