#pragma once
// A window: a rectangle on the screen with a handle, a parent and children, that answers
// messages through its response table and paints itself on request.
//
// The object and its handle live apart. The constructor makes the object and links it to its
// parent; Create makes the handle (HWindow) and, through SetupWindow, the handles of the
// children; Destroy takes the handles away again and leaves the objects. The parent owns its
// children: a window that is deleted deletes the child objects it still has. A child that is a
// member of its parent's class is gone before the parent's own part is destroyed and so is never
// deleted twice.
//
// A window without WS_CHILD in its style (or without a parent) is a top-level window: it has a
// surface of its own that its children draw on, a place on the screen given by the backend, and
// its coordinates are screen coordinates. A child's coordinates are those of its parent's
// client area. The client area is the whole window: there are no frames drawn by this layer.
//
// Painting follows the usual cycle: InvalidateRect collects an invalid rectangle, the message
// loop (or UpdateWindow at once) sends WM_PAINT, and the default handler makes a device context
// clipped to the invalid part, erases the background through WM_ERASEBKGND and calls Paint.
// Children always stay on top of their parent: what the parent paints under them is put back.
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/DrawingTarget.h"
#include "platform/TColor.h"
#include "platform/TFont.h"
#include "platform/TPoint.h"
#include "platform/TRect.h"
#include "platform/TResId.h"
#include "platform/TResponseTable.h"
#include "platform/TSize.h"
#include "platform/WinTypes.h"

class TApplication;
class TDC;
class Surface;

struct TWindowAttr
{
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0;
    int Y = 0;
    int W = 0;
    int H = 0;
    int Id = 0;
};

class TWindow : public DrawingTarget
{
public:
    // A child of `parent` (WS_CHILD | WS_VISIBLE, no size until it is placed), or with no parent
    // a visible top-level window of 640 by 480 pixels.
    explicit TWindow(TWindow* parent, const char* title = nullptr, TModule* module = nullptr);
    ~TWindow() override;

    TWindow(const TWindow&) = delete;
    TWindow& operator=(const TWindow&) = delete;

    // The handle, null while the window does not exist on the screen.
    HWND HWindow = nullptr;
    // Style, place, size and id used by Create; afterwards the window's own calls change them.
    TWindowAttr Attr;

    // Life. Create makes the handle, calls SetupWindow, sends WM_SIZE with the client size and
    // shows the window when its style says WS_VISIBLE. False when the parent has no handle.
    virtual bool Create();
    // Takes the handle away, children first; the object stays.
    void Destroy(int returnValue = 0);
    // Called by Create once the handle exists: creates the children's handles.
    virtual void SetupWindow();
    // Called by Destroy while the handle still exists.
    virtual void CleanupWindow();
    // Creates the handles of the children that have none.
    bool CreateChildren();
    // Whether the window may close now; asks the children by default.
    virtual bool CanClose();
    // Closes the window when CanClose agrees: destroys it, and the top-level window without an
    // owner ends the message loop with `returnValue`.
    virtual void CloseWindow(int returnValue = 0);
    bool IsWindow() const;

    // The tree.
    TWindow* GetParentO() const { return Parent; }
    HWND GetParent() const;
    const std::vector<TWindow*>& GetChildren() const { return aChildren; }
    // The first child with a control id; null when there is none.
    TWindow* ChildWithId(int id) const;
    int GetId() const { return Attr.Id; }
    bool IsTopLevel() const;
    // The top-level window whose surface this window draws on.
    TWindow* GetTopLevelWindow();
    const TWindow* GetTopLevelWindow() const;
    TModule* GetModule() const { return pModule; }

