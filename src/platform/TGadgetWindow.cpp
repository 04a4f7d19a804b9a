#include "platform/TGadgetWindow.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TGadgetWindowFont.h"
#include "platform/TRegion.h"

TGadgetWindow::TGadgetWindow(TWindow* parent, TTileDirection direction, const TFont* font,
                             TModule* module)
    : TWindow(parent, nullptr, module), Direction(direction),
      Font(font ? *font : TGadgetWindowFont())
{
    SetBkgndColor(TColor(ControlLook::GetColor(COLOR_BTNFACE)));
    SetWindowFont(Font, false);
}

TGadgetWindow::~TGadgetWindow()
{
    for (TGadget* gadget : aGadgets) {
        gadget->pWindow = nullptr;
    }
    aGadgets.clear();
    aOwned.clear();
}

void TGadgetWindow::Insert(TGadget& gadget, TPlacement placement, TGadget* sibling)
{
    if (gadget.pWindow) {
        gadget.pWindow->Remove(gadget);
    }
    auto at = sibling ? std::find(aGadgets.begin(), aGadgets.end(), sibling) : aGadgets.end();
    if (at == aGadgets.end()) {
        at = placement == Before ? aGadgets.begin() : aGadgets.end();
    } else if (placement == After) {
        ++at;
    }
    aGadgets.insert(at, &gadget);
    gadget.pWindow = this;
    gadget.Inserted();
    if (HWindow) {
        LayoutSession();
        Invalidate();
    }
}

void TGadgetWindow::Insert(std::unique_ptr<TGadget> gadget, TPlacement placement, TGadget* sibling)
{
    TGadget& g = *gadget;
    aOwned.push_back(std::move(gadget));
    Insert(g, placement, sibling);
}

void TGadgetWindow::Remove(TGadget& gadget)
{
    auto at = std::find(aGadgets.begin(), aGadgets.end(), &gadget);
    if (at == aGadgets.end()) {
        return;
    }
    gadget.Invalidate();
    aGadgets.erase(at);
    gadget.pWindow = nullptr;
    if (pCapture == &gadget) {
        pCapture = nullptr;
        ReleaseCapture();
    }
    if (pUnderMouse == &gadget) {
        pUnderMouse = nullptr;
    }
    gadget.Removed();
    auto owned = std::find_if(aOwned.begin(), aOwned.end(), [&](const std::unique_ptr<TGadget>& g) {
        return g.get() == &gadget;
    });
    if (owned != aOwned.end()) {
        std::unique_ptr<TGadget> going = std::move(*owned);
        aOwned.erase(owned);
    }
    if (HWindow) {
        LayoutSession();
    }
}

TGadget* TGadgetWindow::NextGadget(const TGadget& gadget) const
{
    auto at = std::find(aGadgets.begin(), aGadgets.end(), &gadget);
    return at == aGadgets.end() || at + 1 == aGadgets.end() ? nullptr : *(at + 1);
}

TGadget* TGadgetWindow::GadgetFromPoint(const TPoint& point) const
{
    for (TGadget* gadget : aGadgets) {
        if (gadget->PtIn(point)) {
            return gadget;
        }
    }
    return nullptr;
}

TGadget* TGadgetWindow::GadgetWithId(int id) const
{
    for (TGadget* gadget : aGadgets) {
        if (gadget->GetId() == id) {
            return gadget;
        }
    }
    return nullptr;
}

void TGadgetWindow::SetDirection(TTileDirection direction)
{
    Direction = direction;
    if (HWindow) {
        LayoutSession();
    }
}

void TGadgetWindow::SetShrinkWrap(bool width, bool height)
{
    bShrinkWrapWidth = width;
    bShrinkWrapHeight = height;
}

void TGadgetWindow::SetMargins(const TGadget::TMargins& margins)
{
    Margins = margins;
    if (HWindow) {
        LayoutSession();
    }
}

int TGadgetWindow::GetFontHeight() const
{
    const auto& instance = Font.GetInstance();
    return instance ? instance->GetMetrics().tmHeight : 0;
}

TRect TGadgetWindow::GetInnerRect() const
{
    TRect r = GetClientRect();
    return TRect(r.left + Margins.Left, r.top + Margins.Top, r.right - Margins.Right,
                 r.bottom - Margins.Bottom);
}

