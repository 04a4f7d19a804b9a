#include "platform/TCheckBox.h"

TCheckBox::TCheckBox(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
                     TModule* module)
    : TButton(parent, id, text, x, y, width, height, false, module)
{
    Attr.Style = (Attr.Style & ~BS_TYPEMASK) | BS_AUTOCHECKBOX;
}

TCheckBox::TCheckBox(TWindow* parent, int resourceId, TModule* module)
    : TButton(parent, resourceId, module)
{
    Attr.Style |= BS_AUTOCHECKBOX;
}
