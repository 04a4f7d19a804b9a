#pragma once
// Buttons: the push button and, by its style, the check box, the radio button and their
// automatic kinds (BS_AUTOCHECKBOX toggles itself, BS_AUTORADIOBUTTON checks itself and clears
// the other radio buttons of its group, the siblings from the last WS_GROUP up to the next).
//
// A click is a press and a release of the left button over it, the space bar, or BM_CLICK; each
// tells the parent BN_CLICKED. A default push button (BS_DEFPUSHBUTTON) is what Enter presses
// in a dialog.
#include "platform/TControl.h"

class TButton : public TControl
{
public:
    TButton(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
            bool isDefault = false, TModule* module = nullptr);
    TButton(TWindow* parent, int resourceId, TModule* module = nullptr);

    // Presses the button as a click would.
    void Click();
    UINT GetCheck() const { return nCheck; }
    void SetCheck(UINT check);
    bool IsPressed() const { return bPressed; }

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    DWORD ButtonType() const { return Attr.Style & BS_TYPEMASK; }
    bool IsCheckKind() const;
    bool IsRadioKind() const;

private:
    void PaintPush(TDC& dc);
    void PaintCheck(TDC& dc);
    void SetPressed(bool pressed);
    void ClearOtherRadios();

    UINT nCheck = BST_UNCHECKED;
    bool bPressed = false;
    bool bTracking = false;
    bool bSpaceDown = false;
};
