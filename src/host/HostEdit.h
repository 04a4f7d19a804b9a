#pragma once
// The host's one-line edit field: a plain edit field that Escape empties, as the search
// fields of the host's panels are cleared.
#include "platform/TEdit.h"

class HostEdit : public TEdit
{
public:
    // A field at no place yet (its parent lays it out), holding at most `textLimit` characters.
    HostEdit(TWindow* parent, int id, UINT textLimit);

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
};
