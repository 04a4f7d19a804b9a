#pragma once
// The dialog of the size law: the size of the dimmest stars and of the brightest, from 0 to a
// quarter of an inch in steps of 1/80 inch, and the magnitudes at which each begins. Its
// samples are drawn at full brightness, so that they differ in size alone.
#include "shell/StarRangeDialog.h"

class StarSizeRangeDialog : public StarRangeDialog
{
public:
    // The sliders run over this many units up to the largest size, and move by this many.
    static constexpr int kSliderRange = 1000;
    static constexpr int kSliderStep = kSliderRange / 20;
    // The largest size a star may have, in inches.
    static constexpr double kLargestSizeInches = 0.25;

    StarSizeRangeDialog(TWindow* parent, const StarDisplayParameters& parameters);

protected:
    StarDisplayParameters::DoubleRange& Magnitudes() override;
    int DimmerPosition() const override;
    int BrighterPosition() const override;
    void TakePositions(int dimmer, int brighter) override;
};
