#include "shell/StarDisplayDialog.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "host/HostStringTable.h"
#include "platform/TListBox.h"
#include "shell/AstroDialogTemplates.h"
#include "shell/StarIntensityRangeDialog.h"
#include "shell/StarSizeRangeDialog.h"

namespace {

constexpr short kCaption = 0x834;
// The rows of the shape list, in the order of the shapes.
constexpr short kRayShapeName = 0x849;
constexpr short kRoundShapeName = 0x84a;
constexpr short kNotANumber = 0x0860;
// The brightest sample, and the floor of the faintest.
constexpr double kBrightestSample = -1.0;

} // namespace

StarDisplayDialog::StarDisplayDialog(TWindow* parent, const StarDisplayParameters& parameters)
    : AstroDialog(parent, TResId(AstroDialogTemplates::kStarDisplay)),
      Parameters(parameters), aSamples{SingleStarWindow(this), SingleStarWindow(this),
                                       SingleStarWindow(this), SingleStarWindow(this)}
{
    pShapes = new TListBox(this, kShape);
}

std::string StarDisplayDialog::GetHelpKey() const
{
    return ProfileHelpKey("StarDisplayDialogHelpKey", "Star Display");
}

void StarDisplayDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, kCaption));
    for (int i = 0; i < kSampleCount; ++i) {
        if (TWindow* place = GetControl(kFirstSample + i)) {
            aSamples[i].MoveWindow(place->GetRect());
            place->Show(SW_HIDE);
        }
    }
    pShapes->AddString(getHostString(5, kRayShapeName));
    pShapes->AddString(getHostString(5, kRoundShapeName));
    FillControls();
}

void StarDisplayDialog::ShowNumber(int id, double value, bool keepRefused)
{
    double typed = 0.0;
    if (keepRefused && !ReadExactNumber(id, typed)) {
        return;
    }
    SetDlgItemText(id, FormatNumber(value));
}

void StarDisplayDialog::FillControls(bool keepRefused)
{
    ShowNumber(kLimit, Parameters.GetLimitingMagnitude(), keepRefused);
    ShowNumber(kLabelLimit, Parameters.GetLimitingMagnitudeLabels(), keepRefused);
    const bool labels = Parameters.GetLabelType() != StarDisplayParameters::kNoLabels;
    CheckDlgButton(kShowLabels, labels ? BST_CHECKED : BST_UNCHECKED);
    for (int id : {kLabelLimit, kLabelLimitCaption}) {
        if (TWindow* control = GetControl(id)) {
            control->EnableWindow(labels);
        }
    }
    // A shape the list does not have (from a hand-written bookmark) selects no row.
    const std::uint32_t shape = Parameters.GetShape();
    pShapes->SetSelIndex(shape < std::uint32_t(pShapes->GetCount()) ? int(shape) : -1);

    // From the limit to magnitude -1 in three equal steps; a limit brighter than -1 shows
    // four samples of -1.
    const double faintest = std::max(Parameters.GetLimitingMagnitude(), kBrightestSample);
    const double step = (faintest - kBrightestSample) / 3.0;
    const double magnitudes[kSampleCount] = {faintest, faintest - step, faintest - 2.0 * step,
                                             kBrightestSample};
    for (int i = 0; i < kSampleCount; ++i) {
        char text[32];
        std::snprintf(text, sizeof text, "%03.1f", magnitudes[i]);
        SetDlgItemText(kFirstSampleMagnitude + i, text);
        aSamples[i].SetParameters(Parameters);
        aSamples[i].SetMagnitude(magnitudes[i]);
        aSamples[i].Invalidate();
    }
}

int StarDisplayDialog::ReadControls()
{
    int refused = 0;
    double limit = 0.0;
    if (ReadExactNumber(kLimit, limit)) {
        if (std::fabs(limit) > kFurthestLimit) {
            limit = std::copysign(kFurthestLimit, limit);
        }
        Parameters.SetLimitingMagnitude(limit);
    } else {
        refused = kLimit;
    }
    if (IsDlgButtonChecked(kShowLabels) != BST_CHECKED) {
        Parameters.SetLabelType(StarDisplayParameters::kNoLabels);
    } else {
        Parameters.SetLabelType(StarDisplayParameters::kPopularNameLabels);
        double labelLimit = 0.0;
        if (ReadExactNumber(kLabelLimit, labelLimit)) {
            Parameters.SetLimitingMagnitudeLabels(labelLimit);
        } else if (refused == 0) {
            refused = kLabelLimit;
        }
    }
    const int row = pShapes->GetSelIndex();
    if (row >= 0) {
        Parameters.SetShape(std::uint32_t(row));
    }
    return refused;
}

void StarDisplayDialog::Apply()
{
    if (!HWindow) {
        return;
    }
    ReadControls();
    FillControls(true);
    Invalidate();
}

void StarDisplayDialog::CmOk()
{
    const int refused = ReadControls();
    if (refused != 0) {
        RefuseField(refused, getHostString(5, kNotANumber));
        return;
    }
    AstroDialog::CmOk();
}

void StarDisplayDialog::CmDefaults()
{
    const bool printing = Parameters.IsPrinting();
    Parameters = Defaults;
    Parameters.SetPrinting(printing);
    FillControls();
    Invalidate();
}

void StarDisplayDialog::CmModifySizes()
{
    StarSizeRangeDialog dialog(this, Parameters);
    if (dialog.Execute() == IDOK) {
        Parameters.SizeRange = dialog.GetStarDisplayParameters().SizeRange;
        Parameters.SizeMagnitudeRange = dialog.GetStarDisplayParameters().SizeMagnitudeRange;
    }
    Apply();
}

void StarDisplayDialog::CmModifyIntensity()
{
    StarIntensityRangeDialog dialog(this, Parameters);
    if (dialog.Execute() == IDOK) {
        Parameters.IntensityRange = dialog.GetStarDisplayParameters().IntensityRange;
        Parameters.IntensityMagnitudeRange =
            dialog.GetStarDisplayParameters().IntensityMagnitudeRange;
    }
    Apply();
}

void StarDisplayDialog::EvSetFocus(HWND)
{
    DefaultProcessing();
    if (TWindow* ok = GetControl(IDOK)) {
        ok->SetFocus();
    }
}

const TResponseRow* StarDisplayDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SETFOCUS, &StarDisplayDialog::EvSetFocus>(),
        NotifyRow<kLimit, EN_KILLFOCUS, &StarDisplayDialog::Apply>(),
        CmRow<kShowLabels, &StarDisplayDialog::Apply>(),
        NotifyRow<kShape, LBN_SELCHANGE, &StarDisplayDialog::Apply>(),
        CmRow<kModifySizes, &StarDisplayDialog::CmModifySizes>(),
        CmRow<kModifyIntensity, &StarDisplayDialog::CmModifyIntensity>(),
        CmRow<kDefaults, &StarDisplayDialog::CmDefaults>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
