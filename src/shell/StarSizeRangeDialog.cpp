#include "shell/StarSizeRangeDialog.h"

#include <algorithm>
#include <cmath>

#include "shell/AstroDialogTemplates.h"

namespace {

constexpr short kCaption = 0x898;
constexpr std::uint32_t kFullIntensity = 255;

// A size in inches as a slider position, truncated.
int PositionOf(double inches)
{
    const double position = std::trunc(inches / StarSizeRangeDialog::kLargestSizeInches *
                                       StarSizeRangeDialog::kSliderRange);
    return position > 0.0 ? int(std::min(position, double(StarSizeRangeDialog::kSliderRange))) : 0;
}

double InchesOf(int position)
{
    return position * StarSizeRangeDialog::kLargestSizeInches / StarSizeRangeDialog::kSliderRange;
}

} // namespace

StarSizeRangeDialog::StarSizeRangeDialog(TWindow* parent, const StarDisplayParameters& parameters)
    : StarRangeDialog(parent, AstroDialogTemplates::kStarSizeRange, kCaption, parameters,
                      kSliderRange, kSliderStep)
{
    Parameters.IntensityRange = {kFullIntensity, kFullIntensity};
    Parameters.CalculateIntensityScale();
    Parameters.CalculateSizeScale(nullptr);
}

StarDisplayParameters::DoubleRange& StarSizeRangeDialog::Magnitudes()
{
    return Parameters.SizeMagnitudeRange;
}

int StarSizeRangeDialog::DimmerPosition() const
{
    return PositionOf(Parameters.SizeRange.Lower);
}

int StarSizeRangeDialog::BrighterPosition() const
{
    return PositionOf(Parameters.SizeRange.Upper);
}

void StarSizeRangeDialog::TakePositions(int dimmer, int brighter)
{
    Parameters.SizeRange = {InchesOf(dimmer), InchesOf(brighter)};
}
