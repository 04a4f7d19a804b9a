#pragma once
// A button of the host's bars drawn from a strip of pictures side by side, one frame for each
// look: at rest, under the mouse and pressed (a strip of fewer frames uses its last one for the
// looks it lacks). Colour 0 of the picture is transparent, so the bar's background shows round
// the button. A click tells the bar's parent the button's command, as a command button does.
//
// The picture is a file of the module's pictures, named as the host names its button files
// ("pbzoomin.bmp"). A picture that cannot be found leaves a button of no size, which takes no
// room in its bar, and a line on dbstream.
#include <string>

#include "platform/TButtonGadget.h"

class HostAnimButtonGadget : public TButtonGadget
{
public:
    HostAnimButtonGadget(const std::string& bitmapFile, int id, int frames, bool enabled,
                         bool repeat);

    // Shows another picture of the same kind.
    void SetBitmap(const std::string& bitmapFile);
    const std::string& GetBitmapFile() const { return BitmapFile; }
    // The frame shown now: 0 at rest, 1 under the mouse, 2 pressed.
    int GetFrame() const;

    void GetDesiredSize(TSize& size) override;
    void Paint(TDC& dc) override;
    void MouseEnter(UINT keys, const TPoint& point) override;
    void MouseLeave(UINT keys, const TPoint& point) override;

private:
    std::string BitmapFile;
    int nFrames;
    bool bHot = false;
};
