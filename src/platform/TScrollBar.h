#pragma once
// A scroll bar control, upright (SBS_VERT) or lying (SBS_HORZ): an arrow at each end, the
// track and a thumb whose length shows the page. It does not move itself: each action tells
// the parent WM_VSCROLL (or WM_HSCROLL) with SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN,
// SB_THUMBTRACK and SB_THUMBPOSITION while the thumb is dragged, and SB_ENDSCROLL when the
// button goes up, and the parent sets the new position. An arrow held down repeats.
//
// The position stays within the range less the page: from nMin to nMax - (nPage - 1).
#include "platform/TControl.h"

class TScrollBar : public TControl
{
public:
    TScrollBar(TWindow* parent, int id, int x, int y, int width, int height, bool horizontal,
               TModule* module = nullptr);
    TScrollBar(TWindow* parent, int resourceId, TModule* module = nullptr);

    int GetPosition() const { return Info.nPos; }
    // Sets the position within the range; returns the old one.
    int SetPosition(int position, bool redraw = true);
    void GetRange(int& low, int& high) const;
    void SetRange(int low, int high, bool redraw = true);
    // Sets what the mask names; returns the position.
    int SetScrollInfo(const SCROLLINFO& info, bool redraw = true);
    // Fills what the mask of `info` asks for.
    void GetScrollInfo(SCROLLINFO& info) const;
    // The colour of the track behind the arrows and the thumb; TColor::None for the standard
    // one.
    void SetTrackColor(const TColor& color);

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

private:
    enum class Part
    {
        None,
        LineUp,
        LineDown,
        PageUp,
        PageDown,
        Thumb,
    };
    bool IsVertical() const { return (Attr.Style & SBS_VERT) != 0; }
    int Length() const { return IsVertical() ? Attr.H : Attr.W; }
    int Thickness() const { return IsVertical() ? Attr.W : Attr.H; }
    int ArrowSize() const;
    int HighestPosition() const;
    // The thumb's start and length along the bar.
    void ThumbSpan(int position, int& start, int& length) const;
    Part PartAt(TPoint p) const;
    void Act(Part part);
    void Tell(UINT code, int position = 0);
    int PositionAt(int along) const;
    TRect Along(int start, int end) const;

    SCROLLINFO Info{sizeof(SCROLLINFO), 0, 0, 100, 0, 0, 0};
    TColor TrackColor = TColor::None;
    Part Pressed = Part::None;
    int nGrab = 0;
    bool bRepeating = false;
};
