#pragma once
// A minimal sky object for the list and collector tests: it stands where it is put, and says
// whether it moves with time.
#include "catalogues/AstroObject.h"

class SkyObjectProbe : public AstroObject
{
public:
    explicit SkyObjectProbe(const PolarCoord& position = PolarCoord(), double magnitude = 0.0,
                            bool timeDependent = false)
        : AstroObject(timeDependent ? ObjectType::Planet : ObjectType::OtherObject),
          Position(position), Magnitude(magnitude)
    {}

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return Magnitude; }
    const TPoint& GetDisplayPoint() const override { return Point; }
    void SetDisplayPoint(const TPoint& point) override { Point = point; }
    bool IsTimeDependent() const override { return GetType() == ObjectType::Planet; }
    void Draw(TDC&, DisplayParameters&) override {}

private:
    PolarCoord Position;
    double Magnitude;
    TPoint Point;
};
