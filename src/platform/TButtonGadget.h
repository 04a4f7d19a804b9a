#pragma once
// A button gadget with a picture: pressed by the mouse, it tells the gadget window's parent the
// command of its id when released over it. A command button springs back; a non-exclusive one
// stays down or up in turn; an exclusive one stays down and lets the other exclusive buttons
// next to it up. Disabled, it shows its picture faded and takes no clicks.
#include <memory>

#include "platform/TDib.h"
#include "platform/TGadget.h"
#include "platform/TResId.h"

class TButtonGadget : public TGadget
{
public:
    enum TType
    {
        Command,
        Exclusive,
        NonExclusive,
        RepeatCmd,
    };
    enum TState
    {
        Up,
        Down,
        Indeterminate,
    };

    // The picture is the module's resource of that name.
    TButtonGadget(const TResId& glyph, int id, TType type = Command, bool enabled = true,
                  TState state = Up, bool repeat = false);
    // The picture is given.
    TButtonGadget(const TDib& glyph, int id, TType type = Command, bool enabled = true,
                  TState state = Up);

    void SetGlyph(const TDib& glyph);
    const TDib* GetGlyph() const { return pGlyph.get(); }
    TType GetType() const { return Type; }
    TState GetButtonState() const { return State; }
    void SetButtonState(TState state);
    bool IsPressed() const { return bPressed; }

    void GetDesiredSize(TSize& size) override;
    void Paint(TDC& dc) override;
    void LButtonDown(UINT keys, const TPoint& point) override;
    void MouseMove(UINT keys, const TPoint& point) override;
    void LButtonUp(UINT keys, const TPoint& point) override;

protected:
    // What a click does: the state changes of the type, then the command.
    virtual void Activate(const TPoint& point);

private:
    std::unique_ptr<TDib> pGlyph;
    TType Type;
    TState State;
    bool bPressed = false;
    bool bTracking = false;
};
