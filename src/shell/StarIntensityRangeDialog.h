#pragma once
// The dialog of the brightness law: the grey level (0 to 255) of the dimmest stars and of the
// brightest, and the magnitudes at which each begins. Its samples are drawn over the same
// magnitudes at small steady sizes, so that the brightness is what the eye compares.
#include "shell/StarRangeDialog.h"

class StarIntensityRangeDialog : public StarRangeDialog
{
public:
    // The brightest grey level; the sliders move by one level.
    static constexpr int kSliderRange = 255;

    StarIntensityRangeDialog(TWindow* parent, const StarDisplayParameters& parameters);

protected:
    StarDisplayParameters::DoubleRange& Magnitudes() override;
    int DimmerPosition() const override;
    int BrighterPosition() const override;
    void TakePositions(int dimmer, int brighter) override;
};
