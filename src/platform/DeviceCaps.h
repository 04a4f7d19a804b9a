#pragma once
// What GetDeviceCaps answers for a device: its resolution in pixels per logical inch, its size
// in pixels and in millimetres, and its colour depth.
//
// The screen has 96 pixels per inch unless the environment variable ORBISCOPE_SCREEN_DPI says
// otherwise (48 to 480) or the window layer sets the real screen with SetScreenDeviceCaps.
struct DeviceCaps
{
    int LogPixelsX = 96;
    int LogPixelsY = 96;
    int HorzRes = 1024;
    int VertRes = 768;
    int BitsPixel = 32;

    // The size in millimetres from pixels and resolution, rounded.
    int HorzSizeMM() const;
    int VertSizeMM() const;
    // The answer to GetDeviceCaps(index); 0 for an index it does not know.
    int Get(int index) const;
};

const DeviceCaps& ScreenDeviceCaps();
void SetScreenDeviceCaps(const DeviceCaps& caps);
