#pragma once
// A sky object a test puts on the map or hands to the labels: it stands at a sky position and a
// display point, is shown whatever the limiting magnitude as one white pixel, may cover a
// rectangle as a picture does, and carries a label of its own when given a font.
#include <cstdint>
#include <memory>
#include <string>

#include "catalogues/AstroObject.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "skyview/Label.h"

class MarkedObject : public AstroObject
{
public:
    MarkedObject(ObjectType type, const PolarCoord& position, const std::string& name,
                 std::uint32_t uid = 0, FontRef* font = nullptr, const TRect& picture = TRect())
        : AstroObject(type), Position(position), nUid(uid), Picture(picture)
    {
        if (font) {
            pOwn = std::make_unique<Label>(name, *this, *font, TColor::White);
        }
    }
    // An object at a display point, labelled when it has a name.
    MarkedObject(const TPoint& point, const std::string& name, FontRef& font,
                 const TRect& picture = TRect())
        : MarkedObject(ObjectType::OtherObject, PolarCoord(), name, 0,
                       name.empty() ? nullptr : &font, picture)
    {
        SetDisplayPoint(point);
    }

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return -50.0; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override
    {
        Point = point;
        if (pOwn) {
            pOwn->UpdateObjectPoint();
        }
    }
    bool IsTimeDependent() const override { return false; }
    bool IsLabeled(const DisplayParameters&) const override { return pOwn != nullptr; }
    Label* GetLabel(DisplayParameters&) override { return bGivesLabel ? pOwn.get() : nullptr; }
    bool HasDisplayRect() const override { return !Picture.IsEmpty(); }
    TRect GetDisplayRect(DisplayParameters&) const override { return Picture; }
    std::uint32_t GetUid() const override { return nUid; }
    void Draw(TDC& dc, DisplayParameters&) override { dc.SetPixel(Point, TColor::White); }

    // Says it is labelled but has no label to give.
    void GiveNoLabel() { bGivesLabel = false; }

private:
    PolarCoord Position;
    std::uint32_t nUid;
    TRect Picture;
    TPoint Point;
    std::unique_ptr<Label> pOwn;
    bool bGivesLabel = true;
};

// The star label font at 96 dots per inch, "Arial" 13 pixels high, in a FontRef of its own:
// "X" measures 8 by 14 pixels and "I" 3 by 14.
inline FontRef* NewTestLabelFont()
{
    return new FontRef(std::make_unique<TFont>("Arial", 13, 0, 0, 0, FW_NORMAL, 0, false, false,
                                               false, DEFAULT_CHARSET));
}
