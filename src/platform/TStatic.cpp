#include "platform/TStatic.h"

#include "platform/ControlLook.h"
#include "platform/TDC.h"
#include "platform/TextLayout.h"

TStatic::TStatic(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
                 int textLimit, TModule* module)
    : TControl(parent, id, text, x, y, width, height, module), nTextLimit(textLimit)
{
    Attr.Style = (Attr.Style & ~WS_TABSTOP) | SS_LEFT;
}

TStatic::TStatic(TWindow* parent, int resourceId, int textLimit, TModule* module)
    : TControl(parent, resourceId, module), nTextLimit(textLimit)
{}

LRESULT TStatic::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    switch (msg) {
    case WM_SETTEXT:
        if (nTextLimit > 0 && lParam) {
            std::string text(reinterpret_cast<const char*>(lParam));
            if (text.size() > std::size_t(nTextLimit)) {
                text.resize(std::size_t(nTextLimit));
            }
            return TControl::DefWindowProc(msg, wParam, reinterpret_cast<LPARAM>(text.c_str()));
        }
        return TControl::DefWindowProc(msg, wParam, lParam);
    case WM_LBUTTONDOWN:
        if (Attr.Style & SS_NOTIFY) {
            Notify(0);
        }
        return 0;
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    default:
        return TControl::DefWindowProc(msg, wParam, lParam);
    }
}

void TStatic::Paint(TDC& dc, bool, TRect&)
{
    TColor background = PrepareColors(dc, WM_CTLCOLORSTATIC, ParentBackground());
    TRect r = GetClientRect();
    DWORD type = Attr.Style & SS_TYPEMASK;
    switch (type) {
    case SS_BLACKRECT:
    case SS_GRAYRECT:
    case SS_WHITERECT: {
        COLORREF fill = type == SS_BLACKRECT  ? RGB(0, 0, 0)
                        : type == SS_GRAYRECT ? ControlLook::GetColor(COLOR_BTNSHADOW)
                                              : RGB(255, 255, 255);
        dc.FillRect(r, TBrush(fill));
        return;
    }
    case SS_BLACKFRAME:
    case SS_GRAYFRAME:
    case SS_WHITEFRAME: {
        dc.FillRect(r, TBrush(background));
        COLORREF frame = type == SS_BLACKFRAME  ? RGB(0, 0, 0)
                         : type == SS_GRAYFRAME ? ControlLook::GetColor(COLOR_BTNSHADOW)
                                                : RGB(255, 255, 255);
        ControlLook::DrawBorder(dc, r, frame);
        return;
    }
    default:
        break;
    }
    dc.FillRect(r, TBrush(background));
    if (Attr.Style & SS_SUNKEN) {
        ControlLook::DrawBorder(dc, r, ControlLook::GetColor(COLOR_BTNSHADOW));
        r = r.InflatedBy(-2, -1);
    }
    UINT format = DT_LEFT | DT_WORDBREAK;
    if (type == SS_CENTER) {
        format = DT_CENTER | DT_WORDBREAK;
    } else if (type == SS_RIGHT) {
        format = DT_RIGHT | DT_WORDBREAK;
    } else if (type == SS_LEFTNOWORDWRAP || type == SS_SIMPLE) {
        format = DT_LEFT;
    }
    if (Attr.Style & SS_CENTERIMAGE) {
        format = (format & ~DT_WORDBREAK) | DT_SINGLELINE | DT_VCENTER;
    }
    if (Attr.Style & SS_NOPREFIX) {
        format |= DT_NOPREFIX;
    }
    dc.SetTextColor(TextColor(dc));
    TextLayout(dc, GetWindowText(), r.Width(), format).Draw(dc, r);
}
