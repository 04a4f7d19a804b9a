#include "host/HostCenterDialog.h"

#include <algorithm>

#include "platform/WindowSystem.h"

void HostCenterDialog::SetupWindow()
{
    const TSize screen = WindowSystem::Get().GetBackend().GetScreenSize();
    const TRect over = GetParentO() && GetParentO()->HWindow ? GetParentO()->GetWindowRect()
                                                             : TRect(0, 0, screen.cx, screen.cy);
    const TRect own = GetWindowRect();
    int x = over.left + (over.Width() - own.Width()) / 2;
    int y = over.top + (over.Height() - own.Height()) / 2;
    x = std::max(0, std::min(x, screen.cx - own.Width()));
    y = std::max(0, std::min(y, screen.cy - own.Height()));
    SetWindowPos(nullptr, x, y, own.Width(), own.Height(), SWP_NOZORDER | SWP_NOSIZE);
    TDialog::SetupWindow();
}
