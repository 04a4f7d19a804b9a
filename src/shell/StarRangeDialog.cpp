#include "shell/StarRangeDialog.h"

#include <algorithm>

#include "host/HostStringTable.h"
#include "platform/TScrollBar.h"

namespace {

constexpr short kNotANumber = 0x0860;
constexpr short kCrossedMagnitudes = 0x0861;
// A click on the track moves a slider by this share of its range.
constexpr int kPageDivisor = 10;

} // namespace

StarRangeDialog::StarRangeDialog(TWindow* parent, int resourceId, short caption,
                                 const StarDisplayParameters& parameters, int sliderEnd,
                                 int lineStep)
    : AstroDialog(parent, TResId(resourceId)), Parameters(parameters), nCaption(caption),
      nSliderEnd(sliderEnd),
      nLineStep(lineStep), aSamples{SingleStarWindow(this), SingleStarWindow(this)}
{
    pDimmerSlider = new TScrollBar(this, kDimmerSlider);
    pBrighterSlider = new TScrollBar(this, kBrighterSlider);
}

void StarRangeDialog::SetupWindow()
{
    AstroDialog::SetupWindow();
    SetCaption(getHostString(5, nCaption));
    const int places[] = {kDimmerSample, kBrighterSample};
    for (int i = 0; i < 2; ++i) {
        if (TWindow* place = GetControl(places[i])) {
            aSamples[i].MoveWindow(place->GetRect());
            place->Show(SW_HIDE);
        }
    }
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_POS;
    info.nMin = 0;
    info.nMax = nSliderEnd;
    info.nPos = DimmerPosition();
    pDimmerSlider->SetScrollInfo(info);
    info.nPos = BrighterPosition();
    pBrighterSlider->SetScrollInfo(info);
    SetDlgItemText(kDimmerMagnitude, FormatNumber(Magnitudes().Upper));
    SetDlgItemText(kBrighterMagnitude, FormatNumber(Magnitudes().Lower));
    Refresh();
}

void StarRangeDialog::EvVScroll(UINT code, int position, HWND bar)
{
    TScrollBar* slider = bar == pDimmerSlider->HWindow     ? pDimmerSlider
                         : bar == pBrighterSlider->HWindow ? pBrighterSlider
                                                           : nullptr;
    if (!slider) {
        return;
    }
    const int page = std::max(nLineStep, nSliderEnd / kPageDivisor);
    int moved = slider->GetPosition();
    switch (code) {
    case SB_LINEUP:
        moved -= nLineStep;
        break;
    case SB_LINEDOWN:
        moved += nLineStep;
        break;
    case SB_PAGEUP:
        moved -= page;
        break;
    case SB_PAGEDOWN:
        moved += page;
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        moved = position;
        break;
    default:
        return;
    }
    slider->SetPosition(std::clamp(moved, 0, nSliderEnd));
    Refresh();
}

int StarRangeDialog::ReadControls()
{
    TakePositions(pDimmerSlider->GetPosition(), pBrighterSlider->GetPosition());
    int refused = 0;
    double magnitude = 0.0;
    if (ReadExactNumber(kDimmerMagnitude, magnitude)) {
        Magnitudes().Upper = magnitude;
    } else {
        refused = kDimmerMagnitude;
    }
    if (ReadExactNumber(kBrighterMagnitude, magnitude)) {
        Magnitudes().Lower = magnitude;
    } else if (refused == 0) {
        refused = kBrighterMagnitude;
    }
    Parameters.CalculateIntensityScale();
    Parameters.CalculateSizeScale(nullptr);
    return refused;
}

void StarRangeDialog::Refresh()
{
    if (!HWindow) {
        return;
    }
    ReadControls();
    const double magnitudes[] = {Magnitudes().Upper, Magnitudes().Lower};
    for (int i = 0; i < 2; ++i) {
        aSamples[i].SetParameters(Parameters);
        aSamples[i].SetMagnitude(magnitudes[i]);
        aSamples[i].Invalidate();
    }
}

void StarRangeDialog::CmOk()
{
    const int refused = ReadControls();
    if (refused != 0) {
        RefuseField(refused, getHostString(5, kNotANumber));
        return;
    }
    if (Magnitudes().Upper < Magnitudes().Lower) {
        RefuseField(kDimmerMagnitude, getHostString(5, kCrossedMagnitudes));
        return;
    }
    AstroDialog::CmOk();
}

const TResponseRow* StarRangeDialog::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_VSCROLL, &StarRangeDialog::EvVScroll>(),
        NotifyRow<kDimmerMagnitude, EN_KILLFOCUS, &StarRangeDialog::Refresh>(),
        NotifyRow<kBrighterMagnitude, EN_KILLFOCUS, &StarRangeDialog::Refresh>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : AstroDialog::Find(event);
}
