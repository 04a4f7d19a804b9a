#pragma once
// The child window of the direction map (see DirectionDrawer): it paints the disc on the
// panel's background and lets a click on the disc choose a new direction for the main view.
//
// A click inside the disc stores the sky direction under the mouse and posts the window's
// message (both parameters 0) to the parent, which reads the direction with
// GetClickedDirection and turns the main view there. A click outside the disc posts nothing.
//
// Colours come from section "Orbiscope" of the profile: "BackgroundColor" (default the frame's
// panel colour, black without a frame), "DirectionTextColor" (0, 0, 0),
// "DirectionHorizonColor" (255, 0, 255) and "DirectionFieldColor" (0, 0, 255).
#include "coords/PolarCoord.h"
#include "platform/TColor.h"
#include "platform/TFont.h"
#include "platform/TWindow.h"
#include "skyview/DirectionDrawer.h"

class MapWindow;

class DirectionWindow : public TWindow
{
public:
    // `message` 0 makes a window that takes no clicks.
    DirectionWindow(TWindow* parent, UINT message);

    // Takes the view from the map and repaints.
    void Set(const MapWindow& map);

    void Paint(TDC& dc, bool erase, TRect& rect) override;
    void EvSize(UINT sizeType, TSize& size);
    // Paint fills the whole window, so there is nothing to erase.
    bool EvEraseBkgnd(HDC dc);
    void EvLButtonDown(UINT keys, TPoint& point);
    const TResponseRow* Find(const TEventInfo& event) const override;

    // The sky direction of the last click on the disc.
    const PolarCoord& GetClickedDirection() const { return Clicked; }
    const DirectionDrawer& GetDrawer() const { return Drawer; }
    DirectionDrawer& GetDrawer() { return Drawer; }
    const TColor& GetBackground() const { return Background; }
    UINT GetMessage() const { return nMessage; }

private:
    DirectionDrawer Drawer;
    TFont TextFont;
    TColor Background;
    UINT nMessage;
    PolarCoord Clicked;
};
