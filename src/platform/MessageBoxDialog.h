#pragma once
// The window of a message box: the text, wrapped to a readable width, a sign for the kind of
// message and the buttons in a row at the bottom right. See MessageBox.h for how it answers.
#include <string>
#include <vector>

#include "platform/TDialog.h"

class MessageBoxDialog : public TDialog
{
public:
    MessageBoxDialog(TWindow* owner, const std::string& text, const std::string& caption,
                     UINT type);

    // The ids of the buttons, in their order.
    const std::vector<int>& GetButtons() const { return aButtons; }
    // What Escape and closing the box answer; 0 when Escape does nothing.
    int GetEscapeAnswer() const;

    void Paint(TDC& dc, bool erase, TRect& rect) override;
    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<int> aButtons;
    UINT nIcon;
    TRect IconRect;
};
