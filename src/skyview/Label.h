#pragma once
// A short text beside a sky object on the map, with a thin line back to the object when it
// stands away from it.
//
// All points are device pixels of the map. ObjectPoint is where the object stands; the text's
// top-left corner is DisplayPoint and its extent, once measured, Size. LinePoint is where the
// line to the object leaves the text's rectangle: the edge nearer the object across, and the
// top, bottom or middle row along. A fixed label (a constellation's name) stands centred on its
// own point and has no line.
//
// The font is a counted FontRef: every label holds one reference on it, so labels outlive a
// change of font. A hidden label takes no room: its size is (0, 0) and its rectangle empty.
#include <string>

#include "platform/TColor.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TSize.h"

class AstroObject;
class FontRef;
class StateContainer;
class TDC;
class TFont;

class Label
{
public:
    // No text, no font, white.
    Label();
    Label(FontRef& font, const TColor& color);
    // For an object, from its present display point.
    Label(const std::string& text, AstroObject& object, FontRef& font, const TColor& color);
    // For a point that belongs to no object.
    Label(const std::string& text, const TPoint& point, FontRef& font, const TColor& color);
    // These hold the font through a FontRef of their own that leaves the font to its owner.
    Label(TFont& font, const TColor& color);
    Label(const std::string& text, AstroObject& object, TFont& font, const TColor& color);
    Label(const Label& other);
    Label& operator=(const Label& other);
    ~Label();

    // Takes every member of `other`; the font gains a reference.
    void Copy(const Label& other);

    // Measures the text in its font on `dc` and places the rectangle at DisplayPoint.
    void Measure(TDC& dc);
    // The measured extent; (0, 0) while hidden.
    TSize GetSize() const;
    // DisplayPoint with Size; empty while hidden.
    TRect GetDisplayRect() const;
    // Puts the text's top-left corner at `point` and works out where the line meets the text.
    void SetDisplayPoint(const TPoint& point);
    // The text, and unless fixed the line from the text to the object, `lineWidth` pixels
    // wide; nothing while hidden.
    void Draw(TDC& dc, int lineWidth = 1) const;

    // Makes `point` the label's own point; a fixed label stands centred on it without a line.
    void SetFixedPoint(const TPoint& point, bool fixed);
    // Takes the object's display point anew; objects call this when they move.
    void UpdateObjectPoint();

    void Hide() { bHidden = true; }
    void Show() { bHidden = false; }
    bool IsHidden() const { return bHidden; }
    bool IsFixed() const { return bFixed; }
    bool IsMeasured() const { return bMeasured; }
    // The object labelled, or null. It may have been deleted since: compare, do not follow,
    // unless the object is known to be alive.
    AstroObject* GetObject() const { return pObject; }
    const TPoint& GetObjectPoint() const { return ObjectPoint; }
    const TPoint& GetDisplayPoint() const { return DisplayPoint; }
    const TPoint& GetLinePoint() const { return LinePoint; }
    const std::string& GetText() const { return Text; }
    // The font the label holds, or null.
    FontRef* GetFontRef() const { return pFont; }
    const TColor& GetColor() const { return Color; }
    void SetColor(const TColor& color) { Color = color; }

private:
    // Holds one reference on `font`, which may be null.
    void HoldFont(FontRef* font);

    AstroObject* pObject = nullptr;
    TPoint ObjectPoint;
    std::string Text;
    FontRef* pFont = nullptr;
    TColor Color = TColor::White;
    TPoint DisplayPoint;
    TPoint LinePoint;
    bool bMeasured = false;
    TSize Size;
    TRect DisplayRect;
    bool bHidden = false;
    bool bFixed = false;
};

// State: a level at the caller's key holding the colour at "Color".
StateContainer& operator<<(StateContainer& sc, const Label& label);
StateContainer& operator>>(StateContainer& sc, Label& label);