void TGadgetWindow::GetDesiredSize(TSize& size)
{
    int along = 0;
    int across = 0;
    for (TGadget* gadget : aGadgets) {
        if (!gadget->IsVisible()) {
            continue;
        }
        TSize wanted;
        gadget->GetDesiredSize(wanted);
        along += Direction == Horizontal ? wanted.cx : wanted.cy;
        across = std::max(across, Direction == Horizontal ? wanted.cy : wanted.cx);
    }
    TSize needed = Direction == Horizontal ? TSize(along, across) : TSize(across, along);
    needed.cx += Margins.Left + Margins.Right;
    needed.cy += Margins.Top + Margins.Bottom;
    size = TSize(bShrinkWrapWidth ? needed.cx : Attr.W, bShrinkWrapHeight ? needed.cy : Attr.H);
}

void TGadgetWindow::Tile()
{
    TRect inner = GetInnerRect();
    int total = Direction == Horizontal ? inner.Width() : inner.Height();
    int used = 0;
    int wide = 0;
    std::vector<TSize> sizes;
    for (TGadget* gadget : aGadgets) {
        TSize wanted;
        gadget->GetDesiredSize(wanted);
        sizes.push_back(wanted);
        if (!gadget->IsVisible()) {
            continue;
        }
        if (gadget->WideAsPossible) {
            ++wide;
        } else {
            used += Direction == Horizontal ? wanted.cx : wanted.cy;
        }
    }
    int share = wide ? std::max(0, total - used) / wide : 0;
    int position = Direction == Horizontal ? inner.left : inner.top;
    for (std::size_t i = 0; i < aGadgets.size(); ++i) {
        TGadget* gadget = aGadgets[i];
        if (!gadget->IsVisible()) {
            gadget->SetBounds(TRect());
            continue;
        }
        int extent =
            gadget->WideAsPossible ? share : (Direction == Horizontal ? sizes[i].cx : sizes[i].cy);
        TRect bounds = Direction == Horizontal
                           ? TRect(position, inner.top, position + extent, inner.bottom)
                           : TRect(inner.left, position, inner.right, position + extent);
        gadget->SetBounds(bounds);
        position += extent;
    }
}

void TGadgetWindow::LayoutSession()
{
    if (HWindow && (bShrinkWrapWidth || bShrinkWrapHeight)) {
        TSize size;
        GetDesiredSize(size);
        if (size != GetClientRect().Size()) {
            SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        }
    }
    Tile();
}

void TGadgetWindow::SetupWindow()
{
    TWindow::SetupWindow();
    LayoutSession();
}

void TGadgetWindow::GadgetSetCapture(TGadget& gadget)
{
    pCapture = &gadget;
    SetCapture();
}

void TGadgetWindow::GadgetReleaseCapture(TGadget& gadget)
{
    if (pCapture == &gadget) {
        pCapture = nullptr;
        ReleaseCapture();
    }
}

void TGadgetWindow::Paint(TDC& dc, bool, TRect& rect)
{
    dc.SelectObject(Font);
    for (TGadget* gadget : aGadgets) {
        if (gadget->IsVisible() && gadget->GetBounds().Touches(rect)) {
            gadget->Paint(dc);
        }
    }
}

LRESULT TGadgetWindow::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    TPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    UINT keys = UINT(wParam);
    switch (msg) {
    case WM_SIZE:
        Tile();
        return 0;
    case WM_MOUSEMOVE: {
        if (pCapture) {
            pCapture->MouseMove(keys, point);
            return 0;
        }
        TGadget* under = GadgetFromPoint(point);
        if (under != pUnderMouse) {
            if (pUnderMouse) {
                pUnderMouse->MouseLeave(keys, point);
            }
            pUnderMouse = under;
            if (under) {
                under->MouseEnter(keys, point);
            }
        }
        if (under) {
            under->MouseMove(keys, point);
        }
        return 0;
    }
    case WM_LBUTTONDOWN: {
        TGadget* gadget = pCapture ? pCapture : GadgetFromPoint(point);
        if (gadget && gadget->GetEnabled()) {
            gadget->LButtonDown(keys, point);
        }
        return 0;
    }
    case WM_LBUTTONUP: {
        TGadget* gadget = pCapture ? pCapture : GadgetFromPoint(point);
        if (gadget && gadget->GetEnabled()) {
            gadget->LButtonUp(keys, point);
        }
        return 0;
    }
    case WM_CAPTURECHANGED:
        pCapture = nullptr;
        return 0;
    default:
        return TWindow::DefWindowProc(msg, wParam, lParam);
    }
}
