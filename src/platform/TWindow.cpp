#include "platform/TWindow.h"

#include <algorithm>
#include <cstring>

#include "platform/ControlLook.h"
#include "platform/DebugStream.h"
#include "platform/MessageBox.h"
#include "platform/ModuleResources.h"
#include "platform/Surface.h"
#include "platform/TBrush.h"
#include "platform/TPaintDC.h"
#include "platform/WindowSystem.h"

namespace {

constexpr int kDefaultWidth = 640;
constexpr int kDefaultHeight = 480;

} // namespace

TWindow::TWindow(TWindow* parent, const char* title, TModule* module)
    : pModule(module ? module : GetModuleInstance()), Parent(parent), Title(title ? title : ""),
      BkgndColor(ControlLook::GetColor(COLOR_WINDOW))
{
    if (parent) {
        Attr.Style = WS_CHILD | WS_VISIBLE;
        parent->AddChild(*this);
    } else {
        Attr.Style = WS_OVERLAPPEDWINDOW | WS_VISIBLE;
        Attr.X = CW_USEDEFAULT;
        Attr.Y = CW_USEDEFAULT;
        Attr.W = kDefaultWidth;
        Attr.H = kDefaultHeight;
    }
}

TWindow::~TWindow()
{
    Destroy();
    // Children still here were made with new for this window to own.
    while (!aChildren.empty()) {
        TWindow* child = aChildren.back();
        delete child;
    }
    if (Parent) {
        Parent->RemoveChild(*this);
    }
}

void TWindow::AddChild(TWindow& child)
{
    aChildren.push_back(&child);
}

void TWindow::ReorderChildren(const std::vector<TWindow*>& order)
{
    std::vector<TWindow*> children;
    for (TWindow* w : order) {
        if (std::find(aChildren.begin(), aChildren.end(), w) != aChildren.end() &&
            std::find(children.begin(), children.end(), w) == children.end()) {
            children.push_back(w);
        }
    }
    for (TWindow* w : aChildren) {
        if (std::find(children.begin(), children.end(), w) == children.end()) {
            children.push_back(w);
        }
    }
    aChildren = std::move(children);
}

void TWindow::RemoveChild(TWindow& child)
{
    std::erase(aChildren, &child);
    child.Parent = nullptr;
    ChildGone(child);
}

// Life.

bool TWindow::Create()
{
    if (HWindow) {
        return true;
    }
    bool child = Parent && (Attr.Style & WS_CHILD);
    if (child && !Parent->HWindow) {
        dbstream << "TWindow: \"" << Title << "\" cannot be made before its parent" << dbendl;
        return false;
    }
    WindowSystem& system = WindowSystem::Get();
    HWND handle = system.AddWindow(*this);
    HWindow = handle;
    if (!child) {
        if (Attr.W == CW_USEDEFAULT || Attr.H == CW_USEDEFAULT) {
            Attr.W = kDefaultWidth;
            Attr.H = kDefaultHeight;
        }
        Attr.W = std::max(Attr.W, 1);
        Attr.H = std::max(Attr.H, 1);
        if (Attr.X == CW_USEDEFAULT || Attr.Y == CW_USEDEFAULT) {
            // Centred on the owner, or on the screen.
            TSize screen = system.GetBackend().GetScreenSize();
            TRect around(0, 0, screen.cx, screen.cy);
            if (Parent && Parent->HWindow) {
                around = Parent->GetTopLevelWindow()->GetWindowRect();
            }
            Attr.X = std::max(0, around.left + (around.Width() - Attr.W) / 2);
            Attr.Y = std::max(0, around.top + (around.Height() - Attr.H) / 2);
        }
        MakeSurface();
        system.AddTopLevel(*this);
        bool popup = (Attr.Style & WS_POPUP) && (Attr.Style & WS_CAPTION) != WS_CAPTION;
        system.GetBackend().CreateNativeWindow(handle, GetRect(), Title, popup);
    }
    SendMessage(WM_CREATE);
    SetupWindow();
    if (HWindow != handle) {
        return false;
    }
    SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(Attr.W, Attr.H));
    if (HWindow == handle && (Attr.Style & WS_VISIBLE)) {
        Attr.Style &= ~WS_VISIBLE;
        Show(SW_SHOW);
    }
    return HWindow == handle;
}

