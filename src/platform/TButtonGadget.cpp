#include "platform/TButtonGadget.h"

#include "platform/ControlLook.h"
#include "platform/ModuleResources.h"
#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindow.h"

namespace {

// The room around the picture inside the border.
constexpr int kGlyphMargin = 2;

} // namespace

TButtonGadget::TButtonGadget(const TResId& glyph, int id, TType type, bool enabled, TState state,
                             bool)
    : TGadget(id, Raised), pGlyph(std::make_unique<TDib>(GetModuleInstance(), glyph)), Type(type),
      State(state)
{
    SetEnabled(enabled);
    SetMargins(TMargins{kGlyphMargin, kGlyphMargin, kGlyphMargin, kGlyphMargin});
}

TButtonGadget::TButtonGadget(const TDib& glyph, int id, TType type, bool enabled, TState state)
    : TGadget(id, Raised), Type(type), State(state)
{
    SetGlyph(glyph);
    SetEnabled(enabled);
    SetMargins(TMargins{kGlyphMargin, kGlyphMargin, kGlyphMargin, kGlyphMargin});
}

void TButtonGadget::SetGlyph(const TDib& glyph)
{
    pGlyph = std::make_unique<TDib>(glyph);
    Invalidate();
}

void TButtonGadget::SetButtonState(TState state)
{
    if (state != State) {
        State = state;
        Invalidate();
    }
}

void TButtonGadget::GetDesiredSize(TSize& size)
{
    TGadget::GetDesiredSize(size);
    if (pGlyph && pGlyph->IsOK()) {
        size.cx += pGlyph->Width();
        size.cy += pGlyph->Height();
    }
}

void TButtonGadget::Paint(TDC& dc)
{
    bool down = bPressed || State == Down;
    COLORREF face = down ? RGB(204, 228, 247) : ControlLook::GetColor(COLOR_BTNFACE);
    dc.FillRect(GetBounds(), TBrush(face));
    SetBorderStyle(down ? Recessed : Raised);
    PaintBorder(dc);
    if (!pGlyph || !pGlyph->IsOK()) {
        return;
    }
    TRect inner = GetInnerRect();
    int x = inner.left + (inner.Width() - pGlyph->Width()) / 2 + (down ? 1 : 0);
    int y = inner.top + (inner.Height() - pGlyph->Height()) / 2 + (down ? 1 : 0);
    TRect target(x, y, x + pGlyph->Width(), y + pGlyph->Height());
    dc.StretchDIBits(target, TRect(0, 0, pGlyph->Width(), pGlyph->Height()), *pGlyph);
    if (!GetEnabled()) {
        // Faded: every other pixel takes the face colour.
        for (int py = target.top; py < target.bottom; ++py) {
            for (int px = target.left + (py & 1); px < target.right; px += 2) {
                dc.SetPixel(px, py, face);
            }
        }
    }
}

void TButtonGadget::LButtonDown(UINT, const TPoint&)
{
    bPressed = true;
    bTracking = true;
    if (TGadgetWindow* window = GetGadgetWindow()) {
        window->GadgetSetCapture(*this);
    }
    Invalidate();
}

void TButtonGadget::MouseMove(UINT, const TPoint& point)
{
    if (bTracking && PtIn(point) != bPressed) {
        bPressed = PtIn(point);
        Invalidate();
    }
}

void TButtonGadget::LButtonUp(UINT, const TPoint& point)
{
    if (!bTracking) {
        return;
    }
    bTracking = false;
    bool inside = bPressed;
    bPressed = false;
    if (TGadgetWindow* window = GetGadgetWindow()) {
        window->GadgetReleaseCapture(*this);
    }
    Invalidate();
    if (inside) {
        Activate(point);
    }
}

void TButtonGadget::Activate(const TPoint&)
{
    TGadgetWindow* window = GetGadgetWindow();
    if (Type == NonExclusive) {
        SetButtonState(State == Down ? Up : Down);
    } else if (Type == Exclusive && window) {
        // The exclusive buttons next to this one form its group.
        SetButtonState(Down);
        for (TGadget* g = window->FirstGadget(); g; g = window->NextGadget(*g)) {
            auto* button = dynamic_cast<TButtonGadget*>(g);
            if (button && button != this && button->Type == Exclusive) {
                button->SetButtonState(Up);
            }
        }
    }
    if (!window) {
        return;
    }
    TWindow* target = window->GetParentO() ? window->GetParentO() : window;
    target->SendMessage(WM_COMMAND, MAKEWPARAM(GetId(), 0), 0);
}
