#pragma once
// A dialog that opens centred on the window it belongs to: on its parent window itself (a map
// inside a larger frame, say), not on the parent's top-level window, and on the screen when it
// has no parent. It is moved as far as needed to stay wholly on the screen.
#include "platform/TDialog.h"

class HostCenterDialog : public TDialog
{
public:
    HostCenterDialog(TWindow* parent, const TResId& resId, TModule* module = nullptr);

    // The base class's set-up, then the move to the centre.
    void SetupWindow() override;

    // Moves the dialog so that its centre is the centre of the parent's window rectangle.
    void CenterOnParent();
};
