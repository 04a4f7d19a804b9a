#pragma once
// A gadget: a rectangle inside a gadget window that draws itself and may take the mouse, with
// a border of a style and margins inside it. Its window lays gadgets out in a row or a column,
// each at its desired size (a gadget that is wide as possible takes what is left).
//
// A gadget belongs to whoever made it; a gadget window holds it only while it is inserted.
// A gadget that goes leaves its window.
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TDC;
class TGadgetWindow;

class TGadget
{
public:
    enum TBorderStyle
    {
        None,
        Plain,
        Raised,
        Recessed,
        Embossed,
    };
    struct TBorders
    {
        int Left = 0;
        int Right = 0;
        int Top = 0;
        int Bottom = 0;
    };
    struct TMargins
    {
        int Left = 0;
        int Right = 0;
        int Top = 0;
        int Bottom = 0;
    };

    explicit TGadget(int id = 0, TBorderStyle style = None);
    virtual ~TGadget();

    TGadget(const TGadget&) = delete;
    TGadget& operator=(const TGadget&) = delete;

    int GetId() const { return nId; }
    TGadgetWindow* GetGadgetWindow() const { return pWindow; }

    void SetBorderStyle(TBorderStyle style);
    TBorderStyle GetBorderStyle() const { return BorderStyle; }
    const TBorders& GetBorders() const { return Borders; }
    void SetBorders(const TBorders& borders) { Borders = borders; }
    const TMargins& GetMargins() const { return Margins; }
    void SetMargins(const TMargins& margins) { Margins = margins; }

    // The rectangle in the window's client area.
    const TRect& GetBounds() const { return Bounds; }
    virtual void SetBounds(const TRect& bounds);
    // The inside: the bounds less borders and margins.
    TRect GetInnerRect() const;
    void GetInnerRect(TRect& rect) const { rect = GetInnerRect(); }
    // The size the gadget wants: borders and margins; derived gadgets add their content.
    virtual void GetDesiredSize(TSize& size);

    void SetShrinkWrap(bool width, bool height);
    bool GetShrinkWrapWidth() const { return bShrinkWrapWidth; }
    bool GetShrinkWrapHeight() const { return bShrinkWrapHeight; }
    // Takes the room the other gadgets leave along the window's direction.
    bool WideAsPossible = false;

    void SetEnabled(bool enabled);
    bool GetEnabled() const { return bEnabled; }
    void SetVisible(bool visible);
    bool IsVisible() const { return bVisible; }
    bool PtIn(const TPoint& point) const { return bVisible && Bounds.Contains(point); }

    // Asks the window to paint the gadget again.
    void Invalidate(bool erase = true);
    void InvalidateRect(const TRect& rect, bool erase = true);
    void Update();

    virtual void Paint(TDC& dc);
    virtual void PaintBorder(TDC& dc);

    // The mouse, at points of the window's client area.
    virtual void MouseEnter(UINT keys, const TPoint& point);
    virtual void MouseMove(UINT keys, const TPoint& point);
    virtual void MouseLeave(UINT keys, const TPoint& point);
    virtual void LButtonDown(UINT keys, const TPoint& point);
    virtual void LButtonUp(UINT keys, const TPoint& point);

    // Told when the gadget enters and leaves a window.
    virtual void Inserted() {}
    virtual void Removed() {}

private:
    friend class TGadgetWindow;

    int nId;
    TBorderStyle BorderStyle;
    TBorders Borders;
    TMargins Margins;
    TRect Bounds;
    bool bShrinkWrapWidth = true;
    bool bShrinkWrapHeight = true;
    bool bEnabled = true;
    bool bVisible = true;
    TGadgetWindow* pWindow = nullptr;
};
