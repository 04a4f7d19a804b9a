#pragma once
// A sky object for the label tests: it stands at a point, may cover a rectangle as a picture
// does, and carries a label of its own when it has a text, as stars and planets do.
#include <memory>
#include <string>

#include "catalogues/AstroObject.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"

class MarkedObject : public AstroObject
{
public:
    MarkedObject(const TPoint& point, const std::string& text, FontRef& font,
                 const TRect& picture = TRect())
        : AstroObject(ObjectType::OtherObject), Point(point), Picture(picture),
          Own(text, *this, font, TColor::White), bLabeled(!text.empty())
    {}

    PolarCoord GetPosition() const override { return PolarCoord(); }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override
    {
        Point = point;
        Own.UpdateObjectPoint();
    }
    bool IsTimeDependent() const override { return false; }
    bool IsLabeled(const DisplayParameters&) const override { return bLabeled; }
    Label* GetLabel(DisplayParameters&) override { return bGivesLabel ? &Own : nullptr; }
    bool HasDisplayRect() const override { return !Picture.IsEmpty(); }
    TRect GetDisplayRect(DisplayParameters&) const override { return Picture; }
    void Draw(TDC&, DisplayParameters&) override {}

    // A label that stands centred on the object's point, as a constellation's name does.
    void MakeFixed() { Own.SetFixedPoint(Point, true); }
    // Says it is labelled but has no label to give.
    void GiveNoLabel() { bGivesLabel = false; }
    Label& GetOwnLabel() { return Own; }

private:
    TPoint Point;
    TRect Picture;
    Label Own;
    bool bLabeled;
    bool bGivesLabel = true;
};

// The star label font at 96 dots per inch, "Arial" 13 pixels high, in a FontRef of its own:
// "X" measures 8 by 14 pixels, "I" 3 by 14 and "-" 4 by 14.
inline FontRef* NewTestLabelFont()
{
    return new FontRef(std::make_unique<TFont>("Arial", 13, 0, 0, 0, FW_NORMAL, 0, false, false,
                                               false, DEFAULT_CHARSET));
}
