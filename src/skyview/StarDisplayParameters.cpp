#include "skyview/StarDisplayParameters.h"

#include <cmath>
#include <memory>

#include "platform/DeviceCaps.h"
#include "platform/TDC.h"
#include "platform/TFont.h"
#include "skyview/FontRef.h"
#include "state/StateContainer.h"

namespace {

// No star is drawn smaller than this many pixels.
constexpr std::uint32_t kSmallestStarPixels = 2;
// Magnitude spans narrower than this count as none.
constexpr double kSmallestMagnitudeSpan = 0.001;
// Height of star labels in inches.
constexpr double kLabelHeightInches = 0.14;

// Inches to whole pixels, rounded half up.
std::uint32_t InchesToPixels(double inches, int dotsPerInch)
{
    double pixels = std::trunc(inches * dotsPerInch + 0.5);
    return pixels > 0.0 ? std::uint32_t(pixels) : 0;
}

} // namespace

StarDisplayParameters::StarDisplayParameters()
{
    CalculateIntensityScale();
    CalculateSizeScale(nullptr);
}

void StarDisplayParameters::CalculateSizeScale(const TDC* dc)
{
    // Without a surface the screen's resolution applies.
    int dotsPerInch =
        dc != nullptr ? dc->GetDeviceCaps(LOGPIXELSX) : ScreenDeviceCaps().Get(LOGPIXELSX);
    std::uint32_t lower = InchesToPixels(SizeRange.Lower, dotsPerInch);
    std::uint32_t upper = InchesToPixels(SizeRange.Upper, dotsPerInch);
    if (lower < kSmallestStarPixels) {
        lower = kSmallestStarPixels;
    }
    if (upper < lower) {
        upper = lower;
    }
    SizePixels = {lower, upper};

    double span = SizeMagnitudeRange.Upper - SizeMagnitudeRange.Lower;
    SizeScale = span <= kSmallestMagnitudeSpan ? 0.0 : double(upper - lower) / span;
}

unsigned StarDisplayParameters::GetSizeFromMagnitude(double magnitude) const
{
    double d = SizeMagnitudeRange.Upper - magnitude;
    if (!(d >= 0.0)) {
        return SizePixels.Lower;
    }
    double size = std::trunc(SizePixels.Lower + d * SizeScale + 0.5);
    return size < double(SizePixels.Upper) ? unsigned(size) : SizePixels.Upper;
}

void StarDisplayParameters::CalculateIntensityScale()
{
    double ratio = double(IntensityRange.Upper) / double(IntensityRange.Lower);
    double span = std::fabs(IntensityMagnitudeRange.Upper - IntensityMagnitudeRange.Lower);
    IntensityScale = span <= kSmallestMagnitudeSpan ? 1.0 : std::pow(ratio, 1.0 / span);
}

unsigned StarDisplayParameters::GetIntensityFromMagnitude(double magnitude) const
{
    unsigned value;
    if (IntensityMagnitudeRange.Upper < IntensityMagnitudeRange.Lower) {
        value = IntensityRange.Upper;
    } else if (magnitude >= IntensityMagnitudeRange.Upper) {
        value = IntensityRange.Lower;
    } else {
        double d = IntensityMagnitudeRange.Upper - magnitude;
        double level = IntensityRange.Lower * std::pow(IntensityScale, d);
        // A range that starts at black has an infinite ratio: a step from the lower to the
        // upper level, which is what the limit of the geometric scale is.
        if (!std::isfinite(level) || std::trunc(level) >= double(IntensityRange.Upper)) {
            value = IntensityRange.Upper;
        } else {
            value = unsigned(std::trunc(level));
        }
    }
    if (!bPrinting) {
        return value;
    }
    // On paper stars are dark on white.
    return value >= IntensityRange.Upper ? 0 : IntensityRange.Upper - value;
}

FontRef* StarDisplayParameters::psLabelFontRef = nullptr;
int StarDisplayParameters::nDCScaleForCurrentFont = 0;

FontRef* StarDisplayParameters::GetLabelFontRef(const TDC& dc)
{
    return FontRef::ForResolution(psLabelFontRef, nDCScaleForCurrentFont, dc, "Arial",
                                  kLabelHeightInches);
}

void StarDisplayParameters::GetLabelTypeNames(std::vector<std::string>& names)
{
    names.push_back("None");
    names.push_back("Popular Name");
}

namespace {

StateContainer& WriteRange(StateContainer& sc, const char* key,
                           const StarDisplayParameters::DoubleRange& range)
{
    return sc << AstroKey(key) << NewLevel << AstroKey("Upper") << range.Upper << AstroKey("Lower")
              << range.Lower << EndLevel;
}

StateContainer& WriteRange(StateContainer& sc, const char* key,
                           const StarDisplayParameters::IntegerRange& range)
{
    return sc << AstroKey(key) << NewLevel << AstroKey("Upper") << unsigned(range.Upper)
              << AstroKey("Lower") << unsigned(range.Lower) << EndLevel;
}

StateContainer& ReadRange(StateContainer& sc, const char* key,
                          StarDisplayParameters::DoubleRange& range)
{
    return sc >> AstroKey(key) >> GoToLevel >> AstroKey("Upper") >> range.Upper >>
           AstroKey("Lower") >> range.Lower >> EndLevel;
}

StateContainer& ReadRange(StateContainer& sc, const char* key,
                          StarDisplayParameters::IntegerRange& range)
{
    unsigned upper = 0;
    unsigned lower = 0;
    sc >> AstroKey(key) >> GoToLevel >> AstroKey("Upper") >> upper >> AstroKey("Lower") >> lower >>
        EndLevel;
    range = {lower, upper};
    return sc;
}

} // namespace

StateContainer& operator<<(StateContainer& sc, const StarDisplayParameters& parameters)
{
    sc << NewLevel << AstroKey("Limiting Magnitude") << parameters.LimitingMagnitude;
    WriteRange(sc, "Size Magnitude Range", parameters.SizeMagnitudeRange);
    WriteRange(sc, "Size Range", parameters.SizeRange);
    WriteRange(sc, "Intensity Magnitude Range", parameters.IntensityMagnitudeRange);
    WriteRange(sc, "Intensity Range", parameters.IntensityRange);
    return sc << AstroKey("Shape") << unsigned(parameters.Shape) << AstroKey("Label Type")
              << unsigned(parameters.LabelType) << AstroKey("Limiting Magnitude Labels")
              << parameters.LimitingMagnitudeLabels << EndLevel;
}

StateContainer& operator>>(StateContainer& sc, StarDisplayParameters& parameters)
{
    sc >> GoToLevel >> AstroKey("Limiting Magnitude") >> parameters.LimitingMagnitude;
    ReadRange(sc, "Size Magnitude Range", parameters.SizeMagnitudeRange);
    ReadRange(sc, "Size Range", parameters.SizeRange);
    ReadRange(sc, "Intensity Magnitude Range", parameters.IntensityMagnitudeRange);
    ReadRange(sc, "Intensity Range", parameters.IntensityRange);
    unsigned shape = 0;
    unsigned labelType = 0;
    sc >> AstroKey("Shape") >> shape >> AstroKey("Label Type") >> labelType >>
        AstroKey("Limiting Magnitude Labels") >> parameters.LimitingMagnitudeLabels >> EndLevel;
    parameters.Shape = shape;
    parameters.LabelType = labelType;
    // What was read must not leave the worked-out values of the old settings behind.
    parameters.CalculateIntensityScale();
    parameters.CalculateSizeScale(nullptr);
    return sc;
}
