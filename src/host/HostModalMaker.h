#pragma once
// Makes a window modal by hand, for windows that run their own loop: the other top-level
// windows of the program are disabled around it and enabled again afterwards. Windows that
// were disabled already stay so; the maker enables only what it disabled, also when it goes.
#include <vector>

#include "platform/WinTypes.h"

class HostModalMaker
{
public:
    HostModalMaker() = default;
    ~HostModalMaker();

    HostModalMaker(const HostModalMaker&) = delete;
    HostModalMaker& operator=(const HostModalMaker&) = delete;

    // The visible, enabled top-level windows other than `except` (and the windows it owns).
    int CountWindows(HWND except = nullptr) const;
    // Disables those windows; returns how many.
    int DisableWindows(HWND except = nullptr);
    // Enables the windows this maker disabled that still exist.
    void EnableWindows();

private:
    std::vector<HWND> aDisabled;
};
