#include "host/HostModalMaker.h"

#include "platform/TWindow.h"
#include "platform/WindowSystem.h"

namespace {

// Whether `window` is `except` or a window that `except` owns.
bool IsOrIsOwnedBy(TWindow& window, HWND except)
{
    for (TWindow* w = &window; w; w = w->GetParentO()) {
        if (except && w->HWindow == except) {
            return true;
        }
    }
    return false;
}

std::vector<TWindow*> Candidates(HWND except)
{
    std::vector<TWindow*> windows;
    for (TWindow* top : WindowSystem::Get().GetTopLevels()) {
        if (top->IsWindowVisible() && top->IsWindowEnabled() && !IsOrIsOwnedBy(*top, except)) {
            windows.push_back(top);
        }
    }
    return windows;
}

} // namespace

HostModalMaker::~HostModalMaker()
{
    EnableWindows();
}

int HostModalMaker::CountWindows(HWND except) const
{
    return int(Candidates(except).size());
}

int HostModalMaker::DisableWindows(HWND except)
{
    std::vector<TWindow*> windows = Candidates(except);
    for (TWindow* window : windows) {
        window->EnableWindow(false);
        aDisabled.push_back(window->HWindow);
    }
    return int(windows.size());
}

void HostModalMaker::EnableWindows()
{
    for (HWND handle : aDisabled) {
        if (TWindow* window = GetWindowPtr(handle)) {
            window->EnableWindow(true);
        }
    }
    aDisabled.clear();
}
