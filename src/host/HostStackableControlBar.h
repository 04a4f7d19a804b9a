#pragma once
// The host's bar of buttons for its panels: a row of buttons as large as they are, without
// margins, on the background of the panel it stands in. Its caption is "ButtonBar".
#include "platform/TControlBar.h"

class HostStackableControlBar : public TControlBar
{
public:
    HostStackableControlBar(TWindow* parent, const TColor& background);
};
