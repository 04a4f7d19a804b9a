#include "host/HostFrameWindow.h"

#include "host/HostBookmark.h"
#include "host/HostMessages.h"
#include "platform/DebugStream.h"

HostFrameWindow::HostFrameWindow(const char* title, int width, int height) : TWindow(nullptr, title)
{
    Attr.X = 0;
    Attr.Y = 0;
    Attr.W = width;
    Attr.H = height;
    // The component paints all of it.
    SetBkgndColor(TColor::None);
}

const TResponseRow* HostFrameWindow::Find(const TEventInfo& event) const
{
    static const TResponseTable table{
        EvRow<WM_SIZE, &HostFrameWindow::EvSize>(),
        MsgRow<kHostStartModule, &HostFrameWindow::WmuStartModule>(),
    };
    const TResponseRow* row = table.Find(event);
    return row ? row : TWindow::Find(event);
}

void HostFrameWindow::EvSize(UINT sizeType, TSize& size)
{
    TWindow::EvSize(sizeType, size);
    for (TWindow* child : GetChildren()) {
        if (child->HWindow) {
            child->MoveWindow(0, 0, size.cx, size.cy);
        }
    }
}

LRESULT HostFrameWindow::WmuStartModule(WPARAM, LPARAM request)
{
    if (!request) {
        return 0;
    }
    const auto& bookmark = *reinterpret_cast<const HostBookmark*>(request);
    if (!StartModule) {
        dbstream << "HostFrameWindow: no module to start for \"" << bookmark.Command << "\""
                 << dbendl;
        return 0;
    }
    StartModule(bookmark);
    return 1;
}
