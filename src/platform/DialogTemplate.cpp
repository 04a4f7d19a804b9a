#include "platform/DialogTemplate.h"

#include <map>

#include "catalogues/LorvString.h"
#include "platform/TFont.h"
#include "platform/TMemoryDC.h"

namespace {

std::map<std::string, DialogTemplate, NoCaseLess>& Resources()
{
    static std::map<std::string, DialogTemplate, NoCaseLess> resources;
    return resources;
}

// a * b / c to the nearest whole number.
int MulDiv(int a, int b, int c)
{
    long long n = (long long)a * b;
    return int(n >= 0 ? (n + c / 2) / c : (n - c / 2) / c);
}

} // namespace

DialogItemTemplate DialogItemTemplate::PushButton(const std::string& text, int id, int x, int y,
                                                  int cx, int cy, bool isDefault)
{
    return DialogItemTemplate{
        "BUTTON",
        text,
        id,
        x,
        y,
        cx,
        cy,
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON)};
}

DialogItemTemplate DialogItemTemplate::CheckBox(const std::string& text, int id, int x, int y,
                                                int cx, int cy)
{
    return DialogItemTemplate{
        "BUTTON", text, id, x, y, cx, cy, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX};
}

DialogItemTemplate DialogItemTemplate::RadioButton(const std::string& text, int id, int x, int y,
                                                   int cx, int cy, bool startsGroup)
{
    return DialogItemTemplate{
        "BUTTON",
        text,
        id,
        x,
        y,
        cx,
        cy,
        WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | (startsGroup ? WS_GROUP | WS_TABSTOP : 0)};
}

DialogItemTemplate DialogItemTemplate::GroupBox(const std::string& text, int id, int x, int y,
                                                int cx, int cy)
{
    return DialogItemTemplate{"BUTTON", text, id, x,
                              y,        cx,   cy, WS_CHILD | WS_VISIBLE | BS_GROUPBOX};
}

DialogItemTemplate DialogItemTemplate::Label(const std::string& text, int id, int x, int y, int cx,
                                             int cy, DWORD align)
{
    return DialogItemTemplate{"STATIC", text, id, x, y, cx, cy, WS_CHILD | WS_VISIBLE | align};
}

DialogItemTemplate DialogItemTemplate::Edit(int id, int x, int y, int cx, int cy, DWORD extraStyle)
{
    return DialogItemTemplate{
        "EDIT", "",
        id,     x,
        y,      cx,
        cy,     WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | extraStyle};
}

DialogItemTemplate DialogItemTemplate::ListBox(int id, int x, int y, int cx, int cy,
                                               DWORD extraStyle)
{
    return DialogItemTemplate{
        "LISTBOX",
        "",
        id,
        x,
        y,
        cx,
        cy,
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY | extraStyle};
}

DialogItemTemplate DialogItemTemplate::ComboBox(int id, int x, int y, int cx, int cy, DWORD kind)
{
    return DialogItemTemplate{
        "COMBOBOX", "", id, x, y, cx, cy, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | kind};
}

DialogItemTemplate DialogItemTemplate::ScrollBar(int id, int x, int y, int cx, int cy,
                                                 bool vertical)
{
    return DialogItemTemplate{
        "SCROLLBAR", "", id, x,
        y,           cx, cy, WS_CHILD | WS_VISIBLE | (vertical ? SBS_VERT : SBS_HORZ)};
}

TFont DialogTemplate::MakeFont() const
{
    std::string face = FontName;
    if (face.empty() || EqualNoCase(face, "MS Sans Serif") || EqualNoCase(face, "MS Shell Dlg") ||
        EqualNoCase(face, "MS Shell Dlg 2") || EqualNoCase(face, "System")) {
        face = "Arial";
    }
    // Points to pixels at the screen's 96 pixels per inch.
    int points = PointSize > 0 ? PointSize : 8;
    return TFont(face.c_str(), -MulDiv(points, 96, 72));
}

DialogBaseUnits DialogBaseUnits::Of(const TFont& font)
{
    TMemoryDC dc;
    dc.SelectObject(font);
    // The width of the 52 letters, as Windows measures a dialog font.
    TSize letters = dc.GetTextExtent("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(metrics);
    return DialogBaseUnits{(letters.cx / 26 + 1) / 2, metrics.tmHeight};
}

int DialogBaseUnits::ToPixelsX(int units) const
{
    return MulDiv(units, X, 4);
}

int DialogBaseUnits::ToPixelsY(int units) const
{
    return MulDiv(units, Y, 8);
}

TRect DialogBaseUnits::ToPixels(int x, int y, int cx, int cy) const
{
    // Each edge on its own, as MapDialogRect does.
    return TRect(ToPixelsX(x), ToPixelsY(y), ToPixelsX(x + cx), ToPixelsY(y + cy));
}

void AddDialogResource(const TResId& id, DialogTemplate dialogTemplate)
{
    Resources()[id.GetName()] = std::move(dialogTemplate);
}

const DialogTemplate* FindDialogResource(const TResId& id)
{
    auto found = Resources().find(id.GetName());
    return found == Resources().end() ? nullptr : &found->second;
}
