#include "platform/WindowSystem.h"

#include <algorithm>
#include <cstring>

#include "platform/DebugStream.h"
#include "platform/TWindow.h"
#include "platform/headless/HeadlessBackend.h"

namespace {

// The shortest interval a timer runs at, as on Windows.
constexpr UINT kShortestTimer = 10;
// Two presses of a button this close in time and place make a double click.
constexpr DWORD kDoubleClickTime = 500;
constexpr int kDoubleClickDistance = 4;
// The colour of the desktop behind all windows in a capture.
constexpr COLORREF kDesktopColor = RGB(58, 110, 165);
// ProcessAll gives up after this many turns that all did something: a window that posts to
// itself for ever must not hang the caller.
constexpr int kMostTurns = 10000;

HWND HandleOf(std::uintptr_t value)
{
    return reinterpret_cast<HWND>(value);
}

std::uintptr_t ValueOf(HWND handle)
{
    return reinterpret_cast<std::uintptr_t>(handle);
}

// Whether a moment on a wrapping millisecond clock has come.
bool IsDue(DWORD due, DWORD now)
{
    return std::int32_t(due - now) <= 0;
}

// Copies a rectangle of 32-bit pixels between surfaces; the rectangle must lie in both.
void CopyPixels(const Surface& from, const TRect& rect, Surface& to, TPoint at)
{
    for (int y = 0; y < rect.Height(); ++y) {
        std::memcpy(to.Row(at.y + y) + std::size_t(at.x) * 4,
                    from.Row(rect.top + y) + std::size_t(rect.left) * 4,
                    std::size_t(rect.Width()) * 4);
    }
}

bool IsButtonDown(UINT msg)
{
    return msg == WM_LBUTTONDOWN || msg == WM_RBUTTONDOWN || msg == WM_MBUTTONDOWN;
}

} // namespace

WindowSystem::WindowSystem() = default;

WindowSystem& WindowSystem::Get()
{
    // Never destroyed: windows that outlive main still find it.
    static WindowSystem* system = new WindowSystem;
    return *system;
}

WindowBackend& WindowSystem::GetBackend()
{
    if (!pBackend) {
        pBackend = std::make_unique<HeadlessBackend>();
    }
    return *pBackend;
}

void WindowSystem::SetBackend(std::unique_ptr<WindowBackend> backend)
{
    if (!aTopLevels.empty()) {
        dbstream << "WindowSystem: backend changed while " << aTopLevels.size()
                 << " top-level windows exist" << dbendl;
    }
    pBackend = std::move(backend);
}

// Handles.

HWND WindowSystem::AddWindow(TWindow& window)
{
    std::uintptr_t value = nNextHandle++;
    Windows[value] = &window;
    return HandleOf(value);
}

void WindowSystem::RemoveWindow(HWND handle)
{
    Windows.erase(ValueOf(handle));
    std::erase_if(Queue, [&](const MSG& m) { return m.hwnd == handle; });
    std::erase(aNeedPaint, handle);
    if (hCapture == handle) {
        hCapture = nullptr;
    }
    if (hFocus == handle) {
        hFocus = nullptr;
    }
    if (hActive == handle) {
        hActive = nullptr;
    }
    if (hMouseOver == handle) {
        hMouseOver = nullptr;
    }
    if (hLastDown == handle) {
        hLastDown = nullptr;
    }
}

TWindow* WindowSystem::FindWindow(HWND handle) const
{
    if (!handle) {
        return nullptr;
    }
    auto found = Windows.find(ValueOf(handle));
    return found == Windows.end() ? nullptr : found->second;
}

void WindowSystem::AddTopLevel(TWindow& window)
{
    aTopLevels.push_back(&window);
}

void WindowSystem::RemoveTopLevel(TWindow& window)
{
    std::erase(aTopLevels, &window);
    if (hActive == window.HWindow) {
        hActive = nullptr;
        // The window below takes over, as it would on a desktop.
        for (auto it = aTopLevels.rbegin(); it != aTopLevels.rend(); ++it) {
            if ((*it)->IsWindowVisible() && (*it)->IsWindowEnabled()) {
                Activate(**it);
                break;
            }
        }
    }
}

