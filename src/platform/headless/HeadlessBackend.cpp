#include "platform/headless/HeadlessBackend.h"

#include <algorithm>

#include "platform/DebugStream.h"
#include "platform/PngFile.h"
#include "platform/PopupMenuWindow.h"
#include "platform/TMenu.h"
#include "platform/TWindow.h"
#include "platform/WindowSystem.h"

namespace {

UINT DownMessage(UINT button)
{
    return button == MK_RBUTTON ? WM_RBUTTONDOWN
                                : (button == MK_MBUTTON ? WM_MBUTTONDOWN : WM_LBUTTONDOWN);
}

UINT UpMessage(UINT button)
{
    return DownMessage(button) + 1;
}

// The key that types a character, as a keyboard would send it.
UINT KeyOf(char c)
{
    if (c >= 'a' && c <= 'z') {
        return UINT(c - 'a' + 'A');
    }
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == ' ') {
        return UINT(BYTE(c));
    }
    switch (c) {
    case '\r':
    case '\n':
        return VK_RETURN;
    case '\t':
        return VK_TAB;
    case '\b':
        return VK_BACK;
    case 0x1B:
        return VK_ESCAPE;
    default:
        return 0;
    }
}

} // namespace

HeadlessBackend::HeadlessBackend(TSize screen) : Screen(screen)
{}

void HeadlessBackend::CreateNativeWindow(HWND window, const TRect&, const std::string& title, bool)
{
    Titles[window] = title;
}

void HeadlessBackend::DestroyNativeWindow(HWND window)
{
    Titles.erase(window);
}

void HeadlessBackend::SetNativeTitle(HWND window, const std::string& title)
{
    Titles[window] = title;
}

std::string HeadlessBackend::GetTitle(HWND window) const
{
    auto found = Titles.find(window);
    return found == Titles.end() ? std::string() : found->second;
}

bool HeadlessBackend::ModalStarted(HWND window)
{
    TWindow* w = GetWindowPtr(window);
    if (!w || Answers.empty()) {
        ++nUnanswered;
        return false;
    }
    ModalAnswer answer = std::move(Answers.front());
    Answers.pop_front();
    answer(*w);
    return true;
}

void HeadlessBackend::AnswerNextModal(ModalAnswer answer)
{
    Answers.push_back(std::move(answer));
}

void HeadlessBackend::AdvanceTime(DWORD milliseconds)
{
    WindowSystem& system = WindowSystem::Get();
    DWORD end = nNow + milliseconds;
    system.ProcessAll();
    while (true) {
        std::optional<DWORD> due = system.NextTimerDue();
        // A timer due now or before fires now; one due after the end waits.
        if (!due || std::int32_t(*due - end) > 0) {
            break;
        }
        if (std::int32_t(*due - nNow) > 0) {
            nNow = *due;
        }
        system.ProcessAll();
    }
    nNow = end;
    system.ProcessAll();
}

void HeadlessBackend::MouseMove(TPoint screen)
{
    WindowSystem::Get().InputMouse(WM_MOUSEMOVE, screen);
}

void HeadlessBackend::MouseDown(TPoint screen, UINT button)
{
    WindowSystem& system = WindowSystem::Get();
    if (system.GetCursorPos() != screen) {
        system.InputMouse(WM_MOUSEMOVE, screen);
    }
    system.InputMouse(DownMessage(button), screen);
}

void HeadlessBackend::MouseUp(TPoint screen, UINT button)
{
    WindowSystem& system = WindowSystem::Get();
    if (system.GetCursorPos() != screen) {
        system.InputMouse(WM_MOUSEMOVE, screen);
    }
    system.InputMouse(UpMessage(button), screen);
}

void HeadlessBackend::Wheel(TPoint screen, int delta)
{
    WindowSystem::Get().InputMouse(WM_MOUSEWHEEL, screen, delta);
}

void HeadlessBackend::Click(const TWindow& window, TPoint client, UINT button)
{
    TPoint screen = window.ClientToScreen(client);
    MouseDown(screen, button);
    MouseUp(screen, button);
}

void HeadlessBackend::DoubleClick(const TWindow& window, TPoint client)
{
    Click(window, client);
    Click(window, client);
}

