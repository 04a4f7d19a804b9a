#pragma once
// A group box: a frame with a caption around other controls. It draws only its frame and
// caption, so the controls inside show through, and clicks pass through it.
#include "platform/TControl.h"

class TGroupBox : public TControl
{
public:
    TGroupBox(TWindow* parent, int id, const char* text, int x, int y, int width, int height,
              TModule* module = nullptr);
    TGroupBox(TWindow* parent, int resourceId, TModule* module = nullptr);

    void Paint(TDC& dc, bool erase, TRect& rect) override;

protected:
    bool IsMouseTransparent() const override { return true; }
};