void WindowSystem::RaiseTopLevel(TWindow& window)
{
    auto found = std::find(aTopLevels.begin(), aTopLevels.end(), &window);
    if (found != aTopLevels.end() && found + 1 != aTopLevels.end()) {
        aTopLevels.erase(found);
        aTopLevels.push_back(&window);
    }
}

// Messages.

LRESULT WindowSystem::Dispatch(TWindow& window, UINT msg, WPARAM wParam, LPARAM lParam)
{
    return window.WindowProc(msg, wParam, lParam);
}

LRESULT WindowSystem::SendMessage(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam)
{
    TWindow* window = FindWindow(handle);
    return window ? Dispatch(*window, msg, wParam, lParam) : 0;
}

bool WindowSystem::PostMessage(HWND handle, UINT msg, WPARAM wParam, LPARAM lParam)
{
    if (!FindWindow(handle)) {
        return false;
    }
    Queue.push_back(MSG{handle, msg, wParam, lParam, Now(), MousePosition});
    return true;
}

void WindowSystem::PostQuitMessage(int exitCode)
{
    Queue.push_back(MSG{nullptr, WM_QUIT, WPARAM(exitCode), 0, Now(), MousePosition});
}

bool WindowSystem::ProcessPending()
{
    unsigned long input = nInput;
    GetBackend().PumpEvents(0);
    bool did = nInput != input;

    // Only what was posted before this turn: what the handlers post now waits for the next.
    std::size_t count = Queue.size();
    for (std::size_t i = 0; i < count && !Queue.empty(); ++i) {
        MSG msg = Queue.front();
        Queue.pop_front();
        did = true;
        if (!msg.hwnd && msg.message == WM_QUIT) {
            bQuit = true;
            nExitCode = int(msg.wParam);
            break;
        }
        if (TWindow* window = FindWindow(msg.hwnd)) {
            Dispatch(*window, msg.message, msg.wParam, msg.lParam);
        }
    }
    if (FireDueTimers() > 0) {
        did = true;
    }
    if (PaintInvalid()) {
        did = true;
    }
    return did;
}

void WindowSystem::ProcessAll()
{
    for (int turn = 0; ProcessPending(); ++turn) {
        if (turn == kMostTurns || bQuit) {
            if (!bQuit) {
                dbstream << "WindowSystem: messages keep coming; stopped after " << kMostTurns
                         << " turns" << dbendl;
            }
            return;
        }
    }
}

int WindowSystem::Run()
{
    while (!bQuit) {
        if (ProcessPending() || bQuit) {
            continue;
        }
        std::optional<DWORD> due = NextTimerDue();
        int wait = due ? std::max(0, int(std::int32_t(*due - Now()))) : -1;
        if (!GetBackend().PumpEvents(wait) && Queue.empty()) {
            break;
        }
    }
    bQuit = false;
    int code = nExitCode;
    nExitCode = 0;
    return code;
}

// Modal loops.

void WindowSystem::SetEnabledForModal(TWindow& modal, std::vector<HWND>& disabled)
{
    for (TWindow* top : std::vector<TWindow*>(aTopLevels)) {
        if (top != &modal && top->IsWindowEnabled()) {
            top->EnableWindow(false);
            disabled.push_back(top->HWindow);
        }
    }
}

