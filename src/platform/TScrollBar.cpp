#include "platform/TScrollBar.h"

#include <algorithm>

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/WindowSystem.h"

namespace {

constexpr UINT_PTR kRepeatTimer = 1;
// An arrow held down repeats after this long, then at the second pace.
constexpr UINT kRepeatDelay = 400;
constexpr UINT kRepeatPace = 50;
constexpr int kShortestThumb = 8;

} // namespace

TScrollBar::TScrollBar(TWindow* parent, int id, int x, int y, int width, int height,
                       bool horizontal, TModule* module)
    : TControl(parent, id, nullptr, x, y, width, height, module)
{
    Attr.Style = (Attr.Style & ~WS_TABSTOP) | (horizontal ? SBS_HORZ : SBS_VERT);
}

TScrollBar::TScrollBar(TWindow* parent, int resourceId, TModule* module)
    : TControl(parent, resourceId, module)
{}

int TScrollBar::HighestPosition() const
{
    return std::max(Info.nMin, Info.nMax - std::max(int(Info.nPage) - 1, 0));
}

int TScrollBar::SetPosition(int position, bool redraw)
{
    int old = Info.nPos;
    Info.nPos = std::clamp(position, Info.nMin, HighestPosition());
    if (redraw && old != Info.nPos) {
        Invalidate();
    }
    return old;
}

void TScrollBar::GetRange(int& low, int& high) const
{
    low = Info.nMin;
    high = Info.nMax;
}

void TScrollBar::SetRange(int low, int high, bool redraw)
{
    Info.nMin = low;
    Info.nMax = std::max(low, high);
    SetPosition(Info.nPos, false);
    if (redraw) {
        Invalidate();
    }
}

int TScrollBar::SetScrollInfo(const SCROLLINFO& info, bool redraw)
{
    if (info.fMask & SIF_RANGE) {
        Info.nMin = info.nMin;
        Info.nMax = std::max(info.nMin, info.nMax);
    }
    if (info.fMask & SIF_PAGE) {
        Info.nPage = std::min(info.nPage, UINT(Info.nMax - Info.nMin + 1));
    }
    int position = (info.fMask & SIF_POS) ? info.nPos : Info.nPos;
    Info.nPos = std::clamp(position, Info.nMin, HighestPosition());
    if (redraw) {
        Invalidate();
    }
    return Info.nPos;
}

void TScrollBar::GetScrollInfo(SCROLLINFO& info) const
{
    if (info.fMask & SIF_RANGE) {
        info.nMin = Info.nMin;
        info.nMax = Info.nMax;
    }
    if (info.fMask & SIF_PAGE) {
        info.nPage = Info.nPage;
    }
    if (info.fMask & SIF_POS) {
        info.nPos = Info.nPos;
    }
    if (info.fMask & SIF_TRACKPOS) {
        info.nTrackPos = Info.nTrackPos;
    }
}

int TScrollBar::ArrowSize() const
{
    return std::min(Thickness(), Length() / 2);
}

void TScrollBar::ThumbSpan(int position, int& start, int& length) const
{
    int arrow = ArrowSize();
    int track = Length() - 2 * arrow;
    int range = Info.nMax - Info.nMin + 1;
    length = Info.nPage ? track * int(Info.nPage) / std::max(range, 1) : Thickness();
    length = std::clamp(length, std::min(kShortestThumb, track), std::max(track, 0));
    int span = HighestPosition() - Info.nMin;
    int room = track - length;
    start = arrow + (span > 0 ? room * (position - Info.nMin) / span : 0);
}

TRect TScrollBar::Along(int start, int end) const
{
    return IsVertical() ? TRect(0, start, Attr.W, end) : TRect(start, 0, end, Attr.H);
}

int TScrollBar::PositionAt(int along) const
{
    int start;
    int length;
    ThumbSpan(Info.nMin, start, length);
    int room = Length() - 2 * ArrowSize() - length;
    int span = HighestPosition() - Info.nMin;
    if (room <= 0 || span <= 0) {
        return Info.nMin;
    }
    int offset = along - nGrab - ArrowSize();
    int position = Info.nMin + (offset * span + room / 2) / room;
    return std::clamp(position, Info.nMin, HighestPosition());
}

TScrollBar::Part TScrollBar::PartAt(TPoint p) const
{
    if (!GetClientRect().Contains(p)) {
        return Part::None;
    }
    int along = IsVertical() ? p.y : p.x;
    int arrow = ArrowSize();
    if (along < arrow) {
        return Part::LineUp;
    }
    if (along >= Length() - arrow) {
        return Part::LineDown;
    }
    int start;
    int length;
    ThumbSpan(Info.nPos, start, length);
    if (along < start) {
        return Part::PageUp;
    }
    if (along >= start + length) {
        return Part::PageDown;
    }
    return Part::Thumb;
}

void TScrollBar::Tell(UINT code, int position)
{
    if (TWindow* parent = GetParentO()) {
        parent->SendMessage(IsVertical() ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(int(code), position),
                            reinterpret_cast<LPARAM>(HWindow));
    }
}

void TScrollBar::Act(Part part)
{
    switch (part) {
    case Part::LineUp:
        Tell(SB_LINEUP);
        break;
    case Part::LineDown:
        Tell(SB_LINEDOWN);
        break;
    case Part::PageUp:
        Tell(SB_PAGEUP);
        break;
    case Part::PageDown:
        Tell(SB_PAGEDOWN);
        break;
    default:
        break;
    }
}

