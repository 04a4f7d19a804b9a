#include "skyview/Label.h"

#include <cstdlib>

#include "catalogues/AstroObject.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "platform/TPen.h"
#include "skyview/FontRef.h"
#include "state/ColorFontState.h"
#include "state/StateContainer.h"

Label::Label() = default;

Label::Label(FontRef& font, const TColor& color) : Color(color)
{
    HoldFont(&font);
}

Label::Label(const std::string& text, AstroObject& object, FontRef& font, const TColor& color)
    : pObject(&object), ObjectPoint(object.GetDisplayPoint()), Text(text), Color(color)
{
    HoldFont(&font);
}

Label::Label(const std::string& text, const TPoint& point, FontRef& font, const TColor& color)
    : ObjectPoint(point), Text(text), Color(color)
{
    HoldFont(&font);
}

// A new FontRef starts with the one holder that made it: this label.
Label::Label(TFont& font, const TColor& color) : pFont(new FontRef(font)), Color(color)
{}

Label::Label(const std::string& text, AstroObject& object, TFont& font, const TColor& color)
    : pObject(&object), ObjectPoint(object.GetDisplayPoint()), Text(text), pFont(new FontRef(font)),
      Color(color)
{}

Label::Label(const Label& other)
{
    Copy(other);
}

Label& Label::operator=(const Label& other)
{
    Copy(other);
    return *this;
}

Label::~Label()
{
    if (pFont != nullptr) {
        pFont->Release();
    }
}

void Label::HoldFont(FontRef* font)
{
    if (font != nullptr) {
        font->AddReference();
    }
    if (pFont != nullptr) {
        pFont->Release();
    }
    pFont = font;
}

void Label::Copy(const Label& other)
{
    if (this == &other) {
        return;
    }
    HoldFont(other.pFont);
    pObject = other.pObject;
    ObjectPoint = other.ObjectPoint;
    Text = other.Text;
    Color = other.Color;
    DisplayPoint = other.DisplayPoint;
    LinePoint = other.LinePoint;
    bMeasured = other.bMeasured;
    Size = other.Size;
    DisplayRect = other.DisplayRect;
    bHidden = other.bHidden;
    bFixed = other.bFixed;
}

void Label::Measure(TDC& dc)
{
    // A label without a font measures in whatever font the surface has.
    if (pFont != nullptr) {
        dc.SelectObject(pFont->GetFont());
    }
    Size = dc.GetTextExtent(Text);
    if (pFont != nullptr) {
        dc.RestoreFont();
    }
    DisplayRect = TRect(DisplayPoint, Size);
    bMeasured = true;
}

TSize Label::GetSize() const
{
    return bHidden ? TSize() : Size;
}

TRect Label::GetDisplayRect() const
{
    return bHidden ? TRect() : DisplayRect;
}

void Label::SetDisplayPoint(const TPoint& point)
{
    DisplayPoint = point;
    DisplayRect = TRect(point, Size);

    // The line leaves the text from the side nearer the object, at the top when the object is
    // level with it or above, at the bottom when below, and from the middle otherwise.
    const int left = DisplayRect.left;
    const int right = DisplayRect.right;
    LinePoint.x = std::abs(left - ObjectPoint.x) < std::abs(right - ObjectPoint.x) ? left : right;
    if (ObjectPoint.y <= DisplayRect.top) {
        LinePoint.y = DisplayRect.top;
    } else if (ObjectPoint.y >= DisplayRect.bottom) {
        LinePoint.y = DisplayRect.bottom;
    } else {
        LinePoint.y = (DisplayRect.top + DisplayRect.bottom) / 2;
    }
}

void Label::Draw(TDC& dc, int lineWidth) const
{
    if (bHidden) {
        return;
    }
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Color);
    if (pFont != nullptr) {
        dc.SelectObject(pFont->GetFont());
    }
    dc.TextOut(DisplayPoint.x, DisplayPoint.y, Text);
    if (!bFixed) {
        dc.SelectObject(TPen(Color, lineWidth, PS_SOLID));
        dc.MoveTo(LinePoint);
        dc.LineTo(ObjectPoint);
        dc.RestorePen();
    }
    if (pFont != nullptr) {
        dc.RestoreFont();
    }
}

void Label::SetFixedPoint(const TPoint& point, bool fixed)
{
    ObjectPoint = point;
    bFixed = fixed;
}

void Label::UpdateObjectPoint()
{
    if (pObject != nullptr) {
        ObjectPoint = pObject->GetDisplayPoint();
    }
}

StateContainer& operator<<(StateContainer& sc, const Label& label)
{
    return sc << NewLevel << AstroKey("Color") << label.GetColor() << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, Label& label)
{
    TColor color;
    sc >> GoToLevel >> AstroKey("Color") >> color >> EndLevel;
    label.SetColor(color);
    return sc;
}
