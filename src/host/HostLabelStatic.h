#pragma once
// A label of the host's panels: one line of text, left aligned, on the panel's own background,
// in black or white, whichever stands out on it. Unlike a plain static control it asks its
// parent for no colours, so it looks the same in any window, and it takes no input.
#include <string>

#include "platform/TColor.h"
#include "platform/TSize.h"
#include "platform/TStatic.h"

class HostLabelStatic : public TStatic
{
public:
    HostLabelStatic(TWindow* parent, int id, const std::string& text, const TColor& background);

    void SetBackground(const TColor& background);
    const TColor& GetBackground() const { return Background; }
    // The size of the text in the label's font: the smallest label that shows it whole.
    TSize GetTextSize() const;

    void Paint(TDC& dc, bool erase, TRect& rect) override;

private:
    TColor Background;
};
