#include "platform/TClientDC.h"

#include "platform/Surface.h"
#include "platform/TWindow.h"

namespace {

// What a context on a handle of no window draws on: nothing that anybody sees.
class Nowhere : public DrawingTarget
{
public:
    Surface& GetDrawingSurface() override { return Pixel; }
    std::optional<DrawingArea> GetDrawingArea() const override
    {
        return DrawingArea{TPoint(0, 0), TRect()};
    }

private:
    Surface Pixel{1, 1, PixelFormat::Rgb32};
};

DrawingTarget& TargetOf(HWND window)
{
    static Nowhere nowhere;
    TWindow* w = GetWindowPtr(window);
    return w ? static_cast<DrawingTarget&>(*w) : nowhere;
}

} // namespace

TClientDC::TClientDC(DrawingTarget& target)
    : TDC(target.GetDrawingSurface(), target.GetDrawingCaps()), Target(target)
{
    if (std::optional<DrawingArea> area = target.GetDrawingArea()) {
        SetDeviceArea(area->Origin, area->Visible);
    }
}

TClientDC::TClientDC(HWND window) : TClientDC(TargetOf(window))
{}

TClientDC::~TClientDC()
{
    Target.DrawingDone();
}
