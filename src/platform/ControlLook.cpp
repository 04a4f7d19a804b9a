#include "platform/ControlLook.h"

#include <algorithm>

#include "platform/TBrush.h"
#include "platform/TDC.h"
#include "platform/TPen.h"
#include "platform/WindowSystem.h"

namespace {

constexpr COLORREF kFace = RGB(240, 240, 240);
constexpr COLORREF kButtonFace = RGB(225, 225, 225);
constexpr COLORREF kButtonBorder = RGB(173, 173, 173);
constexpr COLORREF kPressedFace = RGB(204, 228, 247);
constexpr COLORREF kHighlight = RGB(0, 120, 215);
constexpr COLORREF kGrey = RGB(109, 109, 109);
constexpr COLORREF kDisabledBorder = RGB(191, 191, 191);

} // namespace

COLORREF ControlLook::GetColor(int index)
{
    switch (index) {
    case COLOR_SCROLLBAR:
    case COLOR_BTNFACE:
        return kFace;
    case COLOR_BACKGROUND:
        return RGB(58, 110, 165);
    case COLOR_ACTIVECAPTION:
        return RGB(0, 84, 153);
    case COLOR_MENU:
        return RGB(245, 245, 245);
    case COLOR_WINDOW:
    case COLOR_BTNHIGHLIGHT:
    case COLOR_CAPTIONTEXT:
    case COLOR_HIGHLIGHTTEXT:
        return RGB(255, 255, 255);
    case COLOR_WINDOWFRAME:
        return RGB(100, 100, 100);
    case COLOR_HIGHLIGHT:
        return kHighlight;
    case COLOR_BTNSHADOW:
        return RGB(160, 160, 160);
    case COLOR_GRAYTEXT:
        return kGrey;
    case COLOR_3DDKSHADOW:
        return RGB(105, 105, 105);
    case COLOR_3DLIGHT:
        return RGB(227, 227, 227);
    case COLOR_INFOBK:
        return RGB(255, 255, 225);
    default:
        return RGB(0, 0, 0);
    }
}

int ControlLook::GetMetric(int index)
{
    switch (index) {
    case SM_CXSCREEN:
        return WindowSystem::Get().GetBackend().GetScreenSize().cx;
    case SM_CYSCREEN:
        return WindowSystem::Get().GetBackend().GetScreenSize().cy;
    case SM_CXVSCROLL:
    case SM_CYHSCROLL:
    case SM_CYVSCROLL:
    case SM_CXHSCROLL:
    case SM_CYVTHUMB:
    case SM_CXHTHUMB:
        return 17;
    case SM_CYCAPTION:
        return 23;
    case SM_CXBORDER:
    case SM_CYBORDER:
        return 1;
    case SM_CXCURSOR:
    case SM_CYCURSOR:
        return 32;
    case SM_CYMENU:
        return 20;
    case SM_CXDOUBLECLK:
    case SM_CYDOUBLECLK:
        return 4;
    default:
        return 0;
    }
}

const TFont& ControlLook::GetFont()
{
    // 8 points at 96 pixels per inch.
    static const TFont font("Arial", -11);
    return font;
}

void ControlLook::DrawBorder(TDC& dc, const TRect& rect, COLORREF color)
{
    dc.FrameRect(rect, TBrush(color));
}

void ControlLook::DrawButtonFace(TDC& dc, const TRect& rect, bool pressed, bool isDefault,
                                 bool enabled)
{
    dc.FillRect(rect, TBrush(pressed ? kPressedFace : kButtonFace));
    COLORREF border =
        !enabled ? kDisabledBorder : (pressed || isDefault ? kHighlight : kButtonBorder);
    DrawBorder(dc, rect, border);
    if (isDefault && enabled) {
        DrawBorder(dc, rect.InflatedBy(-1, -1), kHighlight);
    }
}

void ControlLook::DrawCheckBox(TDC& dc, const TRect& box, bool checked, bool enabled)
{
    dc.FillRect(box, TBrush(enabled ? RGB(255, 255, 255) : kFace));
    DrawBorder(dc, box, enabled ? RGB(51, 51, 51) : kDisabledBorder);
    if (checked) {
        DrawTick(dc, box.InflatedBy(-2, -2), enabled ? RGB(0, 0, 0) : kGrey);
    }
}

void ControlLook::DrawRadio(TDC& dc, const TRect& box, bool checked, bool enabled)
{
    dc.SelectObject(TPen(enabled ? RGB(51, 51, 51) : kDisabledBorder));
    dc.SelectObject(TBrush(enabled ? RGB(255, 255, 255) : kFace));
    dc.Ellipse(box);
    if (checked) {
        TRect dot = box.InflatedBy(-3, -3);
        COLORREF color = enabled ? RGB(0, 0, 0) : kGrey;
        dc.SelectObject(TPen(color));
        dc.SelectObject(TBrush(color));
        dc.Ellipse(dot);
    }
    dc.RestorePen();
    dc.RestoreBrush();
}

void ControlLook::DrawTick(TDC& dc, const TRect& box, COLORREF color)
{
    // Two strokes of two pixels: down to the lower third, then up to the top right.
    int w = box.Width();
    int h = box.Height();
    TPoint a(box.left, box.top + h / 2);
    TPoint b(box.left + w / 3, box.bottom - 2);
    TPoint c(box.right - 1, box.top);
    dc.SelectObject(TPen(color));
    for (int d = 0; d < 2; ++d) {
        dc.MoveTo(a.x, a.y + d);
        dc.LineTo(b.x, b.y + d);
        dc.LineTo(c.x, c.y + d);
    }
    dc.RestorePen();
}

void ControlLook::DrawArrow(TDC& dc, const TRect& rect, bool up, COLORREF color)
{
    int half = std::max(1, std::min(rect.Width(), rect.Height()) / 4);
    int cx = rect.left + rect.Width() / 2;
    int cy = rect.top + rect.Height() / 2 - half / 2;
    TBrush brush(color);
    for (int row = 0; row < half; ++row) {
        int width = up ? row : half - 1 - row;
        dc.FillRect(cx - width, cy + row, cx + width + 1, cy + row + 1, brush);
    }
}

void ControlLook::DrawRightArrow(TDC& dc, const TRect& rect, COLORREF color)
{
    int half = std::max(1, std::min(rect.Width(), rect.Height()) / 4);
    int cx = rect.left + rect.Width() / 2 - half / 2;
    int cy = rect.top + rect.Height() / 2;
    TBrush brush(color);
    for (int col = 0; col < half; ++col) {
        int height = half - 1 - col;
        dc.FillRect(cx + col, cy - height, cx + col + 1, cy + height + 1, brush);
    }
}

void ControlLook::DrawFocus(TDC& dc, const TRect& rect)
{
    // Every other pixel of the outline, as a dotted focus rectangle.
    COLORREF color = RGB(0, 0, 0);
    for (int x = rect.left; x < rect.right; x += 2) {
        dc.SetPixel(x, rect.top, color);
        dc.SetPixel(x, rect.bottom - 1, color);
    }
    for (int y = rect.top; y < rect.bottom; y += 2) {
        dc.SetPixel(rect.left, y, color);
        dc.SetPixel(rect.right - 1, y, color);
    }
}

COLORREF GetSysColor(int index)
{
    return ControlLook::GetColor(index);
}

int GetSystemMetrics(int index)
{
    return ControlLook::GetMetric(index);
}
