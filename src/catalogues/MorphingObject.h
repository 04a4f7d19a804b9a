#pragma once
// A picture that stands on the sky and fades, for callers of the programmatic interface: a
// morphing object is shown by an AstroBitmap at an angular size and darkens by taking grey
// levels off every entry of its picture's colour table.
//
// The fade has a stage from 0 (the colours as found) to 1 (MaxFade levels taken from each of
// red, green and blue, none going below 0). A new object starts fully faded, at stage 1.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "catalogues/AstroBitmap.h"
#include "catalogues/AstroObject.h"
#include "coords/DegreeAngle.h"

class TDib;

class MorphingObject : public AstroObject
{
public:
    // One entry of the picture's colour table as found: its four bytes and the mean of its
    // three colours. The fade does not use the mean.
    struct ColorInfo
    {
        std::uint8_t rgbBlue;
        std::uint8_t rgbGreen;
        std::uint8_t rgbRed;
        std::uint8_t rgbReserved;
        std::uint32_t Average;
    };

    // Takes over the picture (null for none). The name is not kept.
    MorphingObject(const std::string& name, std::unique_ptr<TDib> dib,
                   const DegreeAngle& angularSize, unsigned maxFade, ObjectType type);
    ~MorphingObject() override;

    // Sets the fade for a stage from 0 to 1 and asks the picture to be made again with the new
    // colours. False, with nothing changed, for a stage outside 0 to 1.
    bool SetStage(double stage);
    // One colour byte at the present fade: `component` less Fade, at least 0.
    std::uint32_t GetModifiedIntensityForStage(std::uint32_t average,
                                               std::uint32_t component) const;

    std::uint32_t GetFade() const { return Fade; }
    std::uint32_t GetMaxFade() const { return MaxFade; }
    const std::vector<ColorInfo>& GetOriginalColorTable() const { return OriginalColors; }
    const TDib* GetDib() const { return pDib.get(); }
    const AstroBitmap& GetBitmap() const { return Bitmap; }

    PolarCoord GetPosition() const override { return Position; }
    double GetMagnitude() const override { return 0.0; }
    const TPoint& GetDisplayPoint() const override { return Bitmap.GetDisplayPoint(); }
    void SetTime(const AstroTime&) override {}
    bool IsTimeDependent() const override { return false; }
    bool IsLabeled(const DisplayParameters&) const override { return false; }
    bool HasDisplayRect() const override { return true; }
    // The pixels the scaled picture covers; the device bitmap is made first when needed.
    TRect GetDisplayRect(DisplayParameters& parameters) const override;
    void SetDisplayPoint(const TPoint& point) override { Bitmap.SetDisplayPoint(point); }
    void Draw(TDC& dc, DisplayParameters& parameters) override;

    virtual void SetPosition(const PolarCoord& position) { Position = position; }

protected:
    // Records every entry of the picture's colour table in OriginalColors.
    void GetOriginalColors();

private:
    std::unique_ptr<TDib> pDib;
    // The device bitmap is a cache of the picture at the present scale, so it is made even
    // where only the rectangle is asked for.
    mutable AstroBitmap Bitmap;
    PolarCoord Position;
    std::uint32_t MaxFade;
    std::uint32_t Fade = 0;
    std::vector<ColorInfo> OriginalColors;
};
