#pragma once
// The small dialog that stands while a time lapse runs: one line that says so and a Stop
// button. Whatever closes it (the button, Escape, the window's close box) ends the lapse, which
// is the business of whoever runs it; the lapse's timer keeps the map moving behind it.
#include <string>

#include "host/HostCenterDialog.h"

class StopAnimationDialog : public HostCenterDialog
{
public:
    StopAnimationDialog(TWindow* parent, const std::string& caption);

    void SetupWindow() override;

private:
    std::string Caption;
};
