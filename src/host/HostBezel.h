#pragma once
// The host's sunken edge round a child window, as its panels frame the component's map.
//
// The edge lies just outside the child's rectangle, as wide as the frame's bezel metric (2
// pixels without a frame): the outer ring dark grey above and to the left and white below and
// to the right, the inner ring black and light grey, so that the child seems set into its
// parent.
class TDC;
class TWindow;

// Draws on the parent's context `dc` round `child`; nothing for a null child or one without a
// handle.
void DrawHostInnieBezel(TDC& dc, TWindow* child);
