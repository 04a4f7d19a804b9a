#include "shell/StopAnimationDialog.h"

#include "host/HostWindowStrings.h"
#include "shell/AstroDialogTemplates.h"

StopAnimationDialog::StopAnimationDialog(TWindow* parent, const std::string& caption)
    : HostCenterDialog(parent, TResId(AstroDialogTemplates::kStopAnimation)), Caption(caption)
{
    AstroDialogTemplates::Register();
}

void StopAnimationDialog::SetupWindow()
{
    HostCenterDialog::SetupWindow();
    replaceHostChildWindowStrings(5, HWindow);
    SetCaption(Caption);
}
