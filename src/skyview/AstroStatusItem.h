#pragma once
// One block of the status panel: a gadget without a border that knows how wide a line of its
// text is. Its width, when it shrink-wraps, is a number of characters at a mean character
// width of the panel's font, plus an indent; the panel decides its height.
#include "platform/TGadget.h"

class AstroStatusItem : public TGadget
{
public:
    explicit AstroStatusItem(int id);

    // The mean of the average and the widest character of the panel's font, in pixels,
    // truncated; 0 outside a panel.
    virtual int GetCharacterWidth() const;
    // How many characters the block is wide.
    virtual int GetCharacterCount() const = 0;
    // How far the lines under the heading stand in: two characters.
    virtual int GetIndent() const;
};
