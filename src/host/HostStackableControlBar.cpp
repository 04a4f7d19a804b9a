#include "host/HostStackableControlBar.h"

HostStackableControlBar::HostStackableControlBar(TWindow* parent, const TColor& background)
    : TControlBar(parent, Horizontal)
{
    SetCaption("ButtonBar");
    SetMargins(TGadget::TMargins{0, 0, 0, 0});
    SetBkgndColor(background);
}
