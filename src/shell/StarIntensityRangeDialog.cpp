#include "shell/StarIntensityRangeDialog.h"

#include <algorithm>

#include "shell/AstroDialogTemplates.h"

namespace {

constexpr short kCaption = 0x8fc;
// The sizes of the samples, in inches.
constexpr StarDisplayParameters::DoubleRange kSampleSizes = {0.03, 0.1};

int PositionOf(std::uint32_t level)
{
    return int(std::min<std::uint32_t>(level, StarIntensityRangeDialog::kSliderRange));
}

} // namespace

StarIntensityRangeDialog::StarIntensityRangeDialog(TWindow* parent,
                                                   const StarDisplayParameters& parameters)
    : StarRangeDialog(parent, AstroDialogTemplates::kStarIntensityRange, kCaption, parameters,
                      kSliderRange, 1)
{
    Parameters.SizeRange = kSampleSizes;
    Parameters.SizeMagnitudeRange = Parameters.IntensityMagnitudeRange;
    Parameters.CalculateIntensityScale();
    Parameters.CalculateSizeScale(nullptr);
}

StarDisplayParameters::DoubleRange& StarIntensityRangeDialog::Magnitudes()
{
    return Parameters.IntensityMagnitudeRange;
}

int StarIntensityRangeDialog::DimmerPosition() const
{
    return PositionOf(Parameters.IntensityRange.Lower);
}

int StarIntensityRangeDialog::BrighterPosition() const
{
    return PositionOf(Parameters.IntensityRange.Upper);
}

void StarIntensityRangeDialog::TakePositions(int dimmer, int brighter)
{
    Parameters.IntensityRange = {std::uint32_t(dimmer), std::uint32_t(brighter)};
}
