#pragma once
// A check box: a button of the style BS_AUTOCHECKBOX unless told otherwise.
#include "platform/TButton.h"

class TCheckBox : public TButton
{
public:
    TCheckBox(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
              TModule* module = nullptr);
    TCheckBox(TWindow* parent, int resourceId, TModule* module = nullptr);

    void Check() { SetCheck(BST_CHECKED); }
    void Uncheck() { SetCheck(BST_UNCHECKED); }
    void Toggle() { SetCheck(GetCheck() == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED); }
    bool IsChecked() const { return GetCheck() == BST_CHECKED; }
};
