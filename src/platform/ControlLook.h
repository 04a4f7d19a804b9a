#pragma once
// The one plain look of every control: flat faces, one-pixel borders, black text on light grey
// or white, and the blue of a selection. The system colours and metrics that GetSysColor and
// GetSystemMetrics answer come from here, and so does the GUI font (Arial at 8 points), the
// font of dialogs and controls.
#include "platform/TColor.h"
#include "platform/TFont.h"
#include "platform/TRect.h"
#include "platform/WinTypes.h"

class TDC;

class ControlLook
{
public:
    // The colour of a COLOR_... index; black for an index it does not know.
    static COLORREF GetColor(int index);
    // The answer to GetSystemMetrics for an SM_... index; 0 for one it does not know.
    static int GetMetric(int index);
    static const TFont& GetFont();

    // A border of one pixel just inside the rectangle.
    static void DrawBorder(TDC& dc, const TRect& rect, COLORREF color);
    // The face of a push button: pressed darker, the default button with a second border.
    static void DrawButtonFace(TDC& dc, const TRect& rect, bool pressed, bool isDefault,
                               bool enabled);
    // The box of a check box or the circle of a radio button, checked or not, at `box`.
    static void DrawCheckBox(TDC& dc, const TRect& box, bool checked, bool enabled);
    static void DrawRadio(TDC& dc, const TRect& box, bool checked, bool enabled);
    // A tick in a box, as menus and check boxes draw it.
    static void DrawTick(TDC& dc, const TRect& box, COLORREF color);
    // A solid triangle pointing up (or down) centred in the rectangle.
    static void DrawArrow(TDC& dc, const TRect& rect, bool up, COLORREF color);
    // A triangle pointing right, for menu items that open a submenu.
    static void DrawRightArrow(TDC& dc, const TRect& rect, COLORREF color);
    // The dotted outline of the control that holds the focus.
    static void DrawFocus(TDC& dc, const TRect& rect);
};

// The plain calls for the system colours and metrics.
COLORREF GetSysColor(int index);
int GetSystemMetrics(int index);
