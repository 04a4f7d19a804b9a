#pragma once
// The dialog of how stars look: the limiting magnitude, the shape (rays or round), whether the
// brighter stars carry their names and up to which magnitude, with buttons to the dialogs of
// the size and brightness laws. A row of four samples shows stars from the limit up to
// magnitude -1 as they will look, redrawn on every change.
//
// The dialog works on its own copy of the settings; the caller reads the result after OK.
// A limit beyond 50 either way is taken as 50 with its sign. A magnitude field whose text is
// no number holds back only its own value while the user works, and is refused by OK with a
// message and the focus back on it. The defaults button brings back the settings of a new
// map but keeps whether they are those of a printed chart.
#include "shell/AstroDialog.h"
#include "shell/SingleStarWindow.h"
#include "skyview/StarDisplayParameters.h"

class TListBox;

class StarDisplayDialog : public AstroDialog
{
public:
    // Control ids.
    static constexpr int kShowLabels = 0x69;
    static constexpr int kShape = 0x6a;
    static constexpr int kLabelLimit = 0x6c;
    static constexpr int kLimit = 0x6e;
    static constexpr int kDefaults = 0x6f;
    static constexpr int kFirstSample = 0x70;
    static constexpr int kModifySizes = 0x74;
    static constexpr int kModifyIntensity = 0x75;
    static constexpr int kLabelLimitCaption = 0x76;
    static constexpr int kFirstSampleMagnitude = 0x77;
    static constexpr int kSampleCount = 4;
    // A limiting magnitude is kept within this many magnitudes of 0.
    static constexpr double kFurthestLimit = 50.0;

    StarDisplayDialog(TWindow* parent, const StarDisplayParameters& parameters);

    // The result, after OK.
    const StarDisplayParameters& GetStarDisplayParameters() const { return Parameters; }

    std::string GetHelpKey() const override;
    void SetupWindow() override;
    void CmOk() override;
    // Takes what the controls show and shows the result.
    void Apply();
    void CmDefaults();
    // The dialogs of the size and the brightness law, on the working settings.
    void CmModifySizes();
    void CmModifyIntensity();
    // The focus given to the dialog itself goes on to OK.
    void EvSetFocus(HWND lost);
    const TResponseRow* Find(const TEventInfo& event) const override;

private:
    // Shows the working settings. With `keepRefused` a field holding text that is no number
    // keeps it, so that the user can mend it.
    void FillControls(bool keepRefused = false);
    // Reads the controls into the working settings; a field whose text is no number leaves
    // its value as it was. The id of the first such field, or 0.
    int ReadControls();
    void ShowNumber(int id, double value, bool keepRefused);

    StarDisplayParameters Parameters;
    const StarDisplayParameters Defaults;
    SingleStarWindow aSamples[kSampleCount];
    TListBox* pShapes;
};
