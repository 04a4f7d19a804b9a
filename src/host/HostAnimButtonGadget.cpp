#include "host/HostAnimButtonGadget.h"

#include <algorithm>

#include "platform/ModuleResources.h"
#include "platform/TDC.h"
#include "platform/TDib.h"

namespace {

// The looks, in the order of the frames of a strip.
constexpr int kRestFrame = 0;
constexpr int kHotFrame = 1;
constexpr int kPressedFrame = 2;
// The picture's colour that lets the background through.
constexpr int kTransparentIndex = 0;
// Pixels left and right of the picture, so that buttons in a row do not touch.
constexpr int kButtonGap = 2;

// The module's picture of a button file: its name without the extension.
TDib LoadButtonPicture(const std::string& file)
{
    const std::string name = file.substr(0, file.find('.'));
    return TDib(GetModuleInstance(), TResId(name));
}

} // namespace

HostAnimButtonGadget::HostAnimButtonGadget(const std::string& bitmapFile, int id, int frames,
                                           bool enabled, bool repeat)
    : TButtonGadget(LoadButtonPicture(bitmapFile), id, repeat ? RepeatCmd : Command, enabled),
      BitmapFile(bitmapFile), nFrames(std::max(1, frames))
{
    SetBorderStyle(None);
    SetMargins(TMargins{kButtonGap, kButtonGap, 0, 0});
}

void HostAnimButtonGadget::SetBitmap(const std::string& bitmapFile)
{
    BitmapFile = bitmapFile;
    SetGlyph(LoadButtonPicture(bitmapFile));
}

int HostAnimButtonGadget::GetFrame() const
{
    const int look = IsPressed() ? kPressedFrame : bHot && GetEnabled() ? kHotFrame : kRestFrame;
    return std::min(look, nFrames - 1);
}

void HostAnimButtonGadget::GetDesiredSize(TSize& size)
{
    TGadget::GetDesiredSize(size);
    if (const TDib* strip = GetGlyph(); strip && strip->IsOK()) {
        size.cx += strip->Width() / nFrames;
        size.cy += strip->Height();
    }
}

void HostAnimButtonGadget::Paint(TDC& dc)
{
    const TDib* strip = GetGlyph();
    if (!strip || !strip->IsOK()) {
        return;
    }
    const int width = strip->Width() / nFrames;
    const TRect inner = GetInnerRect();
    const int left = inner.left + (inner.Width() - width) / 2;
    const int top = inner.top + (inner.Height() - strip->Height()) / 2;
    const int first = GetFrame() * width;
    for (int y = 0; y < strip->Height(); ++y) {
        for (int x = 0; x < width; ++x) {
            const int index = strip->GetPixelIndex(first + x, y);
            // A faded button shows every other pixel of its picture.
            const bool faded = !GetEnabled() && (x + y) % 2 == 1;
            if (index == kTransparentIndex || faded) {
                continue;
            }
            // A picture of true colours has no index and nothing transparent.
            dc.SetPixel(left + x, top + y,
                        index < 0 ? strip->GetPixelColor(first + x, y) : strip->GetColor(index));
        }
    }
}

void HostAnimButtonGadget::MouseEnter(UINT keys, const TPoint& point)
{
    TButtonGadget::MouseEnter(keys, point);
    bHot = true;
    Invalidate();
}

void HostAnimButtonGadget::MouseLeave(UINT keys, const TPoint& point)
{
    TButtonGadget::MouseLeave(keys, point);
    bHot = false;
    Invalidate();
}