LRESULT TScrollBar::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    switch (msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: {
        if (!IsWindowEnabled()) {
            return 0;
        }
        TPoint p(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        Pressed = PartAt(p);
        if (Pressed == Part::None) {
            return 0;
        }
        SetCapture();
        if (Pressed == Part::Thumb) {
            int start;
            int length;
            ThumbSpan(Info.nPos, start, length);
            nGrab = (IsVertical() ? p.y : p.x) - start;
            Info.nTrackPos = Info.nPos;
        } else {
            Act(Pressed);
            bRepeating = false;
            SetTimer(kRepeatTimer, kRepeatDelay);
        }
        Invalidate();
        return 0;
    }
    case WM_MOUSEMOVE:
        if (Pressed == Part::Thumb) {
            TPoint p(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
            int track = PositionAt(IsVertical() ? p.y : p.x);
            if (track != Info.nTrackPos) {
                Info.nTrackPos = track;
                Tell(SB_THUMBTRACK, track);
            }
        }
        return 0;
    case WM_TIMER:
        if (wParam == kRepeatTimer && Pressed != Part::None && Pressed != Part::Thumb) {
            if (!bRepeating) {
                bRepeating = true;
                SetTimer(kRepeatTimer, kRepeatPace);
            }
            // Only while the pointer stays on the part that was pressed.
            if (PartAt(ScreenToClient(WindowSystem::Get().GetCursorPos())) == Pressed) {
                Act(Pressed);
            }
        }
        return 0;
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
        if (Pressed != Part::None) {
            Part was = Pressed;
            Pressed = Part::None;
            KillTimer(kRepeatTimer);
            if (msg == WM_LBUTTONUP) {
                ReleaseCapture();
            }
            if (was == Part::Thumb) {
                Tell(SB_THUMBPOSITION, Info.nTrackPos);
            }
            Tell(SB_ENDSCROLL);
            Invalidate();
        }
        return 0;
    case SBM_SETPOS:
        return SetPosition(int(wParam), lParam != 0);
    case SBM_GETPOS:
        return Info.nPos;
    case SBM_SETRANGE:
        SetRange(int(wParam), int(lParam), false);
        return Info.nPos;
    case SBM_GETRANGE:
        if (wParam) {
            *reinterpret_cast<int*>(wParam) = Info.nMin;
        }
        if (lParam) {
            *reinterpret_cast<int*>(lParam) = Info.nMax;
        }
        return 0;
    case SBM_SETSCROLLINFO:
        return lParam ? SetScrollInfo(*reinterpret_cast<const SCROLLINFO*>(lParam), wParam != 0)
                      : Info.nPos;
    case SBM_GETSCROLLINFO:
        if (!lParam) {
            return FALSE;
        }
        GetScrollInfo(*reinterpret_cast<SCROLLINFO*>(lParam));
        return TRUE;
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TScrollBar::SetTrackColor(const TColor& color)
{
    TrackColor = color;
    Invalidate();
}

void TScrollBar::Paint(TDC& dc, bool, TRect&)
{
    PrepareColors(dc, WM_CTLCOLORSCROLLBAR, TColor(ControlLook::GetColor(COLOR_SCROLLBAR)));
    TRect r = GetClientRect();
    dc.FillRect(r, TBrush(TrackColor != TColor::None
                              ? TrackColor
                              : TColor(ControlLook::GetColor(COLOR_SCROLLBAR))));
    int arrow = ArrowSize();
    bool enabled = IsWindowEnabled() && HighestPosition() > Info.nMin;
    COLORREF glyph = enabled ? RGB(96, 96, 96) : RGB(191, 191, 191);
    TRect first = Along(0, arrow);
    TRect last = Along(Length() - arrow, Length());
    COLORREF pressed = RGB(218, 218, 218);
    if (Pressed == Part::LineUp) {
        dc.FillRect(first, TBrush(pressed));
    }
    if (Pressed == Part::LineDown) {
        dc.FillRect(last, TBrush(pressed));
    }
    if (IsVertical()) {
        ControlLook::DrawArrow(dc, first, true, glyph);
        ControlLook::DrawArrow(dc, last, false, glyph);
    } else {
        // Lying arrows: drawn as the upright ones turned by the drawing of a right arrow.
        ControlLook::DrawRightArrow(dc, last, glyph);
        TRect mirror = first;
        int half = std::max(1, std::min(mirror.Width(), mirror.Height()) / 4);
        int cx = mirror.left + mirror.Width() / 2 + half / 2;
        int cy = mirror.top + mirror.Height() / 2;
        for (int col = 0; col < half; ++col) {
            int height = half - 1 - col;
            dc.FillRect(cx - col, cy - height, cx - col + 1, cy + height + 1, TBrush(glyph));
        }
    }
    if (enabled) {
        int start;
        int length;
        ThumbSpan(Pressed == Part::Thumb ? Info.nTrackPos : Info.nPos, start, length);
        TRect thumb =
            Along(start, start + length).InflatedBy(IsVertical() ? -2 : 0, IsVertical() ? 0 : -2);
        dc.FillRect(thumb,
                    TBrush(Pressed == Part::Thumb ? RGB(166, 166, 166) : RGB(205, 205, 205)));
    }
}
