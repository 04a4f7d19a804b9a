#pragma once
// A dialog as a resource describes it: title, size and style, font, and the controls with
// their class, text, id, place and style. Places and sizes are in dialog units: a quarter of
// the average character width of the dialog's font across, an eighth of its height down.
//
// Templates are resources of the module: the code that defines a dialog adds its template
// under the dialog's resource id, and TDialog finds it there.
#include <string>
#include <vector>

#include "platform/TRect.h"
#include "platform/TResId.h"
#include "platform/WinTypes.h"

class TFont;

struct DialogItemTemplate
{
    // "BUTTON", "EDIT", "STATIC", "LISTBOX", "COMBOBOX" or "SCROLLBAR"; the kind of button or
    // static comes from the style.
    std::string ClassName;
    std::string Text;
    int Id = -1;
    int X = 0;
    int Y = 0;
    int Cx = 0;
    int Cy = 0;
    DWORD Style = WS_CHILD | WS_VISIBLE;

    // The usual controls, with the styles a resource compiler gives them.
    static DialogItemTemplate PushButton(const std::string& text, int id, int x, int y, int cx,
                                         int cy, bool isDefault = false);
    static DialogItemTemplate CheckBox(const std::string& text, int id, int x, int y, int cx,
                                       int cy);
    static DialogItemTemplate RadioButton(const std::string& text, int id, int x, int y, int cx,
                                          int cy, bool startsGroup = false);
    static DialogItemTemplate GroupBox(const std::string& text, int id, int x, int y, int cx,
                                       int cy);
    static DialogItemTemplate Label(const std::string& text, int id, int x, int y, int cx, int cy,
                                    DWORD align = SS_LEFT);
    static DialogItemTemplate Edit(int id, int x, int y, int cx, int cy, DWORD extraStyle = 0);
    static DialogItemTemplate ListBox(int id, int x, int y, int cx, int cy, DWORD extraStyle = 0);
    // `cy` is the height of the dropped list.
    static DialogItemTemplate ComboBox(int id, int x, int y, int cx, int cy,
                                       DWORD kind = CBS_DROPDOWNLIST);
    static DialogItemTemplate ScrollBar(int id, int x, int y, int cx, int cy, bool vertical = true);
};

struct DialogTemplate
{
    std::string Title;
    int X = 0;
    int Y = 0;
    int Cx = 0;
    int Cy = 0;
    DWORD Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
    std::string FontName = "MS Sans Serif";
    int PointSize = 8;
    std::vector<DialogItemTemplate> Items;

    // The font the template names, as the dialog shows it: the platform's sans-serif (Arial)
    // for "MS Sans Serif", "MS Shell Dlg" and "System".
    TFont MakeFont() const;
};

// The dialog units of a font: the average width of the letters and the height of a line, in
// pixels; a dialog unit is a quarter of the one across and an eighth of the other down.
struct DialogBaseUnits
{
    int X;
    int Y;

    static DialogBaseUnits Of(const TFont& font);
    int ToPixelsX(int units) const;
    int ToPixelsY(int units) const;
    TRect ToPixels(int x, int y, int cx, int cy) const;
};

// The templates of the module, by resource id.
void AddDialogResource(const TResId& id, DialogTemplate dialogTemplate);
// Null when there is none.
const DialogTemplate* FindDialogResource(const TResId& id);