int WindowSystem::RunModal(TWindow& window)
{
    HWND handle = window.HWindow;
    if (!handle) {
        return IDCANCEL;
    }
    HWND previousActive = hActive;
    aModal.push_back(ModalFrame{handle, false, IDCANCEL});
    std::size_t frame = aModal.size() - 1;
    std::vector<HWND> disabled;
    SetEnabledForModal(window, disabled);
    if (window.IsWindowVisible()) {
        Activate(window);
    }

    auto done = [&] { return aModal[frame].bDone || !FindWindow(handle); };
    // Show the window before anybody answers it.
    for (int turn = 0; turn < 100 && !done() && ProcessPending(); ++turn) {
    }
    bool answered = done() || GetBackend().ModalStarted(handle);
    while (!done() && !bQuit) {
        if (answered && ProcessPending()) {
            continue;
        }
        if (done()) {
            break;
        }
        std::optional<DWORD> due = NextTimerDue();
        int wait = due ? std::max(0, int(std::int32_t(*due - Now()))) : -1;
        if (!answered || !GetBackend().PumpEvents(wait)) {
            dbstream << "WindowSystem: no answer to the modal window \"" << window.GetWindowText()
                     << "\"; it is closed" << dbendl;
            if (answered) {
                GetBackend().ModalLeftOpen(handle);
            }
            SendMessage(handle, WM_CLOSE, 0, 0);
            if (!done()) {
                aModal[frame].bDone = true;
            }
        }
    }
    int result = aModal[frame].Result;
    aModal.pop_back();

    for (HWND h : disabled) {
        if (TWindow* w = FindWindow(h)) {
            w->EnableWindow(true);
        }
    }
    if (TWindow* previous = FindWindow(previousActive)) {
        if (previous->IsWindowVisible()) {
            Activate(*previous);
        }
    }
    return result;
}

void WindowSystem::EndModal(TWindow& window, int result)
{
    for (auto it = aModal.rbegin(); it != aModal.rend(); ++it) {
        if (it->Window == window.HWindow && !it->bDone) {
            it->bDone = true;
            it->Result = result;
            return;
        }
    }
}

bool WindowSystem::IsInModalLoop(const TWindow& window) const
{
    return std::any_of(aModal.begin(), aModal.end(),
                       [&](const ModalFrame& f) { return f.Window == window.HWindow && !f.bDone; });
}

// Timers.

UINT_PTR WindowSystem::SetTimer(HWND handle, UINT_PTR id, UINT elapse)
{
    if (!FindWindow(handle) || id == 0) {
        return 0;
    }
    elapse = std::max(elapse, kShortestTimer);
    DWORD due = Now() + elapse;
    for (Timer& t : aTimers) {
        if (t.Window == handle && t.Id == id) {
            t.Elapse = elapse;
            t.Due = due;
            t.Order = nTimerOrder++;
            return id;
        }
    }
    aTimers.push_back(Timer{handle, id, elapse, due, nTimerOrder++});
    return id;
}

bool WindowSystem::KillTimer(HWND handle, UINT_PTR id)
{
    return std::erase_if(aTimers,
                         [&](const Timer& t) { return t.Window == handle && t.Id == id; }) > 0;
}

void WindowSystem::KillTimers(HWND handle)
{
    std::erase_if(aTimers, [&](const Timer& t) { return t.Window == handle; });
}

std::optional<DWORD> WindowSystem::NextTimerDue() const
{
    std::optional<DWORD> next;
    DWORD now = Now();
    for (const Timer& t : aTimers) {
        if (!next || std::int32_t(t.Due - now) < std::int32_t(*next - now)) {
            next = t.Due;
        }
    }
    return next;
}

int WindowSystem::FireDueTimers()
{
    DWORD now = Now();
    std::vector<Timer> due;
    for (const Timer& t : aTimers) {
        if (IsDue(t.Due, now)) {
            due.push_back(t);
        }
    }
    std::sort(due.begin(), due.end(), [&](const Timer& a, const Timer& b) {
        std::int32_t da = std::int32_t(a.Due - now);
        std::int32_t db = std::int32_t(b.Due - now);
        return da != db ? da < db : a.Order < b.Order;
    });
    int fired = 0;
    for (const Timer& d : due) {
        // A handler may have killed or reset a timer that was due.
        auto live = std::find_if(aTimers.begin(), aTimers.end(), [&](const Timer& t) {
            return t.Window == d.Window && t.Id == d.Id && t.Order == d.Order;
        });
        if (live == aTimers.end()) {
            continue;
        }
        live->Due = now + live->Elapse;
        ++fired;
        SendMessage(d.Window, WM_TIMER, d.Id, 0);
    }
    return fired;
}

// Painting.

