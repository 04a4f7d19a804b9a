#pragma once
// The state of the drawing layer's colours and fonts in a StateContainer.
//
// A colour is a level with the keys "R", "G" and "B"; a font a level with "Face Name" and
// "Height". Reading a font makes a new TFont of that face and height (weight 400, character set
// 1, all else 0), which the caller owns. As with every state operator, the caller sets the key
// and the value opens its own level there.
#include "platform/TColor.h"
#include "platform/TFont.h"
#include "state/StateContainer.h"

StateContainer& operator<<(StateContainer& sc, const TColor& color);
// Missing keys read as 0; values beyond 0 to 255 are brought to the nearer end.
StateContainer& operator>>(StateContainer& sc, TColor& color);
StateContainer& operator<<(StateContainer& sc, const TFont& font);
StateContainer& operator>>(StateContainer& sc, TFont*& font);
