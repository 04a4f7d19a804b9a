#pragma once
// A window that holds gadgets in a row (Horizontal) or a column (Vertical), inside margins,
// each at its desired size along the direction and as wide as the window across it. It paints
// them, gives the mouse to the gadget under it (or to the gadget that holds it), and, when it
// shrink-wraps, asks to be as large as its gadgets.
#include <memory>
#include <vector>

#include "platform/TFont.h"
#include "platform/TGadget.h"
#include "platform/TWindow.h"

class TGadgetWindow : public TWindow
{
public:
    enum TTileDirection
    {
        Horizontal,
        Vertical,
    };
    enum TPlacement
    {
        Before,
        After,
    };

    // With no font given, an 8-point sans-serif.
    TGadgetWindow(TWindow* parent = nullptr, TTileDirection direction = Horizontal,
                  const TFont* font = nullptr, TModule* module = nullptr);
    ~TGadgetWindow() override;

    // Puts a gadget before or after a sibling (at the start or the end without one). The
    // caller keeps it; with a unique_ptr the window keeps it and deletes it.
    void Insert(TGadget& gadget, TPlacement placement = After, TGadget* sibling = nullptr);
    void Insert(std::unique_ptr<TGadget> gadget, TPlacement placement = After,
                TGadget* sibling = nullptr);
    // Takes a gadget out; an owned one is deleted.
    void Remove(TGadget& gadget);

    int GadgetCount() const { return int(aGadgets.size()); }
    TGadget* FirstGadget() const { return aGadgets.empty() ? nullptr : aGadgets.front(); }
    TGadget* NextGadget(const TGadget& gadget) const;
    TGadget* GadgetFromPoint(const TPoint& point) const;
    TGadget* GadgetWithId(int id) const;

    TTileDirection GetDirection() const { return Direction; }
    void SetDirection(TTileDirection direction);
    void SetShrinkWrap(bool width, bool height);
    const TGadget::TMargins& GetMargins() const { return Margins; }
    void SetMargins(const TGadget::TMargins& margins);
    const TFont& GetFont() const { return Font; }
    // The height of a line of the window's font.
    int GetFontHeight() const;
    // The inside of the window, less its margins.
    TRect GetInnerRect() const;

    // The size the gadgets need, with margins; for a shrink-wrapping side, else the window's.
    virtual void GetDesiredSize(TSize& size);
    // Places the gadgets again (and resizes the window when it shrink-wraps).
    virtual void LayoutSession();

    // Gives every mouse message to a gadget until it lets go.
    void GadgetSetCapture(TGadget& gadget);
    void GadgetReleaseCapture(TGadget& gadget);

    void SetupWindow() override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;
    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;

private:
    void Tile();

    TTileDirection Direction;
    TFont Font;
    TGadget::TMargins Margins{2, 2, 2, 2};
    bool bShrinkWrapWidth = false;
    bool bShrinkWrapHeight = false;
    std::vector<TGadget*> aGadgets;
    std::vector<std::unique_ptr<TGadget>> aOwned;
    TGadget* pCapture = nullptr;
    TGadget* pUnderMouse = nullptr;
};
