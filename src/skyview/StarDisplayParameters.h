#pragma once
// How stars look: up to which magnitude they are shown, how magnitude becomes a size in
// pixels and a grey level, which shape is drawn and which stars get labels. This is the
// user's own state: it goes into bookmarks and is edited in the star display dialogs.
//
// Sizes are given in inches and turned into pixels for the device at hand, so a printed chart
// shows stars as large on paper as the screen does. No star is smaller than 2 pixels. The
// size grows linearly with brightness over SizeMagnitudeRange; the grey level grows
// geometrically over IntensityMagnitudeRange, so that equal steps in magnitude give equal
// ratios of grey.
#include <cstdint>
#include <string>
#include <vector>

class FontRef;
class StateContainer;
class TDC;

class StarDisplayParameters
{
public:
    struct DoubleRange
    {
        double Lower;
        double Upper;
    };
    struct IntegerRange
    {
        std::uint32_t Lower;
        std::uint32_t Upper;
    };

    // Shapes of a star.
    static constexpr std::uint32_t kRayShape = 0;
    static constexpr std::uint32_t kRoundShape = 1;
    // Label types.
    static constexpr std::uint32_t kNoLabels = 0;
    static constexpr std::uint32_t kPopularNameLabels = 1;

    // The defaults, with the scales worked out for the screen.
    StarDisplayParameters();
    virtual ~StarDisplayParameters() = default;
    StarDisplayParameters(const StarDisplayParameters&) = default;
    StarDisplayParameters& operator=(const StarDisplayParameters&) = default;

    // Size in pixels, from SizePixels.lower for stars at or fainter than the upper end of
    // SizeMagnitudeRange up to SizePixels.upper.
    unsigned GetSizeFromMagnitude(double magnitude) const;
    // Grey level, IntensityRange.lower at and beyond the upper end of IntensityMagnitudeRange
    // up to IntensityRange.upper; inverted when printing, as stars are then dark on white.
    unsigned GetIntensityFromMagnitude(double magnitude) const;

    // Works out SizePixels and SizeScale for the horizontal resolution of `dc`, or of the
    // screen when it is null.
    void CalculateSizeScale(const TDC* dc);
    void CalculateIntensityScale();

    // Appends the names of the label types in their order: "None", "Popular Name".
    static void GetLabelTypeNames(std::vector<std::string>& names);

    // The font of star labels for the vertical resolution of `dc`: "Arial", 0.14 inch high.
    // One FontRef serves all stars until a surface of another resolution asks; then a new one
    // is made and the old one stays alive for as long as labels hold it. Labels compare this
    // pointer with their own to know whether they are still current.
    static FontRef* GetLabelFontRef(const TDC& dc);

    // Every member, the worked-out ones too.
    void Copy(const StarDisplayParameters& other) { *this = other; }

    std::uint32_t GetShape() const { return Shape; }
    void SetShape(std::uint32_t shape) { Shape = shape; }
    std::uint32_t GetLabelType() const { return LabelType; }
    void SetLabelType(std::uint32_t type) { LabelType = type; }
    double GetLimitingMagnitude() const { return LimitingMagnitude; }
    void SetLimitingMagnitude(double magnitude) { LimitingMagnitude = magnitude; }
    double GetLimitingMagnitudeLabels() const { return LimitingMagnitudeLabels; }
    void SetLimitingMagnitudeLabels(double magnitude) { LimitingMagnitudeLabels = magnitude; }
    bool IsPrinting() const { return bPrinting; }
    void SetPrinting(bool printing) { bPrinting = printing; }

    // Stars fainter than this are not collected.
    double LimitingMagnitude = 6.0;
    // Magnitudes over which the size changes.
    DoubleRange SizeMagnitudeRange = {-1.0, 3.0};
    // Star sizes in inches.
    DoubleRange SizeRange = {0.01, 0.1};
    // SizeRange in pixels on the present device.
    IntegerRange SizePixels = {2, 2};
    // Magnitudes over which the grey level changes.
    DoubleRange IntensityMagnitudeRange = {3.0, 6.0};
    // Grey levels, 0 to 255.
    IntegerRange IntensityRange = {70, 255};
    // Pixels per magnitude.
    double SizeScale = 0.0;
    // Factor of grey level per magnitude.
    double IntensityScale = 1.0;
    // kRayShape or kRoundShape; other values draw nothing.
    std::uint32_t Shape = kRayShape;
    std::uint32_t LabelType = kNoLabels;
    // Stars fainter than this get no label.
    double LimitingMagnitudeLabels = 2.0;
    // Drawing for a printer, on white: intensities are inverted and labels are black.
    bool bPrinting = false;

private:
    // The shared label font and the vertical resolution it was made for; null and 0 at first.
    static FontRef* psLabelFontRef;
    static int nDCScaleForCurrentFont;
};

// State: a level at the caller's key with "Limiting Magnitude", "Size Magnitude Range",
// "Size Range", "Intensity Magnitude Range", "Intensity Range" (each a level with "Upper" and
// "Lower"), "Shape", "Label Type" and "Limiting Magnitude Labels". The printing flag and the
// worked-out values are not state.
StateContainer& operator<<(StateContainer& sc, const StarDisplayParameters& parameters);
StateContainer& operator>>(StateContainer& sc, StarDisplayParameters& parameters);