void WindowSystem::NoteInvalid(TWindow& window)
{
    TWindow* top = window.GetTopLevelWindow();
    if (top && top->HWindow &&
        std::find(aNeedPaint.begin(), aNeedPaint.end(), top->HWindow) == aNeedPaint.end()) {
        aNeedPaint.push_back(top->HWindow);
    }
}

bool WindowSystem::PaintInvalid()
{
    if (aNeedPaint.empty()) {
        return false;
    }
    std::vector<HWND> tops;
    tops.swap(aNeedPaint);
    bool did = false;
    for (HWND handle : tops) {
        TWindow* top = FindWindow(handle);
        if (!top) {
            continue;
        }
        if (!top->IsWindowVisible()) {
            // It paints when it is shown.
            continue;
        }
        TRect painted;
        if (PaintTree(*top, painted)) {
            did = true;
        }
        if (!painted.IsEmpty()) {
            Present(*top, painted);
        }
    }
    return did;
}

bool WindowSystem::PaintTree(TWindow& window, TRect& painted)
{
    if (!(window.Attr.Style & WS_VISIBLE) || !window.HWindow) {
        return false;
    }
    HWND handle = window.HWindow;
    bool did = false;
    if (window.InvalidRect) {
        PaintOne(window, painted);
        did = true;
        if (!FindWindow(handle)) {
            return did;
        }
    }
    for (TWindow* child : std::vector<TWindow*>(window.aChildren)) {
        // A child that an earlier paint took away is not looked at.
        bool still = std::find(window.aChildren.begin(), window.aChildren.end(), child) !=
                     window.aChildren.end();
        if (still && child->HWindow && !child->IsTopLevel()) {
            did = PaintTree(*child, painted) || did;
        }
    }
    return did;
}

struct WindowSystem::Kept
{
    TRect Rect;
    std::unique_ptr<Surface> Pixels;
};

// A child that is not waiting for a paint keeps its pixels; one that is waits for more of
// itself, so that it paints over all the parent painted, and its own children are looked at in
// the same way.
void WindowSystem::KeepChildren(TWindow& window, const TRect& onSurface, std::vector<Kept>& kept)
{
    Surface& surface = *window.GetTopLevelWindow()->pSurface;
    for (TWindow* child : window.aChildren) {
        if (!child->HWindow || child->IsTopLevel() || !(child->Attr.Style & WS_VISIBLE)) {
            continue;
        }
        TRect r = child->SurfaceRect() & onSurface;
        if (r.IsEmpty()) {
            continue;
        }
        if (!child->InvalidRect) {
            auto pixels = std::make_unique<Surface>(r.Width(), r.Height(), PixelFormat::Rgb32);
            CopyPixels(surface, r, *pixels, TPoint(0, 0));
            kept.push_back(Kept{r, std::move(pixels)});
            continue;
        }
        TPoint origin = child->SurfaceOrigin();
        TRect local = r.OffsetBy(-origin.x, -origin.y);
        child->InvalidRect = *child->InvalidRect | local;
        child->bEraseNeeded = true;
        KeepChildren(*child, onSurface, kept);
    }
}

void WindowSystem::PaintOne(TWindow& window, TRect& painted)
{
    TRect invalid = *window.InvalidRect & window.GetClientRect();
    bool erase = window.bEraseNeeded;
    window.InvalidRect.reset();
    window.bEraseNeeded = false;
    TWindow* top = window.GetTopLevelWindow();
    TRect visible = window.SurfaceRect();
    TPoint origin = window.SurfaceOrigin();
    TRect onSurface = invalid.OffsetBy(origin.x, origin.y) & visible;
    if (onSurface.IsEmpty() || !top || !top->pSurface) {
        return;
    }

    // Children stay on top: what the parent paints under them is put back afterwards.
    std::vector<Kept> kept;
    Surface& surface = *top->pSurface;
    KeepChildren(window, onSurface, kept);

    window.PaintRect = onSurface.OffsetBy(-origin.x, -origin.y);
    window.bPaintErase = erase;
    HWND handle = window.HWindow;
    HWND topHandle = top->HWindow;
    Dispatch(window, WM_PAINT, 0, 0);
    if (FindWindow(handle)) {
        window.PaintRect = TRect();
    }
    if (FindWindow(topHandle) == top && top->pSurface.get() == &surface) {
        for (const Kept& k : kept) {
            CopyPixels(*k.Pixels, k.Pixels->Bounds(), surface, k.Rect.TopLeft());
        }
    }
    painted = painted | onSurface;
}