void TWindow::Destroy(int returnValue)
{
    if (!HWindow) {
        return;
    }
    WindowSystem& system = WindowSystem::Get();
    HWND handle = HWindow;
    if (system.IsInModalLoop(*this)) {
        system.EndModal(*this, returnValue);
    }
    CleanupWindow();
    SendMessage(WM_DESTROY);
    for (TWindow* child : std::vector<TWindow*>(aChildren)) {
        if (std::find(aChildren.begin(), aChildren.end(), child) != aChildren.end()) {
            child->Destroy(returnValue);
        }
    }
    system.KillTimers(handle);
    if (IsTopLevel()) {
        system.GetBackend().DestroyNativeWindow(handle);
        system.RemoveTopLevel(*this);
        pSurface.reset();
    } else if (Attr.Style & WS_VISIBLE) {
        InvalidateInParent();
    }
    system.RemoveWindow(handle);
    HWindow = nullptr;
}

void TWindow::SetupWindow()
{
    CreateChildren();
}

void TWindow::CleanupWindow()
{}

bool TWindow::CreateChildren()
{
    bool all = true;
    for (TWindow* child : std::vector<TWindow*>(aChildren)) {
        if (!child->HWindow && (child->Attr.Style & WS_CHILD)) {
            all = child->Create() && all;
        }
    }
    return all;
}

bool TWindow::CanClose()
{
    return std::all_of(aChildren.begin(), aChildren.end(),
                       [](TWindow* child) { return !child->HWindow || child->CanClose(); });
}

void TWindow::CloseWindow(int returnValue)
{
    if (CanClose()) {
        Destroy(returnValue);
    }
}

bool TWindow::IsWindow() const
{
    return HWindow && WindowSystem::Get().FindWindow(HWindow) == this;
}

// The tree.

HWND TWindow::GetParent() const
{
    return Parent ? Parent->HWindow : nullptr;
}

TWindow* TWindow::ChildWithId(int id) const
{
    for (TWindow* child : aChildren) {
        if (child->Attr.Id == id) {
            return child;
        }
    }
    return nullptr;
}

bool TWindow::IsTopLevel() const
{
    return !Parent || !(Attr.Style & WS_CHILD);
}

TWindow* TWindow::GetTopLevelWindow()
{
    TWindow* w = this;
    while (!w->IsTopLevel()) {
        w = w->Parent;
    }
    return w;
}

const TWindow* TWindow::GetTopLevelWindow() const
{
    return const_cast<TWindow*>(this)->GetTopLevelWindow();
}

// Messages.

LRESULT TWindow::SendMessage(UINT msg, WPARAM wParam, LPARAM lParam)
{
    return HWindow ? WindowProc(msg, wParam, lParam) : 0;
}

bool TWindow::PostMessage(UINT msg, WPARAM wParam, LPARAM lParam)
{
    return WindowSystem::Get().PostMessage(HWindow, msg, wParam, lParam);
}

LRESULT TWindow::WindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    TEventInfo event{msg, 0, 0};
    if (msg == WM_COMMAND) {
        event.Id = LOWORD(wParam);
        event.Code = HIWORD(wParam);
    }
    Event saved = Current;
    Current = Event{msg, wParam, lParam};
    const TResponseRow* row = Find(event);
    LRESULT result = row ? row->Handler(*this, wParam, lParam) : DefWindowProc(msg, wParam, lParam);
    Current = saved;
    return result;
}

const TResponseRow* TWindow::Find(const TEventInfo&) const
{
    return nullptr;
}

bool TWindow::PreProcessMsg(MSG&)
{
    return false;
}

LRESULT TWindow::DefaultProcessing()
{
    return DefWindowProc(Current.Msg, Current.W, Current.L);
}

LRESULT TWindow::DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam)
{
    switch (msg) {
    case WM_PAINT:
        EvPaint();
        return 0;
    case WM_ERASEBKGND:
        return EvEraseBkgnd(reinterpret_cast<HDC>(wParam));
    case WM_CLOSE:
        EvClose();
        return 0;
    case WM_SETTEXT:
        Title = lParam ? reinterpret_cast<const char*>(lParam) : "";
        if (HWindow && IsTopLevel()) {
            WindowSystem::Get().GetBackend().SetNativeTitle(HWindow, Title);
        }
        Invalidate();
        return TRUE;
    case WM_GETTEXT: {
        if (wParam == 0 || !lParam) {
            return 0;
        }
        std::size_t n = std::min<std::size_t>(Title.size(), wParam - 1);
        std::memcpy(reinterpret_cast<char*>(lParam), Title.data(), n);
        reinterpret_cast<char*>(lParam)[n] = '\0';
        return LRESULT(n);
    }
    case WM_GETTEXTLENGTH:
        return LRESULT(Title.size());
    case WM_SETFONT:
        if (wParam) {
            Font = *reinterpret_cast<HFONT>(wParam);
        } else {
            Font.reset();
        }
        if (LOWORD(std::uintptr_t(lParam))) {
            Invalidate();
        }
        return 0;
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(&GetWindowFont());
    case WM_LBUTTONDBLCLK:
        // A window that does not tell double clicks apart sees a second press.
        return WindowProc(WM_LBUTTONDOWN, wParam, lParam);
    case WM_RBUTTONDBLCLK:
        return WindowProc(WM_RBUTTONDOWN, wParam, lParam);
    case WM_MOUSEWHEEL:
        if (!IsTopLevel()) {
            return Parent->SendMessage(msg, wParam, lParam);
        }
        return 0;
    case WM_COMMAND:
        // A command of a menu or an accelerator that nobody here takes goes up the tree.
        if (lParam == 0 && !IsTopLevel()) {
            return Parent->SendMessage(msg, wParam, lParam);
        }
        return 0;
    default:
        return 0;
    }
}