void HeadlessBackend::Drag(const TWindow& window, TPoint from, TPoint to, int steps)
{
    TPoint a = window.ClientToScreen(from);
    TPoint b = window.ClientToScreen(to);
    MouseDown(a);
    steps = std::max(steps, 1);
    for (int i = 1; i <= steps; ++i) {
        MouseMove(TPoint(a.x + (b.x - a.x) * i / steps, a.y + (b.y - a.y) * i / steps));
    }
    MouseUp(b);
}

void HeadlessBackend::KeyDown(UINT virtualKey)
{
    WindowSystem::Get().InputKey(WM_KEYDOWN, virtualKey);
}

void HeadlessBackend::KeyUp(UINT virtualKey)
{
    WindowSystem::Get().InputKey(WM_KEYUP, virtualKey);
}

void HeadlessBackend::PressKey(UINT virtualKey)
{
    KeyDown(virtualKey);
    KeyUp(virtualKey);
}

void HeadlessBackend::Type(const std::string& text)
{
    WindowSystem& system = WindowSystem::Get();
    for (char c : text) {
        UINT key = KeyOf(c);
        // These keys type their character themselves, as letters do while Ctrl is down.
        bool typesItself = key == VK_RETURN || key == VK_TAB || key == VK_BACK ||
                           key == VK_ESCAPE ||
                           (system.IsKeyDown(VK_CONTROL) && key >= 'A' && key <= 'Z');
        if (key) {
            system.InputKey(WM_KEYDOWN, key);
        }
        if (!typesItself) {
            system.InputChar(c);
        }
        if (key) {
            system.InputKey(WM_KEYUP, key);
        }
    }
}

void HeadlessBackend::PressButton(TWindow& window, int id)
{
    TWindow* control = window.ChildWithId(id);
    if (!control || !control->IsWindowVisible()) {
        dbstream << "Headless: no control " << id << " to press" << dbendl;
        return;
    }
    TRect r = control->GetClientRect();
    Headless().Click(*control, TPoint(r.Width() / 2, r.Height() / 2));
}

void HeadlessBackend::TypeInto(TWindow& window, int id, const std::string& text)
{
    TWindow* control = window.ChildWithId(id);
    if (!control || !control->IsWindowVisible()) {
        dbstream << "Headless: no control " << id << " to type into" << dbendl;
        return;
    }
    control->SetFocus();
    control->SendMessage(EM_SETSEL, 0, -1);
    Headless().Type(text);
}

void HeadlessBackend::ChooseMenuItem(TWindow& menu, UINT command)
{
    auto* current = dynamic_cast<PopupMenuWindow*>(&menu);
    if (!current) {
        dbstream << "Headless: the modal window is not a menu" << dbendl;
        return;
    }
    while (current) {
        int position = current->FindPath(command);
        if (position < 0) {
            dbstream << "Headless: no menu item " << command << dbendl;
            return;
        }
        TRect row = current->GetItemRect(position);
        TPoint middle(row.left + row.Width() / 2, row.top + row.Height() / 2);
        if (GetMenuItemID(current->GetMenu(), position) == command) {
            Headless().Click(*current, middle);
            return;
        }
        // A popup on the way: resting on it opens the submenu.
        Headless().MouseMove(current->ClientToScreen(middle));
        current = current->GetOpenSubMenu();
    }
}

bool HeadlessBackend::SaveWindowPng(HWND window, const std::string& path) const
{
    std::unique_ptr<Surface> picture = WindowSystem::Get().CaptureWindow(window);
    return picture && SaveSurfaceAsPng(*picture, path);
}

bool HeadlessBackend::SaveDesktopPng(const std::string& path) const
{
    std::unique_ptr<Surface> picture = WindowSystem::Get().CaptureDesktop();
    return picture && SaveSurfaceAsPng(*picture, path);
}

HeadlessBackend& Headless()
{
    WindowSystem& system = WindowSystem::Get();
    auto* headless = dynamic_cast<HeadlessBackend*>(&system.GetBackend());
    if (!headless) {
        auto backend = std::make_unique<HeadlessBackend>();
        headless = backend.get();
        system.SetBackend(std::move(backend));
    }
    return *headless;
}
