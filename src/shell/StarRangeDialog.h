#pragma once
// What the dialogs of the size law and the brightness law share. Each has two rows: the
// stars dimmer than one magnitude, all drawn alike, and the stars brighter than another, all
// drawn alike; between the two the look changes gradually. A row holds its magnitude, a
// sample star and an upright slider for the size or brightness of that row.
//
// The sliders move by a line at their arrows, by a tenth of their range at the track and to
// where the thumb is dragged, never beyond their ends; the samples follow every move and
// every magnitude typed. OK refuses a magnitude that is no number, and a dimmer magnitude
// below the brighter one, with a message and the focus back on the field.
#include "shell/AstroDialog.h"
#include "shell/SingleStarWindow.h"
#include "skyview/StarDisplayParameters.h"

class TScrollBar;

class StarRangeDialog : public AstroDialog
{
public:
    // Control ids: slider, magnitude and sample of the dimmer stars, then of the brighter.
    static constexpr int kDimmerSlider = 0x65;
    static constexpr int kDimmerMagnitude = 0x66;
    static constexpr int kDimmerSample = 100;
    static constexpr int kBrighterSample = 0x67;
    static constexpr int kBrighterSlider = 0x68;
    static constexpr int kBrighterMagnitude = 0x69;

    // The working settings; after OK the caller takes the two ranges of the dialog from them.
    const StarDisplayParameters& GetStarDisplayParameters() const { return Parameters; }

    void SetupWindow() override;
    void CmOk() override;
    void EvVScroll(UINT code, int position, HWND bar);
    // Reads the controls and redraws the samples.
    void Refresh();
    const TResponseRow* Find(const TEventInfo& event) const override;

protected:
    // `parameters` are copied; `sliderEnd` is the top of the sliders' range (from 0), moved
    // by `lineStep` at an arrow.
    StarRangeDialog(TWindow* parent, int resourceId, short caption,
                    const StarDisplayParameters& parameters, int sliderEnd, int lineStep);

    // The magnitudes the two fields edit: upper for the dimmer stars, lower for the brighter.
    virtual StarDisplayParameters::DoubleRange& Magnitudes() = 0;
    // The slider positions of the settings; positions beyond the ends stop at them.
    virtual int DimmerPosition() const = 0;
    virtual int BrighterPosition() const = 0;
    // Takes the positions of the two sliders into the settings.
    virtual void TakePositions(int dimmer, int brighter) = 0;

    StarDisplayParameters Parameters;

private:
    // Reads sliders and fields into the settings; a field whose text is no number leaves its
    // magnitude as it was. The id of the first such field, or 0.
    int ReadControls();

    short nCaption;
    int nSliderEnd;
    int nLineStep;
    SingleStarWindow aSamples[2];
    TScrollBar* pDimmerSlider;
    TScrollBar* pBrighterSlider;
};