// Geometry.

TRect TWindow::GetClientRect() const
{
    return TRect(0, 0, Attr.W, Attr.H);
}

TRect TWindow::GetWindowRect() const
{
    if (IsTopLevel()) {
        return GetRect();
    }
    return TRect(ClientToScreen(TPoint(0, 0)), TSize(Attr.W, Attr.H));
}

TPoint TWindow::ClientToScreen(const TPoint& p) const
{
    TPoint result = p;
    for (const TWindow* w = this; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
        result += TPoint(w->Attr.X, w->Attr.Y);
    }
    return result;
}

TPoint TWindow::ScreenToClient(const TPoint& p) const
{
    return p - ClientToScreen(TPoint(0, 0));
}

TPoint TWindow::SurfaceOrigin() const
{
    if (IsTopLevel()) {
        return TPoint(0, 0);
    }
    return Parent->SurfaceOrigin() + TPoint(Attr.X, Attr.Y);
}

TRect TWindow::SurfaceRect() const
{
    if (!HWindow) {
        return TRect();
    }
    if (IsTopLevel()) {
        return GetClientRect();
    }
    TPoint origin = Parent->SurfaceOrigin();
    return Parent->SurfaceRect() & GetRect().OffsetBy(origin.x, origin.y);
}

void TWindow::MakeSurface()
{
    auto surface =
        std::make_unique<Surface>(std::max(Attr.W, 1), std::max(Attr.H, 1), PixelFormat::Rgb32);
    if (pSurface) {
        // Keep what was shown where the new size still holds it.
        TRect common = pSurface->Bounds() & surface->Bounds();
        for (int y = common.top; y < common.bottom; ++y) {
            std::memcpy(surface->Row(y), pSurface->Row(y), std::size_t(common.Width()) * 4);
        }
    }
    pSurface = std::move(surface);
}

void TWindow::Resize(int x, int y, int width, int height, bool toBackend)
{
    width = std::max(width, 0);
    height = std::max(height, 0);
    bool sized = width != Attr.W || height != Attr.H;
    bool moved = x != Attr.X || y != Attr.Y;
    if (!sized && !moved) {
        return;
    }
    bool top = IsTopLevel();
    if (HWindow && !top && (Attr.Style & WS_VISIBLE)) {
        InvalidateInParent();
    }
    Attr.X = x;
    Attr.Y = y;
    Attr.W = width;
    Attr.H = height;
    if (!HWindow) {
        return;
    }
    if (top) {
        if (sized) {
            Attr.W = std::max(width, 1);
            Attr.H = std::max(height, 1);
            MakeSurface();
            InvalidateTree();
        }
        if (toBackend) {
            WindowSystem::Get().GetBackend().MoveNativeWindow(HWindow, GetRect());
        }
    } else if (Attr.Style & WS_VISIBLE) {
        InvalidateTree();
    }
    if (sized) {
        SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(Attr.W, Attr.H));
    }
    if (moved && HWindow) {
        SendMessage(WM_MOVE, 0, MAKELPARAM(Attr.X, Attr.Y));
    }
}

bool TWindow::SetWindowPos(HWND after, int x, int y, int width, int height, UINT flags)
{
    if (flags & SWP_NOMOVE) {
        x = Attr.X;
        y = Attr.Y;
    }
    if (flags & SWP_NOSIZE) {
        width = Attr.W;
        height = Attr.H;
    }
    Resize(x, y, width, height, true);
    if (!(flags & SWP_NOZORDER) && after == HWND_TOP && HWindow) {
        if (IsTopLevel()) {
            WindowSystem::Get().RaiseTopLevel(*this);
        } else if (Parent) {
            std::erase(Parent->aChildren, this);
            Parent->aChildren.push_back(this);
            InvalidateTree();
        }
    }
    if (flags & SWP_SHOWWINDOW) {
        Show(SW_SHOWNA);
    } else if (flags & SWP_HIDEWINDOW) {
        Show(SW_HIDE);
    }
    return true;
}

