#pragma once
// Static text: a label that draws its text (left with word wrap, centred or right, by SS_LEFT,
// SS_CENTER, SS_RIGHT; one line with SS_LEFTNOWORDWRAP or SS_SIMPLE), or a filled or framed
// rectangle (SS_BLACKRECT ... SS_WHITEFRAME). It takes no input: clicks go through to what lies
// below, unless SS_NOTIFY asks for them (then a click tells the parent STN_CLICKED, code 0).
#include <string>

#include "platform/TControl.h"

class TStatic : public TControl
{
public:
    TStatic(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
            int textLimit = 0, TModule* module = nullptr);
    TStatic(TWindow* parent, int resourceId, int textLimit = 0, TModule* module = nullptr);

    void SetText(const std::string& text) { SetWindowText(text); }
    std::string GetText() const { return GetWindowText(); }
    void Clear() { SetWindowText(""); }

    LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override;
    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    bool IsMouseTransparent() const override { return !(Attr.Style & SS_NOTIFY); }

private:
    int nTextLimit;
};