void WindowSystem::UpdateWindow(TWindow& window)
{
    TWindow* top = window.GetTopLevelWindow();
    if (!window.HWindow || !top || !window.IsWindowVisible()) {
        return;
    }
    TRect painted;
    PaintTree(window, painted);
    if (!painted.IsEmpty()) {
        Present(*top, painted);
    }
}

void WindowSystem::Present(TWindow& topLevel, const TRect& area)
{
    if (!topLevel.HWindow || !topLevel.pSurface || !(topLevel.Attr.Style & WS_VISIBLE)) {
        return;
    }
    TRect r = area & topLevel.pSurface->Bounds();
    if (!r.IsEmpty()) {
        GetBackend().Present(topLevel.HWindow, *topLevel.pSurface, r);
    }
}

// Input.

TWindow* WindowSystem::WindowAt(TPoint screenPoint) const
{
    for (auto it = aTopLevels.rbegin(); it != aTopLevels.rend(); ++it) {
        TWindow* top = *it;
        if (!top->IsWindowVisible() || !top->GetWindowRect().Contains(screenPoint)) {
            continue;
        }
        TWindow* window = top;
        bool deeper = true;
        while (deeper) {
            deeper = false;
            const auto& children = window->aChildren;
            for (auto c = children.rbegin(); c != children.rend(); ++c) {
                TWindow* child = *c;
                if (!child->HWindow || child->IsTopLevel() || !(child->Attr.Style & WS_VISIBLE) ||
                    (child->Attr.Style & WS_DISABLED) || child->IsMouseTransparent()) {
                    continue;
                }
                if (child->GetWindowRect().Contains(screenPoint)) {
                    window = child;
                    deeper = true;
                    break;
                }
            }
        }
        return window;
    }
    return nullptr;
}

bool WindowSystem::AcceptsInput(const TWindow& window) const
{
    for (const TWindow* w = &window; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
        if (w->Attr.Style & WS_DISABLED) {
            return false;
        }
    }
    return true;
}

UINT WindowSystem::GetMouseKeys() const
{
    UINT keys = 0;
    if (aKeys[VK_LBUTTON]) {
        keys |= MK_LBUTTON;
    }
    if (aKeys[VK_RBUTTON]) {
        keys |= MK_RBUTTON;
    }
    if (aKeys[0x04]) {
        keys |= MK_MBUTTON;
    }
    if (aKeys[VK_SHIFT]) {
        keys |= MK_SHIFT;
    }
    if (aKeys[VK_CONTROL]) {
        keys |= MK_CONTROL;
    }
    return keys;
}

void WindowSystem::InputMouse(UINT msg, TPoint screenPoint, int wheelDelta)
{
    ++nInput;
    MousePosition = screenPoint;
    switch (msg) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
        aKeys[VK_LBUTTON] = msg == WM_LBUTTONDOWN;
        break;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
        aKeys[VK_RBUTTON] = msg == WM_RBUTTONDOWN;
        break;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        aKeys[0x04] = msg == WM_MBUTTONDOWN;
        break;
    default:
        break;
    }

    TWindow* target = hCapture ? FindWindow(hCapture) : WindowAt(screenPoint);
    if (!target || (!hCapture && !AcceptsInput(*target))) {
        return;
    }
    HWND handle = target->HWindow;
    if (IsButtonDown(msg)) {
        TWindow* top = target->GetTopLevelWindow();
        if (top && top->HWindow != hActive && !(top->Attr.ExStyle & WS_EX_NOACTIVATE)) {
            Activate(*top);
        }
        DWORD now = Now();
        TPoint d = screenPoint - LastDownPoint;
        bool twice = hLastDown == handle && nLastDownMsg == msg &&
                     now - nLastDownTime <= kDoubleClickTime &&
                     std::abs(d.x) <= kDoubleClickDistance && std::abs(d.y) <= kDoubleClickDistance;
        if (twice) {
            msg += WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
            hLastDown = nullptr;
        } else {
            hLastDown = handle;
            nLastDownMsg = msg;
            nLastDownTime = now;
            LastDownPoint = screenPoint;
        }
        if (!FindWindow(handle)) {
            return;
        }
    }
    if (msg == WM_MOUSEWHEEL) {
        TWindow* focus = FindWindow(hFocus);
        TWindow* receiver = focus && AcceptsInput(*focus) ? focus : target;
        Dispatch(*receiver, msg, MAKEWPARAM(int(GetMouseKeys()), wheelDelta),
                 MAKELPARAM(screenPoint.x, screenPoint.y));
        return;
    }
    if (msg == WM_MOUSEMOVE) {
        hMouseOver = handle;
        target->ApplyCursor();
        if (!FindWindow(handle)) {
            return;
        }
    }
    TPoint client = target->ScreenToClient(screenPoint);
    Dispatch(*target, msg, GetMouseKeys(), MAKELPARAM(client.x, client.y));
}