    // Messages.
    LRESULT SendMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0);
    bool PostMessage(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0);
    // Handles a message now: the response-table row if Find gives one, else DefWindowProc.
    virtual LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    // What a window does with a message that no table row takes.
    virtual LRESULT DefWindowProc(UINT msg, WPARAM wParam, LPARAM lParam);
    // The default handling of the message being handled now, for handlers that add to it.
    LRESULT DefaultProcessing();
    // The response-table row for an event; each class searches its own table, then its base's.
    virtual const TResponseRow* Find(const TEventInfo& event) const;
    // Sees keyboard messages for this window and its children before they are dispatched;
    // true when it has dealt with the message. Dialogs move the focus and press buttons here.
    virtual bool PreProcessMsg(MSG& msg);

    // Geometry. The client rectangle starts at (0, 0).
    TRect GetClientRect() const;
    void GetClientRect(TRect& rect) const { rect = GetClientRect(); }
    // The window's rectangle on the screen.
    TRect GetWindowRect() const;
    // The rectangle in the parent's client coordinates (the screen for a top-level window).
    TRect GetRect() const { return TRect(Attr.X, Attr.Y, Attr.X + Attr.W, Attr.Y + Attr.H); }
    TPoint ClientToScreen(const TPoint& p) const;
    TPoint ScreenToClient(const TPoint& p) const;
    bool SetWindowPos(HWND after, int x, int y, int width, int height, UINT flags);
    bool SetWindowPos(HWND after, const TRect& rect, UINT flags)
    {
        return SetWindowPos(after, rect.left, rect.top, rect.Width(), rect.Height(), flags);
    }
    bool MoveWindow(int x, int y, int width, int height, bool repaint = true);
    bool MoveWindow(const TRect& rect, bool repaint = true)
    {
        return MoveWindow(rect.left, rect.top, rect.Width(), rect.Height(), repaint);
    }
    // SW_SHOW, SW_SHOWNORMAL, SW_SHOWNA or SW_HIDE; returns whether it was visible before.
    bool Show(int command);
    // Visible, and every parent visible too.
    bool IsWindowVisible() const;
    bool EnableWindow(bool enable);
    bool IsWindowEnabled() const;
    DWORD GetStyle() const { return Attr.Style; }
    // Sets and clears style bits; returns the old style.
    DWORD ModifyStyle(DWORD remove, DWORD add);

    // Text: the caption of a top-level window, the text of a control.
    void SetCaption(const char* title);
    void SetCaption(const std::string& title) { SetCaption(title.c_str()); }
    void SetWindowText(const char* text) { SetCaption(text); }
    void SetWindowText(const std::string& text) { SetCaption(text.c_str()); }
    std::string GetWindowText() const;
    int GetWindowTextLength() const { return int(GetWindowText().size()); }

    // Painting.
    void Invalidate(bool erase = true);
    void InvalidateRect(const TRect& rect, bool erase = true);
    void Validate();
    // The part that waits for a paint, empty when none does.
    TRect GetUpdateRect() const;
    // Paints at once what is invalid here and in the children.
    void UpdateWindow();
    // Draws the window; `rect` is the part to paint, `erase` whether the background is still to
    // be erased. Does nothing by default.
    virtual void Paint(TDC& dc, bool erase, TRect& rect);
    // The colour WM_ERASEBKGND fills with; TColor::None erases nothing.
    void SetBkgndColor(const TColor& color);
    TColor GetBkgndColor() const { return BkgndColor; }

    // Timers: WM_TIMER with the id, every `elapse` milliseconds. Setting an id again restarts
    // it. Returns the id, 0 when refused.
    UINT_PTR SetTimer(UINT_PTR id, UINT elapse);
    bool KillTimer(UINT_PTR id);

    // Mouse capture, keyboard focus and the cursor shown over the window.
    HWND SetCapture();
    void ReleaseCapture();
    bool HasCapture() const;
    HWND SetFocus();
    bool HasFocus() const;
    // The cursor of a module's resource; with no module, one of the system cursors (IDC_...).
    bool SetCursor(TModule* module, const TResId& resId);
    TModule* GetCursorModule() const { return pCursorModule; }
    const TResId& GetCursorResId() const { return CursorId; }

    // The font of the window's text, the GUI font until one is set.
    void SetWindowFont(const TFont& font, bool redraw = true);
    const TFont& GetWindowFont() const;

    int MessageBox(const char* text, const char* caption = nullptr, UINT type = MB_OK);

    // The window's part of its top-level surface, for client device contexts.
    Surface& GetDrawingSurface() override;
    std::optional<DrawingArea> GetDrawingArea() const override;
    void DrawingDone() override;

    // Handlers of TWindow that derived classes call from theirs.
    void EvSize(UINT sizeType, const TSize& size);
    void EvPaint();
    bool EvEraseBkgnd(HDC dc);
    void EvClose();

protected:
    // Whether mouse input passes through the window to what lies below (group boxes, labels).
    virtual bool IsMouseTransparent() const { return false; }
    // The cursor shown when none is set: the arrow, or another for a kind of control.
    virtual int GetDefaultCursor() const { return IDC_ARROW; }

    // Tells the window that a child object has gone (it is being deleted).
    virtual void ChildGone(TWindow&) {}
    // Puts the children in this order (of painting, of tabbing); windows not among them stay
    // behind the others.
    void ReorderChildren(const std::vector<TWindow*>& order);

    // The module the window belongs to.
    TModule* pModule;

private:
    friend class WindowSystem;

    void AddChild(TWindow& child);
    void RemoveChild(TWindow& child);
    // The part of its top-level surface that the window may draw on (its rectangle cut to its
    // parents), and where its client (0, 0) lies on that surface.
    TRect SurfaceRect() const;
    TPoint SurfaceOrigin() const;
    // Moves and sizes the window; tells the backend of a top-level window unless the move came
    // from there.
    void Resize(int x, int y, int width, int height, bool toBackend);
    // Shows the window's cursor while the mouse is over it.
    void ApplyCursor();
    void MakeSurface();
    void InvalidateInParent();
    // Invalidates the window and every child in it.
    void InvalidateTree();

    struct Event
    {
        UINT Msg = 0;
        WPARAM W = 0;
        LPARAM L = 0;
    };

    TWindow* Parent;
    std::vector<TWindow*> aChildren;
    std::string Title;
    TColor BkgndColor;
    std::optional<TRect> InvalidRect;
    bool bEraseNeeded = false;

public:
    // The part being painted while WM_PAINT is handled, and whether it still needs erasing.
    const TRect& GetPaintRect() const { return PaintRect; }

private:
    TRect PaintRect;
    bool bPaintErase = false;
    std::unique_ptr<Surface> pSurface;
    TModule* pCursorModule = nullptr;
    TResId CursorId{0};
    std::optional<TFont> Font;
    Event Current;
};

// The window object of a handle; null when the handle is not a live window.
TWindow* GetWindowPtr(HWND handle, TApplication* application = nullptr);
