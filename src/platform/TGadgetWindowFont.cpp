#include "platform/TGadgetWindowFont.h"

TGadgetWindowFont::TGadgetWindowFont(int pointSize, bool bold, bool fixed)
    // Points to pixels at the screen's 96 pixels per inch, rounded.
    : TFont(fixed ? "Courier New" : "Arial", -((pointSize * 96 + 36) / 72), 0, 0, 0,
            bold ? FW_BOLD : FW_NORMAL,
            fixed ? BYTE(FIXED_PITCH | FF_MODERN) : BYTE(VARIABLE_PITCH | FF_SWISS))
{}
