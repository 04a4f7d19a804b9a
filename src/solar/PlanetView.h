#pragma once
// A body of the solar system as a sky object: the wrapper that lets the map list, draw and look
// up a SolarSystemObject, which knows nothing of the map. Each subclass holds its body by
// value, as a part of itself, and says which it is through GetSolarSystemObject.
//
// Places are asked of the origin, the body the sky is seen from (the Earth), so a view shows
// nothing until the catalogue has given it one. The body the observer stands on is not
// visible. Positions are apparent right ascension and declination of the date, in degrees.
//
// A planet is drawn as a star of its magnitude; the Sun, the Moon and the comets draw
// themselves otherwise.
#include <cstdint>
#include <memory>
#include <string>

#include "catalogues/AstroObject.h"

class FontRef;
class Label;
class SolarSystemObject;

class PlanetView : public AstroObject
{
public:
    ~PlanetView() override;

    // False for the body the observer stands on.
    bool IsVisible() const override;
    // The body's apparent place seen from the origin, degrees; (0, 0) without an origin.
    PolarCoord GetPosition() const override;
    // The body's magnitude seen from the origin; 99 without an origin.
    double GetMagnitude() const override;
    const TPoint& GetDisplayPoint() const override { return displayPoint; }
    // Sets the body's time; its record follows at the next question.
    void SetTime(const AstroTime& time) override;
    bool IsTimeDependent() const override { return true; }
    // The catalogue's label option as last handed down.
    bool IsLabeled(const DisplayParameters& parameters) const override;
    // The view's own label: the body's name in "Times New Roman", 0.16 inch high on the
    // parameters' surface, white, or black when made for paper. All bodies share one font;
    // a surface of another resolution makes a new one, and each label is made anew once it
    // holds a font that is no longer the shared one. Null without a surface.
    Label* GetLabel(DisplayParameters& parameters) override;
    // 0x70000000 plus the offset that tells the body.
    std::uint32_t GetUid() const override { return kUidBase + nUidOffset; }
    // Stores the point and moves the label's line end with it.
    void SetDisplayPoint(const TPoint& point) override;
    // A star of the body's magnitude, worked out anew on every draw.
    void Draw(TDC& dc, DisplayParameters& parameters) override;
    bool HasListName() const override { return true; }
    bool HasInfoName() const override { return true; }
    // All three are the body's name.
    std::string GetListName() const override;
    std::string GetInfoName() const override;
    std::string GetRefName() const override;
    // By list name, without regard to case.
    bool IsLessThan(const AstroObject& other) const override;
    bool IsListSorted() const override { return true; }

    // Distance from the origin in AU; 0 without an origin.
    virtual double GetDistance() const;
    // The body this view shows.
    virtual SolarSystemObject& GetSolarSystemObject() const = 0;

    void SetOrigin(SolarSystemObject& newOrigin) { origin = &newOrigin; }
    SolarSystemObject* GetOrigin() const { return origin; }
    // The catalogue hands its label option down through this.
    void SetShowLabel(bool show) { bShowLabel = show; }
    // The label made by the last GetLabel, or null.
    const Label* GetCachedLabel() const { return pLabel.get(); }

protected:
    PlanetView(ObjectType type, std::uint32_t uidOffset);

    SolarSystemObject* origin = nullptr;
    TPoint displayPoint;
    bool bShowLabel = false;
    std::unique_ptr<Label> pLabel;

private:
    // The label font of all bodies and the vertical resolution it was made for.
    static FontRef* psLabelFontRef;
    static int nLabelFontResolution;

    std::uint32_t nUidOffset;
};