bool TWindow::MoveWindow(int x, int y, int width, int height, bool repaint)
{
    Resize(x, y, width, height, true);
    if (repaint && HWindow) {
        Invalidate();
    }
    return true;
}

bool TWindow::Show(int command)
{
    bool was = Attr.Style & WS_VISIBLE;
    WindowSystem& system = WindowSystem::Get();
    if (command == SW_HIDE) {
        if (!was) {
            return false;
        }
        Attr.Style &= ~WS_VISIBLE;
        if (HWindow) {
            if (IsTopLevel()) {
                system.GetBackend().ShowNativeWindow(HWindow, false);
            } else {
                InvalidateInParent();
            }
            TWindow* capture = system.FindWindow(system.GetCapture());
            for (TWindow* w = capture; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
                if (w == this) {
                    system.ReleaseCapture();
                    break;
                }
            }
        }
        return true;
    }
    if (was) {
        return true;
    }
    Attr.Style |= WS_VISIBLE;
    if (HWindow) {
        InvalidateTree();
        if (IsTopLevel()) {
            system.GetBackend().ShowNativeWindow(HWindow, true);
            if (command != SW_SHOWNA) {
                system.Activate(*this);
            }
        }
    }
    return false;
}

bool TWindow::IsWindowVisible() const
{
    if (!HWindow) {
        return false;
    }
    for (const TWindow* w = this; w; w = w->IsTopLevel() ? nullptr : w->Parent) {
        if (!(w->Attr.Style & WS_VISIBLE)) {
            return false;
        }
    }
    return true;
}

bool TWindow::EnableWindow(bool enable)
{
    bool wasDisabled = Attr.Style & WS_DISABLED;
    if (wasDisabled == !enable) {
        return wasDisabled;
    }
    if (enable) {
        Attr.Style &= ~WS_DISABLED;
    } else {
        Attr.Style |= WS_DISABLED;
    }
    if (HWindow) {
        SendMessage(WM_ENABLE, enable ? 1 : 0);
        Invalidate();
    }
    return wasDisabled;
}

bool TWindow::IsWindowEnabled() const
{
    return !(Attr.Style & WS_DISABLED);
}

DWORD TWindow::ModifyStyle(DWORD remove, DWORD add)
{
    DWORD old = Attr.Style;
    Attr.Style = (Attr.Style & ~remove) | add;
    if (HWindow && old != Attr.Style) {
        Invalidate();
    }
    return old;
}

// Text.

void TWindow::SetCaption(const char* title)
{
    if (HWindow) {
        SendMessage(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(title ? title : ""));
    } else {
        Title = title ? title : "";
    }
}

std::string TWindow::GetWindowText() const
{
    if (!HWindow) {
        return Title;
    }
    auto* self = const_cast<TWindow*>(this);
    std::size_t length = std::size_t(self->SendMessage(WM_GETTEXTLENGTH));
    std::string text(length + 1, '\0');
    std::size_t got = std::size_t(
        self->SendMessage(WM_GETTEXT, length + 1, reinterpret_cast<LPARAM>(text.data())));
    text.resize(std::min(got, length));
    return text;
}

// Painting.

void TWindow::Invalidate(bool erase)
{
    InvalidateRect(GetClientRect(), erase);
}

void TWindow::InvalidateRect(const TRect& rect, bool erase)
{
    if (!HWindow) {
        return;
    }
    TRect r = rect.Normalized() & GetClientRect();
    if (r.IsEmpty()) {
        return;
    }
    InvalidRect = InvalidRect ? (*InvalidRect | r) : r;
    bEraseNeeded = bEraseNeeded || erase;
    WindowSystem::Get().NoteInvalid(*this);
}

void TWindow::InvalidateTree()
{
    Invalidate(true);
    for (TWindow* child : aChildren) {
        if (child->HWindow && !child->IsTopLevel()) {
            child->InvalidateTree();
        }
    }
}

void TWindow::InvalidateInParent()
{
    if (!Parent || !Parent->HWindow) {
        return;
    }
    TRect area = GetRect();
    Parent->InvalidateRect(area, true);
    // Siblings under the window show again where it was.
    for (TWindow* sibling : Parent->aChildren) {
        if (sibling != this && sibling->HWindow && !sibling->IsTopLevel() &&
            (sibling->Attr.Style & WS_VISIBLE) && sibling->GetRect().Touches(area)) {
            sibling->InvalidateRect(area.OffsetBy(-sibling->Attr.X, -sibling->Attr.Y), true);
        }
    }
}

