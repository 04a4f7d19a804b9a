#include "host/HostCenterDialog.h"

#include <algorithm>

#include "platform/WindowSystem.h"

namespace {

// The start of a span of `size` centred on [low, high), kept within [0, limit) when it fits.
int CenteredStart(int low, int high, int size, int limit)
{
    int start = low + (high - low - size) / 2;
    start = std::min(start, limit - size);
    return std::max(start, 0);
}

} // namespace

HostCenterDialog::HostCenterDialog(TWindow* parent, const TResId& resId, TModule* module)
    : TDialog(parent, resId, module)
{}

void HostCenterDialog::SetupWindow()
{
    TDialog::SetupWindow();
    CenterOnParent();
}

void HostCenterDialog::CenterOnParent()
{
    TSize screen = WindowSystem::Get().GetBackend().GetScreenSize();
    TRect around(0, 0, screen.cx, screen.cy);
    TWindow* parent = GetParentO();
    if (parent && parent->HWindow) {
        around = parent->GetWindowRect();
    }
    TRect own = GetWindowRect();
    int x = CenteredStart(around.left, around.right, own.Width(), screen.cx);
    int y = CenteredStart(around.top, around.bottom, own.Height(), screen.cy);
    MoveWindow(x, y, own.Width(), own.Height(), false);
}
