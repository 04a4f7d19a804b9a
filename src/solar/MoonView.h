#pragma once
// The Moon on the sky map: a picture of its phase, half a degree across, that grows with the
// field. Place 10 of the planet catalogue, last, so that the Earth has its time first; uid
// offset 310.
//
// The five pictures "MOON1" to "MOON5" are pictures of the module, each standing for a range of
// the phase (the Moon's elongation from the Sun, degrees, 0 new, 180 full): up to 45 a waxing
// crescent, to 135 the first quarter, to 225 the full Moon, to 315 the last quarter, and to 360
// a waning crescent. A new picture is taken only when the phase or the printing flag changes;
// on paper its colours are inverted so that the Moon stands dark on the white page.
#include <memory>

#include "catalogues/AstroBitmap.h"
#include "solar/Moon.h"
#include "solar/PlanetView.h"

class TDib;
class Transformation;

class MoonView : public PlanetView
{
public:
    // The angular size of the picture, the Moon's mean apparent diameter rounded.
    static constexpr double kAngularSize = 0.5;

    // Starts with the full Moon's picture.
    MoonView(SolarSystemObject& earth, SolarSystemObject& sun);
    ~MoonView() override;

    // -12, whatever the phase.
    double GetMagnitude() const override { return -12.0; }
    bool HasDisplayRect() const override { return true; }
    // The pixels the scaled picture covers; the device bitmap is made first when needed.
    TRect GetDisplayRect(DisplayParameters& parameters) const override;
    void SetDisplayPoint(const TPoint& point) override;
    void Draw(TDC& dc, DisplayParameters& parameters) override;

    SolarSystemObject& GetSolarSystemObject() const override { return Body; }
    Moon& GetMoon() const { return Body; }

    // The name of the picture for a phase in degrees.
    static const char* GetPhaseBitmapName(const DegreeAngle& phase);
    // The orientation of the Moon in a view, degrees: the position angle of the Moon about the
    // zenith, in a frame whose up is the centre of view, and that of the celestial pole about
    // the Moon, in a frame whose up is the zenith, both taken from a full turn and added. Each
    // draw hands it to the bitmap; a phase picture, being handed in, is not turned by it, and
    // a change of it only makes the device bitmap anew.
    static DegreeAngle GetOrientationAngle(const Transformation& view, const PolarCoord& position);

    // What is shown at present.
    const DegreeAngle& GetShownPhase() const { return ShownPhase; }
    bool IsShownForPrinting() const { return bShownForPrinting; }
    const TDib* GetPhaseDib() const { return pPhaseDib.get(); }
    const AstroBitmap& GetBitmap() const { return Bitmap; }

private:
    // Takes the picture for a phase from the module, inverted for printing, and hands it to
    // the bitmap.
    void LoadPhaseBitmap(const DegreeAngle& phase, bool printing);

    mutable Moon Body;
    // The device bitmap is a cache of the picture at the present scale, so it is made even
    // where only the rectangle is asked for.
    mutable AstroBitmap Bitmap;
    DegreeAngle ShownPhase{180.0};
    bool bShownForPrinting = false;
    std::unique_ptr<TDib> pPhaseDib;
};
