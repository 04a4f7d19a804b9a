#pragma once
// The base of the controls: a child window with an id that tells its parent what happens by
// WM_COMMAND notifications (the id in the low word, the code in the high word, the control's
// handle in lParam) and asks its parent for its colours by WM_CTLCOLOR... messages.
//
// A control made with a resource id alone stands for a control of its parent dialog's
// template: the dialog gives it place, text and style when it builds the template.
#include <string>

#include "platform/TBrush.h"
#include "platform/TWindow.h"

class TControl : public TWindow
{
public:
    // A control at a place in its parent's client area, in pixels.
    TControl(TWindow* parent, int id, const char* title, int x, int y, int width, int height,
             TModule* module = nullptr);
    // The control of a dialog template with this id.
    TControl(TWindow* parent, int resourceId, TModule* module = nullptr);

    // Made from a resource id: its place comes from the dialog's template.
    bool IsFromResource() const { return bFromResource; }

protected:
    // Tells the parent: WM_COMMAND with the control's id and `code`.
    void Notify(UINT code);
    // Selects the control's font, black text and transparent text background into the context
    // and gives the colour of the control's background: the brush the parent answers to
    // `ctlColorMessage` (which may also change the text colour), or else `fallback`.
    TColor PrepareColors(TDC& dc, UINT ctlColorMessage, TColor fallback);
    // The parent's background, the face colour when it has none: what labels and buttons stand
    // on.
    TColor ParentBackground() const;
    // The text colour for the control's state: grey when disabled.
    TColor TextColor(TDC& dc) const;

private:
    bool bFromResource;
};