TWindow* WindowSystem::KeyTarget() const
{
    if (TWindow* focus = FindWindow(hFocus)) {
        return focus;
    }
    return FindWindow(hActive);
}

void WindowSystem::InputKey(UINT msg, UINT virtualKey)
{
    ++nInput;
    aKeys[virtualKey & 0xFF] = msg == WM_KEYDOWN;
    TWindow* target = KeyTarget();
    if (!target || !AcceptsInput(*target)) {
        return;
    }
    LPARAM flags = msg == WM_KEYUP ? LPARAM(0xC0000001u) : 1;
    MSG m{target->HWindow, msg, virtualKey, flags, Now(), MousePosition};
    for (TWindow* w = target; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
        if (w->PreProcessMsg(m)) {
            return;
        }
    }
    HWND handle = target->HWindow;
    Dispatch(*target, msg, virtualKey, flags);
    // The characters that keys type by themselves, as TranslateMessage makes them.
    if (msg == WM_KEYDOWN && FindWindow(handle)) {
        char c = 0;
        if (virtualKey == VK_BACK || virtualKey == VK_TAB || virtualKey == VK_RETURN ||
            virtualKey == VK_ESCAPE) {
            c = char(virtualKey == VK_RETURN ? '\r' : virtualKey);
        } else if (aKeys[VK_CONTROL] && virtualKey >= 'A' && virtualKey <= 'Z') {
            c = char(virtualKey - 'A' + 1);
        }
        if (c) {
            InputChar(c);
        }
    }
}

void WindowSystem::InputChar(char c)
{
    ++nInput;
    TWindow* target = KeyTarget();
    if (!target || !AcceptsInput(*target)) {
        return;
    }
    MSG m{target->HWindow, WM_CHAR, WPARAM(BYTE(c)), 1, Now(), MousePosition};
    for (TWindow* w = target; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
        if (w->PreProcessMsg(m)) {
            return;
        }
    }
    Dispatch(*target, WM_CHAR, WPARAM(BYTE(c)), 1);
}

void WindowSystem::InputClose(HWND topLevel)
{
    ++nInput;
    TWindow* window = FindWindow(topLevel);
    if (window && AcceptsInput(*window)) {
        Dispatch(*window, WM_CLOSE, 0, 0);
    }
}

void WindowSystem::InputResize(HWND topLevel, TSize size)
{
    ++nInput;
    if (TWindow* window = FindWindow(topLevel)) {
        window->Resize(window->Attr.X, window->Attr.Y, size.cx, size.cy, false);
    }
}

void WindowSystem::InputMove(HWND topLevel, TPoint screenPoint)
{
    ++nInput;
    if (TWindow* window = FindWindow(topLevel)) {
        window->Resize(screenPoint.x, screenPoint.y, window->Attr.W, window->Attr.H, false);
    }
}

void WindowSystem::InputExposed(HWND topLevel)
{
    ++nInput;
    if (TWindow* window = FindWindow(topLevel)) {
        Present(*window, window->GetClientRect());
    }
}

