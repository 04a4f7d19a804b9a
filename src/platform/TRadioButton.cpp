#include "platform/TRadioButton.h"

TRadioButton::TRadioButton(TWindow* parent, int id, const char* text, int x, int y, int width,
                           int height, TModule* module)
    : TCheckBox(parent, id, text, x, y, width, height, module)
{
    Attr.Style = (Attr.Style & ~(BS_TYPEMASK | WS_GROUP)) | BS_AUTORADIOBUTTON;
}

TRadioButton::TRadioButton(TWindow* parent, int resourceId, TModule* module)
    : TCheckBox(parent, resourceId, module)
{
    Attr.Style = (Attr.Style & ~BS_TYPEMASK) | BS_AUTORADIOBUTTON;
}
