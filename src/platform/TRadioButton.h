#pragma once
// A radio button: a button of the style BS_AUTORADIOBUTTON. Radio buttons form a group from one
// with WS_GROUP up to the next control with WS_GROUP.
#include "platform/TCheckBox.h"

class TRadioButton : public TCheckBox
{
public:
    TRadioButton(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
                 TModule* module = nullptr);
    TRadioButton(TWindow* parent, int resourceId, TModule* module = nullptr);
};