// Capture, focus, activation, cursor.

HWND WindowSystem::SetCapture(HWND handle)
{
    HWND previous = hCapture;
    if (!FindWindow(handle)) {
        return previous;
    }
    hCapture = handle;
    if (previous && previous != handle) {
        SendMessage(previous, WM_CAPTURECHANGED, 0, LPARAM(handle));
    }
    return previous;
}

bool WindowSystem::ReleaseCapture()
{
    HWND previous = hCapture;
    hCapture = nullptr;
    if (previous) {
        SendMessage(previous, WM_CAPTURECHANGED, 0, 0);
    }
    return true;
}

HWND WindowSystem::SetFocus(HWND handle)
{
    HWND previous = hFocus;
    if (handle == hFocus) {
        return previous;
    }
    TWindow* window = FindWindow(handle);
    if (handle && !window) {
        return nullptr;
    }
    if (window) {
        TWindow* top = window->GetTopLevelWindow();
        if (top && top->HWindow != hActive) {
            hActive = top->HWindow;
            RaiseTopLevel(*top);
        }
    }
    hFocus = handle;
    if (previous) {
        SendMessage(previous, WM_KILLFOCUS, WPARAM(handle), 0);
    }
    if (handle && hFocus == handle) {
        SendMessage(handle, WM_SETFOCUS, WPARAM(previous), 0);
    }
    return previous;
}

void WindowSystem::Activate(TWindow& topLevel)
{
    if (!topLevel.HWindow) {
        return;
    }
    HWND previous = hActive;
    RaiseTopLevel(topLevel);
    if (previous != topLevel.HWindow) {
        hActive = topLevel.HWindow;
        GetBackend().ActivateNativeWindow(topLevel.HWindow);
        if (previous) {
            SendMessage(previous, WM_ACTIVATE, WA_INACTIVE, LPARAM(topLevel.HWindow));
        }
        SendMessage(topLevel.HWindow, WM_ACTIVATE, WA_ACTIVE, LPARAM(previous));
    }
    TWindow* focus = FindWindow(hFocus);
    if (!focus || focus->GetTopLevelWindow() != &topLevel) {
        SetFocus(topLevel.HWindow);
    }
}

HCURSOR WindowSystem::SetCursor(HCURSOR cursor)
{
    HCURSOR previous = hCursor;
    hCursor = cursor;
    if (cursor != previous) {
        int id = int(reinterpret_cast<std::uintptr_t>(cursor));
        GetBackend().SetCursorShape(id ? id : IDC_ARROW);
    }
    return previous;
}

// Pictures.

std::unique_ptr<Surface> WindowSystem::CaptureWindow(HWND handle) const
{
    TWindow* window = FindWindow(handle);
    const TWindow* top = window ? window->GetTopLevelWindow() : nullptr;
    if (!top || !top->pSurface) {
        return nullptr;
    }
    TRect r = window->SurfaceRect();
    if (r.IsEmpty()) {
        return nullptr;
    }
    auto picture = std::make_unique<Surface>(r.Width(), r.Height(), PixelFormat::Rgb32);
    CopyPixels(*top->pSurface, r, *picture, TPoint(0, 0));
    return picture;
}

std::unique_ptr<Surface> WindowSystem::CaptureDesktop() const
{
    TSize size = pBackend ? pBackend->GetScreenSize() : TSize(1024, 768);
    auto picture = std::make_unique<Surface>(size.cx, size.cy, PixelFormat::Rgb32);
    std::uint32_t desktop = Surface::RgbToValue(kDesktopColor);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            picture->SetValue(x, y, desktop);
        }
    }
    for (const TWindow* top : aTopLevels) {
        if (!top->pSurface || !top->IsWindowVisible()) {
            continue;
        }
        TRect screen = top->GetWindowRect();
        TRect shown = screen & picture->Bounds();
        if (shown.IsEmpty()) {
            continue;
        }
        CopyPixels(*top->pSurface, shown.OffsetBy(-screen.left, -screen.top), *picture,
                   shown.TopLeft());
    }
    return picture;
}
