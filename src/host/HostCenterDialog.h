#pragma once
// A dialog that opens centred over its parent window, or over the screen without one, and
// kept wholly on the screen.
#include "platform/TDialog.h"

class HostCenterDialog : public TDialog
{
public:
    using TDialog::TDialog;

    // Places the dialog, then does what TDialog does.
    void SetupWindow() override;
};