void TWindow::Validate()
{
    InvalidRect.reset();
    bEraseNeeded = false;
}

TRect TWindow::GetUpdateRect() const
{
    return InvalidRect ? *InvalidRect : TRect();
}

void TWindow::UpdateWindow()
{
    WindowSystem::Get().UpdateWindow(*this);
}

void TWindow::Paint(TDC&, bool, TRect&)
{}

void TWindow::SetBkgndColor(const TColor& color)
{
    BkgndColor = color;
}

void TWindow::EvPaint()
{
    if (PaintRect.IsEmpty()) {
        // A WM_PAINT sent by hand paints whatever is invalid, or all.
        PaintRect = InvalidRect ? (*InvalidRect & GetClientRect()) : GetClientRect();
        bPaintErase = bEraseNeeded || !InvalidRect;
        Validate();
    }
    TPaintDC dc(*this);
    bool erase = bPaintErase;
    if (erase && SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetHDC()))) {
        erase = false;
    }
    TRect rect = PaintRect;
    Paint(dc, erase, rect);
}

bool TWindow::EvEraseBkgnd(HDC dc)
{
    if (BkgndColor == TColor::None || !dc) {
        return false;
    }
    dc->FillRect(GetClientRect(), TBrush(BkgndColor));
    return true;
}

void TWindow::EvSize(UINT, const TSize&)
{
    DefaultProcessing();
}

void TWindow::EvClose()
{
    CloseWindow();
}

// Timers, capture, focus, cursor.

UINT_PTR TWindow::SetTimer(UINT_PTR id, UINT elapse)
{
    return WindowSystem::Get().SetTimer(HWindow, id, elapse);
}

bool TWindow::KillTimer(UINT_PTR id)
{
    return WindowSystem::Get().KillTimer(HWindow, id);
}

HWND TWindow::SetCapture()
{
    return WindowSystem::Get().SetCapture(HWindow);
}

void TWindow::ReleaseCapture()
{
    WindowSystem::Get().ReleaseCapture();
}

bool TWindow::HasCapture() const
{
    return HWindow && WindowSystem::Get().GetCapture() == HWindow;
}

HWND TWindow::SetFocus()
{
    return WindowSystem::Get().SetFocus(HWindow);
}

bool TWindow::HasFocus() const
{
    return HWindow && WindowSystem::Get().GetFocus() == HWindow;
}

bool TWindow::SetCursor(TModule* module, const TResId& resId)
{
    pCursorModule = module;
    CursorId = resId;
    WindowSystem& system = WindowSystem::Get();
    TWindow* over = system.FindWindow(system.GetCursorWindow());
    if (over == this) {
        ApplyCursor();
    }
    return true;
}

void TWindow::ApplyCursor()
{
    int id = GetDefaultCursor();
    if (!pCursorModule && !CursorId.IsString() && CursorId.GetInt() != 0) {
        id = CursorId.GetInt();
    } else if (pCursorModule) {
        // The module has no cursors of its own: its pointer is the arrow.
        id = IDC_ARROW;
    }
    WindowSystem::Get().SetCursor(reinterpret_cast<HCURSOR>(std::uintptr_t(id)));
}

// Fonts.

void TWindow::SetWindowFont(const TFont& font, bool redraw)
{
    if (HWindow) {
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(&font), MAKELPARAM(redraw ? 1 : 0, 0));
    } else {
        Font = font;
    }
}

const TFont& TWindow::GetWindowFont() const
{
    return Font ? *Font : ControlLook::GetFont();
}

int TWindow::MessageBox(const char* text, const char* caption, UINT type)
{
    return MessageBoxA(HWindow, text, caption, type);
}

// Drawing on the window outside a paint.

Surface& TWindow::GetDrawingSurface()
{
    static Surface nowhere(1, 1, PixelFormat::Rgb32);
    TWindow* top = GetTopLevelWindow();
    return HWindow && top->pSurface ? *top->pSurface : nowhere;
}

std::optional<DrawingArea> TWindow::GetDrawingArea() const
{
    if (!HWindow) {
        return DrawingArea{TPoint(0, 0), TRect()};
    }
    return DrawingArea{SurfaceOrigin(), SurfaceRect()};
}

void TWindow::DrawingDone()
{
    if (HWindow && IsWindowVisible()) {
        WindowSystem::Get().Present(*GetTopLevelWindow(), SurfaceRect());
    }
}

TWindow* GetWindowPtr(HWND handle, TApplication*)
{
    return WindowSystem::Get().FindWindow(handle);
}
